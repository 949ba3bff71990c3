// "Comprobación de Aciertos" sobre una Combinación guardada, con sus ventanas: las cuentas son
// las de quinteva-cli aciertos sobre el mismo ".uxd".
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QtTest>
#include <fstream>

#include "base/formats.h"
#include "base/record_files.h"
#include "engine/combination_files.h"
#include "outputs/analysis_data.h"
#include "outputs/analysis_view.h"
#include "outputs/failure_report.h"
#include "outputs/hit_files.h"
#include "outputs/official_file.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "syndicates/pena_files.h"
#include "syndicates/pena_hits.h"
#include "tests/cli/cli_runner.h"
#include "tests/outputs/ad243_bytes.h"
#include "tests/ui/hits_fixture.h"
#include "tests/ui/window_fixture.h"
#include "ui/analysis_window.h"
#include "ui/blinking_greeting.h"
#include "ui/failure_report_window.h"
#include "ui/hits_window.h"
#include "ui/located_columns_window.h"

using namespace quinteva;
using pruebas::Celda;
using pruebas::Comprobar;
using pruebas::Dichos;
using pruebas::Hijo;
using pruebas::MenuResultado;
using pruebas::PonerGanadora;
using pruebas::Pulsar;
using pruebas::Teclear;
namespace fs = std::filesystem;

namespace {

constexpr int kJornada = 25;

QString Q(std::string_view t) {
    return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size()));
}

std::string Comillas(const fs::path& ruta) { return "'" + ruta.string() + "'"; }

// Las siete cuentas como las escribe quinteva-cli: "Quince Aciertos: 1 " por línea.
std::string CuentasMostradas(ui::VentanaAciertos& ventana) {
    std::string texto;
    for (std::size_t i = 0; i < outputs::kTitulosAciertos.size(); ++i) {
        texto +=
            std::string(outputs::kTitulosAciertos[i]) + ": " +
            Hijo<QLabel>(ventana, QStringLiteral("CuentaAciertos%1").arg(i))->text().toStdString() +
            "\n";
    }
    return texto;
}

int Cuenta(ui::VentanaAciertos& ventana, int lugar) {
    return Hijo<QLabel>(ventana, QStringLiteral("CuentaAciertos%1").arg(lugar))
        ->text()
        .remove(QLatin1Char('.'))
        .trimmed()
        .toInt();
}

std::string Cli(const std::string& argumentos) {
    const pruebas::Salida s = pruebas::EjecutarCli("aciertos " + argumentos);
    if (s.codigo != 0) qFatal("quinteva-cli aciertos: %s", s.errores.c_str());
    return s.salida;
}

bool Activo(QObject& ventana, const char* boton) {
    return Hijo<QPushButton>(ventana, QString::fromLatin1(boton))->isEnabled();
}

// Un turno del temporizador del saludo, sin esperarlo.
void Turno(ui::SaludoParpadeante& saludo) {
    auto* temporizador = Hijo<QTimer>(saludo, QStringLiteral("TemporizadorSaludo"));
    QVERIFY(QMetaObject::invokeMethod(temporizador, "timeout", Qt::DirectConnection));
}

std::vector<engine::RegistroColumna> Activas(const fs::path& ruta) {
    std::vector<engine::RegistroColumna> activas;
    const base::ArchivoDe<engine::RegistroColumna> archivo(ruta);
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) {
        if (archivo.Leer(n).Activa()) activas.push_back(archivo.Leer(n));
    }
    return activas;
}

seasons::RegJornadaQuin RegistroJornada(const fs::path& carpetaTemporada) {
    const base::ArchivoDe<seasons::RegJornadaQuin> jornadas(carpetaTemporada / seasons::kJornadas);
    for (std::int32_t n = 1; n <= jornadas.Cuenta(); ++n) {
        if (jornadas.Leer(n).jornada == kJornada) return jornadas.Leer(n);
    }
    return {};
}

std::string SignosEnJquin(const fs::path& carpetaTemporada) {
    std::string signos(15, ' ');
    const base::ArchivoDe<seasons::RegPartidoQuin> jquin(carpetaTemporada / seasons::kJquin);
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        const auto p = jquin.Leer(n);
        if (p.jornada == kJornada) signos[static_cast<std::size_t>(p.partido - 1)] = p.signo[0];
    }
    return signos;
}

}  // namespace

