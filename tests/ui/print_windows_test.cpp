// "Imprimir en Boletos" e "Imprimir en papel blanco" desde la página Boletos, con su ajuste, la
// selección de impresión y la de impresora; y el pintor de las páginas, mirado en un PDF.
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QRadioButton>
#include <QtTest>
#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "outputs/import_list.h"
#include "outputs/print_paper.h"
#include "outputs/print_range.h"
#include "outputs/print_slips.h"
#include "outputs/slip_marks.h"
#include "tests/ui/window_fixture.h"
#include "ui/bets_list_window.h"
#include "ui/import_window.h"
#include "ui/located_columns_window.h"
#include "ui/official_file_window.h"
#include "ui/paper_print_window.h"
#include "ui/print_range_dialog.h"
#include "ui/printer_select_window.h"
#include "ui/printing.h"
#include "ui/report_viewer.h"
#include "ui/slip_print_window.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

std::size_t Marcas(const outputs::Impresion& hoja) {
    return static_cast<std::size_t>(
        std::count_if(hoja.Textos().begin(), hoja.Textos().end(),
                      [](const outputs::TextoImpreso& t) { return t.texto == outputs::kMarca; }));
}

void Escribir(QObject& ventana, const char* campo, const QString& texto) {
    Hijo<QLineEdit>(ventana, QString::fromLatin1(campo))->setText(texto);
}

// "Selección de Impresión" abierta por "Imprimir &Todos", con sus límites.
void ImprimirTodos(QWidget& ventana, const QString& desde, const QString& hasta) {
    pruebas::Pulsar(ventana, "BotonImprimirTodos");
    auto* rango = ventana.findChild<ui::VentanaSeleccionImpresion*>();
    QVERIFY(rango != nullptr);
    if (!desde.isNull()) {
        Hijo<QRadioButton>(*rango, QStringLiteral("OpcionDesde"))->setChecked(true);
        Escribir(*rango, "CampoDesde", desde);
        Escribir(*rango, "CampoHasta", hasta);
    }
    pruebas::Pulsar(*rango, "BotonAceptar");
}

}  // namespace

class PruebaVentanasImpresion : public QObject {
    Q_OBJECT

