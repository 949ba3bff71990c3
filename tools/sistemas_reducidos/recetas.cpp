#include "recetas.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "clases_laterales.h"
#include "golay.h"
#include "grupos.h"
#include "pesos.h"
#include "tabu.h"

namespace sistemas {
namespace {

// Pasos de la búsqueda tabú: sobran para cada código de la tabla; la semilla es siempre 1, así
// que la herramienta escribe siempre las mismas filas.
constexpr std::int64_t kPasos = 3'000'000;

Receta Filas(int triples, int dobles, std::vector<std::string> filas) {
    return [=] {
        Codigo c{Espacio(triples, dobles), {}};
        for (const auto& f : filas) c.filas.push_back(DeTexto(f));
        return c;
    };
}

// El código que dio una búsqueda; si no llegó a las filas pedidas, la herramienta se para.
Codigo Hallado(std::optional<Codigo> c, const std::string& busqueda, int filas) {
    if (!c) throw std::runtime_error(busqueda + " no llegó a " + std::to_string(filas) + " filas");
    return *std::move(c);
}

// Varios sistemas usan el mismo código de la búsqueda: se busca una vez.
Receta Tabu(int triples, int dobles, int radio, int filas) {
    return [=] {
        static std::map<std::array<int, 4>, Codigo> hallados;
        const std::array<int, 4> clave{triples, dobles, radio, filas};
        if (const auto h = hallados.find(clave); h != hallados.end()) return h->second;
        auto c = BuscarTabu(Espacio(triples, dobles), radio, filas, 1, kPasos);
        return hallados.emplace(clave, Hallado(std::move(c), "la búsqueda", filas)).first->second;
    };
}

// Matrices que se prueban, con la semilla 1, para una unión de clases laterales.
constexpr int kMatrices = 100000;

Receta ClasesLaterales(int triples, int dobles, int radio, FormaSindrome forma) {
    return [=] {
        auto c = BuscarClasesLaterales(Espacio(triples, dobles), radio, forma, 1, kMatrices);
        if (!c) throw std::runtime_error("ninguna matriz da un código con esas clases");
        return *c;
    };
}

// Unión de clases laterales del grupo que generan "generadores", hallada con la búsqueda con
// pesos: los generadores y la semilla son los que da "sistemas_reducidos --grupo".
Receta Pesos(int triples, int dobles, int radio, int filas, std::vector<std::string> generadores,
             std::uint64_t semilla) {
    return [=] {
        std::vector<Palabra> g;
        for (const auto& t : generadores) g.push_back(DeTexto(t));
        auto c = BuscarConPesos(Espacio(triples, dobles), radio, filas, g, semilla, kPasosPorGrupo);
        return Hallado(std::move(c), "la búsqueda con pesos", filas);
    };
}

// El síndrome de los dobles en el código de Hamming de 7 lugares: el doble i cuenta como el
// número i + 1 en binario (con seis dobles, el código acortado).
int SindromeDobles(const Palabra& p, int triples) {
    int sindrome = 0;
    for (std::size_t l = static_cast<std::size_t>(triples); l < p.size(); ++l) {
        if (p[l] == 1) sindrome ^= static_cast<int>(l) - triples + 1;
    }
    return sindrome;
}

// 5+7: los dobles en el código de Hamming o en su clase por el primer doble.
bool FilaDe5Mas7(const Palabra& p) { return SindromeDobles(p, 5) <= 1; }

// Los triples l, l + 1 y l + 2 suman 0 módulo 3: con el triple l - 1, los cuatro están en el
// Hamming ternario de 4 lugares o en dos de sus clases.
bool SumanCero(const Palabra& p, std::size_t l) { return (p[l] + p[l + 1] + p[l + 2]) % 3 == 0; }

// 6+6: los triples segundo a cuarto suman 0 y los dobles tienen síndrome 0, 1 o 7.
bool FilaDe6Mas6(const Palabra& p) {
    const int sindrome = SindromeDobles(p, 6);
    return SumanCero(p, 1) && (sindrome <= 1 || sindrome == 7);
}

// 9+2: los triples segundo a cuarto suman 0, y también los sexto a octavo.
bool FilaDe9Mas2(const Palabra& p) { return SumanCero(p, 1) && SumanCero(p, 5); }

// Búsqueda con pesos, con la semilla 1, sobre el espacio entero, en la que solo entran las filas
// que cumplen "permitida".
Receta Restringida(int triples, int dobles, int radio, int filas, Permitida permitida) {
    return [=] {
        auto c = BuscarConPesos(Espacio(triples, dobles), radio, filas, {}, 1, kPasosPorGrupo,
                                permitida);
        return Hallado(std::move(c), "la búsqueda con pesos", filas);
    };
}

Receta Entero(int triples, int dobles) {
    return [=] { return sistemas::EspacioEntero(Espacio(triples, dobles)); };
}

Receta GolayTernario() {
    return [] { return Golay(); };
}

Receta Suma(Receta a, Receta b) {
    return [=] { return SumaDirecta(a(), b()); };
}

// Suma amalgamada sobre el lugar la de a y lb de b, con los símbolos de b en ese lugar
// permutados (la permutación número "permutacion" en orden lexicográfico, o el cambio de "1" por
// "X" en un doble), completada si le quedan palabras sin cubrir y sin las filas que sobran.
Receta Amalgamada(Receta a, int la, Receta b, int lb, int permutacion, int radio) {
    return [=] {
        const Codigo ca = a();
        std::array<std::uint8_t, 3> cambio{0, 1, 2};
        if (la < ca.espacio.Triples()) {
            for (int i = 0; i < permutacion; ++i)
                std::next_permutation(cambio.begin(), cambio.end());
        } else if (permutacion == 1) {
            cambio = {1, 0, 2};
        }
        return Podar(Completar(Amalgama(ca, la, b(), lb, cambio), radio), radio);
    };
}

}  // namespace

std::vector<Sistema> Sistemas() {
    // clang-format off
    return {
        {13, 0, 3, 2, Filas(0, 3, {"1X1", "X1X"})},
        {13, 0, 6, 12, Tabu(0, 6, 1, 12)},
        {13, 0, 7, 16, Tabu(0, 7, 1, 16)},
        {13, 1, 2, 3, Filas(1, 2, {"21X", "1X1", "XX1"})},
        {13, 1, 4, 8, Tabu(1, 4, 1, 8)},
        {13, 1, 6, 24, Tabu(1, 6, 1, 24)},
        {13, 2, 2, 6, Tabu(2, 2, 1, 6)},
        {13, 2, 5, 36, Tabu(2, 5, 1, 36)},
        {13, 2, 7, 128, Suma(Entero(0, 1), Tabu(2, 6, 1, 64))},
        {13, 3, 0, 5, Filas(3, 0, {"1X2", "X11", "221", "X2X", "21X"})},
        {13, 3, 3, 24, Tabu(3, 3, 1, 24)},
        {13, 4, 0, 9, Tabu(4, 0, 1, 9)},
        {12, 0, 5, 2, Filas(0, 5, {"1X1X1", "X1X1X"})},
        {12, 0, 9, 16, Tabu(0, 9, 2, 16)},
        {12, 1, 4, 3, Tabu(1, 4, 2, 3)},
        {12, 1, 6, 8, Tabu(1, 6, 2, 8)},
        {12, 1, 8, 24, Tabu(1, 8, 2, 24)},
        {12, 2, 2, 3, Tabu(2, 2, 2, 3)},
        {12, 2, 3, 4, Tabu(2, 3, 2, 4)},
        {12, 2, 5, 12, Tabu(2, 5, 2, 12)},
        {12, 2, 6, 19, Tabu(2, 6, 2, 19)},
        {12, 3, 1, 3, Tabu(3, 1, 2, 3)},
        {12, 3, 4, 13, Tabu(3, 4, 2, 13)},
        {12, 3, 7, 60, Pesos(3, 7, 2, 60, {"111X1111XX"}, 5225314758959604220u)},
        {12, 4, 0, 3, Tabu(4, 0, 2, 3)},
        {12, 4, 3, 18, Tabu(4, 3, 2, 18)},
        {12, 4, 4, 24, Tabu(4, 4, 2, 24)},
        {12, 4, 7, 144, Suma(Tabu(0, 7, 1, 16), Tabu(4, 0, 1, 9))},
        {12, 6, 0, 18, Tabu(6, 0, 2, 18)},
        {12, 6, 2, 48, Tabu(6, 2, 2, 48)},
        {12, 6, 3, 72, Pesos(6, 3, 2, 72, {"111111XXX"}, 18180152953936235473u)},
        {12, 7, 0, 45, Tabu(7, 0, 2, 45)},
        {12, 8, 0, 81, Suma(Tabu(4, 0, 1, 9), Tabu(4, 0, 1, 9))},
        {12, 11, 0, 729, GolayTernario()},
        {11, 0, 7, 2, Filas(0, 7, {"X111111", "1XXXXXX"})},
        {11, 0, 9, 7, Tabu(0, 9, 3, 7)},
        {11, 0, 11, 16, Tabu(0, 11, 3, 16)},
        {11, 1, 6, 3, Tabu(1, 6, 3, 3)},
        {11, 1, 8, 8, Tabu(1, 8, 3, 8)},
        {11, 1, 10, 20, Tabu(1, 10, 3, 20)},
        {11, 2, 4, 3, Tabu(2, 4, 3, 3)},
        {11, 2, 6, 6, Amalgamada(Tabu(0, 3, 1, 2), 0, Tabu(2, 4, 2, 6), 2, 0, 3)},
        {11, 2, 8, 16, Tabu(2, 8, 3, 16)},
        {11, 2, 9, 24, Pesos(2, 9, 3, 24, {"11XXX1XXX11"}, 9517174514341305139u)},
        {11, 3, 3, 3, Tabu(3, 3, 3, 3)},
        {11, 3, 5, 8, Tabu(3, 5, 3, 8)},
        {11, 3, 6, 12, Tabu(3, 6, 3, 12)},
        {11, 3, 8, 32, ClasesLaterales(3, 8, 3, {3, 5, 4})},
        {11, 4, 1, 3, Tabu(4, 1, 3, 3)},
        {11, 4, 3, 6, Tabu(4, 3, 3, 6)},
        {11, 4, 5, 16, Tabu(4, 5, 3, 16)},
        {11, 4, 6, 24, Amalgamada(Tabu(0, 3, 1, 2), 0, Tabu(4, 4, 2, 24), 4, 0, 3)},
        {11, 4, 8, 68, Pesos(4, 8, 3, 68, {"1111XXX1111X"}, 709058728226756229u)},
        {11, 5, 0, 3, Tabu(5, 0, 3, 3)},
        {11, 5, 2, 7, Tabu(5, 2, 3, 7)},
        {11, 5, 3, 12, Tabu(5, 3, 3, 12)},
        {11, 5, 5, 32, Pesos(5, 5, 3, 32, {"11111XXXX1"}, 4282958424984823251u)},
        {11, 5, 7, 90, Restringida(5, 7, 3, 90, FilaDe5Mas7)},
        {11, 6, 0, 6, Tabu(6, 0, 3, 6)},
        {11, 6, 2, 16, Amalgamada(Tabu(3, 2, 1, 16), 1, Tabu(4, 0, 2, 3), 0, 0, 3)},
        {11, 6, 3, 24, Pesos(6, 3, 3, 24, {"121222111"}, 17833005350869717298u)},
        {11, 6, 5, 72, Amalgamada(Tabu(2, 2, 1, 6), 2, Tabu(4, 4, 2, 24), 4, 0, 3)},
        {11, 6, 6, 96, Restringida(6, 6, 3, 96, FilaDe6Mas6)},
        {11, 7, 0, 12, Tabu(7, 0, 3, 12)},
        {11, 7, 1, 18, Amalgamada(Tabu(4, 1, 1, 18), 0, Tabu(4, 0, 2, 3), 0, 0, 3)},
        {11, 7, 3, 54, Pesos(7, 3, 3, 54, {"XX2X12X111"}, 4454196104791885950u)},
        {11, 7, 5, 144, Amalgamada(Tabu(4, 1, 1, 18), 0, Tabu(4, 4, 2, 24), 0, 0, 3)},
        {11, 8, 0, 27, Suma(Tabu(4, 0, 1, 9), Filas(4, 0, {"1111", "XXXX", "2222"}))},
        {11, 8, 2, 72, Pesos(8, 2, 3, 72, {"1211X21X11"}, 9116698107030938076u)},
        {11, 8, 3, 108, Pesos(8, 3, 3, 108, {"1XXXX111111", "11111XXX111"}, 1)},
        {11, 9, 0, 54, Pesos(9, 0, 3, 54, {"1222222X1", "122222X1X"}, 1)},
        {11, 9, 2, 144, Restringida(9, 2, 3, 144, FilaDe9Mas2)},
        {11, 10, 0, 108, Pesos(10, 0, 3, 108, {"11222222X1", "1122222X1X"}, 1)},
    };
    // clang-format on
}

}  // namespace sistemas
