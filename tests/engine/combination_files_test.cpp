#include "engine/combination_files.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include "base/error.h"
#include "engine/generation.h"
#include "tests/engine/random_conditions.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::engine {
namespace {

using base::Byte;

std::uint8_t U8(const std::array<Byte, 5189>& b, std::size_t p) { return b[p]; }
std::int16_t I16(const std::array<Byte, 5189>& b, std::size_t p) {
    return static_cast<std::int16_t>(b[p] | (b[p + 1] << 8));
}
std::int32_t I32(const std::array<Byte, 5189>& b, std::size_t p) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(b[p]) | (b[p + 1] << 8) |
                                     (b[p + 2] << 16) |
                                     (static_cast<std::uint32_t>(b[p + 3]) << 24));
}
std::string Txt(const std::array<Byte, 5189>& b, std::size_t p, std::size_t n) {
    return std::string(reinterpret_cast<const char*>(b.data() + p), n);
}

RegistroCabecera CabeceraDistinta() {
    RegistroCabecera r;
    r.nombre = "Jornada doce";
    r.jornada = 12;
    r.jugada = "red";
    r.alDirecto = 4782969;
    r.condicionada = 100001;
    r.al13 = 100002;
    r.al12 = 100003;
    r.al11 = 100004;
    r.al10 = 100005;
    for (std::size_t c = 0; c < 3; ++c) {
        for (std::size_t f = 0; f < 14; ++f) r.celdas[c][f] = (c + f) % 2;
    }
    r.pleno = {'2', 'M'};
    r.dobles = 5;
    r.triples = 6;
    r.origenPorcentajes = 7;
    for (std::size_t s = 0; s < 3; ++s) {
        for (std::size_t p = 0; p < 14; ++p)
            r.tablaPorcentajes[s][p] = static_cast<std::uint8_t>(s * 14 + p + 1);
    }
    r.valorPorcentajes = -123456;
    auto& c = r.condiciones;
    c.casilla = {true, false, true, true, false, false, false, true, false, true, true};
    c.posMaxVariantes = 21, c.maxVariantes = 22, c.posMaxEquis = 23, c.maxEquis = 24;
    c.posMaxDoses = 25, c.maxDoses = 26, c.posMinVariantes = 27, c.minVariantes = 28;
    c.posMinEquis = 29, c.minEquis = 30, c.posMinDoses = 31, c.minDoses = 32;
    c.posMinSeg = {33, 34, 35, 36};
    c.minSeg = {37, 38, 39, 40};
    c.posMaxSeg = {41, 42, 43, 44};
    c.maxSeg = {45, 46, 47, 48};
    c.maxInter = 49, c.minInter = 50;
    for (std::size_t i = 0; i < 9; ++i) {
        c.maxPareja[i] = static_cast<std::uint8_t>(60 + i);
        c.minPareja[i] = static_cast<std::uint8_t>(70 + i);
    }
    for (std::size_t i = 0; i < 27; ++i) {
        c.minTrio[i] = static_cast<std::uint8_t>(80 + i);
        c.maxTrio[i] = static_cast<std::uint8_t>(110 + i);
    }
    for (std::size_t g = 0; g < 50; ++g) {
        auto& grupo = c.grupos[g];
        grupo.activo = g % 3 == 0;
        for (std::size_t p = 0; p < 14; ++p) grupo.partidos[p] = (g + p) % 4 == 0;
        for (std::size_t k = 0; k < 4; ++k) {
            grupo.posMin[k] = static_cast<std::uint8_t>(g + k);
            grupo.posMax[k] = static_cast<std::uint8_t>(g + k + 50);
            grupo.min[k] = static_cast<std::uint8_t>(g + k + 100);
            grupo.max[k] = static_cast<std::uint8_t>(g + k + 150);
        }
        auto& ac = c.gruposAc[g];
        ac.activo = g % 5 == 1;
        for (std::size_t p = 0; p < 14; ++p)
            ac.signos[p] = {(p % 2) ? '1' : ' ', 'X', (g % 2) ? '2' : ' '};
        ac.numPartidos = static_cast<std::uint8_t>(g);
        ac.fallosMin = static_cast<std::uint8_t>(g + 1);
        ac.aciertosMin = static_cast<std::uint8_t>(g + 2);
        ac.fallosMax = static_cast<std::uint8_t>(g + 3);
        ac.aciertosMax = static_cast<std::uint8_t>(g + 4);
    }
    c.ultimoGrupo = 48, c.toleranciaGrupos = 3, c.ultimoGrupoAc = 46, c.toleranciaGruposAc = 2;
    for (std::size_t s = 0; s < 3; ++s) {
        for (std::size_t p = 0; p < 14; ++p)
            c.sumasTabla[s][p] = static_cast<std::uint8_t>(200 + s * 14 + p);
    }
    c.sumaMaxima = 1234, c.sumaMinima = -5;
    c.numListas = {3, 4, 5, 6};
    for (std::size_t l = 0; l < 4; ++l) {
        for (std::size_t i = 1; i < 15; ++i) c.listas[l][i] = static_cast<std::uint8_t>(l * 20 + i);
    }
    for (std::size_t f = 0; f < 8; ++f) {
        c.comparaciones[f] = {
            static_cast<std::uint8_t>(f % 2),     static_cast<std::uint8_t>(1 + f % 3),
            static_cast<std::uint8_t>(1 + f % 4), static_cast<std::uint8_t>(1 + f % 5),
            static_cast<std::uint8_t>(3 - f % 3), static_cast<std::uint8_t>(4 - f % 4)};
    }
    c.longRep = {1, 2, 3, 4};
    c.limiteRep = {5, 6, 7, 8};
    c.maxInterCons = 11, c.minInterCons = 9;
    return r;
}

