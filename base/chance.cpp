#include "base/chance.h"

#include <chrono>

namespace quinteva::base {

std::int64_t Azar::Entero(std::int64_t desde, std::int64_t hasta) {
    return desde + static_cast<std::int64_t>(static_cast<double>(hasta - desde + 1) * Siguiente());
}

AzarEstandar::AzarEstandar(std::uint64_t semilla) : motor_(semilla) {}

double AzarEstandar::Siguiente() { return std::generate_canonical<double, 53>(motor_); }

std::uint64_t AzarEstandar::SemillaDelReloj() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

}  // namespace quinteva::base
