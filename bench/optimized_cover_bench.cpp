// "Reducción optimizada" frente a la voraz columna a columna: veinte desarrollos condicionados
// (semillas fijas, de unas 5.000 a 500.000 columnas) a distancia 1, 2 y 3, y los desarrollos sin
// condiciones de los 73 sistemas reducidos frente a sus filas. Imprime las tablas en Markdown.
// Uso: bench_optimized_cover [segundos por caso, 10 por defecto] [condicionados|sistemas] [caso]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "base/progress.h"
#include "builders/reduction_tables.h"
#include "engine/cover.h"
#include "engine/filter.h"
#include "engine/guarantee_check.h"
#include "engine/optimized_cover.h"

namespace {

using namespace quinteva;
using Reloj = std::chrono::steady_clock;

double Segundos(Reloj::time_point desde) {
    return std::chrono::duration<double>(Reloj::now() - desde).count();
}

// Las columnas de una base (por partido, sus signos) en el orden de la generación, las que pasan.
template <typename Pasa>
std::vector<engine::Columna> Desarrollo(const std::vector<std::string>& signos, Pasa&& pasa) {
    std::vector<engine::Columna> columnas;
    std::vector<std::size_t> cifra(engine::kPartidos, 0);
    engine::Columna c{};
    while (true) {
        for (std::size_t p = 0; p < engine::kPartidos; ++p) c[p] = signos[p][cifra[p]];
        if (pasa(c)) columnas.push_back(c);
        std::size_t p = engine::kPartidos;
        while (p > 0 && ++cifra[p - 1] == signos[p - 1].size()) cifra[--p] = 0;
        if (p == 0) return columnas;
    }
}

// Un caso condicionado: t triples y d dobles en partidos al azar, el resto un signo, y las
// condiciones Generales (equis, doses, variantes) con límites al azar alrededor de lo esperado.
// Una base y las columnas de su desarrollo que se reducen.
struct Caso {
    engine::QuinielaBase base;
    std::vector<engine::Columna> columnas;
};

engine::QuinielaBase BaseDe(const std::vector<std::string>& signos) {
    engine::QuinielaBase base;
    for (std::size_t p = 0; p < signos.size(); ++p) {
        for (const char s : signos[p])
            base.Elegir(static_cast<int>(p) + 1, engine::IndiceSigno(s), true);
    }
    base.PonerGoles("1", "0");
    return base;
}

Caso Condicionado(int triples, int dobles, std::uint64_t semilla) {
    std::mt19937_64 azar(semilla);
    std::vector<std::size_t> orden(engine::kPartidos);
    for (std::size_t p = 0; p < orden.size(); ++p) orden[p] = p;
    std::shuffle(orden.begin(), orden.end(), azar);
    std::vector<std::string> signos(engine::kPartidos);
    for (std::size_t k = 0; k < orden.size(); ++k) {
        const std::size_t p = orden[k];
        if (static_cast<int>(k) < triples) {
            signos[p] = "1X2";
        } else if (static_cast<int>(k) < triples + dobles) {
            signos[p] = std::string("1X2").erase(azar() % 3, 1);
        } else {
            signos[p] = std::string(1, "1X2"[azar() % 3]);
        }
    }
    const engine::QuinielaBase base = BaseDe(signos);
    engine::SetCondiciones condiciones = engine::CondicionesIniciales(base);
    condiciones.casilla[engine::kCasillaGenerales] = true;
    // Alrededor de lo que se espera de cada signo con los signos de la base.
    auto limites = [&](char signo, std::uint8_t& min, std::uint8_t& max) {
        double media = 0;
        for (const auto& s : signos)
            media += s.find(signo) != std::string::npos ? 1.0 / s.size() : 0;
        min = static_cast<std::uint8_t>(
            std::max(0, static_cast<int>(media) - 1 - static_cast<int>(azar() % 2)));
        max = static_cast<std::uint8_t>(static_cast<int>(media) + 2 + static_cast<int>(azar() % 2));
    };
    limites('X', condiciones.minEquis, condiciones.maxEquis);
    limites('2', condiciones.minDoses, condiciones.maxDoses);
    const engine::Filtro filtro(condiciones);
    engine::Rechazos rechazos;
    return {base, Desarrollo(signos, [&](const engine::Columna& c) {
                return filtro.Condicionar(c, rechazos);
            })};
}

struct Medida {
    std::size_t voraz = 0;
    std::size_t optimizada = 0;
    double segundosVoraz = 0;
    double segundosOptimizada = 0;
    bool verificada = false;
};

// Las que empiezan con el sistema de las tablas para la base, como en el programa.
std::vector<std::size_t> Semilla(const Caso& caso, int radio) {
    std::vector<std::size_t> semilla;
    const auto patrones = builders::PatronesDeLaBase(caso.base, 14 - radio, {});
    if (!patrones) return semilla;
    const builders::CasaConPatrones casa(*patrones);
    for (std::size_t i = 0; i < caso.columnas.size(); ++i) {
        const auto& c = caso.columnas[i];
        if (casa({reinterpret_cast<const base::Byte*>(c.data()), c.size()})) semilla.push_back(i);
    }
    return semilla;
}

Medida Medir(const Caso& caso, int radio, double segundos) {
    Medida m;
    auto inicio = Reloj::now();
    engine::Recubrimiento voraz(radio);
    for (const auto& c : caso.columnas) m.voraz += voraz.Considerar(c) ? 1 : 0;
    m.segundosVoraz = Segundos(inicio);
    std::vector<std::int32_t> codigos;
    codigos.reserve(caso.columnas.size());
    for (const auto& c : caso.columnas) codigos.push_back(engine::CodigoColumna(c));
    base::SinProgreso progreso;
    inicio = Reloj::now();
    const auto elegidas =
        engine::CubrirOptimizado(codigos, radio, {segundos, 1}, progreso, Semilla(caso, radio));
    m.segundosOptimizada = Segundos(inicio);
    m.optimizada = elegidas.size();
    std::vector<engine::RegistroColumna> generadas;
    std::vector<engine::RegistroColumna> reducidas;
    for (const auto& c : caso.columnas) generadas.push_back({c, {'1', '0'}, engine::kActiva});
    for (const std::size_t e : elegidas) reducidas.push_back(generadas[e]);
    m.verificada = engine::VerificarGarantia(generadas, reducidas, radio).Cumple();
    return m;
}

// Los casos: triples y dobles de cada uno (la semilla es su número).
constexpr int kCasos[20][2] = {{7, 3}, {6, 4},  {9, 0},  {8, 2}, {9, 1},  {6, 6},  {9, 2},
                               {7, 5}, {10, 0}, {10, 1}, {8, 4}, {9, 3},  {11, 0}, {10, 2},
                               {8, 6}, {11, 1}, {10, 3}, {9, 5}, {12, 0}, {9, 4}};

void Condicionados(double segundos, int soloCaso) {
    std::printf(
        "| caso | forma | columnas | d | voraz | optimizada | menos | s voraz | s optimizada | "
        "verificada |\n");
    std::printf("|---|---|---|---|---|---|---|---|---|---|\n");
    double sumaAhorro = 0;
    int medidas = 0;
    for (int caso = 0; caso < 20; ++caso) {
        if (soloCaso > 0 && caso + 1 != soloCaso) continue;
        const auto [triples, dobles] = kCasos[caso];
        const Caso c = Condicionado(triples, dobles, static_cast<std::uint64_t>(caso) + 1);
        for (int radio = 1; radio <= 3; ++radio) {
            const Medida m = Medir(c, radio, segundos);
            const double ahorro = 100.0 * (1.0 - static_cast<double>(m.optimizada) / m.voraz);
            sumaAhorro += ahorro;
            ++medidas;
            std::printf("| %d | %dT %dD | %zu | %d | %zu | %zu | %.1f %% | %.2f | %.2f | %s |\n",
                        caso + 1, triples, dobles, c.columnas.size(), radio, m.voraz, m.optimizada,
                        ahorro, m.segundosVoraz, m.segundosOptimizada, m.verificada ? "sí" : "NO");
            std::fflush(stdout);
        }
    }
    std::printf("\nAhorro medio: %.1f %%\n\n", sumaAhorro / medidas);
}

void Sistemas(double segundos) {
    std::printf(
        "| nivel | forma | filas | optimizada | razón | s | verificada |\n"
        "|---|---|---|---|---|---|---|\n");
    double sumaRazon = 0;
    int medidas = 0;
    for (const auto& s : builders::SistemasReducidos()) {
        std::vector<std::string> signos(engine::kPartidos, "1");
        for (int p = 0; p < s.triples + s.dobles; ++p)
            signos[static_cast<std::size_t>(p)] = p < s.triples ? "1X2" : "1X";
        const Caso caso{BaseDe(signos),
                        Desarrollo(signos, [](const engine::Columna&) { return true; })};
        const Medida m = Medir(caso, 14 - s.nivel, segundos);
        const double razon =
            static_cast<double>(m.optimizada) / static_cast<double>(s.filas.size());
        sumaRazon += razon;
        ++medidas;
        std::printf("| %d | %dT %dD | %zu | %zu | %.3f%s | %.2f | %s |\n", s.nivel, s.triples,
                    s.dobles, s.filas.size(), m.optimizada, razon,
                    m.optimizada < s.filas.size() ? " (menos)" : "", m.segundosOptimizada,
                    m.verificada ? "sí" : "NO");
        std::fflush(stdout);
    }
    std::printf("\nRazón media: %.3f\n", sumaRazon / medidas);
}

}  // namespace

int main(int argc, char** argv) {
    const double segundos = argc > 1 ? std::atof(argv[1]) : 10.0;
    const std::string que = argc > 2 ? argv[2] : "";
    const int soloCaso = argc > 3 ? std::atoi(argv[3]) : 0;
    if (que.empty() || que == "condicionados") Condicionados(segundos, soloCaso);
    if (que.empty() || que == "sistemas") Sistemas(segundos);
    return 0;
}
