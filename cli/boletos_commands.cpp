// Subcomandos de la página Boletos: ajustar, eliminar, jugar-todas y texto.
#include <ostream>
#include <sstream>
#include <vector>

#include "base/chance.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/progress.h"
#include "base/settings_ini.h"
#include "builders/adjustment.h"
#include "builders/manual.h"
#include "builders/merge.h"
#include "cli/boletos_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "cli/private_folder.h"
#include "engine/combination_files.h"

namespace quinteva::cli {
namespace {

using builders::Jugada;

Jugada JuegoDe(const Argumentos& a, std::string_view uso) {
    const auto juego = a.Valor("juego");
    if (juego == "cnd") return Jugada::Condicionada;
    if (juego == "red") return Jugada::Reducida;
    throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
}

// Una opción que solo admite unas palabras: el índice de la dada.
template <std::size_t N>
std::size_t Eleccion(const std::optional<std::string>& valor,
                     const std::array<std::string_view, N>& palabras, std::string_view uso) {
    for (std::size_t i = 0; i < N; ++i) {
        if (valor == palabras[i]) return i;
    }
    throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
}

// Las líneas que mostró el diálogo.
std::vector<std::string> Lineas(const std::ostringstream& mensajes) {
    std::istringstream texto(mensajes.str());
    std::vector<std::string> lineas;
    for (std::string linea; std::getline(texto, linea);) lineas.push_back(linea);
    return lineas;
}

// La Combinación abierta en la carpeta de los almacenes, con su conjunto jugado elegido como en
// la página Boletos.
class Sesion {
  public:
    Sesion(const Argumentos& a, std::string_view uso)
        : dialogo_(mensajes_),
          carpeta_(a),
          ajustes_(a.CarpetaTrabajo()),
          azar_(base::AzarEstandar::SemillaDelReloj()) {
        if (a.Posicionales().empty()) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
        const Jugada jugada = JuegoDe(a, uso);
        comb_.ruta = a.Posicionales()[0];
        engine::Abrir(comb_, carpeta_.Ruta(), ajustes_);
        builders::ElegirJugada(comb_, jugada, Entorno(), [] { return false; });
    }

    builders::EntornoBoletos Entorno() { return {carpeta_.Ruta(), ajustes_, dialogo_, azar_}; }

    // Lo que quedó: mensajes, jugada, apuestas y precio.
    int Informe(const Argumentos& a, std::ostream& salida) const {
        const Jugada jugada = builders::JugadaElegida(comb_);
        const auto apuestas = builders::ApuestasJugadas(comb_, jugada);
        const double precio = comb_.panel.precio.value_or(0.0);
        if (a.Json()) {
            salida << "{\"Jugada\": " << TextoJson(comb_.jugada) << ", \"Apuestas\": " << apuestas
                   << ", \"Precio\": " << precio << ", \"Mensajes\": [";
            const auto textos = Lineas(mensajes_);
            for (std::size_t i = 0; i < textos.size(); ++i)
                salida << (i ? ", " : "") << TextoJson(textos[i]);
            salida << "]}\n";
            return 0;
        }
        salida << mensajes_.str();
        salida << (jugada == Jugada::Condicionada ? "Condicionada" : "Reducida")
               << "\nApuestas que se juegan en total: " << base::Formato(apuestas, "#,##0")
               << "\nPrecio: " << base::Formato(precio, "#,##0.#0") << " Euros\n";
        return 0;
    }

    // Lo último que se mostró: el mensaje de un número rechazado.
    std::string UltimaLinea() const {
        const auto lineas = Lineas(mensajes_);
        return lineas.empty() ? "Ajuste cancelado" : lineas.back();
    }

    engine::Combinacion& Comb() { return comb_; }

