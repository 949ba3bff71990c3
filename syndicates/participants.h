#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "syndicates/pena_store.h"

namespace quinteva::syndicates {

// Los Apostantes de una Peña: añadir, modificar, eliminar, importar de otro ".ptc" e
// "Introducir cuotas", con sus mensajes. Cada cambio se guarda entero en el ".ptc".

inline constexpr std::string_view kMsgFaltaNombreApostante =
    "Es preciso que cumplimente al menos el nombre del apostante.";
inline constexpr std::string_view kMsgSeleccioneDelCuadro =
    "Tiene que seleccionar un apostante del cuadro, pinchando sobre el mismo.";
inline constexpr std::string_view kMsgSeleccioneDeLaLista =
    "Tiene que seleccionar un apostante de la lista.";
inline constexpr std::string_view kMsgFaltaImporte =
    "Es preciso que introduzca el importe en euros que se juega por jornada.";
inline constexpr std::string_view kMsgFaltaJornadaInicial =
    "Es preciso que introduzca el número de la Jornada inicial, en la que quiere introducir "
    "cuotas.";
inline constexpr std::string_view kMsgFinalMenor =
    "La Jornada final debe ser mayor o igual que la inicial.";
inline constexpr std::string_view kMsgJornadaMaxima =
    "El número de la Jornada tiene que ser como máximo 70.";
inline constexpr std::string_view kPreguntaImportar =
    "Desea importar partícipes de otra Peña o de otro ejercicio ?";
inline constexpr std::string_view kFiltroParticipes = "Fichero de partícipes (*.ptc)|*.ptc|";
inline constexpr std::string_view kMsgMismaPena = "No se puede importar de la misma Peña";
inline constexpr std::string_view kMsgNadaMarcado =
    "No se ha marcado ningún partícipe para importar";
inline constexpr std::string_view kMsgImportacionTerminada = "Proceso terminado";

std::string MsgApostanteYaExiste(std::string_view nombre);
std::string PreguntaModificarApostante(std::string_view nombre);
std::string PreguntaEliminarApostante(std::string_view nombre);
std::string MsgNoSePuedeEliminar(std::string_view nombre);
std::string MsgJornadaCerradaCuotas(int jornada);
std::string PreguntaSustituirCuota(std::string_view nombre, float cuota, int jornada);
std::string MsgFilaSinNombre(int fila);

// Un importe en float32 como lo escribe el sistema al juntarlo a un texto: con coma decimal y
// sin ceros de sobra ("2,5", "10").
std::string TextoDeImporte(float importe);

// El índice del Apostante con ese nombre (recortado y sin distinguir mayúsculas), si lo hay.
std::optional<std::size_t> BuscarApostante(const std::vector<RegApostante>& apostantes,
                                           std::string_view nombre);

// "Añadir": con nombre y sin repetirlo, al final con todos los importes a 0 y la Temporada de la
// Peña. true si se añadió.
bool AnadirApostante(const ArchivosPena& pena, RegApostante datos, base::Dialogo& dialogo);
// "Modificar" del Apostante elegido (por su índice): la pregunta y los datos nuevos, con sus
// importes de antes.
bool ModificarApostante(const ArchivosPena& pena, std::optional<std::size_t> elegido,
                        RegApostante datos, base::Dialogo& dialogo);
// "Eliminar" del menú de la rejilla: la pregunta, y no si tiene alguna cuota.
bool EliminarApostante(const ArchivosPena& pena, std::size_t elegido, base::Dialogo& dialogo);

// "Introducir cuotas": el importe de cada Jornada del rango para el Apostante elegido, salvo en
// las cerradas; si ya tenía cuota, Sí la sustituye, No la deja y Cancelar acaba el rango con lo
// hecho. La Jornada final vacía es la inicial. true si se guardó algo.
bool IntroducirCuotas(const ArchivosPena& pena, std::optional<std::size_t> elegido,
                      std::string_view importe, std::string_view desde, std::string_view hasta,
                      base::Dialogo& dialogo);

// "Importar": la pregunta y el ".ptc" de otra Peña; sus Apostantes, o nada.
std::optional<std::vector<RegApostante>> ElegirParticipes(const ArchivosPena& pena,
                                                          const std::filesystem::path& carpeta,
                                                          base::Dialogo& dialogo);
// "Importar" de la ventana de partícipes: los marcados, cada uno con su fila (desde 1).
// Devuelve cuántos se añadieron.
int ImportarParticipes(const ArchivosPena& pena, const std::vector<RegApostante>& origen,
                       const std::vector<bool>& marcados, base::Dialogo& dialogo);

}  // namespace quinteva::syndicates
