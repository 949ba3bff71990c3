#include "builders/reduction_tables.h"

#include <algorithm>
#include <array>
#include <span>
#include <sstream>

#include "base/error.h"
#include "base/record_files.h"
#include "builders/reduction_systems_data.h"

namespace quinteva::builders {
namespace {

// clang-format off
constexpr Tramo kTramos[] = {
    {13, 0, 0, 2, 0, 0, 0}, {13, 0, 3, 5, 2, 0, 3}, {13, 0, 6, 6, 12, 0, 6}, {13, 0, 7, 14, 16, 0, 7},
    {13, 1, 0, 1, 0, 0, 0}, {13, 1, 2, 3, 3, 1, 2}, {13, 1, 4, 5, 8, 1, 4}, {13, 1, 6, 13, 24, 1, 6},
    {13, 2, 0, 1, 0, 0, 0}, {13, 2, 2, 4, 6, 2, 2}, {13, 2, 5, 6, 36, 2, 5}, {13, 2, 7, 12, 128, 2, 7},
    {13, 3, 0, 2, 5, 3, 0}, {13, 3, 3, 11, 24, 3, 3},
    {13, 4, 0, 10, 9, 4, 0}, {13, 5, 0, 9, 9, 4, 0}, {13, 6, 0, 8, 9, 4, 0}, {13, 7, 0, 7, 9, 4, 0},
    {13, 8, 0, 6, 9, 4, 0}, {13, 9, 0, 5, 9, 4, 0}, {13, 10, 0, 4, 9, 4, 0}, {13, 11, 0, 3, 9, 4, 0},
    {13, 12, 0, 2, 9, 4, 0}, {13, 13, 0, 1, 9, 4, 0}, {13, 14, 0, 0, 9, 4, 0},

    {12, 0, 0, 4, 0, 0, 0}, {12, 0, 5, 8, 2, 0, 5}, {12, 0, 9, 14, 16, 0, 9},
    {12, 1, 0, 3, 0, 0, 0}, {12, 1, 4, 5, 3, 1, 4}, {12, 1, 6, 7, 8, 1, 6}, {12, 1, 8, 13, 24, 1, 8},
    {12, 2, 0, 1, 0, 0, 0}, {12, 2, 2, 2, 3, 2, 2}, {12, 2, 3, 4, 4, 2, 3}, {12, 2, 5, 5, 12, 2, 5},
    {12, 2, 6, 12, 19, 2, 6},
    {12, 3, 0, 0, 0, 0, 0}, {12, 3, 1, 3, 3, 3, 1}, {12, 3, 4, 6, 13, 3, 4}, {12, 3, 7, 11, 60, 3, 7},
    {12, 4, 0, 2, 3, 4, 0}, {12, 4, 3, 3, 18, 4, 3}, {12, 4, 4, 6, 24, 4, 4}, {12, 4, 7, 10, 144, 4, 7},
    {12, 5, 0, 2, 3, 4, 0}, {12, 5, 3, 3, 18, 4, 3}, {12, 5, 4, 6, 24, 4, 4}, {12, 5, 7, 9, 144, 4, 7},
    {12, 6, 0, 1, 18, 6, 0}, {12, 6, 2, 2, 48, 6, 2}, {12, 6, 3, 8, 72, 6, 3},
    {12, 7, 0, 1, 45, 7, 0}, {12, 7, 2, 2, 48, 6, 2}, {12, 7, 3, 7, 72, 6, 3},
    {12, 8, 0, 6, 81, 8, 0}, {12, 9, 0, 5, 81, 8, 0}, {12, 10, 0, 4, 81, 8, 0},
    {12, 11, 0, 3, 729, 11, 0}, {12, 12, 0, 2, 729, 11, 0}, {12, 13, 0, 1, 729, 11, 0},
    {12, 14, 0, 0, 729, 11, 0},

    {11, 0, 0, 6, 0, 0, 0}, {11, 0, 7, 8, 2, 0, 7}, {11, 0, 9, 10, 7, 0, 9}, {11, 0, 11, 14, 16, 0, 11},
    {11, 1, 0, 5, 0, 0, 0}, {11, 1, 6, 7, 3, 1, 6}, {11, 1, 8, 9, 8, 1, 8}, {11, 1, 10, 13, 20, 1, 10},
    {11, 2, 0, 3, 0, 0, 0}, {11, 2, 4, 5, 3, 2, 4}, {11, 2, 6, 7, 6, 2, 6}, {11, 2, 8, 8, 16, 2, 8},
    {11, 2, 9, 12, 24, 2, 9},
    {11, 3, 0, 2, 0, 0, 0}, {11, 3, 3, 4, 3, 3, 3}, {11, 3, 5, 5, 8, 3, 5}, {11, 3, 6, 7, 12, 3, 6},
    {11, 3, 8, 11, 32, 3, 8},
    {11, 4, 0, 0, 0, 0, 0}, {11, 4, 1, 2, 3, 4, 1}, {11, 4, 3, 4, 6, 4, 3}, {11, 4, 5, 5, 16, 4, 5},
    {11, 4, 6, 7, 24, 4, 6}, {11, 4, 8, 10, 68, 4, 8},
    {11, 5, 0, 1, 3, 5, 0}, {11, 5, 2, 2, 7, 5, 2}, {11, 5, 3, 4, 12, 5, 3}, {11, 5, 5, 6, 32, 5, 5},
    {11, 5, 7, 9, 90, 5, 7},
    {11, 6, 0, 1, 6, 6, 0}, {11, 6, 2, 2, 16, 6, 2}, {11, 6, 3, 4, 24, 6, 3}, {11, 6, 5, 5, 72, 6, 5},
    {11, 6, 6, 8, 96, 6, 6},
    {11, 7, 0, 0, 12, 7, 0}, {11, 7, 1, 2, 18, 7, 1}, {11, 7, 3, 4, 54, 7, 3}, {11, 7, 5, 7, 144, 7, 5},
    {11, 8, 0, 1, 27, 8, 0}, {11, 8, 2, 2, 72, 8, 2}, {11, 8, 3, 6, 108, 8, 3},
    {11, 9, 0, 1, 54, 9, 0}, {11, 9, 2, 5, 144, 9, 2},
    {11, 10, 0, 4, 108, 10, 0}, {11, 11, 0, 3, 108, 10, 0}, {11, 12, 0, 2, 108, 10, 0},
    {11, 13, 0, 1, 108, 10, 0}, {11, 14, 0, 0, 108, 10, 0},
};
// clang-format on

[[noreturn]] void Invalido(const std::string& motivo) {
    throw base::Error("Los sistemas reducidos no son válidos: " + motivo);
}

// Carácter de la fila para un doble de la clase dada: la fila da "1" o "X", el primer o el
// segundo signo del doble.
char SignoDeDoble(char fila, int clase) {
    if (clase == 2 && fila == 'X') return '2';
    if (clase == 3 && fila == '1') return '2';
    return fila;
}

// La cifra de base 3 de cada byte de un registro: 0, 1, 2 para "1", "X", "2"; -1 para lo demás.
constexpr std::array<std::int8_t, 256> kCifraDeByte = [] {
    std::array<std::int8_t, 256> cifras{};
    cifras.fill(-1);
    cifras['1'] = 0;
    cifras['X'] = 1;
    cifras['2'] = 2;
    return cifras;
}();

// El código de base 3 de la proyección de un registro en esos partidos, sin saltos por signo
// (la reducción lo calcula para cada columna); -1 si alguno no es un signo.
std::int32_t CodigoDeRegistro(std::span<const base::Byte> registro,
                              const std::vector<std::size_t>& fijos) {
    std::int32_t codigo = 0;
    int invalido = 0;
    for (const std::size_t p : fijos) {
        const int cifra = kCifraDeByte[registro[p]];
        invalido |= cifra;
        codigo = codigo * 3 + cifra;
    }
    return invalido < 0 ? -1 : codigo;
}

}  // namespace

std::span<const Tramo> TramosSeleccion() { return kTramos; }

std::vector<SistemaReducido> LeerSistemas(std::string_view texto) {
    std::vector<SistemaReducido> sistemas;
    std::istringstream lineas{std::string(texto)};
    std::string linea;
    std::size_t pendientes = 0;
    while (std::getline(lineas, linea)) {
        if (linea.empty() || linea[0] == '#') continue;
        if (pendientes == 0) {
            std::istringstream cabecera(linea);
            std::string palabra;
            SistemaReducido s;
            if (!(cabecera >> palabra >> s.nivel >> s.triples >> s.dobles >> pendientes) ||
                palabra != "sistema" || pendientes == 0) {
                Invalido("cabecera \"" + linea + "\"");
            }
            sistemas.push_back(std::move(s));
            continue;
        }
        SistemaReducido& s = sistemas.back();
        const auto ancho = static_cast<std::size_t>(s.triples + s.dobles);
        if (linea.size() != ancho || linea.find_first_not_of("1X2") != std::string::npos) {
            Invalido("fila \"" + linea + "\"");
        }
        s.filas.push_back(linea);
        --pendientes;
    }
    if (pendientes != 0) Invalido("faltan filas");
    return sistemas;
}

const std::vector<SistemaReducido>& SistemasReducidos() {
    static const std::vector<SistemaReducido> sistemas = LeerSistemas(kTextoSistemas);
    return sistemas;
}

const SistemaReducido* ElegirSistema(int nivel, int triples, int dobles) {
    for (const Tramo& t : kTramos) {
        if (t.nivel != nivel || t.triples != triples || dobles < t.dMin || dobles > t.dMax) {
            continue;
        }
        if (t.filas == 0) return nullptr;
        for (const SistemaReducido& s : SistemasReducidos()) {
            if (s.nivel == nivel && s.triples == t.tw && s.dobles == t.du) return &s;
        }
        Invalido("falta el sistema " + std::to_string(t.tw) + "+" + std::to_string(t.du));
    }
    return nullptr;
}

FormaBase Clasificar(const engine::QuinielaBase& base, const SeleccionPartidos& seleccion,
                     ClaseBase& clases) {
    FormaBase forma;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        const auto i = static_cast<std::size_t>(p - 1);
        if (seleccion && !(*seleccion)[i]) continue;
        const bool uno = base.Elegido(p, 0);
        const bool equis = base.Elegido(p, 1);
        switch (base.SignosElegidos(p)) {
            case 2:
                ++forma.dobles;
                clases[i] = (uno && equis) ? 1 : uno ? 2 : 3;
                break;
            case 3:
                ++forma.triples;
                clases[i] = 4;
                break;
            default:
                clases[i] = 0;
        }
    }
    return forma;
}

