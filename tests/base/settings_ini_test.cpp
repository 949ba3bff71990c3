#include "base/settings_ini.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/support/temp_folder.h"

namespace quinteva::base {
namespace {

using pruebas::CarpetaTemporal;

std::string Contenido(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

TEST(AjustesIni, DevuelveElDefectoSiFalta) {
    CarpetaTemporal carpeta;
    const AjustesIni ajustes(carpeta.Ruta());
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Opciones", "PrecioApu15", "0.75"), "0.75");
}

TEST(AjustesIni, GuardaYLeePorAplicacionSeccionYClave) {
    CarpetaTemporal carpeta;
    AjustesIni ajustes(carpeta.Ruta());
    ajustes.Guardar(kAplicacion, "Opciones", "VerAp1", "1");
    ajustes.Guardar(kAplicacion, "Valores", "MaxJor1ª", "38");
    ajustes.Guardar(kAplicacion, "Valores", "NPeña", "La Peña del Bar");
    ajustes.Guardar(kAplicacionPrograma, "Program", "NVers", "210000");
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Opciones", "VerAp1", ""), "1");
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Valores", "MaxJor1ª", ""), "38");
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Valores", "NPeña", ""), "La Peña del Bar");
    EXPECT_EQ(ajustes.Leer(kAplicacionPrograma, "Program", "NVers", ""), "210000");
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Program", "NVers", "no"), "no");
}

TEST(AjustesIni, EscribeComoQSettings) {
    CarpetaTemporal carpeta;
    AjustesIni ajustes(carpeta.Ruta());
    ajustes.Guardar(kAplicacion, "Valores", "MaxJor1ª", "38");
    ajustes.Guardar(kAplicacion, "Opciones", "PrecioApu15", "0,75");
    ajustes.Guardar(kAplicacion, "Opciones", "Ult1", " C:\\Quinielas\\a \"b\".uxd");
    EXPECT_EQ(Contenido(carpeta / "Quinteva-07.ini"),
              "[Opciones]\n"
              "PrecioApu15=\"0,75\"\n"
              "Ult1=\" C:\\\\Quinielas\\\\a \\\"b\\\".uxd\"\n"
              "\n"
              "[Valores]\n"
              "MaxJor1%AA=38\n"
              "\n");
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Opciones", "PrecioApu15", ""), "0,75");
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Opciones", "Ult1", ""), " C:\\Quinielas\\a \"b\".uxd");
}

TEST(AjustesIni, LeeClavesEscapadasConU) {
    CarpetaTemporal carpeta;
    std::ofstream(carpeta / "Quinteva-07.ini") << "[Valores]\nClave%U20AC = \"x;y\"\n";
    const AjustesIni ajustes(carpeta.Ruta());
    EXPECT_EQ(ajustes.Leer(kAplicacion, "Valores", "Clave€", ""), "x;y");
}

}  // namespace
}  // namespace quinteva::base
