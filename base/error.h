#pragma once

#include <stdexcept>
#include <string>

namespace quinteva::base {

// Fallo de una operación: el texto es la descripción que leerá el usuario tras "Error: ".
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Desbordamiento de un campo numérico (un contador de un byte que pasaría de 255...).
class Desbordamiento : public Error {
  public:
    Desbordamiento() : Error("Desbordamiento") {}
};

}  // namespace quinteva::base
