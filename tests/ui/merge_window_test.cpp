// "Refundir combinaciones" desde "&Herramientas": el archivo a generar, las Combinaciones que se
// añaden y el archivo refundido.
#include <QLabel>
#include <QRadioButton>
#include <QtTest>
#include <fstream>

#include "base/record_files.h"
#include "builders/boletos.h"
#include "builders/merge_combinations.h"
#include "engine/combination_files.h"
#include "tests/support/file_bytes.h"
#include "tests/ui/window_fixture.h"
#include "ui/merge_window.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

// Una Combinación guardada con esas columnas (activas, con su Pleno) y la Condicionada para jugar.
void Guardar(const fs::path& uxd, int jornada, const std::vector<std::string>& columnas,
             const char* pleno) {
    pruebas::CarpetaTemporal trabajo;
    pruebas::AjustesEnMemoria ajustes;
    engine::Combinacion c;
    c.ruta = uxd;
    c.jornada = static_cast<std::uint8_t>(jornada);
    {
        base::ArchivoDe<engine::RegistroColumna> cmb(trabajo / std::string(engine::kCmbTmp));
        for (const auto& columna : columnas) {
            cmb.Anadir(
                {engine::ColumnaDeTexto(columna), engine::PlenoDeTexto(pleno), engine::kActiva});
        }
        cmb.Cerrar();
    }
    c.totalGeneradas = c.activasGeneradas = static_cast<std::int32_t>(columnas.size());
    c.panel.condicionada = c.activasGeneradas;
    engine::Guardar(c, trabajo.Ruta(), ajustes);
    builders::MarcarJugada(c, builders::Jugada::Condicionada);
}

}  // namespace

class PruebaRefundir : public QObject {
    Q_OBJECT

  private slots:
    void DosCombinacionesDeLaJornadaAUnArchivoSinRepetidas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        const fs::path a = inst.documentos / "A.uxd";
        const fs::path b = inst.documentos / "B.uxd";
        const fs::path c = inst.documentos / "C.uxd";
        Guardar(a, 25, {"1X21X21X21X21X", "11111111111111"}, "2M");
        Guardar(b, 25, {"11111111111111", "XXXXXXXXXXXXXX"}, "00");
        Guardar(c, 26, {"22222222222222"}, "00");
        auto* ventana = pruebas::AbrirDesdeMenu<ui::VentanaRefundir>(*v, "AccionRefundir");
        QVERIFY(!Hijo<QPushButton>(*ventana, "BotonAnadirRefundir")->isEnabled());
        const fs::path salida = inst.documentos / "Refundida.txt";
        inst.dialogo.Responder(std::optional<fs::path>(salida));
        pruebas::Pulsar(*ventana, "BotonArchivoRefundido");
        QCOMPARE(pruebas::TextoDe(*ventana, "NombreArchivoRefundido"),
                 QString::fromStdString(salida.string()));
        QVERIFY(!Hijo<QPushButton>(*ventana, "BotonRefundir")->isEnabled());
        for (const fs::path& uxd : {a, b, a, c}) {
            inst.dialogo.Responder(std::optional<fs::path>(uxd));
            pruebas::Pulsar(*ventana, "BotonAnadirRefundir");
        }
        QCOMPARE(Hijo<QTableWidget>(*ventana, "RejillaRefundir")->rowCount(), 2);
        QCOMPARE(pruebas::Dichos(inst.dialogo),
                 (std::vector<std::string>{std::string(builders::kMsgYaAnadida),
                                           std::string(builders::kMsgOtraJornada)}));
        QVERIFY(Hijo<QPushButton>(*ventana, "BotonRefundir")->isEnabled());
        Hijo<QRadioButton>(*ventana, "OpcionTextoSeparadores")->setChecked(true);
        inst.dialogo.Responder(base::Respuesta::Si);
        const QPointer<ui::VentanaRefundir> abierta(ventana);
        pruebas::Pulsar(*ventana, "BotonRefundir");
        QCOMPARE(pruebas::BytesDeArchivo(salida),
                 std::string("1X21X21X21X21X2M\r111111111111112M\rXXXXXXXXXXXXXX2M\r"));
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 std::string("Proceso terminado, la nueva combinación tiene 3 apuestas. Se han "
                             "eliminado 1 columnas repetidas."));
        QTRY_VERIFY(abierta.isNull() || !abierta->isVisible());
    }
};

QTEST_MAIN(PruebaRefundir)
#include "merge_window_test.moc"
