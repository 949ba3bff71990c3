#include <algorithm>
#include <array>
#include <iomanip>
#include <iostream>
#include <sstream>

#include "base/error.h"
#include "base/record_files.h"
#include "base/settings_ini.h"
#include "base/text1252.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/teams.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUsoEquipoNuevo =
    "equipo-nuevo --division 1|2 --nombre NOMBRE [--valoracion N] [--temporada aa/aa] "
    "[--equipos N]";
constexpr std::string_view kUsoNuevaTemporada = "nueva-temporada aa/aa --equipos1 N --equipos2 M";
// Lo que la ventana no deja escribir: la línea de órdenes lo rehúsa con su mensaje.
constexpr std::string_view kMsgNombreLargo =
    "El nombre del equipo no puede tener más de 15 caracteres.";
constexpr std::string_view kMsgSoloMirar =
    "Al estar creadas las Jornadas de Liga ya no se puede añadir ningún Equipo.";

// Cada llamada es una ventana que se abre, se usa y se cierra.
struct Ventana {
    std::filesystem::path carpetaTrabajo;
    base::AjustesIni ajustes;
    DialogoDeOrdenes dialogo;
    seasons::VentanaEquipos equipos;

    Ventana(const Argumentos& argumentos, std::vector<std::string> textos = {})
        : carpetaTrabajo(argumentos.CarpetaTrabajo()),
          ajustes(carpetaTrabajo),
          dialogo(std::cerr, std::move(textos)),
          equipos(carpetaTrabajo, seasons::CarpetaTemporadaEnCurso(carpetaTrabajo), ajustes,
                  dialogo) {
        equipos.Abrir();
    }
};

void EquipoJson(const seasons::RegEquipo& e, std::ostream& salida) {
    const std::array<std::pair<std::string_view, int>, 19> cifras = {{
        {"Division", e.division},
        {"Valoracion", e.valoracion},
        {"Posicion", e.posicion},
        {"Jugados", e.jugados},
        {"Puntos", e.puntos},
        {"Ganados", e.ganados},
        {"Empatados", e.empatados},
        {"Perdidos", e.perdidos},
        {"GolesFavor", e.golesFavor},
        {"GolesContra", e.golesContra},
        {"Diferencia", e.diferencia},
        {"PuntosCasa", e.puntosCasa},
        {"GanadosCasa", e.ganadosCasa},
        {"EmpatadosCasa", e.empatadosCasa},
        {"PerdidosCasa", e.perdidosCasa},
        {"PuntosFuera", e.puntosFuera},
        {"GanadosFuera", e.ganadosFuera},
        {"EmpatadosFuera", e.empatadosFuera},
        {"PerdidosFuera", e.perdidosFuera},
    }};
    salida << "{\"Temporada\": " << TextoJson(base::Recortar(e.temporada))
           << ", \"Nombre\": " << TextoJson(base::Recortar(e.nombre));
    for (const auto& [clave, valor] : cifras) salida << ", \"" << clave << "\": " << valor;
    salida << ", \"PosicionJornada\": [";
    for (std::size_t j = 0; j < e.posicionJornada.size(); ++j) {
        salida << (j > 0 ? ", " : "") << e.posicionJornada[j];
    }
    salida << "]}";
}

// El nombre con blancos hasta 16 caracteres (no bytes: "Leganés" tiene 7).
std::string Columna(std::string_view nombre) {
    std::string texto(nombre);
    const auto caracteres =
        std::count_if(texto.begin(), texto.end(), [](char c) { return (c & 0xC0) != 0x80; });
    texto.append(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, 16 - caracteres)), ' ');
    return texto;
}

void EquipoTexto(const seasons::RegEquipo& e, std::ostream& salida) {
    salida << Columna(base::Recortar(e.nombre)) << std::setw(4) << e.division << std::setw(5)
           << e.valoracion << std::setw(5) << e.posicion << std::setw(5) << e.jugados
           << std::setw(5) << e.puntos << std::setw(5) << e.ganados << std::setw(5) << e.empatados
           << std::setw(5) << e.perdidos << std::setw(5) << e.golesFavor << std::setw(5)
           << e.golesContra << '\n';
}

}  // namespace

int EquiposCmd(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, "equipos [--division 1|2] [--json]");
    const auto division = argumentos.Valor("division");
    if (division && *division != "1" && *division != "2") {
        throw ErrorDeUso{"Uso: quinteva-cli equipos [--division 1|2] [--json]"};
    }
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(argumentos.CarpetaTrabajo());
    base::ArchivoDe<seasons::RegEquipo> archivo(carpeta / seasons::kNomeq);
    bool primero = true;
    if (argumentos.Json()) salida << '[';
    if (!argumentos.Json())
        salida << "Nombre           Div  Val  Pos   PJ  Pts   PG   PE   PP   GF   GC\n";
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) {
        const seasons::RegEquipo e = archivo.Leer(n);
        if (division && std::to_string(e.division) != *division) continue;
        if (argumentos.Json()) {
            salida << (primero ? "" : ", ");
            EquipoJson(e, salida);
        } else {
            EquipoTexto(e, salida);
        }
        primero = false;
    }
    if (argumentos.Json()) salida << "]\n";
    return 0;
}

int EquipoNuevo(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoEquipoNuevo);
    // La ventana cuenta las divisiones desde 0.
    const int division = argumentos.Division(kUsoEquipoNuevo) - 1;
    const std::string nombre = argumentos.Exigir("nombre", kUsoEquipoNuevo);
    if (base::AWindows1252(nombre).size() > 15) throw base::Error(std::string(kMsgNombreLargo));
    Ventana v(argumentos);
    if (v.equipos.SoloMirar()) throw base::Error(std::string(kMsgSoloMirar));
    if (const auto temporada = argumentos.Valor("temporada");
        temporada && v.equipos.TemporadaEditable()) {
        for (char tecla : *temporada) {
            if (!v.equipos.TeclaTemporada(tecla)) return 1;
        }
        v.equipos.EscribirTemporada(*temporada);
        if (!v.equipos.SalirDeTemporada()) return 1;
    }
    if (const auto equipos = argumentos.Valor("equipos")) {
        v.equipos.EscribirNumero(division, *equipos);
        if (!v.equipos.SalirDeNumero(division)) return 1;
    }
    if (base::Recortar(nombre).empty()) throw base::Error(std::string(seasons::kMsgFaltaNombre));
    if (!v.equipos.IntroEnNombre(division, nombre, argumentos.Valor("valoracion").value_or("")))
        return 1;
    salida << base::Recortar(nombre) << ": " << (division + 1) << "ª División\n";
    return 0;
}

int NuevaTemporadaCmd(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(1, kUsoNuevaTemporada);
    Ventana v(argumentos,
              {argumentos.Posicionales()[0], argumentos.Exigir("equipos1", kUsoNuevaTemporada),
               argumentos.Exigir("equipos2", kUsoNuevaTemporada)});
    const auto etiqueta = v.equipos.NuevaTemporada();
    if (!etiqueta) return 1;
    salida << *etiqueta << '\n';
    return 0;
}

int TodoACeroCmd(const Argumentos& argumentos, std::ostream&) {
    argumentos.ExigirPosicionales(0, "todo-a-cero");
    Ventana v(argumentos);
    v.equipos.TodoACero();
    return 0;
}

}  // namespace quinteva::cli
