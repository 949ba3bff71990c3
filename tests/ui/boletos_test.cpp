#include <QAction>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QtTest>
#include <fstream>

#include "base/record_files.h"
#include "builders/adjustment.h"
#include "builders/manual.h"
#include "builders/merge.h"
#include "engine/combination_files.h"
#include "outputs/json_file.h"
#include "outputs/played_set.h"
#include "tests/support/file_bytes.h"
#include "tests/ui/window_fixture.h"
#include "ui/add_columns_window.h"
#include "ui/bets_list_window.h"
#include "ui/boletos_notice.h"
#include "ui/json_file_window.h"
#include "ui/odds_window.h"
#include "ui/official_file_window.h"
#include "ui/remove_columns_window.h"
#include "ui/text_type_window.h"

using namespace quinteva;
using pruebas::Dichos;
using pruebas::Guardada;
using pruebas::Hijo;
using pruebas::Marcar;
using pruebas::Pulsar;
using pruebas::Reducida;
namespace fs = std::filesystem;
using Registros = std::vector<engine::RegistroColumna>;

namespace {

Registros Leer(const fs::path& ruta) {
    Registros registros;
    if (base::CuentaRegistros(ruta, engine::RegistroColumna::kLongitud) == 0) return registros;
    const base::ArchivoDe<engine::RegistroColumna> archivo(ruta);
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) registros.push_back(archivo.Leer(n));
    return registros;
}

int Activas(const Registros& registros) {
    return static_cast<int>(std::count_if(registros.begin(), registros.end(),
                                          [](const auto& r) { return r.estado == '0'; }));
}

std::string Signos(const engine::RegistroColumna& r) {
    return {r.columna.begin(), r.columna.end()};
}

template <typename T>
void EsperarCierre(ui::VentanaPrincipal& v, const char* nombre) {
    QTRY_VERIFY(v.findChild<T*>(QString::fromLatin1(nombre)) == nullptr);
}

void Ajustar(ui::VentanaPrincipal& v, const QString& apuestas) {
    auto* campo = Hijo<QLineEdit>(v, QStringLiteral("CampoAjustar"));
    campo->clear();
    QTest::keyClicks(campo, apuestas);
    Pulsar(v, "BotonAjustar");
    pruebas::EsperarTrabajo(v);
}

// Las casillas de la regla de eliminación.
void Regla(ui::VentanaEliminarColumnas& ventana, int modo, int numero, int signo) {
    Hijo<QComboBox>(ventana, QStringLiteral("ComboModo"))->setCurrentIndex(modo);
    Hijo<QComboBox>(ventana, QStringLiteral("ComboNumero"))->setCurrentIndex(numero);
    Hijo<QComboBox>(ventana, QStringLiteral("ComboSigno"))->setCurrentIndex(signo);
}

// El menú del botón derecho sobre una columna de la rejilla (desde 0) y una de sus entradas.
void MenuDeColumna(ui::VentanaEliminarColumnas& ventana, int columna, const QString& entrada) {
    auto* rejilla = Hijo<QTableWidget>(ventana, QStringLiteral("RejillaColumnas"));
    const QRect celda = rejilla->visualItemRect(rejilla->item(0, columna));
    emit rejilla->customContextMenuRequested(celda.center());
    auto* menu = Hijo<QMenu>(ventana, QStringLiteral("MenuColumna"));
    for (QAction* a : menu->actions()) {
        if (a->text() == entrada) a->trigger();
    }
    menu->close();
}

// El año de dos cifras de la fecha que se muestra, en cuatro.
QString AnioMostrado(ui::VentanaPrincipal& v) {
    return QStringLiteral("20") + pruebas::TextoDe(v, "FechaJornada").right(2);
}

}  // namespace

class PruebaBoletos : public QObject {
    Q_OBJECT

