#pragma once

#include <cstdint>
#include <vector>

#include "base/progress.h"

namespace quinteva::pruebas {

// Progreso que cuenta los avances y se detiene tras "pararTras" avances (nunca si es negativo).
class ProgresoContador : public base::Progreso {
  public:
    explicit ProgresoContador(std::int64_t pararTras = -1) : pararTras_(pararTras) {}

    void Avance(std::int64_t hecho, std::int64_t total) override {
        ++avances_;
        ultimoHecho_ = hecho;
        ultimoTotal_ = total;
    }
    bool Detenido() const override { return pararTras_ >= 0 && avances_ >= pararTras_; }
    void Escritas(std::int64_t escritas) override { escritas_.push_back(escritas); }

    std::int64_t Avances() const { return avances_; }
    std::int64_t UltimoHecho() const { return ultimoHecho_; }
    std::int64_t UltimoTotal() const { return ultimoTotal_; }
    const std::vector<std::int64_t>& CuentasEscritas() const { return escritas_; }

  private:
    std::int64_t pararTras_;
    std::int64_t avances_ = 0;
    std::int64_t ultimoHecho_ = 0;
    std::int64_t ultimoTotal_ = 0;
    std::vector<std::int64_t> escritas_;
};

}  // namespace quinteva::pruebas
