#include "builders/reduction_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>

#include "base/error.h"
#include "tests/builders/development.h"
#include "tests/builders/shown_rows.h"
#include "tests/support/counting_progress.h"
#include "tests/support/fnv.h"

namespace quinteva::builders {
namespace {

using pruebas::Desarrollo;

// Índice de una palabra de un sistema: cifra 0, 1, 2 por "1", "X", "2", en base 3 en los triples
// y 2 en los dobles.
std::size_t Indice(const std::string& palabra) {
    std::size_t i = 0;
    for (char c : palabra) i = i * 3 + static_cast<std::size_t>(c == '1' ? 0 : c == 'X' ? 1 : 2);
    return i;
}

// Marca cada palabra a distancia <= radio de "palabra" cambiando lugares desde "desde".
void MarcarEntorno(std::string& palabra, const SistemaReducido& s, std::size_t desde, int radio,
                   std::vector<bool>& cubierta) {
    cubierta[Indice(palabra)] = true;
    if (radio == 0) return;
    for (std::size_t l = desde; l < palabra.size(); ++l) {
        const char antes = palabra[l];
        for (char c : std::string_view(l < static_cast<std::size_t>(s.triples) ? "1X2" : "1X")) {
            if (c == antes) continue;
            palabra[l] = c;
            MarcarEntorno(palabra, s, l + 1, radio - 1, cubierta);
        }
        palabra[l] = antes;
    }
}

TEST(SistemasReducidos, SetentaYTresUnoPorTramo) {
    const auto& sistemas = SistemasReducidos();
    ASSERT_EQ(sistemas.size(), 73U);
    std::set<std::array<int, 4>> mostrados;
    for (const auto& t : TramosSeleccion()) {
        if (t.filas == 0) continue;
        const SistemaReducido* s = ElegirSistema(t.nivel, t.triples, t.dMin);
        ASSERT_NE(s, nullptr);
        EXPECT_EQ(s->triples, t.tw);
        EXPECT_EQ(s->dobles, t.du);
        mostrados.insert({t.nivel, t.tw, t.du, t.filas});
        EXPECT_EQ(s->filas.size(), static_cast<std::size_t>(t.filas))
            << t.nivel << " " << t.tw << "+" << t.du;
    }
    EXPECT_EQ(mostrados.size(), 73U);
    int filas = 0;
    for (const auto& m : mostrados) filas += m[3];
    EXPECT_EQ(filas, 2998);
}

TEST(SistemasReducidos, CadaUnoSinRepetidasYConSuRadio) {
    for (const auto& s : SistemasReducidos()) {
        const std::set<std::string> distintas(s.filas.begin(), s.filas.end());
        EXPECT_EQ(distintas.size(), s.filas.size())
            << s.nivel << " " << s.triples << "+" << s.dobles;
        // Índices en base 3 en todos los lugares: las palabras con un 2 en un doble no existen
        // y se dan por cubiertas.
        const auto lugares = static_cast<std::size_t>(s.triples + s.dobles);
        std::size_t total = 1;
        for (std::size_t l = 0; l < lugares; ++l) total *= 3;
        std::vector<bool> cubierta(total, false);
        for (std::size_t i = 0; i < total; ++i) {
            std::size_t resto = i;
            for (std::size_t l = lugares; l-- > 0; resto /= 3) {
                if (l >= static_cast<std::size_t>(s.triples) && resto % 3 == 2) cubierta[i] = true;
            }
        }
        for (std::string f : s.filas) MarcarEntorno(f, s, 0, 14 - s.nivel, cubierta);
        EXPECT_EQ(std::count(cubierta.begin(), cubierta.end(), false), 0)
            << "nivel " << s.nivel << " " << s.triples << "+" << s.dobles;
    }
}

const SistemaReducido& Sistema(int nivel, int triples, int dobles) {
    for (const auto& s : SistemasReducidos()) {
        if (s.nivel == nivel && s.triples == triples && s.dobles == dobles) return s;
    }
    throw base::Error("no está");
}

std::set<std::string> Filas(int nivel, int triples, int dobles) {
    const auto& f = Sistema(nivel, triples, dobles).filas;
    return {f.begin(), f.end()};
}

TEST(SistemasReducidos, LasFilasQueSeNombran) {
    EXPECT_EQ(Filas(13, 0, 3), (std::set<std::string>{"1X1", "X1X"}));
    EXPECT_EQ(Filas(13, 1, 2), (std::set<std::string>{"21X", "1X1", "XX1"}));
    EXPECT_EQ(Filas(13, 3, 0), (std::set<std::string>{"1X2", "X11", "221", "X2X", "21X"}));
    EXPECT_EQ(Filas(12, 0, 5), (std::set<std::string>{"1X1X1", "X1X1X"}));
    EXPECT_EQ(Filas(11, 0, 7), (std::set<std::string>{"X111111", "1XXXXXX"}));
    const auto& golay = Sistema(12, 11, 0).filas;
    ASSERT_EQ(golay.size(), 729U);
    for (const char* f :
         {"11111111111", "2221XX11111", "XXX12211111", "1112XX22222", "22222222222"}) {
        EXPECT_NE(std::find(golay.begin(), golay.end(), f), golay.end()) << f;
    }
}

TEST(LeerSistemas, UnTextoMalFormadoEsUnError) {
    EXPECT_THROW(LeerSistemas("sistema 13 0 3 2\n1X1\n"), base::Error);
    EXPECT_THROW(LeerSistemas("sistema 13 0 3 1\n1X\n"), base::Error);
    EXPECT_THROW(LeerSistemas("sistema 13 0 3 1\n1Y1\n"), base::Error);
    EXPECT_THROW(LeerSistemas("tabla 13 0 3 1\n1X1\n"), base::Error);
    const auto s = LeerSistemas("# comentario\nsistema 13 0 3 1\n1X1\n");
    ASSERT_EQ(s.size(), 1U);
    EXPECT_EQ(s[0].filas, std::vector<std::string>{"1X1"});
}

TEST(ElegirSistema, PorNivelTriplesYDobles) {
    EXPECT_EQ(ElegirSistema(13, 0, 2), nullptr);
    EXPECT_EQ(ElegirSistema(13, 0, 7)->filas.size(), 16U);
    EXPECT_EQ(ElegirSistema(13, 0, 8)->dobles, 7);
    EXPECT_EQ(ElegirSistema(13, 5, 0)->triples, 4);
    EXPECT_EQ(ElegirSistema(12, 7, 2)->triples, 6);
    EXPECT_EQ(ElegirSistema(11, 14, 0)->triples, 10);
    EXPECT_EQ(ElegirSistema(12, 3, 0), nullptr);
}

// ReducirPorTablas sobre el desarrollo entero, sin selección de partidos.
ResultadoTablas ReducirDesarrollo(Desarrollo& d, int nivel, ClaseBase& clases) {
    pruebas::ProgresoContador progreso;
    return ReducirPorTablas(d.combinacion, d.carpeta.Ruta(), nivel, std::nullopt, clases, progreso,
                            d.ajustes);
}

TEST(ReducirPorTablas, DosDoblesAlTreceNoTieneSistema) {
    Desarrollo d(0, 2);
    ClaseBase clases{};
    const auto r = ReducirDesarrollo(d, 13, clases);
    EXPECT_TRUE(r.sinSistema);
    EXPECT_FALSE(std::filesystem::exists(d.carpeta / "Red.tmp"));
    EXPECT_EQ(d.combinacion.panel.reducidas, (std::array<std::optional<std::int32_t>, 4>{}));
    EXPECT_FALSE(d.combinacion.panel.precio);
}

TEST(ReducirPorTablas, SieteDoblesDan16YOchoDan32) {
    for (const auto& [dobles, esperadas] : {std::pair{7, 16}, std::pair{8, 32}}) {
        Desarrollo d(0, dobles);
        ClaseBase clases{};
        const auto r = ReducirDesarrollo(d, 13, clases);
        EXPECT_EQ(r.reduccion.reducidas, esperadas);
        EXPECT_EQ(d.combinacion.panel.reducidas[0], esperadas);
        EXPECT_TRUE(pruebas::Cubre(d.Leer("Red.tmp"), d.Leer("Cmb.tmp"), 1));
    }
}

TEST(ReducirPorTablas, CincoTriplesAlTreceDejanLibreElQuinto) {
    Desarrollo d(5, 0);
    ClaseBase clases{};
    const auto r = ReducirDesarrollo(d, 13, clases);
    EXPECT_EQ(r.reduccion.reducidas, 27);
    std::set<char> quinto;
    for (const auto& reg : d.Leer("Red.tmp")) {
        quinto.insert(reg.columna[4]);
        EXPECT_EQ(reg.estado, engine::kActiva);
        EXPECT_EQ(reg.pleno, d.combinacion.pleno);
    }
    EXPECT_EQ(quinto, (std::set<char>{'1', 'X', '2'}));
}

// Las filas del sistema que aparecen en las columnas reducidas, leídas en los partidos dados.
std::set<std::string> Proyeccion(const std::vector<engine::RegistroColumna>& red,
                                 std::initializer_list<std::size_t> partidos) {
    std::set<std::string> vistas;
    for (const auto& r : red) {
        std::string v;
        for (const std::size_t p : partidos) v += r.columna[p];
        vistas.insert(v);
    }
    return vistas;
}

TEST(ReducirPorTablas, ConSeleccionUnPartidoNoElegidoConservaSuClase) {
    // Primera reducción sin selección: el partido 1 (triple) queda en la clase 4.
    Desarrollo d(4, 0);
    ClaseBase clases{};
    pruebas::ProgresoContador progreso;
    ReducirPorTablas(d.combinacion, d.carpeta.Ruta(), 13, std::nullopt, clases, progreso,
                     d.ajustes);
    EXPECT_EQ(clases[0], 4);
    // Ahora solo se eligen los partidos 2, 3 y 4: cuentan tres triples (el sistema 3+0 de cinco
    // filas), pero el partido 1 conserva su clase y recibe la primera cifra; el 4 queda libre.
    std::array<bool, engine::kPartidos> elegidos{};
    elegidos[1] = elegidos[2] = elegidos[3] = true;
    const auto r = ReducirPorTablas(d.combinacion, d.carpeta.Ruta(), 13, elegidos, clases, progreso,
                                    d.ajustes);
    EXPECT_EQ(r.reduccion.reducidas, 15);
    EXPECT_EQ(Proyeccion(d.Leer("Red.tmp"), {0, 1, 2}), Filas(13, 3, 0));
    EXPECT_EQ(Proyeccion(d.Leer("Red.tmp"), {3}), (std::set<std::string>{"1", "X", "2"}));

    // La primera vez, con la misma selección, el partido no elegido tiene la clase 0 y es el
    // que queda libre.
    Desarrollo e(4, 0);
    ClaseBase nuevas{};
    const auto r2 = ReducirPorTablas(e.combinacion, e.carpeta.Ruta(), 13, elegidos, nuevas,
                                     progreso, e.ajustes);
    EXPECT_EQ(nuevas[0], 0);
    EXPECT_EQ(r2.reduccion.reducidas, 15);
    EXPECT_EQ(Proyeccion(e.Leer("Red.tmp"), {1, 2, 3}), Filas(13, 3, 0));
    EXPECT_EQ(Proyeccion(e.Leer("Red.tmp"), {0}), (std::set<std::string>{"1", "X", "2"}));
}

// FiltrarPorPatrones tal como se describe: cada registro contra los patrones en orden.
std::vector<engine::RegistroColumna> FiltrarUnoAUno(
    const std::vector<std::string>& patrones, const std::vector<engine::RegistroColumna>& cmb) {
    std::vector<engine::RegistroColumna> red;
    for (auto r : cmb) {
        for (const auto& patron : patrones) {
            bool casa = true;
            for (std::size_t p = 0; p < 14 && casa; ++p)
                casa = patron[p] == ' ' || patron[p] == r.columna[p];
            if (casa) {
                r.estado = engine::kActiva;
                red.push_back(r);
                break;
            }
        }
    }
    return red;
}

TEST(FiltrarPorPatrones, IgualQueUnoAUnoAlAzar) {
    std::mt19937 azar(31);
    const auto& sistemas = SistemasReducidos();
    for (int caso = 0; caso < 60; ++caso) {
        const auto& sistema = sistemas[azar() % sistemas.size()];
        ClaseBase clases{};
        for (auto& c : clases) c = static_cast<int>(azar() % 5);
        const auto patrones = PatronesReducidos(sistema, clases);
        pruebas::CarpetaTemporal carpeta;
        std::vector<engine::RegistroColumna> cmb;
        {
            base::ArchivoDe<engine::RegistroColumna> archivo(carpeta / "Cmb.tmp");
            for (int i = 0; i < 3000; ++i) {
                engine::RegistroColumna r;
                for (auto& s : r.columna) s = "1X2"[azar() % 3];
                if (azar() % 100 == 0) r.columna[azar() % 14] = ' ';
                r.pleno = engine::PlenoDeTexto("2M");
                r.estado = azar() % 4 == 0 ? engine::kEliminada : engine::kActiva;
                archivo.Anadir(r);
                cmb.push_back(r);
            }
        }
        engine::Combinacion comb;
        comb.totalGeneradas = 3000;
        pruebas::ProgresoContador progreso;
        const auto n = FiltrarPorPatrones(patrones, comb, carpeta.Ruta(), progreso);
        std::vector<engine::RegistroColumna> red;
        const base::ArchivoDe<engine::RegistroColumna> archivo(carpeta / "Red.tmp");
        for (std::int32_t k = 1; k <= archivo.Cuenta(); ++k) red.push_back(archivo.Leer(k));
        ASSERT_EQ(red, FiltrarUnoAUno(patrones, cmb)) << caso;
        EXPECT_EQ(n, static_cast<std::int32_t>(red.size()));
        EXPECT_EQ(progreso.Avances(), 3000);
    }
}

// Firma de lo que se mide: once triples "al 12", la cuenta y la suma de "Red.tmp", que son las de
// filtrar los registros uno a uno con los patrones del sistema.
TEST(FirmaReduccionPorTablas, OnceTriplesAlDoce) {
    Desarrollo d(11, 0);
    ClaseBase clases{};
    const auto r = ReducirDesarrollo(d, 12, clases);
    const auto red = d.Leer("Red.tmp");
    std::string bytes;
    for (const auto& registro : red) {
        const auto b = registro.ABytes();
        bytes.append(b.begin(), b.end());
    }
    EXPECT_EQ(r.reduccion.reducidas, 729);
    EXPECT_EQ(pruebas::Fnv(bytes), 0xaa127381227f5592ULL) << std::hex << pruebas::Fnv(bytes);
    const auto patrones = PatronesReducidos(*ElegirSistema(12, 11, 0), clases);
    EXPECT_EQ(red, FiltrarUnoAUno(patrones, d.Leer("Cmb.tmp")));
}

TEST(PatronesReducidos, LosDoblesSeTraducenSegunSuClase) {
    SistemaReducido s{13, 1, 2, {"2X1"}};
    // Partido 1 triple, 2 doble "12" (X pasa a 2), 3 doble "X2" (1 pasa a 2).
    ClaseBase clases{4, 2, 3};
    EXPECT_EQ(PatronesReducidos(s, clases), std::vector<std::string>{"222           "});
    s.filas = {"X1X"};
    EXPECT_EQ(PatronesReducidos(s, clases), std::vector<std::string>{"X1X           "});
    ClaseBase uno{1, 4, 1};
    s.filas = {"2X1"};
    EXPECT_EQ(PatronesReducidos(s, uno), std::vector<std::string>{"X21           "});
}

}  // namespace
}  // namespace quinteva::builders
