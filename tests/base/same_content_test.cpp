#include "base/same_content.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "base/atomic_write.h"
#include "base/error.h"
#include "tests/support/temp_folder.h"

namespace quinteva::base {
namespace {

std::vector<unsigned char> BytesAlAzar(std::size_t n, unsigned semilla) {
    std::mt19937 azar(semilla);
    std::vector<unsigned char> v(n);
    for (auto& b : v) b = static_cast<unsigned char>(azar());
    return v;
}

void Escribir(const std::filesystem::path& ruta, const std::vector<unsigned char>& bytes) {
    std::ofstream(ruta, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

std::vector<unsigned char> Leer(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

TEST(MismoContenido, SoloConLosMismosBytesYLaMismaLongitud) {
    pruebas::CarpetaTemporal carpeta;
    const auto bytes = BytesAlAzar((3 << 20) + 7, 1);
    Escribir(carpeta / "origen", bytes);
    Escribir(carpeta / "igual", bytes);
    EXPECT_TRUE(MismoContenido(carpeta / "origen", carpeta / "igual", bytes.size()));
    // Los primeros bytes del origen frente a una copia de solo esos.
    Escribir(carpeta / "corta", {bytes.begin(), bytes.begin() + 1000});
    EXPECT_TRUE(MismoContenido(carpeta / "origen", carpeta / "corta", 1000));
    EXPECT_FALSE(MismoContenido(carpeta / "origen", carpeta / "igual", 1000));
    // Un byte distinto en el último trozo.
    auto otro = bytes;
    otro.back() ^= 1;
    Escribir(carpeta / "otro", otro);
    EXPECT_FALSE(MismoContenido(carpeta / "origen", carpeta / "otro", bytes.size()));
    EXPECT_FALSE(MismoContenido(carpeta / "origen", carpeta / "falta", bytes.size()));
}

TEST(CopiarAtomicoViendo, CopiaCadaByteYLosEnseniaUnaVezEnOrden) {
    pruebas::CarpetaTemporal carpeta;
    const auto bytes = BytesAlAzar((2 << 20) + 12345, 7);
    Escribir(carpeta / "origen", bytes);
    std::vector<unsigned char> vistos;
    CopiarAtomicoViendo(
        carpeta / "origen", carpeta / "destino",
        [&](std::span<const unsigned char> t) { vistos.insert(vistos.end(), t.begin(), t.end()); });
    EXPECT_EQ(vistos, bytes);
    EXPECT_EQ(Leer(carpeta / "destino"), bytes);
    EXPECT_FALSE(std::filesystem::exists(RutaTemporalJunto(carpeta / "destino")));
}

TEST(CopiarAtomicoViendo, SinOrigenEsUnErrorYElDestinoQuedaComoEstaba) {
    pruebas::CarpetaTemporal carpeta;
    Escribir(carpeta / "destino", {1, 2, 3});
    EXPECT_THROW(CopiarAtomicoViendo(carpeta / "falta", carpeta / "destino",
                                     [](std::span<const unsigned char>) {}),
                 Error);
    EXPECT_EQ(Leer(carpeta / "destino"), (std::vector<unsigned char>{1, 2, 3}));
    EXPECT_FALSE(std::filesystem::exists(RutaTemporalJunto(carpeta / "destino")));
}

}  // namespace
}  // namespace quinteva::base
