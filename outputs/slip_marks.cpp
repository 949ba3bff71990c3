#include "outputs/slip_marks.h"

#include <algorithm>

#include "base/formats.h"

namespace quinteva::outputs {

namespace {

constexpr int kTamanoMarca = 14;
constexpr int kTamanoCabecera = 12;
constexpr int kTamanoProducto = 8;

// Cuántas casillas mueve un carácter del Pleno o un signo desde la primera de su grupo.
int CasillasPleno(char caracter) {
    return caracter == '1' ? 1 : caracter == '2' ? 2 : caracter == 'M' ? 3 : 0;
}

int CasillasSigno(char signo) { return signo == 'X' ? 1 : signo == '2' ? 2 : 0; }

// La cabecera del boleto; g es la geometría ya bajada lo que baja el boleto en la hoja.
void Cabecera(Impresion& hoja, const DisposicionBoleto& d, const GeometriaBoleto& g,
              std::string_view numero, float abajo) {
    const std::string texto = d.fecha + " Nº " + std::string(numero);
    if (d.direccion == Direccion::Apaisada) {
        hoja.Tamano(kTamanoCabecera);
        hoja.Texto(static_cast<float>(g.origenX + 600), 125.0F + abajo, texto);
        hoja.Tamano(kTamanoProducto);
        hoja.Texto(static_cast<float>(g.origenX + 600), hoja.YActual() - 40.0F, kLineaProducto);
        return;
    }
    hoja.Tamano(kTamanoCabecera);
    hoja.Texto(static_cast<float>(g.origenX - 200 + 4366), static_cast<float>(g.origenY - 200),
               texto);
}

// El Pleno del boleto: el de su primera columna, en los dos grupos de cuatro casillas.
void Pleno(Impresion& hoja, Direccion direccion, const GeometriaBoleto& g,
           const engine::PlenoBase& pleno) {
    hoja.Tamano(kTamanoMarca);
    if (direccion == Direccion::Apaisada) {
        const float y = 14.0F * g.pasoY + g.origenY;
        hoja.Texto(7.0F * g.pasoX + g.origenX + CasillasPleno(pleno[0]) * g.pasoX, y, kMarca);
        hoja.Texto(20.0F * g.pasoX + g.origenX + CasillasPleno(pleno[1]) * g.pasoX, y, kMarca);
        return;
    }
    const float x = std::max(g.origenX - g.pasoX, 0.0F);
    hoja.Texto(x, 7.0F * g.pasoY + g.origenY + CasillasPleno(pleno[0]) * g.pasoY, kMarca);
    hoja.Texto(x, 20.0F * g.pasoY + g.origenY + CasillasPleno(pleno[1]) * g.pasoY, kMarca);
}

// La columna en el lugar k (1 a 8) del boleto; con k = 1, también la cabecera y el Pleno.
void Columna(Impresion& hoja, const DisposicionBoleto& d, int k,
             const engine::RegistroColumna& columna, std::string_view numero, float abajo = 0) {
    if (k == 1 && d.marco) d.marco(hoja, abajo);
    GeometriaBoleto g = d.geometria;
    g.origenY = static_cast<std::int16_t>(g.origenY + abajo);
    hoja.Fuente("Arial", kTamanoMarca, true);
    const float grupo = static_cast<float>((k - 1) * 3);
    for (int i = 0; i < engine::kPartidos; ++i) {
        const int mueve = CasillasSigno(columna.columna[static_cast<std::size_t>(i)]);
        if (d.direccion == Direccion::Apaisada) {
            hoja.Texto(grupo * g.pasoX + g.origenX + mueve * g.pasoX, i * g.pasoY + g.origenY,
                       kMarca);
        } else {
            hoja.Texto(i * g.pasoX + g.origenX, grupo * g.pasoY + g.origenY + mueve * g.pasoY,
                       kMarca);
        }
    }
    if (k != 1) return;
    Cabecera(hoja, d, g, numero, abajo);
    Pleno(hoja, d.direccion, g, columna.pleno);
}

}  // namespace

std::int32_t NumeroDeBoletos(std::size_t columnas) {
    return static_cast<std::int32_t>((columnas + kColumnasPorBoleto - 1) / kColumnasPorBoleto);
}

BoletoEnPantalla Escrol(std::span<const engine::RegistroColumna> activas, int boleto) {
    BoletoEnPantalla pantalla;
    pantalla.numero = base::Formato(boleto, "#,##0");
    const auto primera = static_cast<std::size_t>(boleto - 1) * kColumnasPorBoleto;
    for (std::size_t n = primera; n < std::min(primera + kColumnasPorBoleto, activas.size()); ++n) {
        pantalla.columnas.push_back(engine::TextoDeColumna(activas[n].columna));
    }
    if (primera < activas.size()) {
        const auto& pleno = activas[primera].pleno;
        pantalla.pleno = std::string{pleno[0], '-', pleno[1]};
    }
    return pantalla;
}

Impresion ImprimirUno(std::span<const engine::RegistroColumna> activas, int boleto,
                      const DisposicionBoleto& disposicion) {
    Impresion hoja;
    const auto primera = static_cast<std::size_t>(boleto - 1) * kColumnasPorBoleto;
    for (int k = 1; k <= kColumnasPorBoleto; ++k) {
        const std::size_t n = primera + static_cast<std::size_t>(k - 1);
        if (n >= activas.size()) break;
        Columna(hoja, disposicion, k, activas[n], std::to_string(boleto));
    }
    return hoja;
}

Impresion ImprimirTodos(std::span<const engine::RegistroColumna> activas, std::int32_t desde,
                        std::int32_t hasta, const DisposicionBoleto& disposicion) {
    Impresion hoja;
    int k = 0;
    const std::int32_t ultima =
        std::min<std::int32_t>(hasta, static_cast<std::int32_t>(activas.size()));
    const auto columnas = static_cast<std::size_t>(std::max(ultima - std::max(desde, 1) + 1, 0));
    const std::size_t boletos = columnas / kColumnasPorBoleto + 1;
    // Catorce marcas por columna y, por boleto, la cabecera, el producto, el Pleno y el marco.
    hoja.Reservar(columnas * engine::kPartidos + boletos * 5,
                  disposicion.marco ? boletos * (24 * engine::kPartidos + 12) : 0);
    int enHoja = 0;
    std::string numero;
    for (std::int32_t n = std::max(desde, 1); n <= ultima; ++n) {
        ++k;
        if (k == 1) numero = base::Formato((n - 1) / kColumnasPorBoleto + 1, "#,##0");
        Columna(hoja, disposicion, k, activas[static_cast<std::size_t>(n - 1)], numero,
                static_cast<float>(enHoja) * disposicion.separacion);
        if (k < kColumnasPorBoleto) continue;
        k = 0;
        if (++enHoja < disposicion.boletosPorHoja) continue;
        hoja.NuevaPagina();
        enHoja = 0;
    }
    return hoja;
}

}  // namespace quinteva::outputs
