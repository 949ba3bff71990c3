// quinteva-cli nueva, info, generar y analizar, ejecutado de verdad con una carpeta propia.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>

#include "base/formats.h"
#include "base/progress.h"
#include "engine/analysis.h"
#include "engine/combination_files.h"
#include "engine/generation.h"
#include "tests/cli/cli_runner.h"
#include "tests/engine/random_conditions.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva {
namespace {

struct Salida {
    int codigo;
    std::string texto;
};

// La salida y los errores juntos, como los vería quien lo ejecuta en una terminal.
Salida Ejecutar(const std::string& argumentos) {
    const pruebas::Salida s = pruebas::EjecutarCli(argumentos);
    return {s.codigo, s.salida + s.errores};
}

std::string Q(const std::filesystem::path& p) { return "'" + p.string() + "'"; }

TEST(CliCombinacion, NuevaInfoGenerarAnalizar) {
    pruebas::CarpetaTemporal carpeta;
    const auto uxd = carpeta / "J1.uxd";
    const auto trabajo = carpeta / "trabajo";
    auto r = Ejecutar(
        "nueva " + Q(uxd) +
        " --base \"1x2 1 X 12 1X2 1 1 2 X 1X x2 1 1 1\" --pleno 1-m --jornada 12 --carpeta " +
        Q(trabajo));
    ASSERT_EQ(r.codigo, 0) << r.texto;
    EXPECT_EQ(std::filesystem::file_size(uxd), 5189U);

    r = Ejecutar("info " + Q(uxd) + " --json");
    ASSERT_EQ(r.codigo, 0) << r.texto;
    EXPECT_NE(r.texto.find("\"Base\": \"1X2 1 X 12 1X2 1 1 2 X 1X X2 1 1 1\""), std::string::npos)
        << r.texto;
    EXPECT_NE(r.texto.find("\"Jornada\": 12"), std::string::npos);
    EXPECT_NE(r.texto.find("\"PlenoBase\": \"1M\""), std::string::npos);
    EXPECT_NE(r.texto.find("\"NumCondiciones\": 0"), std::string::npos);

    r = Ejecutar("generar " + Q(uxd) + " --carpeta " + Q(trabajo));
    ASSERT_EQ(r.codigo, 0) << r.texto;
    EXPECT_EQ(r.texto, "Apuestas posibles: 72\nCondicionada: 72\nTotal rechazadas\t0\n");
    EXPECT_EQ(std::filesystem::file_size(carpeta / "J1.cnd"), 72U * 17U);

    r = Ejecutar("analizar " + Q(uxd) + " --columna 11111111111111");
    EXPECT_EQ(r.codigo, 0);
    EXPECT_EQ(r.texto, "Quiniela Base\tFallo en pronóstico\n");
    r = Ejecutar("analizar " + Q(uxd) + " --columna 11X11112X1X111");
    EXPECT_EQ(r.texto, "");
}

TEST(CliCombinacion, EntradasMalasNoEscribenNada) {
    pruebas::CarpetaTemporal carpeta;
    const auto uxd = carpeta / "Mala.uxd";
    const auto trabajo = carpeta / "trabajo";
    for (const std::string base :
         {"1X2 1 X", "1X2 1 X 12 1X2 1 1 2 X 1X X2 1 1 3", "1X2 1 X 12 1X2 1 1 2 X 1X X2 1 1 11",
          "1X2 1 X 12 1X2 1 1 2 X 1X X2 1 1 ,"}) {
        const auto r = Ejecutar("nueva " + Q(uxd) + " --base \"" + base +
                                "\" --pleno 1-1 --carpeta " + Q(trabajo));
        EXPECT_EQ(r.codigo, 2) << base;
        EXPECT_FALSE(r.texto.empty());
        EXPECT_FALSE(std::filesystem::exists(uxd));
    }
    const auto r =
        Ejecutar("nueva " + Q(uxd) +
                 " --base \"1 1 1 1 1 1 1 1 1 1 1 1 1 1\" --pleno 1-5 --carpeta " + Q(trabajo));
    EXPECT_EQ(r.codigo, 2);
    EXPECT_FALSE(std::filesystem::exists(uxd));

    std::ofstream(carpeta / "Vacia.uxd").close();
    auto g = Ejecutar("generar " + Q(carpeta / "Vacia.uxd") + " --carpeta " + Q(trabajo));
    EXPECT_EQ(g.codigo, 1);
    EXPECT_NE(g.texto.find("vacío"), std::string::npos) << g.texto;
    EXPECT_FALSE(std::filesystem::exists(carpeta / "Vacia.cnd"));
    EXPECT_FALSE(std::filesystem::exists(trabajo / "Cmb.tmp"));
    std::ofstream(carpeta / "Corta.uxd") << std::string(100, 'x');
    g = Ejecutar("info " + Q(carpeta / "Corta.uxd"));
    EXPECT_EQ(g.codigo, 1);
    EXPECT_NE(g.texto.find("5.189"), std::string::npos) << g.texto;
}

// Un .uxd escrito a mano con condiciones de todas las familias se lee y se genera exactamente.
TEST(CliCombinacion, UxdEscritoAManoSeGeneraExactamente) {
    pruebas::Sorteo s(4242);
    for (int vuelta = 0; vuelta < 3; ++vuelta) {
        pruebas::CarpetaTemporal carpeta;
        const auto uxd = carpeta / "Mano.uxd";
        engine::RegistroCabecera cab;
        cab.nombre = "Mano";
        engine::QuinielaBase base = pruebas::BaseAlAzar(s);
        for (int p = 1; p <= 14; ++p) {
            for (int k = 0; k < 3; ++k)
                cab.celdas[static_cast<std::size_t>(k)][static_cast<std::size_t>(p - 1)] =
                    base.Elegido(p, k) ? 1 : 0;
        }
        cab.pleno = {'1', 'M'};
        cab.condiciones = pruebas::CondicionesAlAzar(s, base);
        const auto bytes = cab.ABytes();
        std::ofstream(uxd, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), 5189);

        // Lo esperado, con el motor en una carpeta aparte.
        pruebas::AjustesEnMemoria ajustes;
        engine::Combinacion c;
        c.base = base;
        c.pleno = cab.pleno;
        c.condiciones = cab.condiciones;
        base::SinProgreso progreso;
        std::filesystem::create_directories(carpeta / "ref");
        engine::Generar(c, carpeta / "ref", progreso, ajustes);

        const auto r = Ejecutar("generar " + Q(uxd) + " --carpeta " + Q(carpeta / "trabajo"));
        ASSERT_EQ(r.codigo, 0) << r.texto;
        std::string esperado = "Apuestas posibles: " + base::Formato(c.apuestasPosibles, "#,##0") +
                               "\nCondicionada: " + base::Formato(c.activasGeneradas, "#,##0") +
                               "\n";
        for (const auto& f : engine::FilasRechazadas(c.rechazos, c.condiciones.toleranciaGrupos,
                                                     c.condiciones.toleranciaGruposAc)) {
            esperado += f.primera + "\t" + f.segunda + "\n";
        }
        EXPECT_EQ(r.texto, esperado);
        EXPECT_EQ(std::filesystem::file_size(carpeta / "Mano.cnd"),
                  17U * static_cast<unsigned>(c.totalGeneradas));
        const auto json =
            Ejecutar("generar " + Q(uxd) + " --carpeta " + Q(carpeta / "trabajo") + " --json");
        EXPECT_NE(json.texto.find("\"TotalGeneradas\": " + std::to_string(c.totalGeneradas)),
                  std::string::npos);
        EXPECT_NE(json.texto.find("\"RechazosTolGrupos\": " + std::to_string(c.rechazos.tolGrupos)),
                  std::string::npos);
    }
}

}  // namespace
}  // namespace quinteva
