#include "base/formats.h"

#include <cmath>
#include <cstdio>
#include <string>

#include "base/error.h"

namespace quinteva::base {
namespace {

struct Patron {
    bool millares = false;
    int minimoEnteros = 0;
    int decimales = 0;
    int decimalesFijos = 0;  // los que se muestran aunque sean ceros
    std::string sufijo;
};

Patron Interpretar(std::string_view patron) {
    if (patron == "standard") return {true, 1, 2, 2, ""};
    if (patron == "currency") return {true, 1, 2, 2, " €"};
    Patron p;
    const auto punto = patron.find('.');
    const std::string_view entera = patron.substr(0, punto);
    p.millares = entera.find(',') != std::string_view::npos;
    const auto primerCero = entera.find('0');
    if (primerCero != std::string_view::npos) {
        for (std::size_t i = primerCero; i < entera.size(); ++i) {
            if (entera[i] == '0' || entera[i] == '#') ++p.minimoEnteros;
        }
    }
    if (punto != std::string_view::npos) {
        const std::string_view decimal = patron.substr(punto + 1);
        for (std::size_t i = 0; i < decimal.size(); ++i) {
            if (decimal[i] != '0' && decimal[i] != '#') throw Error("Formato no válido");
            ++p.decimales;
            if (decimal[i] == '0') p.decimalesFijos = p.decimales;
        }
    }
    return p;
}

// Redondea |valor| x 10^decimales a la mitad hacia fuera del cero, mirando las 15 cifras
// significativas del double como hace el sistema (2,675 con dos decimales da 2,68).
double Escalar(double valor, int decimales) {
    char texto[64];
    std::snprintf(texto, sizeof texto, "%.15g", std::fabs(valor) * std::pow(10.0, decimales));
    return std::round(std::strtod(texto, nullptr));
}

std::string AgruparMillares(const std::string& digitos) {
    std::string salida;
    const std::size_t n = digitos.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0) salida += '.';
        salida += digitos[i];
    }
    return salida;
}

}  // namespace

std::string Formato(double valor, std::string_view patron) {
    const Patron p = Interpretar(patron);
    const double escalado = Escalar(valor, p.decimales);
    char texto[400];
    std::snprintf(texto, sizeof texto, "%.0f", escalado);
    std::string digitos = texto;
    if (static_cast<int>(digitos.size()) <= p.decimales) {
        digitos.insert(0, static_cast<std::size_t>(p.decimales) + 1 - digitos.size(), '0');
    }
    std::string entera = digitos.substr(0, digitos.size() - static_cast<std::size_t>(p.decimales));
    std::string fraccion = digitos.substr(entera.size());
    if (entera == "0" && p.minimoEnteros == 0) entera.clear();
    if (static_cast<int>(entera.size()) < p.minimoEnteros) {
        entera.insert(0, static_cast<std::size_t>(p.minimoEnteros) - entera.size(), '0');
    }
    while (static_cast<int>(fraccion.size()) > p.decimalesFijos && fraccion.back() == '0') {
        fraccion.pop_back();
    }
    std::string salida = (valor < 0 && escalado != 0) ? "-" : "";
    salida += p.millares ? AgruparMillares(entera) : entera;
    if (p.decimales > 0) salida += "," + fraccion;
    return salida + p.sufijo;
}

std::string FormatoFecha(const FechaHora& fecha, std::string_view patron) {
    std::string salida;
    std::size_t i = 0;
    while (i < patron.size()) {
        const char c = patron[i];
        std::size_t n = 1;
        while (i + n < patron.size() && patron[i + n] == c) ++n;
        char texto[16];
        if (c == 'd') {
            std::snprintf(texto, sizeof texto, n >= 2 ? "%02d" : "%d", fecha.dia);
        } else if (c == 'm' || c == 'M') {
            std::snprintf(texto, sizeof texto, n >= 2 ? "%02d" : "%d", fecha.mes);
        } else if (c == 'y') {
            std::snprintf(texto, sizeof texto, n >= 4 ? "%04d" : "%02d",
                          n >= 4 ? fecha.anio : fecha.anio % 100);
        } else {
            std::snprintf(texto, sizeof texto, "%.*s", static_cast<int>(n), patron.data() + i);
        }
        salida += texto;
        i += n;
    }
    return salida;
}

}  // namespace quinteva::base
