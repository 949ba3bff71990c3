// Firmas de lo que se mide: para bases y condiciones fijas, la cuenta de columnas escritas y una
// suma de comprobación (FNV-1a de 64 bits del archivo) iguales a las guardadas, que se calcularon
// una vez con los algoritmos literales: el filtro para "Cmb.tmp" y el recubrimiento por rondas
// para "Red.tmp".
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/progress.h"
#include "bench/generation_cases.h"
#include "engine/generation.h"
#include "engine/reduction.h"
#include "tests/engine/literal_filter.h"
#include "tests/support/file_bytes.h"
#include "tests/support/fnv.h"
#include "tests/support/literal_cover.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::engine {
namespace {

using pruebas::Fnv;

struct Firma {
    std::int64_t columnas;
    std::uint64_t suma;
    friend bool operator==(const Firma&, const Firma&) = default;
};

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

// Una Combinación generada en su carpeta.
struct Generacion {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion comb;

    Generacion(const QuinielaBase& base, const SetCondiciones& c) {
        comb.base = base;
        comb.pleno = base.Pleno();
        comb.condiciones = c;
        base::SinProgreso progreso;
        Generar(comb, carpeta.Ruta(), progreso, ajustes);
    }
};

Firma Generada(const QuinielaBase& base, const SetCondiciones& c) {
    const Generacion g(base, c);
    return {g.comb.totalGeneradas, Fnv(pruebas::BytesDeArchivo(g.carpeta / "Cmb.tmp"))};
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

struct CasoReduccion {
    int caso;  // en kCasos
    int distancia;
    Firma esperada;
};

const CasoReduccion kReducciones[] = {
    {0, 1, {2920, 0xca883acb0ccaa7c7ULL}}, {0, 2, {364, 0xee6f3136527fc119ULL}},
    {0, 3, {108, 0xd53af055e9457befULL}},  {1, 1, {1314, 0x3ad3251201f423b6ULL}},
    {1, 2, {239, 0x8a6dae284d61a88eULL}},  {1, 3, {79, 0x6c66a6b90bc66f6bULL}},
};

Generacion GeneracionDe(const CasoReduccion& r) {
    const Caso& caso = kCasos[r.caso];
    const QuinielaBase base = medicion::BaseDe(caso.base);
    return Generacion(base, CondicionesDe(base, caso.condiciones));
}

TEST(FirmaReduccion, IgualALaGuardada) {
    for (const CasoReduccion& r : kReducciones) {
        Generacion g = GeneracionDe(r);
        base::SinProgreso progreso;
        const auto n =
            ReducirConCondiciones(g.comb, g.carpeta.Ruta(), r.distancia, progreso, g.ajustes)
                .reducidas;
        const Firma f{n, Fnv(pruebas::BytesDeArchivo(g.carpeta / "Red.tmp"))};
        EXPECT_EQ(f, r.esperada) << r.caso << " al " << 14 - r.distancia << " " << f.columnas
                                 << std::hex << " 0x" << f.suma;
    }
}

// Cómo se obtuvieron los valores guardados: el recubrimiento por rondas da lo mismo.
TEST(FirmaReduccion, LaGuardadaEsLaDelRecubrimientoPorRondas) {
    for (const CasoReduccion& r : kReducciones) {
        const Generacion g = GeneracionDe(r);
        const std::string cmb = pruebas::BytesDeArchivo(g.carpeta / "Cmb.tmp");
        std::vector<std::string> columnas;
        for (std::size_t i = 0; i + RegistroColumna::kLongitud <= cmb.size();
             i += RegistroColumna::kLongitud) {
            columnas.push_back(cmb.substr(i, kPartidos));
        }
        std::string red;
        for (const auto& c : pruebas::ReducirPorRondas(columnas, r.distancia)) {
            red += c + TextoDePleno(g.comb.pleno) + "0";
        }
        const Firma f{static_cast<std::int64_t>(red.size() / RegistroColumna::kLongitud), Fnv(red)};
        EXPECT_EQ(f, r.esperada) << r.caso << " al " << 14 - r.distancia << " " << f.columnas
                                 << std::hex << " 0x" << f.suma;
    }
}

}  // namespace
}  // namespace quinteva::engine
