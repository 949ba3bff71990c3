#pragma once

#include <map>
#include <string>
#include <tuple>

#include "base/settings.h"

namespace quinteva::pruebas {

// Ajustes en memoria, para las pruebas.
class AjustesEnMemoria : public base::Ajustes {
  public:
    std::string Leer(std::string_view aplicacion, std::string_view seccion, std::string_view clave,
                     std::string_view defecto) const override {
        const auto v = valores_.find(Clave(aplicacion, seccion, clave));
        return v == valores_.end() ? std::string(defecto) : v->second;
    }
    void Guardar(std::string_view aplicacion, std::string_view seccion, std::string_view clave,
                 std::string_view valor) override {
        valores_[Clave(aplicacion, seccion, clave)] = valor;
    }

  private:
    using Triple = std::tuple<std::string, std::string, std::string>;
    static Triple Clave(std::string_view a, std::string_view s, std::string_view c) {
        return {std::string(a), std::string(s), std::string(c)};
    }
    std::map<Triple, std::string> valores_;
};

}  // namespace quinteva::pruebas
