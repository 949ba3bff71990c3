#pragma once

#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "base/chance.h"
#include "base/record_files.h"
#include "builders/boletos.h"
#include "engine/combination_files.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {

// "1X2 1 X 12 ...": 14 conjuntos de signos.
inline engine::QuinielaBase BaseDe(const std::string& texto) {
    engine::QuinielaBase base;
    std::istringstream palabras(texto);
    int partido = 0;
    for (std::string p; palabras >> p;) {
        ++partido;
        for (char s : p) base.Elegir(partido, engine::IndiceSigno(s), true);
    }
    base.PonerGoles("1", "2");
    return base;
}

inline engine::RegistroColumna Registro(const std::string& signos, const std::string& pleno = "1M",
                                        char estado = engine::kActiva) {
    return {engine::ColumnaDeTexto(signos), engine::PlenoDeTexto(pleno), estado};
}

inline std::vector<engine::RegistroColumna> LeerRegistros(const std::filesystem::path& ruta) {
    const base::ArchivoDe<engine::RegistroColumna> archivo(ruta);
    std::vector<engine::RegistroColumna> registros;
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) registros.push_back(archivo.Leer(n));
    return registros;
}

// Todas las columnas de una base, en el orden del cuentakilómetros.
inline std::vector<std::string> ColumnasDeLaBase(const engine::QuinielaBase& base) {
    std::vector<std::string> columnas{""};
    for (int p = 1; p <= engine::kPartidos; ++p) {
        std::vector<std::string> siguientes;
        for (const auto& c : columnas) {
            for (int s = 0; s < 3; ++s) {
                if (base.Elegido(p, s))
                    siguientes.push_back(c + engine::kSignos[static_cast<std::size_t>(s)]);
            }
        }
        columnas = std::move(siguientes);
    }
    return columnas;
}

// Una Combinación guardada en una carpeta temporal, con su carpeta de trabajo, ajustes, diálogo
// con guion y azar de semilla fija.
struct BancoBoletos {
    CarpetaTemporal carpeta;
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    base::AzarEstandar azar{20070};
    engine::Combinacion comb;

    explicit BancoBoletos(const std::string& base = "1X2 1X2 1X2 1 1 1 1 1 1 1 1 1 1 1") {
        std::filesystem::create_directories(Trabajo());
        comb.base = BaseDe(base);
        comb.pleno = comb.base.Pleno();
        comb.ruta = carpeta / "J7.uxd";
        comb.jornada = 7;
        comb.panel.nombre = "J7";
        comb.panel.alDirecto = comb.base.Columnas();
        engine::Guardar(comb, Trabajo(), ajustes);
    }

    std::filesystem::path Trabajo() const { return carpeta / "trabajo"; }
    builders::EntornoBoletos Entorno() { return {Trabajo(), ajustes, dialogo, azar}; }
    std::filesystem::path Guardado(builders::Jugada j) const {
        return engine::RutaHermana(comb.ruta,
                                   j == builders::Jugada::Condicionada ? ".cnd" : ".red");
    }
    std::filesystem::path Almacen(builders::Jugada j) const {
        return Trabajo() /
               (j == builders::Jugada::Condicionada ? engine::kCmbTmp : engine::kRedTmp);
    }

    // Pone esas columnas en el conjunto (almacén, contadores, panel), guarda y elige la jugada
    // en el estado (sin preguntas).
    void Columnas(builders::Jugada j, const std::vector<engine::RegistroColumna>& registros) {
        {
            std::filesystem::remove(Almacen(j));
            base::ArchivoDe<engine::RegistroColumna> almacen(Almacen(j));
            for (const auto& r : registros) almacen.Anadir(r);
            almacen.Cerrar();
        }
        std::int32_t activas = 0;
        for (const auto& r : registros) activas += r.Activa() ? 1 : 0;
        const auto total = static_cast<std::int32_t>(registros.size());
        if (j == builders::Jugada::Condicionada) {
            comb.totalGeneradas = total;
            comb.activasGeneradas = activas;
            comb.panel.condicionada = activas;
        } else {
            comb.totalReducidas = total;
            comb.activasReducidas = activas;
            comb.panel.reducidas[1] = activas;
            comb.nivelReducida = 1;
        }
        engine::Guardar(comb, Trabajo(), ajustes);
        comb.jugada = std::string(builders::CampoJugada(j));
        EscribirJugada(comb.jugada);
    }

    // El campo del conjunto jugado de la cabecera, como lo deja la página Boletos.
    void EscribirJugada(const std::string& jugada) {
        base::ArchivoRegistros uxd(comb.ruta, engine::RegistroCabecera::kLongitud);
        auto bytes = uxd.Leer(1);
        base::PonerTexto(bytes, 16, 3, jugada);
        uxd.Escribir(1, bytes);
        uxd.Cerrar();
    }

    // Las n primeras columnas de la base, activas, con el Pleno dado.
    void Generadas(std::size_t n, const std::string& pleno = "1M") {
        std::vector<engine::RegistroColumna> registros;
        const auto todas = ColumnasDeLaBase(comb.base);
        for (std::size_t i = 0; i < n; ++i) registros.push_back(Registro(todas.at(i), pleno));
        Columnas(builders::Jugada::Condicionada, registros);
    }
};

}  // namespace quinteva::pruebas
