#include "engine/filter.h"

#include <gtest/gtest.h>

#include "tests/engine/literal_filter.h"
#include "tests/engine/random_conditions.h"

namespace quinteva::engine {
namespace {

using pruebas::CondicionarLiteral;

QuinielaBase BaseTriples() {
    QuinielaBase base;
    for (int p = 1; p <= kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) base.Elegir(p, s, true);
    }
    base.PonerGoles("0", "0");
    return base;
}

bool Pasa(const SetCondiciones& c, std::string_view col, Rechazos* r = nullptr) {
    Rechazos propio;
    return Filtro(c).Condicionar(ColumnaDeTexto(col), r ? *r : propio);
}

// Veredicto y todos los contadores iguales a los del algoritmo literal.
TEST(Filtro, DiferencialContraElAlgoritmoLiteral) {
    pruebas::Sorteo s(20240607);
    constexpr int kConjuntos = 220;
    constexpr int kColumnas = 5000;
    Rechazos totales;
    long aceptadas = 0;
    for (int conjunto = 0; conjunto < kConjuntos; ++conjunto) {
        const QuinielaBase base = pruebas::BaseAlAzar(s);
        const SetCondiciones c = pruebas::CondicionesAlAzar(s, base);
        const Filtro filtro(c);
        Rechazos rapido, literal;
        for (int i = 0; i < kColumnas; ++i) {
            std::string col;
            if (s.Moneda(0.8)) {
                col = pruebas::ColumnaDeBase(s, base);
            } else {
                for (int p = 0; p < kPartidos; ++p)
                    col += kSignos[static_cast<std::size_t>(s.Entre(0, 2))];
            }
            const bool a = filtro.Condicionar(ColumnaDeTexto(col), rapido);
            const bool b = CondicionarLiteral(col, c, literal);
            ASSERT_EQ(a, b) << "conjunto " << conjunto << " columna " << col;
            aceptadas += a ? 1 : 0;
        }
        ASSERT_EQ(rapido, literal) << "conjunto " << conjunto;
        for (std::size_t k = 0; k < 9; ++k) totales.porCondicion[k] += rapido.porCondicion[k];
        for (std::size_t g = 0; g < 50; ++g) {
            totales.grupo[g] += rapido.grupo[g];
            totales.grupoAciertos[g] += rapido.grupoAciertos[g];
        }
        totales.tolGrupos += rapido.tolGrupos;
        totales.tolGruposAciertos += rapido.tolGruposAciertos;
    }
    // Cada contador ha rechazado algo: la prueba recorre todas las familias.
    for (std::size_t k = 0; k < 9; ++k) EXPECT_GT(totales.porCondicion[k], 0) << "familia " << k;
    long grupos = 0, gruposAc = 0;
    for (std::size_t g = 0; g < 50; ++g) {
        grupos += totales.grupo[g];
        gruposAc += totales.grupoAciertos[g];
    }
    EXPECT_GT(grupos, 0);
    EXPECT_GT(gruposAc, 0);
    EXPECT_GT(totales.tolGrupos, 0);
    EXPECT_GT(totales.tolGruposAciertos, 0);
    EXPECT_GT(aceptadas, 0);
}

// Una sola familia activa cada vez: las últimas pruebas del orden también rechazan a menudo.
TEST(Filtro, DiferencialFamiliaPorFamilia) {
    pruebas::Sorteo s(77);
    for (int conjunto = 0; conjunto < 220; ++conjunto) {
        const QuinielaBase base = pruebas::BaseAlAzar(s);
        SetCondiciones c = pruebas::CondicionesAlAzar(s, base);
        const int sola = s.Entre(0, 12);
        c.casilla = {};
        if (sola < 11) c.casilla[static_cast<std::size_t>(sola)] = true;
        if (sola != 11) DesactivarGrupos(c);
        if (sola != 12) DesactivarGruposAc(c);
        if (c.casilla[kCasillaRepeticiones]) {
            for (std::size_t k = 0; k < 4; ++k)
                c.limiteRep[k] = static_cast<std::uint8_t>(s.Entre(0, 1));
        }
        const Filtro filtro(c);
        Rechazos rapido, literal;
        for (int i = 0; i < 2000; ++i) {
            std::string col;
            for (int p = 0; p < kPartidos; ++p)
                col += kSignos[static_cast<std::size_t>(s.Entre(0, 2))];
            ASSERT_EQ(filtro.Condicionar(ColumnaDeTexto(col), rapido),
                      CondicionarLiteral(col, c, literal))
                << "conjunto " << conjunto << " columna " << col;
        }
        ASSERT_EQ(rapido, literal) << "conjunto " << conjunto;
    }
}

// Las reglas de Repeticiones sobre todas las máscaras y largos, contra el recorrido literal.
TEST(Filtro, RepeticionesExhaustivas) {
    for (unsigned m = 0; m < (1U << kPartidos); ++m) {
        std::string unosEquis, unos;
        for (int p = 0; p < kPartidos; ++p) unosEquis += (m >> p & 1U) != 0 ? '1' : 'X';
        for (int largo = 0; largo <= 15; ++largo) {
            ASSERT_EQ(RepeticionesSigno(static_cast<std::uint16_t>(m), largo),
                      pruebas::RepeticionesLiteral(unosEquis, '1', largo, 99))
                << unosEquis << " largo " << largo;
        }
    }
}

TEST(Filtro, ElOrdenDecideElContador) {
    // Falla Interrupciones y Parejas: cuenta solo en Interrupciones.
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.casilla[kCasillaInterrupciones] = true;
    c.maxInter = 0;
    c.casilla[kCasillaParejas] = true;
    c.maxPareja[1] = 0;  // "1X"
    Rechazos r;
    EXPECT_FALSE(Pasa(c, "1X111111111111", &r));
    EXPECT_EQ(r.porCondicion[2], 1);
    EXPECT_EQ(r.porCondicion[4], 0);
}

TEST(Filtro, ToleranciaCeroYUnoDifierenEnLosContadores) {
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.grupos[3].activo = true;
    c.grupos[3].partidos[0] = true;
    c.grupos[3].max[kUno] = 0;
    c.ultimoGrupo = 3;
    Rechazos r0;
    EXPECT_FALSE(Pasa(c, "11111111111111", &r0));
    EXPECT_EQ(r0.grupo[3], 1);
    c.toleranciaGrupos = 1;
    Rechazos r1;
    EXPECT_TRUE(Pasa(c, "11111111111111", &r1));
    EXPECT_EQ(r1, Rechazos{});
    // Con dos Grupos fallados y tolerancia 1, el segundo rechaza y cuenta en la tolerancia.
    c.grupos[5] = c.grupos[3];
    c.ultimoGrupo = 5;
    Rechazos r2;
    EXPECT_FALSE(Pasa(c, "11111111111111", &r2));
    EXPECT_EQ(r2.tolGrupos, 1);
    EXPECT_EQ(r2.grupo[3] + r2.grupo[5], 0);
}

TEST(Filtro, ParejaSinLimiteSeSalta) {
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.casilla[kCasillaParejas] = true;
    c.minPareja[1] = 0;
    c.maxPareja[1] = 7;
    EXPECT_TRUE(Pasa(c, "1X1X1X1X1X1X1X"));  // siete "1X", y aunque fueran más no se prueba
    c.maxPareja[1] = 6;
    EXPECT_FALSE(Pasa(c, "1X1X1X1X1X1X1X"));
    EXPECT_TRUE(Pasa(c, "1X1X1X1X1X1X11"));
}

TEST(Filtro, GrupoSinPartidosFallaConMinimo) {
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.grupos[0].activo = true;
    EXPECT_TRUE(Pasa(c, "12X12X12X12X12"));
    c.grupos[0].min[kEquis] = 1;
    Rechazos r;
    EXPECT_FALSE(Pasa(c, "12X12X12X12X12", &r));
    EXPECT_EQ(r.grupo[0], 1);
}

TEST(Filtro, RepeticionesDeUnosLargoDos) {
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.casilla[kCasillaRepeticiones] = true;
    c.longRep[kUno] = 2;
    c.limiteRep[kUno] = 1;
    EXPECT_FALSE(Pasa(c, "11X11XXXXXXXXX"));
    EXPECT_TRUE(Pasa(c, "111X11XXXXXXXX"));
    // La racha que acaba en el lugar 13 cuenta aunque el 14 sea igual.
    EXPECT_FALSE(Pasa(c, "11XXXXXXXXXX11"));
    EXPECT_EQ(RepeticionesSigno(0b11'0000'0000'0000, 2), 1);
    EXPECT_EQ(RepeticionesSigno(0b11'1000'0000'0000, 2), 1);  // 12 a 14: encontrada en 12
    EXPECT_EQ(RepeticionesSigno(0b11'1000'0000'0000, 1), 0);
}

TEST(Filtro, VariantesAlFinalNoSeCuentan) {
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.casilla[kCasillaRepeticiones] = true;
    c.longRep[kVariantes] = 2;
    c.limiteRep[kVariantes] = 1;
    EXPECT_TRUE(Pasa(c, "1XX1111111112X"));   // la del final no va seguida de "1"
    EXPECT_FALSE(Pasa(c, "1XX11111112X1X"));  // dos seguidas de "1"
}

TEST(Filtro, SeguidosDeDosEmpiezaEnCero) {
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.casilla[kCasillaSeguidos] = true;
    c.minSeg[kDos] = 1;
    EXPECT_FALSE(Pasa(c, "1X1X1X1X1X1X1X"));  // ningún "2": un mínimo de 1 lo rechaza
    c.minSeg[kDos] = 0;
    c.minSeg[kUno] = 1;
    EXPECT_TRUE(Pasa(c, "X2X2X2X2X2X2X2"));  // ningún "1": un mínimo de 1 pasa
    c.minSeg[kUno] = 2;
    EXPECT_FALSE(Pasa(c, "X2X2X2X2X2X2X2"));
}

TEST(Filtro, VariantesSeguidasTodoUnos) {
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.casilla[kCasillaSeguidos] = true;
    c.minSeg[kVariantes] = 1;
    EXPECT_FALSE(Pasa(c, "11111111111111"));
    EXPECT_TRUE(Pasa(c, "1111111111111X"));
}

}  // namespace
}  // namespace quinteva::engine
