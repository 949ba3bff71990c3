// Firma de la generación: para bases y condiciones fijas, la cuenta de columnas escritas y una
// suma de comprobación (FNV-1a de 64 bits de "Cmb.tmp") iguales a las guardadas, que se
// calcularon una vez con el filtro literal.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/progress.h"
#include "bench/generation_cases.h"
#include "engine/generation.h"
#include "tests/engine/literal_filter.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::engine {
namespace {

struct Firma {
    std::int64_t columnas;
    std::uint64_t suma;
    friend bool operator==(const Firma&, const Firma&) = default;
};

std::uint64_t Fnv(const std::string& bytes) {
    std::uint64_t h = 1469598103934665603ULL;
    for (unsigned char c : bytes) h = (h ^ c) * 1099511628211ULL;
    return h;
}

struct Caso {
    const char* base;
    int condiciones;  // 0 ninguna, 1 todas las familias, 2 todas con tolerancias a 0
    Firma esperada;
};

SetCondiciones CondicionesDe(const QuinielaBase& base, int cual) {
    if (cual == 0) return CondicionesIniciales(base);
    SetCondiciones c = medicion::TodasLasFamilias(base);
    if (cual == 2) {
        c.toleranciaGrupos = 0;
        c.toleranciaGruposAc = 0;
        c.casilla[kCasillaParejas] = false;
    }
    return c;
}

Firma Generada(const QuinielaBase& base, const SetCondiciones& c) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion comb;
    comb.base = base;
    comb.pleno = base.Pleno();
    comb.condiciones = c;
    base::SinProgreso progreso;
    Generar(comb, carpeta.Ruta(), progreso, ajustes);
    std::ifstream f(carpeta / "Cmb.tmp", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    return {comb.totalGeneradas, Fnv(bytes)};
}

// La misma firma con el recorrido literal: todas las columnas en orden y el filtro literal.
Firma Literal(const QuinielaBase& base, const SetCondiciones& c) {
    std::string bytes, col(14, ' ');
    std::int64_t n = 0;
    Rechazos r;
    const bool filtrar = NumeroDeCondiciones(c) > 0;
    auto recorrer = [&](auto&& self, int p) -> void {
        if (p == 14) {
            if (filtrar && !pruebas::CondicionarLiteral(col, c, r)) return;
            bytes += col + TextoDePleno(base.Pleno()) + "0";
            ++n;
            return;
        }
        for (int k = 0; k < 3; ++k) {
            if (!base.Elegido(p + 1, k)) continue;
            col[static_cast<std::size_t>(p)] = kSignos[static_cast<std::size_t>(k)];
            self(self, p + 1);
        }
    };
    recorrer(recorrer, 0);
    return {n, Fnv(bytes)};
}

const Caso kCasos[] = {
    {"1X2 1X2 1X2 1X2 1X2 1X2 1X 1X 12 X2 1 X 2 1", 0, {11664, 0x1f6ed116e247ac13ULL}},
    {"1X2 1X2 1X2 1X2 1X2 1X2 1X 1X 12 X2 1 X 2 1", 1, {5080, 0xb2e5c9b8860c53ccULL}},
    {"1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 12 X2 1X 1X2 2 1", 2, {49702, 0xb882a7b454396a63ULL}},
};

TEST(FirmaGeneracion, IgualALaGuardada) {
    for (const Caso& caso : kCasos) {
        const QuinielaBase base = medicion::BaseDe(caso.base);
        const Firma f = Generada(base, CondicionesDe(base, caso.condiciones));
        EXPECT_EQ(f.columnas, caso.esperada.columnas) << caso.base << " / " << caso.condiciones;
        EXPECT_EQ(f.suma, caso.esperada.suma)
            << caso.base << " / " << caso.condiciones << std::hex << " 0x" << f.suma;
    }
}

// Cómo se obtuvieron los valores guardados: el recorrido literal da lo mismo.
TEST(FirmaGeneracion, LaGuardadaEsLaDelFiltroLiteral) {
    for (const Caso& caso : kCasos) {
        const QuinielaBase base = medicion::BaseDe(caso.base);
        const Firma f = Literal(base, CondicionesDe(base, caso.condiciones));
        EXPECT_EQ(f, caso.esperada) << caso.base << " / " << caso.condiciones << " " << f.columnas
                                    << std::hex << " 0x" << f.suma;
    }
}

}  // namespace
}  // namespace quinteva::engine
