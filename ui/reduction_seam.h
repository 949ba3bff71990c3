#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "base/progress.h"
#include "base/settings.h"
#include "engine/combination.h"

namespace quinteva::ui {

// Lo que la página "Reducir" pide: el nivel (0 "al 13", 1 "al 12", 2 "al 11") y los partidos
// marcados en la rejilla de selección (ninguno marcado: entran todos).
struct PeticionReduccion {
    int nivel = 0;
    std::array<bool, engine::kPartidos> seleccion{};
    bool haySeleccion = false;
    // "Reducción optimizada": menos columnas con la misma garantía.
    bool optimizada = false;
};

// Una fila de la ventana "Tabla de reducciones": la etiqueta de "Combinaciones" y las tres cifras
// "Al 13", "Al 12", "Al 11" ("-" donde no hay sistema), en negrita las reducciones óptimas.
struct CeldaReduccion {
    std::string texto;
    bool negrita = false;
};
struct FilaTablaReducciones {
    std::string combinaciones;
    std::array<CeldaReduccion, 3> niveles;
    int triples = 0;
    int dobles = 0;
};

// Los dos textos de la ventana "Reducción" ya formateados.
struct InformeReduccion {
    std::string reduccion;     // "La reducción realizada es del"
    std::string probabilidad;  // "Probabilidad de obtener 14 aciertos"
    // Las de cada premio con la ganadora según los porcentajes (las pone la ventana principal).
    std::vector<std::pair<std::string, std::string>> premios;
};

// La reducción vista desde la ventana: la pone quien tiene los sistemas reducidos y la cobertura.
// Reducir corre en el hilo de trabajo: lee "Cmb.tmp", escribe "Red.tmp" y deja en la Combinación
// las cuentas, la fila del nivel en el panel, el precio y NivelReducida. Devuelve el aviso que la
// ventana muestra al acabar (vacío si no hay).
class Reductor {
  public:
    virtual ~Reductor() = default;
    virtual std::string Reducir(engine::Combinacion& combinacion, const PeticionReduccion& peticion,
                                const std::filesystem::path& carpetaTrabajo,
                                base::Progreso& progreso, const base::Ajustes& ajustes) = 0;
    virtual std::vector<FilaTablaReducciones> TablaReducciones() const = 0;
    virtual InformeReduccion Informe(std::int32_t reducidas, double totalApuestas) const = 0;
};

}  // namespace quinteva::ui
