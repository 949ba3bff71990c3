#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/season_folder.h"
#include "seasons/server_reply.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {

namespace fs = std::filesystem;

inline std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

// La carpeta que sirve quinteva-servidor en las pruebas: una temporada con "Jornadas.rar"
// recortado (así se distingue de la del usuario) y un histórico, y la lista de versiones con la
// 215000, sus archivos y sus cambios (en Windows-1252, como en el disco).
struct Editor {
    pruebas::CarpetaTemporal carpeta;
    fs::path publicados = carpeta / "descargas" / "Quinteva";

    Editor() { fs::create_directories(publicados); }

    void Temporada(const fs::path& temporada) const {
        for (const auto nombre : {seasons::kJlig2, seasons::kJquin, seasons::kNomeq}) {
            fs::copy_file(temporada / nombre, publicados / nombre);
        }
        const std::string jornadas = Leer(temporada / seasons::kJornadas);
        std::ofstream(publicados / seasons::kJornadas, std::ios::binary)
            << jornadas.substr(0, jornadas.size() / 2);
        std::ofstream(publicados / seasons::kHist, std::ios::binary) << "historico";
    }

    void Version(const std::vector<seasons::RegVersion>& archivos) const {
        base::ArchivoDe<seasons::RegVersion> lista(publicados / "VersionQVPr.txt");
        lista.Anadir({"", "", "", 215000});
        for (const auto& r : archivos) lista.Anadir(r);
        std::ofstream(publicados / "CambiosQVPr.txt", std::ios::binary)
            << base::AWindows1252("Más rápida.");
    }
};

}  // namespace quinteva::pruebas
