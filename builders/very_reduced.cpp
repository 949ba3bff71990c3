#include "builders/very_reduced.h"

#include "builders/reduction_display.h"
#include "engine/conditions.h"

namespace quinteva::builders {

namespace {

constexpr float kLargo = 100000.0F;
constexpr float kCiertoTiempo = 40000.0F;

}  // namespace

std::optional<std::size_t> FilaDeLaBase(const engine::QuinielaBase& base) {
    const int triples = base.Triples();
    const int dobles = base.Dobles();
    const auto& filas = TablaReducciones();
    for (std::size_t f = 0; f < filas.size(); ++f) {
        if (filas[f].triples == triples && filas[f].dobles == dobles) return f;
    }
    return std::nullopt;
}

bool EmpezarMuyReducida(const engine::Combinacion& combinacion, base::Dialogo& dialogo) {
    if (engine::NumeroDeCondiciones(combinacion.condiciones) > 0) {
        dialogo.Mensaje(kMsgHayCondiciones, base::Icono::Aviso);
        return false;
    }
    return AvisarPorColumnas(combinacion.base.Columnas(), dialogo);
}

bool AvisarPorColumnas(float columnas, base::Dialogo& dialogo) {
    if (columnas > kLargo) {
        return dialogo.PreguntaSiNo(kPreguntaProcesoLargo) == base::Respuesta::Si;
    }
    if (columnas > kCiertoTiempo) dialogo.Mensaje(kMsgCiertoTiempo);
    return true;
}

}  // namespace quinteva::builders
