#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "base/settings.h"
#include "seasons/record_files.h"

namespace quinteva::seasons {

// Puntos por partido, en casa y fuera, en 1ª y 2ª.
inline constexpr int kPuntosVictoria = 3;
inline constexpr int kPuntosEmpate = 1;

inline constexpr std::string_view kPreguntaRecalcular =
    "Este proceso puede ser muy largo y sólo es preciso realizarlo cuando se observa algún error "
    "en "
    "la clasificación. Desea no obstante hacerlo ahora?";

// La clasificación de una división, que se lleva en "Nomeq.rar" Jornada a Jornada. Clasifica
// suma una Jornada y da su puesto a cada equipo; SubClasifica deshace los empates. La tabla de
// trabajo (una fila por equipo, desde la 1: nombre, puntos, la cifra del enfrentamiento directo y
// la diferencia de goles) vive lo que vive el objeto, como la rejilla de la ventana de
// resultados: la cifra del enfrentamiento no se borra entre Jornadas y se queda en su fila hasta
// que SubClasifica la escribe otra vez. Esa rareza, y la del recorrido de los empates, son parte
// del resultado.
class Clasificacion {
  public:
    Clasificacion(std::filesystem::path carpetaTemporada, int division);

    // La división del selector de la ventana de resultados; la tabla de trabajo sigue la misma.
    void ElegirDivision(int division) { division_ = division; }

    // Suma la Jornada a las cifras de los equipos de la división y les da su puesto. Una Jornada
    // sin goles (solo 0-0) no se ha jugado: false, sin cambios.
    bool Clasifica(int jornada);

    // Una fila de la tabla de trabajo; las columnas son texto, como en la rejilla.
    struct Fila {
        std::string nombre;
        std::string puntos;
        std::string enfrentamiento;
        std::string diferencia;
        friend bool operator==(const Fila&, const Fila&) = default;
    };
    const std::vector<Fila>& Tabla() const { return tabla_; }

  private:
    // La diferencia de goles de cada partido entre dos nombres de la tabla (el primero en casa),
    // sumada sobre el "Jlig2.rar" entero: lo que SubClasifica sacaría recorriendo el archivo por
    // cada par, de una sola pasada.
    class Enfrentamientos {
      public:
        Enfrentamientos(const std::vector<Fila>& tabla,
                        const std::vector<RegPartidoLiga>& partidos);
        int Diferencia(const std::string& local, const std::string& visitante) const;

      private:
        std::map<std::string, std::size_t, std::less<>> indices_;
        std::vector<int> diferencia_;
    };

    void SubClasifica(std::size_t primero, std::size_t ultimo,
                      const Enfrentamientos& enfrentamientos);

    std::filesystem::path carpetaTemporada_;
    int division_;
    std::vector<Fila> tabla_;  // tabla_[0] es la fila 1
};

// Jugados a PerdidosFuera a cero para los equipos de la división; Posicion y PosicionJornada se
// quedan hasta que se escriban otra vez.
void CifrasACero(const std::filesystem::path& carpetaTemporada, int division);

// "Recalcular": la pregunta (No por defecto), las cifras de la división a cero y Clasifica de la
// Jornada 1 a "MaxJor1ª" o "MaxJor2ª" con una tabla de trabajo nueva. true si se hizo.
bool Recalcular(const std::filesystem::path& carpetaTemporada, int division,
                const base::Ajustes& ajustes, base::Dialogo& dialogo);

// Una fila de la ventana "Clasificación".
struct PuestoClasificacion {
    int posicion = 0;
    std::string nombre;
    int puntos = 0;
    int jugados = 0;
    int ganados = 0;
    int empatados = 0;
    int perdidos = 0;
    int golesFavor = 0;
    int golesContra = 0;
    int diferencia = 0;
};

// FFlex: tantas filas como "NEq1" (20 por defecto) o "NEq2" (22); cada equipo de la división con
// puesto va a la fila de su puesto; las demás quedan vacías.
std::vector<std::optional<PuestoClasificacion>> FilasClasificacion(
    const std::filesystem::path& carpetaTemporada, int division, const base::Ajustes& ajustes);

// El color de la fila de un puesto: verde, azul o rojo por bandas fijas que no siguen al número de
// equipos (1ª: 1 a 4 verde, 5 y 6 azul, desde 18 rojo; 2ª: 1 y 2 verde, 3 a 6 azul, desde 19
// rojo); ninguno fuera de ellas.
enum class ColorPuesto { Ninguno, Verde, Azul, Rojo };
ColorPuesto ColorDelPuesto(int division, int puesto);

}  // namespace quinteva::seasons
