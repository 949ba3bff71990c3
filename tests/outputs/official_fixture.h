#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "engine/columns.h"

namespace quinteva::pruebas {

// Una Combinación pequeña y fija: 9 columnas activas (un último Boleto de una sola columna) con
// Plenos distintos: la octava "2M", la novena "10", la cuarta "01".
inline std::vector<engine::RegistroColumna> ColumnasDeEjemplo() {
    const std::vector<std::pair<std::string, std::string>> filas = {
        {"1X21X21X21X21X", "00"}, {"11111111111111", "00"}, {"22222222222222", "00"},
        {"XXXXXXXXXXXXXX", "01"}, {"12X12X12X12X12", "00"}, {"1111111111111X", "00"},
        {"2111111111111X", "00"}, {"X2X2X2X2X2X2X2", "2M"}, {"111111111111X2", "10"}};
    std::vector<engine::RegistroColumna> columnas;
    for (const auto& [columna, pleno] : filas) {
        columnas.push_back(
            {engine::ColumnaDeTexto(columna), engine::PlenoDeTexto(pleno), engine::kActiva});
    }
    return columnas;
}

// Los archivos de referencia de tests/outputs/data.
inline std::filesystem::path DatoDePrueba(const std::string& nombre) {
    return std::filesystem::path(QUINTEVA_DATOS_PRUEBAS) / nombre;
}

}  // namespace quinteva::pruebas
