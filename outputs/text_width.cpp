#include "outputs/text_width.h"

#include <array>

#include "base/utf8.h"

namespace quinteva::outputs {

namespace {

// Anchos de Helvetica en milésimas del cuerpo, del espacio (32) a "~" (126).
constexpr std::array<short, 95> kHelvetica = {
    278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,  // 32-47
    556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,  // 48-63
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,  // 64-79
    667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,  // 80-95
    333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,  // 96-111
    556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};      // 112-126

constexpr int kCourier = 600;
// La negrita de Helvetica es algo más ancha; basta para centrar.
constexpr float kNegrita = 1.07F;
constexpr float kTwipsPorPunto = 20.0F;

int Ancho(char32_t c) {
    if (c >= 32 && c <= 126) return kHelvetica[c - 32];
    // Vocales acentuadas, eñes y demás letras latinas: como una minúscula corriente.
    return 556;
}

}  // namespace

float AnchoDeTexto(std::string_view texto, std::string_view fuente, int tamano, bool negrita) {
    const bool courier = fuente == "Courier New";
    int milesimas = 0;
    for (std::size_t i = 0; i < texto.size();) {
        const auto c = base::LeerUtf8(texto, i);
        milesimas += courier ? kCourier : Ancho(c.value_or(U'?'));
    }
    const float ancho =
        static_cast<float>(milesimas) * static_cast<float>(tamano) * kTwipsPorPunto / 1000.0F;
    return negrita && !courier ? ancho * kNegrita : ancho;
}

}  // namespace quinteva::outputs