std::vector<std::string> PatronesReducidos(const SistemaReducido& sistema,
                                           const ClaseBase& clases) {
    const int ancho = sistema.triples + sistema.dobles;
    std::vector<std::string> patrones;
    for (const std::string& fila : sistema.filas) {
        std::string patron(engine::kPartidos, ' ');
        int doble = sistema.triples;
        int triple = 0;
        for (std::size_t p = 0; p < patron.size() && doble + triple < sistema.triples + ancho;
             ++p) {
            const int clase = clases[p];
            if (clase >= 1 && clase <= 3 && ancho > sistema.triples && doble < ancho) {
                patron[p] = SignoDeDoble(fila[static_cast<std::size_t>(doble++)], clase);
            } else if (clase == 4 && triple < sistema.triples) {
                patron[p] = fila[static_cast<std::size_t>(triple++)];
            }
        }
        patrones.push_back(std::move(patron));
    }
    return patrones;
}

CasaConPatrones::CasaConPatrones(const std::vector<std::string>& patrones) {
    for (std::size_t p = 0; !patrones.empty() && p < engine::kPartidos; ++p) {
        if (patrones.front()[p] != ' ') fijos_.push_back(p);
    }
    std::size_t posibles = patrones.empty() ? 0 : 1;
    for (std::size_t i = 0; i < fijos_.size(); ++i) posibles *= 3;
    permitidos_.assign(posibles, false);
    for (const std::string& patron : patrones) {
        const auto* bytes = reinterpret_cast<const base::Byte*>(patron.data());
        permitidos_[static_cast<std::size_t>(CodigoDeRegistro({bytes, patron.size()}, fijos_))] =
            true;
    }
}

