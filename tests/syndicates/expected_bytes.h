#pragma once

#include <cstring>
#include <string>

namespace quinteva::syndicates {

// Los bytes esperados, puestos a mano en su sitio.
class Bytes {
  public:
    explicit Bytes(std::size_t n) : b_(n, '\0') {}
    Bytes& Texto(std::size_t en, std::size_t ancho, const std::string& t) {
        std::string campo = t;
        campo.resize(ancho, ' ');
        b_.replace(en, ancho, campo);
        return *this;
    }
    template <typename T>
    Bytes& Valor(std::size_t en, T v) {
        std::memcpy(b_.data() + en, &v, sizeof v);  // la máquina de las pruebas es little-endian
        return *this;
    }
    const std::string& Cadena() const { return b_; }

  private:
    std::string b_;
};

}  // namespace quinteva::syndicates