  private slots:
    void ElCaminoEnteroDeLaReducidaHastaElArchivoOficial() {
        pruebas::Instalacion inst;
        const fs::path ruta = inst.documentos / "Camino.uxd";
        auto v = Guardada(inst, ruta);
        const fs::path red = inst.documentos / "Camino.red";
        const int reducidas = v->Combinacion().activasReducidas;
        QCOMPARE(Activas(Leer(red)), reducidas);
        QVERIFY(reducidas < 16 && reducidas % 8 != 1);
        QVERIFY(!Hijo<QPushButton>(*v, "BotonArchivoOficial")->isEnabled());

        Marcar(*v, "OpcionReducida");
        QCOMPARE(v->Combinacion().jugada, std::string("red"));
        QCOMPARE(outputs::LeerJuegoJugado(ruta).juego, std::string("red"));
        QCOMPARE(pruebas::TextoDe(*v, "ApuestasEnTotal"), QStringLiteral(" %1").arg(reducidas));
        QVERIFY(Hijo<QPushButton>(*v, "BotonArchivoOficial")->isEnabled());
        QVERIFY(Hijo<QPushButton>(*v, "BotonImprimirBoletos")->isEnabled());
        QVERIFY(Hijo<QPushButton>(*v, "BotonImprimirPapel")->isEnabled());

        // Ajustar a 16: se sortean columnas de la base y se guarda.
        Ajustar(*v, QStringLiteral("16"));
        QCOMPARE(v->Combinacion().activasReducidas, 16);
        QCOMPARE(pruebas::TextoDe(*v, "ApuestasEnTotal"), QStringLiteral(" 16"));
        QCOMPARE(Activas(Leer(red)), 16);
        QVERIFY(Dichos(inst.dialogo).empty());

        // Eliminar por regla: más de 0 Variantes deja solo la de catorce "1".
        Pulsar(*v, "BotonEliminarManual");
        auto* eliminar = Hijo<ui::VentanaEliminarColumnas>(*v, "VentanaEliminarColumnas");
        auto* rejilla = Hijo<QTableWidget>(*eliminar, QStringLiteral("RejillaColumnas"));
        QCOMPARE(rejilla->horizontalHeaderItem(0)->text(), QStringLiteral("Col. 1"));
        Regla(*eliminar, 0, 0, 3);
        QCOMPARE(pruebas::TextoDe(*eliminar, "RotuloDeA"), QStringLiteral("de"));
        Pulsar(*eliminar, "BotonEliminar");
        QCOMPARE(v->Combinacion().activasReducidas, 1);
        QCOMPARE(pruebas::TextoDe(*eliminar, "CuentaEliminar"), QStringLiteral("1 "));
        const Registros tras = Leer(red);
        QCOMPARE(Activas(tras), 1);
        for (std::size_t i = 0; i < tras.size() && i < 16; ++i) {
            const bool activa = tras[i].estado == '0';
            QCOMPARE(activa, Signos(tras[i]) == std::string(14, '1'));
            QCOMPARE(rejilla->item(0, static_cast<int>(i))->foreground().color() == Qt::red,
                     !activa);
        }
        // Una sola columna en el último Boleto: se mantiene una de las eliminadas.
        const std::size_t marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(base::Respuesta::Si);
        Pulsar(*eliminar, "BotonSalir");
        QCOMPARE(Dichos(inst.dialogo, marca),
                 (std::vector<std::string>{std::string(builders::kPreguntaMantenerEliminada),
                                           std::string(builders::kMsgRehabilite)}));
        QVERIFY(eliminar->isVisible());
        const int rehabilitada = tras[0].estado == '0' ? 1 : 0;
        MenuDeColumna(*eliminar, rehabilitada, QStringLiteral("Jugar columna"));
        QCOMPARE(v->Combinacion().activasReducidas, 2);
        QCOMPARE(Leer(red)[static_cast<std::size_t>(rehabilitada)].estado, '0');
        Pulsar(*eliminar, "BotonSalir");
        EsperarCierre<ui::VentanaEliminarColumnas>(*v, "VentanaEliminarColumnas");
        QCOMPARE(Dichos(inst.dialogo, marca).size(), std::size_t{2});
        QCOMPARE(pruebas::TextoDe(*v, "ApuestasEnTotal"), QStringLiteral(" 2"));

        // Añadir una a mano: catorce "2", fuera de la base.
        Pulsar(*v, "BotonAnadirManual");
        auto* anadir = Hijo<ui::VentanaAnadirColumnas>(*v, "VentanaAnadirColumnas");
        auto* entrada = Hijo<QTableWidget>(*anadir, QStringLiteral("RejillaEntrada"));
        entrada->setFocus();
        QTest::keyClicks(entrada, QStringLiteral("2222222222222"));
        Pulsar(*anadir, "BotonIncluir");
        QCOMPARE(Dichos(inst.dialogo, marca).back(), std::string(builders::kMsgFaltanSignos));
        QTest::keyClick(entrada, '2');
        Pulsar(*anadir, "BotonIncluir");
        QCOMPARE(v->Combinacion().activasReducidas, 3);
        QCOMPARE(pruebas::TextoDe(*anadir, "CuentaAnadir"), QStringLiteral("3 "));
        const Registros conLaNueva = Leer(red);
        QCOMPARE(Signos(conLaNueva.back()), std::string(14, '2'));
        QCOMPARE(conLaNueva.back().estado, '0');
        QCOMPARE(Leer(inst.trabajo / "Red.tmp").back(), conLaNueva.back());
        // La misma otra vez: ya está.
        QTest::keyClicks(entrada, QStringLiteral("22222222222222"));
        Pulsar(*anadir, "BotonIncluir");
        QCOMPARE(Dichos(inst.dialogo, marca).back(),
                 builders::MsgYaIncluida(static_cast<std::int32_t>(conLaNueva.size()), false));
        anadir->close();
        QCOMPARE(pruebas::TextoDe(*v, "ApuestasEnTotal"), QStringLiteral(" 3"));

        // El archivo oficial de las tres.
        Pulsar(*v, "BotonArchivoOficial");
        auto* oficial = Hijo<ui::VentanaArchivoOficial>(*v, "VentanaArchivoOficial");
        Hijo<QLineEdit>(*oficial, QStringLiteral("CampoReceptor"))
            ->setText(QStringLiteral("01234"));
        Hijo<QLineEdit>(*oficial, QStringLiteral("CampoNombre"))
            ->setText(QStringLiteral("Oficial"));
        const std::size_t antesDelOficial = inst.dialogo.Registro().size();
        inst.dialogo.Responder(base::Respuesta::Aceptar)
            .Responder(std::optional<fs::path>(inst.documentos.Ruta()))
            .Responder(base::Respuesta::Si)
            .Responder(std::optional<std::string>("7"));
        Pulsar(*oficial, "BotonGenerarOficial");
        QCOMPARE(Dichos(inst.dialogo, antesDelOficial),
                 (std::vector<std::string>{
                     "Por favor seleccione el directorio donde desea guardar el archivo.",
                     "El archivo que se va a generar contiene 1 Boletos con 3 Apuestas. Desea "
                     "continuar?",
                     "Por favor ntroduzca el número de la Jornada a efectos del archivo oficial "
                     "JSON. Tenga en cuenta que no es el número de la Jornada de Quinielas, si "
                     "hace falte consulte donde lo vaya a validar",
                     "Proceso terminado."}));
        EsperarCierre<ui::VentanaArchivoOficial>(*v, "VentanaArchivoOficial");
        const fs::path json = inst.documentos / "Oficial.json";
        QVERIFY(fs::exists(json));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacionPrograma, "Valores", "Receptor", ""),
                 std::string("01234"));

        // Leído en "Archivo JSON", modificado y guardado.
        inst.dialogo.Responder(std::optional<fs::path>(json));
        Hijo<QAction>(*v, "AccionJson")->trigger();
        auto* lector = Hijo<ui::VentanaArchivoJson>(*v, "VentanaArchivoJson");
        const auto campo = [lector](const char* nombre) {
            return Hijo<QLineEdit>(*lector, QString::fromLatin1(nombre));
        };
        QCOMPARE(campo("CampoJornada")->text(), QStringLiteral("007"));
        QCOMPARE(campo("CampoAnio")->text(), AnioMostrado(*v));
        QCOMPARE(campo("CampoReceptor")->text(), QStringLiteral("1234"));
        QCOMPARE(campo("CampoApuestas")->text(), QStringLiteral("3 "));
        QCOMPARE(campo("CampoBoletos")->text(), QStringLiteral("1 "));
        QCOMPARE(campo("CampoImporte")->text(), QStringLiteral("2,25 "));
        QCOMPARE(campo("CampoIgualPleno")->text(), QStringLiteral("SI"));
        QVERIFY(campo("CampoJornada")->isReadOnly());
        // "&Imprimir": las siete líneas, rótulo en redonda y valor en negrita, a 1500 twips.
        Pulsar(*lector, "BotonImprimir");
        QCOMPARE(inst.impresas.size(), 1U);
        const auto& textos = inst.impresas[0].Textos();
        QCOMPARE(textos.size(), 14U);
        QCOMPARE(textos[0].texto, std::string("JORNADA  "));
        QCOMPARE(textos[0].x, 1500.0F);
        QCOMPARE(textos[0].y, 1500.0F);
        QCOMPARE(textos[0].fuente, std::string("Ms Sans Serif"));
        QVERIFY(!textos[0].negrita);
        QCOMPARE(textos[11].texto, std::string("1 "));  // N.º BOLETOS
        QVERIFY(textos[11].negrita);
        const std::size_t antesDeModificar = inst.dialogo.Registro().size();
        Pulsar(*lector, "BotonModificar");
        QVERIFY(!campo("CampoJornada")->isReadOnly());
        campo("CampoJornada")->selectAll();
        QTest::keyClicks(campo("CampoJornada"), QStringLiteral("a8"));
        QCOMPARE(campo("CampoJornada")->text(), QStringLiteral("8"));
        Pulsar(*lector, "BotonGuardar");
        QCOMPARE(Dichos(inst.dialogo, antesDeModificar),
                 (std::vector<std::string>{
                     "Puede modificar la Jornada, Fecha y Receptor. Tras la modificación debe "
                     "utilizar el botón Guardar para que tengan efecto los cambios.",
                     std::string(outputs::kSoloNumeros), "Modificación realizada"}));
        QVERIFY(campo("CampoJornada")->isReadOnly());
        pruebas::DialogoGuionado otro;
        const auto releido = outputs::AbrirArchivoJson(json, otro);
        QCOMPARE(releido.campos.jornada, std::string("008"));
        QCOMPARE(releido.campos.apuestas, std::string("3 "));
        QCOMPARE(QString::fromStdString(releido.campos.hash), campo("CampoHash")->text());
        lector->close();
        QVERIFY(inst.dialogo.GuionAgotado());
    }

    void SinNombreSePideGuardarAntes() {
        pruebas::Instalacion inst;
        auto v = Reducida(inst);
        QVERIFY(v->PaginaHabilitada(ui::kBoletos));
        pruebas::Pagina(*v, ui::kBoletos);
        // Si no se llega a guardar, no se elige nada.
        inst.dialogo.Responder(std::optional<fs::path>());
        Marcar(*v, "OpcionReducida");
        QCOMPARE(Dichos(inst.dialogo),
                 std::vector<std::string>{"Por favor guarde antes la combinación"});
        QCOMPARE(v->Combinacion().jugada, std::string());
        QVERIFY(!Hijo<QRadioButton>(*v, "OpcionReducida")->isChecked());
        QVERIFY(!Hijo<QPushButton>(*v, "BotonArchivoTxt")->isEnabled());
        // Guardando, la elección sigue.
        const fs::path ruta = inst.documentos / "SinNombre.uxd";
        inst.dialogo.Responder(std::optional<fs::path>(ruta));
        Marcar(*v, "OpcionReducida");
        QCOMPARE(Dichos(inst.dialogo).size(), std::size_t{2});
        QCOMPARE(v->Combinacion().ruta, ruta);
        QCOMPARE(v->Combinacion().jugada, std::string("red"));
        QCOMPARE(outputs::LeerJuegoJugado(ruta).juego, std::string("red"));
        QVERIFY(Hijo<QRadioButton>(*v, "OpcionReducida")->isChecked());
        QVERIFY(Hijo<QPushButton>(*v, "BotonArchivoTxt")->isEnabled());
    }

    void ElArchivoDeTextoEnSusTresFormas() {
        pruebas::Instalacion inst;
        auto v = Guardada(inst, inst.documentos / "Texto.uxd");
        Marcar(*v, "OpcionCondicionada");
        QCOMPARE(v->Combinacion().activasGeneradas, 36);
        const Registros cnd = Leer(inst.documentos / "Texto.cnd");
        const std::array<std::string, 3> finales = {"\r", "\r\n", ""};
        for (int codigo = 1; codigo <= 3; ++codigo) {
            const fs::path salida = inst.documentos / ("Forma" + std::to_string(codigo) + ".txt");
            Pulsar(*v, "BotonArchivoTxt");
            auto* tipo = Hijo<ui::VentanaTipoArchivo>(*v, "VentanaTipoArchivo");
            QTest::mouseClick(Hijo<QRadioButton>(*tipo, QStringLiteral("OpcionTipo%1").arg(codigo)),
                              Qt::LeftButton, {}, QPoint(8, 8));
            inst.dialogo.Responder(std::optional<fs::path>(salida));
            Pulsar(*tipo, "BotonAceptar");
            EsperarCierre<ui::VentanaTipoArchivo>(*v, "VentanaTipoArchivo");
            std::string esperado;
            for (const auto& r : cnd) {
                if (r.estado == '0')
                    esperado += Signos(r) + "1M" + finales[static_cast<std::size_t>(codigo - 1)];
            }
            QCOMPARE(pruebas::BytesDeArchivo(salida), esperado);
        }
        // Ya existe: con No se deja como estaba; "&Cancelar" no pregunta nada.
        const fs::path primera = inst.documentos / "Forma1.txt";
        const std::string antes = pruebas::BytesDeArchivo(primera);
        Pulsar(*v, "BotonArchivoTxt");
        inst.dialogo.Responder(std::optional<fs::path>(primera)).Responder(base::Respuesta::No);
        Pulsar(*Hijo<ui::VentanaTipoArchivo>(*v, "VentanaTipoArchivo"), "BotonAceptar");
        QCOMPARE(Dichos(inst.dialogo),
                 std::vector<std::string>{std::string(builders::kPreguntaTxtExiste)});
        QCOMPARE(pruebas::BytesDeArchivo(primera), antes);
        EsperarCierre<ui::VentanaTipoArchivo>(*v, "VentanaTipoArchivo");
        const std::size_t marca = inst.dialogo.Registro().size();
        Pulsar(*v, "BotonArchivoTxt");
        Pulsar(*Hijo<ui::VentanaTipoArchivo>(*v, "VentanaTipoArchivo"), "BotonCancelar");
        QCOMPARE(inst.dialogo.Registro().size(), marca);
        QVERIFY(inst.dialogo.GuionAgotado());
    }

    // Con la Condicionada entera (las 36 columnas de la base), la ganadora, entre las columnas de
    // la base, siempre se acierta: 14 aciertos seguro y el Pleno, uno de 16.
    void LasProbabilidadesDePremioDelConjuntoQueSeJuega() {
        pruebas::Instalacion inst;
        auto v = Guardada(inst, inst.documentos / "Premios.uxd");
        QVERIFY(!Hijo<QPushButton>(*v, "BotonProbabilidades")->isEnabled());
        Marcar(*v, "OpcionCondicionada");
        const std::size_t dichos = inst.dialogo.Registro().size();
        Pulsar(*v, "BotonProbabilidades");
        auto* ventana = Hijo<ui::VentanaProbabilidades>(*v, "VentanaProbabilidades");
        QCOMPARE(ventana->windowTitle(), QStringLiteral("Probabilidades de premio"));
        QCOMPARE(pruebas::TextoDe(*ventana, "Probabilidad0"), QStringLiteral("100,000000 %"));
        QCOMPARE(pruebas::TextoDe(*ventana, "Probabilidad5"), QStringLiteral("0,000000 %"));
        QCOMPARE(pruebas::TextoDe(*ventana, "Probabilidad6"), QStringLiteral("6,250000 %"));
        // Con otra probabilidad del Pleno jugado, la del Pleno al 15 cambia.
        Hijo<QDoubleSpinBox>(*ventana, "CampoPleno")->setValue(20);
        QCOMPARE(pruebas::TextoDe(*ventana, "Probabilidad6"), QStringLiteral("20,000000 %"));
        QVERIFY(pruebas::TextoDe(*ventana, "OrigenProbabilidades")
                    .endsWith(QStringLiteral("todas igual de probables.")));
        QCOMPARE(inst.dialogo.Registro().size(), dichos);
    }

    void ElAjusteRechazaYPreguntaConSusTextos() {
        pruebas::Instalacion inst;
        auto v = Guardada(inst, inst.documentos / "Ajuste.uxd");
        Marcar(*v, "OpcionCondicionada");
        auto* campo = Hijo<QLineEdit>(*v, QStringLiteral("CampoAjustar"));
        QTest::keyClicks(campo, QStringLiteral("a"));
        QCOMPARE(campo->text(), QString());
        Ajustar(*v, QString());
        QVERIFY(campo->hasFocus());
        Ajustar(*v, QStringLiteral("36"));
        Ajustar(*v, QStringLiteral("9"));
        Ajustar(*v, QStringLiteral("37"));
        QCOMPARE(Dichos(inst.dialogo),
                 (std::vector<std::string>{std::string(builders::kMsgFaltaNumero),
                                           builders::MsgYaAjustada(36), builders::MsgBoletoDeUna(9),
                                           std::string(builders::kMsgBaseCorta)}));
        // Hacia abajo se pregunta; con No no cambia nada.
        inst.dialogo.Responder(base::Respuesta::No);
        Ajustar(*v, QStringLiteral("16"));
        QCOMPARE(v->Combinacion().activasGeneradas, 36);
        inst.dialogo.Responder(base::Respuesta::Si);
        Ajustar(*v, QStringLiteral("16"));
        QCOMPARE(Dichos(inst.dialogo).back(), std::string(builders::kPreguntaBajar));
        QCOMPARE(v->Combinacion().activasGeneradas, 16);
        QCOMPARE(pruebas::TextoDe(*v, "ApuestasEnTotal"), QStringLiteral(" 16"));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaCondicionada"), QStringLiteral(" 16"));
        QCOMPARE(Activas(Leer(inst.documentos / "Ajuste.cnd")), 16);
        // Hacia arriba la base está casi llena: se pregunta y se revive lo eliminado.
        inst.dialogo.Responder(base::Respuesta::Si);
        Ajustar(*v, QStringLiteral("34"));
        QCOMPARE(Dichos(inst.dialogo).back(), std::string(builders::kPreguntaMuyAjustada));
        QCOMPARE(v->Combinacion().activasGeneradas, 34);
        QCOMPARE(v->Combinacion().totalGeneradas, 36);
        QVERIFY(inst.dialogo.GuionAgotado());
    }

    void ElListadoVaDeCincuentaEnCincuentaConLasEliminadasEnRojo() {
        pruebas::Instalacion inst;
        auto v = Guardada(inst, inst.documentos / "Listado.uxd", true);
        Marcar(*v, "OpcionCondicionada");
        QCOMPARE(v->Combinacion().totalGeneradas, 108);
        QVERIFY(Hijo<QAction>(*v, "AccionListadoReducidas")->isEnabled());
        // Sin eliminadas no hay ninguna fila roja.
        Hijo<QAction>(*v, "AccionListadoCondicionadas")->trigger();
        auto* listado = Hijo<ui::VentanaListado>(*v, "VentanaListado");
        auto* lista = Hijo<QListWidget>(*listado, QStringLiteral("ListaApuestas"));
        QCOMPARE(lista->count(), 50);
        for (int i = 0; i < lista->count(); ++i)
            QVERIFY(lista->item(i)->foreground().color() != Qt::red);
        listado->close();
        EsperarCierre<ui::VentanaListado>(*v, "VentanaListado");

        // Fuera las de más de 3 doses, y la 52 a mano.
        Pulsar(*v, "BotonEliminarManual");
        auto* eliminar = Hijo<ui::VentanaEliminarColumnas>(*v, "VentanaEliminarColumnas");
        Regla(*eliminar, 0, 2, 2);
        Pulsar(*eliminar, "BotonEliminar");
        auto* barra = Hijo<QScrollBar>(*eliminar, QStringLiteral("BarraColumnas"));
        QCOMPARE(barra->maximum(), 7);
        barra->setValue(4);
        auto* rejilla = Hijo<QTableWidget>(*eliminar, QStringLiteral("RejillaColumnas"));
        QCOMPARE(rejilla->horizontalHeaderItem(3)->text(), QStringLiteral("Col. 52"));
        MenuDeColumna(*eliminar, 3, QStringLiteral("No jugar columna"));
        Pulsar(*eliminar, "BotonSalir");
        EsperarCierre<ui::VentanaEliminarColumnas>(*v, "VentanaEliminarColumnas");
        const Registros cmb = Leer(inst.trabajo / "Cmb.tmp");
        int esperadas = 0;
        for (std::size_t i = 0; i < cmb.size(); ++i) {
            const auto doses = std::count(cmb[i].columna.begin(), cmb[i].columna.end(), '2');
            esperadas += doses <= 2 && i != 51 ? 1 : 0;
            QCOMPARE(cmb[i].estado == '0', doses <= 2 && i != 51);
        }
        QCOMPARE(v->Combinacion().activasGeneradas, esperadas);
        QCOMPARE(esperadas % 8 == 1, false);
        QVERIFY(inst.dialogo.Registro().size() == 1);

        // La barra de herramientas lista lo que se juega.
        Hijo<QAction>(*v, "BarraListado")->trigger();
        listado = Hijo<ui::VentanaListado>(*v, "VentanaListado");
        QCOMPARE(pruebas::TextoDe(*listado, "RotuloListado"),
                 QStringLiteral("Apuestas Condicionadas"));
        lista = Hijo<QListWidget>(*listado, QStringLiteral("ListaApuestas"));
        auto* paginas = Hijo<QScrollBar>(*listado, QStringLiteral("BarraListado"));
        const int total = v->Combinacion().totalGeneradas;
        QCOMPARE(paginas->maximum(), (total + 49) / 50);
        for (int pagina = 1; pagina <= paginas->maximum(); ++pagina) {
            paginas->setValue(pagina);
            const int desde = (pagina - 1) * 50;
            QCOMPARE(lista->count(), std::min(50, total - desde));
            for (int i = 0; i < lista->count(); ++i) {
                const auto& r = cmb[static_cast<std::size_t>(desde + i)];
                QCOMPARE(lista->item(i)->text(), QStringLiteral("%1\t%2")
                                                     .arg(desde + i + 1)
                                                     .arg(QString::fromStdString(Signos(r))));
                QCOMPARE(lista->item(i)->foreground().color() == Qt::red, r.estado == '1');
            }
        }
        listado->close();
    }

    void UnaSolaColumnaEnElUltimoBoletoAbreLaVentanaDeAnadir() {
        pruebas::Instalacion inst;
        const fs::path ruta = inst.documentos / "Completar.uxd";
        auto v = Guardada(inst, ruta);
        Marcar(*v, "OpcionCondicionada");
        inst.dialogo.Responder(base::Respuesta::Si);
        Ajustar(*v, QStringLiteral("16"));
        // Se devuelve al juego una eliminada: 17.
        Pulsar(*v, "BotonEliminarManual");
        auto* eliminar = Hijo<ui::VentanaEliminarColumnas>(*v, "VentanaEliminarColumnas");
        const Registros cnd = Leer(inst.documentos / "Completar.cnd");
        const auto eliminada =
            std::find_if(cnd.begin(), cnd.end(), [](const auto& r) { return r.estado == '1'; });
        const int numero = static_cast<int>(eliminada - cnd.begin());
        Hijo<QScrollBar>(*eliminar, QStringLiteral("BarraColumnas"))->setValue(numero / 16 + 1);
        MenuDeColumna(*eliminar, numero % 16, QStringLiteral("Jugar columna"));
        QCOMPARE(v->Combinacion().activasGeneradas, 17);
        // Al cerrar: no se mantiene ninguna eliminada y se añade a mano, en su ventana.
        const std::size_t marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(base::Respuesta::No).Responder(base::Respuesta::Si);
        Pulsar(*eliminar, "BotonSalir");
        EsperarCierre<ui::VentanaEliminarColumnas>(*v, "VentanaEliminarColumnas");
        QCOMPARE(Dichos(inst.dialogo, marca),
                 (std::vector<std::string>{std::string(builders::kPreguntaMantenerEliminada),
                                           std::string(builders::kPreguntaAnadirManual)}));
        auto* anadir = Hijo<ui::VentanaAnadirColumnas>(*v, "VentanaAnadirColumnas");
        // Cerrada sin añadir, desde aquí no se completa al azar.
        anadir->close();
        EsperarCierre<ui::VentanaAnadirColumnas>(*v, "VentanaAnadirColumnas");
        QCOMPARE(v->Combinacion().activasGeneradas, 17);

        // Al elegir la Condicionada con 17 se pregunta; la ventana de añadir vuelve sin añadir
        // y se añade una al azar.
        Marcar(*v, "OpcionReducida");
        inst.dialogo.Responder(base::Respuesta::Si);
        Marcar(*v, "OpcionCondicionada");
        QCOMPARE(Dichos(inst.dialogo).back(), std::string(builders::kPreguntaAnadirManual));
        anadir = Hijo<ui::VentanaAnadirColumnas>(*v, "VentanaAnadirColumnas");
        anadir->close();
        EsperarCierre<ui::VentanaAnadirColumnas>(*v, "VentanaAnadirColumnas");
        QCOMPARE(Dichos(inst.dialogo).back(), std::string(builders::kMsgAleatoria));
        QCOMPARE(v->Combinacion().activasGeneradas, 18);
        QCOMPARE(pruebas::TextoDe(*v, "ApuestasEnTotal"), QStringLiteral(" 18"));
        QCOMPARE(Activas(Leer(inst.documentos / "Completar.cnd")), 18);
        QVERIFY(inst.dialogo.GuionAgotado());
    }

    void ElAvisoDeBoletosSeApagaConSuCasilla() {
        pruebas::Instalacion inst;
        inst.ajustes.Guardar(base::kAplicacion, "Valores", "AvBoletos", "SI");
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kGenerar);
        Pulsar(*v, "BotonGenerar");
        pruebas::EsperarTrabajo(*v);
        auto* aviso = Hijo<ui::VentanaAvisoBoletos>(*v, "VentanaAvisoBoletos");
        Pulsar(*aviso, "BotonAceptar");
        EsperarCierre<ui::VentanaAvisoBoletos>(*v, "VentanaAvisoBoletos");
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Valores", "AvBoletos", ""),
                 std::string("SI"));
        pruebas::Pagina(*v, ui::kReducir);
        Pulsar(*v, "BotonReducir");
        pruebas::EsperarTrabajo(*v);
        aviso = Hijo<ui::VentanaAvisoBoletos>(*v, "VentanaAvisoBoletos");
        Hijo<QCheckBox>(*aviso, QStringLiteral("CasillaAvBoletos"))->setChecked(true);
        aviso->close();
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Valores", "AvBoletos", ""),
                 std::string("NO"));
        QVERIFY(inst.dialogo.Registro().empty());
    }
};

QTEST_MAIN(PruebaBoletos)
#include "boletos_test.moc"
