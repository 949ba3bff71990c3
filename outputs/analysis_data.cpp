#include "outputs/analysis_data.h"

#include <algorithm>

#include "base/record_files.h"
#include "outputs/hit_check.h"
#include "seasons/season_folder.h"

namespace quinteva::outputs {
namespace {

using seasons::RegReanalisis;

struct PalabraFallo {
    std::string_view palabra;
    Estado estado;
    std::string_view texto;
};

// La búsqueda distingue mayúsculas: "Consecutivas" no está en "Interrupciones consecutivas".
constexpr std::array<PalabraFallo, 13> kPalabras = {{
    {"Base", kEstadoBase, "Fallada"},
    {"Generales", kEstadoGenerales, "Fallado"},
    {"Seguidos", kEstadoSeguidos, "Fallado"},
    {"totales", kEstadoTotales, "Fallado"},
    {"Parejas", kEstadoParejas, "Fallado"},
    {"Tríos", kEstadoTrios, "Fallado"},
    {"Grupo", kEstadoGrupo, "Fallado"},
    {"Aciertos", kEstadoAciertos, "Fallado"},
    {"Sumas", kEstadoSumas, "Fallado"},
    {"Comparaciones", kEstadoComparaciones, "Fallado"},
    {"Repeticiones", kEstadoRepeticiones, "Fallado"},
    {"Consecutivas", kEstadoConsecutivas, "Fallado"},
    {"Eliminadas", kEstadoEliminadas, "Fallado"},
}};

template <typename Lista>
bool AlgunoActivo(const Lista& lista) {
    return std::any_of(lista.begin(), lista.end(), [](const auto& g) { return g.activo; });
}

void EstadosJugados(const DatosJugados& datos, RegReanalisis& r) {
    r.estados.fill("No jugado");
    r.estados[kEstadoBase] = "Acertada";
    const bool condicionada = datos.condicionada.value_or(0) != datos.generadas.value_or(0);
    if (condicionada) {
        for (std::size_t e = kEstadoGenerales; e < kEstadoEliminadas; ++e) {
            if (datos.enUso[e]) r.estados[e] = "Acertado";
        }
    }
    if (datos.eliminadas > 0) r.estados[kEstadoEliminadas] = "Jugado";
}

void EstadosFallados(const std::vector<engine::FilaInforme>& fallos, RegReanalisis& r) {
    for (const engine::FilaInforme& fila : fallos) {
        for (const PalabraFallo& p : kPalabras) {
            if (fila.primera.find(p.palabra) != std::string::npos) {
                r.estados[p.estado] = std::string(p.texto);
            }
        }
    }
}

}  // namespace

DatosJugados DatosDe(const engine::Combinacion& c) {
    DatosJugados datos;
    datos.generadas = c.panel.alDirecto;
    datos.condicionada = c.panel.condicionada;
    datos.reducidas = c.panel.reducidas;
    datos.dobles = c.panel.dobles.value_or(0);
    datos.triples = c.panel.triples.value_or(0);
    const auto& casilla = c.condiciones.casilla;
    datos.enUso[kEstadoGenerales] = casilla[engine::kCasillaGenerales];
    datos.enUso[kEstadoTotales] = casilla[engine::kCasillaInterrupciones];
    datos.enUso[kEstadoConsecutivas] = casilla[engine::kCasillaInterConsecutivas];
    datos.enUso[kEstadoParejas] = casilla[engine::kCasillaParejas];
    datos.enUso[kEstadoTrios] = casilla[engine::kCasillaTrios];
    datos.enUso[kEstadoSeguidos] = casilla[engine::kCasillaSeguidos];
    datos.enUso[kEstadoRepeticiones] = casilla[engine::kCasillaRepeticiones];
    datos.enUso[kEstadoSumas] = casilla[engine::kCasillaSumas];
    datos.enUso[kEstadoComparaciones] = casilla[engine::kCasillaComparaciones];
    datos.enUso[kEstadoGrupo] = AlgunoActivo(c.condiciones.grupos);
    datos.enUso[kEstadoAciertos] = AlgunoActivo(c.condiciones.gruposAc);
    datos.eliminadas = c.jugada == "red" ? c.totalReducidas - c.activasReducidas
                                         : c.totalGeneradas - c.activasGeneradas;
    return datos;
}

RegReanalisis RegistroDatos(int jornada, const DatosJugados& datos, const TablaAciertos& tabla,
                            const std::vector<engine::FilaInforme>& fallos) {
    RegReanalisis r;
    r.jornada = jornada;
    r.columnas = datos.condicionada.value_or(0);
    for (std::size_t i = 0; i < datos.reducidas.size(); ++i) {
        if (!datos.reducidas[i]) continue;
        r.columnas = *datos.reducidas[i];
        r.reducida[i] = -1;
        break;
    }
    r.variantes0 = datos.dobles;
    r.variantes1 = datos.triples;
    r.premios = tabla.cuentas;
    r.condicionada = datos.condicionada.value_or(0) != datos.generadas.value_or(0) ? -1 : 0;
    EstadosJugados(datos, r);
    EstadosFallados(fallos, r);
    return r;
}

bool GuardarDatos(const std::filesystem::path& carpetaTemporada, const RegReanalisis& registro,
                  base::Dialogo& dialogo) {
    try {
        base::ArchivoDe<RegReanalisis> rean(carpetaTemporada / seasons::kRean);
        std::int32_t n = 1;
        while (n <= rean.Cuenta() && rean.Leer(n).jornada != registro.jornada) ++n;
        rean.Escribir(n, registro);
        rean.Cerrar();
    } catch (const std::exception& e) {
        MostrarError(dialogo, e);
        return false;
    }
    dialogo.Mensaje(kMsgDatosGuardados);
    return true;
}

}  // namespace quinteva::outputs
