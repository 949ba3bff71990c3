// quinteva-cli ponderar: las marcas de un partido como opciones, los dos pesos.
#include <gtest/gtest.h>

#include "tests/cli/cli_runner.h"

namespace quinteva::pruebas {
namespace {

TEST(CliPonderar, LosPesosDeLasMarcas) {
    const Salida s = EjecutarCli(
        "ponderar --local-bajas-importantes --local-arbitro-no-le-favorece --visitante-favorables");
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida, "Local: -12\nVisitante: 8\n");
    // La misma circunstancia para los dos: la del visitante, que va después, quita la del local.
    const Salida ambos = EjecutarCli("ponderar --local-favorables --visitante-favorables --json");
    EXPECT_EQ(ambos.salida, "{\"PesoLocal\": 0, \"PesoVisitante\": 8}\n");
    EXPECT_EQ(EjecutarCli("ponderar --local-nada").codigo, 2);
}

}  // namespace
}  // namespace quinteva::pruebas
