#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace quinteva::base {

// Expande un ".zip" en una carpeta. Programa: QuaZip; pruebas: un doble. Devuelve el mensaje del
// propio expansor si algo falla, nada si salió bien.
class ExpansorZip {
  public:
    virtual ~ExpansorZip() = default;
    virtual std::optional<std::string> Expandir(const std::filesystem::path& zip,
                                                const std::filesystem::path& carpeta) = 0;
};

}  // namespace quinteva::base
