#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "base/settings.h"

namespace quinteva::seasons {

// Los equipos que se pueden teclear en la ventana y los que admite el diálogo de una temporada
// nueva: los dos límites son distintos a propósito.
inline constexpr int kMinimoEquipos = 18;
inline constexpr int kMaximoEquipos = 25;
inline constexpr int kMaximoEquiposTemporadaNueva = 23;
// La Temporada que deja "Todo a Cero" en "Nomeq.rar", sea cual sea la de la carpeta.
inline constexpr std::string_view kTemporadaACero = "19/20";

inline constexpr std::string_view kMsgFaltaNumero =
    "Tiene que introducir el número de equipos que hay en la categoría.";
inline constexpr std::string_view kMsgFaltaTemporada = "Tiene que introducir la Temporada.";
inline constexpr std::string_view kMsgEquipoRepetido =
    "Este Equipo ya está introducido, en esta División o en la otra.";
inline constexpr std::string_view kMsgNoModificar =
    "Al estar creadas las Jornadas de Liga ya no se puede modificar ningún Equipo.";
inline constexpr std::string_view kMsgNoEliminar =
    "Al estar creadas las Jornadas de Liga ya no se puede eliminar ningún Equipo.";
inline constexpr std::string_view kMsgFaltaNombre = "Tiene que introducir el nombre del equipo.";
inline constexpr std::string_view kMsgFaltaValoracion = "Tiene que introducir la valoración.";
inline constexpr std::string_view kMsgNumeroFijo =
    "Sólo se puede cambiar el número de Equipos de la categoría mientras que no aparezca "
    "introducido ningún Equipo.";
inline constexpr std::string_view kMsgNumeroFueraDeLimites =
    "El número de Equipos debe estar comprendido entre 18 y 25.";
inline constexpr std::string_view kMsgRectifiqueNumero =
    "Si no está seguro del número de equipos de la categoría rectífiquelo ahora, pues cuando "
    "introduzca equipos ya no lo podrá modificar.";
inline constexpr std::string_view kMsgTeclaTemporada =
    "Tiene que introducir la Temporada en formato '00/01'.";
inline constexpr std::string_view kMsgTemporadaCorta =
    "Tiene que introducir la Temporada en formato '13/14'.";
inline constexpr std::string_view kPreguntaNuevaTemporada =
    "Está seguro de que desea empezar una nueva Temporada de Liga?";
inline constexpr std::string_view kPideNuevaTemporada =
    "Por favor introduzca la nueva Temporada en formato 'aa/aa', Por ejemplo: 01/02.";
inline constexpr std::string_view kMsgFormatoTemporada =
    "No ha introducido la Temporada en formato 'aa/aa'.";
inline constexpr std::string_view kPideEquipos1 =
    "Por favor indique el número de equipos que va a tener la 1ª División.";
inline constexpr std::string_view kPideEquipos2 =
    "Ahora indique el número de equipos que va a tener la 2ª División.";
inline constexpr std::string_view kMsgEquiposIncorrecto =
    "El número de equipos introducido no es correcto.";
inline constexpr std::string_view kMsgEquiposMayor =
    "El número de equipos no puede ser mayor que 23.";
inline constexpr std::string_view kMsgTemporadaCreada =
    "Se ha creado la nueva Temporada. Ahora debe eliminar los equipos que ya no pertenecen a las "
    "categorías, pinchando sobre ellos con el botón derecho del ratón, y después introducir los "
    "nuevos equipos de 1ª y 2ª División. A continuación reinicie el programa e introduzca las "
    "jornadas de Liga y de Quinielas.";

// "Ya hay introducidos " & n & " Equipos.", con n el número del campo.
std::string MsgDivisionCompleta(std::string_view numero);
// Las preguntas de "Modificar" y "Eliminar", con el nombre del equipo.
std::string PreguntaModificarEquipo(std::string_view nombre);
std::string PreguntaModificarValoracion(std::string_view nombre);
std::string PreguntaEliminarEquipo(std::string_view nombre);

// Los nombres de los equipos de una división, recortados, en el orden de "Nomeq.rar".
std::vector<std::string> NombresDeLaDivision(const std::filesystem::path& carpetaTemporada,
                                             int division);

enum class ModoEquipos { Anadir, Modificar };

// Lo que muestra la ventana de una división: sus equipos, ordenados, y el campo del número de
// equipos, tal como está escrito.
struct ListaDivision {
    std::vector<std::string> equipos;
    std::string numero;
};

// La ventana "Equipos" sin ventana: las listas de 1ª (0) y 2ª (1) División, los campos del número
// de equipos y de la Temporada, el modo, y lo que hace cada tecla y cada mandato sobre
// "Nomeq.rar", "Tempor.rar" y los ajustes, hablando por el Dialogo. Un fallo de disco sale como
// base::Error tras los pasos ya dados, que no se deshacen.
class VentanaEquipos {
  public:
    VentanaEquipos(std::filesystem::path carpetaTrabajo, std::filesystem::path carpetaTemporada,
                   base::Ajustes& ajustes, base::Dialogo& dialogo);

