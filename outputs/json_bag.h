#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "outputs/json_value.h"

namespace quinteva::outputs {

// La clave de Item, Exists y Remove: nula, un nombre o un índice (desde 1).
using Clave = std::variant<std::monostate, std::string, std::int32_t>;

// La única clase JSON del sistema: un objeto o un array ordenado, que lee un texto JSON entero a
// un árbol de bolsas y lo vuelve a escribir. No es un analizador general: sus tolerancias, sus
// errores (número, origen "JsonBag" y texto), el orden de sus miembros y las rarezas de Exists,
// Remove e Item son parte del comportamiento y se mantienen tal cual.
class JsonBag {
  public:
    JsonBag();
    JsonBag(const JsonBag&) = delete;
    JsonBag& operator=(const JsonBag&) = delete;
    JsonBag(JsonBag&&) = default;
    JsonBag& operator=(JsonBag&&) = default;
    ~JsonBag();

    // Con true, JSON sale sangrado y en varias líneas. Solo se mira en la bolsa que se serializa.
    bool Whitespace = false;

    std::int32_t Count() const { return static_cast<std::int32_t>(valores_.size()); }

    bool DecimalMode() const { return decimal_; }
    void DecimalMode(bool decimal) { decimal_ = decimal; }

    bool IsArray() const { return esArray_; }
    void IsArray(bool esArray);

    // Una bolsa hija vuelve como referencia (el shared_ptr); lo demás, por valor.
    const Valor& Item(const Clave& clave = {}) const;
    void Item(const Clave& clave, Valor valor);

    std::string JSON() const;
    void JSON(std::string_view texto);

    const std::string& Name(std::int32_t indice) const;
    static std::vector<std::string> Version();

    JsonBag& AddNewArray(const Clave& clave = {});
    JsonBag& AddNewObject(const Clave& clave = {});
    void Clear();
    bool Exists(const Clave& clave) const;
    const std::vector<std::string>& NewEnum() const;
    void Remove(const Clave& clave);

    // La clave con que se guarda un nombre en la lista: 8 cifras hexadecimales de un resumen de
    // 4 bytes de sus unidades UTF-16 y el nombre. Exists solo encuentra esto, no el nombre solo.
    static std::string ClaveDeBusqueda(std::string_view nombre);

    // La bolsa hija guardada en la clave; ErrorJson 13 si el valor no es una bolsa.
    JsonBag& Hija(const Clave& clave) const;

  private:
    friend class AnalizadorJson;

    std::size_t Posicion(std::int32_t indice) const;
    std::optional<std::size_t> Buscar(const std::string& nombre) const;
    std::size_t PosicionDeNombre(const std::string& nombre) const;
    void Quitar(std::size_t posicion);
    void Anadir(std::string nombre, Valor valor);
    JsonBag& Nueva(const Clave& clave, bool esArray);

    std::vector<std::string> nombres_;
    std::vector<Valor> valores_;
    // Nombre -> posición, para que los objetos grandes no sean cuadráticos; en los pequeños (un
    // Boleto tiene seis miembros) se busca en la lista, que es más rápido.
    static constexpr std::size_t kMiembrosSinIndice = 16;
    std::unordered_map<std::string, std::size_t> indice_;
    bool esArray_ = false;
    bool decimal_ = false;
};

}  // namespace quinteva::outputs
