// quinteva-cli pena: una Peña de la temporada de demostración jugada de principio a fin.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/cli/cli_runner.h"
#include "tests/support/file_bytes.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

struct PenaDeDemostracion {
    CarpetaTemporal trabajo;
    std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    PenaDeDemostracion() { EjecutarCli("demo" + carpeta); }
    Salida Pena(const std::string& orden) { return EjecutarCli("pena " + orden + carpeta); }
};

TEST(CliPena, UnaJornadaCerradaYRepartidaConSusInformes) {
    PenaDeDemostracion d;
    const Salida creada = d.Pena("nueva 'Peña Los Amigos' --corto 'Los Amigos'");
    ASSERT_EQ(creada.codigo, 0) << creada.errores;
    EXPECT_NE(creada.salida.find("Temporada 23-24/LosAmigos"), std::string::npos);
    EXPECT_EQ(d.Pena("nueva 'Otra' --corto LosAmigos").errores,
              "Ya existe otra Peña con este mismo nombre reducido. Debe poner otro.\n");
    for (const char* n : {"Alba Gil", "Benito Sanz", "Carmen Ruiz"}) {
        ASSERT_EQ(d.Pena(std::string("apostante LosAmigos --nombre '") + n + "'").codigo, 0);
        ASSERT_EQ(d.Pena(std::string("cuotas LosAmigos --apostante '") + n +
                         "' --importe 1 --desde 12 --hasta 14")
                      .codigo,
                  0);
    }
    const Salida repetido = d.Pena("apostante LosAmigos --nombre 'ALBA GIL'");
    EXPECT_EQ(repetido.codigo, 1);
    EXPECT_EQ(repetido.errores,
              "El apostante ALBA GIL ya existe en la base de datos y no puede haber dos "
              "apostantes con el mismo nombre y apellidos.\n");
    // 3 columnas a 0,75 no son los 3,00 que juegan: no se cierra.
    const Salida distinto = d.Pena("jornada LosAmigos --jornada 12 --columnas 3 --cerrar");
    EXPECT_EQ(distinto.codigo, 1);
    EXPECT_EQ(distinto.errores,
              "El importe que juegan los apostantes tiene que ser igual al importe de las "
              "columnas jugadas.\n");
    const Salida jornada = d.Pena(
        "jornada LosAmigos --jornada 12 --columnas 4 --acertadas 0,0,0,0,0,1 --premios "
        "0,0,0,0,0,100 --cerrar --distribuir --json");
    ASSERT_EQ(jornada.codigo, 0) << jornada.errores;
    EXPECT_NE(jornada.salida.find("\"Estado\": \"Cerrada\""), std::string::npos);
    EXPECT_NE(jornada.salida.find("{\"Nombre\": \"Carmen Ruiz\", \"Jugado\": \"1,00\", "
                                  "\"Participacion\": \"33,333\", \"Obtenido\": \"33,34\"}"),
              std::string::npos)
        << jornada.salida;
    // Cerrada, las columnas no se tocan.
    EXPECT_EQ(d.Pena("jornada LosAmigos --jornada 12 --columnas 8").errores,
              "La Jornada está cerrada, tiene que abrirla si desea modificar datos.\n");
    // La cuota de una Jornada cerrada no se cambia.
    EXPECT_EQ(d.Pena("cuotas LosAmigos --apostante 'Alba Gil' --importe 2 --desde 12").errores,
              "La jornada 12 está cerrada y no se pueden modificar sus datos mientras no se "
              "abra.\n");
    const Salida informe = d.Pena("informe LosAmigos --json");
    EXPECT_EQ(informe.salida.rfind(
                  "{\"JornadasJugadas\": 1, \"Invertido\": \"3,00\", \"Obtenido\": "
                  "\"100,00\", \"Gastos\": \"0,00\", \"Resultado\": \"97,00\", \"Porcentaje\": "
                  "\"3.233,33% \"",
                  0),
              0U)
        << informe.salida;
    const Salida apostante = d.Pena("informe LosAmigos --apostante 'carmen ruiz' --json");
    EXPECT_NE(apostante.salida.find("\"Obtenido\": \"33,34\""), std::string::npos);
    // El PDF de las cuentas, leído con pdftotext.
    const auto pdf = d.trabajo / "informe.pdf";
    ASSERT_EQ(d.Pena("informe LosAmigos --pdf '" + pdf.string() + "'").codigo, 0);
    const auto txt = d.trabajo / "informe.txt";
    ASSERT_EQ(std::system(("pdftotext '" + pdf.string() + "' '" + txt.string() + "'").c_str()), 0);
    const std::string texto = BytesDeArchivo(txt);
    for (const char* esperado :
         {"Detalle de Jornadas jugadas", "Peña Los Amigos", "97,00", "Página 1", "Temp. 23/24"}) {
        EXPECT_NE(texto.find(esperado), std::string::npos) << esperado;
    }
    EXPECT_EQ(d.Pena("informe NoExiste").codigo, 1);
    EXPECT_EQ(d.Pena("jornada LosAmigos --jornada 71").codigo, 2);
}

}  // namespace
}  // namespace quinteva::pruebas
