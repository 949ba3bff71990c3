#include "outputs/hit_check.h"

#include "base/record_files.h"
#include "base/text1252.h"
#include "engine/columns.h"
#include "engine/combination_files.h"

namespace quinteva::outputs {
namespace {

constexpr std::int32_t kColumnasPorBoleto = 8;
constexpr std::int32_t kCadaAvance = 1 << 16;
constexpr std::size_t kPleno = engine::kPartidos;

// El archivo de columnas del conjunto jugado; nada (y su mensaje) si no se puede comprobar.
std::optional<std::filesystem::path> ColumnasJugadas(const std::filesystem::path& rutaCombinacion,
                                                     base::Dialogo& dialogo) {
    if (rutaCombinacion.empty()) {
        dialogo.Mensaje(kMsgNoGuardada, base::Icono::Aviso);
        return std::nullopt;
    }
    const std::string jugada = engine::LeerCabecera(rutaCombinacion).jugada;
    if (!base::MismoTexto(jugada, "cnd") && !base::MismoTexto(jugada, "red")) {
        dialogo.Mensaje(kMsgNoGenerada, base::Icono::Aviso);
        return std::nullopt;
    }
    return engine::RutaHermana(rutaCombinacion, "." + std::string(base::Recortar(jugada)));
}

// Cada registro activo, con su número entre los activos y el Pleno de su Boleto. Un archivo que
// falta no tiene columnas.
template <typename Visita>
void RecorrerActivas(const std::filesystem::path& archivo, base::Progreso& progreso,
                     Visita visita) {
    if (base::CuentaRegistros(archivo, engine::RegistroColumna::kLongitud) == 0) return;
    base::LectorRegistros lector(archivo, engine::RegistroColumna::kLongitud);
    std::int32_t leidos = 0;
    std::int32_t numero = 0;
    char pleno[2] = {' ', ' '};
    for (auto r = lector.Siguiente(); !r.empty(); r = lector.Siguiente()) {
        if (++leidos % kCadaAvance == 0) progreso.Avance(leidos, lector.Cuenta());
        if (r[engine::RegistroColumna::kLongitud - 1] != engine::kActiva) continue;
        if (numero++ % kColumnasPorBoleto == 0) {
            pleno[0] = static_cast<char>(r[kPleno]);
            pleno[1] = static_cast<char>(r[kPleno + 1]);
        }
        visita(reinterpret_cast<const char*>(r.data()), std::string_view(pleno, 2), numero);
    }
    progreso.Avance(leidos, lector.Cuenta());
}

}  // namespace

void MostrarError(base::Dialogo& dialogo, const std::exception& error) {
    dialogo.Mensaje("Error: " + std::string(error.what()) + ".", base::Icono::Error);
}

void TerminarAciertos(Comprobacion& c) {
    c.hecha = true;
    const auto& cuentas = c.tabla.cuentas;
    c.fallos = cuentas[1] == 0;
    if (!c.fallos) {
        c.saludo = std::string(cuentas[0] != 0 ? kEnhorabuena : kMuyBien);
        c.parpadea = true;
    }
    c.columnas = c.pena = HayLocalizadas(c.tabla);
    c.datos = true;
}

Comprobacion Aciertos(const std::filesystem::path& rutaCombinacion, std::string_view ganadora,
                      base::Dialogo& dialogo, base::Progreso& progreso) {
    Comprobacion c;
    try {
        const auto archivo = ColumnasJugadas(rutaCombinacion, dialogo);
        if (!archivo) return c;
        const Comparador comparador(ganadora);
        RecorrerActivas(*archivo, progreso,
                        [&](const char* signos, std::string_view pleno, std::int32_t numero) {
                            comparador.Anotar(signos, pleno, numero, c.tabla);
                        });
        TerminarAciertos(c);
    } catch (const std::exception& e) {
        MostrarError(dialogo, e);
    }
    return c;
}

Comprobacion Avance(const std::filesystem::path& rutaCombinacion, std::string_view ganadora,
                    std::string_view celdaPleno, base::Dialogo& dialogo, base::Progreso& progreso) {
    Comprobacion c;
    try {
        const auto archivo = ColumnasJugadas(rutaCombinacion, dialogo);
        if (!archivo) return c;
        const Comparador comparador(ganadora, true);
        RecorrerActivas(*archivo, progreso,
                        [&](const char* signos, std::string_view, std::int32_t) {
                            comparador.AnotarAvance(signos, c.tabla);
                        });
        const bool plenoAcertado = celdaPleno.size() == 3 && ganadora.size() >= kPleno + 2 &&
                                   celdaPleno[0] == ganadora[kPleno] &&
                                   celdaPleno[2] == ganadora[kPleno + 1];
        if (c.tabla.cuentas[1] > 0 && plenoAcertado) c.tabla.cuentas[0] = c.tabla.cuentas[1];
        c.hecha = true;
    } catch (const std::exception& e) {
        MostrarError(dialogo, e);
    }
    return c;
}

}  // namespace quinteva::outputs
