#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "seasons/record_files.h"

namespace quinteva::seasons {

inline constexpr std::string_view kMsgAntesDeEquipos =
    "Antes de introducir los Equipos tiene que seleccionar la Jornada e indicar la Fecha.";
inline constexpr std::string_view kMsgFaltaJornadaLiga1 =
    "Debe introducir el número de la jornada de Liga de 1ª División de que se trate.";
inline constexpr std::string_view kMsgFaltaJornadaLiga2 =
    "Debe introducir el número de la jornada de Liga de 2ª División de que se trate.";
inline constexpr std::string_view kMsgSoloNumeroJornadaLiga =
    "Sólo tiene que introducir el número de la Jornada de Liga.";
inline constexpr std::string_view kMsgConsignarJornada1 =
    "Tiene que consignar la Jornada de 1ª División que entra en la Quiniela.";
inline constexpr std::string_view kMsgConsignarJornada2 =
    "Tiene que consignar la Jornada de 2ª División que entra en la Quiniela.";
inline constexpr std::string_view kMsgSeleccionarJornadaQuiniela =
    "Tiene que seleccionar la Jornada de Quinielas.";
inline constexpr std::string_view kMsgFaltanSignos =
    "Tiene que introducir todos los signos de la Quiniela.";
inline constexpr std::string_view kMsgPlenoDosDigitos =
    "El pleno al 15 hay que introducirlo con dos dígitos, que serán los goles marcados por cada "
    "equipo. Para cada equipo se introducirán los valores 0, 1, 2 o M, si los goles marcados han "
    "sido más de dos";

// Los partidos de un boleto: 14 de signos y el Pleno al 15.
inline constexpr int kPartidosBoleto = 15;
// La división de la lista "Otros Equipos": nombres de fuera de las dos divisiones.
inline constexpr int kOtrosEquipos = 0;

// Una fila del boleto: los equipos y la división del partido.
struct FilaBoleto {
    std::string local;
    std::string visitante;
    int division = 0;  // 0: sin partido, u "Otros Equipos"
    friend bool operator==(const FilaBoleto&, const FilaBoleto&) = default;
};

// Los registros de "Jquin.rar" de una Jornada (Siglo "20"), en el orden del archivo, hasta 15.
std::vector<RegPartidoQuin> PartidosDeQuiniela(const std::filesystem::path& carpetaTemporada,
                                               int jornada);

// La fecha ("dd/mm/aa") de una Jornada de Quinielas de la temporada en curso, la de su primer
// partido; vacía si la Jornada no está o no hay temporada.
std::string FechaDeJornadaEnCurso(const std::filesystem::path& carpetaTrabajo, int jornada);

// Los nombres de "Otros Equipos": los de los partidos de "Jquin.rar" que no son de ninguna
// división de "Nomeq.rar", sin repetir y en orden.
std::vector<std::string> OtrosEquipos(const std::filesystem::path& carpetaTemporada);

// La ventana "Jornadas de Quinielas" sin ventana: el boleto de una Jornada (15 partidos con su
// división), su fecha y las Jornadas de Liga de 1ª y 2ª que lo alimentan. La cabecera muestra la
// Temporada ("Temporada 23/24"): sus 5 últimos caracteres son la Temporada de los registros.
class VentanaJornadasQuiniela {
  public:
    VentanaJornadasQuiniela(std::filesystem::path carpetaTemporada, std::string cabecera,
                            base::Dialogo& dialogo);

    const std::string& Cabecera() const { return cabecera_; }
    // La lista de equipos de una división (1 o 2) o de "Otros Equipos" (kOtrosEquipos).
    std::vector<std::string> Lista(int division) const;
    // Las Jornadas del selector: las de "Jquin.rar" (de 1 a 70) y las nuevas que se guardan; se
    // puede elegir cualquiera de 1 a 70 para empezar una.
    const std::vector<int>& Jornadas() const { return jornadas_; }
    // La Jornada: marcas, rejilla, fecha y Jornadas de Liga a cero, y lo que haya en "Jquin.rar".
    void ElegirJornada(int jornada);
    std::optional<int> Jornada() const { return jornada_; }
    bool JornadaExiste() const { return existe_; }