    // Al abrirse: los números de "NEq1" y "NEq2", la Temporada del primer equipo, las listas y si
    // hay Jornadas de Liga.
    void Abrir();

    const ListaDivision& Division(int division) const {
        return divisiones_[static_cast<std::size_t>(division)];
    }
    const std::string& Temporada() const { return temporada_; }
    ModoEquipos Modo() const { return modo_; }
    // Con Jornadas de Liga los modos se deshabilitan y los nombres se bloquean: solo se mira.
    bool SoloMirar() const { return soloMirar_; }
    // El número de una división queda fijo en cuanto tiene equipos.
    bool NumeroFijo(int division) const { return !Division(division).equipos.empty(); }
    // La Temporada solo se escribe con las dos listas vacías.
    bool TemporadaEditable() const { return !NumeroFijo(0) && !NumeroFijo(1); }

    void ElegirModo(ModoEquipos modo) { modo_ = modo; }
    void EscribirNumero(int division, std::string_view numero);
    // Un clic en el número de una división que ya tiene equipos.
    void PulsarNumero(int division);
    // Al salir del campo: false si el foco se queda en él.
    bool SalirDeNumero(int division);
    // Una tecla en el campo de la Temporada: solo cifras y "/"; false si se rechaza.
    bool TeclaTemporada(char tecla);
    void EscribirTemporada(std::string_view temporada);
    bool SalirDeTemporada();

    // Intro en el nombre de una división: añade en el modo "Añadir", cambia el nombre del equipo
    // elegido en el modo "Modificar". true si cambió algo (el campo del nombre se vacía).
    bool IntroEnNombre(int division, std::string_view nombre, std::string_view valoracion);
    // Intro en la valoración, en el modo "Modificar": cambia la valoración del equipo elegido.
    bool IntroEnValoracion(int division, std::string_view nombre, std::string_view valoracion);
    // "Modificar" del menú de la lista: el nombre y la valoración para los campos, y el modo.
    std::pair<std::string, std::string> ElegirParaModificar(int division, int fila);
    // "Eliminar" del menú de la lista. true si se eliminó.
    bool Eliminar(int division, int fila);

    // "Nueva Temporada": lo que dice la etiqueta de la ventana principal ("Temporada " y la
    // nueva) si se llegó a crear; nada si se detuvo antes.
    std::optional<std::string> NuevaTemporada();
    // "Todo a Cero", sin preguntar.
    void TodoACero();

  private:
    bool HayJornadasDeLiga() const;
    bool Anadir(int division, std::string_view nombre, std::string_view valoracion);
    bool CambiarNombre(int division, std::string_view nombre, std::string_view valoracion);
    // Los pasos 3 y 4 de "Modificar": el registro del equipo elegido y su fila.
    void Reescribir(std::string_view nombre, std::string_view valoracion);
    std::optional<int> PedirEquipos(std::string_view pregunta);

    std::filesystem::path carpetaTrabajo_;
    std::filesystem::path carpetaTemporada_;
    base::Ajustes& ajustes_;
    base::Dialogo& dialogo_;
    std::array<ListaDivision, 2> divisiones_;
    std::string temporada_;
    ModoEquipos modo_ = ModoEquipos::Anadir;
    bool soloMirar_ = false;
    // La fila y la división del último clic, para "Modificar".
    int divisionElegida_ = 0;
    int filaElegida_ = -1;
};

}  // namespace quinteva::seasons
