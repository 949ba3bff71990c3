#include "seasons/league_cleanup.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/error.h"
#include "base/record_files.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using pruebas::CarpetaTemporal;

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

RegPartidoLiga Partido(const char* temporada, int jornada) {
    RegPartidoLiga p;
    p.temporada = temporada;
    p.jornada = jornada;
    p.division = 1;
    p.partido = 1;
    p.local = "Betis";
    p.visitante = "Celta";
    return p;
}

std::string Bytes(const RegPartidoLiga& p) {
    const auto b = p.ABytes();
    return {b.begin(), b.end()};
}

TEST(DepurarLiga, SoloQuedanLosPartidosDeLaTemporadaYSuCopia) {
    CarpetaTemporal carpeta;
    {
        base::ArchivoDe<RegPartidoLiga> liga(carpeta / kJlig2);
        liga.Anadir(Partido("22/23", 1));
        liga.Anadir(Partido("23/24", 1));
        liga.Anadir(Partido("22/23", 2));
        liga.Anadir(Partido("23/24", 2));
    }
    {
        // Un resto de registro al final tampoco se queda.
        std::ofstream f(carpeta / kJlig2, std::ios::binary | std::ios::app);
        f << "resto";
    }
    EXPECT_EQ(DepurarLiga(carpeta.Ruta(), "23/24"), 2);
    const std::string esperado = Bytes(Partido("23/24", 1)) + Bytes(Partido("23/24", 2));
    EXPECT_EQ(Leer(carpeta / kJlig2), esperado);
    EXPECT_EQ(Leer(carpeta / kJlig2Bak), esperado);
    EXPECT_EQ(DepurarLiga(carpeta.Ruta(), "23/24"), 0);
    EXPECT_EQ(Leer(carpeta / kJlig2), esperado);
}

TEST(DepurarLiga, SinArchivoLoDiceYNoCreaNada) {
    CarpetaTemporal carpeta;
    try {
        DepurarLiga(carpeta.Ruta(), "23/24");
        FAIL();
    } catch (const base::Error& e) {
        EXPECT_EQ(std::string(e.what()).rfind("No se encontró la ruta de acceso: ", 0), 0U);
    }
    EXPECT_FALSE(fs::exists(carpeta / kJlig2Bak));
}

}  // namespace
}  // namespace quinteva::seasons