class PruebaAciertos : public QObject {
    Q_OBJECT

    pruebas::Instalacion inst;
    fs::path ruta = inst.documentos / "Aciertos.uxd";
    std::unique_ptr<ui::VentanaPrincipal> v;
    ui::VentanaAciertos* ventana = nullptr;

    fs::path CarpetaTemporada() const { return v->Temporada().carpetaTemporada; }

    ui::VentanaAciertos& Abrir() {
        Hijo<QAction>(*v, QStringLiteral("AccionAciertos"))->trigger();
        ventana = Hijo<ui::VentanaAciertos>(*v, QStringLiteral("VentanaAciertos"));
        return *ventana;
    }

  private slots:
    // La Reducida de la Jornada 25 guardada y elegida en Boletos.
    void initTestCase() {
        v = pruebas::Guardada(inst, ruta);
        pruebas::Marcar(*v, "OpcionReducida");
        QCOMPARE(v->Combinacion().jugada, std::string("red"));
        QVERIFY(v->Combinacion().activasReducidas > 0);
    }

    void AlAbrirseMuestraElResultadoGuardadoDeLaJornada() {
        auto& w = Abrir();
        const auto registro = RegistroJornada(CarpetaTemporada());
        QCOMPARE(registro.temporada, std::string("23/24"));
        const auto rejilla = outputs::RejillaDeResultado(registro.signos);
        for (int f = 0; f < 15; ++f) QCOMPARE(Celda(w, f), Q(rejilla[static_cast<std::size_t>(f)]));
        QCOMPARE(w.Ganadora(), outputs::GanadoraDeResultado(registro.signos));
        // La temporada de demostración no trae el resultado: solo vale "A&vance".
        QVERIFY(outputs::ResultadoIncompleto(registro.signos));
        QVERIFY(!Activo(w, "BotonAciertos") && !Activo(w, "BotonOtras"));
        QVERIFY(Activo(w, "BotonAvance") && Activo(w, "BotonGuardar"));
        QVERIFY(!Activo(w, "BotonFallos") && !Activo(w, "BotonColumnas"));
        QVERIFY(!Activo(w, "BotonDatos") && !Activo(w, "BotonPena"));
        QVERIFY(Hijo<QLabel>(w, QStringLiteral("Posibilidad"))->isVisible());
        for (int i = 0; i < 7; ++i) QCOMPARE(Cuenta(w, i), 0);
    }

    void LasTeclasYElMenuDeLaRejilla() {
        auto& w = *ventana;
        Teclear(w, 0, QStringLiteral("x"));
        QCOMPARE(Celda(w, 0), QStringLiteral("X"));
        // Un cambio deja sin comprobar hasta guardar.
        QVERIFY(!Activo(w, "BotonAciertos") && !Activo(w, "BotonOtras"));
        QVERIFY(Activo(w, "BotonAvance"));
        Teclear(w, 1, QStringLiteral("2a0m"));
        QCOMPARE(Celda(w, 1), QStringLiteral("2"));
        Teclear(w, 14, QStringLiteral("2xm"));
        QCOMPARE(Celda(w, 14), QStringLiteral("2 M"));
        Teclear(w, 14, QStringLiteral("0"));
        QCOMPARE(Celda(w, 14), QStringLiteral("0"));
        MenuResultado(w, 1, QStringLiteral("Eliminar resultado"));
        QCOMPARE(Celda(w, 1), QString());
        QCOMPARE(Celda(w, 0), QStringLiteral("X"));
        MenuResultado(w, 0, QStringLiteral("Eliminar todos"));
        for (int f = 0; f < 15; ++f) QCOMPARE(Celda(w, f), QString());
        QVERIFY(Dichos(inst.dialogo).empty());
    }

