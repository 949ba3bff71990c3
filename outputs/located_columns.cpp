#include "outputs/located_columns.h"

#include <algorithm>

#include "base/formats.h"

namespace quinteva::outputs {
namespace {

constexpr std::int32_t kColumnasPorBoleto = 8;
constexpr int kQuince = 15;

}  // namespace

std::int32_t BoletoDeColumna(std::int32_t numero) {
    return (numero + kColumnasPorBoleto - 1) / kColumnasPorBoleto;
}

std::int32_t LugarEnBoleto(std::int32_t numero) {
    const std::int32_t lugar = numero - kColumnasPorBoleto * (numero / kColumnasPorBoleto);
    return lugar == 0 ? kColumnasPorBoleto : lugar;
}

std::vector<FilaLocalizada> FilasLocalizadas(const TablaAciertos& tabla) {
    std::vector<FilaLocalizada> filas;
    for (std::size_t lugar = 0; lugar < tabla.listas.size(); ++lugar) {
        std::vector<std::int32_t> numeros = tabla.listas[lugar];
        std::sort(numeros.begin(), numeros.end());
        const std::string aciertos = std::to_string(kQuince - static_cast<int>(lugar));
        for (const std::int32_t n : numeros) {
            filas.push_back({base::Formato(BoletoDeColumna(n), "#,##0"),
                             base::Formato(LugarEnBoleto(n), "#,##0"), aciertos});
        }
    }
    return filas;
}

}  // namespace quinteva::outputs
