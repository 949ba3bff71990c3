#include "builders/reduce.h"

#include "base/error.h"

namespace quinteva::builders {

ResultadoReducir Reducir(engine::Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
                         int opcion, const SeleccionPartidos& seleccion, ClaseBase& clases,
                         base::Progreso& progreso, const base::Ajustes& ajustes,
                         const std::optional<engine::OpcionesOptimizada>& optimizada) {
    if (opcion < 0 || opcion > 3) throw base::Error("Opción de reducción no válida");
    ResultadoReducir r;
    if (opcion == 3) {
        r.sinAccion = true;
        return r;
    }
    const int distancia = opcion + 1;
    if (optimizada) {
        // El sistema de las tablas para la forma de la base, con lo que de él pase las
        // condiciones, es un buen comienzo más.
        engine::EnSemilla deSemilla;
        if (auto patrones = PatronesDeLaBase(comb.base, 14 - distancia, clases)) {
            deSemilla = [casa = CasaConPatrones(*patrones)](engine::SignosColumna signos) {
                return casa({reinterpret_cast<const base::Byte*>(signos.data()), signos.size()});
            };
        }
        r.optimizada = engine::ReducirOptimizado(comb, carpetaTrabajo, distancia, *optimizada,
                                                 progreso, ajustes, deSemilla);
        r.reduccion = r.optimizada->reduccion;
    } else if (comb.numCondiciones == 0) {
        const ResultadoTablas tablas = ReducirPorTablas(comb, carpetaTrabajo, 14 - distancia,
                                                        seleccion, clases, progreso, ajustes);
        r.reduccion = tablas.reduccion;
        r.sinSistema = tablas.sinSistema;
    } else {
        r.reduccion =
            engine::ReducirConCondiciones(comb, carpetaTrabajo, distancia, progreso, ajustes);
    }
    comb.nivelReducida = static_cast<std::uint8_t>(opcion);
    r.avisoBoletos = ajustes.Leer(base::kAplicacion, "Valores", "AvBoletos", "SI") == "SI";
    return r;
}

}  // namespace quinteva::builders
