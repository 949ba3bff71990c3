#include "base/program_data.h"

#include <gtest/gtest.h>

namespace quinteva::base {
namespace {

TEST(DatosPrograma, CuelganDelMismoPrefijoQueLosEjecutables) {
    EXPECT_EQ(CarpetaDatosPrograma("/usr/bin"), "/usr/share/quinteva");
    EXPECT_EQ(CarpetaDatosPrograma("/opt/quinteva/bin/"), "/opt/quinteva/share/quinteva");
    // En el árbol de compilación: build/dev/app/quinteva y build/dev/cli/quinteva-cli.
    EXPECT_EQ(CarpetaDatosPrograma("/src/build/dev/app"), "/src/build/dev/share/quinteva");
    EXPECT_EQ(CarpetaDatosPrograma("/src/build/dev/cli"), "/src/build/dev/share/quinteva");
}

TEST(DatosPrograma, LaCarpetaDelEjecutableEsLaDeEstaPrueba) {
    const auto carpeta = CarpetaEjecutable();
    EXPECT_TRUE(carpeta.is_absolute());
    EXPECT_TRUE(std::filesystem::exists(carpeta / "prueba_base"));
}

}  // namespace
}  // namespace quinteva::base
