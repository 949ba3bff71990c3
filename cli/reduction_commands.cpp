// Subcomandos de la reducción: reducir y tablas.
#include <sstream>

#include "base/error.h"
#include "base/formats.h"
#include "base/progress.h"
#include "base/settings_ini.h"
#include "builders/reduce.h"
#include "builders/reduction_display.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "cli/private_folder.h"
#include "engine/combination_files.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUsoReducir =
    "reducir RUTA.uxd --al 13|12|11 [--partidos 2,5,9] [--optimizada [--segundos S] [--semilla N]] "
    "[--carpeta DIR] [--json]";
constexpr std::string_view kUsoTablas = "tablas [--json] | tablas --sistema NIVEL TRIPLES DOBLES";

int Entero(const std::string& texto, std::string_view uso) {
    try {
        std::size_t fin = 0;
        const int n = std::stoi(texto, &fin);
        if (fin == texto.size()) return n;
    } catch (const std::exception&) {
    }
    throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
}

// "2,5,9": los partidos que entran en la reducción por tablas.
builders::SeleccionPartidos Seleccion(const std::optional<std::string>& texto) {
    if (!texto) return std::nullopt;
    std::array<bool, engine::kPartidos> elegidos{};
    std::istringstream partes(*texto);
    for (std::string parte; std::getline(partes, parte, ',');) {
        const int p = Entero(parte, kUsoReducir);
        if (p < 1 || p > engine::kPartidos) throw ErrorDeUso{"Partido fuera de 1 a 14: " + parte};
        elegidos[static_cast<std::size_t>(p - 1)] = true;
    }
    return elegidos;
}

// --optimizada con sus --segundos (más de 0) y --semilla.
std::optional<engine::OpcionesOptimizada> Optimizada(const Argumentos& a) {
    if (!a.Marca("optimizada")) {
        if (a.Valor("segundos") || a.Valor("semilla")) {
            throw ErrorDeUso{"--segundos y --semilla van con --optimizada"};
        }
        return std::nullopt;
    }
    engine::OpcionesOptimizada opciones;
    if (const auto segundos = a.Valor("segundos")) {
        const auto valor = NumeroDecimal(*segundos);
        if (!valor || !(*valor > 0)) {
            throw ErrorDeUso{"--segundos es un número mayor que 0: " + *segundos};
        }
        opciones.segundos = *valor;
    }
    opciones.semilla = a.Semilla().value_or(opciones.semilla);
    return opciones;
}

void EscribirTabla(bool json, std::ostream& salida) {
    const auto& filas = builders::TablaReducciones();
    if (json) salida << "[";
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const auto& f = filas[i];
        if (!json) {
            salida << f.etiqueta;
            for (const auto& c : f.cifras) salida << '\t' << c.texto << (c.negrita ? "*" : "");
            salida << '\n';
            continue;
        }
        salida << (i ? ", " : "") << "{\"Combinaciones\": " << TextoJson(f.etiqueta)
               << ", \"Triples\": " << f.triples << ", \"Dobles\": " << f.dobles
               << ", \"Cifras\": [";
        for (std::size_t k = 0; k < f.cifras.size(); ++k) {
            salida << (k ? ", " : "") << "{\"Texto\": " << TextoJson(f.cifras[k].texto)
                   << ", \"Negrita\": " << (f.cifras[k].negrita ? "true" : "false") << "}";
        }
        salida << "]}";
    }
    if (json) salida << "]\n";
}

}  // namespace

int ReducirCmd(const Argumentos& a, std::ostream& salida) {
    a.ExigirPosicionales(1, kUsoReducir);
    const auto al = a.Valor("al");
    if (!al) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoReducir)};
    const int nivel = Entero(*al, kUsoReducir);
    if (nivel < 11 || nivel > 13) throw ErrorDeUso{"--al es 13, 12 u 11"};
    const auto seleccion = Seleccion(a.Valor("partidos"));
    const auto optimizada = Optimizada(a);

    const base::AjustesIni ajustes(a.CarpetaTrabajo());
    const CarpetaDeAlmacenes trabajo(a);
    engine::Combinacion c;
    c.ruta = a.Posicionales()[0];
    engine::Abrir(c, trabajo.Ruta(), ajustes);
    if (c.totalGeneradas == 0) {
        throw base::Error("La Combinación no tiene columnas generadas: genérela antes de reducir");
    }
    builders::ClaseBase clases{};
    base::SinProgreso progreso;
    const auto r = builders::Reducir(c, trabajo.Ruta(), 13 - nivel, seleccion, clases, progreso,
                                     ajustes, optimizada);
    engine::Guardar(c, trabajo.Ruta(), ajustes);

    if (a.Json()) {
        salida << "{\"NivelReducida\": " << int{c.nivelReducida}
               << ", \"TotalReducidas\": " << c.totalReducidas
               << ", \"SinSistema\": " << (r.sinSistema ? "true" : "false") << ", \"PorTablas\": "
               << (c.numCondiciones == 0 && !r.optimizada ? "true" : "false");
        if (r.optimizada) salida << ", \"Voraz\": " << r.optimizada->voraz;
        salida << "}\n";
    } else if (r.optimizada) {
        salida << engine::MensajeOptimizada(*r.optimizada) << '\n';
    } else if (r.sinSistema) {
        salida << "No hay reducción por tablas para esta base al " << nivel << '\n';
    } else {
        salida << "Reducida al " << nivel << ": " << base::Formato(c.totalReducidas, "#,##0")
               << '\n';
    }
    return 0;
}

int Tablas(const Argumentos& a, std::ostream& salida) {
    if (!a.Marca("sistema")) {
        a.ExigirPosicionales(0, kUsoTablas);
        EscribirTabla(a.Json(), salida);
        return 0;
    }
    a.ExigirPosicionales(3, kUsoTablas);
    const int nivel = Entero(a.Posicionales()[0], kUsoTablas);
    const int triples = Entero(a.Posicionales()[1], kUsoTablas);
    const int dobles = Entero(a.Posicionales()[2], kUsoTablas);
    for (const auto& s : builders::SistemasReducidos()) {
        if (s.nivel == nivel && s.triples == triples && s.dobles == dobles) {
            for (const auto& fila : s.filas) salida << fila << '\n';
            return 0;
        }
    }
    throw base::Error("No hay sistema reducido al " + std::to_string(nivel) + " de " +
                      std::to_string(triples) + " triples y " + std::to_string(dobles) + " dobles");
}

}  // namespace quinteva::cli