bool CasaConPatrones::operator()(std::span<const base::Byte> signos) const {
    if (permitidos_.empty()) return false;
    const std::int32_t c = CodigoDeRegistro(signos, fijos_);
    return c >= 0 && permitidos_[static_cast<std::size_t>(c)];
}

std::optional<std::vector<std::string>> PatronesDeLaBase(const engine::QuinielaBase& base,
                                                         int nivel, ClaseBase clases) {
    const FormaBase forma = Clasificar(base, std::nullopt, clases);
    const SistemaReducido* sistema = ElegirSistema(nivel, forma.triples, forma.dobles);
    if (sistema == nullptr) return std::nullopt;
    return PatronesReducidos(*sistema, clases);
}

std::int32_t FiltrarPorPatrones(const std::vector<std::string>& patrones,
                                const engine::Combinacion& combinacion,
                                const std::filesystem::path& carpetaTrabajo,
                                base::Progreso& progreso) {
    const CasaConPatrones casa(patrones);
    base::LectorRegistros cmb(carpetaTrabajo / engine::kCmbTmp, engine::RegistroColumna::kLongitud);
    base::AnexadorRegistros red(carpetaTrabajo / engine::kRedTmp,
                                engine::RegistroColumna::kLongitud);
    std::array<base::Byte, engine::RegistroColumna::kLongitud> salida{};
    std::int32_t numero = 0;
    for (auto registro = cmb.Siguiente(); !registro.empty(); registro = cmb.Siguiente()) {
        ++numero;
        if (casa(registro)) {
            std::copy(registro.begin(), registro.end(), salida.begin());
            salida[16] = static_cast<base::Byte>(engine::kActiva);
            red.Anadir(salida);
        }
        progreso.Avance(numero, combinacion.totalGeneradas);
        if (progreso.Detenido()) break;
    }
    const std::int32_t reducidas = red.Cuenta();
    red.Cerrar();
    return reducidas;
}

ResultadoTablas ReducirPorTablas(engine::Combinacion& combinacion,
                                 const std::filesystem::path& carpetaTrabajo, int nivel,
                                 const SeleccionPartidos& seleccion, ClaseBase& clases,
                                 base::Progreso& progreso, const base::Ajustes& ajustes) {
    engine::PrepararReduccion(combinacion, carpetaTrabajo);
    const FormaBase forma = Clasificar(combinacion.base, seleccion, clases);
    const SistemaReducido* sistema = ElegirSistema(nivel, forma.triples, forma.dobles);
    ResultadoTablas resultado;
    if (sistema == nullptr) {
        resultado.sinSistema = true;
        return resultado;
    }
    const auto patrones = PatronesReducidos(*sistema, clases);
    resultado.reduccion.reducidas =
        FiltrarPorPatrones(patrones, combinacion, carpetaTrabajo, progreso);
    resultado.reduccion.detenida = progreso.Detenido();
    engine::TerminarReduccion(combinacion, 14 - nivel, resultado.reduccion.reducidas, ajustes);
    return resultado;
}

}  // namespace quinteva::builders