    const std::array<FilaBoleto, kPartidosBoleto>& Rejilla() const { return rejilla_; }
    // "dd/mm/aa"; vacía, la ventana muestra en gris "Fecha".
    const std::string& Fecha() const { return fecha_; }
    // Una tecla de la fecha: solo cifras y "/".
    bool TeclaFecha(char tecla);
    void EscribirFecha(std::string_view fecha) { fecha_ = fecha; }
    // Los campos "Jorn." de 1ª y "de 2ª Div.": solo cifras.
    const std::string& JornadaLiga(int division) const;
    bool TeclaJornadaLiga(char tecla);
    void EscribirJornadaLiga(int division, std::string_view jornada);

    // Un equipo de la lista de esa división al primer hueco, local y luego visitante; la fila
    // toma la división de la lista. false si se rechaza.
    bool Agregar(std::string_view equipo, int division);
    // Vacía una celda (columna 0 el local, 1 el visitante).
    void Vaciar(int fila, int columna);

    // "Guardar": una Jornada que existe se reescribe; una nueva se añade (15 partidos y su
    // columna en "Jornadas.rar") y pasa al selector. true si escribió.
    bool Guardar();
    // La Jornada nueva que el último "Guardar" añadió, para el selector de la principal.
    std::optional<int> JornadaNueva() const { return nueva_; }

  private:
    bool DivisionesConsignadas();
    void GuardarExistente(double fecha);
    void GuardarNueva(double fecha);
    int NumeroJornadaLiga(int division) const;

    std::filesystem::path carpetaTemporada_;
    std::string cabecera_;
    base::Dialogo& dialogo_;
    std::vector<int> jornadas_;
    std::optional<int> jornada_;
    bool existe_ = false;
    std::array<FilaBoleto, kPartidosBoleto> rejilla_{};
    std::string fecha_;
    std::array<std::string, 2> jornadasLiga_;
    std::optional<int> nueva_;
};

// Una fila de la ventana de resultados de Quinielas: los equipos y el signo ("1", "X", "2"); en
// la 15 el Pleno, local y visitante con "-" en medio ("1-M").
struct FilaSigno {
    std::string local;
    std::string visitante;
    std::string signo;
    friend bool operator==(const FilaSigno&, const FilaSigno&) = default;
};

// La ventana "Introducir o Ver Resultados" de Quinielas sin ventana: la columna ganadora de una
// Jornada, que va a "Jquin.rar" y a "Jornadas.rar" (el registro de la Temporada de la ventana
// principal).
class VentanaResultadosQuiniela {
  public:
    VentanaResultadosQuiniela(std::filesystem::path carpetaTemporada, std::string temporada,
                              base::Dialogo& dialogo);

    const std::vector<int>& Jornadas() const { return jornadas_; }
    void ElegirJornada(int jornada);
    std::optional<int> Jornada() const { return jornada_; }
    const std::array<FilaSigno, kPartidosBoleto>& Rejilla() const { return rejilla_; }
    // "dd/MM/yy".
    const std::string& Fecha() const { return fecha_; }

    // El signo de una fila (desde 0): en las 14 primeras "", "1", "X" o "2" (la x minúscula vale
    // X); en la 15 hasta tres caracteres, la m minúscula vale M. false si no se toma.
    bool EscribirSigno(int fila, std::string_view signo);

    // "Guardar": la columna en "Jquin.rar" (todos los registros de cada partido) y en
    // "Jornadas.rar". true si escribió.
    bool Guardar();

  private:
    std::filesystem::path carpetaTemporada_;
    std::string temporada_;
    base::Dialogo& dialogo_;
    std::vector<int> jornadas_;
    std::optional<int> jornada_;
    std::array<FilaSigno, kPartidosBoleto> rejilla_{};
    std::string fecha_;
};

// La columna ganadora de 15 caracteres de una rejilla de resultados: los 14 signos y la letra
// del Pleno hecha del primer y el último carácter de su celda (vacía si el par no es de la
// tabla).
std::string ColumnaDeResultados(const std::array<FilaSigno, kPartidosBoleto>& rejilla);

}  // namespace quinteva::seasons
