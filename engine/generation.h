#pragma once

#include <cstdint>
#include <filesystem>

#include "base/progress.h"
#include "base/settings.h"
#include "engine/combination.h"

namespace quinteva::engine {

// Cada cuántas columnas examinadas se informa a Progreso y se mira si se pidió "&Detener".
inline constexpr std::int64_t kColumnasPorAviso = 4096;

// Lo que la ventana muestra al acabar una generación.
struct ResultadoGeneracion {
    std::int64_t examinadas = 0;
    std::int32_t totalGeneradas = 0;
    // Se paró con "&Detener": lo escrito queda en "Cmb.tmp", ActivasGeneradas no se toca, ni
    // "Condicionada" ni el precio se actualizan y "Reducir" no se habilita.
    bool detenida = false;
    // "&INFO" (informe de rechazadas): hubo condiciones y la generación acabó.
    bool infoHabilitado = false;
    // El botón de la página "Reducir": acabó y hay alguna columna.
    bool reducirHabilitado = false;
    // Mostrar la ventana de aviso sobre los Boletos (ajuste "AvBoletos" de "Valores", "SI").
    bool avisoBoletos = false;
};

// "&Generar": recorre la Quiniela Base como un cuentakilómetros (partido 1 la cifra más lenta,
// 14 la más rápida, cada una en el orden 1, X, 2 saltando los signos no elegidos), pasa cada
// columna por Condicionar si NumCondiciones es mayor que 0 y añade las que pasan a "Cmb.tmp" en
// carpetaTrabajo (borrado antes) como RegistroColumna con el PlenoBase y estado "0". Pone a cero
// los contadores de rechazos y de columnas, OrigenPorcentajes a 0, deja "Guardada" en "NO" y el
// panel en blanco, y al acabar pone ActivasGeneradas y "Condicionada". Lanza base::Error si algún
// partido no tiene signo.
ResultadoGeneracion Generar(Combinacion& combinacion, const std::filesystem::path& carpetaTrabajo,
                            base::Progreso& progreso, const base::Ajustes& ajustes);

}  // namespace quinteva::engine
