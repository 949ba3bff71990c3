#include "engine/prize_odds.h"

#include <cstdio>
#include <vector>

#include "base/formats.h"
#include "base/record_files.h"
#include "engine/column_code.h"
#include "engine/neighbourhoods.h"

namespace quinteva::engine {

namespace {

constexpr std::uint8_t kLejos = 5;  // más de 4 signos: menos de 10 aciertos

// Los porcentajes de una tabla [signo][partido] llevados a sumar 1; los partidos sin ninguno, de
// la base.
ProbabilidadesSignos DeTabla(const std::array<std::array<std::uint8_t, kPartidos>, 3>& tabla,
                             const QuinielaBase& base) {
    ProbabilidadesSignos p{};
    for (std::size_t m = 0; m < kPartidos; ++m) {
        double suma = 0;
        for (std::size_t s = 0; s < 3; ++s) suma += tabla[s][m];
        for (std::size_t s = 0; s < 3; ++s) {
            if (suma > 0) {
                p[m][s] = tabla[s][m] / suma;
            } else {
                const int partido = static_cast<int>(m) + 1;
                p[m][s] = base.Elegido(partido, static_cast<int>(s))
                              ? 1.0 / base.SignosElegidos(partido)
                              : 0.0;
            }
        }
    }
    return p;
}

bool HayAlguno(const std::array<std::array<std::uint8_t, kPartidos>, 3>& tabla) {
    for (const auto& fila : tabla) {
        for (const std::uint8_t v : fila) {
            if (v > 0) return true;
        }
    }
    return false;
}

// La menor distancia de cada código a las jugadas, hasta kLejos.
std::vector<std::uint8_t> Distancias(std::span<const std::int32_t> jugadas) {
    std::vector<std::uint8_t> distancia(static_cast<std::size_t>(kCodigosColumna), kLejos);
    std::vector<std::int32_t> frente;
    for (const std::int32_t c : jugadas) {
        if (distancia[static_cast<std::size_t>(c)] == 0) continue;
        distancia[static_cast<std::size_t>(c)] = 0;
        frente.push_back(c);
    }
    std::vector<std::int32_t> siguiente;
    for (std::uint8_t d = 1; d < kLejos && !frente.empty(); ++d) {
        siguiente.clear();
        for (const std::int32_t c : frente) {
            std::int32_t resto = c;
            for (int p = kPartidos - 1; p >= 0; --p, resto /= 3) {
                const std::int32_t peso = detalle::kPesoPartido[static_cast<std::size_t>(p)];
                const int cifra = resto % 3;
                for (int otra = 0; otra < 3; ++otra) {
                    if (otra == cifra) continue;
                    const auto vecina = static_cast<std::size_t>(c + (otra - cifra) * peso);
                    if (distancia[vecina] != kLejos) continue;
                    distancia[vecina] = d;
                    siguiente.push_back(static_cast<std::int32_t>(vecina));
                }
            }
        }
        frente.swap(siguiente);
    }
    return distancia;
}

// Suma el peso de cada código en la categoría de su distancia. El peso es el producto de las
// probabilidades de sus signos: se recorren los códigos en orden con los productos de los
// partidos de delante ya hechos.
void Sumar(const std::vector<std::uint8_t>& distancia, const ProbabilidadesSignos& p,
           std::array<double, 6>& categorias) {
    // Los 7 últimos partidos: sus 3^7 productos, una vez.
    constexpr std::size_t kCola = 2187;
    std::vector<double> cola(kCola);
    for (std::size_t c = 0; c < kCola; ++c) {
        double w = 1;
        std::size_t resto = c;
        for (std::size_t m = kPartidos; m-- > 7; resto /= 3) w *= p[m][resto % 3];
        cola[c] = w;
    }
    for (std::size_t cabeza = 0; cabeza < kCola; ++cabeza) {
        double w = 1;
        std::size_t resto = cabeza;
        for (std::size_t m = 7; m-- > 0; resto /= 3) w *= p[m][resto % 3];
        if (w == 0) continue;
        const std::uint8_t* d = distancia.data() + cabeza * kCola;
        for (std::size_t c = 0; c < kCola; ++c) categorias[d[c]] += w * cola[c];
    }
}

}  // namespace

ProbabilidadesSignos ProbabilidadesDeLaCombinacion(const Combinacion& comb) {
    if (comb.condiciones.casilla[kCasillaSumas]) {
        return DeTabla(comb.condiciones.sumasTabla, comb.base);
    }
    if (HayAlguno(comb.tablaPorcentajes)) return DeTabla(comb.tablaPorcentajes, comb.base);
    return DeTabla({}, comb.base);
}

std::string OrigenDeLasProbabilidades(const Combinacion& comb) {
    if (comb.condiciones.casilla[kCasillaSumas]) {
        return "La ganadora sale con los porcentajes de Sumas.";
    }
    if (HayAlguno(comb.tablaPorcentajes)) {
        return "La ganadora sale con los porcentajes de la Quiniela por Porcentajes.";
    }
    return "La ganadora sale entre las columnas de la base, todas igual de probables.";
}

ProbabilidadesPremios ProbabilidadesDeArchivo(const Combinacion& comb,
                                              const std::filesystem::path& columnas) {
    std::vector<std::int32_t> jugadas;
    if (std::filesystem::exists(columnas)) {
        base::LectorRegistros lector(columnas, RegistroColumna::kLongitud);
        for (auto r = lector.Siguiente(); !r.empty(); r = lector.Siguiente()) {
            const auto registro = RegistroColumna::DeBytes(r);
            const std::int32_t codigo = CodigoColumna(registro.columna);
            if (registro.Activa() && codigo >= 0) jugadas.push_back(codigo);
        }
    }
    return Probabilidades(jugadas, ProbabilidadesDeLaCombinacion(comb));
}

std::vector<std::pair<std::string, std::string>> FilasProbabilidades(
    const ProbabilidadesPremios& p) {
    static constexpr const char* kNombres[6] = {"14 aciertos", "13 aciertos", "12 aciertos",
                                                "11 aciertos", "10 aciertos", "Menos de 10"};
    const auto porcentaje = [](double v) { return base::Formato(100.0 * v, "0.000000") + " %"; };
    std::vector<std::pair<std::string, std::string>> filas;
    for (std::size_t i = 0; i < p.aciertos.size(); ++i) {
        filas.emplace_back(kNombres[i], porcentaje(p.aciertos[i]));
    }
    filas.emplace_back("Pleno al 15", porcentaje(p.pleno));
    return filas;
}

void PonerPleno(ProbabilidadesPremios& p, double probabilidadDelPleno) {
    p.pleno = p.aciertos[0] * probabilidadDelPleno;
}

ProbabilidadesPremios Probabilidades(std::span<const std::int32_t> jugadas,
                                     const ProbabilidadesSignos& signos) {
    ProbabilidadesPremios r;
    if (jugadas.empty()) {
        r.aciertos[5] = 1;
        return r;
    }
    Sumar(Distancias(jugadas), signos, r.aciertos);
    PonerPleno(r, kPlenoUniforme);
    return r;
}

std::string ProbabilidadesJson(const ProbabilidadesPremios& p) {
    static constexpr const char* kClaves[6] = {"Aciertos14", "Aciertos13", "Aciertos12",
                                               "Aciertos11", "Aciertos10", "MenosDe10"};
    std::string json = "{";
    char cifra[32];
    for (std::size_t i = 0; i < p.aciertos.size(); ++i) {
        std::snprintf(cifra, sizeof cifra, "%.17g", p.aciertos[i]);
        json += std::string(i ? ", " : "") + "\"" + kClaves[i] + "\": " + cifra;
    }
    return json + "}";
}

}  // namespace quinteva::engine
