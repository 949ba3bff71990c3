#include "outputs/played_set.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/error.h"
#include "engine/combination_files.h"
#include "tests/outputs/column_files.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

TEST(JuegoJugado, LaCabeceraEligeElCndOElRed) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::EscribirCabecera(carpeta / "q.uxd", 37, "cnd");
    JuegoJugado juego = LeerJuegoJugado(carpeta / "q.uxd");
    EXPECT_EQ(juego.jornada, 37);
    EXPECT_EQ(juego.juego, "cnd");
    EXPECT_EQ(juego.columnas, carpeta / "q.cnd");
    pruebas::EscribirCabecera(carpeta / "q.uxd", 5, "red");
    juego = LeerJuegoJugado(carpeta / "q.uxd");
    EXPECT_EQ(juego.jornada, 5);
    EXPECT_EQ(juego.columnas, carpeta / "q.red");
    // Sin juego elegido, el reducido.
    pruebas::EscribirCabecera(carpeta / "q.uxd", 5, "   ");
    EXPECT_EQ(LeerJuegoJugado(carpeta / "q.uxd").columnas, carpeta / "q.red");
}

TEST(JuegoJugado, CabeceraCortaOFaltaDanError) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::EscribirCabecera(carpeta / "q.uxd", 1, "cnd", engine::RegistroCabecera::kLongitud - 1);
    try {
        LeerJuegoJugado(carpeta / "q.uxd");
        ADD_FAILURE();
    } catch (const base::Error& e) {
        EXPECT_EQ(std::string(e.what()),
                  "El archivo q.uxd no es una Quiniela de Quinteva: su cabecera ha de tener "
                  "5.189 bytes");
    }
    EXPECT_THROW(LeerJuegoJugado(carpeta / "no.uxd"), base::Error);
}

TEST(JuegoJugado, ColumnasActivasEnOrden) {
    pruebas::CarpetaTemporal carpeta;
    auto columnas = pruebas::ColumnasDeEjemplo();
    columnas[2].estado = engine::kEliminada;
    pruebas::EscribirColumnas(carpeta / "q.cnd", columnas);
    // Unos bytes sobrantes al final no forman registro.
    std::ofstream(carpeta / "q.cnd", std::ios::binary | std::ios::app) << "12345";
    EXPECT_EQ(LeerColumnas(carpeta / "q.cnd", false), columnas);
    auto activas = columnas;
    activas.erase(activas.begin() + 2);
    EXPECT_EQ(LeerColumnas(carpeta / "q.cnd", true), activas);
    EXPECT_TRUE(LeerColumnas(carpeta / "no.cnd", true).empty());
}

}  // namespace
}  // namespace quinteva::outputs
