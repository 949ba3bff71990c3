#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "builders/reduction_display.h"
#include "engine/combination_files.h"
#include "engine/cover.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

std::string Q(const std::filesystem::path& p) { return "'" + p.string() + "'"; }

struct Quiniela {
    CarpetaTemporal carpeta;
    std::filesystem::path uxd = carpeta / "J7.uxd";
    std::string trabajo = " --carpeta " + Q(carpeta / "trabajo");

    explicit Quiniela(const std::string& base) {
        const Salida s =
            EjecutarCli("nueva " + Q(uxd) + " --base \"" + base + "\" --pleno 1-0" + trabajo);
        EXPECT_EQ(s.codigo, 0) << s.errores;
    }
};

TEST(CliReducir, SieteDoblesAlTrecePorTablas) {
    Quiniela q("1X 1X 1X 1X 1X 1X 1X 1 1 1 1 1 1 1");
    ASSERT_EQ(EjecutarCli("generar " + Q(q.uxd) + q.trabajo).codigo, 0);
    const Salida s = EjecutarCli("reducir " + Q(q.uxd) + " --al 13" + q.trabajo);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida, "Reducida al 13: 16\n");
    EXPECT_EQ(std::filesystem::file_size(q.carpeta / "J7.red"), 16U * 17U);
    const Salida j = EjecutarCli("reducir " + Q(q.uxd) + " --al 12 --json" + q.trabajo);
    EXPECT_EQ(j.salida,
              "{\"NivelReducida\": 1, \"TotalReducidas\": 8, \"SinSistema\": false, "
              "\"PorTablas\": true}\n");
}

TEST(CliReducir, ConPartidosElegidos) {
    Quiniela q("1X 1X 1X 1X 1X 1X 1X 1X 1 1 1 1 1 1");
    ASSERT_EQ(EjecutarCli("generar " + Q(q.uxd) + q.trabajo).codigo, 0);
    // Solo tres dobles en la reducción: sistema de 2 filas y los otros cinco dobles libres.
    const Salida s = EjecutarCli("reducir " + Q(q.uxd) + " --al 13 --partidos 1,2,3" + q.trabajo);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida, "Reducida al 13: 64\n");
}

// Lo que guarda al 13 el recubrimiento voraz de las 729 columnas de seis triples, en el orden de
// la generación.
std::size_t VorazDeSeisTriples() {
    engine::Recubrimiento voraz(1);
    std::size_t guardadas = 0;
    for (int n = 0; n < 729; ++n) {
        std::string columna;
        for (int p = 5, resto = n; p >= 0; --p, resto /= 3) columna.insert(0, 1, "1X2"[resto % 3]);
        guardadas += voraz.Considerar(engine::ColumnaDeTexto(columna + "11111111")) ? 1 : 0;
    }
    return guardadas;
}

TEST(CliReducir, OptimizadaCumpleLaGarantiaYDiceCuantasAhorra) {
    Quiniela q("1X2 1X2 1X2 1X2 1X2 1X2 1 1 1 1 1 1 1 1");
    ASSERT_EQ(EjecutarCli("generar " + Q(q.uxd) + q.trabajo).codigo, 0);
    const Salida s = EjecutarCli("reducir " + Q(q.uxd) + " --al 13 --optimizada --segundos 5 " +
                                 "--semilla 4 --json" + q.trabajo);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    const std::size_t voraz = VorazDeSeisTriples();
    EXPECT_NE(s.salida.find("\"PorTablas\": false, \"Voraz\": " + std::to_string(voraz) + "}"),
              std::string::npos)
        << s.salida;
    const auto reducidas = std::filesystem::file_size(q.carpeta / "J7.red") / 17U;
    EXPECT_LT(reducidas, voraz);
    const Salida v = EjecutarCli("verificar " + Q(q.uxd) + " --al 13" + q.trabajo);
    EXPECT_EQ(v.codigo, 0) << v.salida;
    const Salida texto = EjecutarCli("reducir " + Q(q.uxd) + " --al 13 --optimizada --segundos 5 " +
                                     "--semilla 4" + q.trabajo);
    EXPECT_EQ(texto.salida, "Reducción optimizada: " + std::to_string(reducidas) + " columnas, " +
                                std::to_string(voraz - reducidas) +
                                " menos que la reducción sin optimizar (" + std::to_string(voraz) +
                                ").\n");
}

