// quinteva-cli ajustar, eliminar, jugar-todas y texto, ejecutado de verdad con una carpeta propia.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "base/record_files.h"
#include "builders/adjustment.h"
#include "builders/merge.h"
#include "engine/combination_files.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva {
namespace {

std::string Q(const std::filesystem::path& p) { return "'" + p.string() + "'"; }

std::string Bytes(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

int Activas(const std::filesystem::path& ruta) {
    const base::ArchivoDe<engine::RegistroColumna> archivo(ruta);
    int activas = 0;
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n)
        activas += archivo.Leer(n).Activa() ? 1 : 0;
    return activas;
}

// Una Combinación de 72 columnas generadas, con sus almacenes en "trabajo".
class CliBoletos : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(pruebas::EjecutarCli("nueva " + Q(uxd) +
                                       " --base \"1x2 1 X 12 1X2 1 1 2 X 1X x2 1 1 1\" "
                                       "--pleno 1-m --carpeta " +
                                       Q(trabajo))
                      .codigo,
                  0);
        ASSERT_EQ(pruebas::EjecutarCli("generar " + Q(uxd) + " --carpeta " + Q(trabajo)).codigo, 0);
    }
    pruebas::Salida Cli(const std::string& argumentos) {
        return pruebas::EjecutarCli(argumentos, "QUINTEVA_CARPETA=" + Q(ajenos));
    }

    pruebas::CarpetaTemporal carpeta;
    std::filesystem::path uxd = carpeta / "J1.uxd";
    std::filesystem::path cnd = carpeta / "J1.cnd";
    std::filesystem::path trabajo = carpeta / "trabajo";
    // La carpeta de un programa abierto: la línea de órdenes no debe tocar sus almacenes.
    std::filesystem::path ajenos = carpeta / "ajenos";
};

TEST_F(CliBoletos, AjustarArribaYAbajoSinTocarLosAlmacenesAjenos) {
    auto r = Cli("ajustar " + Q(uxd) + " --juego cnd --apuestas 40");
    ASSERT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.salida, std::string(builders::kPreguntaBajar) +
                            " [Sí]\nCondicionada\nApuestas que se juegan en total: 40\nPrecio: "
                            "30,00 Euros\n");
    EXPECT_EQ(Activas(cnd), 40);
    EXPECT_EQ(std::filesystem::file_size(cnd), 72U * 17U);
    const auto cabecera = engine::LeerCabecera(uxd);
    EXPECT_EQ(cabecera.jugada, "cnd");
    EXPECT_EQ(cabecera.condicionada, 40);
    EXPECT_FALSE(std::filesystem::exists(ajenos / "Cmb.tmp"));

    r = Cli("ajustar " + Q(uxd) + " --juego cnd --apuestas 66 --json");
    ASSERT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.salida,
              "{\"Jugada\": \"cnd\", \"Apuestas\": 66, \"Precio\": 49.5, \"Mensajes\": [\"" +
                  std::string(builders::kPreguntaMuyAjustada) + " [Sí]\"]}\n");
    EXPECT_EQ(Activas(cnd), 66);
    EXPECT_EQ(std::filesystem::file_size(cnd), 72U * 17U) << "revive, no añade";
}

TEST_F(CliBoletos, UnNumeroRechazadoDaElMensajeYCodigoUno) {
    const std::string antes = Bytes(cnd);
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"0", std::string(builders::kMsgFaltaNumero)},
        {"33", builders::MsgBoletoDeUna(33)},
        {"80", std::string(builders::kMsgBaseCorta)},
    };
    for (const auto& [n, mensaje] : casos) {
        const auto r = Cli("ajustar " + Q(uxd) + " --juego cnd --apuestas " + n);
        EXPECT_EQ(r.codigo, 1) << n;
        EXPECT_EQ(r.errores, "Error: " + mensaje + "\n");
        EXPECT_EQ(Bytes(cnd), antes);
    }
    const auto r = Cli("ajustar " + Q(uxd) + " --juego cnd --apuestas 72");
    EXPECT_EQ(r.codigo, 0);
    EXPECT_EQ(r.salida.substr(0, r.salida.find('\n')), builders::MsgYaAjustada(72));
}

TEST_F(CliBoletos, SinRedOSinColumnasGuardadas) {
    auto r = Cli("ajustar " + Q(uxd) + " --juego red --apuestas 16");
    EXPECT_EQ(r.codigo, 1);
    EXPECT_NE(r.errores.find("J1.red"), std::string::npos) << r.errores;
    EXPECT_FALSE(std::filesystem::exists(carpeta / "J1.red"));

    const auto vacia = carpeta / "J2.uxd";
    ASSERT_EQ(pruebas::EjecutarCli("nueva " + Q(vacia) +
                                   " --base \"1 1 1 1 1 1 1 1 1 1 1 1 1 12\" "
                                   "--pleno 0-0 --carpeta " +
                                   Q(trabajo))
                  .codigo,
              0);
    const std::string cabecera = Bytes(vacia);
    r = Cli("ajustar " + Q(vacia) + " --juego cnd --apuestas 2");
    EXPECT_EQ(r.codigo, 1);
    EXPECT_NE(r.errores.find("J2.cnd"), std::string::npos) << r.errores;
    EXPECT_EQ(Bytes(vacia), cabecera);
    r = Cli("texto " + Q(vacia) + " --formato continuo --salida " + Q(carpeta / "v.txt"));
    EXPECT_EQ(r.codigo, 1);
    EXPECT_EQ(r.errores, "Error: " + std::string(builders::kMsgSinBoletos) + "\n");
}

