#include "outputs/print_paper.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/text1252.h"
#include "outputs/pdf_writer.h"
#include "outputs/slip_marks.h"

namespace quinteva::outputs {

namespace {

constexpr std::string_view kSeccion = "Valores";
constexpr float kTwipsPorMilimetro = 56.7F;
// Dónde cae la marca dentro de su casilla: la raya va bajo el círculo de la marca.
constexpr float kBajoLaMarca = 150.0F;
constexpr float kAnchoMarca = 112.0F;

// Un número escrito con coma o con punto decimal, como lo lee Val.
float Decimal(std::string texto) {
    for (char& c : texto) {
        if (c == ',') c = '.';
    }
    return std::strtof(texto.c_str(), nullptr);
}

std::string TextoDecimal(float valor) {
    std::string texto = std::to_string(valor);
    texto.erase(texto.find_last_not_of('0') + 1);
    if (texto.back() == '.') texto.pop_back();
    for (char& c : texto) {
        if (c == '.') c = ',';
    }
    return texto;
}

std::int16_t Redondo(double valor) { return static_cast<std::int16_t>(std::nearbyint(valor)); }

// Las casillas de un boleto: 14 filas de 24 y las 8 del Pleno, en la geometría dada.
template <typename F>
void CadaCasilla(const GeometriaBoleto& g, Direccion direccion, F casilla) {
    const auto en = [&](float paso1, float paso2) {
        if (direccion == Direccion::Apaisada) {
            casilla(g.origenX + paso1 * g.pasoX, g.origenY + paso2 * g.pasoY);
        } else {
            casilla(g.origenX + paso2 * g.pasoX, g.origenY + paso1 * g.pasoY);
        }
    };
    for (int i = 0; i < engine::kPartidos; ++i) {
        for (int c = 0; c < 24; ++c) en(static_cast<float>(c), static_cast<float>(i));
    }
    for (int c = 0; c < 4; ++c) {
        if (direccion == Direccion::Apaisada) {
            en(static_cast<float>(7 + c), 14.0F);
            en(static_cast<float>(20 + c), 14.0F);
        } else {
            const float x = std::max(g.origenX - g.pasoX, 0.0F);
            casilla(x, g.origenY + static_cast<float>(7 + c) * g.pasoY);
            casilla(x, g.origenY + static_cast<float>(20 + c) * g.pasoY);
        }
    }
}

}  // namespace

AjustePapel AjustePapelGuardado(const base::Ajustes& a) {
    const auto leer = [&](std::string_view clave, std::string_view defecto) {
        return a.Leer(base::kAplicacion, kSeccion, clave, defecto);
    };
    AjustePapel ajuste;
    ajuste.ancho = std::atoi(leer("DH", "8335").c_str());
    ajuste.alto = std::atoi(leer("DV", "4139").c_str());
    ajuste.margenIzquierdo = Decimal(leer("ImpMgIzq", "30"));
    ajuste.margenSuperior = Decimal(leer("ImpMgSup", "40"));
    ajuste.dorso = leer("DB", "0") == "1";
    return ajuste;
}

int MilimetrosATwips(float milimetros) {
    return static_cast<int>(std::nearbyint(static_cast<double>(milimetros * kTwipsPorMilimetro)));
}

GeometriaBoleto GeometriaDePapel(Direccion direccion, const AjustePapel& a) {
    const double izquierdo = MilimetrosATwips(a.margenIzquierdo);
    const double superior = MilimetrosATwips(a.margenSuperior);
    GeometriaBoleto g;
    g.origenX = Redondo(a.ancho * 0.278 + izquierdo);
    g.origenY = Redondo(a.alto * 0.015 + superior);
    const std::int16_t ultimaX = Redondo(a.ancho * 0.8651 + izquierdo);
    const std::int16_t ultimaY = Redondo(a.alto * 0.9 + superior);
    const bool apaisada = direccion == Direccion::Apaisada;
    g.pasoX = static_cast<float>(ultimaX - g.origenX) / (apaisada ? 23.0F : 13.0F);
    g.pasoY = static_cast<float>(ultimaY - g.origenY) / (apaisada ? 13.0F : 23.0F);
    return g;
}

void ImpBaseQ(Impresion& hoja, Direccion direccion, const AjustePapel& ajuste, float abajo) {
    const float x0 = static_cast<float>(MilimetrosATwips(ajuste.margenIzquierdo));
    const float y0 = static_cast<float>(MilimetrosATwips(ajuste.margenSuperior)) + abajo;
    const float x1 = x0 + static_cast<float>(ajuste.ancho);
    GeometriaBoleto g = GeometriaDePapel(direccion, ajuste);
    g.origenY = static_cast<std::int16_t>(g.origenY + abajo);
    // El boleto desde los márgenes, alargado si hace falta para que quepa la fila del Pleno.
    float y1 = y0 + static_cast<float>(ajuste.alto);
    CadaCasilla(g, direccion, [&](float x, float y) {
        hoja.Linea(x, y + kBajoLaMarca, x + kAnchoMarca, y + kBajoLaMarca, false);
        y1 = std::max(y1, y + 2 * kBajoLaMarca);
    });
    if (ajuste.dorso) return;
    hoja.Linea(x0, y0, x1, y0, true);
    hoja.Linea(x1, y0, x1, y1, true);
    hoja.Linea(x1, y1, x0, y1, true);
    hoja.Linea(x0, y1, x0, y0, true);
    hoja.Fuente("Arial", 8, false);
    hoja.Texto(x0, y1 + 60.0F, kNotaRecortar);
}

DisposicionBoleto DisposicionDePapel(Direccion direccion, const AjustePapel& ajuste,
                                     std::string fecha, int boletosPorHoja) {
    DisposicionBoleto d{GeometriaDePapel(direccion, ajuste), direccion, std::move(fecha), {}};
    d.marco = [direccion, ajuste](Impresion& hoja, float abajo) {
        ImpBaseQ(hoja, direccion, ajuste, abajo);
    };
    d.boletosPorHoja = boletosPorHoja;
    d.separacion = kAltoA4 / static_cast<float>(boletosPorHoja);
    return d;
}

ImpresionEnPapel::ImpresionEnPapel(base::Ajustes& ajustes, base::Dialogo& dialogo,
                                   Direccion direccion)
    : ajustes_(ajustes),
      dialogo_(dialogo),
      direccion_(direccion),
      ajuste_(AjustePapelGuardado(ajustes)) {}

void ImpresionEnPapel::ElegirDireccion(Direccion direccion) { direccion_ = direccion; }

void ImpresionEnPapel::Aceptar(const AjustePapel& a) {
    Ajustar(a);
    ajustes_.Guardar(base::kAplicacion, "Avisos", "AjustePapel", "SI");
}

Impresion ImpresionEnPapel::Prueba() const {
    Impresion hoja;
    ImpBaseQ(hoja, direccion_, ajuste_);
    return hoja;
}

void ImpresionEnPapel::Ajustar(const AjustePapel& a) {
    const auto guardar = [&](std::string_view clave, std::string_view valor) {
        ajustes_.Guardar(base::kAplicacion, kSeccion, clave, valor);
    };
    guardar("DH", std::to_string(a.ancho));
    guardar("DV", std::to_string(a.alto));
    guardar("ImpMgIzq", TextoDecimal(a.margenIzquierdo));
    guardar("ImpMgSup", TextoDecimal(a.margenSuperior));
    guardar("ImpDorsoBoleto", a.dorso ? "V" : "");
    guardar("DB", a.dorso ? "1" : "0");
    ajuste_ = a;
}

bool ImpresionEnPapel::Avisar() {
    if (avisado_) return true;
    const std::string_view aviso = !ajuste_.dorso                      ? kAvisoPapelBlanco
                                   : direccion_ == Direccion::Vertical ? kAvisoDorsoVertical
                                                                       : kAvisoDorsoApaisada;
    avisado_ = dialogo_.AceptarCancelar(aviso) == base::Respuesta::Aceptar;
    return avisado_;
}

std::optional<Impresion> ImpresionEnPapel::ImprimirUno(
    std::span<const engine::RegistroColumna> activas, int boleto, const std::string& fecha) {
    if (!Avisar()) return std::nullopt;
    return outputs::ImprimirUno(activas, boleto, DisposicionDePapel(direccion_, ajuste_, fecha));
}

std::optional<Impresion> ImpresionEnPapel::ImprimirTodos(
    std::span<const engine::RegistroColumna> activas, std::int32_t desde, std::int32_t hasta,
    const std::string& fecha) {
    if (!Avisar()) return std::nullopt;
    return outputs::ImprimirTodos(activas, desde, hasta,
                                  DisposicionDePapel(direccion_, ajuste_, fecha));
}

}  // namespace quinteva::outputs
