#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "outputs/print_list.h"
#include "syndicates/ledger.h"
#include "syndicates/pena_files.h"

namespace quinteva::syndicates {

// Las cuentas de una Peña o de un Apostante: lo que se leen en los archivos, sin escribir nada.

// Una fila de "Detalle de Jornadas jugadas" (sin gastos en la de un Apostante).
struct FilaCuentas {
    int jornada = 0;
    std::string invertido;
    std::string obtenido;
    std::string gastos;
    std::string resultado;
};

struct Cuentas {
    int jornadasJugadas = 0;
    std::string invertido;
    std::string obtenido;
    std::string gastos;
    // Obtenido - Invertido - Gastos: en azul (0xC00000 del sistema) si no es negativo, en rojo si
    // lo es.
    std::string resultado;
    bool resultadoNegativo = false;
    // Solo con algo invertido: el resultado entre lo invertido, con "% ".
    std::optional<std::string> porcentaje;
    std::vector<FilaCuentas> filas;
};

// "I&nforme Peña": las Jornadas con columnas jugadas.
Cuentas CuentasDePena(const std::vector<RegJornadaPena>& jornadas);
// "Detalle de Jornadas" de un Apostante: las Jornadas en que tiene cuota, sin gastos.
Cuentas CuentasDeApostante(const RegApostante& apostante);

// Los documentos que se imprimen o se guardan en PDF; cada página lleva al pie el nombre del
// programa, "Página n" y "  Temp. " con la Temporada.
// "Quinteva - Peñas": una Jornada entera, como la página Jornadas.
outputs::Impresion ImpresionJornada(const RegPena& pena, const PaginaJornada& pagina);
// "Informe de Apostantes": cada Apostante con sus datos y su detalle.
outputs::Impresion ImpresionApostantes(const RegPena& pena,
                                       const std::vector<RegApostante>& apostantes);
// "Detalle de Jornadas jugadas": las cuentas de la Peña.
outputs::Impresion ImpresionInformePena(const RegPena& pena, const Cuentas& cuentas);
// ImpParticipes, "Relación de Apostantes en base de datos": una línea por Apostante con sus
// datos; cada página con "Pag." y su número.
outputs::Impresion ImpParticipes(const RegPena& pena, const std::vector<RegApostante>& apostantes);

}  // namespace quinteva::syndicates
