#include "builders/very_reduced.h"

#include <gtest/gtest.h>

#include "base/progress.h"
#include "base/record_files.h"
#include "builders/reduce.h"
#include "builders/reduction_display.h"
#include "engine/combination.h"
#include "engine/conditions.h"
#include "engine/generation.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::builders {
namespace {

using pruebas::DialogoGuionado;

// Una base con tantos triples y dobles, los triples primero, y "1" en lo demás.
engine::QuinielaBase Base(int triples, int dobles) {
    engine::QuinielaBase base;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) base.Elegir(p, s, false);
        base.Elegir(p, 0, true);
        if (p <= triples + dobles) base.Elegir(p, 1, true);
        if (p <= triples) base.Elegir(p, 2, true);
    }
    return base;
}

TEST(MuyReducida, CadaFilaDeLaTablaSeEncuentraPorLaFormaDeLaBase) {
    const auto& filas = TablaReducciones();
    ASSERT_EQ(filas.size(), 73U);
    for (std::size_t f = 0; f < filas.size(); ++f) {
        EXPECT_EQ(FilaDeLaBase(Base(filas[f].triples, filas[f].dobles)), f) << filas[f].etiqueta;
    }
}

TEST(MuyReducida, SinDoblesNiTriplesOConCuatroDoblesNoHayFila) {
    EXPECT_FALSE(FilaDeLaBase(Base(0, 0)));
    EXPECT_FALSE(FilaDeLaBase(Base(0, 4)));
}

TEST(MuyReducida, ConCondicionesSeRehusa) {
    engine::Combinacion c;
    c.base = Base(0, 3);
    c.condiciones = engine::CondicionesIniciales(c.base);
    DialogoGuionado dialogo;
    EXPECT_TRUE(EmpezarMuyReducida(c, dialogo));
    c.condiciones.casilla[0] = true;
    ASSERT_GT(engine::NumeroDeCondiciones(c.condiciones), 0);
    EXPECT_FALSE(EmpezarMuyReducida(c, dialogo));
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kMsgHayCondiciones)});
}

TEST(MuyReducida, CienMilYCuarentaMilNoCuentanComoPorEncima) {
    DialogoGuionado dialogo;
    EXPECT_TRUE(AvisarPorColumnas(40000, dialogo));
    EXPECT_TRUE(dialogo.Registro().empty());
    EXPECT_TRUE(AvisarPorColumnas(40001, dialogo));
    EXPECT_TRUE(AvisarPorColumnas(100000, dialogo));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>(2, std::string(kMsgCiertoTiempo))));
    dialogo.Responder(base::Respuesta::No).Responder(base::Respuesta::Si);
    EXPECT_FALSE(AvisarPorColumnas(100001, dialogo));
    EXPECT_TRUE(AvisarPorColumnas(177147, dialogo));
    EXPECT_EQ(dialogo.Textos().back(), kPreguntaProcesoLargo);
    EXPECT_EQ(dialogo.PorDefecto(), (std::vector{base::Respuesta::Si, base::Respuesta::Si}));
}

// El verificador: cada columna generada tiene alguna guardada a no más de 14 - nivel signos.
bool Cubre(const std::vector<engine::RegistroColumna>& generadas,
           const std::vector<engine::RegistroColumna>& guardadas, int distancia) {
    for (const auto& g : generadas) {
        bool cubierta = false;
        for (const auto& k : guardadas) {
            int distintos = 0;
            for (std::size_t p = 0; p < g.columna.size() && distintos <= distancia; ++p) {
                distintos += g.columna[p] != k.columna[p] ? 1 : 0;
            }
            if (distintos <= distancia) {
                cubierta = true;
                break;
            }
        }
        if (!cubierta) return false;
    }
    return true;
}

// "Generar" de la muy reducida con cada fila de la tabla y cada nivel que tiene sistema: salen
// exactamente las columnas que dice la tabla, y cubren como dice el nivel.
TEST(MuyReducida, LasSetentaYTresFilasDePuntaAPunta) {
    pruebas::AjustesEnMemoria ajustes;
    int comprobadas = 0;
    for (const auto& fila : TablaReducciones()) {
        for (int nivel = 0; nivel < 3; ++nivel) {
            std::string cifra;
            for (char ch : fila.cifras[static_cast<std::size_t>(nivel)].texto) {
                if (ch >= '0' && ch <= '9') cifra.push_back(ch);
            }
            if (cifra.empty()) continue;
            pruebas::CarpetaTemporal carpeta;
            engine::Combinacion c;
            c.base = Base(fila.triples, fila.dobles);
            c.base.PonerGoles("1", "0");
            c.pleno = c.base.Pleno();
            c.condiciones = engine::CondicionesIniciales(c.base);
            DialogoGuionado dialogo;
            dialogo.Responder(base::Respuesta::Si);
            ASSERT_TRUE(EmpezarMuyReducida(c, dialogo));
            base::SinProgreso progreso;
            engine::Generar(c, carpeta.Ruta(), progreso, ajustes);
            ClaseBase clases{};
            Reducir(c, carpeta.Ruta(), nivel, std::nullopt, clases, progreso, ajustes);
            EXPECT_EQ(c.totalReducidas, std::stoi(cifra)) << fila.etiqueta << " al " << 13 - nivel;
            const auto generadas = base::LeerTodos<engine::RegistroColumna>(carpeta / "Cmb.tmp");
            const auto guardadas = base::LeerTodos<engine::RegistroColumna>(carpeta / "Red.tmp");
            if (generadas.size() * guardadas.size() <= 3000000) {
                EXPECT_TRUE(Cubre(generadas, guardadas, nivel + 1)) << fila.etiqueta;
                ++comprobadas;
            }
        }
    }
    EXPECT_GT(comprobadas, 100);
}

}  // namespace
}  // namespace quinteva::builders
