#include "outputs/analysis_view.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/error.h"
#include "base/formats.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "outputs/analysis_data.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/startup.h"

namespace quinteva::outputs {
namespace {

using seasons::RegReanalisis;

constexpr int kPremio10 = 5;

// Las filas de los `Estados`, en el orden de la rejilla, con la etiqueta de su porcentaje.
struct FilaEstado {
    std::string_view fila;
    Estado estado;
    std::string_view resumen;
};
constexpr std::array<FilaEstado, 13> kFilasEstado = {{
    {"Quiniela Base", kEstadoBase, "Fallada Quiniela Base"},
    {"Condiciones Generales", kEstadoGenerales, "Falladas Condiciones Generales"},
    {"Filtro Seguidos", kEstadoSeguidos, "Fallado F. Seguidos"},
    {"Filtro Interrupciones", kEstadoTotales, "Fallado F. Interrupciones"},
    {"Filtro Interr. Consecutivas", kEstadoConsecutivas, "Fallado F. Interr.consecutivas"},
    {"Filtro Parejas", kEstadoParejas, "Fallado F. Parejas"},
    {"Filtro Tríos", kEstadoTrios, "Fallado F. Tríos"},
    {"Filtro Grupos", kEstadoGrupo, "Fallado F. Grupos"},
    {"Filtro Aciertos", kEstadoAciertos, "Fallado F. Aciertos"},
    {"Filtro Sumas", kEstadoSumas, "Fallado F. Sumas"},
    {"Filtro Comparaciones", kEstadoComparaciones, "Fallado F. Comparaciones"},
    {"Filtro Repeticiones", kEstadoRepeticiones, "Fallado F. Repeticiones"},
    {"Columnas eliminadas manual.", kEstadoEliminadas, "Fallado Col. eliminadas manual."},
}};

constexpr std::array<std::string_view, 4> kReducidas = {"Al 13", "Al 12", "Al 11", "Al 10"};
constexpr std::array<std::string_view, 7> kConAciertos = {
    "Con 15 aciertos", "Con 14 aciertos", "Con 13 aciertos", "Con 12 aciertos",
    "Con 11 aciertos", "Con 10 aciertos", "Con 9 aciertos"};

std::string Numero(double valor) { return base::Formato(valor, "#,##0"); }
std::string Porcentaje(double parte, double total) {
    if (total == 0) throw base::Error("División por cero");
    return base::Formato(parte / total * 100.0, "standard") + "%";
}
std::string SiNo(bool si) { return si ? "SI" : "NO"; }

std::string Reducida(const RegReanalisis& r) {
    for (std::size_t i = 0; i < r.reducida.size(); ++i) {
        if (r.reducida[i] == -1) return std::string(kReducidas[i]);
    }
    return "NO";
}

// Las sumas y cuentas del panel.
struct Sumas {
    int registros = 0;
    double columnas = 0;
    std::int32_t maximo = std::numeric_limits<std::int32_t>::min();
    std::int32_t minimo = std::numeric_limits<std::int32_t>::max();
    int condicionadas = 0;
    int reducidas = 0;
    std::array<int, kLugaresConLista> conPremio{};
    // Por estado: cuántos "Fallado"/"Fallada" y cuántos "Acertado"/"Acertada" o fallados.
    std::array<int, kFilasEstado.size()> fallados{};
    std::array<int, kFilasEstado.size()> jugados{};
};

ColumnaAnalisis Columna(const RegReanalisis& r) {
    ColumnaAnalisis c;
    c.cabecera = "Jorn. " + std::to_string(r.jornada);
    auto& celdas = c.celdas;
    celdas = {Numero(r.columnas), std::to_string(r.variantes0), std::to_string(r.variantes1),
              SiNo(r.condicionada == -1), Reducida(r)};
    for (const FilaEstado& f : kFilasEstado) {
        celdas.emplace_back(base::Recortar(r.estados[f.estado]));
    }
    c.premiada = r.premios[kPremio10] > 0;
    celdas.push_back(SiNo(c.premiada));
    for (const std::int32_t p : r.premios) celdas.push_back(Numero(p));
    double conPremio = 0;
    for (int i = 0; i < kLugaresConLista; ++i) conPremio += r.premios[static_cast<std::size_t>(i)];
    celdas.push_back(Porcentaje(conPremio, r.columnas));
    return c;
}

void Sumar(const RegReanalisis& r, Sumas& s) {
    ++s.registros;
    s.columnas += r.columnas;
    s.maximo = std::max(s.maximo, r.columnas);
    s.minimo = std::min(s.minimo, r.columnas);
    s.condicionadas += r.condicionada == -1 ? 1 : 0;
    s.reducidas += Reducida(r) != "NO" ? 1 : 0;
    for (std::size_t i = 0; i < s.conPremio.size(); ++i) s.conPremio[i] += r.premios[i] > 0;
    for (std::size_t i = 0; i < kFilasEstado.size(); ++i) {
        const std::string_view estado = base::Recortar(r.estados[kFilasEstado[i].estado]);
        const bool fallado = estado == "Fallado" || estado == "Fallada";
        s.fallados[i] += fallado ? 1 : 0;
        s.jugados[i] += fallado || estado == "Acertado" || estado == "Acertada" ? 1 : 0;
    }
}

std::vector<ValorResumen> Resumen(const Sumas& s) {
    const bool hay = s.registros > 0;
    const auto valor = [hay](const std::string& texto) { return hay ? texto + " " : ""; };
    std::vector<ValorResumen> resumen = {
        {"Jornadas jugadas", valor(std::to_string(s.registros))},
        {"Media columnas jugadas", valor(hay ? Numero(s.columnas / s.registros) : "")},
        {"Máximo. columnas jugadas", valor(hay ? Numero(s.maximo) : "")},
        {"Mínimo columnas jugadas", valor(hay ? Numero(s.minimo) : "")},
        {"Porcentaje de Condicionadas", valor(hay ? Porcentaje(s.condicionadas, s.registros) : "")},
        {"Porcentaje de Reducidas", valor(hay ? Porcentaje(s.reducidas, s.registros) : "")},
    };
    for (std::size_t i = 0; i < s.conPremio.size(); ++i) {
        resumen.push_back({"Jornadas con " + std::to_string(15 - i) + " aciertos",
                           valor(std::to_string(s.conPremio[i]))});
    }
    for (std::size_t i = 0; i < kFilasEstado.size(); ++i) {
        const std::string texto = s.jugados[i] == 0 ? "-" : Porcentaje(s.fallados[i], s.jugados[i]);
        resumen.push_back({std::string(kFilasEstado[i].resumen), valor(texto)});
    }
    return resumen;
}

}  // namespace

const std::vector<std::string_view>& FilasAnalisis() {
    static const std::vector<std::string_view> filas = [] {
        std::vector<std::string_view> f = {"Columnas jugadas", "Nº de Dobles", "Nº de Triples",
                                           "Condicionada", "Reducida"};
        for (const FilaEstado& e : kFilasEstado) f.push_back(e.fila);
        f.push_back("Premios");
        f.insert(f.end(), kConAciertos.begin(), kConAciertos.end());
        f.push_back("Porcentaje Columnas con premio");
        return f;
    }();
    return filas;
}

AnalisisDatos Contenido(const std::filesystem::path& carpetaTemporada, base::Dialogo& dialogo) {
    AnalisisDatos analisis;
    Sumas sumas;
    try {
        const auto ruta = carpetaTemporada / seasons::kRean;
        const std::int32_t cuenta = base::CuentaRegistros(ruta, RegReanalisis::kLongitud);
        if (cuenta > 0) {
            const base::ArchivoDe<RegReanalisis> rean(ruta);
            for (int jornada = seasons::kPrimeraJornadaLista;
                 jornada <= seasons::kUltimaJornadaLista; ++jornada) {
                for (std::int32_t n = 1; n <= cuenta; ++n) {
                    const RegReanalisis r = rean.Leer(n);
                    if (r.jornada != jornada) continue;
                    analisis.columnas.push_back(Columna(r));
                    Sumar(r, sumas);
                }
            }
        }
        analisis.resumen = Resumen(sumas);
    } catch (const std::exception& e) {
        dialogo.Mensaje("Error: " + std::string(e.what()), base::Icono::Error);
        analisis.resumen = Resumen({});
    }
    return analisis;
}

}  // namespace quinteva::outputs
