// Subcomandos de la Combinación: nueva, info, generar y analizar.
#include <cctype>
#include <sstream>

#include "base/error.h"
#include "base/formats.h"
#include "base/progress.h"
#include "base/settings_ini.h"
#include "base/text1252.h"
#include "base/working_folder.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "cli/new_combination.h"
#include "cli/private_folder.h"
#include "engine/analysis.h"
#include "engine/combination_files.h"
#include "engine/generation.h"

namespace quinteva::cli {
namespace {

using namespace engine;

constexpr std::array<const char*, kCasillas> kFamilias = {"Generales",
                                                          "Seguidos",
                                                          "Interrupciones",
                                                          "Parejas",
                                                          "Tríos",
                                                          "",
                                                          "",
                                                          "Sumas",
                                                          "Comparaciones",
                                                          "Repeticiones",
                                                          "Interrupciones consecutivas"};

// "1X2 1 X 12 ...": 14 conjuntos no vacíos de 1, X, 2 en cualquier orden y caja.
QuinielaBase LeerBase(std::string_view texto) {
    std::istringstream palabras{std::string(texto)};
    std::vector<std::string> fichas;
    for (std::string f; palabras >> f;) fichas.push_back(f);
    if (fichas.size() != kPartidos) {
        throw ErrorDeUso{"La base ha de tener 14 partidos separados por blancos y tiene " +
                         std::to_string(fichas.size())};
    }
    QuinielaBase base;
    for (int p = 1; p <= kPartidos; ++p) {
        const std::string& f = fichas[static_cast<std::size_t>(p - 1)];
        for (char ch : f) {
            const int s =
                IndiceSigno(static_cast<char>(std::toupper(static_cast<unsigned char>(ch))));
            if (s < 0 || base.Elegido(p, s)) {
                throw ErrorDeUso{"El partido " + std::to_string(p) + " (\"" + f +
                                 "\") no es un conjunto de signos 1, X, 2"};
            }
            base.Elegir(p, s, true);
        }
    }
    return base;
}

std::string TextoBase(const QuinielaBase& base) {
    std::string texto;
    for (int p = 1; p <= kPartidos; ++p) {
        if (p > 1) texto += ' ';
        for (int s = 0; s < 3; ++s) {
            if (base.Elegido(p, s)) texto += kSignos[static_cast<std::size_t>(s)];
        }
        if (base.SignosElegidos(p) == 0) texto += '-';
    }
    return texto;
}

std::filesystem::path RutaUxd(const Argumentos& a, std::string_view uso) {
    a.ExigirPosicionales(1, uso);
    return a.Posicionales()[0];
}

// Ajustes propios de la línea de órdenes, en la carpeta de trabajo.
base::AjustesIni AjustesDe(const std::filesystem::path& carpeta) {
    return base::AjustesIni(carpeta);
}

}  // namespace

Combinacion CombinacionNueva(const Argumentos& a, std::string_view uso) {
    const auto ruta = RutaUxd(a, uso);
    const auto textoBase = a.Valor("base");
    const auto textoPleno = a.Valor("pleno");
    if (!textoBase || !textoPleno) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
    if (ruta.extension() != ".uxd") throw ErrorDeUso{"La Combinación ha de ser un archivo .uxd"};
    if (base::AWindows1252(ruta.stem().string()).size() > 15) {
        throw ErrorDeUso{std::string(kMsgNombreLargo)};
    }
    QuinielaBase base = LeerBase(*textoBase);
    std::string pleno = *textoPleno;
    for (char& ch : pleno) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    const auto guion = pleno.find('-');
    if (guion == std::string::npos) throw ErrorDeUso{"El Pleno al 15 va como H-A, p. ej. 1-M"};
    try {
        base.PonerGoles(pleno.substr(0, guion), pleno.substr(guion + 1));
    } catch (const base::Error& e) {
        throw ErrorDeUso{e.what()};
    }
    if (!base.Completa()) throw ErrorDeUso{"Faltan los goles del Pleno al 15"};
    int jornada = 0;
    if (const auto j = a.Valor("jornada")) {
        try {
            jornada = std::stoi(*j);
        } catch (const std::exception&) {
            jornada = -1;
        }
        if (jornada < 0 || jornada > 255) throw ErrorDeUso{"La Jornada es un número de 0 a 255"};
    }
    Combinacion c;
    c.base = base;
    c.pleno = base.Pleno();
    c.ruta = ruta;
    c.jornada = static_cast<std::uint8_t>(jornada);
    c.condiciones = CondicionesIniciales(base);
    c.numCondiciones = NumeroDeCondiciones(c.condiciones);
    c.panel.nombre = ruta.stem().string();
    c.panel.alDirecto = base.Columnas();
    c.panel.dobles = base.Dobles();
    c.panel.triples = base.Triples();
    return c;
}

int Nueva(const Argumentos& a, std::ostream& salida) {
    Combinacion c = CombinacionNueva(
        a, "nueva RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A [--jornada N] [--carpeta DIR]");
    const CarpetaDeAlmacenes almacenes(a);
    const auto ajustes = AjustesDe(a.CarpetaTrabajo());
    Guardar(c, almacenes.Ruta(), ajustes);
    if (a.Json()) {
        salida << "{\"Nombre\": " << TextoJson(c.panel.nombre)
               << ", \"ApuestasPosibles\": " << static_cast<std::int64_t>(c.base.Columnas())
               << "}\n";
    } else {
        salida << "Creada " << c.ruta.string() << " ("
               << static_cast<std::int64_t>(c.base.Columnas()) << " apuestas posibles)\n";
    }
    return 0;
}

int Info(const Argumentos& a, std::ostream& salida) {
    const auto ruta = RutaUxd(a, "info RUTA.uxd [--json]");
    const RegistroCabecera r = LeerCabecera(ruta);
    Combinacion c;
    CargarCabecera(c, r);
    const auto n = NumeroDeCondiciones(c.condiciones);
    std::vector<std::string> activas;
    for (std::size_t i = 0; i < kCasillas; ++i) {
        if (c.condiciones.casilla[i] && kFamilias[i][0] != '\0') activas.emplace_back(kFamilias[i]);
    }
    int grupos = 0, gruposAc = 0;
    for (const auto& g : c.condiciones.grupos) grupos += g.activo ? 1 : 0;
    for (const auto& g : c.condiciones.gruposAc) gruposAc += g.activo ? 1 : 0;
    if (grupos > 0) activas.push_back("Grupos (" + std::to_string(grupos) + ")");
    if (gruposAc > 0) activas.push_back("Grupos de Aciertos (" + std::to_string(gruposAc) + ")");
    const std::string pleno = TextoDePleno(c.pleno);

    if (a.Json()) {
        salida << "{\"Nombre\": " << TextoJson(c.panel.nombre)
               << ", \"Jornada\": " << int{r.jornada}
               << ", \"Base\": " << TextoJson(TextoBase(c.base))
               << ", \"PlenoBase\": " << TextoJson(pleno) << ", \"Jugada\": " << TextoJson(c.jugada)
               << ", \"AlDirecto\": " << r.alDirecto << ", \"Condicionada\": " << r.condicionada
               << ", \"Al13\": " << r.al13 << ", \"Al12\": " << r.al12 << ", \"Al11\": " << r.al11
               << ", \"Al10\": " << r.al10 << ", \"Dobles\": " << int{r.dobles}
               << ", \"Triples\": " << int{r.triples} << ", \"FamiliasActivas\": [";
        for (std::size_t i = 0; i < activas.size(); ++i)
            salida << (i ? ", " : "") << TextoJson(activas[i]);
        salida << "], \"NumCondiciones\": " << n << "}\n";
        return 0;
    }
    salida << "Nombre: " << c.panel.nombre << "\nJornada: " << int{r.jornada}
           << "\nBase: " << TextoBase(c.base) << "\nPleno al 15: " << pleno
           << "\nAl Directo: " << r.alDirecto << "\nCondicionada: " << r.condicionada
           << "\nal 13: " << r.al13 << "\nal 12: " << r.al12 << "\nal 11: " << r.al11
           << "\nal 10: " << r.al10 << "\nDobles: " << int{r.dobles}
           << "\nTriples: " << int{r.triples} << "\nFamilias activas: ";
    for (std::size_t i = 0; i < activas.size(); ++i) salida << (i ? ", " : "") << activas[i];
    salida << "\nNº Condiciones: " << n << '\n';
    return 0;
}

int GenerarCmd(const Argumentos& a, std::ostream& salida) {
    const auto ruta = RutaUxd(a, "generar RUTA.uxd [--carpeta DIR] [--json]");
    // Los almacenes en una carpeta propia: no se pisan los de un programa abierto.
    const CarpetaDeAlmacenes almacenes(a);
    auto ajustes = AjustesDe(a.CarpetaTrabajo());
    Combinacion c;
    // Como Abrir, sin tocar la lista de recientes; las columnas que había no hacen falta.
    c.ruta = ruta;
    AbrirParaGenerar(c, ajustes);
    base::SinProgreso progreso;
    Generar(c, almacenes.Ruta(), progreso, ajustes);
    Guardar(c, almacenes.Ruta(), ajustes);
    const auto posibles = static_cast<std::int64_t>(c.apuestasPosibles);
    if (a.Json()) {
        const auto& r = c.rechazos;
        salida << "{\"ApuestasPosibles\": " << posibles
               << ", \"TotalGeneradas\": " << c.totalGeneradas
               << ", \"ActivasGeneradas\": " << c.activasGeneradas
               << ", \"RechazosPorCondicion\": [";
        for (std::size_t i = 0; i < 9; ++i)
            salida << (i ? ", " : "") << static_cast<std::int64_t>(r.porCondicion[i]);
        salida << "], \"RechazosGrupo\": [";
        for (std::size_t i = 0; i < 50; ++i) salida << (i ? ", " : "") << r.grupo[i];
        salida << "], \"RechazosGrupoAc\": [";
        for (std::size_t i = 0; i < 50; ++i) salida << (i ? ", " : "") << r.grupoAciertos[i];
        salida << "], \"RechazosTolGrupos\": " << r.tolGrupos
               << ", \"RechazosTolGruposAc\": " << r.tolGruposAciertos << "}\n";
        return 0;
    }
    salida << "Apuestas posibles: " << base::Formato(static_cast<double>(posibles), "#,##0")
           << "\nCondicionada: " << base::Formato(c.activasGeneradas, "#,##0") << '\n';
    for (const auto& f : FilasRechazadas(c.rechazos, c.condiciones.toleranciaGrupos,
                                         c.condiciones.toleranciaGruposAc)) {
        salida << f.primera << '\t' << f.segunda << '\n';
    }
    return 0;
}

int Analizar(const Argumentos& a, std::ostream& salida) {
    constexpr std::string_view kUso = "analizar RUTA.uxd --columna 14SIGNOS";
    const auto ruta = RutaUxd(a, kUso);
    const auto texto = a.Valor("columna");
    if (!texto) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)};
    std::string columna = *texto;
    for (char& ch : columna) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    if (columna.size() != kPartidos || columna.find_first_not_of("1X2") != std::string::npos) {
        throw ErrorDeUso{"La columna ha de tener 14 signos 1, X o 2"};
    }
    Combinacion c;
    c.ruta = ruta;
    CargarCabecera(c, LeerCabecera(ruta));
    for (const auto& f :
         Analisis(ColumnaDeTexto(columna), c.base, c.condiciones, ArchivoJugado(c))) {
        salida << f.primera << '\t' << f.segunda << '\n';
    }
    return 0;
}

}  // namespace quinteva::cli
