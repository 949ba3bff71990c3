#include "engine/guarantee_check.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quinteva::engine {
namespace {

RegistroColumna R(const std::string& signos, char estado = kActiva) {
    return {ColumnaDeTexto(signos), {'1', '0'}, estado};
}

// Las 9 columnas de dos triples (partidos 1 y 2) con el resto a "1".
std::vector<RegistroColumna> DosTriples() {
    std::vector<RegistroColumna> todas;
    for (const char a : kSignos) {
        for (const char b : kSignos) todas.push_back(R(std::string{a, b} + std::string(12, '1')));
    }
    return todas;
}

TEST(VerificarGarantia, TresColumnasCubrenDosTriplesAlTrece) {
    const auto generadas = DosTriples();
    const std::string resto(12, '1');
    const std::vector<RegistroColumna> reducidas = {R("11" + resto), R("XX" + resto),
                                                    R("22" + resto)};
    const Verificacion v = VerificarGarantia(generadas, reducidas, RadioDelNivel(13));
    EXPECT_TRUE(v.Cumple());
    EXPECT_EQ(v.generadas, 9);
    EXPECT_EQ(v.reducidas, 3);
}

TEST(VerificarGarantia, DiceLaPrimeraColumnaSinCubrir) {
    const auto generadas = DosTriples();
    const std::string resto(12, '1');
    // Sin "22", solo queda sin cubrir ella misma (registro 9): "2X", "X2", "12" y "21" están a un
    // signo de "XX" o de "11".
    const std::vector<RegistroColumna> reducidas = {R("11" + resto), R("XX" + resto)};
    const Verificacion v = VerificarGarantia(generadas, reducidas, 1);
    EXPECT_FALSE(v.Cumple());
    EXPECT_EQ(v.registro, 9);
    EXPECT_EQ(TextoDeColumna(v.columna), "22" + resto);
    // Al 12 (radio 2) basta una sola columna para dos triples.
    const std::vector<RegistroColumna> una = {R("11" + resto)};
    EXPECT_TRUE(VerificarGarantia(generadas, una, 2).Cumple());
}

TEST(VerificarGarantia, LasEliminadasNoCuentanNiCubren) {
    auto generadas = DosTriples();
    const std::string resto(12, '1');
    // Una reducida eliminada no cubre; una generada eliminada no hace falta cubrirla.
    const std::vector<RegistroColumna> reducidas = {R("11" + resto), R("XX" + resto),
                                                    R("22" + resto, kEliminada)};
    EXPECT_FALSE(VerificarGarantia(generadas, reducidas, 1).Cumple());
    generadas[8].estado = kEliminada;
    const Verificacion v = VerificarGarantia(generadas, reducidas, 1);
    EXPECT_TRUE(v.Cumple());
    EXPECT_EQ(v.generadas, 8);
    EXPECT_EQ(v.reducidas, 2);
    // Una generada que no es una columna de signos no está cubierta.
    generadas.push_back(R("1 " + resto));
    EXPECT_EQ(VerificarGarantia(generadas, reducidas, 1).registro, 10);
}

TEST(VerificarGarantia, IgualQueMedirLaDistanciaAMano) {
    std::mt19937 motor(14);
    const auto columna = [&] {
        std::string s;
        for (int p = 0; p < kPartidos; ++p) s += p < 5 ? kSignos[motor() % 3] : '1';
        return R(s);
    };
    for (int vuelta = 0; vuelta < 200; ++vuelta) {
        std::vector<RegistroColumna> generadas(1 + motor() % 40);
        std::vector<RegistroColumna> reducidas(1 + motor() % 6);
        for (auto& g : generadas) g = columna();
        for (auto& r : reducidas) r = columna();
        const int radio = 1 + static_cast<int>(motor() % 3);
        std::optional<std::int32_t> primera;
        for (std::size_t i = 0; i < generadas.size() && !primera; ++i) {
            bool cubierta = false;
            for (const auto& r : reducidas) {
                int distintos = 0;
                for (std::size_t p = 0; p < kPartidos; ++p) {
                    distintos += generadas[i].columna[p] != r.columna[p] ? 1 : 0;
                }
                cubierta = cubierta || distintos <= radio;
            }
            if (!cubierta) primera = static_cast<std::int32_t>(i) + 1;
        }
        EXPECT_EQ(VerificarGarantia(generadas, reducidas, radio).registro, primera) << vuelta;
    }
}

}  // namespace
}  // namespace quinteva::engine
