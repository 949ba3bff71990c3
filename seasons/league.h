#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "base/settings.h"

namespace quinteva::seasons {

inline constexpr std::string_view kMsgEquipoYaIntroducido = "Este Equipo ya está introducido.";
inline constexpr std::string_view kMsgTeclaFecha =
    "Tiene que introducir la fecha en formato 'dd/mm/aa'.";
inline constexpr std::string_view kMsgFaltaFecha = "Tiene que introducir la fecha de la Jornada.";
inline constexpr std::string_view kMsgFaltanEquipos = "No están introducidos todos los Equipos.";

// Los equipos de una división según los ajustes: "NEq1" (20 por defecto) o "NEq2" (22).
int EquiposDeLaDivision(const base::Ajustes& ajustes, int division);

// Una celda de la rejilla de partidos: fila desde 0; columna 0 el local, 1 el visitante.
struct Celda {
    int fila = 0;
    int columna = 0;
    friend bool operator==(const Celda&, const Celda&) = default;
};

// La ventana "Jornadas de Liga" sin ventana: el calendario de una Jornada de una división (la
// fecha y los pares de equipos), con sus tres marcas (HayCambios, JornadaExiste, FechaCambiada)
// y sus tres maneras de guardar en "Jlig2.rar". La Temporada es la de la ventana principal.
class VentanaJornadasLiga {
  public:
    VentanaJornadasLiga(std::filesystem::path carpetaTemporada, std::string temporada,
                        const base::Ajustes& ajustes, base::Dialogo& dialogo);

    // La división (1 o 2): las Jornadas del selector, 1 a 2 x (n - 1), la lista de sus equipos y
    // la Jornada 1.
    void ElegirDivision(int division);
    // La Jornada: marcas a cero, la rejilla y la fecha de "Jlig2.rar".
    void ElegirJornada(int jornada);

    int Division() const { return division_; }
    int Jornada() const { return jornada_; }
    int Jornadas() const { return 2 * (equipos_ - 1); }
    const std::vector<std::string>& Equipos() const { return lista_; }
    // n / 2 filas (parte entera): con un número impar de equipos, uno descansa.
    const std::vector<std::array<std::string, 2>>& Rejilla() const { return rejilla_; }
    // "dd/mm/aa"; vacía, la ventana muestra en gris "Fecha".
    const std::string& Fecha() const { return fecha_; }
    bool HayCambios() const { return hayCambios_; }
    bool JornadaExiste() const { return jornadaExiste_; }
    bool FechaCambiada() const { return fechaCambiada_; }
    Celda Elegida() const { return elegida_; }

    void ElegirCelda(Celda celda) { elegida_ = celda; }
    // "Agregar" un equipo de la lista: al primer hueco, fila a fila, local y luego visitante. Si
    // ya está en la rejilla, "Este Equipo ya está introducido." y esa celda queda elegida.
    bool Agregar(std::string_view equipo);
    // Pone el equipo en la celda elegida, o la vacía.
    void Reemplazar(std::string_view equipo);
    void Vaciar();
    // Una tecla de la fecha: solo cifras y "/"; false si se rechaza.
    bool TeclaFecha(char tecla);
    void EscribirFecha(std::string_view fecha);

    // "Guardar": solo la fecha, una Jornada nueva (y el selector pasa a la siguiente) o una
    // Jornada cambiada. true si escribió.
    bool Guardar();

  private:
    bool RejillaCompleta();
    void GuardarFecha(double fecha);
    void GuardarNueva(double fecha);
    void GuardarCambiada(double fecha);

    std::filesystem::path carpetaTemporada_;
    std::string temporada_;
    const base::Ajustes& ajustes_;
    base::Dialogo& dialogo_;
    int division_ = 1;
    int equipos_ = 20;
    int jornada_ = 1;
    std::vector<std::string> lista_;
    std::vector<std::array<std::string, 2>> rejilla_;
    std::string fecha_;
    bool hayCambios_ = false;
    bool jornadaExiste_ = false;
    bool fechaCambiada_ = false;
    Celda elegida_;
};

// Una tecla de un campo de fecha: solo cifras y "/"; otra cosa, "Tiene que introducir la fecha en
// formato 'dd/mm/aa'." y false.
bool TeclaDeFecha(char tecla, base::Dialogo& dialogo);

// "dd/mm/aa" a días desde el 30/12/1899 (años 2000 a 2099); una fecha imposible es el Error "No
// coinciden los tipos", como la conversión de fechas del sistema.
double SerieDeFecha(std::string_view fecha);
// Al revés: la fecha de los registros como la muestran las ventanas, "dd/mm/aa".
std::string FechaCorta(double serie);

}  // namespace quinteva::seasons
