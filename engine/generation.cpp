#include "engine/generation.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include "base/error.h"
#include "base/record_files.h"
#include "engine/filter.h"

namespace quinteva::engine {
namespace {

// Escribe registros de 17 bytes al final de "Cmb.tmp" con un búfer grande: los mismos bytes que
// añadirlos uno a uno, sin el coste por registro (la generación escribe millones).
class EscritorColumnas {
  public:
    explicit EscritorColumnas(const std::filesystem::path& ruta)
        : ruta_(ruta), archivo_(std::fopen(ruta.c_str(), "wb"), &std::fclose) {
        if (!archivo_) base::FalloDeArchivo(ruta);
        bufer_.resize(kRegistrosPorBloque * RegistroColumna::kLongitud);
    }
    void Anadir(const base::Byte* registro) {
        std::memcpy(bufer_.data() + lleno_, registro, RegistroColumna::kLongitud);
        lleno_ += RegistroColumna::kLongitud;
        ++cuenta_;
        if (lleno_ == bufer_.size()) Volcar();
    }
    std::int32_t Cuenta() const { return cuenta_; }
    void Cerrar() {
        Volcar();
        if (std::fclose(archivo_.release()) != 0) base::FalloDeArchivo(ruta_);
    }
    ~EscritorColumnas() {
        if (archivo_ && lleno_ > 0) std::fwrite(bufer_.data(), 1, lleno_, archivo_.get());
    }

  private:
    static constexpr std::size_t kRegistrosPorBloque = 1 << 16;
    void Volcar() {
        if (lleno_ > 0 && std::fwrite(bufer_.data(), 1, lleno_, archivo_.get()) != lleno_) {
            lleno_ = 0;
            base::FalloDeArchivo(ruta_);
        }
        lleno_ = 0;
    }
    std::filesystem::path ruta_;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> archivo_;
    std::vector<base::Byte> bufer_;
    std::size_t lleno_ = 0;
    std::int32_t cuenta_ = 0;
};

}  // namespace

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

    EscritorColumnas cmb(rutaCmb);
    const bool filtrar = comb.numCondiciones > 0;
    const Filtro filtro(filtrar ? comb.condiciones : SetCondiciones{});
    const std::size_t palabras = filtro.Palabras();

    // Las mitades en el orden del cuentakilómetros: partidos 1 a 7 y 8 a 14.
    auto mitades = [&](int desde) {
        std::vector<SignosMitad> lista;
        SignosMitad indice{};
        while (true) {
            SignosMitad signos{};
            for (std::size_t i = 0; i < static_cast<std::size_t>(kMitad); ++i) {
                signos[i] = static_cast<std::uint8_t>(
                    opciones[static_cast<std::size_t>(desde) + i][indice[i]]);
            }
            lista.push_back(signos);
            int p = kMitad - 1;
            for (; p >= 0; --p) {
                const auto u = static_cast<std::size_t>(p);
                if (++indice[u] < cuantas[static_cast<std::size_t>(desde) + u]) break;
                indice[u] = 0;
            }
            if (p < 0) return lista;
        }
    };
    const std::vector<SignosMitad> primeras = mitades(0);
    const std::vector<SignosMitad> segundas = mitades(kMitad);

    // Aportes de las segundas mitades, una tabla por cada par de signos finales de la primera.
    std::vector<Aporte> aportes;
    std::vector<std::uint64_t> carriles;
    if (filtrar) {
        aportes.resize(9 * segundas.size());
        carriles.resize(9 * segundas.size() * palabras + 1);
        for (std::uint8_t par = 0; par < 9; ++par) {
            for (std::size_t i = 0; i < segundas.size(); ++i) {
                const std::size_t k = par * segundas.size() + i;
                filtro.AporteSegunda(static_cast<std::uint8_t>(par / 3), static_cast<std::uint8_t>(par % 3),
                                     segundas[i], aportes[k], carriles.data() + k * palabras);
            }
        }
    }

    // El registro de cada segunda mitad, con el Pleno y el estado; la primera se pone encima.
    RegistroColumna registro{{}, comb.pleno, kActiva};
    std::vector<std::array<base::Byte, RegistroColumna::kLongitud>> registros(segundas.size());
    for (std::size_t i = 0; i < segundas.size(); ++i) {
        for (std::size_t k = 0; k < static_cast<std::size_t>(kMitad); ++k) {
            registro.columna[kMitad + k] = kSignos[segundas[i][k]];
        }
        registros[i] = registro.ABytes();
    }
    const auto total = static_cast<std::int64_t>(comb.apuestasPosibles);
    ResultadoGeneracion r;
    std::int64_t examinadas = 0;
    Aporte primera;
    std::vector<std::uint64_t> carrilesPrimera(palabras + 1);
    for (const SignosMitad& a : primeras) {
        std::array<base::Byte, kMitad> bytesPrimera{};
        for (std::size_t i = 0; i < static_cast<std::size_t>(kMitad); ++i) {
            bytesPrimera[i] = static_cast<base::Byte>(kSignos[a[i]]);
        }
        for (auto& reg : registros) std::memcpy(reg.data(), bytesPrimera.data(), kMitad);
        std::size_t par = 0;
        if (filtrar) {
            filtro.AportePrimera(a, primera, carrilesPrimera.data());
            par = (a[kMitad - 2] * 3U + a[kMitad - 1]) * segundas.size();
        }
        for (std::size_t i = 0; i < segundas.size(); ++i) {
            ++examinadas;
            const bool pasa =
                !filtrar || filtro.Condicionar(primera, carrilesPrimera.data(), aportes[par + i],
                                               carriles.data() + (par + i) * palabras,
                                               comb.rechazos);
            if (pasa) cmb.Anadir(registros[i].data());
            if (examinadas % kColumnasPorAviso == 0) {
                progreso.Avance(examinadas, total);
                if (progreso.Detenido()) {
                    r.detenida = true;
                    break;
                }
            }
        }
        if (r.detenida) break;
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