TEST(CliReducir, OptimizadaConOpcionesMalPuestas) {
    Quiniela q("1X2 1X2 1 1 1 1 1 1 1 1 1 1 1 1");
    ASSERT_EQ(EjecutarCli("generar " + Q(q.uxd) + q.trabajo).codigo, 0);
    const Salida cero =
        EjecutarCli("reducir " + Q(q.uxd) + " --al 13 --optimizada --segundos 0" + q.trabajo);
    EXPECT_EQ(cero.codigo, 2);
    EXPECT_NE(cero.errores.find("--segundos es un número mayor que 0: 0"), std::string::npos)
        << cero.errores;
    const Salida sola = EjecutarCli("reducir " + Q(q.uxd) + " --al 13 --semilla 3" + q.trabajo);
    EXPECT_EQ(sola.codigo, 2);
    EXPECT_NE(sola.errores.find("--segundos y --semilla van con --optimizada"), std::string::npos);
}

// Las seis probabilidades del JSON, en su orden.
std::vector<double> Probabilidades(const std::string& json) {
    std::vector<double> v;
    for (const char* clave :
         {"Aciertos14", "Aciertos13", "Aciertos12", "Aciertos11", "Aciertos10", "MenosDe10"}) {
        const auto en = json.find(std::string("\"") + clave + "\": ");
        if (en == std::string::npos) return {};
        v.push_back(std::stod(json.substr(en + std::strlen(clave) + 4)));
    }
    return v;
}

TEST(CliProbabilidades, LaReducidaAlTreceDaTreceOCatorceSeguroYLaCondicionadaCatorce) {
    Quiniela q("1X2 1X2 1X2 1X2 1 1 1 1 1 1 1 1 1 1");
    ASSERT_EQ(EjecutarCli("generar " + Q(q.uxd) + q.trabajo).codigo, 0);
    ASSERT_EQ(EjecutarCli("reducir " + Q(q.uxd) + " --al 13" + q.trabajo).codigo, 0);
    const Salida red = EjecutarCli("probabilidades " + Q(q.uxd) + " --json" + q.trabajo);
    ASSERT_EQ(red.codigo, 0) << red.errores;
    const auto r = Probabilidades(red.salida);
    ASSERT_EQ(r.size(), 6U) << red.salida;
    // 9 reducidas de 81 columnas igual de probables: 9 de 81 con 14 y las demás con 13.
    EXPECT_NEAR(r[0], 9.0 / 81.0, 1e-12);
    EXPECT_NEAR(r[0] + r[1], 1.0, 1e-12);
    const Salida cnd =
        EjecutarCli("probabilidades " + Q(q.uxd) + " --jugadas condicionadas --json" + q.trabajo);
    EXPECT_NEAR(Probabilidades(cnd.salida).at(0), 1.0, 1e-12);
    const Salida texto = EjecutarCli("probabilidades " + Q(q.uxd) + q.trabajo);
    EXPECT_EQ(texto.salida,
              "14 aciertos: 11,111111 %\n13 aciertos: 88,888889 %\n12 aciertos: 0,000000 %\n"
              "11 aciertos: 0,000000 %\n10 aciertos: 0,000000 %\nMenos de 10: 0,000000 %\n"
              "Pleno al 15: 0,694444 %\n");
    EXPECT_EQ(EjecutarCli("probabilidades " + Q(q.uxd) + " --jugadas todas" + q.trabajo).codigo, 2);
    // El Pleno jugado con la mitad de probabilidad: la del Pleno al 15, la mitad de la de los 14.
    const Salida pleno = EjecutarCli("probabilidades " + Q(q.uxd) + " --pleno 50" + q.trabajo);
    EXPECT_NE(pleno.salida.find("Pleno al 15: 5,555556 %\n"), std::string::npos) << pleno.salida;
    EXPECT_EQ(EjecutarCli("probabilidades " + Q(q.uxd) + " --pleno 101" + q.trabajo).codigo, 2);
}

