#pragma once

#include <gtest/gtest.h>

#include <string>

#include "outputs/json_value.h"

namespace quinteva::pruebas {

// Ejecuta f y comprueba que lanza ErrorJson con ese número, origen "JsonBag" y texto.
template <typename F>
void EsperarErrorJson(F&& f, int numero, const std::string& texto) {
    try {
        f();
        ADD_FAILURE() << "no hubo error; se esperaba: " << texto;
    } catch (const outputs::ErrorJson& e) {
        EXPECT_EQ(e.Numero(), numero) << e.what();
        EXPECT_EQ(e.Origen(), "JsonBag");
        EXPECT_EQ(std::string(e.what()), texto);
    }
}

}  // namespace quinteva::pruebas
