#include <QtTest>
#include <cstdlib>

#include "base/settings_ini.h"
#include "base/working_folder.h"
#include "tests/support/temp_folder.h"
#include "ui/settings_qt.h"
#include "ui/working_folder_qt.h"

using namespace quinteva;

// El programa (QSettings) y quinteva-cli (AjustesIni) leen y escriben los mismos archivos.
class PruebaAjustes : public QObject {
    Q_OBJECT

  private slots:
    void LoQueGuardaElProgramaLoLeeLaCli() {
        pruebas::CarpetaTemporal carpeta;
        ui::AjustesQt programa(carpeta.Ruta());
        programa.Guardar(base::kAplicacion, "Valores", "MaxJor1ª", "38");
        programa.Guardar(base::kAplicacion, "Valores", "NPeña", "Peña Los Amigos");
        programa.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "0,75");
        programa.Guardar(base::kAplicacion, "Opciones", "Ult1", " /home/a b/\"q\";1.uxd ");
        const base::AjustesIni cli(carpeta.Ruta());
        QCOMPARE(cli.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), std::string("38"));
        QCOMPARE(cli.Leer(base::kAplicacion, "Valores", "NPeña", ""),
                 std::string("Peña Los Amigos"));
        QCOMPARE(cli.Leer(base::kAplicacion, "Opciones", "PrecioApu15", ""), std::string("0,75"));
        QCOMPARE(cli.Leer(base::kAplicacion, "Opciones", "Ult1", ""),
                 std::string(" /home/a b/\"q\";1.uxd "));
    }

    void LoQueGuardaLaCliLoLeeElPrograma() {
        pruebas::CarpetaTemporal carpeta;
        base::AjustesIni cli(carpeta.Ruta());
        cli.Guardar(base::kAplicacion, "Valores", "MaxJor2ª", "41");
        cli.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "1,5");
        cli.Guardar(base::kAplicacionPrograma, "Program", "NVers", "210000");
        const ui::AjustesQt programa(carpeta.Ruta());
        QCOMPARE(programa.Leer(base::kAplicacion, "Valores", "MaxJor2ª", ""), std::string("41"));
        QCOMPARE(programa.Leer(base::kAplicacion, "Opciones", "PrecioApu15", ""),
                 std::string("1,5"));
        QCOMPARE(programa.Leer(base::kAplicacionPrograma, "Program", "NVers", ""),
                 std::string("210000"));
        QCOMPARE(programa.Leer(base::kAplicacion, "Opciones", "VerAp1", "True"),
                 std::string("True"));
    }

    void LaCarpetaDelProgramaEsLaDeLaCli() {
        ::unsetenv(base::kVariableCarpeta);
        QCOMPARE(ui::CarpetaTrabajoDelPrograma(), base::CarpetaDatosUsuario());
        ::setenv(base::kVariableCarpeta, "/tmp/otra", 1);
        QCOMPARE(ui::CarpetaTrabajoDelPrograma(), std::filesystem::path("/tmp/otra"));
        QCOMPARE(base::ResolverCarpetaTrabajo(), std::filesystem::path("/tmp/otra"));
        ::unsetenv(base::kVariableCarpeta);
    }
};

QTEST_MAIN(PruebaAjustes)
#include "settings_qt_test.moc"
