#include "builders/very_reduced.h"

#include <gtest/gtest.h>

#include "base/progress.h"
#include "base/record_files.h"
#include "builders/reduce.h"
#include "builders/reduction_display.h"
#include "engine/conditions.h"
#include "tests/builders/development.h"
#include "tests/support/scripted_dialog.h"

namespace quinteva::builders {
namespace {

using pruebas::DialogoGuionado;

// La base de una forma: los triples primero, luego los dobles "1X" y "1" en lo demás.
engine::QuinielaBase Base(int triples, int dobles) {
    return pruebas::Desarrollo(triples, dobles).combinacion.base;
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

// "Generar" de la muy reducida con cada fila de la tabla y cada nivel que tiene sistema: salen
// exactamente las columnas que dice la tabla, y cubren como dice el nivel.
TEST(MuyReducida, LasSetentaYTresFilasDePuntaAPunta) {
    for (const auto& fila : TablaReducciones()) {
        pruebas::Desarrollo d(fila.triples, fila.dobles);
        const auto generadas = base::LeerTodos<engine::RegistroColumna>(d.carpeta / "Cmb.tmp");
        for (int nivel = 0; nivel < 3; ++nivel) {
            std::string cifra;
            for (char ch : fila.cifras[static_cast<std::size_t>(nivel)].texto) {
                if (ch >= '0' && ch <= '9') cifra.push_back(ch);
            }
            if (cifra.empty()) continue;
            base::SinProgreso progreso;
            ClaseBase clases{};
            Reducir(d.combinacion, d.carpeta.Ruta(), nivel, std::nullopt, clases, progreso,
                    d.ajustes);
            EXPECT_EQ(d.combinacion.totalReducidas, std::stoi(cifra))
                << fila.etiqueta << " al " << 13 - nivel;
            const auto reducidas = base::LeerTodos<engine::RegistroColumna>(d.carpeta / "Red.tmp");
            EXPECT_TRUE(pruebas::Cubre(reducidas, generadas, nivel + 1))
                << fila.etiqueta << " al " << 13 - nivel;
        }
    }
}

}  // namespace
}  // namespace quinteva::builders