TEST_F(CliBoletos, UnCndCortadoNoSeToca) {
    std::ofstream(cnd, std::ios::binary | std::ios::app) << "1X2";
    const std::string antes = Bytes(cnd);
    const std::string cabecera = Bytes(uxd);
    const auto r = Cli("ajustar " + Q(uxd) + " --juego cnd --apuestas 16");
    EXPECT_EQ(r.codigo, 1);
    EXPECT_NE(r.errores.find("J1.cnd"), std::string::npos) << r.errores;
    EXPECT_EQ(Bytes(cnd), antes);
    EXPECT_EQ(Bytes(uxd), cabecera);
}

TEST_F(CliBoletos, EliminarPorReglaYJugarTodas) {
    // Los 72: 3 x 2 x 3 x 2 x 2 signos libres en los partidos 1, 4, 5, 10 y 11; con más de una X
    // entre ellos se eliminan.
    auto r = Cli("eliminar " + Q(uxd) + " --juego cnd --regla mas 1 equis --carpeta " + Q(trabajo));
    ASSERT_EQ(r.codigo, 0) << r.errores;
    int esperadas = 0;
    const base::ArchivoDe<engine::RegistroColumna> archivo(cnd);
    for (std::int32_t n = 1; n <= 72; ++n) {
        const auto c = archivo.Leer(n).columna;
        esperadas += std::count(c.begin(), c.end(), 'X') <= 1 ? 1 : 0;
    }
    EXPECT_EQ(Activas(cnd), esperadas);
    EXPECT_NE(r.salida.find("Apuestas que se juegan en total: " + std::to_string(esperadas)),
              std::string::npos)
        << r.salida;

    r = Cli("jugar-todas " + Q(uxd) + " --juego cnd --json");
    ASSERT_EQ(r.codigo, 0) << r.errores;
    EXPECT_EQ(r.salida,
              "{\"Jugada\": \"cnd\", \"Apuestas\": 72, \"Precio\": 54, \"Mensajes\": []}\n");
    EXPECT_EQ(Activas(cnd), 72);
}

TEST_F(CliBoletos, TextoEnLasTresFormas) {
    ASSERT_EQ(Cli("ajustar " + Q(uxd) + " --juego cnd --apuestas 16").codigo, 0);
    const base::ArchivoDe<engine::RegistroColumna> archivo(cnd);
    std::string continuo;
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) {
        const auto r = archivo.Leer(n);
        if (r.Activa()) continuo += engine::TextoDeColumna(r.columna) + "1M";
    }
    const auto salida = carpeta / "cols.txt";
    for (const std::string formato : {"separadores", "columna", "continuo"}) {
        const auto r = Cli("texto " + Q(uxd) + " --formato " + formato + " --salida " + Q(salida));
        ASSERT_EQ(r.codigo, 0) << r.errores;
        // La primera vez no existe; luego se contesta Sí a sobrescribirlo.
        const std::string pregunta =
            formato == "separadores" ? "" : std::string(builders::kPreguntaTxtExiste) + " [Sí]\n";
        EXPECT_EQ(r.salida, pregunta + "Escritas 16 columnas en " + salida.string() + "\n");
    }
    EXPECT_EQ(Bytes(salida), continuo);
    EXPECT_EQ(Cli("texto " + Q(uxd) + " --formato columna --salida " + Q(salida)).codigo, 0);
    EXPECT_EQ(std::filesystem::file_size(salida), 16U * 18U);
    EXPECT_EQ(Bytes(salida).substr(0, 18), continuo.substr(0, 16) + "\r\n");
}

TEST_F(CliBoletos, ErroresDeUso) {
    for (const std::string& args :
         {"ajustar " + Q(uxd) + " --juego xyz --apuestas 16", "ajustar " + Q(uxd) + " --juego cnd",
          "eliminar " + Q(uxd) + " --juego cnd --regla casi 3 unos",
          "eliminar " + Q(uxd) + " --juego cnd --regla mas 15 unos",
          "eliminar " + Q(uxd) + " --juego cnd --regla mas 3 treses",
          "texto " + Q(uxd) + " --formato otro --salida x.txt"}) {
        const auto r = Cli(args);
        EXPECT_EQ(r.codigo, 2) << args;
        EXPECT_FALSE(r.errores.empty());
    }
    EXPECT_EQ(engine::LeerCabecera(uxd).jugada, "   ") << "nada se eligió";
}

}  // namespace
}  // namespace quinteva
