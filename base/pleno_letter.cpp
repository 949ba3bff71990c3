#include "base/pleno_letter.h"

namespace quinteva::base {
namespace {

constexpr std::string_view kGoles = "012M";

}  // namespace

std::string PlenoALetra(std::string_view golesLocal, std::string_view golesVisitante) {
    if (golesLocal.size() != 1 || golesVisitante.size() != 1) return {};
    const auto l = kGoles.find(golesLocal[0]);
    const auto v = kGoles.find(golesVisitante[0]);
    if (l == std::string_view::npos || v == std::string_view::npos) return {};
    return std::string(1, static_cast<char>('A' + l * 4 + v));
}

std::string LetraAPleno(std::string_view letra) {
    if (letra.size() != 1 || letra[0] < 'A' || letra[0] > 'P') return {};
    const int n = letra[0] - 'A';
    return {kGoles[static_cast<std::size_t>(n / 4)], kGoles[static_cast<std::size_t>(n % 4)]};
}

}  // namespace quinteva::base
