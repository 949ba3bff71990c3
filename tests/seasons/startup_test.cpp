#include "seasons/startup.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/dates.h"
#include "base/error.h"
#include "base/record_files.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;

void Escribir(const fs::path& ruta, const std::string& contenido) {
    std::ofstream(ruta, std::ios::binary) << contenido;
}

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

RegPartidoQuin PartidoQuin(int jornada, int partido, std::string local, std::string visitante) {
    RegPartidoQuin r;
    r.jornada = jornada;
    r.partido = partido;
    r.local = std::move(local);
    r.visitante = std::move(visitante);
    r.division = partido <= 10 ? 1 : 2;
    r.fecha = base::FechaASerie({2024, 3, 9});
    return r;
}

struct Carpetas {
    CarpetaTemporal programa, trabajo;
    fs::path temporada = trabajo / "Temporada2324";
    Carpetas() { fs::create_directories(temporada); }
};

TEST(MoverArchivosDescargados, CopiaLosQueFaltanYBorraLosDelPrograma) {
    Carpetas c;
    for (const char* n : {"Jlig2.rar", "Jquin.rar", "Jornadas.rar", "Nomeq.rar"}) {
        Escribir(c.programa / n, std::string("nuevo ") + n);
    }
    Escribir(c.temporada / "Jquin.rar", "el de la temporada");
    Escribir(c.trabajo / "Jlig2.rar", "el de la carpeta de trabajo");
    MoverArchivosDescargados(c.programa.Ruta(), c.trabajo.Ruta(), c.temporada);

    EXPECT_EQ(Leer(c.temporada / "Jlig2.rar"), "nuevo Jlig2.rar");
    EXPECT_EQ(Leer(c.temporada / "Jornadas.rar"), "nuevo Jornadas.rar");
    EXPECT_EQ(Leer(c.temporada / "Nomeq.rar"), "nuevo Nomeq.rar");
    // La temporada ya lo tenía: no se pisa, pero el del programa se borra igual.
    EXPECT_EQ(Leer(c.temporada / "Jquin.rar"), "el de la temporada");
    EXPECT_FALSE(fs::exists(c.programa / "Jquin.rar"));
    EXPECT_FALSE(fs::exists(c.programa / "Jornadas.rar"));
    EXPECT_FALSE(fs::exists(c.programa / "Nomeq.rar"));
    // "Jlig2.rar" al revés: se queda en el programa y se borra el de la carpeta de trabajo.
    EXPECT_EQ(Leer(c.programa / "Jlig2.rar"), "nuevo Jlig2.rar");
    EXPECT_FALSE(fs::exists(c.trabajo / "Jlig2.rar"));
}

TEST(MoverArchivosDescargados, SinNadaDescargadoNoHaceNada) {
    Carpetas c;
    MoverArchivosDescargados(c.programa.Ruta(), c.trabajo.Ruta(), c.temporada);
    EXPECT_TRUE(fs::is_empty(c.temporada));
    EXPECT_TRUE(fs::is_empty(c.programa.Ruta()));
}

TEST(ContarEquipos, PorDivisionYGuardaNEq) {
    Carpetas c;
    base::ArchivoDe<RegEquipo> nomeq(c.temporada / kNomeq);
    for (int division : {1, 2, 2, 0, 1, 2}) {
        RegEquipo e;
        e.division = division;
        nomeq.Anadir(e);
    }
    nomeq.Cerrar();
    AjustesEnMemoria ajustes;
    EXPECT_EQ(ContarEquipos(c.temporada, ajustes), std::make_pair(2, 3));
    EXPECT_EQ(ajustes.Leer(base::kAplicacion, "Valores", "NEq1", ""), "2");
    EXPECT_EQ(ajustes.Leer(base::kAplicacion, "Valores", "NEq2", ""), "3");
}

