#include "base/record_files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "base/atomic_write.h"
#include "base/error.h"
#include "tests/support/temp_folder.h"

namespace quinteva::base {
namespace {

using pruebas::CarpetaTemporal;

std::string Contenido(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

std::array<Byte, 4> Registro(char c) { return {Byte(c), Byte(c), Byte(c), Byte(c)}; }

TEST(ArchivoRegistros, AbrirCreaUnArchivoVacio) {
    CarpetaTemporal carpeta;
    const auto ruta = carpeta / "Jlig2.rar";
    ArchivoRegistros archivo(ruta, 51);
    EXPECT_TRUE(std::filesystem::exists(ruta));
    EXPECT_EQ(std::filesystem::file_size(ruta), 0U);
    EXPECT_EQ(archivo.Cuenta(), 0);
}

TEST(ArchivoRegistros, EscribeHastaCuentaMasUnoYLee) {
    CarpetaTemporal carpeta;
    ArchivoRegistros archivo(carpeta / "a.rar", 4);
    archivo.Escribir(1, Registro('a'));
    archivo.Anadir(Registro('b'));
    archivo.Escribir(1, Registro('c'));
    EXPECT_EQ(archivo.Cuenta(), 2);
    EXPECT_EQ(archivo.Leer(1), std::vector<Byte>(4, 'c'));
    EXPECT_EQ(archivo.Leer(2), std::vector<Byte>(4, 'b'));
    EXPECT_THROW(archivo.Escribir(4, Registro('d')), Error);
    EXPECT_THROW(archivo.Leer(3), Error);
    EXPECT_THROW(archivo.Leer(0), Error);
    archivo.Cerrar();
    EXPECT_EQ(Contenido(carpeta / "a.rar"), "ccccbbbb");
}

TEST(ArchivoRegistros, UnaLongitudQueNoEsMultiploRedondeaHaciaAbajo) {
    CarpetaTemporal carpeta;
    const auto ruta = carpeta / "corto.rar";
    std::ofstream(ruta, std::ios::binary) << "aaaabbbbcc";
    ArchivoRegistros archivo(ruta, 4);
    EXPECT_EQ(archivo.Cuenta(), 2);
    EXPECT_EQ(CuentaRegistros(ruta, 4), 2);
    EXPECT_EQ(archivo.Leer(2), std::vector<Byte>(4, 'b'));
}

TEST(ArchivoRegistros, CuentaSinCrear) {
    CarpetaTemporal carpeta;
    EXPECT_EQ(CuentaRegistros(carpeta / "no.rar", 13), 0);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "no.rar"));
}

TEST(ArchivoRegistros, UnaCarpetaQueNoExisteEsUnErrorClaro) {
    CarpetaTemporal carpeta;
    try {
        ArchivoRegistros archivo(carpeta / "falta" / "x.rar", 4);
        FAIL() << "debía fallar";
    } catch (const Error& e) {
        EXPECT_TRUE(std::string(e.what()).starts_with("No se encontró la ruta de acceso"));
    }
}

TEST(AnexadorRegistros, DejaLosMismosBytesQueAnadirUnoAUno) {
    CarpetaTemporal carpeta;
    {
        ArchivoRegistros uno(carpeta / "uno.tmp", 4);
        AnexadorRegistros masivo(carpeta / "masivo.tmp", 4);
        for (int i = 0; i < 300000; ++i) {
            const auto r = Registro(static_cast<char>('a' + i % 26));
            if (i < 2000) uno.Anadir(r);
            masivo.Anadir(r);
        }
        EXPECT_EQ(masivo.Cuenta(), 300000);
        masivo.Cerrar();
    }
    const std::string masivo = Contenido(carpeta / "masivo.tmp");
    EXPECT_EQ(masivo.size(), 1200000U);
    EXPECT_EQ(masivo.substr(0, 8000), Contenido(carpeta / "uno.tmp"));
}

TEST(AnexadorRegistros, SigueDetrasDeLoQueHabia) {
    CarpetaTemporal carpeta;
    const auto ruta = carpeta / "Cmb.tmp";
    std::ofstream(ruta, std::ios::binary) << "aaaab";  // un registro y un byte suelto
    AnexadorRegistros anexador(ruta, 4);
    EXPECT_EQ(anexador.Cuenta(), 1);
    anexador.Anadir(Registro('z'));
    anexador.Cerrar();
    EXPECT_EQ(Contenido(ruta), "aaaazzzz");
}

TEST(AnexadorRegistros, ElDiscoLlenoEsUnError) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "sin /dev/full";
    AnexadorRegistros anexador("/dev/full", 4);
    for (int i = 0; i < 10; ++i) anexador.Anadir(Registro('a'));
    try {
        anexador.Cerrar();
        FAIL() << "debía fallar";
    } catch (const Error& e) {
        EXPECT_STREQ(e.what(), "Disco lleno");
    }
}


TEST(LectorRegistros, LeeTodoEnOrdenYNadaMas) {
    pruebas::CarpetaTemporal carpeta;
    const auto ruta = carpeta / "Cmb.tmp";
    {
        AnexadorRegistros anexador(ruta, 3);
        for (int i = 0; i < 100000; ++i) {
            const std::array<Byte, 3> r{Byte(i & 0xFF), Byte((i >> 8) & 0xFF), Byte(i >> 16)};
            anexador.Anadir(r);
        }
        anexador.Cerrar();
    }
    std::ofstream(ruta, std::ios::binary | std::ios::app) << "x";  // un byte suelto al final
    LectorRegistros lector(ruta, 3);
    EXPECT_EQ(lector.Cuenta(), 100000);
    int n = 0;
    for (auto r = lector.Siguiente(); !r.empty(); r = lector.Siguiente()) {
        ASSERT_EQ(r[0] | (r[1] << 8) | (r[2] << 16), n);
        ++n;
    }
    EXPECT_EQ(n, 100000);
}

TEST(LectorRegistros, NoCreaElArchivo) {
    pruebas::CarpetaTemporal carpeta;
    EXPECT_THROW(LectorRegistros(carpeta / "no.tmp", 17), Error);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "no.tmp"));
}

TEST(EscribirAtomico, ReemplazaEnteroYUnVacioDejaUnArchivoVacio) {
    pruebas::CarpetaTemporal carpeta;
    const auto ruta = carpeta / "a.uxd";
    EscribirAtomico(ruta, "antes");
    EscribirAtomico(ruta, "despues");
    EXPECT_EQ(Contenido(ruta), "despues");
    EscribirAtomico(ruta, std::string_view());
    EXPECT_EQ(std::filesystem::file_size(ruta), 0U);
    EXPECT_FALSE(std::filesystem::exists(RutaTemporalJunto(ruta)));
}

TEST(EscribirAtomico, SiFallaElArchivoAnteriorQueda) {
    pruebas::CarpetaTemporal carpeta;
    const auto ruta = carpeta / "a.uxd";
    EscribirAtomico(ruta, "del usuario");
    std::filesystem::create_directory(RutaTemporalJunto(ruta));  // el temporal no se puede abrir
    EXPECT_THROW(EscribirAtomico(ruta, "nuevo"), Error);
    EXPECT_EQ(Contenido(ruta), "del usuario");
}

}  // namespace
}  // namespace quinteva::base
