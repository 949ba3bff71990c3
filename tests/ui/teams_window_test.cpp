#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QtTest>

#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/teams.h"
#include "tests/ui/window_fixture.h"
#include "ui/teams_window.h"

using namespace quinteva;
using base::Respuesta;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

QStringList Lista(QObject& ventana, int division) {
    auto* lista = Hijo<QListWidget>(ventana, QStringLiteral("ListaEquipos%1").arg(division));
    QStringList nombres;
    for (int i = 0; i < lista->count(); ++i) nombres << lista->item(i)->text();
    return nombres;
}

void Teclear(QObject& ventana, const QString& campo, const QString& texto) {
    auto* c = Hijo<QLineEdit>(ventana, campo);
    c->setFocus();
    // Con tildes: QTest no teclea más que ASCII.
    c->setText(texto);
    QTest::keyClick(c, Qt::Key_Return);
}

// El menú de una fila de la lista y su acción.
void Menu(QObject& ventana, int division, int fila, const QString& accion) {
    auto* lista = Hijo<QListWidget>(ventana, QStringLiteral("ListaEquipos%1").arg(division));
    pruebas::MenuDeContexto(ventana, lista, lista->visualItemRect(lista->item(fila)).center(),
                            QStringLiteral("MenuEquipo"), accion);
}

}  // namespace

// La ventana "Equipos" como la usa alguien que empieza una temporada desde la de demostración.
class PruebaVentanaEquipos : public QObject {
    Q_OBJECT

  private slots:
    void ConJornadasDeLigaSoloSeMiran() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        auto* equipos = pruebas::AbrirDesdeMenu<ui::VentanaEquiposQt>(*v, "AccionEquipos");
        QCOMPARE(Lista(*equipos, 1).size(), 20);
        QCOMPARE(Lista(*equipos, 2).size(), 22);
        QCOMPARE(Lista(*equipos, 1).first(), QStringLiteral("Alavés"));
        QVERIFY(Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNombre1"))->isReadOnly());
        QVERIFY(!Hijo<QRadioButton>(*equipos, QStringLiteral("ModoAnadir"))->isEnabled());
        QCOMPARE(Hijo<QLineEdit>(*equipos, QStringLiteral("CampoTemporada"))->text(),
                 QStringLiteral("23/24"));
        // El número es fijo: un clic lo dice.
        QTest::mouseClick(Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNumero1")),
                          Qt::LeftButton);
        QCOMPARE(inst.dialogo.Textos(),
                 (std::vector<std::string>{std::string(seasons::kMsgNumeroFijo)}));
    }

    void UnaTemporadaNuevaSusEquiposYLaEtiqueta() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        auto* equipos = pruebas::AbrirDesdeMenu<ui::VentanaEquiposQt>(*v, "AccionEquipos");
        inst.dialogo.Responder(Respuesta::Aceptar)
            .Responder(std::optional<std::string>("24/25"))
            .Responder(std::optional<std::string>("20"))
            .Responder(std::optional<std::string>("23"));
        pruebas::Pulsar(*equipos, "BotonNuevaTemporada");
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaTemporada"), QStringLiteral("Temporada 24/25"));
        QCOMPARE(inst.dialogo.PorDefecto(), (std::vector<Respuesta>{Respuesta::Cancelar}));
        QVERIFY(!Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNombre2"))->isReadOnly());
        QCOMPARE(Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNumero2"))->text(),
                 QStringLiteral("23"));

        // Con los nombres abiertos, Mayúsculas+V escribe su "V".
        auto* nombre2 = Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNombre2"));
        nombre2->setFocus();
        QTest::keyClick(nombre2, 'V', Qt::ShiftModifier);
        QCOMPARE(nombre2->text(), QStringLiteral("V"));

        // Un equipo nuevo en la 2ª: queda en la lista, en su orden, y en "Nomeq.rar".
        Teclear(*equipos, QStringLiteral("CampoNombre2"), QStringLiteral("Córdoba"));
        QVERIFY(Lista(*equipos, 2).contains(QStringLiteral("Córdoba")));
        QCOMPARE(Lista(*equipos, 2).size(), 23);
        QVERIFY(Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNombre2"))->text().isEmpty());
        const fs::path nueva = inst.trabajo / "Temporada2425";
        QCOMPARE(base::CuentaRegistros(nueva / seasons::kNomeq, seasons::RegEquipo::kLongitud), 43);

        // Eliminar desde el menú de la lista, con su pregunta.
        const int fila = static_cast<int>(Lista(*equipos, 2).indexOf(QStringLiteral("Córdoba")));
        inst.dialogo.Responder(Respuesta::Si);
        Menu(*equipos, 2, fila, QStringLiteral("Eliminar"));
        QTRY_VERIFY(!Lista(*equipos, 2).contains(QStringLiteral("Córdoba")));
        QCOMPARE(inst.dialogo.Textos().back(),
                 std::string("Está seguro de que desea eliminar el Equipo Córdoba?"));
        QCOMPARE(base::CuentaRegistros(nueva / seasons::kNomeq, seasons::RegEquipo::kLongitud), 42);

        // Modificar: el nombre pasa al campo y el modo cambia.
        inst.dialogo.Responder(Respuesta::Si);
        Menu(*equipos, 1, 0, QStringLiteral("Modificar"));
        QTRY_COMPARE(Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNombre1"))->text(),
                     QStringLiteral("Alavés"));
        QVERIFY(Hijo<QRadioButton>(*equipos, QStringLiteral("ModoModificar"))->isChecked());
        Teclear(*equipos, QStringLiteral("CampoNombre1"), QStringLiteral("Deportivo Alavés"));
        // El campo no admite un carácter 16.
        QCOMPARE(Lista(*equipos, 1).first(), QStringLiteral("Deportivo Alavé"));
        QVERIFY(Hijo<QRadioButton>(*equipos, QStringLiteral("ModoAnadir"))->isChecked());
    }

    void MayusculasVTraeLasValoraciones() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        auto* equipos = pruebas::AbrirDesdeMenu<ui::VentanaEquiposQt>(*v, "AccionEquipos");
        auto* valoracion = Hijo<QLineEdit>(*equipos, QStringLiteral("CampoValoracion2"));
        QVERIFY(!valoracion->isVisible());
        auto* nombre = Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNombre1"));
        nombre->setFocus();
        QTest::keyClick(nombre, Qt::Key_V, Qt::ShiftModifier);
        QVERIFY(valoracion->isVisible());
    }
};

QTEST_MAIN(PruebaVentanaEquipos)
#include "teams_window_test.moc"
