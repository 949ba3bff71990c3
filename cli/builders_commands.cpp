// Los asistentes de un paso: muy-reducida, porcentajes y rapida-basica.
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iostream>
#include <sstream>

#include "base/chance.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/progress.h"
#include "base/settings_ini.h"
#include "builders/adjustment.h"
#include "builders/boletos.h"
#include "builders/by_percentages.h"
#include "builders/quick_basic.h"
#include "builders/reduce.h"
#include "builders/very_reduced.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "cli/new_combination.h"
#include "cli/private_folder.h"
#include "engine/combination_files.h"
#include "engine/generation.h"
#include "engine/pricing.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso =
    "muy-reducida RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A --nivel 13|12|11 [--jornada N]";
constexpr std::string_view kMsgSinFila =
    "La Quiniela Base no es ninguna de las combinaciones de la tabla de reducciones.";

constexpr std::string_view kUsoPorcentajes =
    "porcentajes RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A --columnas N --semilla S "
    "--porcentajes \"50-30-20 ...\" [--jornada N]";

constexpr std::string_view kUsoBasica =
    "rapida-basica RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A --columnas N [--equis MIN-MAX] "
    "[--doses ...] [--variantes ...] [--interrupciones ...] [--interrupciones-consecutivas ...] "
    "[--unos-seguidos ...] [--equis-seguidas ...] [--doses-seguidos ...] [--semilla S] "
    "[--jornada N]";

// Las opciones de las ocho filas, en su orden: el rótulo de la ventana sin "Nº de".
constexpr std::array<std::string_view, builders::kFilasBasica> kOpcionesBasica = {
    "equis",
    "doses",
    "variantes",
    "interrupciones",
    "interrupciones-consecutivas",
    "unos-seguidos",
    "equis-seguidas",
    "doses-seguidos"};

int Nivel(const Argumentos& a) {
    const std::string nivel = a.Exigir("nivel", kUso);
    if (nivel != "13" && nivel != "12" && nivel != "11") throw ErrorDeUso{"--nivel es 13, 12 u 11"};
    return std::stoi(nivel);
}

// Los 14 tríos "1-X-2" de --porcentajes; los partidos fijos llevan 100 en su signo, como en la
// ventana, sea cual sea su trío.
builders::Porcentajes LeerPorcentajes(const std::string& texto, const engine::Combinacion& c) {
    std::istringstream entrada(texto);
    builders::Porcentajes p{};
    std::string trio;
    std::size_t partido = 0;
    for (; entrada >> trio; ++partido) {
        int uno = 0;
        int equis = 0;
        int dos = 0;
        char sobra = 0;
        if (partido >= engine::kPartidos ||
            std::sscanf(trio.c_str(), "%d-%d-%d%c", &uno, &equis, &dos, &sobra) != 3 ||
            std::min({uno, equis, dos}) < 0 || std::max({uno, equis, dos}) > 100) {
            throw ErrorDeUso{"--porcentajes son 14 tríos 1-X-2 de 0 a 100: " + texto};
        }
        p[0][partido] = static_cast<std::uint8_t>(uno);
        p[1][partido] = static_cast<std::uint8_t>(equis);
        p[2][partido] = static_cast<std::uint8_t>(dos);
    }
    if (partido != engine::kPartidos) throw ErrorDeUso{"--porcentajes lleva 14 tríos 1-X-2"};
    const builders::Porcentajes fijos = builders::PorcentajesAlAbrir(c);
    for (std::size_t m = 0; m < engine::kPartidos; ++m) {
        if (c.base.SignosElegidos(static_cast<int>(m) + 1) > 1) continue;
        for (std::size_t s = 0; s < 3; ++s) p[s][m] = fijos[s][m];
    }
    return p;
}

