#include "seasons/demo_season.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/startup.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;

// La carpeta del programa de las pruebas: una copia de data/.
struct Programa {
    CarpetaTemporal carpeta;
    Programa() { fs::copy(QUINTEVA_DATOS, carpeta.Ruta(), fs::copy_options::recursive); }
};

TEST(TemporadaDemo, ElPrimerArranqueLaInstala) {
    Programa programa;
    CarpetaTemporal trabajo;
    ASSERT_TRUE(InstalarTemporadaDemo(programa.carpeta.Ruta(), trabajo.Ruta()));
    EXPECT_EQ(TemporadaActual(trabajo.Ruta()), "Temporada2324");
    EXPECT_TRUE(fs::exists(trabajo / "Hist.rar"));
    for (const char* n : {"Nomeq.rar", "Jlig2.rar", "Jquin.rar", "Jornadas.rar"}) {
        EXPECT_TRUE(fs::exists(trabajo / "Temporada2324" / n)) << n;
    }
    // Se instala, no se mueve: el programa la conserva.
    EXPECT_TRUE(fs::exists(programa.carpeta / "temporada_demo" / "Jquin.rar"));
}

TEST(TemporadaDemo, TraeEquiposDeLasDosDivisionesYJornadasParaElegir) {
    Programa programa;
    CarpetaTemporal trabajo;
    ASSERT_TRUE(InstalarTemporadaDemo(programa.carpeta.Ruta(), trabajo.Ruta()));
    AjustesEnMemoria ajustes;
    const TemporadaPreparada t =
        PrepararTemporada(programa.carpeta.Ruta(), trabajo.Ruta(), ajustes);
    EXPECT_EQ(t.equipos1, 20);
    EXPECT_EQ(t.equipos2, 22);
    EXPECT_EQ(t.maxJornada1, 20);
    EXPECT_EQ(t.maxJornada2, 22);
    ASSERT_EQ(t.jornadas.size(), 26U);
    EXPECT_EQ(t.jornadas.front(), 1);
    EXPECT_EQ(t.jornadas.back(), 26);
    const JornadaQuiniela j = LeerJornadaQuiniela(t.carpetaTemporada, 26);
    for (const auto& p : j.partidos) EXPECT_NE(p.equipos.find(" - "), std::string::npos);
}

TEST(TemporadaDemo, SusEquiposSonLosPrimerosDeLaLista) {
    std::ifstream lista(fs::path(QUINTEVA_DATOS) / "equipos.txt");
    std::vector<std::string> nombres;
    for (std::string l; std::getline(lista, l);) nombres.push_back(l);
    EXPECT_EQ(nombres.size(), 68U);
    const base::ArchivoDe<RegEquipo> nomeq(fs::path(QUINTEVA_DATOS) / "temporada_demo" / kNomeq);
    ASSERT_EQ(nomeq.Cuenta(), 42);
    for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
        EXPECT_EQ(std::string(base::Recortar(nomeq.Leer(n).nombre)),
                  nombres[static_cast<std::size_t>(n - 1)]);
    }
}

TEST(TemporadaDemo, NoPisaUnaTemporadaQueYaHay) {
    Programa programa;
    CarpetaTemporal trabajo;
    FijarTemporadaActual(trabajo.Ruta(), "Temporada2526");
    EXPECT_FALSE(InstalarTemporadaDemo(programa.carpeta.Ruta(), trabajo.Ruta()));
    EXPECT_EQ(TemporadaActual(trabajo.Ruta()), "Temporada2526");
    EXPECT_FALSE(fs::exists(trabajo / "Temporada2324"));
}

TEST(TemporadaDemo, SinDatosDeDemostracionNoInstalaNada) {
    CarpetaTemporal programa, trabajo;
    EXPECT_FALSE(InstalarTemporadaDemo(programa.Ruta(), trabajo.Ruta()));
    EXPECT_FALSE(fs::exists(trabajo / "Tempor.rar"));
}

}  // namespace
}  // namespace quinteva::seasons
