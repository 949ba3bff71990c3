#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/settings.h"
#include "seasons/record_files.h"

namespace quinteva::seasons {

inline constexpr std::string_view kTodas = "Todas";
inline constexpr std::string_view kMsgEligeEquipo = "Tiene que seleccionar el equipo.";
inline constexpr std::string_view kMsgEligeDosEquipos = "Tiene que seleccionar a los dos equipos.";
inline constexpr std::string_view kMsgEligeJornada =
    "Tiene que seleccionar Temporada, División y Jornada.";

// El selector de temporadas de "Estadísticas": cada Temporada de "Jornadas.rar" una vez, en el
// orden del archivo, y "Todas" al final; al abrir se elige la de antes de las dos últimas.
struct SelectorTemporadas {
    std::vector<std::string> entradas;
    int elegida = 0;
};
SelectorTemporadas TemporadasDeJornadas(const std::filesystem::path& carpetaTemporada);

// Las columnas ganadoras de una Temporada ("Todas": todas), sin las que tienen Signos en blanco.
std::vector<RegJornadaQuin> ColumnasDeTemporada(const std::filesystem::path& carpetaTemporada,
                                                std::string_view temporada);

// Las veces que el signo ('1', 'X' o '2') salió en cada una de las 15 posiciones.
std::array<int, 15> SignosPorPosicion(const std::vector<RegJornadaQuin>& columnas, char signo);

// Para n de 2 a 14 (elemento n - 2), en cuántas columnas hay una racha de al menos n signos
// iguales al dado entre los 14 primeros.
std::array<int, 13> Rachas(const std::vector<RegJornadaQuin>& columnas, char signo);

// "Parejas", "Tríos" y "Grupos de n": para las posiciones dadas (desde 1), cuántas veces salió cada
// combinación de signos, en el orden 1, X, 2 ("11", "1X", "12", "X1", ...). Una columna con algo
// que no es un signo en esas posiciones no cuenta.
struct Combinacion {
    std::string signos;
    int veces = 0;
};
std::vector<Combinacion> CombinacionesEnPosiciones(const std::vector<RegJornadaQuin>& columnas,
                                                   const std::vector<int>& posiciones);
// La etiqueta del gráfico: "Pareja ", "Trío " o "Grupos de " con las posiciones elegidas.
std::string EtiquetaCombinacion(const std::vector<int>& posiciones);

// "Columnas Ganadoras": una fila por registro de la Temporada, por Jornada ascendente. Desde la
// temporada 13 (sus dos primeras cifras) y con una letra en la posición 15, los 14 signos y
// "/" & goles del local & "-" & del visitante; una letra desconocida, los 14 signos solos; si no,
// Signos tal cual.
struct FilaGanadora {
    int jornada = 0;
    std::string columna;
};
std::vector<FilaGanadora> ColumnasGanadoras(const std::filesystem::path& carpetaTemporada,
                                            std::string_view temporada);

// "Histórico de Resultados": una fila por partido de "Hist.rar".
struct FilaHistorico {
    std::string fecha;  // "dd/MM/yy"
    std::string local;
    std::string visitante;
    int golesLocal = 0;
    int golesVisitante = 0;
    std::string signo;
};
// Lo que se busca: un equipo, dos equipos, o una Jornada de una Temporada y una División. De la
// temporada en curso solo cuentan las Jornadas hasta "MaxJor1ª" o "MaxJor2ª".
struct BusquedaHistorico {
    enum class Modo { Equipos, Partidos, Jornadas } modo = Modo::Equipos;
    std::string equipo1;
    std::string equipo2;
    std::string temporada;
    int division = 0;
    int jornada = 0;

    static BusquedaHistorico DeEquipo(std::string equipo) {
        BusquedaHistorico b;
        b.equipo1 = std::move(equipo);
        return b;
    }
    static BusquedaHistorico DePartidos(std::string equipo1, std::string equipo2) {
        BusquedaHistorico b = DeEquipo(std::move(equipo1));
        b.modo = Modo::Partidos;
        b.equipo2 = std::move(equipo2);
        return b;
    }
    static BusquedaHistorico DeJornada(std::string temporada, int division, int jornada) {
        BusquedaHistorico b;
        b.modo = Modo::Jornadas;
        b.temporada = std::move(temporada);
        b.division = division;
        b.jornada = jornada;
        return b;
    }
};
// Un equipo se reconoce por su nombre exacto (recortado): los partidos con un nombre antiguo no
// salen hasta que "Cambiar nombre Eq" lo une al nuevo. Lanza base::Error con el mensaje de la
// ventana si falta lo que el modo pide.
std::vector<FilaHistorico> BuscarEnHistorico(const std::filesystem::path& carpetaTrabajo,
                                             const BusquedaHistorico& busqueda,
                                             std::string_view temporadaEnCurso,
                                             const base::Ajustes& ajustes);

// Las Temporadas de "Hist.rar", sin repetir, en el orden del archivo.
std::vector<std::string> TemporadasDeHistorico(const std::filesystem::path& carpetaTrabajo);

// Los 68 nombres de las listas de equipos del histórico, de "equipos.txt" de los datos del
// programa, en su orden; sin el archivo, Error.
std::vector<std::string> NombresDelHistorico(const std::filesystem::path& carpetaDatos);

// "Añadir del Jlig2 temporada a hist.": los partidos de un "Jlig2.rar" de CarpetaTrabajo, al
// final de "Hist.rar". Devuelve cuántos.
int AnadirJlig2AHistorico(const std::filesystem::path& carpetaTrabajo);

// "Cambiar nombre Eq": en cada partido de "Hist.rar", el nombre existente pasa a ser el nuevo, de
// local y de visitante. Devuelve cuántos partidos cambiaron.
int CambiarNombreEnHistorico(const std::filesystem::path& carpetaTrabajo,
                             std::string_view existente, std::string_view nuevo);

}  // namespace quinteva::seasons
