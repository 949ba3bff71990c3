#include "builders/by_percentages.h"

#include <algorithm>
#include <charconv>
#include <unordered_set>

#include "base/record_files.h"
#include "base/text1252.h"
#include "engine/pricing.h"

namespace quinteva::builders {

namespace {

constexpr int kMaxPasadas = 15;
constexpr double kMuyElevado = 0.15;
constexpr double kExcesivo = 0.10;
// El boleto lleva 8 columnas.
constexpr std::int32_t kColumnasPorBoleto = 8;

engine::RegistroColumna EnBlanco(const engine::PlenoBase& pleno) {
    engine::RegistroColumna r;
    r.columna.fill(' ');
    r.pleno = pleno;
    r.estado = engine::kActiva;
    return r;
}

// Los signos que ya llevan todos los registros en la posición del partido.
Cupos Contar(const std::vector<engine::RegistroColumna>& registros, std::size_t posicion) {
    Cupos cuenta{};
    for (const auto& r : registros) {
        const int s = engine::IndiceSigno(r.columna[posicion]);
        if (s >= 0) ++cuenta[static_cast<std::size_t>(s)];
    }
    return cuenta;
}

// El signo que quiere un sorteo r entre los dos de un doble: el primero si r no pasa su cupo.
int SorteoDoble(std::int64_t r, int primero, int segundo, const Cupos& cupos) {
    return r <= cupos[static_cast<std::size_t>(primero)] ? primero : segundo;
}

// Un doble: el signo que quiere el sorteo o, si ya llenó su cupo, el otro aunque también lo haya
// llenado.
int SignoDeDoble(int primero, int segundo, std::int32_t total, const Cupos& cupos,
                 const Cupos& cuenta, base::Azar& azar) {
    const int quiere = SorteoDoble(azar.Entero(1, total), primero, segundo, cupos);
    const int otro = quiere == primero ? segundo : primero;
    const auto q = static_cast<std::size_t>(quiere);
    return cuenta[q] >= cupos[q] ? otro : quiere;
}

// Un triple: el que quiere el sorteo si no llenó su cupo; si lo llenó y los otros dos aún no, se
// sortea de nuevo; si alguno lo llenó, el primero de los otros (en el orden 1, X, 2) que no lo
// llenó. -1 si los tres lo llenaron: la posición no cambia.
int SignoDeTriple(std::int32_t total, const Cupos& cupos, const Cupos& cuenta, base::Azar& azar) {
    auto lleno = [&](int s) {
        const auto u = static_cast<std::size_t>(s);
        return cuenta[u] >= cupos[u];
    };
    while (true) {
        const std::int64_t r = azar.Entero(1, total);
        const int quiere = r <= cupos[0] ? 0 : r <= cupos[0] + cupos[1] ? 1 : 2;
        if (!lleno(quiere)) return quiere;
        std::array<int, 2> otros{};
        int n = 0;
        for (int s = 0; s < 3; ++s) {
            if (s != quiere) otros[static_cast<std::size_t>(n++)] = s;
        }
        if (!lleno(otros[0]) && !lleno(otros[1])) continue;
        for (const int s : otros) {
            if (!lleno(s)) return s;
        }
        return -1;
    }
}

// La clave de un registro entero: dos bits por signo (el blanco aparte), el Pleno y el estado.
std::uint64_t Clave(const engine::RegistroColumna& r) {
    std::uint64_t clave = 0;
    for (const char s : r.columna) {
        const int i = engine::IndiceSigno(s);
        clave = (clave << 2U) | static_cast<std::uint64_t>(i < 0 ? 3 : i);
    }
    clave = (clave << 8U) | static_cast<unsigned char>(r.pleno[0]);
    clave = (clave << 8U) | static_cast<unsigned char>(r.pleno[1]);
    return clave;
}

// Los porcentajes de los signos que la base permite; los demás cuentan 0.
std::array<std::uint8_t, 3> DelPartido(const Porcentajes& p, const engine::QuinielaBase& base,
                                       int partido) {
    std::array<std::uint8_t, 3> fila{};
    for (int s = 0; s < 3; ++s) {
        if (base.Elegido(partido, s)) {
            fila[static_cast<std::size_t>(s)] =
                p[static_cast<std::size_t>(s)][static_cast<std::size_t>(partido - 1)];
        }
    }
    return fila;
}

std::optional<std::int32_t> Numero(std::string_view texto) {
    texto = base::Recortar(texto);
    std::int32_t n = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    if (texto.empty() || error != std::errc{} || fin != texto.data() + texto.size() || n <= 0) {
        return std::nullopt;
    }
    return n;
}

bool ComprobarNumero(std::int32_t n, float columnasBase, base::Dialogo& dialogo) {
    if (n % kColumnasPorBoleto == 1) {
        dialogo.Mensaje(MsgBoletoDeUnaColumna(n), base::Icono::Aviso);
        return false;
    }
    const double c = columnasBase;
    if (n > kMuyElevado * c) {
        dialogo.Mensaje(kMsgMuyElevado, base::Icono::Aviso);
        return false;
    }
    if (n > kExcesivo * c) {
        return dialogo.PreguntaSiNo(kPreguntaExcesivo, base::Respuesta::No) == base::Respuesta::Si;
    }
    return true;
}

void EscribirCmb(const std::filesystem::path& ruta,
                 const std::vector<engine::RegistroColumna>& registros) {
    std::filesystem::remove(ruta);
    base::AnexadorRegistros cmb(ruta, engine::RegistroColumna::kLongitud);
    for (const auto& r : registros) cmb.Anadir(r.ABytes());
    cmb.Cerrar();
}

}  // namespace

std::string MsgBoletoDeUnaColumna(std::int32_t columnas) {
    const std::string n = std::to_string(columnas);
    return "No se pueden generar " + n +
           " columnas porque el último boleto tendría una sola, lo que no es correcto. Debe al "
           "menos fijar una columna más o menos.";
}

std::string MsgNoSumanCien(int partido) {
    return "Los porcentajes del partido " + std::to_string(partido) + " no suman 100";
}

std::string MsgSoloSePudieron(std::int32_t columnas) {
    return "Sólo se pudieron generar " + std::to_string(columnas) +
           " columnas con los requisitos pedidos";
}

std::string Signos(const engine::QuinielaBase& base, int partido) {
    const bool uno = base.Elegido(partido, 0);
    const bool equis = base.Elegido(partido, 1);
    const bool dos = base.Elegido(partido, 2);
    if (uno && equis && dos) return "6";
    if (uno && equis) return "3";
    if (uno && dos) return "4";
    if (equis && dos) return "5";
    if (uno) return "1";
    if (equis) return "X";
    if (dos) return "2";
    return "";
}

Cupos CuposDePartido(std::int32_t columnas, const std::array<std::uint8_t, 3>& porcentajes) {
    Cupos cupos{};
    for (std::size_t s = 0; s < 3; ++s) {
        cupos[s] =
            static_cast<std::int32_t>(static_cast<std::int64_t>(columnas) * porcentajes[s] / 100);
    }
    const std::int32_t resto = columnas - cupos[0] - cupos[1] - cupos[2];
    const std::size_t a = cupos[2] > 0 ? 2 : cupos[1] > 0 ? 1 : 0;
    cupos[a] += resto;
    return cupos;
}

void GeneraPorc(std::vector<engine::RegistroColumna>& registros, int partido,
                std::string_view codigo, std::int32_t primera, const Cupos& cupos,
                base::Azar& azar) {
    const auto posicion = static_cast<std::size_t>(partido - 1);
    Cupos cuenta = Contar(registros, posicion);
    const auto total = static_cast<std::int32_t>(registros.size());
    for (auto i = static_cast<std::size_t>(primera - 1); i < registros.size(); ++i) {
        char& signo = registros[i].columna[posicion];
        if (codigo == "1" || codigo == "X" || codigo == "2") {
            signo = codigo[0];
            continue;
        }
        int s = -1;
        if (codigo == "3") s = SignoDeDoble(0, 1, total, cupos, cuenta, azar);
        if (codigo == "4") s = SignoDeDoble(0, 2, total, cupos, cuenta, azar);
        if (codigo == "5") s = SignoDeDoble(1, 2, total, cupos, cuenta, azar);
        if (codigo == "6") s = SignoDeTriple(total, cupos, cuenta, azar);
        if (s < 0) continue;
        signo = engine::kSignos[static_cast<std::size_t>(s)];
        ++cuenta[static_cast<std::size_t>(s)];
    }
}

void MarcarRepetidas(std::vector<engine::RegistroColumna>& registros) {
    std::unordered_set<std::uint64_t> vistas;
    vistas.reserve(registros.size() * 2);
    for (auto& r : registros) {
        if (r.estado != engine::kActiva) continue;
        if (!vistas.insert(Clave(r)).second) r.estado = engine::kEliminada;
    }
}

std::int32_t QuitarRepes(std::vector<engine::RegistroColumna>& registros, std::int32_t columnas,
                         const engine::PlenoBase& pleno) {
    std::erase_if(registros, [](const engine::RegistroColumna& r) { return !r.Activa(); });
    const auto activas = static_cast<std::int32_t>(registros.size());
    const auto n = static_cast<std::size_t>(columnas);
    if (activas >= columnas) {
        registros.resize(n);
        return columnas;
    }
    registros.resize(n, EnBlanco(pleno));
    return activas;
}

Reparto RepartirPorPorcentajes(const engine::QuinielaBase& base, const engine::PlenoBase& pleno,
                               std::int32_t columnas, const Porcentajes& porcentajes,
                               base::Azar& azar) {
    Reparto r;
    r.registros.assign(static_cast<std::size_t>(columnas), EnBlanco(pleno));
    std::array<Cupos, engine::kPartidos> cupos{};
    for (int p = 1; p <= engine::kPartidos; ++p) {
        cupos[static_cast<std::size_t>(p - 1)] =
            CuposDePartido(columnas, DelPartido(porcentajes, base, p));
    }
    do {
        const std::int32_t primera = r.generadas + 1;
        ++r.pasadas;
        for (int p = 1; p <= engine::kPartidos; ++p) {
            GeneraPorc(r.registros, p, Signos(base, p), primera,
                       cupos[static_cast<std::size_t>(p - 1)], azar);
        }
        MarcarRepetidas(r.registros);
        r.generadas = QuitarRepes(r.registros, columnas, pleno);
    } while (r.generadas < columnas && r.pasadas < kMaxPasadas);
    return r;
}

std::optional<std::int32_t> GenerarPorPorcentajes(engine::Combinacion& comb,
                                                  const std::filesystem::path& carpetaTrabajo,
                                                  std::string_view numero,
                                                  const Porcentajes& porcentajes, base::Azar& azar,
                                                  base::Dialogo& dialogo) {
    const std::optional<std::int32_t> n = Numero(numero);
    if (!n) {
        dialogo.Mensaje(kMsgSinNumeroPorcentajes, base::Icono::Aviso);
        return std::nullopt;
    }
    if (!ComprobarNumero(*n, comb.base.Columnas(), dialogo)) return std::nullopt;
    Porcentajes tabla{};
    for (int p = 1; p <= engine::kPartidos; ++p) {
        const auto fila = DelPartido(porcentajes, comb.base, p);
        if (fila[0] + fila[1] + fila[2] != 100) {
            dialogo.Mensaje(MsgNoSumanCien(p), base::Icono::Aviso);
            return std::nullopt;
        }
        for (std::size_t s = 0; s < 3; ++s) tabla[s][static_cast<std::size_t>(p - 1)] = fila[s];
    }

    comb.origenPorcentajes = 1;
    comb.rechazos = {};
    comb.tablaPorcentajes = tabla;
    const Reparto reparto = RepartirPorPorcentajes(comb.base, comb.pleno, *n, tabla, azar);
    EscribirCmb(carpetaTrabajo / engine::kCmbTmp, reparto.registros);
    comb.totalGeneradas = comb.activasGeneradas = reparto.generadas;
    comb.totalReducidas = comb.activasReducidas = 0;
    comb.apuestasPosibles = comb.base.Columnas();
    comb.panel.guardada = false;
    comb.panel.condicionada = reparto.generadas;
    comb.panel.reducidas = {};
    comb.valorPorcentajes = reparto.generadas;
    if (reparto.generadas < *n) dialogo.Mensaje(MsgSoloSePudieron(reparto.generadas));
    return reparto.generadas;
}

void SumaCien(Porcentajes& p, const engine::QuinielaBase& base, int partido, int signo) {
    const auto m = static_cast<std::size_t>(partido - 1);
    auto celda = [&](int s) -> std::uint8_t& { return p[static_cast<std::size_t>(s % 3)][m]; };
    const int suma = celda(0) + celda(1) + celda(2);
    if (suma == 100) return;
    int companera = (signo + 1) % 3;
    while (companera != signo && !base.Elegido(partido, companera)) companera = (companera + 1) % 3;
    if (suma > 100) {
        const int exceso = suma - 100;
        if (celda(companera) >= exceso) {
            celda(companera) = static_cast<std::uint8_t>(celda(companera) - exceso);
        } else {
            celda(companera) = 0;
            celda(companera + 1) = static_cast<std::uint8_t>(100 - celda(signo));
        }
        return;
    }
    const int falta = 100 - suma;
    if (celda(companera) + falta <= 100) {
        celda(companera) = static_cast<std::uint8_t>(celda(companera) + falta);
    }
}

std::string TeclaEnCelda(std::string_view texto, char tecla) {
    std::string t(texto);
    if (tecla == '\x7f') return "0";
    if (tecla == '\b') {
        if (!t.empty()) t.pop_back();
        return t.empty() ? "0" : t;
    }
    if (tecla < '0' || tecla > '9') return t;
    if (t == "0") return std::string(1, tecla);
    if (t.size() < 2 || (t == "10" && tecla == '0')) return t + tecla;
    return t;
}

bool CeldaEditable(const engine::QuinielaBase& base, int partido, int signo) {
    return base.SignosElegidos(partido) > 1 && base.Elegido(partido, signo);
}

Porcentajes PorcentajesAlAbrir(const engine::Combinacion& comb) {
    Porcentajes p{};
    for (int partido = 1; partido <= engine::kPartidos; ++partido) {
        const auto m = static_cast<std::size_t>(partido - 1);
        for (int s = 0; s < 3; ++s) {
            const auto u = static_cast<std::size_t>(s);
            if (!comb.base.Elegido(partido, s)) continue;
            if (comb.base.SignosElegidos(partido) == 1) {
                p[u][m] = 100;
            } else if (comb.origenPorcentajes == 1) {
                p[u][m] = comb.tablaPorcentajes[u][m];
            }
        }
    }
    return p;
}

}  // namespace quinteva::builders