// Una cifra de una fila de la rápida Básica, dentro de lo que ofrece la fila; vacía, nada.
std::optional<int> CifraDeFila(const std::string& texto, std::pair<int, int> rango,
                               std::string_view opcion) {
    if (texto.empty()) return std::nullopt;
    int valor = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    if (error != std::errc{} || fin != texto.data() + texto.size() || valor < rango.first ||
        valor > rango.second) {
        throw ErrorDeUso{"--" + std::string(opcion) + " va de " + std::to_string(rango.first) +
                         " a " + std::to_string(rango.second) + ": " + texto};
    }
    return valor;
}

// Las filas de la rápida Básica: "MIN-MAX", "MIN-" o "-MAX".
builders::LimitesBasica LimitesDeOpciones(const Argumentos& a, const engine::SetCondiciones& c) {
    builders::LimitesBasica limites{};
    for (int f = 0; f < builders::kFilasBasica; ++f) {
        const auto u = static_cast<std::size_t>(f);
        const auto valor = a.Valor(kOpcionesBasica[u]);
        if (!valor) continue;
        const auto guion = valor->find('-');
        if (guion == std::string::npos) {
            throw ErrorDeUso{"--" + std::string(kOpcionesBasica[u]) + " es MIN-MAX, MIN- o -MAX"};
        }
        const auto rango = builders::RangoDeFila(c, f);
        limites[u] = {CifraDeFila(valor->substr(0, guion), rango, kOpcionesBasica[u]),
                      CifraDeFila(valor->substr(guion + 1), rango, kOpcionesBasica[u])};
    }
    return limites;
}

// El final de los asistentes: guardar y dejar el conjunto para jugar, con su mensaje.
void GuardarParaJugar(engine::Combinacion& c, const std::filesystem::path& almacenes,
                      base::Ajustes& ajustes, builders::Jugada jugada, base::Dialogo& dialogo) {
    engine::Guardar(c, almacenes, ajustes);
    base::AzarEstandar azar(base::AzarEstandar::SemillaDelReloj());
    builders::ElegirJugada(c, jugada, {almacenes, ajustes, dialogo, azar}, [] { return false; });
}

}  // namespace

int PorcentajesCmd(const Argumentos& a, std::ostream& salida) {
    engine::Combinacion c = CombinacionNueva(a, kUsoPorcentajes);
    const builders::Porcentajes p = LeerPorcentajes(a.Exigir("porcentajes", kUsoPorcentajes), c);
    const std::string columnas = a.Exigir("columnas", kUsoPorcentajes);
    const auto semilla = a.Semilla();
    if (!semilla) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoPorcentajes)};
    base::AzarEstandar azar(*semilla);
    DialogoDeOrdenes dialogo(std::cerr);
    const CarpetaDeAlmacenes almacenes(a);
    const auto entregadas =
        builders::GenerarPorPorcentajes(c, almacenes.Ruta(), columnas, p, azar, dialogo);
    if (!entregadas) return 1;
    base::AjustesIni ajustes(a.CarpetaTrabajo());
    GuardarParaJugar(c, almacenes.Ruta(), ajustes, builders::Jugada::Condicionada, dialogo);
    dialogo.Mensaje(builders::kMsgProcesoTerminado, base::Icono::Informacion);
    if (a.Json()) {
        salida << "{\"TotalGeneradas\": " << c.totalGeneradas
               << ", \"ValorPorcentajes\": " << c.valorPorcentajes
               << ", \"Jugada\": " << TextoJson(c.jugada) << "}\n";
        return 0;
    }
    salida << "Generadas: " << base::Formato(c.totalGeneradas, "#,##0") << '\n';
    return 0;
}

