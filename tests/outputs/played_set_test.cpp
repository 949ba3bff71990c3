#include "outputs/played_set.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/error.h"
#include "tests/outputs/column_files.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

// Una cabecera de 5.189 bytes con un valor distinto en cada campo que se lee y basura alrededor.
void EscribirCabecera(const std::filesystem::path& ruta, std::uint8_t jornada,
                      const std::string& juego, std::size_t longitud = kLongitudCabecera) {
    std::string bytes(longitud, '\x5A');
    if (longitud > kPosicionJuego + 3) {
        bytes[kPosicionJornada] = static_cast<char>(jornada);
        bytes.replace(kPosicionJuego, 3, juego);
    }
    std::ofstream(ruta, std::ios::binary) << bytes;
}

TEST(JuegoJugado, LaCabeceraEligeElCndOElRed) {
    pruebas::CarpetaTemporal carpeta;
    EscribirCabecera(carpeta / "q.uxd", 37, "cnd");
    JuegoJugado juego = LeerJuegoJugado(carpeta / "q.uxd");
    EXPECT_EQ(juego.jornada, 37);
    EXPECT_EQ(juego.juego, "cnd");
    EXPECT_EQ(juego.columnas, carpeta / "q.cnd");
    EscribirCabecera(carpeta / "q.uxd", 5, "red");
    juego = LeerJuegoJugado(carpeta / "q.uxd");
    EXPECT_EQ(juego.jornada, 5);
    EXPECT_EQ(juego.columnas, carpeta / "q.red");
    // Sin juego elegido, el reducido.
    EscribirCabecera(carpeta / "q.uxd", 5, "   ");
    EXPECT_EQ(LeerJuegoJugado(carpeta / "q.uxd").columnas, carpeta / "q.red");
}

TEST(JuegoJugado, CabeceraCortaOFaltaDanError) {
    pruebas::CarpetaTemporal carpeta;
    EscribirCabecera(carpeta / "q.uxd", 1, "cnd", kLongitudCabecera - 1);
    try {
        LeerJuegoJugado(carpeta / "q.uxd");
        ADD_FAILURE();
    } catch (const base::Error& e) {
        EXPECT_EQ(std::string(e.what()), "El archivo " + (carpeta / "q.uxd").string() +
                                             " no es una Combinación de Quinteva.");
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
