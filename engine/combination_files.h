#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/bytes.h"
#include "base/dialog.h"
#include "base/settings.h"
#include "engine/combination.h"

namespace quinteva::engine {

// El único registro del ".uxd": 5.189 bytes sin relleno, enteros little-endian y textos ANSI
// rellenos de blancos. Guarda los límites posibles de Generales y Seguidos (el filtro los usa para
// saltarse pruebas en cuanto se abre) y los de los Grupos de Aciertos una sola vez.
struct RegistroCabecera {
    static constexpr std::size_t kLongitud = 5189;

    std::string nombre;  // text(15)
    std::uint8_t jornada = 0;
    std::string jugada;  // text(3): "cnd", "red" o blancos
    std::int32_t alDirecto = 0, condicionada = 0, al13 = 0, al12 = 0, al11 = 0, al10 = 0;
    // Celdas de signo de la base: [columna 2, 3, 4 de la rejilla][fila 0 a 14], 1 si "X".
    std::array<std::array<std::uint8_t, 15>, 3> celdas{};
    PlenoBase pleno{' ', ' '};
    std::uint8_t dobles = 0, triples = 0;
    std::uint8_t origenPorcentajes = 0;
    std::array<std::array<std::uint8_t, kPartidos>, 3> tablaPorcentajes{};
    std::int32_t valorPorcentajes = 0;
    // Las casillas 0 a 4 y 7 a 10 y todos los campos de las condiciones (PosMinUnos y PosMaxUnos
    // no se guardan).
    SetCondiciones condiciones;

    // Lanza base::Desbordamiento si un valor no cabe en su campo.
    std::array<base::Byte, kLongitud> ABytes() const;
    // bytes ha de tener kLongitud bytes.
    static RegistroCabecera DeBytes(std::span<const base::Byte> bytes);
};

// La cabecera desde el estado (etiquetas del panel, base, condiciones) y al revés.
RegistroCabecera CabeceraDe(const Combinacion& combinacion);
// Lee la cabecera de un ".uxd" sin tocar nada más; lanza base::Error si el archivo no existe,
// está vacío o no tiene exactamente 5.189 bytes.
RegistroCabecera LeerCabecera(const std::filesystem::path& uxd);
// Pasa la cabecera al estado: nombre, Jornada, conjunto jugado, base y Pleno, condiciones (con los
// "1" posibles recalculados de la base), porcentajes y las cuentas del panel ("Guardada" "SI").
// No toca los almacenes ni el precio.
void CargarCabecera(Combinacion& combinacion, const RegistroCabecera& cabecera);
// Rutas hermanas: la del ".uxd" sin sus 4 últimos caracteres más la extensión (".cnd", ".red").
std::filesystem::path RutaHermana(const std::filesystem::path& uxd, std::string_view extension);

// Guardar: escribe el ".uxd" (conservando el conjunto jugado del que ya había), el ".cnd" con
// TotalGeneradas registros de "Cmb.tmp" si "Condicionada" no está en blanco y el ".red" con
// TotalReducidas de "Red.tmp" si alguna fila reducida no lo está; si no, borra el que hubiera.
// Cada archivo se escribe en un temporal que se renombra encima: un fallo a mitad deja el
// anterior. El ".cnd" o ".red" que ya tiene el contenido que se va a escribir no se reescribe. Pone
// "Guardada" en "SI" y el precio (ajuste "PrecioApu15", 0,75 por defecto). Requiere
// RutaCombinacion.
void Guardar(Combinacion& combinacion, const std::filesystem::path& carpetaTrabajo,
             const base::Ajustes& ajustes);

// Abrir: lee el ".uxd" de RutaCombinacion en el estado, copia el ".cnd" a "Cmb.tmp" y el ".red"
// a "Red.tmp" (contando totales y activas) y recalcula NumCondiciones. Antes de tocar nada
// comprueba los archivos: un ".uxd" vacío o de otra longitud, o un ".cnd"/".red" cuya longitud
// no es múltiplo de 17, lanzan base::Error con un texto claro y no cambian nada.
void Abrir(Combinacion& combinacion, const std::filesystem::path& carpetaTrabajo,
           const base::Ajustes& ajustes);

// Abrir para generar enseguida: como Abrir, pero el ".cnd" y el ".red" no se copian a los
// almacenes y las cuentas de columnas quedan a 0.
void AbrirParaGenerar(Combinacion& combinacion, const base::Ajustes& ajustes);

// AbrirCombinacion: nada si la ruta está vacía; si no, una Combinación nueva, RutaCombinacion,
// Abrir y la lista de recientes.
void AbrirCombinacion(Combinacion& combinacion, const std::filesystem::path& ruta,
                      const std::filesystem::path& carpetaTrabajo, base::Ajustes& ajustes);

// Lista de archivos recientes: "Ult1", "Ult2", "Ult3" de "Valores".
std::array<std::string, 3> Recientes(const base::Ajustes& ajustes);
// Ult3 toma Ult2, Ult2 toma Ult1 y Ult1 la ruta nueva.
void AnotarReciente(base::Ajustes& ajustes, const std::string& ruta);
// La entrada n (1 a 3) pasa arriba (las entradas 2 y 3 al elegirse).
void SubirReciente(base::Ajustes& ajustes, int n);
// El texto del menú: la ruta entera si tiene menos de 25 caracteres; si no, sus 10 primeros,
// "..." y el trozo desde la última barra hasta antes de la extensión. "" si la ruta está vacía
// (la entrada se oculta).
std::string TituloReciente(std::string_view ruta);

// Los textos de los dos mandatos de guardar.
inline constexpr std::string_view kFiltroUxd = "Quiniela de Quinteva (*.uxd)|*.uxd|";
inline constexpr std::string_view kMsgBaseIncompleta =
    "Para poder guardar la quiniela tiene al menos que completar la Quiniela Base.";
inline constexpr std::string_view kMsgDirectorioPrograma =
    "Las combinaciones no deben guardarse dentro del directorio del programa Lo más conveniente "
    "es guardarlas en cualquier carpeta dentro de Mis Documentos";
inline constexpr std::string_view kMsgNombreLargo =
    "El nombre de la Quiniela no puede tener más de 15 caracteres.";
inline constexpr std::string_view kMsgSobrescribir =
    "Esa quiniela ya existe, desea sobrescribirla?";
inline constexpr std::string_view kMsgGuardarActual = "Desea guardar la Quiniela actual?";

// "G&uardar como": las comprobaciones y los mensajes, y Guardar. Devuelve true si guardó.
bool GuardarComo(Combinacion& combinacion, const std::filesystem::path& carpetaTrabajo,
                 const std::filesystem::path& carpetaPrograma, base::Ajustes& ajustes,
                 base::Dialogo& dialogo);
// "&Guardar...": "G&uardar como" si no hay nombre; si no, Guardar.
bool GuardarMenu(Combinacion& combinacion, const std::filesystem::path& carpetaTrabajo,
                 const std::filesystem::path& carpetaPrograma, base::Ajustes& ajustes,
                 base::Dialogo& dialogo);

}  // namespace quinteva::engine
