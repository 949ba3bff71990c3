#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "base/atomic_write.h"
#include "syndicates/pena_files.h"

namespace quinteva::syndicates {

// Los tres archivos de una Peña (su ruta sin extensión), que se leen enteros y se guardan
// enteros por un temporal que se renombra: un fallo a mitad (disco lleno, corte) deja los
// anteriores como estaban. El volcado es el del disco; las pruebas dan uno que falla.
class ArchivosPena {
  public:
    explicit ArchivosPena(std::filesystem::path ruta, base::Volcar volcar = base::VolcarEnDisco);

    const std::filesystem::path& Ruta() const { return ruta_; }
    std::filesystem::path Archivo(std::string_view extension) const;

    RegPena LeerPena() const;
    void GuardarPena(const RegPena& pena) const;
    // Los 70 registros; los que falten en un archivo corto salen con la Temporada de la Peña.
    std::vector<RegJornadaPena> LeerJornadas() const;
    RegJornadaPena LeerJornada(int jornada) const;
    void GuardarJornada(int jornada, const RegJornadaPena& registro) const;
    void GuardarJornadas(const std::vector<RegJornadaPena>& jornadas) const;
    std::vector<RegApostante> LeerApostantes() const;
    void GuardarApostantes(const std::vector<RegApostante>& apostantes) const;

  private:
    template <typename Registro>
    void GuardarTodos(std::string_view extension, const std::vector<Registro>& registros) const;

    std::filesystem::path ruta_;
    base::Volcar volcar_;
};

}  // namespace quinteva::syndicates