  private:
    std::ostringstream mensajes_;
    DialogoDeBoletos dialogo_;
    CarpetaDeAlmacenes carpeta_;
    base::AjustesIni ajustes_;
    base::AzarEstandar azar_;
    engine::Combinacion comb_;
};

}  // namespace

int AjustarCmd(const Argumentos& a, std::ostream& salida) {
    constexpr std::string_view kUso = "ajustar RUTA.uxd --juego cnd|red --apuestas N [--json]";
    a.ExigirPosicionales(1, kUso);
    const auto apuestas = a.Valor("apuestas");
    if (!apuestas) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)};
    Sesion s(a, kUso);
    base::SinProgreso progreso;
    const auto ajuste = builders::Ajustar(s.Comb(), *apuestas, s.Entorno(), progreso);
    if (ajuste.resultado == builders::ResultadoAjuste::Rechazada ||
        ajuste.resultado == builders::ResultadoAjuste::Cancelada) {
        throw base::Error(s.UltimaLinea());
    }
    return s.Informe(a, salida);
}

int EliminarCmd(const Argumentos& a, std::ostream& salida) {
    constexpr std::string_view kUso =
        "eliminar RUTA.uxd --juego cnd|red --regla mas|menos|igual N "
        "unos|equis|doses|variantes [--json]";
    a.ExigirPosicionales(3, kUso);
    constexpr std::array<std::string_view, 3> kModos = {"mas", "menos", "igual"};
    constexpr std::array<std::string_view, 4> kSignos = {"unos", "equis", "doses", "variantes"};
    const auto& p = a.Posicionales();
    builders::Regla regla;
    regla.modo = static_cast<builders::ModoRegla>(Eleccion(a.Valor("regla"), kModos, kUso));
    regla.signo = static_cast<builders::SignoRegla>(Eleccion(std::optional(p[2]), kSignos, kUso));
    if (p[1].size() > 2 || p[1].find_first_not_of("0123456789") != std::string::npos ||
        std::stoi(p[1]) > engine::kPartidos) {
        throw ErrorDeUso{"El número de la regla va de 0 a 14"};
    }
    regla.numero = std::stoi(p[1]);
    Sesion s(a, kUso);
    builders::VentanaEliminar ventana;
    builders::EliminarPorRegla(s.Comb(), regla, ventana, s.Entorno());
    builders::CerrarEliminar(s.Comb(), s.Entorno(), [] {});
    return s.Informe(a, salida);
}

int JugarTodasCmd(const Argumentos& a, std::ostream& salida) {
    constexpr std::string_view kUso = "jugar-todas RUTA.uxd --juego cnd|red [--json]";
    a.ExigirPosicionales(1, kUso);
    Sesion s(a, kUso);
    builders::VentanaEliminar ventana;
    builders::JugarTodas(s.Comb(), ventana, s.Entorno());
    builders::CerrarEliminar(s.Comb(), s.Entorno(), [] {});
    return s.Informe(a, salida);
}

int TextoCmd(const Argumentos& a, std::ostream& salida) {
    constexpr std::string_view kUso =
        "texto RUTA.uxd --formato separadores|columna|continuo --salida F.txt";
    a.ExigirPosicionales(1, kUso);
    constexpr std::array<std::string_view, 3> kFormatos = {"separadores", "columna", "continuo"};
    const auto formato = Eleccion(a.Valor("formato"), kFormatos, kUso);
    const auto destino = a.Valor("salida");
    if (!destino || destino->empty()) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)};
    engine::Combinacion comb;
    comb.ruta = a.Posicionales()[0];
    engine::CargarCabecera(comb, engine::LeerCabecera(comb.ruta));
    std::ostringstream preguntas;
    DialogoDeBoletos dialogo(preguntas, std::filesystem::path(*destino));
    const auto escritas = builders::GenerarArchivoTxt(comb, static_cast<int>(formato) + 1, dialogo);
    if (a.Json()) {
        salida << "{\"Columnas\": " << escritas.value_or(0)
               << ", \"Salida\": " << TextoJson(*destino) << "}\n";
    } else {
        salida << preguntas.str() << "Escritas " << escritas.value_or(0) << " columnas en "
               << *destino << '\n';
    }
    return 0;
}

}  // namespace quinteva::cli
