#include "outputs/slip_geometry.h"

namespace quinteva::outputs {

std::string_view TextoDireccion(Direccion direccion) {
    return direccion == Direccion::Vertical ? "Vertical" : "Apaisada";
}

Direccion DireccionDeTexto(std::string_view texto) {
    return texto == "Vertical" ? Direccion::Vertical : Direccion::Apaisada;
}

}  // namespace quinteva::outputs
