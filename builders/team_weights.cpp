#include "builders/team_weights.h"

#include "base/text1252.h"

namespace quinteva::builders {

int PesoDeCircunstancia(int factor) { return factor == kFactores - 1 ? 8 : -6; }

void Ponderacion::Marcar(int marca, bool marcada) {
    actuales_[static_cast<std::size_t>(marca)] = marcada;
    if (!marcada) return;
    const int otra = marca < kFactores ? marca + kFactores : marca - kFactores;
    actuales_[static_cast<std::size_t>(otra)] = false;
}

void Ponderacion::FijarVar() {
    const auto p = static_cast<std::size_t>(partido_ - 1);
    pesos_.local[p] = 0;
    pesos_.visitante[p] = 0;
    for (std::size_t i = 0; i < actuales_.size(); ++i) {
        marcas_[i][static_cast<std::size_t>(partido_)] = actuales_[i] ? 1 : 0;
    }
    for (int i = 0; i < kFactores; ++i) {
        const auto peso = static_cast<std::int16_t>(PesoDeCircunstancia(i));
        if (actuales_[static_cast<std::size_t>(i)]) pesos_.local[p] += peso;
        if (actuales_[static_cast<std::size_t>(i + kFactores)]) pesos_.visitante[p] += peso;
    }
}

void Ponderacion::DevolverVar() {
    for (std::size_t i = 0; i < actuales_.size(); ++i) {
        actuales_[i] = marcas_[i][static_cast<std::size_t>(partido_)] != 0;
    }
}

void Ponderacion::IrA(int partido) {
    if (partido < 1 || partido > engine::kPartidos) return;
    FijarVar();
    partido_ = partido;
    DevolverVar();
}

void Ponderacion::Terminar() {
    FijarVar();
    marcas_ = {};
    actuales_ = {};
}

std::pair<std::string, std::string> EquiposDelPartido(std::string_view etiqueta) {
    const auto corte = etiqueta.find(" -");
    if (corte == std::string_view::npos) return {std::string(base::Recortar(etiqueta)), {}};
    return {std::string(base::Recortar(etiqueta.substr(0, corte))),
            std::string(base::Recortar(etiqueta.substr(corte + 2)))};
}

}  // namespace quinteva::builders
