#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "base/settings.h"
#include "engine/columns.h"
#include "outputs/json_bag.h"

namespace quinteva::outputs {

// Un Boleto del archivo oficial. Los anchos de 16 bits son un límite del sistema: un Boleto por
// encima del 32.767 desborda.
struct BoletoOficial {
    std::int16_t seqBoleto = 0;
    std::string combinacion;
    std::int16_t importe = 0;
    std::int16_t numApuestas = 0;
    std::int16_t tipoSorteo = 0;
    std::int16_t metodo = 0;

    friend bool operator==(const BoletoOficial&, const BoletoOficial&) = default;
};

// La cabecera tal como la lee "Archivo JSON", con sus Boletos.
struct CabeceraOficial {
    static constexpr std::size_t kLongitudIdSorteo = 8;

    std::int16_t idJuego = 0;
    // Texto fijo de 8 caracteres: se corta o se rellena con blancos.
    std::string idSorteo = std::string(kLongitudIdSorteo, ' ');
    std::int32_t idReceptor = 0;
    std::int16_t totalBoletos = 0;
    std::int16_t totalApuestasSencillas = 0;
    std::int32_t importeTotal = 0;
    std::string hash;
    std::vector<BoletoOficial> boletos;

    friend bool operator==(const CabeceraOficial&, const CabeceraOficial&) = default;
};

// Lo que sale del recorrido de un archivo leído: la cabecera y el texto de "Igual Pleno al 15 en
// todos los Boletos?" ("SI", "NO" o "" si no había Boletos).
struct ArchivoOficialLeido {
    CabeceraOficial cabecera;
    std::string igualPleno;
};

// Lo que necesita el escritor además de las columnas.
struct DatosOficiales {
    std::int32_t idReceptor = 0;
    std::string idSorteo;
    float precio = 0.75F;
};

// Año, "/" y la Jornada del archivo con formato "00#": "2024/007".
std::string IdSorteo(std::string_view anio, double jornada);

// Las columnas en Boletos de 8; el último puede llevar de 1 a 7. El Pleno de cada Boleto es el de
// su última columna. Desbordamiento si se pasa del Boleto 32.767.
std::vector<BoletoOficial> ConstruirBoletos(std::span<const engine::RegistroColumna> columnas,
                                            float precio);

// El resumen de la cabecera: MD5 de los seis valores seguidos, sin separador.
std::string HashCabecera(std::string_view idJuego, std::string_view idSorteo,
                         std::string_view idReceptor, std::string_view totalBoletos,
                         std::string_view totalApuestas, std::string_view importeTotal);

// El árbol como lo escriben las dos ventanas de generación: "apuestas" antes que "cabecera", cada
// una con sus claves en orden alfabético.
void ArbolGenerado(JsonBag& raiz, std::span<const engine::RegistroColumna> columnas,
                   const DatosOficiales& datos);

// El árbol como lo guarda "Archivo JSON", con el otro orden y el resumen recalculado.
// Devuelve el resumen nuevo.
std::string ArbolGuardado(JsonBag& raiz, const CabeceraOficial& cabecera);

// El recorrido de un archivo leído: la cabecera por sus claves, cada Boleto por las suyas, las
// claves que no están en la lista se ignoran. Un valor que no cabe en su campo desborda.
ArchivoOficialLeido RecorrerArchivoOficial(const JsonBag& raiz);

// Las columnas de "combinacion" de un Boleto: cada "=" empieza una, con sus 14 signos cada dos
// caracteres (un signo que falta queda a cero); el Boleto acaba tras numApuestas columnas o
// en el ":". El Pleno es el carácter dos antes del final y el último, el mismo para todas.
template <typename F>
void CadaColumnaDeBoleto(const BoletoOficial& boleto, F columna) {
    const std::string& texto = boleto.combinacion;
    const std::string pleno =
        texto.size() < 3 ? std::string() : std::string{texto[texto.size() - 3], texto.back()};
    int enBoleto = 0;
    for (std::size_t i = 0; i < texto.size() && texto[i] != ':'; ++i) {
        if (texto[i] != '=') continue;
        engine::Columna signos{};
        for (std::size_t p = 0; p < signos.size(); ++p) {
            const std::size_t donde = i + 1 + 2 * p;
            if (donde < texto.size()) signos[p] = texto[donde];
        }
        columna(signos, pleno);
        if (++enBoleto == boleto.numApuestas) break;
    }
}

// El texto del archivo en una sola línea, en Windows-1252, de una vez y sin nada más.
void EscribirArchivoOficial(const std::filesystem::path& ruta, const JsonBag& raiz);
// El texto de un archivo (Windows-1252) en UTF-8.
std::string LeerTextoArchivo(const std::filesystem::path& ruta);

}  // namespace quinteva::outputs
