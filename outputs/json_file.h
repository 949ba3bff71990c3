#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "base/dialog.h"
#include "outputs/official_file.h"

namespace quinteva::outputs {

// Los campos de "Archivo JSON" ("Datos de archivo oficial JSON") tal como se muestran. Jornada,
// año y Receptor son los que el usuario puede cambiar con "&Modificar".
struct CamposArchivoJson {
    std::string jornada;
    std::string anio;
    std::string receptor;
    std::string hash;
    std::string apuestas;
    std::string boletos;
    std::string importe;
    // "Igual Pleno al 15 en todos los Boletos?"
    std::string igualPleno;

    friend bool operator==(const CamposArchivoJson&, const CamposArchivoJson&) = default;
};

// Un archivo oficial abierto en "Archivo JSON".
struct ArchivoJson {
    std::filesystem::path ruta;
    CabeceraOficial cabecera;
    CamposArchivoJson campos;
};

// Los campos que se muestran de lo leído: JORNADA con "00#", AÑO, RECEPTOR Nº sin ceros delante,
// HASH con un blanco delante, los totales con "#,##0" y el importe en euros con "#,##0.#0", cada
// uno con un blanco detrás.
CamposArchivoJson CamposDe(const ArchivoOficialLeido& leido);

// Lee el archivo (Windows-1252) y lo recorre; un archivo vacío deja la cabecera en blanco. Si el
// año o los totales no son números avisa "Posiblemente este archivo no tenga formato JSON." y
// sigue. Sin camino de error: un fallo del JSON o un desbordamiento suben tal cual.
ArchivoJson AbrirArchivoJson(const std::filesystem::path& ruta, base::Dialogo& dialogo);

// DatosArchivo: pide el archivo y lo abre; nada si el usuario no eligió ninguno.
std::optional<ArchivoJson> DatosArchivo(base::Dialogo& dialogo,
                                        const std::filesystem::path& carpeta = {});

// "&Modificar": el aviso que precede al desbloqueo de Jornada, año y Receptor.
void Modificar(base::Dialogo& dialogo);
// Lo que dicen los campos desbloqueados a una tecla que no es una cifra.
inline constexpr std::string_view kSoloNumeros = "Sólo puede introducir números.";

// "&Guardar" con los campos como estén: comprueba Receptor, año y Jornada, escribe el árbol en el
// orden de este guardado con su resumen nuevo en "RUTA-N.json", borra el original y pone el nuevo
// en su sitio. Con camino de error ("Error: ", texto y "."). True si se guardó.
bool Guardar(ArchivoJson& archivo, base::Dialogo& dialogo);

}  // namespace quinteva::outputs
