#include "outputs/winning_column.h"

#include <algorithm>

#include "base/pleno_letter.h"
#include "engine/columns.h"

namespace quinteva::outputs {
namespace {

constexpr std::size_t kLetraPleno = engine::kPartidos;

char Caracter(std::string_view texto, std::size_t i) { return i < texto.size() ? texto[i] : ' '; }

std::string CeldaDe(char c) { return c == ' ' ? std::string() : std::string(1, c); }

}  // namespace

ColumnaGanadora GanadoraDeResultado(std::string_view resultado) {
    ColumnaGanadora ganadora;
    for (std::size_t i = 0; i < kLetraPleno; ++i) ganadora += Caracter(resultado, i);
    return ganadora + base::LetraAPleno(std::string(1, Caracter(resultado, kLetraPleno)));
}

RejillaGanadora RejillaDeResultado(std::string_view resultado) {
    RejillaGanadora rejilla;
    for (std::size_t i = 0; i < kLetraPleno; ++i) rejilla[i] = CeldaDe(Caracter(resultado, i));
    const std::string pleno = base::LetraAPleno(std::string(1, Caracter(resultado, kLetraPleno)));
    if (pleno.size() == 2) rejilla[kLetraPleno] = std::string{pleno[0], ' ', pleno[1]};
    return rejilla;
}

std::string ResultadoDeRejilla(const RejillaGanadora& rejilla) {
    std::string resultado;
    for (std::size_t i = 0; i < kLetraPleno; ++i) resultado += Caracter(rejilla[i], 0);
    const std::string& pleno = rejilla[kLetraPleno];
    const std::string letra = pleno.size() == 3
                                  ? base::PlenoALetra(pleno.substr(0, 1), pleno.substr(2, 1))
                                  : std::string();
    return resultado + (letra.empty() ? std::string(" ") : letra);
}

bool ResultadoIncompleto(std::string_view resultado) {
    return resultado.size() <= kLetraPleno ||
           std::find(resultado.begin(), resultado.begin() + kLetraPleno + 1, ' ') !=
               resultado.begin() + kLetraPleno + 1;
}

std::optional<char> TeclaAdmitida(int fila, char tecla) {
    const auto admitida = [tecla](std::string_view validas, char minuscula,
                                  char mayuscula) -> std::optional<char> {
        if (tecla == minuscula) return mayuscula;
        if (validas.find(tecla) != std::string_view::npos) return tecla;
        return std::nullopt;
    };
    if (fila >= 1 && fila <= engine::kPartidos) return admitida("1X2", 'x', 'X');
    if (fila == engine::kPartidos + 1) return admitida("012M", 'm', 'M');
    return std::nullopt;
}

}  // namespace quinteva::outputs
