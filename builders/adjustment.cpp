#include "builders/adjustment.h"

#include <charconv>
#include <limits>
#include <unordered_map>
#include <vector>

#include "base/record_files.h"
#include "base/text1252.h"
#include "engine/combination_files.h"

namespace quinteva::builders {
namespace {

using engine::Combinacion;
using engine::RegistroColumna;

// El campo solo admite cifras; vacío o ilegible cuenta como 0. Un número enorme se queda en el
// mayor posible, que la base rechaza después.
std::int64_t LeerCampo(std::string_view campo) {
    campo = base::Recortar(campo);
    std::int64_t valor = 0;
    const auto [fin, error] = std::from_chars(campo.data(), campo.data() + campo.size(), valor);
    if (error == std::errc::result_out_of_range) return std::numeric_limits<std::int64_t>::max();
    if (error != std::errc() || fin != campo.data() + campo.size()) return 0;
    return valor;
}

// Una columna de la Quiniela Base: en cada partido, uno de sus signos elegidos.
engine::Columna ColumnaDeLaBase(const engine::QuinielaBase& base, base::Azar& azar) {
    engine::Columna columna{};
    for (int p = 1; p <= engine::kPartidos; ++p) {
        std::vector<engine::Signo> elegidos;
        for (int s = 0; s < 3; ++s) {
            if (base.Elegido(p, s))
                elegidos.push_back(engine::kSignos[static_cast<std::size_t>(s)]);
        }
        const auto n = static_cast<std::int64_t>(elegidos.size());
        columna[static_cast<std::size_t>(p - 1)] =
            elegidos[static_cast<std::size_t>(n == 1 ? 0 : azar.Entero(0, n - 1))];
    }
    return columna;
}

// La columna en base 3: la llave del índice del almacén.
std::uint32_t Codigo(const engine::Columna& columna) {
    std::uint32_t codigo = 0;
    for (engine::Signo s : columna)
        codigo = codigo * 3 + static_cast<std::uint32_t>(engine::IndiceSigno(s) + 1);
    return codigo;
}

// El almacén de un conjunto con el primer registro de cada columna, como lo encuentra una búsqueda
// desde el registro 1, y el estado de cada registro.
class AlmacenIndexado {
  public:
    explicit AlmacenIndexado(const std::filesystem::path& ruta) : archivo_(ruta) {
        const std::int32_t n = archivo_.Cuenta();
        estados_.reserve(static_cast<std::size_t>(n));
        for (std::int32_t i = 1; i <= n; ++i) Apuntar(archivo_.Leer(i));
    }

    // 0 si la columna no está.
    std::int32_t Buscar(const engine::Columna& columna) const {
        const auto it = primero_.find(Codigo(columna));
        return it == primero_.end() ? 0 : it->second;
    }
    char Estado(std::int32_t numero) const {
        return estados_[static_cast<std::size_t>(numero - 1)];
    }
    void Anadir(const RegistroColumna& registro) {
        archivo_.Anadir(registro);
        Apuntar(registro);
    }
    void PonerEstado(std::int32_t numero, char estado) {
        RegistroColumna registro = archivo_.Leer(numero);
        registro.estado = estado;
        archivo_.Escribir(numero, registro);
        estados_[static_cast<std::size_t>(numero - 1)] = estado;
    }
    void Cerrar() { archivo_.Cerrar(); }

  private:
    void Apuntar(const RegistroColumna& registro) {
        estados_.push_back(registro.estado);
        primero_.emplace(Codigo(registro.columna), static_cast<std::int32_t>(estados_.size()));
    }