  private slots:
    void EnBoletosUnoTodosYElAjusteConSuPrueba() {
        pruebas::Instalacion inst;
        auto v = pruebas::Guardada(inst, inst.documentos / "Impresa.uxd", true);
        pruebas::Marcar(*v, "OpcionReducida");
        const int activas = v->Combinacion().activasReducidas;
        pruebas::Pulsar(*v, "BotonImprimirBoletos");
        auto* ventana = Hijo<ui::VentanaImprimirBoletos>(*v, "VentanaImprimirBoletos");
        QVERIFY(QTest::qWaitForWindowExposed(ventana));
        QCOMPARE(pruebas::TextoDe(*ventana, "NumeroBoleto"), QStringLiteral(" 1"));
        QVERIFY(!Hijo<QTableWidget>(*ventana, QStringLiteral("RejillaBoleto"))
                     ->item(0, 0)
                     ->text()
                     .isEmpty());

        // El aviso de la dirección una vez; cancelarlo no imprime.
        inst.dialogo.Responder(base::Respuesta::Cancelar).Responder(base::Respuesta::Aceptar);
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QVERIFY(inst.impresas.empty());
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QCOMPARE(inst.impresas.size(), 2U);
        QCOMPARE(Marcas(inst.impresas[0]), static_cast<std::size_t>(std::min(activas, 8) * 14 + 2));
        QCOMPARE(pruebas::Dichos(inst.dialogo),
                 (std::vector<std::string>(2, std::string(outputs::kAvisoBoletosApaisada))));

        // "Imprimir &Todos": los límites se piden bien; todos los boletos, uno por página.
        const std::size_t antes = inst.dialogo.Registro().size();
        ImprimirTodos(*ventana, QStringLiteral("1"), QString(""));
        QCOMPARE(pruebas::Dichos(inst.dialogo, antes),
                 std::vector<std::string>{std::string(outputs::kMsgDosLimites)});
        pruebas::Pulsar(*ventana->findChild<ui::VentanaSeleccionImpresion*>(), "BotonCancelar");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ImprimirTodos(*ventana, QString(), QString());
        QCOMPARE(inst.impresas.size(), 3U);
        QCOMPARE(inst.impresas[2].Paginas(),
                 outputs::NumeroDeBoletos(static_cast<std::size_t>(activas)));

        // El ajuste: lo guardado, la otra dirección, "&Restaurar", la prueba y "&Aceptar".
        pruebas::Pulsar(*ventana, "BotonAjustarImpresora");
        QVERIFY(Hijo<QGroupBox>(*ventana, QStringLiteral("PanelAjuste"))->isVisible());
        QCOMPARE(Hijo<QLineEdit>(*ventana, QStringLiteral("CampoAjuste1"))->text(),
                 QStringLiteral("2340"));
        Hijo<QRadioButton>(*ventana, QStringLiteral("OpcionVertical"))->setChecked(true);
        QCOMPARE(Hijo<QLineEdit>(*ventana, QStringLiteral("CampoAjuste1"))->text(),
                 QStringLiteral("2340"));
        pruebas::Pulsar(*ventana, "BotonRestaurar");
        QCOMPARE(Hijo<QLineEdit>(*ventana, QStringLiteral("CampoAjuste3"))->text(),
                 QStringLiteral("275"));
        Escribir(*ventana, "CampoAjuste2", QString());
        pruebas::Pulsar(*ventana, "BotonPrueba");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(outputs::kMsgFaltaAjuste));
        Escribir(*ventana, "CampoAjuste2", QStringLiteral("2270"));
        pruebas::Pulsar(*ventana, "BotonPrueba");
        QCOMPARE(inst.impresas.back().Textos().size(), 2U);
        QCOMPARE(inst.impresas.back().Textos()[0].x, 7897.0F - 3930);
        pruebas::Pulsar(*ventana, "BotonAceptar");
        QVERIFY(!Hijo<QGroupBox>(*ventana, QStringLiteral("PanelAjuste"))->isVisible());
        QCOMPARE(inst.ajustes.Leer("Quinteva-07", "Avisos", "AjusteBoletos", "NO"),
                 std::string("SI"));
        QCOMPARE(inst.ajustes.Leer("Quinteva-07", "Valores", "Imp", ""), std::string("Vertical"));
        inst.dialogo.Responder(base::Respuesta::Aceptar);
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(outputs::kAvisoBoletosVertical));
        QVERIFY(inst.dialogo.GuionAgotado());
        ventana->close();
    }

    void EnPapelBlancoConSuMarcoYSuAjuste() {
        pruebas::Instalacion inst;
        auto v = pruebas::Guardada(inst, inst.documentos / "Papel.uxd");
        pruebas::Marcar(*v, "OpcionReducida");
        pruebas::Pulsar(*v, "BotonImprimirPapel");
        auto* ventana = Hijo<ui::VentanaImprimirPapel>(*v, "VentanaImprimirPapel");
        inst.dialogo.Responder(base::Respuesta::Aceptar);
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QCOMPARE(pruebas::Dichos(inst.dialogo),
                 std::vector<std::string>{std::string(outputs::kAvisoPapelBlanco)});
        QCOMPARE(inst.impresas.size(), 1U);
        QCOMPARE(inst.impresas[0].Textos().front().texto, std::string(outputs::kNotaRecortar));
        QVERIFY(!inst.impresas[0].Trazos().empty());

        pruebas::Pulsar(*ventana, "BotonAjustarImpresora");
        QCOMPARE(Hijo<QLineEdit>(*ventana, QStringLiteral("CampoAncho"))->text(),
                 QStringLiteral("8335"));
        QCOMPARE(Hijo<QLineEdit>(*ventana, QStringLiteral("CampoMargenIzquierdo"))->text(),
                 QStringLiteral("30"));
        Escribir(*ventana, "CampoMargenSuperior", QStringLiteral("35,5"));
        Hijo<QCheckBox>(*ventana, QStringLiteral("MarcaDorso"))->setChecked(true);
        pruebas::Pulsar(*ventana, "BotonAceptar");
        QCOMPARE(inst.ajustes.Leer("Quinteva-07", "Valores", "ImpMgSup", ""), std::string("35,5"));
        QCOMPARE(inst.ajustes.Leer("Quinteva-07", "Valores", "DB", ""), std::string("1"));
        QCOMPARE(inst.ajustes.Leer("Quinteva-07", "Avisos", "AjustePapel", "NO"),
                 std::string("SI"));
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QCOMPARE(inst.impresas.size(), 2U);
        for (const auto& t : inst.impresas[1].Textos()) QVERIFY(t.texto != outputs::kNotaRecortar);
        ventana->close();
    }

    void ElVisorDeQuinielasImprimeYGuardaSuPdf() {
        pruebas::Instalacion inst;
        const fs::path ruta = inst.documentos / "Visor.uxd";
        auto v = pruebas::Guardada(inst, ruta);
        QVERIFY(!Hijo<QAction>(*v, "BarraImprimir")->isEnabled());
        pruebas::Marcar(*v, "OpcionReducida");
        QVERIFY(Hijo<QAction>(*v, "BarraImprimir")->isEnabled());
        auto* visor = pruebas::AbrirDesdeMenu<ui::VentanaVisor>(*v, "AccionVisorQuinielas");
        pruebas::Pulsar(*visor, "BotonImprimir");
        QCOMPARE(inst.impresas.size(), 1U);
        QCOMPARE(inst.impresas[0].Textos()[0].texto, std::string("Quinteva - Quinielas"));
        QCOMPARE(inst.impresas[0].Textos()[1].texto,
                 "Jornada nº: 25, Fecha: " + pruebas::TextoDe(*v, "FechaJornada").toStdString() +
                     ", Nombre: Visor");
        const fs::path pdf = inst.documentos / "Visor.pdf";
        inst.dialogo.Responder(std::optional<fs::path>(pdf));
        pruebas::Pulsar(*visor, "BotonGuardarPdf");
        std::ifstream f(pdf, std::ios::binary);
        std::string cabecera(8, ' ');
        f.read(cabecera.data(), 8);
        QCOMPARE(cabecera, std::string("%PDF-1.4"));
        QCOMPARE(inst.dialogo.Registro().back().texto, std::string("Guardar PDF"));
        visor->close();
    }

    void ElResumenDeCondicionesSeVeSeImprimeYSuPdfSeLee() {
        pruebas::Instalacion inst;
        const fs::path ruta = inst.documentos / "Resumen.uxd";
        auto v = pruebas::Guardada(inst, ruta);
        pruebas::Marcar(*v, "OpcionReducida");
        auto* visor = pruebas::AbrirDesdeMenu<ui::VentanaVisor>(*v, "AccionResumen");
        QCOMPARE(visor->windowTitle(), QStringLiteral("Quinteva [Condiciones]"));
        pruebas::Pulsar(*visor, "BotonImprimir");
        QCOMPARE(inst.impresas.size(), 1U);
        const auto& textos = inst.impresas[0].Textos();
        QCOMPARE(textos[0].texto, std::string("Quinteva - Condiciones de la Combinación"));
        QVERIFY(std::any_of(textos.begin(), textos.end(), [](const outputs::TextoImpreso& t) {
            return t.texto.rfind("Reducida al 13   Apuestas eliminadas manual.: 0", 0) == 0;
        }));
        // El PDF, leído con pdftotext.
        const fs::path pdf = inst.documentos / "Resumen Condiciones.pdf";
        inst.dialogo.Responder(std::optional<fs::path>(pdf));
        pruebas::Pulsar(*visor, "BotonGuardarPdf");
        const fs::path texto = inst.documentos / "Resumen.txt";
        const std::string orden =
            "pdftotext -layout '" + pdf.string() + "' '" + texto.string() + "'";
        QCOMPARE(std::system(orden.c_str()), 0);
        std::ifstream f(texto);
        const std::string leido((std::istreambuf_iterator<char>(f)), {});
        for (const char* esperado : {"Quinteva - Condiciones de la Combinación", "Quiniela Base",
                                     "Porcentajes", "Reducida al 13", "Página 1"}) {
            QVERIFY2(leido.find(esperado) != std::string::npos, esperado);
        }
        visor->close();
    }

    void ElListadoYLasColumnasLocalizadasSeImprimen() {
        pruebas::Instalacion inst;
        auto v = pruebas::Reducida(inst);
        auto* listado = pruebas::AbrirDesdeMenu<ui::VentanaListado>(*v, "AccionListadoReducidas");
        pruebas::Pulsar(*listado, "BotonImprimir");
        QCOMPARE(inst.impresas.size(), 1U);
        const auto& textos = inst.impresas[0].Textos();
        QCOMPARE(textos[1].texto,
                 "Jornada 25, " + pruebas::TextoDe(*v, "FechaJornada").toStdString());
        QCOMPARE(textos.size(), static_cast<std::size_t>(v->Combinacion().totalReducidas) + 2);
        listado->close();

        ui::VentanaColumnasAcertadas localizadas({{"1", "3", "14"}}, "Jornada 7, 05/10/24",
                                                 inst.Impresora());
        pruebas::Pulsar(localizadas, "BotonImprimir");
        QCOMPARE(inst.impresas.size(), 2U);
        QCOMPARE(inst.impresas[1].Textos().back().texto, std::string("1         3         14"));
    }

    void ImportarUnaListaImprimirlaEnSusModosYCompletarla() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        QVERIFY(Hijo<QAction>(*v, "BarraImportar")->isEnabled());
        auto* ventana = pruebas::AbrirDesdeMenu<ui::VentanaImportar>(*v, "AccionImportar");
        const fs::path lista = inst.documentos / "lista.txt";
        {
            std::ofstream f(lista);
            for (int i = 0; i < 9; ++i) f << "1X21X21X21X21X 1-M\n";
        }
        const fs::path mala = inst.documentos / "mala.txt";
        std::ofstream(mala) << "1X2 1-M\n";
        inst.dialogo.Responder(std::optional<fs::path>(lista))
            .Responder(std::optional<fs::path>(mala));
        pruebas::Pulsar(*ventana, "BotonImportarConPleno");
        QCOMPARE(pruebas::TextoDe(*ventana, "ColumnasImportadas"),
                 QStringLiteral("Columnas importadas: 9"));
        QCOMPARE(pruebas::TextoDe(*ventana, "PlenoBoleto"), QStringLiteral("1-M"));
        pruebas::Pulsar(*ventana, "BotonImportarConPleno");
        QCOMPARE(pruebas::Dichos(inst.dialogo),
                 std::vector<std::string>{
                     "Error: La línea 1 no es una columna con su Pleno al 15: 1X2 1-M"});
        QCOMPARE(outputs::LeerImportadas(inst.trabajo.Ruta()).size(), 9U);

        // Boletos oficiales: antes, el ajuste.
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(outputs::kMsgAjusteAntes));
        inst.ajustes.Guardar("Quinteva-07", "Avisos", "AjusteBoletos", "SI");
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QCOMPARE(inst.impresas.size(), 1U);
        QCOMPARE(Marcas(inst.impresas[0]), 8U * 14 + 2);

        // Folios con dos boletos por hoja: los dos en la misma.
        Hijo<QRadioButton>(*ventana, QStringLiteral("ModoPapel2"))->setChecked(true);
        QCOMPARE(inst.ajustes.Leer("Quinteva-07", "Importar", "Imprimir", ""),
                 std::string("Papel2"));
        inst.ajustes.Guardar("Quinteva-07", "Avisos", "AjustePapel", "SI");
        ImprimirTodos(*ventana, QString(), QString());
        QCOMPARE(inst.impresas.size(), 2U);
        QCOMPARE(inst.impresas[1].Paginas(), 1);
        QCOMPARE(Marcas(inst.impresas[1]), 9U * 14 + 4);
        Hijo<QRadioButton>(*ventana, QStringLiteral("ModoPapel0"))->setChecked(true);
        pruebas::Pulsar(*ventana, "BotonImprimirUno");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(outputs::kMsgDorsoDistinto));

        // "Ajustes de Impresión" abre el ajuste del modo; "Completar a 100".
        pruebas::Pulsar(*ventana, "BotonAjustesImpresion");
        auto* papel = ventana->findChild<ui::VentanaImprimirPapel*>();
        QVERIFY(papel != nullptr);
        QTRY_VERIFY(Hijo<QGroupBox>(*papel, QStringLiteral("PanelAjuste"))->isVisible());
        papel->close();
        inst.dialogo.Responder(base::Respuesta::Aceptar);
        pruebas::Pulsar(*ventana, "BotonCompletar");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(outputs::kMsgCompletado));
        QCOMPARE(pruebas::TextoDe(*ventana, "ColumnasImportadas"),
                 QStringLiteral("Columnas importadas: 100"));
        QCOMPARE(outputs::LeerImportadas(inst.trabajo.Ruta()).size(), 100U);
        pruebas::Pulsar(*ventana, "BotonGenerarOficial");
        QVERIFY(ventana->findChild<ui::VentanaArchivoOficial*>() != nullptr);
        QVERIFY(inst.dialogo.GuionAgotado());
        ventana->close();
    }

    void LaImpresoraElegidaSeGuardaYUnaQueYaNoEstaNoSeUsa() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        auto* ventana =
            pruebas::AbrirDesdeMenu<ui::VentanaSeleccionImpresora>(*v, "AccionImpresora");
        auto* lista = Hijo<QListWidget>(*ventana, QStringLiteral("ListaImpresoras"));
        QListWidgetItem* predeterminada = lista->item(lista->count() - 1);
        QCOMPARE(predeterminada->text(), QStringLiteral("Predeterminada del sistema"));
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                          lista->visualItemRect(predeterminada).center());
        QCOMPARE(inst.ajustes.Leer("Quinteva-07", "Valores", "Impresora", ""),
                 std::string("Predeterminada del sistema"));
        QCOMPARE(pruebas::TextoDe(*ventana, "ImpresoraActual"),
                 QStringLiteral("Predeterminada del sistema"));
        ventana->close();

        inst.ajustes.Guardar("Quinteva-07", "Valores", "Impresora", "Una que ya no está");
        QPrinter impresora;
        const QString antes = impresora.printerName();
        ui::ElegirImpresora(impresora, inst.ajustes);
        QCOMPARE(impresora.printerName(), antes);
        QVERIFY(pruebas::Dichos(inst.dialogo).empty());
    }

    // Lo que pinta el programa en la impresora, aquí en un PDF de Qt dibujado por pdftoppm: las
    // marcas caen donde dicen sus twips.
    void ElPintorPoneCadaMarcaEnSusTwips() {
        pruebas::CarpetaTemporal carpeta;
        QDir::setCurrent(QString::fromStdString(carpeta.Ruta().string()));
        std::vector<engine::RegistroColumna> columnas(1);
        columnas[0].columna = engine::ColumnaDeTexto("1X21X21X21X21X");
        columnas[0].pleno = engine::PlenoDeTexto("0M");
        const outputs::ValoresAjuste valores = {2340, 1040, 1850, 1130};
        const auto hoja = outputs::ImprimirUno(
            columnas, 1, outputs::DisposicionDeBoletos(outputs::Direccion::Apaisada, valores, "f"));
        const QString pdf = QString::fromStdString((carpeta / "qt.pdf").string());
        {
            QPrinter impresora(QPrinter::HighResolution);
            impresora.setOutputFormat(QPrinter::PdfFormat);
            impresora.setOutputFileName(pdf);
            impresora.setPageSize(QPageSize(QPageSize::A4));
            ui::ImprimirEn(impresora, hoja);
        }
        const std::string orden =
            "pdftoppm -r 72 -gray '" + pdf.toStdString() + "' '" + (carpeta / "p").string() + "'";
        QCOMPARE(std::system(orden.c_str()), 0);
        QImage pagina(QString::fromStdString((carpeta / "p-1.pgm").string()));
        QVERIFY(!pagina.isNull());
        const auto tinta = [&](float x, float y) {
            const int px = static_cast<int>(x / 20);
            const int py = static_cast<int>(y / 20);
            for (int j = py; j < py + 9; ++j) {
                for (int i = px; i < px + 8; ++i) {
                    if (qGray(pagina.pixel(i, j)) < 128) return true;
                }
            }
            return false;
        };
        for (const auto& t : hoja.Textos()) {
            if (t.texto == outputs::kMarca)
                QVERIFY2(tinta(t.x, t.y), qPrintable(QString::number(t.x)));
        }
        const auto g = outputs::GeometriaDeBoletos(outputs::Direccion::Apaisada, valores);
        QVERIFY(!tinta(g.origenX + g.pasoX, g.origenY));
        QVERIFY(!tinta(g.origenX + 4 * g.pasoX, g.origenY));
    }
};

QTEST_MAIN(PruebaVentanasImpresion)
#include "print_windows_test.moc"
