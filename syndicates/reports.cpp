#include "syndicates/reports.h"

#include "base/formats.h"
#include "base/text1252.h"
#include "outputs/line_pages.h"
#include "outputs/pdf_writer.h"
#include "outputs/text_width.h"

namespace quinteva::syndicates {

namespace {

using outputs::Alineacion;
using outputs::ColumnaTabla;
using outputs::HojaDeLineas;
using outputs::Impresion;

constexpr std::string_view kArial = "Arial";
constexpr int kCuerpo = 9;
constexpr int kTitulo = 14;
constexpr int kSeccion = 10;
constexpr std::string_view kPrograma = "Quinteva";

std::string Texto(std::string_view campo) { return std::string(base::Recortar(campo)); }

// Lo que se suma de las Jornadas que cuentan, fila a fila.
struct Suma {
    double invertido = 0;
    double obtenido = 0;
    double gastos = 0;
};

Cuentas Terminar(const Suma& s, std::vector<FilaCuentas> filas) {
    Cuentas c;
    c.jornadasJugadas = static_cast<int>(filas.size());
    c.filas = std::move(filas);
    c.invertido = TextoDeDinero(s.invertido);
    c.obtenido = TextoDeDinero(s.obtenido);
    c.gastos = TextoDeDinero(s.gastos);
    const double resultado = s.obtenido - s.invertido - s.gastos;
    c.resultado = TextoDeDinero(resultado);
    c.resultadoNegativo = resultado < 0;
    if (s.invertido > 0) {
        c.porcentaje = base::Formato(resultado * 100.0 / s.invertido, "#,##0.#0") + "% ";
    }
    return c;
}

FilaCuentas Fila(int jornada, double invertido, double obtenido, double gastos, bool conGastos) {
    return {jornada, TextoDeDinero(invertido), TextoDeDinero(obtenido),
            conGastos ? TextoDeDinero(gastos) : std::string(),
            TextoDeDinero(obtenido - invertido - gastos)};
}

// El pie de los documentos de la Peña: el programa, la página y la Temporada.
HojaDeLineas HojaDePena(const RegPena& pena) {
    const std::string temporada = "  Temp. " + Texto(pena.temporada);
    return HojaDeLineas([temporada](Impresion& h, int pagina) {
        const float abajo = outputs::kAltoA4 - HojaDeLineas::kMargen + 200.0F;
        const float derecha = outputs::kAnchoA4 - HojaDeLineas::kMargen;
        h.Fuente(kArial, kCuerpo, false);
        h.Texto(HojaDeLineas::kMargen, abajo, std::string(kPrograma) + temporada);
        const std::string numero = "Página " + std::to_string(pagina);
        h.Texto(derecha - outputs::AnchoDeTexto(numero, kArial, kCuerpo, false), abajo, numero);
    });
}

void Tabla(HojaDeLineas& hoja, const std::vector<ColumnaTabla>& columnas,
           const std::vector<std::string>& cabecera,
           const std::vector<std::vector<std::string>>& filas) {
    if (!cabecera.empty()) hoja.Fila(cabecera, columnas, kArial, kCuerpo, true);
    for (const auto& f : filas) hoja.Fila(f, columnas, kArial, kCuerpo, false);
}

constexpr ColumnaTabla Izq(float ancho) { return {Alineacion::Izquierda, ancho}; }
constexpr ColumnaTabla Der(float ancho) { return {Alineacion::Derecha, ancho}; }

// Las cuentas: los totales y "Detalle de Jornadas jugadas".
void EscribirCuentas(HojaDeLineas& hoja, const Cuentas& c, bool conGastos) {
    std::vector<std::vector<std::string>> totales = {
        {"Jornadas jugadas:", std::to_string(c.jornadasJugadas)},
        {"Invertido (euros):", c.invertido},
        {"Obtenido (euros):", c.obtenido}};
    if (conGastos) totales.push_back({"Total Gastos (euros):", c.gastos});
    totales.push_back({"Resultado (euros):", c.resultado});
    if (c.porcentaje) totales.push_back({"Resultado (%):", *c.porcentaje});
    Tabla(hoja, {Izq(2600), Der(1600)}, {}, totales);
    hoja.Blanco(kCuerpo);
    hoja.Reservar(3, kCuerpo);
    hoja.Linea("Detalle de Jornadas jugadas", kArial, kSeccion, true);
    std::vector<std::string> cabecera = {"Jornada", "Invertido", "Obtenido"};
    if (conGastos) cabecera.push_back("Gastos");
    cabecera.push_back("Resultado");
    std::vector<ColumnaTabla> columnas(cabecera.size(), Der(1500));
    columnas.front() = Der(900);
    std::vector<std::vector<std::string>> filas;
    for (const FilaCuentas& f : c.filas) {
        std::vector<std::string> fila = {std::to_string(f.jornada), f.invertido, f.obtenido};
        if (conGastos) fila.push_back(f.gastos);
        fila.push_back(f.resultado);
        filas.push_back(std::move(fila));
    }
    Tabla(hoja, columnas, cabecera, filas);
}

}  // namespace

Cuentas CuentasDePena(const std::vector<RegJornadaPena>& jornadas) {
    Suma s;
    std::vector<FilaCuentas> filas;
    for (std::size_t i = 0; i < jornadas.size(); ++i) {
        const RegJornadaPena& r = jornadas[i];
        if (r.numColumnas <= 0.0F) continue;
        s.invertido += r.importe;
        s.obtenido += r.totalCobrado;
        s.gastos += r.gastos;
        filas.push_back(Fila(static_cast<int>(i) + 1, r.importe, r.totalCobrado, r.gastos, true));
    }
    return Terminar(s, std::move(filas));
}

Cuentas CuentasDeApostante(const RegApostante& a) {
    Suma s;
    std::vector<FilaCuentas> filas;
    for (std::size_t j = 1; j < a.cuotas.size(); ++j) {
        if (a.cuotas[j] <= 0.0F) continue;
        s.invertido += a.cuotas[j];
        s.obtenido += a.obtenido[j];
        filas.push_back(Fila(static_cast<int>(j), a.cuotas[j], a.obtenido[j], 0.0, false));
    }
    return Terminar(s, std::move(filas));
}

Impresion ImpresionJornada(const RegPena& pena, const PaginaJornada& p) {
    HojaDeLineas hoja = HojaDePena(pena);
    hoja.Linea("Quinteva - Peñas", kArial, kTitulo, true);
    hoja.Linea(Texto(pena.nombre), kArial, kSeccion, false);
    hoja.Linea(" Jornada: " + std::to_string(p.jornada) + " Fecha: " + p.fecha, kArial, kSeccion,
               true);
    hoja.Blanco(kCuerpo);
    hoja.Linea("Jugado", kArial, kSeccion, true);
    Tabla(hoja, {Izq(2400), Der(1600)}, {},
          {{"Nº Columnas", p.numColumnas},
           {"Importe", p.importe},
           {"Nº de Apostantes", std::to_string(p.NumApostantes())}});
    hoja.Blanco(kCuerpo);
    hoja.Linea("Obtenido", kArial, kSeccion, true);
    std::vector<std::vector<std::string>> categorias;
    for (std::size_t i = 0; i < RegJornadaPena::kCategorias; ++i) {
        categorias.push_back({"De " + std::to_string(15 - i), p.acertadas[i], p.premios[i]});
    }
    Tabla(hoja, {Izq(1200), Der(1400), Der(1600)}, {"", "Col.acertadas", "Cobra c/u"}, categorias);
    Tabla(hoja, {Izq(2600), Der(1600)}, {},
          {{"Total cobrado", p.totalCobrado}, {"Gastos", p.gastos}, {"A repartir", p.aRepartir}});
    hoja.Blanco(kCuerpo);
    hoja.Reservar(3, kCuerpo);
    hoja.Linea("Apostantes", kArial, kSeccion, true);
    std::vector<std::vector<std::string>> filas;
    for (const FilaJornadaPena& f : p.filas) {
        filas.push_back({f.nombre, f.jugado, f.participacion, f.obtenido});
    }
    filas.push_back({"", p.totalJugado, "100%", p.totalObtenido});
    Tabla(hoja, {Izq(3800), Der(1400), Der(1400), Der(1400)},
          {"Nombre", "Jugado", "Particip.%", "Obtenido"}, filas);
    return hoja.Terminar();
}

Impresion ImpresionApostantes(const RegPena& pena, const std::vector<RegApostante>& apostantes) {
    HojaDeLineas hoja = HojaDePena(pena);
    hoja.Linea("Informe de Apostantes", kArial, kTitulo, true);
    hoja.Linea(Texto(pena.nombre), kArial, kSeccion, false);
    for (const RegApostante& a : apostantes) {
        hoja.Blanco(kCuerpo);
        hoja.Reservar(6, kCuerpo);
        hoja.Linea(Texto(a.nombre), kArial, kSeccion, true);
        hoja.Linea("DNI: " + Texto(a.nif), kArial, kCuerpo, false);
        EscribirCuentas(hoja, CuentasDeApostante(a), false);
    }
    return hoja.Terminar();
}

Impresion ImpresionInformePena(const RegPena& pena, const Cuentas& cuentas) {
    HojaDeLineas hoja = HojaDePena(pena);
    hoja.Linea("Detalle de Jornadas jugadas", kArial, kTitulo, true);
    hoja.Linea(Texto(pena.nombre), kArial, kSeccion, false);
    hoja.Blanco(kCuerpo);
    EscribirCuentas(hoja, cuentas, true);
    return hoja.Terminar();
}

Impresion ImpParticipes(const RegPena& pena, const std::vector<RegApostante>& apostantes) {
    HojaDeLineas hoja([](Impresion& h, int pagina) {
        const float abajo = outputs::kAltoA4 - HojaDeLineas::kMargen + 200.0F;
        h.Fuente(kArial, kCuerpo, false);
        h.Texto(outputs::kAnchoA4 - HojaDeLineas::kMargen - 900.0F, abajo,
                "Pag. " + std::to_string(pagina));
    });
    hoja.Linea("Relación de Apostantes en base de datos", kArial, kTitulo, true);
    hoja.Linea(Texto(pena.nombre), kArial, kSeccion, false);
    hoja.Blanco(kCuerpo);
    std::vector<std::vector<std::string>> filas;
    for (const RegApostante& a : apostantes) {
        filas.push_back(
            {Texto(a.nombre), Texto(a.nif), Texto(a.telefono), Texto(a.movil), Texto(a.email)});
    }
    Tabla(hoja, {Izq(3000), Izq(1300), Izq(1200), Izq(1200), Izq(2600)},
          {"Apellidos y nombre", "DNI/NIF", "Tfnº", "Tfnº Móvil", "E-mail"}, filas);
    return hoja.Terminar();
}

}  // namespace quinteva::syndicates
