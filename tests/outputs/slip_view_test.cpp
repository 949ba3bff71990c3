#include "outputs/slip_view.h"

#include <gtest/gtest.h>

#include "base/error.h"
#include "tests/outputs/column_files.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

TEST(VerQuinielas, LasColumnasQueSeJueganConSuCabeceraYSuTitulo) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::EscribirCabecera(carpeta / "q.uxd", 37, "red");
    auto columnas = pruebas::ColumnasDeEjemplo();
    columnas[1].estado = engine::kEliminada;
    pruebas::EscribirColumnas(carpeta / "q.red", columnas);
    pruebas::EscribirColumnas(carpeta / "q.cnd", pruebas::ColumnasDeEjemplo());

    const VistaQuinielas vista(carpeta / "q.uxd", "12/05/24");
    EXPECT_EQ(vista.Cabecera(), "JORNADA 37,  Fecha 12/05/24");
    ASSERT_EQ(vista.Cuenta(), 8);
    EXPECT_EQ(engine::TextoDeColumna(vista.Columna(1).columna), "22222222222222");
    EXPECT_EQ(VistaQuinielas::Titulo(1), "Quiniela Nº1");
    const auto todas = vista.Todas();
    ASSERT_EQ(todas.size(), 8U);
    EXPECT_EQ(todas[0], "Quiniela Nº1  1X21X21X21X21X  0-0");
    EXPECT_EQ(todas[6], "Quiniela Nº7  X2X2X2X2X2X2X2  2-M");
}

TEST(VerQuinielas, SinJuegoElegidoNiArchivoNoHayColumnas) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::EscribirCabecera(carpeta / "q.uxd", 3, "   ");
    EXPECT_EQ(VistaQuinielas(carpeta / "q.uxd", "").Cuenta(), 0);
    EXPECT_THROW(VistaQuinielas(carpeta / "otra.uxd", ""), base::Error);
}

}  // namespace
}  // namespace quinteva::outputs
