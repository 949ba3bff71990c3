#include "outputs/hit_count.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "outputs/located_columns.h"
#include "tests/outputs/literal_hits.h"

namespace quinteva::outputs {
namespace {

const std::string kGanadora = "1X21X21X21X21X1M";

TablaAciertos Una(std::string_view signos, std::string_view pleno,
                  std::string_view ganadora = kGanadora) {
    TablaAciertos tabla;
    Comparador(ganadora).Anotar(signos.data(), pleno, 1, tabla);
    return tabla;
}

TEST(Comparador, CatorceConElPlenoDelBoletoFalladoCuentaCatorceNoQuince) {
    const TablaAciertos tabla = Una("1X21X21X21X21X", "10");
    EXPECT_EQ(tabla.cuentas[0], 0);
    EXPECT_EQ(tabla.cuentas[1], 1);
    EXPECT_TRUE(tabla.listas[0].empty());
    EXPECT_EQ(tabla.listas[1], std::vector<std::int32_t>{1});
}

TEST(Comparador, QuinceCuentaComoQuinceYComoCatorce) {
    const TablaAciertos tabla = Una("1X21X21X21X21X", "1M");
    EXPECT_EQ(tabla.cuentas[0], 1);
    EXPECT_EQ(tabla.cuentas[1], 1);
}

TEST(Comparador, CadaFalloBajaUnLugarYNueveSoloCuenta) {
    std::string signos = "1X21X21X21X21X";
    for (int fallos = 1; fallos <= 5; ++fallos) {
        char& signo = signos[static_cast<std::size_t>(fallos * 2)];
        signo = signo == '2' ? '1' : '2';
        const TablaAciertos tabla = Una(signos, "1M");
        const auto lugar = static_cast<std::size_t>(fallos + 1);
        EXPECT_EQ(tabla.cuentas[lugar], 1) << fallos;
        EXPECT_EQ(std::accumulate(tabla.cuentas.begin(), tabla.cuentas.end(), 0), 1);
        if (lugar < kLugaresConLista) {
            EXPECT_EQ(tabla.listas[lugar].size(), 1U);
        }
    }
    const TablaAciertos nueve = Una(signos, "1M");
    EXPECT_EQ(nueve.cuentas[6], 1);
    EXPECT_TRUE(std::all_of(nueve.listas.begin(), nueve.listas.end(),
                            [](const auto& l) { return l.empty(); }));
}

TEST(Comparador, SeisOMasFallosNoCuentanEnNingunSitio) {
    for (const std::string signos : {"222X21X21X21X2", "2221111111111X", "XXXXXXXXXXXXXX"}) {
        TablaAciertos tabla = Una(signos, "1M");
        EXPECT_EQ(tabla.cuentas, (std::array<std::int32_t, 7>{})) << signos;
        EXPECT_FALSE(HayLocalizadas(tabla));
    }
}

TEST(Comparador, AvanceConCeroFallosEnCincoConocidosCuentaDeCatorceANueve) {
    const std::string ganadora = "1X21X         ";
    TablaAciertos tabla;
    Comparador(ganadora, true).AnotarAvance("1X21X222222222", tabla);
    EXPECT_EQ(tabla.cuentas, (std::array<std::int32_t, 7>{0, 1, 1, 1, 1, 1, 1}));
    TablaAciertos conDos;
    Comparador(ganadora, true).AnotarAvance("1X2XX222222222", conDos);
    EXPECT_EQ(conDos.cuentas, (std::array<std::int32_t, 7>{0, 0, 1, 1, 1, 1, 1}));
}

TEST(Comparador, LasCuentasSeMuestranConMillaresYUnBlanco) {
    TablaAciertos tabla;
    tabla.cuentas[6] = 1234567;
    const auto textos = TextosCuentas(tabla);
    EXPECT_EQ(textos[0], "0 ");
    EXPECT_EQ(textos[6], "1.234.567 ");
}

// Columnas y ganadoras al azar, con algún carácter que no es signo (un archivo dañado, un
// partido sin saber): la cuenta por palabras da lo mismo que la cuenta a mano.
TEST(Comparador, IgualQueLaCuentaAManoEnColumnasAlAzar) {
    std::mt19937 azar(4303);
    const std::string caracteres = "1X2 x";
    const auto signo = [&](int raro) {
        const int n = static_cast<int>(azar() % 100);
        return n < raro ? caracteres[3 + azar() % 2] : caracteres[azar() % 3];
    };
    for (int ronda = 0; ronda < 200; ++ronda) {
        std::string ganadora;
        for (int p = 0; p < 14; ++p) ganadora += signo(ronda % 4 == 0 ? 15 : 0);
        if (ronda % 5 != 0) ganadora += std::string{"012M"[azar() % 4], "012M"[azar() % 4]};
        const Comparador rapido(ganadora);
        const Comparador avance(ganadora, true);
        TablaAciertos tabla, literal, tablaAvance, literalAvance;
        for (std::int32_t n = 1; n <= 2000; ++n) {
            // Cerca de la ganadora para que haya de todo: de 0 a 8 cambios.
            std::string columna = ganadora.substr(0, 14);
            for (int c = static_cast<int>(azar() % 9); c > 0; --c) {
                columna[azar() % 14] = signo(3);
            }
            const std::string pleno{"012M"[azar() % 4], "012M"[azar() % 2]};
            rapido.Anotar(columna.data(), pleno, n, tabla);
            pruebas::AnotarLiteral(columna, pleno, ganadora, n, literal);
            avance.AnotarAvance(columna.data(), tablaAvance);
            pruebas::AnotarAvanceLiteral(columna, ganadora, literalAvance);
        }
        ASSERT_EQ(tabla.cuentas, literal.cuentas) << ganadora;
        ASSERT_EQ(tabla.listas, literal.listas) << ganadora;
        ASSERT_EQ(tablaAvance.cuentas, literalAvance.cuentas) << ganadora;
    }
}

TEST(ColumnasLocalizadas, BoletoYColumnaDeUnNumero) {
    EXPECT_EQ(BoletoDeColumna(8), 1);
    EXPECT_EQ(LugarEnBoleto(8), 8);
    EXPECT_EQ(BoletoDeColumna(9), 2);
    EXPECT_EQ(LugarEnBoleto(9), 1);
    EXPECT_EQ(BoletoDeColumna(1), 1);
    EXPECT_EQ(LugarEnBoleto(1), 1);
}

TEST(ColumnasLocalizadas, FilasDeQuinceACatorceYPorNumero) {
    TablaAciertos tabla;
    tabla.listas[0] = {9};
    tabla.listas[1] = {9, 8};
    tabla.listas[2] = {8001};
    tabla.listas[5] = {3};
    const std::vector<FilaLocalizada> esperadas = {{"2", "1", "15"},
                                                   {"1", "8", "14"},
                                                   {"2", "1", "14"},
                                                   {"1.001", "1", "13"},
                                                   {"1", "3", "10"}};
    EXPECT_EQ(FilasLocalizadas(tabla), esperadas);
}

}  // namespace
}  // namespace quinteva::outputs