TEST(RegistroCabecera, CadaCampoEnSuSitio) {
    const RegistroCabecera r = CabeceraDistinta();
    const auto b = r.ABytes();
    ASSERT_EQ(b.size(), 5189U);
    EXPECT_EQ(Txt(b, 0, 15), "Jornada doce   ");
    EXPECT_EQ(U8(b, 15), 12);
    EXPECT_EQ(Txt(b, 16, 3), "red");
    EXPECT_EQ(I32(b, 19), 4782969);
    EXPECT_EQ(I32(b, 23), 100001);
    EXPECT_EQ(I32(b, 27), 100002);
    EXPECT_EQ(I32(b, 31), 100003);
    EXPECT_EQ(I32(b, 35), 100004);
    for (std::size_t c = 0; c < 3; ++c) {
        for (std::size_t f = 0; f < 15; ++f)
            EXPECT_EQ(U8(b, 39 + c * 15 + f), f < 14 ? (c + f) % 2 : 0);
    }
    for (std::size_t i = 84; i < 99; ++i) EXPECT_EQ(U8(b, i), 0);
    const std::array<int, 5> casillas = {1, 0, 1, 1, 0};
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(U8(b, 99 + i), casillas[i]);
    EXPECT_EQ(U8(b, 104), 0);
    EXPECT_EQ(U8(b, 105), 0);
    const std::array<int, 4> casillas2 = {1, 0, 1, 1};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(U8(b, 106 + i), casillas2[i]);
    EXPECT_EQ(Txt(b, 110, 2), "2M");
    for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(U8(b, 112 + i), 21 + i);
    for (std::size_t i = 0; i < 16; ++i) EXPECT_EQ(U8(b, 124 + i), 33 + i);
    EXPECT_EQ(U8(b, 140), 49);
    EXPECT_EQ(U8(b, 141), 50);
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(U8(b, 142 + i), 60 + i);
        EXPECT_EQ(U8(b, 151 + i), 70 + i);
    }
    for (std::size_t i = 0; i < 27; ++i) {
        EXPECT_EQ(U8(b, 160 + i), 80 + i);
        EXPECT_EQ(U8(b, 187 + i), 110 + i);
    }
    for (std::size_t g = 0; g < 50; ++g) {
        EXPECT_EQ(I16(b, 214 + 2 * g), g % 3 == 0 ? -1 : 0);
        for (std::size_t p = 0; p < 14; ++p)
            EXPECT_EQ(I16(b, 314 + 28 * g + 2 * p), (g + p) % 4 == 0 ? -1 : 0);
        // V, 1, X, 2 en el archivo; 1, X, 2, V en memoria.
        const std::array<std::size_t, 4> clase = {3, 0, 1, 2};
        for (std::size_t j = 0; j < 4; ++j) {
            const std::size_t k = clase[j];
            EXPECT_EQ(U8(b, 1716 + 100 * j + g), g + k);
            EXPECT_EQ(U8(b, 1766 + 100 * j + g), g + k + 50);
            EXPECT_EQ(U8(b, 2116 + 100 * j + g), g + k + 100);
            EXPECT_EQ(U8(b, 2166 + 100 * j + g), g + k + 150);
        }
        EXPECT_EQ(I16(b, 2516 + 2 * g), g % 5 == 1 ? -1 : 0);
        for (std::size_t p = 0; p < 14; ++p) {
            const std::string celda = {(p % 2) ? '1' : ' ', 'X', (g % 2) ? '2' : ' '};
            EXPECT_EQ(Txt(b, 2616 + 42 * g + 3 * p, 3), celda);
        }
        EXPECT_EQ(U8(b, 4718 + g), g);
        EXPECT_EQ(U8(b, 4768 + g), g + 1);
        EXPECT_EQ(U8(b, 4818 + g), g + 2);
        EXPECT_EQ(U8(b, 4868 + g), g + 3);
        EXPECT_EQ(U8(b, 4918 + g), g + 4);
    }
    EXPECT_EQ(U8(b, 1714), 48);
    EXPECT_EQ(U8(b, 1715), 3);
    EXPECT_EQ(U8(b, 4716), 46);
    EXPECT_EQ(U8(b, 4717), 2);
    for (std::size_t i = 0; i < 42; ++i) EXPECT_EQ(U8(b, 4968 + i), 200 + i);
    EXPECT_EQ(I16(b, 5010), 1234);
    EXPECT_EQ(I16(b, 5012), -5);
    for (std::size_t l = 0; l < 4; ++l) {
        EXPECT_EQ(U8(b, 5014 + l), 3 + l);
        EXPECT_EQ(U8(b, 5018 + 15 * l), 0);
        for (std::size_t i = 1; i < 15; ++i) EXPECT_EQ(U8(b, 5018 + 15 * l + i), l * 20 + i);
    }
    for (std::size_t f = 0; f < 8; ++f) {
        EXPECT_EQ(U8(b, 5078 + f), f % 2);
        EXPECT_EQ(U8(b, 5086 + f), 1 + f % 3);
        EXPECT_EQ(U8(b, 5094 + f), 1 + f % 4);
        EXPECT_EQ(U8(b, 5102 + f), 1 + f % 5);
        EXPECT_EQ(U8(b, 5110 + f), 3 - f % 3);
        EXPECT_EQ(U8(b, 5118 + f), 4 - f % 4);
    }
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_EQ(U8(b, 5126 + k), 1 + k);
        EXPECT_EQ(U8(b, 5130 + k), 5 + k);
    }
    EXPECT_EQ(U8(b, 5134), 5);
    EXPECT_EQ(U8(b, 5135), 6);
    EXPECT_EQ(I32(b, 5136), 100005);
    EXPECT_EQ(U8(b, 5140), 11);
    EXPECT_EQ(U8(b, 5141), 9);
    EXPECT_EQ(U8(b, 5142), 7);
    for (std::size_t i = 0; i < 42; ++i) EXPECT_EQ(U8(b, 5143 + i), 1 + i);
    EXPECT_EQ(I32(b, 5185), -123456);

    // Y de vuelta, campo a campo.
    const RegistroCabecera leido = RegistroCabecera::DeBytes(b);
    EXPECT_EQ(leido.ABytes(), b);
    EXPECT_EQ(leido.condiciones, r.condiciones);
}

