#include "base/settings_ini.h"

#include <charconv>
#include <fstream>
#include <sstream>

#include "base/atomic_write.h"
#include "base/utf8.h"

namespace quinteva::base {
namespace {

constexpr char kHex[] = "0123456789ABCDEF";

bool Llano(char32_t c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

std::string EscaparClave(std::string_view clave) {
    std::string salida;
    for (std::size_t i = 0; i < clave.size();) {
        const char32_t c = LeerUtf8(clave, i).value_or(U'?');
        if (c == '/') {
            salida += '\\';
        } else if (Llano(c)) {
            salida += static_cast<char>(c);
        } else if (c <= 0xFF) {
            salida += {'%', kHex[c / 16], kHex[c % 16]};
        } else {
            salida +=
                {'%',         'U', kHex[(c >> 12) & 15], kHex[(c >> 8) & 15], kHex[(c >> 4) & 15],
                 kHex[c & 15]};
        }
    }
    return salida;
}

bool LeerHex(std::string_view texto, char32_t& codigo) {
    unsigned valor = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor, 16);
    codigo = valor;
    return error == std::errc() && fin == texto.data() + texto.size();
}

std::string DesescaparClave(std::string_view clave) {
    std::string salida;
    for (std::size_t i = 0; i < clave.size(); ++i) {
        const char c = clave[i];
        if (c == '\\') {
            salida += '/';
            continue;
        }
        const bool largo = c == '%' && i + 1 < clave.size() && clave[i + 1] == 'U';
        const std::size_t desde = i + (largo ? 2 : 1);
        const std::size_t ancho = largo ? 4 : 2;
        char32_t codigo = 0;
        if (c != '%' || desde + ancho > clave.size() ||
            !LeerHex(clave.substr(desde, ancho), codigo)) {
            salida += c;
            continue;
        }
        AnadirUtf8(salida, codigo);
        i = desde + ancho - 1;
    }
    return salida;
}

std::string EscaparValor(std::string_view valor) {
    std::string salida = (!valor.empty() && valor.front() == '@') ? "@" : "";
    bool comillas = false;
    for (const char c : valor) {
        if (c == ';' || c == ',' || c == '=') comillas = true;
        switch (c) {
            case '"':
            case '\\':
                salida += '\\';
                salida += c;
                break;
            case '\n':
                salida += "\\n";
                break;
            case '\r':
                salida += "\\r";
                break;
            case '\t':
                salida += "\\t";
                break;
            default:
                salida += c;
        }
    }
    if (comillas || (!salida.empty() && (salida.front() == ' ' || salida.back() == ' '))) {
        salida = '"' + salida + '"';
    }
    return salida;
}

std::string DesescaparValor(std::string_view valor) {
    std::string salida;
    for (std::size_t i = 0; i < valor.size(); ++i) {
        const char c = valor[i];
        if (c == '"') continue;
        if (c == '\\' && i + 1 < valor.size()) {
            const char e = valor[++i];
            salida += e == 'n' ? '\n' : e == 'r' ? '\r' : e == 't' ? '\t' : e;
        } else {
            salida += c;
        }
    }
    if (salida.starts_with("@@")) salida.erase(0, 1);
    return salida;
}

std::string_view SinBlancos(std::string_view s) {
    const auto a = s.find_first_not_of(" \t\r");
    if (a == std::string_view::npos) return {};
    return s.substr(a, s.find_last_not_of(" \t\r") - a + 1);
}

}  // namespace

AjustesIni::AjustesIni(std::filesystem::path carpeta) : carpeta_(std::move(carpeta)) {}

std::filesystem::path AjustesIni::RutaDe(std::string_view aplicacion) const {
    return carpeta_ / (std::string(aplicacion) + ".ini");
}

AjustesIni::Secciones AjustesIni::Cargar(std::string_view aplicacion) const {
    Secciones secciones;
    std::ifstream entrada(RutaDe(aplicacion), std::ios::binary);
    std::string linea;
    std::string seccion = "General";
    while (std::getline(entrada, linea)) {
        const std::string_view l = SinBlancos(linea);
        if (l.empty() || l.front() == ';') continue;
        if (l.front() == '[' && l.back() == ']') {
            seccion = DesescaparClave(l.substr(1, l.size() - 2));
            continue;
        }
        const auto igual = l.find('=');
        if (igual == std::string_view::npos) continue;
        secciones[seccion][DesescaparClave(SinBlancos(l.substr(0, igual)))] =
            DesescaparValor(SinBlancos(l.substr(igual + 1)));
    }
    return secciones;
}

std::string AjustesIni::Leer(std::string_view aplicacion, std::string_view seccion,
                             std::string_view clave, std::string_view defecto) const {
    const Secciones secciones = Cargar(aplicacion);
    const auto s = secciones.find(std::string(seccion));
    if (s == secciones.end()) return std::string(defecto);
    const auto v = s->second.find(std::string(clave));
    return v == s->second.end() ? std::string(defecto) : v->second;
}

void AjustesIni::Guardar(std::string_view aplicacion, std::string_view seccion,
                         std::string_view clave, std::string_view valor) {
    Secciones secciones = Cargar(aplicacion);
    secciones[std::string(seccion)][std::string(clave)] = std::string(valor);
    std::ostringstream texto;
    for (const auto& [nombre, claves] : secciones) {
        texto << '[' << EscaparClave(nombre) << "]\n";
        for (const auto& [k, v] : claves)
            texto << EscaparClave(k) << '=' << EscaparValor(v) << '\n';
        texto << '\n';
    }
    std::filesystem::create_directories(carpeta_);
    EscribirAtomico(RutaDe(aplicacion), texto.str());
}

}  // namespace quinteva::base
