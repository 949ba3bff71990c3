#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "engine/columns.h"
#include "engine/conditions.h"
#include "engine/quiniela_base.h"

namespace quinteva::engine {

// Los almacenes de trabajo, en CarpetaTrabajo, de registros de 17 bytes.
inline constexpr std::string_view kCmbTmp = "Cmb.tmp";
inline constexpr std::string_view kRedTmp = "Red.tmp";

// Columnas rechazadas en la última generación, por familia y por Grupo.
struct Rechazos {
    std::array<double, 9> porCondicion{};
    std::array<std::int32_t, 50> grupo{};
    std::array<std::int32_t, 50> grupoAciertos{};
    std::int32_t tolGrupos = 0;
    std::int32_t tolGruposAciertos = 0;

    friend bool operator==(const Rechazos&, const Rechazos&) = default;
};

// Los valores del panel "Estado de la Combinación"; un valor vacío es una etiqueta en blanco, es
// decir, algo sin calcular (un cambio en la base o en las condiciones los borra).
struct PanelEstado {
    std::string nombre;
    bool guardada = false;
    std::optional<float> alDirecto;
    std::optional<int> dobles;
    std::optional<int> triples;
    std::optional<std::int32_t> condicionada;
    // "al 13", "al 12", "al 11", "al 10".
    std::array<std::optional<std::int32_t>, 4> reducidas;
    std::optional<double> precio;

    friend bool operator==(const PanelEstado&, const PanelEstado&) = default;
};

// La Combinación abierta: el documento del usuario. La ventana principal es su única dueña y la
// presta a las ventanas y procesos que la necesitan.
struct Combinacion {
    QuinielaBase base;
    PlenoBase pleno{' ', ' '};
    // RutaCombinacion: el ".uxd"; vacía mientras no se ha guardado nunca.
    std::filesystem::path ruta;
    // Número de Jornada y conjunto jugado ("cnd", "red" o "" si no se eligió).
    std::uint8_t jornada = 0;
    std::string jugada;
    SetCondiciones condiciones;

    std::int32_t totalGeneradas = 0;
    std::int32_t activasGeneradas = 0;
    std::int32_t totalReducidas = 0;
    std::int32_t activasReducidas = 0;
    std::int16_t numCondiciones = 0;
    float apuestasPosibles = 0.0F;
    Rechazos rechazos;

    // 0 a 3: "al 13", "al 12", "al 11", "al 10".
    std::uint8_t nivelReducida = 0;
    std::uint8_t origenPorcentajes = 0;
    // Porcentajes de los signos 1, X, 2 por partido de la Quiniela por Porcentajes.
    std::array<std::array<std::uint8_t, kPartidos>, 3> tablaPorcentajes{};
    std::int32_t valorPorcentajes = 0;

    PanelEstado panel;
};

}  // namespace quinteva::engine
