#include "engine/optimized_reduction.h"

#include <algorithm>
#include <vector>

#include "base/error.h"
#include "base/formats.h"
#include "base/record_files.h"
#include "engine/column_code.h"
#include "engine/cover.h"

namespace quinteva::engine {

namespace {

// Las activas de "Cmb.tmp" en su orden: las que tienen código (sin repetir) van a la búsqueda;
// las demás se quedan tal cual. De paso, lo que guardaría la voraz.
struct Activas {
    std::vector<Columna> columnas;
    std::vector<std::int32_t> codigos;    // uno por columna, -1 si no tiene
    std::vector<std::int32_t> conCodigo;  // posiciones en columnas de las que tienen código
    std::vector<std::size_t> semilla;     // índices en conCodigo de las de la semilla
    std::int32_t voraz = 0;
};

Activas LeerActivas(const Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
                    int distancia, const EnSemilla& deSemilla) {
    base::LectorRegistros cmb(carpetaTrabajo / kCmbTmp, RegistroColumna::kLongitud);
    if (cmb.Cuenta() < comb.totalGeneradas) throw base::Error("Número de registro incorrecto");
    Activas activas;
    std::vector<char> visto(static_cast<std::size_t>(kCodigosColumna), 0);
    Recubrimiento voraz(distancia);
    for (std::int32_t n = 1; n <= comb.totalGeneradas; ++n) {
        const auto registro = RegistroColumna::DeBytes(cmb.Siguiente());
        activas.voraz += voraz.Considerar(registro.columna) ? 1 : 0;
        if (!registro.Activa()) continue;
        const std::int32_t codigo = CodigoColumna(registro.columna);
        if (codigo >= 0) {
            if (visto[static_cast<std::size_t>(codigo)]) continue;
            visto[static_cast<std::size_t>(codigo)] = 1;
            if (deSemilla && deSemilla(registro.columna)) {
                activas.semilla.push_back(activas.conCodigo.size());
            }
            activas.conCodigo.push_back(static_cast<std::int32_t>(activas.columnas.size()));
        }
        activas.columnas.push_back(registro.columna);
        activas.codigos.push_back(codigo);
    }
    return activas;
}

}  // namespace

ResultadoOptimizada ReducirOptimizado(Combinacion& comb,
                                      const std::filesystem::path& carpetaTrabajo, int distancia,
                                      const OpcionesOptimizada& opciones, base::Progreso& progreso,
                                      const base::Ajustes& ajustes, const EnSemilla& deSemilla) {
    if (distancia < kDistanciaMinima || distancia > kDistanciaMaxima) {
        throw base::Error("Distancia de reducción no válida");
    }
    PrepararReduccion(comb, carpetaTrabajo);
    const Activas activas = LeerActivas(comb, carpetaTrabajo, distancia, deSemilla);
    std::vector<std::int32_t> codigos;
    codigos.reserve(activas.conCodigo.size());
    for (const std::int32_t i : activas.conCodigo)
        codigos.push_back(activas.codigos[static_cast<std::size_t>(i)]);
    const auto cubierta = CubrirOptimizado(codigos, distancia, opciones, progreso, activas.semilla);

    std::vector<char> quedan(activas.columnas.size(), 0);
    for (std::size_t i = 0; i < activas.columnas.size(); ++i) quedan[i] = activas.codigos[i] < 0;
    for (const std::size_t e : cubierta) quedan[static_cast<std::size_t>(activas.conCodigo[e])] = 1;
    base::AnexadorRegistros red(carpetaTrabajo / kRedTmp, RegistroColumna::kLongitud);
    RegistroColumna guardada{{}, comb.pleno, kActiva};
    for (std::size_t i = 0; i < activas.columnas.size(); ++i) {
        if (!quedan[i]) continue;
        guardada.columna = activas.columnas[i];
        red.Anadir(guardada.ABytes());
    }
    red.Cerrar();
    ResultadoOptimizada resultado;
    resultado.reduccion.reducidas = red.Cuenta();
    resultado.voraz = activas.voraz;
    TerminarReduccion(comb, distancia, resultado.reduccion.reducidas, ajustes);
    return resultado;
}

std::string MensajeOptimizada(const ResultadoOptimizada& r) {
    const std::int32_t ahorradas = std::max(0, r.voraz - r.reduccion.reducidas);
    return "Reducción optimizada: " + base::Formato(r.reduccion.reducidas, "#,##0") +
           " columnas, " + base::Formato(ahorradas, "#,##0") +
           " menos que la reducción sin optimizar (" + base::Formato(r.voraz, "#,##0") + ").";
}

}  // namespace quinteva::engine
