#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "base/record_files.h"
#include "base/settings.h"
#include "seasons/league.h"
#include "seasons/league_table.h"
#include "seasons/record_files.h"

namespace quinteva::seasons {

inline constexpr std::string_view kPreguntaFaltanResultados =
    "No están introducidos todos los resultados, desea no obstante continuar.";

// Una fila de la rejilla de resultados: los equipos y los goles como texto ("" es una celda
// vacía).
struct FilaResultado {
    std::string local;
    std::string visitante;
    std::string golesLocal;
    std::string golesVisitante;
    friend bool operator==(const FilaResultado&, const FilaResultado&) = default;
};

// El signo de un resultado: "1", "X" o "2".
std::string SignoDeGoles(int golesLocal, int golesVisitante);
// Los goles de un lado en el Pleno al 15: la cifra, o "M" desde 3.
std::string GolesDelPleno(int goles);

// La ventana "Introducir o Ver Resultados" de la Liga sin ventana. Sus goles dan la historia
// ("Hist.rar"), los signos de las Quinielas que tienen el partido ("Jquin.rar" y "Jornadas.rar") y
// la clasificación, con la tabla de trabajo que vive lo que vive la ventana. La Temporada es la de
// la ventana principal.
class VentanaResultadosLiga {
  public:
    VentanaResultadosLiga(std::filesystem::path carpetaTrabajo,
                          std::filesystem::path carpetaTemporada, std::string temporada,
                          base::Ajustes& ajustes, base::Dialogo& dialogo);

    // La división y la Jornada 1.
    void ElegirDivision(int division);
    // La rejilla de "Jlig2.rar": cada partido con sus dos goles (0 y 0 si no se jugó).
    void ElegirJornada(int jornada);
    // Al abrir: la Jornada de la división que tiene un partido en la fecha de la Quiniela elegida
    // en la ventana principal. false si no hay ninguna (la Jornada no cambia).
    bool IrALaFecha(double fechaQuiniela);

    int Division() const { return division_; }
    int Jornada() const { return jornada_; }
    int Jornadas() const { return 2 * (EquiposDeLaDivision(ajustes_, division_) - 1); }
    const std::vector<FilaResultado>& Rejilla() const { return rejilla_; }
    // La fecha de la Jornada, "dd/mm/aa"; vacía si no hay partidos.
    const std::string& Fecha() const { return fecha_; }
    // Columna 0: goles del local; 1: del visitante.
    Celda Elegida() const { return elegida_; }
    void ElegirCelda(Celda celda) { elegida_ = celda; }
    // "Guardar" se puede pulsar desde que se tecleó un gol.
    bool PuedeGuardar() const { return golTecleado_; }

    // Una tecla en la celda elegida: una cifra la ocupa y pasa a la siguiente (de los goles del
    // local a los del visitante; de estos a los del local de la fila siguiente). Lo demás no se
    // toma: false.
    bool Tecla(char tecla);
    // La tecla Suprimir: vacía la celda elegida.
    void Borrar();
    // Los goles de una fila de una vez, como cifras; "" deja la celda vacía. false si no son
    // cifras.
    bool PonerGoles(int fila, std::string_view golesLocal, std::string_view golesVisitante);

    // "Guardar": los cuatro archivos fila a fila y luego la clasificación. true si escribió.
    bool Guardar();

  private:
    // Los cuatro archivos que "Guardar" abre a la vez; un Error los cierra todos y deja escritas
    // las filas anteriores.
    struct ArchivosResultados {
        base::ArchivoDe<RegPartidoLiga> liga;
        base::ArchivoDe<RegPartidoLiga> historia;
        base::ArchivoDe<RegPartidoQuin> quinielas;
        base::ArchivoDe<RegJornadaQuin> jornadas;
    };
    void GuardarFila(ArchivosResultados& archivos, int partido, int golesLocal, int golesVisitante);
    void ActualizarClasificacion();

    std::filesystem::path carpetaTrabajo_;
    std::filesystem::path carpetaTemporada_;
    std::string temporada_;
    base::Ajustes& ajustes_;
    base::Dialogo& dialogo_;
    Clasificacion clasificacion_;
    int division_ = 1;
    int jornada_ = 1;
    std::vector<FilaResultado> rejilla_;
    std::string fecha_;
    Celda elegida_;
    bool golTecleado_ = false;
};

}  // namespace quinteva::seasons
