#include "outputs/hit_count.h"

#include <algorithm>
#include <cstring>

#include "base/formats.h"
#include "engine/columns.h"

namespace quinteva::outputs {
namespace {

// Los partidos 1 a 8 van en una palabra y los 9 a 14 en otra que empieza en el partido 7: así
// se leen 8 bytes seguidos dos veces y los partidos 7 y 8 se quitan de la segunda con su máscara.
constexpr std::size_t kSegunda = engine::kPartidos - 8;
constexpr std::uint64_t kBajos = 0x7F7F7F7F7F7F7F7FULL;

std::uint64_t Palabra(const char* bytes) {
    std::uint64_t palabra = 0;
    std::memcpy(&palabra, bytes, sizeof palabra);
    return palabra;
}

// El bit alto de cada byte distinto de cero.
std::uint64_t BytesDistintos(std::uint64_t x) { return (((x & kBajos) + kBajos) | x) & ~kBajos; }

// Cuántos bytes llevan el bit alto en las dos palabras: cada byte de la suma vale 0, 1 o 2 y la
// multiplicación los acumula en el byte alto (sin popcount, que sin instrucción propia es una
// llamada).
int Marcados(std::uint64_t a, std::uint64_t b) {
    constexpr std::uint64_t kUnos = 0x0101010101010101ULL;
    return static_cast<int>((((a >> 7) + (b >> 7)) * kUnos) >> 56);
}

// La máscara de los bytes de los partidos [desde, desde + 8) que cuentan.
std::uint64_t Mascara(std::string_view ganadora, std::size_t desde, std::size_t primero,
                      bool soloConocidos) {
    std::array<char, 8> bytes{};
    for (std::size_t i = primero; i < 8; ++i) {
        const bool cuenta = !soloConocidos || ganadora[desde + i] != ' ';
        bytes[i] = cuenta ? static_cast<char>(0x80) : '\0';
    }
    return Palabra(bytes.data());
}

// Los 14 primeros caracteres, con blancos si faltan.
std::string Signos(std::string_view ganadora) {
    std::string signos(ganadora.substr(0, engine::kPartidos));
    signos.resize(engine::kPartidos, ' ');
    return signos;
}

}  // namespace

std::string TextoCuenta(std::int32_t cuenta) { return base::Formato(cuenta, "#,##0") + " "; }

std::array<std::string, kLugaresAciertos> TextosCuentas(const TablaAciertos& tabla) {
    std::array<std::string, kLugaresAciertos> textos;
    std::transform(tabla.cuentas.begin(), tabla.cuentas.end(), textos.begin(), TextoCuenta);
    return textos;
}

bool HayLocalizadas(const TablaAciertos& tabla) {
    return std::any_of(tabla.listas.begin() + 1, tabla.listas.end(),
                       [](const auto& lista) { return !lista.empty(); });
}

Comparador::Comparador(std::string_view ganadora, bool soloConocidos)
    : pleno_(ganadora.substr(std::min(ganadora.size(), std::size_t{engine::kPartidos}), 2)) {
    const std::string signos = Signos(ganadora);
    primeros_ = Palabra(signos.data());
    ultimos_ = Palabra(signos.data() + kSegunda);
    mascaraPrimeros_ = Mascara(signos, 0, 0, soloConocidos);
    mascaraUltimos_ = Mascara(signos, kSegunda, 8 - kSegunda, soloConocidos);
}

int Comparador::Fallos(const char* signos) const {
    const int fallos =
        Marcados(BytesDistintos(Palabra(signos) ^ primeros_) & mascaraPrimeros_,
                 BytesDistintos(Palabra(signos + kSegunda) ^ ultimos_) & mascaraUltimos_);
    return std::min(fallos, kFallosFuera);
}

void Comparador::Anotar(const char* signos, std::string_view plenoBoleto, std::int32_t numero,
                        TablaAciertos& tabla) const {
    const int fallos = Fallos(signos);
    if (fallos == kFallosFuera) return;
    const auto lugar = static_cast<std::size_t>(fallos + 1);
    ++tabla.cuentas[lugar];
    if (lugar < kLugaresConLista) tabla.listas[lugar].push_back(numero);
    if (fallos == 0 && plenoBoleto == pleno_) {
        ++tabla.cuentas[0];
        tabla.listas[0].push_back(numero);
    }
}

void Comparador::AnotarAvance(const char* signos, TablaAciertos& tabla) const {
    const int fallos = Fallos(signos);
    for (int lugar = fallos + 1; lugar < kLugaresAciertos; ++lugar) {
        ++tabla.cuentas[static_cast<std::size_t>(lugar)];
    }
}

}  // namespace quinteva::outputs
