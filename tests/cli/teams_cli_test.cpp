#include <gtest/gtest.h>

#include <fstream>

#include "base/record_files.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

namespace fs = std::filesystem;

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

// Una carpeta de trabajo con la temporada de demostración y, después, una temporada nueva
// "24/25" con sus equipos sin cifras y sin Jornadas de Liga.
struct Trabajo {
    CarpetaTemporal carpeta;
    std::string opcion;

    Trabajo() : opcion(" --carpeta '" + carpeta.Ruta().string() + "'") {
        EXPECT_EQ(EjecutarCli("demo" + opcion).codigo, 0);
    }
    Salida Cli(const std::string& orden) const { return EjecutarCli(orden + opcion); }
    fs::path Temporada() const { return seasons::CarpetaTemporadaEnCurso(carpeta.Ruta()); }
};

TEST(CliEquipos, ListaLosDeUnaDivisionConSusCifras) {
    Trabajo t;
    const Salida s = t.Cli("equipos --division 1 --json");
    EXPECT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida.front(), '[');
    EXPECT_NE(s.salida.find("\"Nombre\": \"Real Madrid\", \"Division\": 1"), std::string::npos);
    EXPECT_EQ(s.salida.find("\"Division\": 2"), std::string::npos);
    EXPECT_NE(s.salida.find("\"PosicionJornada\": ["), std::string::npos);
    const Salida texto = t.Cli("equipos --division 2");
    EXPECT_NE(texto.salida.find("Leganés            2"), std::string::npos) << texto.salida;
}

TEST(CliEquipos, ConJornadasDeLigaNoSeAnade) {
    Trabajo t;
    const std::string antes = Leer(t.Temporada() / seasons::kNomeq);
    const Salida s = t.Cli("equipo-nuevo --division 1 --nombre Nuevo");
    EXPECT_EQ(s.codigo, 1);
    EXPECT_NE(s.errores.find("Al estar creadas las Jornadas de Liga"), std::string::npos);
    EXPECT_EQ(Leer(t.Temporada() / seasons::kNomeq), antes);
}

TEST(CliEquipos, UnaTemporadaNuevaYSusEquipos) {
    Trabajo t;
    // La 2ª de la demostración tiene 22 equipos: queda sitio para uno.
    const Salida nueva = t.Cli("nueva-temporada 24/25 --equipos1 20 --equipos2 23");
    EXPECT_EQ(nueva.codigo, 0) << nueva.errores;
    EXPECT_EQ(nueva.salida, "Temporada 24/25\n");
    EXPECT_EQ(t.Temporada().filename(), "Temporada2425");
    // La 1ª ya tiene sus 20 de la temporada anterior.
    const Salida llena = t.Cli("equipo-nuevo --division 1 --nombre Nuevo");
    EXPECT_EQ(llena.codigo, 1);
    EXPECT_EQ(llena.errores, "Ya hay introducidos 20 Equipos.\n");
    const Salida repetido = t.Cli("equipo-nuevo --division 2 --nombre Girona");
    EXPECT_EQ(repetido.codigo, 1);
    EXPECT_EQ(repetido.errores,
              "Este Equipo ya está introducido, en esta División o en la otra.\n");
    const std::string antes = Leer(t.Temporada() / seasons::kNomeq);
    const Salida largo = t.Cli("equipo-nuevo --division 2 --nombre 'Dieciséis letras'");
    EXPECT_EQ(largo.codigo, 1);
    EXPECT_NE(largo.errores.find("más de 15 caracteres"), std::string::npos);
    EXPECT_EQ(Leer(t.Temporada() / seasons::kNomeq), antes);
    const Salida desborda = t.Cli("equipo-nuevo --division 2 --nombre Nuevo --valoracion 300");
    EXPECT_EQ(desborda.codigo, 1);
    EXPECT_EQ(desborda.errores, "Error: Desbordamiento\n");
    EXPECT_EQ(Leer(t.Temporada() / seasons::kNomeq), antes);
    const Salida bien = t.Cli("equipo-nuevo --division 2 --nombre Nuevo --valoracion 7");
    EXPECT_EQ(bien.codigo, 0) << bien.errores;
    EXPECT_NE(t.Cli("equipos --division 2 --json")
                  .salida.find("\"Temporada\": \"24/25\", \"Nombre\": \"Nuevo\", \"Division\": 2, "
                               "\"Valoracion\": 7"),
              std::string::npos);
}

TEST(CliEquipos, NuevaTemporadaConMasDe23Equipos) {
    Trabajo t;
    const Salida s = t.Cli("nueva-temporada 24/25 --equipos1 24 --equipos2 22");
    EXPECT_EQ(s.codigo, 1);
    EXPECT_EQ(s.errores, "El número de equipos no puede ser mayor que 23.\n");
    EXPECT_EQ(t.Temporada().filename(), "Temporada2324");
    const Salida corta = t.Cli("nueva-temporada 2425 --equipos1 20 --equipos2 22");
    EXPECT_EQ(corta.codigo, 1);
    EXPECT_EQ(corta.errores, "No ha introducido la Temporada en formato 'aa/aa'.\n");
}

TEST(CliEquipos, TodoACero) {
    Trabajo t;
    EXPECT_EQ(t.Cli("todo-a-cero").codigo, 0);
    const Salida s = t.Cli("equipos --json");
    EXPECT_EQ(s.salida.find("\"Temporada\": \"23/24\""), std::string::npos);
    EXPECT_NE(s.salida.find("\"Temporada\": \"19/20\""), std::string::npos);
    EXPECT_EQ(s.salida.find("\"Puntos\": 3"), std::string::npos);
    base::ArchivoDe<seasons::RegPartidoLiga> liga(t.Temporada() / seasons::kJlig2);
    for (std::int32_t n = 1; n <= liga.Cuenta(); ++n) {
        EXPECT_EQ(liga.Leer(n).golesLocal + liga.Leer(n).golesVisitante, 0);
    }
}

TEST(CliEquipos, SinTemporadaUnErrorClaro) {
    CarpetaTemporal vacia;
    const Salida s = EjecutarCli("equipos --carpeta '" + vacia.Ruta().string() + "'");
    EXPECT_EQ(s.codigo, 1);
    EXPECT_NE(s.errores.find("No hay temporada en curso"), std::string::npos);
}

}  // namespace
}  // namespace quinteva::pruebas
