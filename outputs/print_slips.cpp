#include "outputs/print_slips.h"

#include <charconv>

#include "base/text1252.h"

namespace quinteva::outputs {

namespace {

constexpr std::string_view kSeccion = "Valores";
constexpr std::array<std::string_view, 4> kClavesApaisada = {"HX0", "HY0", "HX14", "HY14"};
constexpr std::array<std::string_view, 4> kClavesVertical = {"VX0", "VY0", "VX14", "VY14"};
constexpr ValoresAjuste kDeFabrica = {2340, 1040, 1850, 1130};
constexpr ValoresAjuste kRestaurarVertical = {3930, 2270, 275, 1900};
// El recorrido de 24 casillas y el de 14 filas en cada dirección.
constexpr float kCasillas = 9072.0F;
constexpr float kFilasApaisada = 5897.0F;
constexpr float kFilasVertical = 7897.0F;

const std::array<std::string_view, 4>& Claves(Direccion direccion) {
    return direccion == Direccion::Apaisada ? kClavesApaisada : kClavesVertical;
}

// Un campo como lo lee Val: las cifras del principio, 0 si no hay.
int Valor(std::string_view campo) {
    campo = base::Recortar(campo);
    int valor = 0;
    std::from_chars(campo.data(), campo.data() + campo.size(), valor);
    return valor;
}

}  // namespace

Direccion DireccionGuardada(const base::Ajustes& ajustes) {
    return DireccionDeTexto(ajustes.Leer(base::kAplicacion, kSeccion, "Imp", "Apaisada"));
}

ValoresAjuste ValoresGuardados(const base::Ajustes& ajustes, Direccion direccion) {
    ValoresAjuste valores{};
    for (std::size_t i = 0; i < valores.size(); ++i) {
        valores[i] = Valor(ajustes.Leer(base::kAplicacion, kSeccion, Claves(direccion)[i],
                                        std::to_string(kDeFabrica[i])));
    }
    return valores;
}

ValoresAjuste ValoresDeRestaurar(Direccion direccion) {
    return direccion == Direccion::Apaisada ? kDeFabrica : kRestaurarVertical;
}

GeometriaBoleto GeometriaDeBoletos(Direccion direccion, const ValoresAjuste& v) {
    GeometriaBoleto g;
    g.origenY = static_cast<std::int16_t>(v[1]);
    if (direccion == Direccion::Apaisada) {
        g.origenX = static_cast<std::int16_t>(v[0]);
        g.pasoX = (kCasillas - static_cast<float>(v[2]) - static_cast<float>(v[0])) / 23.0F;
        g.pasoY = (kFilasApaisada - static_cast<float>(v[3]) - static_cast<float>(v[1])) / 13.0F;
    } else {
        g.origenX = static_cast<std::int16_t>(v[2]);
        g.pasoX = (kFilasVertical - static_cast<float>(v[0]) - static_cast<float>(v[2])) / 13.0F;
        g.pasoY = (kCasillas - static_cast<float>(v[3]) - static_cast<float>(v[1])) / 23.0F;
    }
    return g;
}

DisposicionBoleto DisposicionDeBoletos(Direccion direccion, const ValoresAjuste& valores,
                                       std::string fecha) {
    return {GeometriaDeBoletos(direccion, valores), direccion, std::move(fecha), {}};
}

Impresion PaginaDePrueba(Direccion direccion, const ValoresAjuste& v) {
    Impresion hoja;
    hoja.Fuente("Arial", 8, true);
    const auto f = [](int valor) { return static_cast<float>(valor); };
    if (direccion == Direccion::Apaisada) {
        hoja.Texto(f(v[0]), f(v[1]), "X");
        hoja.Texto(kCasillas - f(v[2]), kFilasApaisada - f(v[3]), "X");
    } else {
        hoja.Texto(kFilasVertical - f(v[0]), f(v[1]), "X");
        hoja.Texto(f(v[2]), kCasillas - f(v[3]), "X");
    }
    return hoja;
}

ImpresionEnBoletos::ImpresionEnBoletos(base::Ajustes& ajustes, base::Dialogo& dialogo)
    : ajustes_(ajustes),
      dialogo_(dialogo),
      direccion_(DireccionGuardada(ajustes)),
      geometria_(GeometriaDeBoletos(direccion_, ValoresGuardados(ajustes, direccion_))) {}

ValoresAjuste ImpresionEnBoletos::ValoresDe(Direccion direccion) const {
    return ValoresGuardados(ajustes_, direccion);
}

bool ImpresionEnBoletos::Ajustar(Direccion direccion, const CamposAjuste& campos) {
    for (const auto& campo : campos) {
        if (base::Recortar(campo).empty()) {
            dialogo_.Mensaje(kMsgFaltaAjuste, base::Icono::Aviso);
            return false;
        }
    }
    ValoresAjuste valores{};
    ajustes_.Guardar(base::kAplicacion, kSeccion, "Imp", TextoDireccion(direccion));
    for (std::size_t i = 0; i < valores.size(); ++i) {
        valores[i] = Valor(campos[i]);
        ajustes_.Guardar(base::kAplicacion, kSeccion, Claves(direccion)[i],
                         std::to_string(valores[i]));
    }
    direccion_ = direccion;
    geometria_ = GeometriaDeBoletos(direccion, valores);
    return true;
}

std::optional<Impresion> ImpresionEnBoletos::Prueba(Direccion direccion,
                                                    const CamposAjuste& campos) {
    if (!Ajustar(direccion, campos)) return std::nullopt;
    return PaginaDePrueba(direccion, ValoresGuardados(ajustes_, direccion));
}

bool ImpresionEnBoletos::Aceptar(Direccion direccion, const CamposAjuste& campos) {
    if (!Ajustar(direccion, campos)) return false;
    ajustes_.Guardar(base::kAplicacion, "Avisos", "AjusteBoletos", "SI");
    return true;
}

bool ImpresionEnBoletos::Avisar() {
    if (avisadas_.contains(direccion_)) return true;
    const auto aviso =
        direccion_ == Direccion::Apaisada ? kAvisoBoletosApaisada : kAvisoBoletosVertical;
    if (dialogo_.AceptarCancelar(aviso) != base::Respuesta::Aceptar) return false;
    avisadas_.insert(direccion_);
    return true;
}

std::optional<Impresion> ImpresionEnBoletos::ImprimirUno(
    std::span<const engine::RegistroColumna> activas, int boleto, const std::string& fecha) {
    if (!Avisar()) return std::nullopt;
    return outputs::ImprimirUno(activas, boleto, {geometria_, direccion_, fecha, {}});
}

std::optional<Impresion> ImpresionEnBoletos::ImprimirTodos(
    std::span<const engine::RegistroColumna> activas, std::int32_t desde, std::int32_t hasta,
    const std::string& fecha) {
    if (!Avisar()) return std::nullopt;
    return outputs::ImprimirTodos(activas, desde, hasta, {geometria_, direccion_, fecha, {}});
}

}  // namespace quinteva::outputs