    void GuardarConBlancosSoloDejaElAvance() {
        auto& w = *ventana;
        PonerGanadora(w, QStringLiteral("11111111111111"), QStringLiteral("1m"));
        MenuResultado(w, 13, QStringLiteral("Eliminar resultado"));
        MenuResultado(w, 12, QStringLiteral("Eliminar resultado"));
        Pulsar(w, "BotonGuardar");
        QCOMPARE(RegistroJornada(CarpetaTemporada()).signos, std::string("111111111111  H"));
        QCOMPARE(SignosEnJquin(CarpetaTemporada()), std::string("111111111111  H"));
        QVERIFY(!Activo(w, "BotonAciertos"));
        QVERIFY(Activo(w, "BotonAvance"));

        Comprobar(w, "BotonAvance");
        QVERIFY(Hijo<QLabel>(w, QStringLiteral("Posibilidad"))->isVisible());
        QCOMPARE(CuentasMostradas(w),
                 Cli(Comillas(ruta) + " --ganadora 111111111111-- --pleno 1-M --avance"));
        QVERIFY(Cuenta(w, 0) > 0);
        QVERIFY(!Activo(w, "BotonColumnas") && !Activo(w, "BotonDatos"));
        QVERIFY(Dichos(inst.dialogo).empty());
    }

    void AciertosColumnasYElSaludoQueParpadea() {
        auto& w = *ventana;
        Teclear(w, 12, QStringLiteral("1"));
        Teclear(w, 13, QStringLiteral("1"));
        Pulsar(w, "BotonGuardar");
        QCOMPARE(RegistroJornada(CarpetaTemporada()).signos, std::string("11111111111111H"));
        QCOMPARE(SignosEnJquin(CarpetaTemporada()), std::string("11111111111111H"));
        QCOMPARE(w.Ganadora(), std::string("111111111111111M"));
        QVERIFY(Activo(w, "BotonAciertos") && Activo(w, "BotonOtras"));
        QVERIFY(!Activo(w, "BotonAvance"));
        QVERIFY(Hijo<QLabel>(w, QStringLiteral("Posibilidad"))->isHidden());

        Comprobar(w, "BotonAciertos");
        const std::string ganadora = " --ganadora 11111111111111 --pleno 1-M";
        QCOMPARE(CuentasMostradas(w), Cli(Comillas(ruta) + ganadora));
        QVERIFY(Cuenta(w, 0) > 0);
        QVERIFY(Activo(w, "BotonColumnas") && Activo(w, "BotonPena") && Activo(w, "BotonDatos"));
        QVERIFY(!Activo(w, "BotonFallos"));
        QVERIFY(Dichos(inst.dialogo).empty());

        // Diez veces encendido, y se queda.
        auto* saludo = Hijo<ui::SaludoParpadeante>(w, QStringLiteral("Saludo"));
        QCOMPARE(saludo->text(), QStringLiteral("Enhorabuena!!!"));
        QVERIFY(saludo->Parpadeando() && saludo->Encendido());
        QCOMPARE(saludo->Veces(), 1);
        for (int turno = 1; turno < 2 * (ui::SaludoParpadeante::kVecesParpadeo - 1); ++turno) {
            Turno(*saludo);
            QCOMPARE(saludo->Encendido(), turno % 2 == 0);
            QCOMPARE(saludo->isVisible(), turno % 2 == 0);
            QVERIFY(saludo->Parpadeando());
        }
        Turno(*saludo);
        QCOMPARE(saludo->Veces(), ui::SaludoParpadeante::kVecesParpadeo);
        QVERIFY(!saludo->Parpadeando() && saludo->isVisible());

        // Otra vez, y cualquier acción lo para: aquí "Colu&mnas".
        Comprobar(w, "BotonAciertos");
        QVERIFY(saludo->Parpadeando());
        Turno(*saludo);
        QVERIFY(!saludo->isVisible());
        Pulsar(w, "BotonColumnas");
        QVERIFY(!saludo->Parpadeando() && saludo->isVisible());

        auto* columnas =
            Hijo<ui::VentanaColumnasAcertadas>(w, QStringLiteral("VentanaColumnasAcertadas"));
        auto* rejilla = Hijo<QTableWidget>(*columnas, QStringLiteral("RejillaLocalizadas"));
        std::string filas = "Boleto\tColumna\tAciertos\n";
        for (int c = 0; c < 3; ++c) {
            QCOMPARE(rejilla->horizontalHeaderItem(c)->text(),
                     Q(outputs::kCabecerasLocalizadas[static_cast<std::size_t>(c)]));
        }
        for (int f = 0; f < rejilla->rowCount(); ++f) {
            filas += rejilla->item(f, 0)->text().toStdString() + '\t' +
                     rejilla->item(f, 1)->text().toStdString() + '\t' +
                     rejilla->item(f, 2)->text().toStdString() + '\n';
        }
        QCOMPARE(CuentasMostradas(w) + filas, Cli(Comillas(ruta) + ganadora + " --columnas"));
        columnas->close();
    }