TEST(RegistroCabecera, UnByteNoAdmiteMasDe255) {
    RegistroCabecera r;
    r.condiciones.maxInter = 256;
    EXPECT_THROW((void)r.ABytes(), base::Desbordamiento);
}

QuinielaBase BaseDePrueba() {
    QuinielaBase base;
    const std::string signos[14] = {"1X2", "1", "X", "2", "1X",  "X2", "12",
                                    "1X2", "1", "1", "X", "1X2", "2",  "1"};
    for (int p = 1; p <= 14; ++p) {
        for (char s : signos[p - 1]) base.Elegir(p, IndiceSigno(s), true);
    }
    base.PonerGoles("1", "M");
    return base;
}

Combinacion CombinacionDePrueba(const std::filesystem::path& ruta) {
    Combinacion c;
    c.base = BaseDePrueba();
    c.pleno = c.base.Pleno();
    c.ruta = ruta;
    c.jornada = 9;
    c.panel.nombre = ruta.stem().string();
    c.panel.alDirecto = c.base.Columnas();
    c.panel.dobles = c.base.Dobles();
    c.panel.triples = c.base.Triples();
    c.condiciones = CondicionesIniciales(c.base);
    return c;
}

std::vector<char> Bytes(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

TEST(Guardar, IdaYVueltaConGeneracion) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    const auto trabajo = carpeta / "trabajo";
    std::filesystem::create_directories(trabajo);
    Combinacion c = CombinacionDePrueba(carpeta / "Prueba.uxd");
    pruebas::Sorteo s(5);
    c.condiciones = pruebas::CondicionesAlAzar(s, c.base);
    c.condiciones.casilla[kCasillaInterrupciones] = true;
    c.condiciones.minInter = 3;
    c.condiciones.maxInter = 11;
    base::SinProgreso progreso;
    const auto resultado = Generar(c, trabajo, progreso, ajustes);
    ASSERT_FALSE(resultado.detenida);
    ASSERT_EQ(c.panel.condicionada, c.totalGeneradas);
    Guardar(c, trabajo, ajustes);
    EXPECT_TRUE(c.panel.guardada);
    EXPECT_EQ(std::filesystem::file_size(c.ruta), 5189U);
    const auto cnd = carpeta / "Prueba.cnd";
    EXPECT_EQ(std::filesystem::file_size(cnd), 17U * static_cast<unsigned>(c.totalGeneradas));
    EXPECT_EQ(Bytes(cnd), Bytes(trabajo / "Cmb.tmp"));
    EXPECT_FALSE(std::filesystem::exists(carpeta / "Prueba.red"));

    // Abrir en otra carpeta de trabajo lo reproduce todo.
    const auto otra = carpeta / "otra";
    std::filesystem::create_directories(otra);
    Combinacion abierta;
    AbrirCombinacion(abierta, c.ruta, otra, ajustes);
    EXPECT_EQ(abierta.base, c.base);
    EXPECT_EQ(abierta.pleno, c.pleno);
    EXPECT_EQ(abierta.jornada, 9);
    EXPECT_EQ(abierta.condiciones, c.condiciones);
    EXPECT_EQ(abierta.totalGeneradas, c.totalGeneradas);
    EXPECT_EQ(abierta.activasGeneradas, c.totalGeneradas);
    EXPECT_EQ(abierta.numCondiciones, c.numCondiciones);
    EXPECT_EQ(abierta.panel.condicionada, c.panel.condicionada);
    EXPECT_EQ(abierta.panel.nombre, "Prueba");
    EXPECT_TRUE(abierta.panel.guardada);
    EXPECT_EQ(Bytes(otra / "Cmb.tmp"), Bytes(cnd));
    EXPECT_EQ(CabeceraDe(abierta).ABytes(), CabeceraDe(c).ABytes());
    EXPECT_EQ(Recientes(ajustes)[0], c.ruta.string());
}

