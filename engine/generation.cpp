#include "engine/generation.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>

#include "base/error.h"
#include "base/record_files.h"
#include "engine/filter_blocks.h"

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
    // Registros seguidos en memoria.
    void AnadirBloque(const base::Byte* registros, std::size_t cuantos) {
        std::size_t bytes = cuantos * RegistroColumna::kLongitud;
        while (bytes > 0) {
            const std::size_t cabe = std::min(bytes, bufer_.size() - lleno_);
            std::memcpy(bufer_.data() + lleno_, registros, cabe);
            lleno_ += cabe;
            registros += cabe;
            bytes -= cabe;
            if (lleno_ == bufer_.size()) Volcar();
        }
        cuenta_ += static_cast<std::int32_t>(cuantos);
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
            if (comb.base.Elegido(p + 1, s))
                opciones[u][static_cast<std::size_t>(cuantas[u]++)] = s;
        }
        if (cuantas[u] == 0)
            throw base::Error("La Quiniela Base no tiene signo en el partido " +
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

    // El registro de cada segunda mitad, con el Pleno y el estado; la primera se pone encima.
    RegistroColumna registro{{}, comb.pleno, kActiva};
    std::vector<std::array<base::Byte, RegistroColumna::kLongitud>> registros(segundas.size());
    for (std::size_t i = 0; i < segundas.size(); ++i) {
        for (std::size_t k = 0; k < static_cast<std::size_t>(kMitad); ++k) {
            registro.columna[kMitad + k] = kSignos[segundas[i][k]];
        }
        registros[i] = registro.ABytes();
    }

    std::optional<FiltroPorBloques> bloques;
    if (filtrar) bloques.emplace(comb.condiciones, segundas);
    std::vector<std::uint64_t> pasan((segundas.size() + 63) / 64);

    const auto total = static_cast<std::int64_t>(comb.apuestasPosibles);
    const auto n = static_cast<std::int64_t>(segundas.size());
    ResultadoGeneracion r;
    std::int64_t examinadas = 0;
    for (const SignosMitad& a : primeras) {
        std::array<base::Byte, kMitad> bytesPrimera{};
        for (std::size_t i = 0; i < static_cast<std::size_t>(kMitad); ++i) {
            bytesPrimera[i] = static_cast<base::Byte>(kSignos[a[i]]);
        }
        // Cada kColumnasPorAviso columnas examinadas se avisa y se mira si hay que parar; si se
        // para, cuentan solo las examinadas hasta ese aviso.
        std::int64_t examinar = n;
        const std::int64_t aviso = (examinadas / kColumnasPorAviso + 1) * kColumnasPorAviso;
        if (examinadas + n >= aviso) {
            progreso.Avance(aviso, total);
            progreso.Escritas(cmb.Cuenta());
            if (progreso.Detenido()) {
                r.detenida = true;
                examinar = aviso - examinadas;
            }
        }
        const auto hasta = static_cast<std::size_t>(examinar);
        if (bloques) {
            bloques->Filtrar(a, hasta, pasan.data(), comb.rechazos);
            for (std::size_t w = 0; w < pasan.size(); ++w) {
                for (std::uint64_t bits = pasan[w]; bits != 0; bits &= bits - 1) {
                    auto& reg =
                        registros[w * 64 + static_cast<std::size_t>(std::countr_zero(bits))];
                    std::memcpy(reg.data(), bytesPrimera.data(), kMitad);
                    cmb.Anadir(reg.data());
                }
            }
        } else {
            for (std::size_t i = 0; i < hasta; ++i) {
                std::memcpy(registros[i].data(), bytesPrimera.data(), kMitad);
            }
            cmb.AnadirBloque(registros.data()->data(), hasta);
        }
        examinadas += examinar;
        if (r.detenida) break;
    }
    cmb.Cerrar();

    r.examinadas = examinadas;
    r.totalGeneradas = cmb.Cuenta();
    comb.totalGeneradas = r.totalGeneradas;
    if (r.detenida) return r;
    progreso.Avance(examinadas, total);
    progreso.Escritas(r.totalGeneradas);

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
