#include "engine/cover_search.h"

#include <algorithm>

namespace quinteva::engine {

BusquedaLocal::BusquedaLocal(const Entornos& entornos, int radio,
                             const std::vector<std::size_t>& elegidas, std::uint64_t semilla)
    : entornos_(entornos),
      radio_(radio),
      azar_(semilla),
      posicion_(entornos.Tamano(), kFuera),
      veces_(entornos.Tamano(), 0),
      cubren_(entornos.Tamano(), 0),
      quitadaEn_(entornos.Tamano(), 0) {
    for (const std::size_t e : elegidas) Poner(e, nullptr);
}

std::vector<std::size_t> BusquedaLocal::Elegidas() const {
    auto elegidas = elegidas_;
    std::sort(elegidas.begin(), elegidas.end());
    return elegidas;
}

bool BusquedaLocal::Paso() {
    ++pasos_;
    const std::size_t e = elegidas_[Azar(elegidas_.size())];
    SoloDe(e, solas_);
    if (solas_.empty()) {
        Quitar(e);
        return true;
    }
    Candidatas(e, solas_, candidatas_);
    if (candidatas_.empty()) return false;
    std::size_t mejor = candidatas_[Azar(candidatas_.size())];
    if (candidatas_.size() > 1) {
        int mejores = Puntos(mejor, e);
        for (int m = 1; m < kMuestras; ++m) {
            const std::size_t c = candidatas_[Azar(candidatas_.size())];
            const int puntos = Puntos(c, e);
            if (puntos > mejores) mejor = c, mejores = puntos;
        }
    }
    Quitar(e);
    Poner(mejor, &cubiertasDos_);
    // Las que cubrían solas alguna columna que ahora cubre también la nueva pueden sobrar.
    auto& otras = cubiertasDos_;
    for (std::size_t& j : otras) j = cubren_[j] ^ static_cast<std::uint32_t>(mejor);
    std::sort(otras.begin(), otras.end());
    otras.erase(std::unique(otras.begin(), otras.end()), otras.end());
    bool mengua = false;
    for (const std::size_t o : otras) {
        if (posicion_[o] != kFuera && Sobra(o)) {
            Quitar(o);
            mengua = true;
        }
    }
    return mengua;
}

void BusquedaLocal::Poner(std::size_t columna, std::vector<std::size_t>* cubiertasDos) {
    if (cubiertasDos) cubiertasDos->clear();
    posicion_[columna] = static_cast<std::int32_t>(elegidas_.size());
    elegidas_.push_back(columna);
    entornos_.Cada(columna, radio_, [&](std::size_t j) {
        if (++veces_[j] == 2 && cubiertasDos) cubiertasDos->push_back(j);
        cubren_[j] ^= static_cast<std::uint32_t>(columna);
    });
}

void BusquedaLocal::Quitar(std::size_t columna) {
    const auto hueco = static_cast<std::size_t>(posicion_[columna]);
    elegidas_[hueco] = elegidas_.back();
    posicion_[elegidas_[hueco]] = static_cast<std::int32_t>(hueco);
    elegidas_.pop_back();
    posicion_[columna] = kFuera;
    quitadaEn_[columna] = pasos_;
    entornos_.Cada(columna, radio_, [&](std::size_t j) {
        --veces_[j];
        cubren_[j] ^= static_cast<std::uint32_t>(columna);
    });
}

bool BusquedaLocal::Sobra(std::size_t columna) const {
    bool sobra = true;
    entornos_.Cada(columna, radio_, [&](std::size_t j) { sobra = sobra && veces_[j] >= 2; });
    return sobra;
}

void BusquedaLocal::SoloDe(std::size_t e, std::vector<std::size_t>& solas) const {
    solas.clear();
    entornos_.Cada(e, radio_, [&](std::size_t j) {
        if (veces_[j] == 1) solas.push_back(j);
    });
}

void BusquedaLocal::Candidatas(std::size_t e, const std::vector<std::size_t>& solas,
                               std::vector<std::size_t>& candidatas) const {
    candidatas.clear();
    entornos_.Cada(solas.front(), radio_, [&](std::size_t c) {
        if (c == e || posicion_[c] != kFuera) return;
        if (quitadaEn_[c] > 0 && pasos_ - quitadaEn_[c] < kVeda) return;
        for (const std::size_t u : solas) {
            if (entornos_.Distancia(c, u) > radio_) return;
        }
        candidatas.push_back(c);
    });
}

int BusquedaLocal::Puntos(std::size_t c, std::size_t e) const {
    int puntos = 0;
    entornos_.Cada(c, radio_, [&](std::size_t j) {
        if (veces_[j] == 1 && cubren_[j] != e) ++puntos;
    });
    return puntos;
}

}  // namespace quinteva::engine