TEST(ListaJornadas, LasDe1A70QueTienenRegistro) {
    Carpetas c;
    base::ArchivoDe<RegPartidoQuin> jquin(c.temporada / kJquin);
    for (int j : {5, 3, 71, 0, 70, 3, 1}) jquin.Anadir(PartidoQuin(j, 1, "A", "B"));
    jquin.Cerrar();
    EXPECT_EQ(ListaJornadas(c.temporada), (std::vector<int>{1, 3, 5, 70}));
}

TEST(ListaJornadas, SinArchivoNoHayJornadas) {
    Carpetas c;
    EXPECT_TRUE(ListaJornadas(c.temporada).empty());
}

TEST(LeerJornadaQuiniela, LosQuincePartidosRecortadosConSuFecha) {
    Carpetas c;
    base::ArchivoDe<RegPartidoQuin> jquin(c.temporada / kJquin);
    jquin.Anadir(PartidoQuin(7, 15, "Betis", "Sevilla"));
    jquin.Anadir(PartidoQuin(6, 1, "Otro", "Otro"));
    jquin.Anadir(PartidoQuin(7, 1, "Real Madrid", "Atlético Madrid"));
    jquin.Anadir(PartidoQuin(7, 12, "Eibar", "Leganés"));
    jquin.Cerrar();
    const JornadaQuiniela j = LeerJornadaQuiniela(c.temporada, 7);
    EXPECT_EQ(j.jornada, 7);
    EXPECT_EQ(j.fecha, "09/03/24");
    EXPECT_EQ(j.partidos[0].equipos, "Real Madrid - Atlético Madrid");
    EXPECT_EQ(j.partidos[0].division, 1);
    EXPECT_EQ(j.partidos[11].equipos, "Eibar - Leganés");
    EXPECT_EQ(j.partidos[11].division, 2);
    EXPECT_EQ(j.partidos[14].equipos, "Betis - Sevilla");
    EXPECT_EQ(j.partidos[1].equipos, "");
}

TEST(PrepararTemporada, SinTemporRarDaUnErrorClaro) {
    Carpetas c;
    AjustesEnMemoria ajustes;
    try {
        PrepararTemporada(c.programa.Ruta(), c.trabajo.Ruta(), ajustes);
        FAIL();
    } catch (const base::Error& e) {
        EXPECT_NE(std::string(e.what()).find("Tempor.rar"), std::string::npos);
    }
}

TEST(PrepararTemporada, LosPasosEnSuOrden) {
    Carpetas c;
    FijarTemporadaActual(c.trabajo.Ruta(), "Temporada2425");
    // Un "Jquin.rar" recién instalado en el programa llega a la temporada nueva y se lista.
    base::ArchivoDe<RegPartidoQuin> jquin(c.programa / kJquin);
    jquin.Anadir(PartidoQuin(2, 1, "A", "B"));
    jquin.Cerrar();
    base::ArchivoDe<RegPartidoLiga> jlig2(c.programa / kJlig2);
    RegPartidoLiga p;
    p.division = 2;
    p.jornada = 4;
    p.golesLocal = 1;
    jlig2.Anadir(p);
    jlig2.Cerrar();
    AjustesEnMemoria ajustes;
    const TemporadaPreparada t = PrepararTemporada(c.programa.Ruta(), c.trabajo.Ruta(), ajustes);
    EXPECT_EQ(t.temporadaActual, "Temporada2425");
    EXPECT_EQ(t.carpetaTemporada, c.trabajo / "Temporada2425");
    EXPECT_TRUE(fs::is_directory(t.carpetaTemporada));
    EXPECT_FALSE(fs::exists(c.programa / kJquin));
    EXPECT_EQ(t.jornadas, std::vector<int>{2});
    EXPECT_EQ(t.maxJornada2, 4);
    EXPECT_EQ(ajustes.Leer(base::kAplicacion, "Valores", "MaxJor2ª", ""), "4");
    EXPECT_EQ(ajustes.Leer(base::kAplicacion, "Valores", "NEq1", ""), "0");
}

}  // namespace
}  // namespace quinteva::seasons
