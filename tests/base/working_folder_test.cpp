#include "base/working_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "base/error.h"
#include "tests/support/temp_folder.h"

namespace quinteva::base {
namespace {

using pruebas::CarpetaTemporal;

TEST(CarpetaTrabajo, LaIndicadaManda) {
    ::setenv(kVariableCarpeta, "/tmp/por-variable", 1);
    EXPECT_EQ(ResolverCarpetaTrabajo(std::filesystem::path("/tmp/indicada")), "/tmp/indicada");
    EXPECT_EQ(ResolverCarpetaTrabajo(), "/tmp/por-variable");
    ::unsetenv(kVariableCarpeta);
    EXPECT_EQ(ResolverCarpetaTrabajo(), CarpetaDatosUsuario());
    EXPECT_EQ(CarpetaDatosUsuario().filename(), "Quinteva");
}

TEST(CarpetaTrabajo, SeCreaSiFalta) {
    CarpetaTemporal carpeta;
    AsegurarCarpeta(carpeta / "a" / "Quinteva");
    EXPECT_TRUE(std::filesystem::is_directory(carpeta / "a" / "Quinteva"));
}

TEST(CarpetaTrabajo, SiNoSePuedeCrearLoDice) {
    CarpetaTemporal carpeta;
    std::ofstream(carpeta / "archivo") << "x";
    try {
        AsegurarCarpeta(carpeta / "archivo" / "Quinteva");
        FAIL() << "debía fallar";
    } catch (const Error& e) {
        EXPECT_STREQ(e.what(), "No se pudo crear el directorio de trabajo");
    }
}

}  // namespace
}  // namespace quinteva::base
