#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "base/dialog.h"
#include "base/settings.h"

namespace quinteva::outputs {

// "Generar fichero oficial" desde la ventana principal: lo tecleado y lo que da la Combinación.
struct PeticionPrincipal {
    std::string receptor;
    std::string nombre;
    // ActivasGeneradas si el juego es ".cnd", si no ActivasReducidas.
    std::int32_t columnas = 0;
    // El archivo de columnas del juego; se toman sus registros activos, en orden.
    std::filesystem::path fuente;
    // Año de la fecha de la Jornada que muestra la ventana principal.
    int anio = 0;
};

// "Generar fichero oficial" desde la ventana de importación.
struct PeticionImportacion {
    std::string receptor;
    std::string nombre;
    // Las columnas que da la ventana de importación.
    double columnas = 0;
    // Donde está "Arimp.tmp"; se toman todos sus registros.
    std::filesystem::path carpetaTrabajo;
};

// A qué campo vuelve el foco tras un aviso.
enum class Campo { Ninguno, Receptor, Nombre };

struct ResultadoGeneracion {
    // Con true la ventana se cierra: el archivo está escrito.
    bool terminado = false;
    Campo foco = Campo::Ninguno;
    // El archivo creado (vacío si se abandonó después de crearlo); nada si no se llegó a crear.
    std::optional<std::filesystem::path> archivo;
};

inline constexpr std::string_view kArimpTmp = "Arimp.tmp";

// Sin camino de error propio: un fallo sube tal cual.
ResultadoGeneracion GenerarDesdePrincipal(const PeticionPrincipal& peticion, base::Dialogo& dialogo,
                                          base::Ajustes& ajustes);

// Con camino de error: "Error: ", el texto del fallo y ".".
ResultadoGeneracion GenerarDesdeImportacion(const PeticionImportacion& peticion,
                                            base::Dialogo& dialogo, base::Ajustes& ajustes);

}  // namespace quinteva::outputs
