#include "cli/json_output.h"

#include <cstdio>

namespace quinteva::cli {

std::string TextoJson(std::string_view texto) {
    std::string salida = "\"";
    for (const char c : texto) {
        switch (c) {
            case '"':
                salida += "\\\"";
                break;
            case '\\':
                salida += "\\\\";
                break;
            case '\n':
                salida += "\\n";
                break;
            case '\t':
                salida += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    char escape[8];
                    std::snprintf(escape, sizeof escape, "\\u%04x", c);
                    salida += escape;
                } else {
                    salida += c;
                }
        }
    }
    return salida + "\"";
}

}  // namespace quinteva::cli
