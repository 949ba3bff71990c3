// quinteva-cli aciertos sobre una Combinación, un archivo oficial y un AD243.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "engine/combination_files.h"
#include "tests/cli/cli_runner.h"
#include "tests/outputs/column_files.h"
#include "tests/support/temp_folder.h"

namespace quinteva {
namespace {

std::string Q(const std::filesystem::path& p) { return "'" + p.string() + "'"; }

engine::RegistroColumna Columna(const std::string& signos, const std::string& pleno = "1M",
                                char estado = engine::kActiva) {
    return {engine::ColumnaDeTexto(signos), engine::PlenoDeTexto(pleno), estado};
}

class CliAciertos : public ::testing::Test {
  protected:
    pruebas::CarpetaTemporal carpeta;

    CliAciertos() {
        engine::RegistroCabecera cabecera;
        cabecera.jornada = 7;
        cabecera.jugada = "cnd";
        const auto bytes = cabecera.ABytes();
        std::ofstream(carpeta / "q.uxd", std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        const std::vector<engine::RegistroColumna> columnas = {
            Columna("1X21X111111111"), Columna("1X21X111111112"),
            Columna("1X21X111111111", "1M", engine::kEliminada), Columna("2222X111111111"),
            Columna("XXXXXXXXXXXXXX")};
        pruebas::EscribirColumnas(carpeta / "q.cnd", columnas);
    }

    pruebas::Salida Aciertos(const std::string& resto) {
        return pruebas::EjecutarCli("aciertos " + resto + " --carpeta " + Q(carpeta.Ruta()));
    }
};

TEST_F(CliAciertos, CuentasYColumnasDeUnaCombinacion) {
    const auto r =
        Aciertos(Q(carpeta / "q.uxd") + " --ganadora 1x21X111111111 --pleno 1-m --columnas");
    EXPECT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.salida,
              "Quince Aciertos: 1 \nCatorce Aciertos: 1 \nTrece Aciertos: 1 \n"
              "Doce Aciertos: 0 \nOnce Aciertos: 1 \nDiez Aciertos: 0 \nNueve Aciertos: 0 \n"
              "Boleto\tColumna\tAciertos\n1\t1\t15\n1\t1\t14\n1\t2\t13\n1\t3\t11\n");
}

TEST_F(CliAciertos, SalidaJsonYAvance) {
    auto r = Aciertos(Q(carpeta / "q.uxd") + " --ganadora 1X21X111111111 --pleno 1-M --json");
    EXPECT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.salida,
              "{\"Quince Aciertos\": 1, \"Catorce Aciertos\": 1, \"Trece Aciertos\": 1, \"Doce "
              "Aciertos\": 0, \"Once Aciertos\": 1, \"Diez Aciertos\": 0, \"Nueve Aciertos\": "
              "0}\n");
    r = Aciertos(Q(carpeta / "q.uxd") + " --ganadora '1X21X---------' --pleno 1-M --avance");
    EXPECT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.salida,
              "Quince Aciertos: 2 \nCatorce Aciertos: 2 \nTrece Aciertos: 2 \n"
              "Doce Aciertos: 2 \nOnce Aciertos: 4 \nDiez Aciertos: 4 \nNueve Aciertos: 4 \n");
}

TEST_F(CliAciertos, ArchivoOficialYAD243) {
    const std::string combinacion = ".1=1,X,2,1,X,1,1,1,1,1,1,1,1,1:.1=1-M";
    std::ofstream(carpeta / "o.json")
        << "{\"asm\":{\"cabecera\":{\"idSorteo\":\"2024/007\"},\"apuestas\":[{\"combinacion\":\""
        << combinacion << "\",\"numApuestas\":1}]}}";
    auto r = Aciertos(Q(carpeta / "o.json") +
                      " --ganadora 1X21X111111111 --pleno 1-M --jornada 7 --anio 2024");
    EXPECT_EQ(r.codigo, 0) << r.errores;
    EXPECT_TRUE(r.salida.starts_with("Quince Aciertos: 1 \nCatorce Aciertos: 1 \n")) << r.salida;
    EXPECT_EQ(r.errores, "Comprobación finalizada.\n");
    r = Aciertos(Q(carpeta / "o.json") +
                 " --ganadora 1X21X111111111 --pleno 1-M --jornada 7 --anio 2023");
    EXPECT_EQ(r.codigo, 1);
    EXPECT_EQ(r.errores, "El archivo no corresponde a la fecha de la Jornada nº 7\n");

    std::string ad243(124, ' ');
    ad243.replace(0, 8,
                  "C01243"
                  "07");
    std::string boleto(124, ' ');
    boleto.replace(10, 14, "1X21X111111111");
    boleto.replace(122, 2, "0M");
    std::ofstream(carpeta / "a.dat", std::ios::binary) << ad243 << boleto;
    r = Aciertos(Q(carpeta / "a.dat") + " --ganadora 1X21X111111111 --pleno 1-M --jornada 7");
    EXPECT_EQ(r.codigo, 0) << r.errores;
    EXPECT_TRUE(r.salida.starts_with("Quince Aciertos: 0 \nCatorce Aciertos: 1 \n")) << r.salida;
    std::ofstream(carpeta / "a.dat", std::ios::binary) << ad243 << boleto << 'x';
    r = Aciertos(Q(carpeta / "a.dat") + " --ganadora 1X21X111111111 --pleno 1-M --jornada 7");
    EXPECT_EQ(r.codigo, 1);
    EXPECT_EQ(r.errores,
              "El archivo que se quiere importar no es un archivo AD243 o es erróneo.\n");
}

TEST_F(CliAciertos, ErroresDeUso) {
    const std::string uxd = Q(carpeta / "q.uxd");
    EXPECT_EQ(Aciertos(uxd + " --ganadora 1X21X1111111 --pleno 1-M").codigo, 2);
    EXPECT_EQ(Aciertos(uxd + " --ganadora 1X21X11111111- --pleno 1-M").codigo, 2);
    EXPECT_EQ(Aciertos(uxd + " --ganadora 1X21X111111111").codigo, 2);
    EXPECT_EQ(Aciertos(uxd + " --ganadora 1X21X111111111 --pleno 3-1").codigo, 2);
    std::ofstream(carpeta / "a.dat") << "C01243";
    EXPECT_EQ(Aciertos(Q(carpeta / "a.dat") + " --ganadora 1X21X111111111 --pleno 1-M").codigo, 2);
    EXPECT_EQ(
        Aciertos(Q(carpeta / "a.dat") + " --ganadora 1X21X111111111 --pleno 1-M --avance").codigo,
        2);
}

}  // namespace
}  // namespace quinteva
