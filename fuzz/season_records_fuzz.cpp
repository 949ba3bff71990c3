// Objetivo de libFuzzer de los lectores de los archivos de la temporada: cualquier contenido de
// "Nomeq.rar" y "Jlig2.rar" (el primer byte dice dónde se parte la entrada) se lee, se abre en la
// ventana "Equipos" y se clasifica sin caer; lo único que puede salir es un base::Error con su
// texto. Los demás registros (".rar" de Quinielas, Jornadas y Reanálisis) se leen y se vuelven a
// escribir sin Desbordamiento.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

#include "base/error.h"
#include "seasons/league_table.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/teams.h"

namespace {

namespace fs = std::filesystem;
using namespace quinteva;

class AjustesVacios : public base::Ajustes {
  public:
    std::string Leer(std::string_view, std::string_view, std::string_view,
                     std::string_view defecto) const override {
        return std::string(defecto);
    }
    void Guardar(std::string_view, std::string_view, std::string_view, std::string_view) override {}
};

// Contesta que no a cada pregunta: nada se borra ni se crea por una.
class DialogoMudo : public base::Dialogo {
  public:
    void Mensaje(std::string_view, base::Icono) override {}
    base::Respuesta PreguntaSiNo(std::string_view, base::Respuesta) override {
        return base::Respuesta::No;
    }
    base::Respuesta PreguntaSiNoCancelar(std::string_view, base::Respuesta) override {
        return base::Respuesta::Cancelar;
    }
    base::Respuesta AceptarCancelar(std::string_view, base::Respuesta) override {
        return base::Respuesta::Cancelar;
    }
    std::optional<std::string> PedirTexto(std::string_view, std::string_view,
                                          std::string_view) override {
        return std::nullopt;
    }
    std::optional<fs::path> ArchivoParaAbrir(std::string_view, std::string_view,
                                             const fs::path&) override {
        return std::nullopt;
    }
    std::optional<fs::path> ArchivoParaGuardar(std::string_view, std::string_view,
                                               const fs::path&) override {
        return std::nullopt;
    }
    std::optional<fs::path> Carpeta(std::string_view, const fs::path&) override {
        return std::nullopt;
    }
};

template <typename Registro>
void LeerYEscribir(std::span<const std::uint8_t> bytes) {
    for (std::size_t i = 0; i + Registro::kLongitud <= bytes.size(); i += Registro::kLongitud) {
        // Leído y escrito una vez, el registro ya no cambia (los bytes, no los valores: una fecha
        // puede ser NaN).
        const auto una = Registro::DeBytes(bytes.subspan(i, Registro::kLongitud)).ABytes();
        if (Registro::DeBytes(una).ABytes() != una) std::abort();
    }
}

void Escribir(const fs::path& ruta, std::span<const std::uint8_t> bytes) {
    std::ofstream(ruta, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    using namespace quinteva::seasons;
    static const fs::path carpeta =
        fs::temp_directory_path() / ("quinteva-fuzz-temporada-" + std::to_string(getpid()));
    fs::create_directories(carpeta);
    const std::span<const std::uint8_t> entrada(datos, tamano);
    if (entrada.empty()) return 0;
    const std::size_t corte = 1 + entrada[0] * (entrada.size() - 1) / 256;
    const auto nomeq = entrada.subspan(1, corte - 1);
    const auto jlig2 = entrada.subspan(corte);

    LeerYEscribir<RegTempor>(entrada);
    LeerYEscribir<RegEquipo>(entrada);
    LeerYEscribir<RegPartidoLiga>(entrada);
    LeerYEscribir<RegPartidoQuin>(entrada);
    LeerYEscribir<RegJornadaQuin>(entrada);
    LeerYEscribir<RegReanalisis>(entrada);

    Escribir(carpeta / kNomeq, nomeq);
    Escribir(carpeta / kJlig2, jlig2);
    AjustesVacios ajustes;
    DialogoMudo dialogo;
    try {
        VentanaEquipos equipos(carpeta, carpeta, ajustes, dialogo);
        equipos.Abrir();
        for (int division = 1; division <= 2; ++division) {
            Clasificacion clasificacion(carpeta, division);
            for (int jornada = 1; jornada <= 3; ++jornada) clasificacion.Clasifica(jornada);
            FilasClasificacion(carpeta, division, ajustes);
        }
    } catch (const base::Error&) {
        // Un archivo dañado puede desbordar un contador: es el fallo con su texto.
    }
    return 0;
}
