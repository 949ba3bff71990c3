#include "engine/generation.h"

#include <array>

#include "base/error.h"
#include "base/record_files.h"
#include "engine/filter.h"

namespace quinteva::engine {

ResultadoGeneracion Generar(Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
                            base::Progreso& progreso, const base::Ajustes& ajustes) {
    // Las opciones de cada cifra, en el orden 1, X, 2.
    std::array<std::array<int, 3>, kPartidos> opciones{};
    std::array<int, kPartidos> cuantas{};
    for (int p = 0; p < kPartidos; ++p) {
        const auto u = static_cast<std::size_t>(p);
        for (int s = 0; s < 3; ++s) {
            if (comb.base.Elegido(p + 1, s)) opciones[u][static_cast<std::size_t>(cuantas[u]++)] = s;
        }
        if (cuantas[u] == 0) throw base::Error("La Quiniela Base no tiene signo en el partido " +
                                               std::to_string(p + 1));
    }

    const auto rutaCmb = carpetaTrabajo / kCmbTmp;
    std::filesystem::remove(rutaCmb);
    comb.origenPorcentajes = 0;
    comb.rechazos = {};
    comb.panel.condicionada.reset();
    comb.panel.reducidas = {};
    comb.panel.precio.reset();
    comb.panel.guardada = false;
    comb.totalGeneradas = comb.totalReducidas = comb.activasGeneradas = comb.activasReducidas = 0;
    comb.apuestasPosibles = comb.base.Columnas();
    comb.numCondiciones = NumeroDeCondiciones(comb.condiciones);

    base::AnexadorRegistros cmb(rutaCmb, RegistroColumna::kLongitud);
    const bool filtrar = comb.numCondiciones > 0;
    const Filtro filtro(filtrar ? comb.condiciones : SetCondiciones{});

    // La primera columna: cada cifra en su primer signo elegido.
    std::array<int, kPartidos> indice{};
    Mascaras mascaras;
    RegistroColumna registro{{}, comb.pleno, kActiva};
    for (int p = 0; p < kPartidos; ++p) {
        const int s = opciones[static_cast<std::size_t>(p)][0];
        mascaras.m[static_cast<std::size_t>(s)] |= static_cast<std::uint16_t>(1U << p);
        registro.columna[static_cast<std::size_t>(p)] = kSignos[static_cast<std::size_t>(s)];
        mascaras.signo[static_cast<std::size_t>(p)] = static_cast<std::uint8_t>(s);
    }
    auto bytes = registro.ABytes();

    const auto total = static_cast<std::int64_t>(comb.apuestasPosibles);
    ResultadoGeneracion r;
    std::int64_t examinadas = 0;
    while (true) {
        ++examinadas;
        if (!filtrar || filtro.Condicionar(mascaras, comb.rechazos)) cmb.Anadir(bytes);
        if (examinadas % kColumnasPorAviso == 0) {
            progreso.Avance(examinadas, total);
            if (progreso.Detenido()) {
                r.detenida = true;
                break;
            }
        }
        // Avanza el cuentakilómetros desde el partido 14.
        int p = kPartidos - 1;
        for (; p >= 0; --p) {
            const auto u = static_cast<std::size_t>(p);
            const auto bit = static_cast<std::uint16_t>(1U << p);
            mascaras.m[static_cast<std::size_t>(opciones[u][static_cast<std::size_t>(indice[u])])] &=
                static_cast<std::uint16_t>(~bit);
            const bool vuelta = ++indice[u] == cuantas[u];
            if (vuelta) indice[u] = 0;
            const int s = opciones[u][static_cast<std::size_t>(indice[u])];
            mascaras.m[static_cast<std::size_t>(s)] |= bit;
            mascaras.signo[u] = static_cast<std::uint8_t>(s);
            bytes[u] = static_cast<base::Byte>(kSignos[static_cast<std::size_t>(s)]);
            if (!vuelta) break;
        }
        if (p < 0) break;
    }
    cmb.Cerrar();

    r.examinadas = examinadas;
    r.totalGeneradas = cmb.Cuenta();
    comb.totalGeneradas = r.totalGeneradas;
    if (r.detenida) return r;
    progreso.Avance(examinadas, total);

    comb.activasGeneradas = comb.totalGeneradas;
    comb.panel.condicionada = comb.activasGeneradas;
    r.infoHabilitado = comb.numCondiciones > 0;
    r.reducirHabilitado = comb.totalGeneradas > 0;
    r.avisoBoletos = r.reducirHabilitado &&
                     ajustes.Leer(base::kAplicacion, "Valores", "AvBoletos", "SI") == "SI";
    comb.totalReducidas = comb.activasReducidas = 0;
    return r;
}

}  // namespace quinteva::engine
