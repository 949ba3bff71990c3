#include "outputs/numeric_text.h"

#include <cstdlib>
#include <string>

#include "base/text1252.h"

namespace quinteva::outputs {

bool EsNumerico(std::string_view texto) {
    std::string_view t = base::Recortar(texto);
    if (!t.empty() && (t.front() == '-' || t.front() == '+')) t.remove_prefix(1);
    bool cifra = false;
    bool coma = false;
    for (const char c : t) {
        if (c >= '0' && c <= '9') {
            cifra = true;
        } else if (c == ',' && !coma) {
            coma = true;
        } else if (c != '.') {
            return false;
        }
    }
    return cifra;
}

double ValorNumerico(std::string_view texto) {
    std::string limpio;
    for (const char c : base::Recortar(texto)) {
        if (c == ',') {
            limpio += '.';
        } else if (c != '.' && c != '+') {
            limpio += c;
        }
    }
    return std::strtod(limpio.c_str(), nullptr);
}

}  // namespace quinteva::outputs
