#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quinteva::cli {

// Error de uso de la línea de órdenes: se explica en stderr y se sale con código 2.
struct ErrorDeUso {
    std::string texto;
};

// Opciones que acepta un subcomando: las que llevan valor y las que son solo una marca.
struct OpcionesAdmitidas {
    std::set<std::string, std::less<>> conValor;
    std::set<std::string, std::less<>> marcas;
};

// Los argumentos de un subcomando: posicionales y opciones "--nombre [valor]". --carpeta y --json
// se admiten siempre.
class Argumentos {
  public:
    Argumentos(const std::vector<std::string>& palabras, const OpcionesAdmitidas& admitidas);

    const std::vector<std::string>& Posicionales() const { return posicionales_; }
    std::optional<std::string> Valor(std::string_view opcion) const;
    bool Marca(std::string_view opcion) const { return marcas_.contains(std::string(opcion)); }
    bool Json() const { return Marca("json"); }
    // Exige exactamente n posicionales.
    void ExigirPosicionales(std::size_t n, std::string_view uso) const;
    // El valor de una opción que no puede faltar.
    std::string Exigir(std::string_view opcion, std::string_view uso) const;
    // --division, que no puede faltar: 1 o 2.
    int Division(std::string_view uso) const;

    // --semilla del azar: un entero sin signo; nada si no se dio. Mal escrita, ErrorDeUso.
    std::optional<std::uint64_t> Semilla() const;

    // La carpeta de trabajo: --carpeta, si no QUINTEVA_CARPETA, si no la del usuario.
    std::filesystem::path CarpetaTrabajo() const;

  private:
    std::vector<std::string> posicionales_;
    std::map<std::string, std::string, std::less<>> valores_;
    std::set<std::string, std::less<>> marcas_;
};

// Un número con decimales, con coma o con punto ("2,5", "2.5"); nada si el texto entero no lo es.
std::optional<double> NumeroDecimal(std::string texto);

// "a, b,c" da {"a", "b", "c"}, cada parte recortada.
std::vector<std::string> SepararPorComas(const std::string& lista);

}  // namespace quinteva::cli