TEST(Guardar, ConservaElConjuntoJugado) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = CombinacionDePrueba(carpeta / "Jugada.uxd");
    Guardar(c, carpeta.Ruta(), ajustes);
    auto bytes = Bytes(c.ruta);
    bytes[16] = 'c', bytes[17] = 'n', bytes[18] = 'd';
    std::ofstream(c.ruta, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    Guardar(c, carpeta.Ruta(), ajustes);
    EXPECT_EQ(Bytes(c.ruta)[16], 'c');
    EXPECT_EQ(c.jugada, "cnd");
}

// Guardar no reescribe el ".cnd" que ya tiene lo que se va a escribir: sigue el mismo archivo,
// con su hora de antes; con otras columnas, sí se reescribe.
TEST(Guardar, NoReescribeElCndQueYaTieneLasMismasColumnas) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = CombinacionDePrueba(carpeta / "Igual.uxd");
    base::SinProgreso progreso;
    Generar(c, carpeta.Ruta(), progreso, ajustes);
    Guardar(c, carpeta.Ruta(), ajustes);
    const auto cnd = carpeta / "Igual.cnd";
    const auto antes = std::filesystem::last_write_time(cnd) - std::chrono::hours(1);
    std::filesystem::last_write_time(cnd, antes);

    std::filesystem::create_directories(carpeta / "otra");
    Combinacion abierta;
    AbrirCombinacion(abierta, c.ruta, carpeta / "otra", ajustes);
    Guardar(abierta, carpeta / "otra", ajustes);
    Generar(abierta, carpeta / "otra", progreso, ajustes);
    Guardar(abierta, carpeta / "otra", ajustes);
    EXPECT_EQ(std::filesystem::last_write_time(cnd), antes);

    abierta.base.Elegir(1, 2, false);
    Generar(abierta, carpeta / "otra", progreso, ajustes);
    ASSERT_LT(abierta.totalGeneradas, c.totalGeneradas);
    Guardar(abierta, carpeta / "otra", ajustes);
    EXPECT_NE(std::filesystem::last_write_time(cnd), antes);
    EXPECT_EQ(Bytes(cnd), Bytes(carpeta / "otra" / "Cmb.tmp"));
}

