#include "engine/optimized_reduction.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "base/record_files.h"
#include "engine/guarantee_check.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::engine {
namespace {

using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;

class ProgresoQueDetiene final : public base::Progreso {
  public:
    void Avance(std::int64_t, std::int64_t) override {}
    bool Detenido() const override { return true; }
};

struct Caso {
    CarpetaTemporal carpeta;
    Combinacion combinacion;
    AjustesEnMemoria ajustes;
    std::vector<RegistroColumna> generadas;

    void Anadir(const std::string& columna, char estado = kActiva) {
        generadas.push_back({ColumnaDeTexto(columna), PlenoDeTexto("00"), estado});
    }
    void Escribir() {
        combinacion.pleno = PlenoDeTexto("1M");
        base::ArchivoDe<RegistroColumna> cmb(carpeta / std::string(kCmbTmp));
        for (const auto& r : generadas) cmb.Anadir(r);
        combinacion.totalGeneradas = static_cast<std::int32_t>(generadas.size());
    }
    std::vector<RegistroColumna> Reducidas() const {
        std::vector<RegistroColumna> r;
        const base::ArchivoDe<RegistroColumna> red(carpeta / std::string(kRedTmp));
        for (std::int32_t n = 1; n <= red.Cuenta(); ++n) r.push_back(red.Leer(n));
        return r;
    }
    ResultadoOptimizada Reducir(int distancia, base::Progreso& progreso) {
        return ReducirOptimizado(combinacion, carpeta.Ruta(), distancia, {10.0, 3, 5}, progreso,
                                 ajustes);
    }
    std::int32_t Voraz(int distancia) {
        base::SinProgreso progreso;
        Combinacion otra = combinacion;
        return ReducirConCondiciones(otra, carpeta.Ruta(), distancia, progreso, ajustes).reducidas;
    }
};

// Las columnas de siete triples que pasan un sorteo, en el orden del desarrollo.
void SieteTriples(Caso& caso, std::mt19937& azar) {
    for (int n = 0; n < 2187; ++n) {
        std::string columna = "1111111";
        for (int p = 6, resto = n; p >= 0; --p, resto /= 3) columna += "1X2"[resto % 3];
        if (azar() % 3 != 0) caso.Anadir(columna);
    }
}

TEST(ReduccionOptimizadaDeArchivos, CubreLasActivasConMenosQueLaVorazYLasCuentasDeSiempre) {
    for (int distancia = 1; distancia <= 3; ++distancia) {
        std::mt19937 azar(static_cast<unsigned>(distancia));
        Caso caso;
        SieteTriples(caso, azar);
        caso.Escribir();
        const std::int32_t voraz = caso.Voraz(distancia);
        base::SinProgreso progreso;
        const auto r = caso.Reducir(distancia, progreso);
        const auto reducidas = caso.Reducidas();
        EXPECT_EQ(r.voraz, voraz);
        EXPECT_LT(r.reduccion.reducidas, voraz);
        EXPECT_EQ(r.reduccion.reducidas, static_cast<std::int32_t>(reducidas.size()));
        EXPECT_TRUE(VerificarGarantia(caso.generadas, reducidas, distancia).Cumple());
        EXPECT_EQ(caso.combinacion.totalReducidas, r.reduccion.reducidas);
        EXPECT_EQ(caso.combinacion.activasReducidas, r.reduccion.reducidas);
        EXPECT_EQ(caso.combinacion.panel.reducidas[static_cast<std::size_t>(distancia - 1)],
                  r.reduccion.reducidas);
        EXPECT_TRUE(caso.combinacion.panel.precio.has_value());
        // En el orden de "Cmb.tmp", con el PlenoBase y activas.
        std::size_t siguiente = 0;
        for (const auto& red : reducidas) {
            EXPECT_EQ(red.pleno, PlenoDeTexto("1M"));
            EXPECT_EQ(red.estado, kActiva);
            while (siguiente < caso.generadas.size() &&
                   caso.generadas[siguiente].columna != red.columna)
                ++siguiente;
            EXPECT_LT(siguiente, caso.generadas.size()) << TextoDeColumna(red.columna);
        }
    }
}

TEST(ReduccionOptimizadaDeArchivos, LasEliminadasNoSeQuedanYLasRepetidasCuentanUnaVez) {
    Caso caso;
    caso.Anadir("11111111111111", kEliminada);
    caso.Anadir("1111111111111X");
    caso.Anadir("1111111111111X");
    caso.Anadir("11111111111112");
    caso.Escribir();
    base::SinProgreso progreso;
    const auto r = caso.Reducir(1, progreso);
    ASSERT_EQ(r.reduccion.reducidas, 1);
    const auto reducidas = caso.Reducidas();
    EXPECT_NE(TextoDeColumna(reducidas[0].columna), "11111111111111");
    EXPECT_EQ(r.voraz, 1);
}

TEST(ReduccionOptimizadaDeArchivos, UnaColumnaQueNoEsDeSignosSeQuedaTalCual) {
    Caso caso;
    caso.Anadir("1111111111111X");
    caso.Anadir("111111111111 1");
    caso.Anadir("11111111111112");
    caso.Escribir();
    base::SinProgreso progreso;
    const auto r = caso.Reducir(1, progreso);
    const auto reducidas = caso.Reducidas();
    ASSERT_EQ(r.reduccion.reducidas, 2);
    EXPECT_TRUE(TextoDeColumna(reducidas[0].columna) == "111111111111 1" ||
                TextoDeColumna(reducidas[1].columna) == "111111111111 1");
    // Las de signos quedan cubiertas (para el verificador, la otra nunca lo está).
    const std::vector<RegistroColumna> deSignos = {caso.generadas[0], caso.generadas[2]};
    EXPECT_TRUE(VerificarGarantia(deSignos, reducidas, 1).Cumple());
}

TEST(ReduccionOptimizadaDeArchivos, ConDetenerSeQuedaUnRecubrimientoQueCubre) {
    std::mt19937 azar(9);
    Caso caso;
    SieteTriples(caso, azar);
    caso.Escribir();
    ProgresoQueDetiene detiene;
    const auto r = caso.Reducir(2, detiene);
    const auto reducidas = caso.Reducidas();
    EXPECT_EQ(r.reduccion.reducidas, static_cast<std::int32_t>(reducidas.size()));
    EXPECT_LE(r.reduccion.reducidas, r.voraz);
    EXPECT_TRUE(VerificarGarantia(caso.generadas, reducidas, 2).Cumple());
}

TEST(ReduccionOptimizadaDeArchivos, ElAvisoDiceCuantasAhorra) {
    ResultadoOptimizada r;
    r.reduccion.reducidas = 1234;
    r.voraz = 2500;
    EXPECT_EQ(MensajeOptimizada(r),
              "Reducción optimizada: 1.234 columnas, 1.266 menos que la reducción sin optimizar "
              "(2.500).");
}

}  // namespace
}  // namespace quinteva::engine
