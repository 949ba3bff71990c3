#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "base/settings.h"

namespace quinteva::seasons {

// Las Jornadas de Quiniela que ofrece la ventana principal.
inline constexpr int kPrimeraJornadaLista = 1;
inline constexpr int kUltimaJornadaLista = 70;

// Lo que el arranque deja preparado para la ventana principal.
struct TemporadaPreparada {
    std::string temporadaActual;  // nombre de la carpeta, "Temporada2324"
    std::filesystem::path carpetaTemporada;
    int equipos1 = 0;  // NEq1
    int equipos2 = 0;  // NEq2
    int maxJornada1 = 0;
    int maxJornada2 = 0;
    std::vector<int> jornadas;  // la lista de Jornadas, de 1 a 70
};

// Copia a la carpeta de la temporada los archivos recién instalados en la carpeta del programa
// que a la temporada le falten ("Jlig2.rar", "Jquin.rar", "Jornadas.rar", "Nomeq.rar"). Luego
// borra los de la carpeta del programa, salvo "Jlig2.rar": de ese se borra el de la carpeta de
// trabajo y el del programa se queda.
void MoverArchivosDescargados(const std::filesystem::path& carpetaPrograma,
                              const std::filesystem::path& carpetaTrabajo,
                              const std::filesystem::path& carpetaTemporada);

// Cuenta los equipos de 1ª y 2ª de "Nomeq.rar" y guarda "NEq1" y "NEq2" en "Valores".
std::pair<int, int> ContarEquipos(const std::filesystem::path& carpetaTemporada,
                                  base::Ajustes& ajustes);

// Los números de 1 a 70 que tienen algún registro en "Jquin.rar", en orden.
std::vector<int> ListaJornadas(const std::filesystem::path& carpetaTemporada);

// Un partido de una Jornada de Quiniela tal como lo pone la ventana en la Quiniela Base.
struct PartidoJornada {
    std::string equipos;  // "Local - Visitante", nombres recortados; "" si falta el registro
    int division = 0;
};

struct JornadaQuiniela {
    int jornada = 0;
    std::string fecha;  // "dd/MM/yy"
    std::array<PartidoJornada, 15> partidos;
};

// Los 15 partidos de una Jornada de "Jquin.rar" por su número de partido.
JornadaQuiniela LeerJornadaQuiniela(const std::filesystem::path& carpetaTemporada, int jornada);

// Los pasos de la temporada en el arranque, en su orden: "Tempor.rar" (lanza base::Error si
// falta), la carpeta de la temporada (se crea), los archivos descargados, NEq1 y NEq2,
// MaxJornada y la lista de Jornadas.
TemporadaPreparada PrepararTemporada(const std::filesystem::path& carpetaPrograma,
                                     const std::filesystem::path& carpetaTrabajo,
                                     base::Ajustes& ajustes);

}  // namespace quinteva::seasons