TEST(CliReducir, SinSistemaLoDice) {
    Quiniela q("1X 1X 1 1 1 1 1 1 1 1 1 1 1 1");
    ASSERT_EQ(EjecutarCli("generar " + Q(q.uxd) + q.trabajo).codigo, 0);
    const Salida s = EjecutarCli("reducir " + Q(q.uxd) + " --al 13" + q.trabajo);
    EXPECT_EQ(s.codigo, 0);
    EXPECT_EQ(s.salida, "No hay reducción por tablas para esta base al 13\n");
}

TEST(CliReducir, SinGenerarEsUnErrorYNoCambiaNada) {
    Quiniela q("1X2 1X2 1 1 1 1 1 1 1 1 1 1 1 1");
    const auto antes = std::filesystem::last_write_time(q.uxd);
    const Salida s = EjecutarCli("reducir " + Q(q.uxd) + " --al 12" + q.trabajo);
    EXPECT_EQ(s.codigo, 1);
    EXPECT_NE(s.errores.find("no tiene columnas generadas"), std::string::npos) << s.errores;
    EXPECT_EQ(std::filesystem::last_write_time(q.uxd), antes);
    EXPECT_FALSE(std::filesystem::exists(q.carpeta / "J7.red"));
}

TEST(CliReducir, SinCarpetaNoTocaLosAlmacenesDelUsuario) {
    Quiniela q("1X 1X 1X 1X 1X 1X 1X 1 1 1 1 1 1 1");
    ASSERT_EQ(EjecutarCli("generar " + Q(q.uxd) + q.trabajo).codigo, 0);
    CarpetaTemporal usuario;
    const Salida s =
        EjecutarCli("reducir " + Q(q.uxd) + " --al 13", "QUINTEVA_CARPETA=" + Q(usuario.Ruta()));
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_FALSE(std::filesystem::exists(usuario / "Cmb.tmp"));
    EXPECT_FALSE(std::filesystem::exists(usuario / "Red.tmp"));
}

TEST(CliReducir, OpcionesMalas) {
    EXPECT_EQ(EjecutarCli("reducir x.uxd").codigo, 2);
    EXPECT_EQ(EjecutarCli("reducir x.uxd --al 10").codigo, 2);
    EXPECT_EQ(EjecutarCli("reducir x.uxd --al 13 --partidos 3,15").codigo, 2);
}

TEST(CliTablas, LasSetentaYTresFilas) {
    const Salida s = EjecutarCli("tablas");
    ASSERT_EQ(s.codigo, 0);
    EXPECT_EQ(std::count(s.salida.begin(), s.salida.end(), '\n'), 73);
    EXPECT_TRUE(s.salida.starts_with("3 Dobles\t2*\t-\t-\n")) << s.salida.substr(0, 40);
    EXPECT_NE(s.salida.find("1 Triples y 4 Dobles\t8*\t3*\t-\n"), std::string::npos);
    const Salida j = EjecutarCli("tablas --json");
    EXPECT_NE(j.salida.find("{\"Combinaciones\": \"11 Triples\", \"Triples\": 11"),
              std::string::npos);
}

TEST(CliTablas, LasFilasDeUnSistema) {
    const Salida s = EjecutarCli("tablas --sistema 13 0 3");
    EXPECT_EQ(s.codigo, 0);
    EXPECT_TRUE(s.salida == "1X1\nX1X\n" || s.salida == "X1X\n1X1\n") << s.salida;
    EXPECT_EQ(EjecutarCli("tablas --sistema 13 0 2").codigo, 1);
}

}  // namespace
}  // namespace quinteva::pruebas