// Abrir para generar lee la cabecera y no toca los almacenes ni cuenta columnas.
TEST(Abrir, ParaGenerarNoCargaLosAlmacenes) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = CombinacionDePrueba(carpeta / "Gen.uxd");
    base::SinProgreso progreso;
    Generar(c, carpeta.Ruta(), progreso, ajustes);
    Guardar(c, carpeta.Ruta(), ajustes);
    Combinacion abierta;
    abierta.ruta = c.ruta;
    AbrirParaGenerar(abierta, ajustes);
    EXPECT_EQ(abierta.base, c.base);
    EXPECT_EQ(abierta.condiciones, c.condiciones);
    EXPECT_EQ(abierta.totalGeneradas, 0);
    EXPECT_EQ(abierta.activasGeneradas, 0);
    EXPECT_EQ(CabeceraDe(abierta).ABytes(), CabeceraDe(c).ABytes());
    std::filesystem::create_directories(carpeta / "otra");
    Generar(abierta, carpeta / "otra", progreso, ajustes);
    EXPECT_EQ(abierta.totalGeneradas, c.totalGeneradas);
}

TEST(Abrir, CuentaEnLaCabeceraSinCnd) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = CombinacionDePrueba(carpeta / "SinCnd.uxd");
    c.panel.condicionada = 1234;
    RegistroCabecera r = CabeceraDe(c);
    const auto b = r.ABytes();
    std::ofstream(c.ruta, std::ios::binary).write(reinterpret_cast<const char*>(b.data()), 5189);
    Combinacion abierta;
    AbrirCombinacion(abierta, c.ruta, carpeta.Ruta(), ajustes);
    EXPECT_EQ(abierta.panel.condicionada, 1234);
    EXPECT_EQ(abierta.totalGeneradas, 0);
    EXPECT_EQ(abierta.activasGeneradas, 0);
}

TEST(Abrir, ActivasMenosQueTotales) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = CombinacionDePrueba(carpeta / "Elim.uxd");
    base::SinProgreso progreso;
    Generar(c, carpeta.Ruta(), progreso, ajustes);
    Guardar(c, carpeta.Ruta(), ajustes);
    auto cnd = Bytes(carpeta / "Elim.cnd");
    cnd[16] = '1';
    std::ofstream(carpeta / "Elim.cnd", std::ios::binary)
        .write(cnd.data(), static_cast<std::streamsize>(cnd.size()));
    Combinacion abierta;
    AbrirCombinacion(abierta, c.ruta, carpeta.Ruta(), ajustes);
    EXPECT_EQ(abierta.totalGeneradas, c.totalGeneradas);
    EXPECT_EQ(abierta.activasGeneradas, c.totalGeneradas - 1);
    EXPECT_EQ(abierta.panel.condicionada, c.totalGeneradas - 1);
}

void EsperarErrorSinCambios(const std::filesystem::path& uxd,
                            const std::filesystem::path& trabajo) {
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c;
    c.panel.nombre = "Intacta";
    try {
        AbrirCombinacion(c, uxd, trabajo, ajustes);
        ADD_FAILURE() << "no lanzó";
    } catch (const base::Error& e) {
        EXPECT_FALSE(std::string(e.what()).empty());
    }
    EXPECT_EQ(c.panel.nombre, "Intacta");
    EXPECT_FALSE(std::filesystem::exists(trabajo / "Cmb.tmp"));
    EXPECT_FALSE(std::filesystem::exists(trabajo / "Red.tmp"));
    EXPECT_EQ(Recientes(ajustes)[0], "");
}