    void APenaCopiaLasSeisCuentas() {
        auto& w = *ventana;
        syndicates::RegPena datos;
        datos.nombre = "Peña de las pruebas";
        datos.nombreReducido = "Pruebas";
        datos.temporada = "23/24";
        const fs::path pena = syndicates::CrearPena(inst.trabajo.Ruta(), datos);
        const fs::path nmp = syndicates::ArchivoPena(pena, syndicates::kExtPena);
        const std::size_t marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(base::Respuesta::Si).Responder(std::optional<fs::path>(nmp));
        Pulsar(w, "BotonPena");
        QCOMPARE(Dichos(inst.dialogo, marca),
                 (std::vector<std::string>{std::string(syndicates::kPreguntaAPena),
                                           std::string(syndicates::kMsgDatosCopiados)}));
        // El elegir archivo empieza en la carpeta de las Peñas.
        QCOMPARE(inst.dialogo.Registro()[marca + 1].tipo, std::string("ArchivoParaAbrir"));
        const auto registro = base::ArchivoDe<syndicates::RegJornadaPena>(
                                  syndicates::ArchivoPena(pena, syndicates::kExtJornadas))
                                  .Leer(kJornada);
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(registro.acertadas[static_cast<std::size_t>(i)], Cuenta(w, i));
        }
        QCOMPARE(registro.temporada, std::string("23/24"));
        QVERIFY(inst.dialogo.GuionAgotado());
    }

    void OtrasConElArchivoOficialYConUnAD243() {
        auto& w = *ventana;
        const std::string esperadas = CuentasMostradas(w);
        const auto activas = Activas(inst.documentos / "Aciertos.red");
        const std::string anio =
            "20" + Hijo<QLabel>(*v, QStringLiteral("FechaJornada"))->text().right(2).toStdString();
        outputs::JsonBag raiz;
        outputs::ArbolGenerado(raiz, activas, {12345, outputs::IdSorteo(anio, kJornada), 0.75F});
        const fs::path json = inst.documentos / "Oficial.json";
        outputs::EscribirArchivoOficial(json, raiz);
        const fs::path ad243 = inst.documentos / "Apuesta.243";
        std::ofstream(ad243, std::ios::binary) << pruebas::BytesAD243(activas, "25");

        // Cuentas a cero antes de cada una: que se vea que las pone la comprobación.
        std::size_t marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(std::optional<fs::path>(json)).Responder(base::Respuesta::Si);
        Comprobar(w, "BotonOtras");
        QCOMPARE(Dichos(inst.dialogo, marca),
                 (std::vector<std::string>{
                     "El archivo corresponde al Sorteo de Quinielas nº 025. Está seguro de que "
                     "este fichero corresponde a la Jornada nº 25 de Quinielas?",
                     std::string(outputs::kMsgComprobacionFinalizada)}));
        QCOMPARE(CuentasMostradas(w), esperadas);
        QCOMPARE(CuentasMostradas(w), Cli(Comillas(json) +
                                          " --ganadora 11111111111111 --pleno 1-M --jornada 25 "
                                          "--anio " +
                                          anio));

        marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(std::optional<fs::path>(ad243));
        Comprobar(w, "BotonOtras");
        QCOMPARE(Dichos(inst.dialogo, marca),
                 std::vector<std::string>{std::string(outputs::kMsgComprobacionFinalizada)});
        QCOMPARE(CuentasMostradas(w), esperadas);

        // Un archivo que no es ninguno de los dos: su mensaje, y las cuentas quedan.
        const fs::path otro = inst.documentos / "Otro.txt";
        std::ofstream(otro, std::ios::binary) << std::string(125, 'x');
        marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(std::optional<fs::path>(otro));
        Comprobar(w, "BotonOtras");
        QCOMPARE(Dichos(inst.dialogo, marca),
                 std::vector<std::string>{std::string(outputs::kMsgNoAD243)});
        QCOMPARE(CuentasMostradas(w), esperadas);
        // Sin archivo elegido no pasa nada.
        marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(std::optional<fs::path>());
        Pulsar(w, "BotonOtras");
        QVERIFY(!w.Trabajo().EnCurso());
        QVERIFY(Dichos(inst.dialogo, marca).empty());
        QVERIFY(inst.dialogo.GuionAgotado());
    }

    void SinCatorceFallosYDatosParaElAnalisis() {
        auto& w = *ventana;
        // El partido 5 con "2": ninguna columna jugada lo lleva.
        Teclear(w, 4, QStringLiteral("2"));
        Pulsar(w, "BotonGuardar");
        Comprobar(w, "BotonAciertos");
        const std::string ganadora = " --ganadora 11112111111111 --pleno 1-M";
        QCOMPARE(CuentasMostradas(w), Cli(Comillas(ruta) + ganadora));
        QCOMPARE(Cuenta(w, 1), 0);
        QVERIFY(Activo(w, "BotonFallos") && Activo(w, "BotonDatos"));
        QVERIFY(Hijo<ui::SaludoParpadeante>(w, QStringLiteral("Saludo"))->isHidden());

        Pulsar(w, "BotonFallos");
        auto* fallos = Hijo<ui::VentanaInformeFallos>(w, QStringLiteral("VentanaInformeFallos"));
        QCOMPARE(Hijo<QLabel>(*fallos, QStringLiteral("TituloFallos"))->text(),
                 QStringLiteral("Condiciones incumplidas"));
        auto* rejilla = Hijo<QTableWidget>(*fallos, QStringLiteral("RejillaFallos"));
        QCOMPARE(rejilla->horizontalHeaderItem(0)->text(), QStringLiteral("Condición"));
        QCOMPARE(rejilla->horizontalHeaderItem(1)->text(), QStringLiteral("Filtro"));
        const auto filas = outputs::InformeFallos(v->Combinacion(), w.Ganadora());
        QVERIFY(!filas.empty());
        QCOMPARE(rejilla->rowCount(), static_cast<int>(filas.size()));
        for (std::size_t i = 0; i < filas.size(); ++i) {
            QCOMPARE(rejilla->item(static_cast<int>(i), 0)->text(), Q(filas[i].primera));
            QCOMPARE(rejilla->item(static_cast<int>(i), 1)->text(), Q(filas[i].segunda));
        }
        QCOMPARE(Q(filas[0].primera), QStringLiteral("Quiniela Base"));
        fallos->close();

        const std::size_t marca = inst.dialogo.Registro().size();
        Pulsar(w, "BotonDatos");
        QCOMPARE(Dichos(inst.dialogo, marca),
                 std::vector<std::string>{std::string(outputs::kMsgDatosGuardados)});
        QVERIFY(!Activo(w, "BotonDatos"));
        const base::ArchivoDe<seasons::RegReanalisis> rean(CarpetaTemporada() / seasons::kRean);
        QCOMPARE(rean.Cuenta(), 1);
        const auto registro = rean.Leer(1);
        QCOMPARE(registro.jornada, kJornada);
        for (int i = 0; i < 7; ++i) {
            QCOMPARE(registro.premios[static_cast<std::size_t>(i)], Cuenta(w, i));
        }
        QCOMPARE(Q(registro.estados[outputs::kEstadoBase]).trimmed(), QStringLiteral("Fallada"));
        Pulsar(w, "BotonSalir");
        QTRY_VERIFY(v->findChild<ui::VentanaAciertos*>() == nullptr);
        ventana = nullptr;
    }

    void ElAnalisisDeDatosMuestraLoGuardado() {
        Hijo<QAction>(*v, QStringLiteral("AccionAnalisisDatos"))->trigger();
        auto* analisis = Hijo<ui::VentanaAnalisisDatos>(*v, QStringLiteral("VentanaAnalisisDatos"));
        pruebas::DialogoGuionado otro;
        const outputs::AnalisisDatos datos = outputs::Contenido(CarpetaTemporada(), otro);
        QVERIFY(otro.Registro().empty());
        auto* rejilla = Hijo<QTableWidget>(*analisis, QStringLiteral("RejillaAnalisis"));
        const auto& titulos = outputs::FilasAnalisis();
        QCOMPARE(rejilla->rowCount(), static_cast<int>(titulos.size()));
        QCOMPARE(rejilla->columnCount(), 2);
        QCOMPARE(rejilla->horizontalHeaderItem(1)->text(), QStringLiteral("Jorn. 25"));
        for (std::size_t f = 0; f < titulos.size(); ++f) {
            QCOMPARE(rejilla->item(static_cast<int>(f), 0)->text(), Q(titulos[f]));
            QCOMPARE(rejilla->item(static_cast<int>(f), 1)->text(), Q(datos.columnas[0].celdas[f]));
        }
        // Lo que se jugó y lo que salió, leído de la fila por su título.
        const auto celda = [&](std::string_view titulo) {
            const auto i = std::find(titulos.begin(), titulos.end(), titulo) - titulos.begin();
            return rejilla->item(static_cast<int>(i), 1)->text();
        };
        QCOMPARE(celda("Columnas jugadas"),
                 Q(base::Formato(v->Combinacion().activasReducidas, "#,##0")));
        QCOMPARE(celda("Reducida"), QStringLiteral("Al 13"));
        QCOMPARE(celda("Quiniela Base"), QStringLiteral("Fallada"));
        QCOMPARE(celda("Con 14 aciertos"), QStringLiteral("0"));
        for (std::size_t i = 0; i < datos.resumen.size(); ++i) {
            auto* valor = Hijo<QLabel>(*analisis, QStringLiteral("ValorResumen%1").arg(i));
            QCOMPARE(valor->text(), Q(datos.resumen[i].valor));
            auto* formulario = qobject_cast<QFormLayout*>(valor->parentWidget()->layout());
            QVERIFY(formulario != nullptr);
            auto* etiqueta = qobject_cast<QLabel*>(formulario->labelForField(valor));
            QCOMPARE(etiqueta->text(), Q(datos.resumen[i].etiqueta));
        }
        QCOMPARE(Hijo<QLabel>(*analisis, QStringLiteral("ValorResumen0"))->text(),
                 QStringLiteral("1 "));
        analisis->close();
    }

    void SinJornadaNoSeComprueba() {
        pruebas::Instalacion otra;
        auto w = otra.Ventana();
        // Sin "&Datos" en la Temporada: solo los títulos de las filas y el panel en blanco.
        Hijo<QAction>(*w, QStringLiteral("AccionAnalisisDatos"))->trigger();
        auto* analisis = Hijo<ui::VentanaAnalisisDatos>(*w, QStringLiteral("VentanaAnalisisDatos"));
        auto* rejilla = Hijo<QTableWidget>(*analisis, QStringLiteral("RejillaAnalisis"));
        QCOMPARE(rejilla->columnCount(), 1);
        QCOMPARE(rejilla->rowCount(), static_cast<int>(outputs::FilasAnalisis().size()));
        int valores = 0;
        for (const QLabel* valor : analisis->findChildren<QLabel*>()) {
            if (!valor->objectName().startsWith(QStringLiteral("ValorResumen"))) continue;
            QCOMPARE(valor->text(), QString());
            ++valores;
        }
        QVERIFY(valores > 0);
        analisis->close();
        QVERIFY(!Hijo<QAction>(*w, QStringLiteral("AccionAciertos"))->isEnabled());
        QVERIFY(Hijo<QAction>(*w, QStringLiteral("AccionAnalisisDatos"))->isEnabled());
        pruebas::ElegirJornada(*w, kJornada);
        QVERIFY(Hijo<QAction>(*w, QStringLiteral("AccionAciertos"))->isEnabled());
        // Sin Combinación guardada no hay "&Aciertos", aunque haya resultado.
        Hijo<QAction>(*w, QStringLiteral("AccionAciertos"))->trigger();
        auto* aciertos = Hijo<ui::VentanaAciertos>(*w, QStringLiteral("VentanaAciertos"));
        QVERIFY(!Activo(*aciertos, "BotonAciertos"));
        QVERIFY(!Activo(*aciertos, "BotonOtras") && Activo(*aciertos, "BotonAvance"));
        // "A&vance" sin Combinación guardada lo dice.
        Comprobar(*aciertos, "BotonAvance");
        QCOMPARE(Dichos(otra.dialogo),
                 std::vector<std::string>{std::string(outputs::kMsgNoGuardada)});
        aciertos->close();
    }

    void cleanupTestCase() {
        if (ventana != nullptr) ventana->close();
        v.reset();
    }
};

QTEST_MAIN(PruebaAciertos)
#include "hits_test.moc"
