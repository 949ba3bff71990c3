#include "outputs/printed_reports.h"

#include "base/formats.h"
#include "outputs/line_pages.h"
#include "outputs/pdf_writer.h"
#include "outputs/slip_marks.h"

namespace quinteva::outputs {

namespace {

constexpr std::string_view kArial = "Arial";
constexpr std::string_view kCourier = "Courier New";
constexpr int kTamanoFilas = 10;

std::string Relleno(std::string texto, std::size_t ancho) {
    if (texto.size() < ancho) texto.append(ancho - texto.size(), ' ');
    return texto;
}

void Titulo(HojaDeLineas& hoja, std::string_view titulo, const std::string& linea) {
    hoja.Linea(titulo, kArial, 16, true);
    hoja.Linea(linea, kArial, 10, false);
    hoja.Blanco(10);
}

std::string Pleno(const engine::PlenoBase& pleno) { return std::string{pleno[0], '-', pleno[1]}; }

}  // namespace

std::string PreguntaImprimirListado(std::int64_t columnas) {
    return "La combinación tiene " + base::Formato(static_cast<double>(columnas), "#,##0") +
           " columnas. Desea no obstante imprimirlas?";
}

Impresion ImpresionListado(const std::string& jornada,
                           std::span<const engine::RegistroColumna> columnas) {
    HojaDeLineas hoja;
    Titulo(hoja, "Quinteva", jornada);
    for (std::size_t n = 0; n < columnas.size(); ++n) {
        hoja.Linea(Relleno(base::Formato(static_cast<double>(n + 1), "#,##0"), 10) +
                       engine::TextoDeColumna(columnas[n].columna),
                   kCourier, kTamanoFilas, false);
    }
    return hoja.Terminar();
}

Impresion ImpresionColumnasLocalizadas(const std::string& jornada,
                                       const std::vector<FilaLocalizada>& filas) {
    HojaDeLineas hoja;
    hoja.Linea("Quinteva", kArial, 16, false);
    hoja.Linea(jornada, kArial, 10, false);
    hoja.Linea("Localización de Columnas acertadas", kArial, 12, true);
    hoja.Blanco(10);
    std::string cabecera;
    for (const auto titulo : kCabecerasLocalizadas) cabecera += Relleno(std::string(titulo), 10);
    hoja.Linea(cabecera, kCourier, kTamanoFilas, true);
    for (const auto& fila : filas) {
        hoja.Linea(Relleno(fila.boleto, 10) + Relleno(fila.columna, 10) + fila.aciertos, kCourier,
                   kTamanoFilas, false);
    }
    return hoja.Terminar();
}

Impresion ImpresionArchivoJson(const CamposArchivoJson& c) {
    HojaDeLineas hoja({}, 1500.0F, 1500.0F);
    const std::array<std::pair<std::string_view, const std::string*>, 7> lineas = {{
        {"JORNADA", &c.jornada},
        {"AÑO", &c.anio},
        {"RECEPTOR Nº", &c.receptor},
        {"HASH", &c.hash},
        {"N.º APUESTAS", &c.apuestas},
        {"N.º BOLETOS", &c.boletos},
        {"IMPORTE", &c.importe},
    }};
    for (const auto& [rotulo, valor] : lineas) {
        hoja.Par(std::string(rotulo) + "  ", *valor, 2400.0F, "Ms Sans Serif", 10);
    }
    return hoja.Terminar();
}

Impresion ImpresionColumnasGanadoras(const std::string& temporada,
                                     const std::vector<std::pair<int, std::string>>& filas) {
    HojaDeLineas hoja;
    hoja.Linea("Col. Ganadoras Temporada " + temporada, kCourier, 12, true);
    hoja.Blanco(kTamanoFilas);
    hoja.Linea(Relleno("Jorn.", 8) + "Columna", kCourier, kTamanoFilas, true);
    for (const auto& [jornada, columna] : filas) {
        hoja.Linea(Relleno(std::to_string(jornada), 8) + columna, kCourier, kTamanoFilas, false);
    }
    return hoja.Terminar();
}

Impresion ImpresionQuiniela(const std::string& cabecera, const std::string& titulo,
                            const engine::RegistroColumna& columna) {
    HojaDeLineas hoja;
    Titulo(hoja, "Quinteva", cabecera);
    hoja.Linea(titulo, kArial, 12, true);
    for (int p = 0; p < engine::kPartidos; ++p) {
        hoja.Linea(Relleno(std::to_string(p + 1), 4) + columna.columna[static_cast<std::size_t>(p)],
                   kCourier, kTamanoFilas, false);
    }
    hoja.Linea("P15 " + Pleno(columna.pleno), kCourier, kTamanoFilas, false);
    return hoja.Terminar();
}

Impresion InformeQuinielas(const DatosQuinielas& datos,
                           std::span<const engine::RegistroColumna> columnas) {
    HojaDeLineas hoja([](Impresion& h, int pagina) {
        const float abajo = kAltoA4 - HojaDeLineas::kMargen + 200.0F;
        h.Fuente(kArial, 8, false);
        h.Texto(HojaDeLineas::kMargen, abajo, kLineaProducto);
        h.Texto(kAnchoA4 - HojaDeLineas::kMargen - 1000.0F, abajo,
                "Página " + std::to_string(pagina));
    });
    hoja.Linea("Quinteva - Quinielas", kArial, 16, true);
    hoja.Linea("Jornada nº: " + std::to_string(datos.jornada) + ", Fecha: " + datos.fecha +
                   ", Nombre: " + datos.nombre,
               kArial, 10, false);
    for (std::size_t primera = 0; primera < columnas.size(); primera += kColumnasPorBoleto) {
        const std::size_t fin = std::min(primera + kColumnasPorBoleto, columnas.size());
        hoja.Blanco(kTamanoFilas);
        hoja.Reservar(engine::kPartidos + 2, kTamanoFilas);
        hoja.Linea("Quin. nº " + base::Formato(static_cast<double>(primera + 1), "#,##0"), kArial,
                   kTamanoFilas, true);
        for (int p = 0; p < engine::kPartidos; ++p) {
            std::string linea = Relleno(std::to_string(p + 1), 4);
            for (std::size_t c = primera; c < fin; ++c) {
                linea +=
                    Relleno(std::string(1, columnas[c].columna[static_cast<std::size_t>(p)]), 5);
            }
            hoja.Linea(linea, kCourier, kTamanoFilas, false);
        }
        std::string plenos = "P15 ";
        for (std::size_t c = primera; c < fin; ++c) plenos += Relleno(Pleno(columnas[c].pleno), 5);
        hoja.Linea(plenos, kCourier, kTamanoFilas, false);
    }
    return hoja.Terminar();
}

}  // namespace quinteva::outputs