TEST(Abrir, EntradasMalas) {
    pruebas::CarpetaTemporal carpeta;
    const auto trabajo = carpeta / "trabajo";
    std::filesystem::create_directories(trabajo);
    std::ofstream(carpeta / "Vacia.uxd").close();
    EsperarErrorSinCambios(carpeta / "Vacia.uxd", trabajo);
    std::ofstream(carpeta / "Corta.uxd") << std::string(5188, '\0');
    EsperarErrorSinCambios(carpeta / "Corta.uxd", trabajo);
    EsperarErrorSinCambios(carpeta / "NoExiste.uxd", trabajo);

    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = CombinacionDePrueba(carpeta / "Mala.uxd");
    base::SinProgreso progreso;
    Generar(c, carpeta.Ruta(), progreso, ajustes);
    Guardar(c, carpeta.Ruta(), ajustes);
    std::ofstream(carpeta / "Mala.cnd", std::ios::app) << "xx";
    EsperarErrorSinCambios(c.ruta, trabajo);
}

TEST(GuardarComo, ComprobacionesYMensajes) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    const auto programa = carpeta / "programa";
    std::filesystem::create_directories(programa);
    Combinacion c = CombinacionDePrueba({});
    c.panel.nombre.clear();

    // Base incompleta.
    Combinacion incompleta;
    pruebas::DialogoGuionado d0;
    EXPECT_FALSE(GuardarMenu(incompleta, carpeta.Ruta(), programa, ajustes, d0));
    EXPECT_EQ(d0.Textos(), std::vector<std::string>{std::string(kMsgBaseIncompleta)});

    pruebas::DialogoGuionado d1;
    d1.Responder(std::optional<std::filesystem::path>(programa / "Dentro.uxd"));
    EXPECT_FALSE(GuardarMenu(c, carpeta.Ruta(), programa, ajustes, d1));
    EXPECT_EQ(d1.Textos().back(), kMsgDirectorioPrograma);

    pruebas::DialogoGuionado d2;
    d2.Responder(std::optional<std::filesystem::path>(carpeta / "Un nombre muy largo.uxd"));
    EXPECT_FALSE(GuardarComo(c, carpeta.Ruta(), programa, ajustes, d2));
    EXPECT_EQ(d2.Textos().back(), kMsgNombreLargo);

    pruebas::DialogoGuionado d3;
    d3.Responder(std::optional<std::filesystem::path>(carpeta / "Quince letras12.uxd"));
    EXPECT_TRUE(GuardarComo(c, carpeta.Ruta(), programa, ajustes, d3));
    EXPECT_EQ(c.panel.nombre, "Quince letras12");
    EXPECT_EQ(std::filesystem::file_size(carpeta / "Quince letras12.uxd"), 5189U);

    pruebas::DialogoGuionado d4;
    d4.Responder(std::optional<std::filesystem::path>(carpeta / "Quince letras12.uxd"))
        .Responder(base::Respuesta::No);
    EXPECT_FALSE(GuardarComo(c, carpeta.Ruta(), programa, ajustes, d4));
    EXPECT_EQ(d4.Textos().back(), kMsgSobrescribir);
    EXPECT_TRUE(d4.GuionAgotado());

    // Con nombre, "&Guardar..." guarda sin preguntar.
    pruebas::DialogoGuionado d5;
    EXPECT_TRUE(GuardarMenu(c, carpeta.Ruta(), programa, ajustes, d5));
    EXPECT_TRUE(d5.Textos().empty());
}

TEST(Recientes, ListaYTitulos) {
    pruebas::AjustesEnMemoria ajustes;
    AnotarReciente(ajustes, "a");
    AnotarReciente(ajustes, "b");
    AnotarReciente(ajustes, "c");
    AnotarReciente(ajustes, "d");
    EXPECT_EQ(Recientes(ajustes), (std::array<std::string, 3>{"d", "c", "b"}));
    SubirReciente(ajustes, 3);
    EXPECT_EQ(Recientes(ajustes), (std::array<std::string, 3>{"b", "d", "c"}));
    EXPECT_EQ(TituloReciente("C:\\Quinielas\\j1.uxd"), "C:\\Quinielas\\j1.uxd");
    EXPECT_EQ(TituloReciente("C:\\Mis documentos\\Quinielas\\jornada12.uxd"),
              "C:\\Mis doc...\\jornada12");
    EXPECT_EQ(TituloReciente(""), "");
}

}  // namespace
}  // namespace quinteva::engine
