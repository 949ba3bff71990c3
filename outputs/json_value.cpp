#include "outputs/json_value.h"

#include <cmath>
#include <cstdio>
#include <type_traits>

namespace quinteva::outputs {
namespace {

constexpr std::size_t kCifrasDecimal = 29;
constexpr long long kEscalaMaxima = 28;
constexpr std::string_view kMaximoDecimal = "79228162514264337593543950335";

bool EsCifra(char c) { return c >= '0' && c <= '9'; }

std::string ConFormato(const char* patron, double valor) {
    char texto[64];
    std::snprintf(texto, sizeof texto, patron, valor);
    std::string salida = texto;
    if (salida == "-0") return "0";
    return salida;
}

// Suma 1 a las cifras decimales, con acarreo.
void Incrementar(std::string& cifras) {
    for (auto i = cifras.size(); i-- > 0;) {
        if (cifras[i] != '9') {
            ++cifras[i];
            return;
        }
        cifras[i] = '0';
    }
    cifras.insert(cifras.begin(), '1');
}

// Quita k cifras por la derecha redondeando a la mitad hacia arriba.
void Recortar(std::string& cifras, std::size_t k) {
    if (k > cifras.size()) {
        cifras = "0";
        return;
    }
    const bool sube = cifras[cifras.size() - k] >= '5';
    cifras.resize(cifras.size() - k);
    if (cifras.empty()) cifras = "0";
    if (sube) Incrementar(cifras);
}

std::string TextoCanonico(bool negativo, std::string cifras, std::size_t escala) {
    if (cifras.size() <= escala) cifras.insert(0, escala + 1 - cifras.size(), '0');
    std::string entera = cifras.substr(0, cifras.size() - escala);
    std::string fraccion = cifras.substr(entera.size());
    while (!fraccion.empty() && fraccion.back() == '0') fraccion.pop_back();
    const auto primera = entera.find_first_not_of('0');
    entera = primera == std::string::npos ? "0" : entera.substr(primera);
    const bool cero = entera == "0" && fraccion.empty();
    return (negativo && !cero ? "-" : "") + entera + (fraccion.empty() ? "" : "." + fraccion);
}

}  // namespace

std::optional<Decimal> Decimal::DeTexto(std::string_view t) {
    std::size_t i = 0;
    const bool negativo = i < t.size() && t[i] == '-';
    if (i < t.size() && (t[i] == '-' || t[i] == '+')) ++i;
    std::string cifras;
    long long escala = 0;
    bool punto = false;
    for (; i < t.size() && (EsCifra(t[i]) || (t[i] == '.' && !punto)); ++i) {
        if (t[i] == '.') {
            punto = true;
            continue;
        }
        cifras += t[i];
        if (punto) ++escala;
    }
    if (cifras.empty()) return std::nullopt;
    long long exponente = 0;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
        ++i;
        const bool menos = i < t.size() && t[i] == '-';
        if (i < t.size() && (t[i] == '-' || t[i] == '+')) ++i;
        const std::size_t inicio = i;
        // Un exponente enorme ya solo puede desbordar o dar cero: basta con acotarlo.
        for (; i < t.size() && EsCifra(t[i]); ++i) {
            exponente = std::min(exponente * 10 + (t[i] - '0'), 1000000LL);
        }
        if (i == inicio) return std::nullopt;
        if (menos) exponente = -exponente;
    }
    if (i != t.size()) return std::nullopt;

    const auto primera = cifras.find_first_not_of('0');
    if (primera == std::string::npos) return Decimal("0");
    cifras.erase(0, primera);
    escala -= exponente;
    if (escala < 0) {
        if (cifras.size() + static_cast<std::size_t>(-escala) > kCifrasDecimal) return std::nullopt;
        cifras.append(static_cast<std::size_t>(-escala), '0');
        escala = 0;
    }
    long long sobran = std::max(escala - kEscalaMaxima, 0LL);
    if (cifras.size() > kCifrasDecimal) {
        sobran = std::max(sobran, static_cast<long long>(cifras.size() - kCifrasDecimal));
    }
    sobran = std::min(sobran, escala);
    Recortar(cifras, static_cast<std::size_t>(sobran));
    escala -= sobran;
    const bool cabe = cifras.size() < kCifrasDecimal ||
                      (cifras.size() == kCifrasDecimal && cifras <= kMaximoDecimal);
    if (!cabe) return std::nullopt;
    return Decimal(TextoCanonico(negativo, cifras, static_cast<std::size_t>(escala)));
}

int CodigoDeTipo(const Valor& valor) {
    // Los códigos de tipo de la plataforma, en el orden de la variante.
    static constexpr int kCodigos[] = {0, 1, 11, 2, 3, 4, 5, 6, 14, 17, 8, 7, 9};
    return kCodigos[valor.index()];
}

std::string TextoDeDouble(double valor) { return ConFormato("%.15g", valor); }

std::string TextoDeSingle(float valor) { return ConFormato("%.7g", static_cast<double>(valor)); }

std::string TextoDeMoneda(Moneda valor) {
    const bool negativo = valor.diezmilesimas < 0;
    const auto absoluto = negativo ? 0 - static_cast<std::uint64_t>(valor.diezmilesimas)
                                   : static_cast<std::uint64_t>(valor.diezmilesimas);
    return TextoCanonico(negativo, std::to_string(absoluto), 4);
}

bool EsNumeroOLogico(const Valor& valor) {
    return std::visit(
        [](const auto& v) {
            using T = std::decay_t<decltype(v)>;
            return std::is_arithmetic_v<T> || std::is_same_v<T, Moneda> ||
                   std::is_same_v<T, Decimal>;
        },
        valor);
}

std::optional<std::string> TextoDeNumero(const Valor& valor) {
    return std::visit(
        [](const auto& v) -> std::optional<std::string> {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, bool>) {
                return v ? "true" : "false";
            } else if constexpr (std::is_floating_point_v<T>) {
                if (!std::isfinite(v)) return std::nullopt;
                if constexpr (std::is_same_v<T, float>) return TextoDeSingle(v);
                return TextoDeDouble(v);
            } else if constexpr (std::is_integral_v<T>) {
                return std::to_string(v);
            } else if constexpr (std::is_same_v<T, Moneda>) {
                return TextoDeMoneda(v);
            } else if constexpr (std::is_same_v<T, Decimal>) {
                return v.Texto();
            } else {
                return std::nullopt;
            }
        },
        valor);
}

}  // namespace quinteva::outputs
