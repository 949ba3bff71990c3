#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "base/record_files.h"
#include "engine/combination.h"
#include "engine/cover.h"
#include "engine/generation.h"
#include "engine/guarantee_check.h"
#include "engine/reduction.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {

// Una Combinación sin condiciones con T triples y D dobles "1X" (los primeros partidos) y fijos
// "1", desarrollada entera en "Cmb.tmp" de una carpeta propia.
struct Desarrollo {
    CarpetaTemporal carpeta;
    AjustesEnMemoria ajustes;
    engine::Combinacion combinacion;

    Desarrollo(int triples, int dobles, const std::string& dobleSignos = "1X") {
        for (int p = 1; p <= engine::kPartidos; ++p) {
            const bool triple = p <= triples;
            const bool doble = !triple && p <= triples + dobles;
            for (int s = 0; s < 3; ++s) {
                const char signo = engine::kSignos[static_cast<std::size_t>(s)];
                combinacion.base.Elegir(
                    p, s,
                    triple || (doble && dobleSignos.find(signo) != std::string::npos) ||
                        (!triple && !doble && s == 0));
            }
        }
        combinacion.base.PonerGoles("1", "0");
        combinacion.pleno = combinacion.base.Pleno();
        base::SinProgreso progreso;
        engine::Generar(combinacion, carpeta.Ruta(), progreso, ajustes);
    }

    std::vector<engine::RegistroColumna> Leer(std::string_view nombre) const {
        std::vector<engine::RegistroColumna> registros;
        if (!std::filesystem::exists(carpeta / std::string(nombre))) return registros;
        const base::ArchivoDe<engine::RegistroColumna> archivo(carpeta / std::string(nombre));
        for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) registros.push_back(archivo.Leer(n));
        return registros;
    }
};

// Verdadero si cada columna desarrollada está a "radio" o menos de alguna reducida.
inline bool Cubre(const std::vector<engine::RegistroColumna>& reducidas,
                  const std::vector<engine::RegistroColumna>& desarrolladas, int radio) {
    return engine::VerificarGarantia(desarrolladas, reducidas, radio).Cumple();
}

}  // namespace quinteva::pruebas