int RapidaBasicaCmd(const Argumentos& a, std::ostream& salida) {
    engine::Combinacion c = CombinacionNueva(a, kUsoBasica);
    const builders::LimitesBasica limites = LimitesDeOpciones(a, c.condiciones);
    const std::string columnas = a.Exigir("columnas", kUsoBasica);
    DialogoDeOrdenes dialogo(std::cerr);
    const auto pedidas = builders::ComprobarBasica(columnas, c.base.Columnas(), limites, dialogo);
    if (!pedidas) return 1;
    const CarpetaDeAlmacenes almacenes(a);
    base::AjustesIni ajustes(a.CarpetaTrabajo());
    // Como la ventana, que pide antes un nombre: la Combinación ya tiene su archivo.
    engine::Guardar(c, almacenes.Ruta(), ajustes);
    builders::PonerLimitesBasica(c.condiciones, limites);
    base::SinProgreso progreso;
    engine::Generar(c, almacenes.Ruta(), progreso, ajustes);
    engine::PrecioComb(c, ajustes);
    // Con menos de las pedidas se sigue sin guardar antes: el ajuste guarda al acabar.
    if (c.activasGeneradas < *pedidas) {
        if (dialogo.PreguntaSiNo(builders::PreguntaMenosColumnas(*pedidas), base::Respuesta::Si) !=
            base::Respuesta::Si)
            return 1;
    } else {
        engine::Guardar(c, almacenes.Ruta(), ajustes);
    }
    builders::MarcarJugada(c, builders::Jugada::Condicionada);
    base::AzarEstandar azar(a.Semilla().value_or(base::AzarEstandar::SemillaDelReloj()));
    builders::Ajustar(c, std::to_string(*pedidas), {almacenes.Ruta(), ajustes, dialogo, azar},
                      progreso);
    dialogo.Mensaje(builders::kMsgProcesoTerminado, base::Icono::Informacion);
    if (a.Json()) {
        salida << "{\"NumCondiciones\": " << c.numCondiciones
               << ", \"TotalGeneradas\": " << c.totalGeneradas
               << ", \"ActivasGeneradas\": " << c.activasGeneradas
               << ", \"Jugada\": " << TextoJson(c.jugada) << "}\n";
        return 0;
    }
    salida << "Generadas: " << base::Formato(c.totalGeneradas, "#,##0")
           << "\nActivas: " << base::Formato(c.activasGeneradas, "#,##0") << '\n';
    return 0;
}

OpcionesAdmitidas OpcionesRapidaBasica() {
    OpcionesAdmitidas opciones{{"base", "pleno", "columnas", "semilla", "jornada"}, {}};
    for (const std::string_view o : kOpcionesBasica) opciones.conValor.emplace(o);
    return opciones;
}

int MuyReducidaCmd(const Argumentos& a, std::ostream& salida) {
    const int nivel = Nivel(a);
    engine::Combinacion c = CombinacionNueva(a, kUso);
    if (!builders::FilaDeLaBase(c.base)) throw base::Error(std::string(kMsgSinFila));
    DialogoDeOrdenes dialogo(std::cerr);
    if (!builders::EmpezarMuyReducida(c, dialogo)) return 1;
    const CarpetaDeAlmacenes almacenes(a);
    base::AjustesIni ajustes(a.CarpetaTrabajo());
    base::SinProgreso progreso;
    engine::Generar(c, almacenes.Ruta(), progreso, ajustes);
    builders::ClaseBase clases{};
    const auto reduccion =
        builders::Reducir(c, almacenes.Ruta(), 13 - nivel, std::nullopt, clases, progreso, ajustes);
    if (reduccion.sinSistema || c.activasReducidas == 0) {
        engine::Guardar(c, almacenes.Ruta(), ajustes);
        throw base::Error("No hay reducción por tablas para esta base al " + std::to_string(nivel));
    }
    GuardarParaJugar(c, almacenes.Ruta(), ajustes, builders::Jugada::Reducida, dialogo);
    dialogo.Mensaje(builders::kMsgProcesoTerminado, base::Icono::Informacion);
    if (a.Json()) {
        salida << "{\"NivelReducida\": " << int{c.nivelReducida}
               << ", \"TotalGeneradas\": " << c.totalGeneradas
               << ", \"TotalReducidas\": " << c.totalReducidas
               << ", \"Jugada\": " << TextoJson(c.jugada) << "}\n";
        return 0;
    }
    salida << "Generadas: " << base::Formato(c.totalGeneradas, "#,##0") << "\nReducida al " << nivel
           << ": " << base::Formato(c.totalReducidas, "#,##0") << '\n';
    return 0;
}

}  // namespace quinteva::cli