    base::ArchivoDe<RegistroColumna> archivo_;
    std::vector<char> estados_;
    std::unordered_map<std::uint32_t, std::int32_t> primero_;
};

// Sortea columnas de la base hasta añadir "anadir": las nuevas al final, las eliminadas revividas
// en su sitio, las activas se vuelven a sortear. Devuelve las hechas.
std::int32_t Subir(Combinacion& comb, const Conjunto& conjunto, std::int32_t anadir,
                   const EntornoBoletos& entorno, base::Progreso& progreso) {
    AlmacenIndexado almacen(conjunto.almacen);
    std::int32_t hechas = 0;
    while (hechas < anadir) {
        const engine::Columna columna = ColumnaDeLaBase(comb.base, entorno.azar);
        const std::int32_t numero = almacen.Buscar(columna);
        if (numero == 0) {
            almacen.Anadir({columna, comb.pleno, engine::kActiva});
            ++conjunto.total;
            ++conjunto.activas;
            ++hechas;
        } else if (almacen.Estado(numero) == engine::kEliminada) {
            almacen.PonerEstado(numero, engine::kActiva);
            ++conjunto.activas;
            ++hechas;
        }
        progreso.Avance(hechas, anadir);
        if (progreso.Detenido()) break;
    }
    almacen.Cerrar();
    return hechas;
}

// Elimina "quitar" columnas activas sorteando números de registro; ningún registro se quita.
std::int32_t Bajar(const Conjunto& conjunto, std::int32_t quitar, const EntornoBoletos& entorno,
                   base::Progreso& progreso) {
    base::ArchivoDe<RegistroColumna> almacen(conjunto.almacen);
    std::int32_t hechas = 0;
    while (hechas < quitar) {
        const auto numero = static_cast<std::int32_t>(entorno.azar.Entero(1, conjunto.total));
        RegistroColumna registro = almacen.Leer(numero);
        if (registro.Activa()) {
            registro.estado = engine::kEliminada;
            almacen.Escribir(numero, registro);
            --conjunto.activas;
            ++hechas;
        }
        progreso.Avance(hechas, quitar);
        if (progreso.Detenido()) break;
    }
    almacen.Cerrar();
    return hechas;
}

// Al parar a mitad, el último Boleto no debe quedar con una sola columna.
void CompletarTrasParar(Combinacion& comb, Jugada jugada, const EntornoBoletos& entorno) {
    if (!UnaSolaEnElUltimoBoleto(ApuestasJugadas(comb, jugada))) return;
    if (entorno.dialogo.PreguntaSiNo(kPreguntaAleatoriaTrasParar) == base::Respuesta::Si) {
        Aleatoria(comb, jugada, entorno);
    }
}

bool MuyAjustada(double base, double activas, double anadir) {
    const double libres = base - activas;
    return libres < 0.2 * base || anadir > 0.8 * libres;
}

}  // namespace

std::string MsgYaAjustada(std::int64_t apuestas) {
    return "Ya está ajustada la combinación a " + std::to_string(apuestas) + " apuestas.";
}

std::string MsgBoletoDeUna(std::int64_t apuestas) {
    return "No es posible ajustar la combinación a " + std::to_string(apuestas) +
           " apuestas porque el último boleto tendría una sola columna. Modifique el número de "
           "apuestas que desea.";
}

Ajuste Ajustar(Combinacion& comb, std::string_view campo, const EntornoBoletos& entorno,
               base::Progreso& progreso, bool preguntarSiBaja) {
    const Jugada jugada = JugadaElegida(comb);
    const Conjunto conjunto = ConjuntoDe(comb, jugada, entorno.carpetaTrabajo);
    const std::int64_t pedidas = LeerCampo(campo);
    const std::int64_t activas = conjunto.activas;
    auto& dialogo = entorno.dialogo;

    if (pedidas == 0) {
        dialogo.Mensaje(kMsgFaltaNumero);
        return {ResultadoAjuste::Rechazada, true, 0};
    }
    if (pedidas == activas) {
        dialogo.Mensaje(MsgYaAjustada(pedidas));
        return {ResultadoAjuste::YaAjustada, false, 0};
    }
    if (UnaSolaEnElUltimoBoleto(pedidas)) {
        dialogo.Mensaje(MsgBoletoDeUna(pedidas));
        return {ResultadoAjuste::Rechazada, false, 0};
    }

    Ajuste ajuste{ResultadoAjuste::Ajustada, false, 0};
    if (pedidas > activas) {
        const double columnasBase = comb.base.Columnas();
        if (static_cast<double>(pedidas) > columnasBase) {
            dialogo.Mensaje(kMsgBaseCorta);
            return {ResultadoAjuste::Rechazada, false, 0};
        }
        const auto anadir = static_cast<std::int32_t>(pedidas - activas);
        if (MuyAjustada(columnasBase, static_cast<double>(activas), anadir) &&
            dialogo.PreguntaSiNo(kPreguntaMuyAjustada, base::Respuesta::No) !=
                base::Respuesta::Si) {
            return {ResultadoAjuste::Cancelada, true, 0};
        }
        ajuste.cambiadas = Subir(comb, conjunto, anadir, entorno, progreso);
        if (ajuste.cambiadas < anadir) ajuste.resultado = ResultadoAjuste::Detenida;
    } else {
        if (preguntarSiBaja && dialogo.PreguntaSiNo(kPreguntaBajar) != base::Respuesta::Si) {
            return {ResultadoAjuste::Cancelada, false, 0};
        }
        const auto quitar = static_cast<std::int32_t>(activas - pedidas);
        ajuste.cambiadas = Bajar(conjunto, quitar, entorno, progreso);
        if (ajuste.cambiadas < quitar) ajuste.resultado = ResultadoAjuste::Detenida;
    }

    if (ajuste.resultado == ResultadoAjuste::Detenida) CompletarTrasParar(comb, jugada, entorno);
    MostrarPrecio(comb, jugada, entorno.ajustes);
    engine::Guardar(comb, entorno.carpetaTrabajo, entorno.ajustes);
    return ajuste;
}

}  // namespace quinteva::builders
