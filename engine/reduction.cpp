#include "engine/reduction.h"

#include <cstring>
#include <system_error>

#include "base/error.h"
#include "base/record_files.h"
#include "engine/cover.h"
#include "engine/pricing.h"

namespace quinteva::engine {

bool DifierenMasDe(const Columna& a, const Columna& b, int limite) {
    int diferentes = 0;
    for (std::size_t p = 0; p < a.size(); ++p) {
        if (a[p] != b[p] && ++diferentes > limite) return true;
    }
    return false;
}

void PrepararReduccion(Combinacion& comb, const std::filesystem::path& carpetaTrabajo) {
    comb.panel.reducidas = {};
    comb.panel.precio.reset();
    comb.panel.guardada = false;
    comb.totalReducidas = comb.activasReducidas = 0;
    std::error_code error;
    std::filesystem::remove(carpetaTrabajo / kRedTmp, error);
    if (error) throw base::Error("No se pudo borrar " + std::string(kRedTmp));
}

void TerminarReduccion(Combinacion& comb, int distancia, std::int32_t reducidas,
                       const base::Ajustes& ajustes) {
    comb.totalReducidas = comb.activasReducidas = reducidas;
    comb.panel.reducidas = {};
    comb.panel.reducidas[static_cast<std::size_t>(distancia - 1)] = reducidas;
    if (reducidas > 0) {
        comb.panel.precio = Importe(reducidas, ajustes);
    } else {
        comb.panel.precio.reset();
    }
}

ResultadoReduccion ReducirConCondiciones(Combinacion& comb,
                                         const std::filesystem::path& carpetaTrabajo, int distancia,
                                         base::Progreso& progreso, const base::Ajustes& ajustes) {
    if (distancia < kDistanciaMinima || distancia > kDistanciaMaxima) {
        throw base::Error("Distancia de reducción no válida");
    }
    PrepararReduccion(comb, carpetaTrabajo);
    base::LectorRegistros cmb(carpetaTrabajo / kCmbTmp, RegistroColumna::kLongitud);
    if (cmb.Cuenta() < comb.totalGeneradas) throw base::Error("Número de registro incorrecto");

    // Cada guardada se escribe en cuanto se guarda: con "&Detener", lo escrito es lo guardado.
    base::AnexadorRegistros red(carpetaTrabajo / kRedTmp, RegistroColumna::kLongitud);
    auto guardada = RegistroColumna{{}, comb.pleno, kActiva}.ABytes();
    Recubrimiento recubrimiento(distancia);
    ResultadoReduccion resultado;
    for (std::int32_t n = 1; n <= comb.totalGeneradas; ++n) {
        const auto bytes = cmb.Siguiente();
        const SignosColumna signos(reinterpret_cast<const Signo*>(bytes.data()), kPartidos);
        if (!recubrimiento.Considerar(signos)) continue;
        std::memcpy(guardada.data(), signos.data(), kPartidos);
        red.Anadir(guardada);
        progreso.Avance(n, comb.totalGeneradas);
        if (n < comb.totalGeneradas && progreso.Detenido()) {
            resultado.detenida = true;
            break;
        }
    }
    red.Cerrar();
    resultado.reducidas = red.Cuenta();
    TerminarReduccion(comb, distancia, resultado.reducidas, ajustes);
    return resultado;
}

}  // namespace quinteva::engine
