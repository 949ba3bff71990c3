#include "builders/columns_and_price.h"

#include <cmath>
#include <cstdlib>

#include "base/formats.h"

namespace quinteva::builders {

namespace {

constexpr std::size_t kCifrasNumero = 9;

bool EsCifra(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string LimpiarNumero(std::string_view texto) {
    std::string limpio;
    for (const char c : texto) {
        if (!EsCifra(c) || (limpio.empty() && c == '0') || limpio.size() == kCifrasNumero) continue;
        limpio += c;
    }
    return limpio;
}

std::string LimpiarPrecio(std::string_view texto) {
    std::string limpio;
    for (char c : texto) {
        if (c == '.') c = ',';
        const bool coma = c == ',';
        if (!EsCifra(c) && !coma) continue;
        if (coma && (limpio.empty() || limpio.find(',') != std::string::npos)) continue;
        limpio += c;
    }
    return limpio;
}

std::string PrecioDeColumnas(std::string_view numero, float precioColumna) {
    const std::string n = LimpiarNumero(numero);
    if (n.empty()) return {};
    return base::Formato(std::stod(n) * static_cast<double>(precioColumna), "currency");
}

std::optional<std::string> ColumnasDePrecio(std::string_view precio, float precioColumna) {
    std::string p = LimpiarPrecio(precio);
    if (p.empty() || precioColumna <= 0.0F) return std::nullopt;
    for (char& c : p) {
        if (c == ',') c = '.';
    }
    const double valor = std::strtod(p.c_str(), nullptr);
    if (valor == 0.0) return std::nullopt;
    const double columnas = std::floor(valor / static_cast<double>(precioColumna) + 1e-9);
    return LimpiarNumero(std::to_string(static_cast<long long>(columnas)));
}

}  // namespace quinteva::builders
