#include "builders/by_percentages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

#include "base/record_files.h"
#include "tests/builders/development.h"
#include "tests/support/scripted_dialog.h"

namespace quinteva::builders {
namespace {

using pruebas::DialogoGuionado;

// Los mismos porcentajes (1, X, 2) en los 14 partidos.
Porcentajes Iguales(std::uint8_t uno, std::uint8_t equis, std::uint8_t dos) {
    Porcentajes p{};
    p[0].fill(uno);
    p[1].fill(equis);
    p[2].fill(dos);
    return p;
}

// Una base de 14 triples, salvo los partidos dados, que van fijos al "1".
engine::QuinielaBase Triples(int fijos = 0) {
    engine::QuinielaBase base;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) base.Elegir(p, s, p > fijos || s == 0);
    }
    base.PonerGoles("1", "1");
    return base;
}

struct EnCarpeta {
    pruebas::CarpetaTemporal carpeta;
    engine::Combinacion comb;
    explicit EnCarpeta(const engine::QuinielaBase& base) {
        comb.base = base;
        comb.pleno = base.Pleno();
    }
    std::vector<engine::RegistroColumna> Cmb() const {
        return base::LeerTodos<engine::RegistroColumna>(carpeta / std::string(engine::kCmbTmp));
    }
};

TEST(PorPorcentajes, ElCodigoDeLosSignosDeCadaPartido) {
    engine::QuinielaBase base;
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"1", "1"},  {"X", "X"},  {"2", "2"},   {"1X", "3"},
        {"12", "4"}, {"X2", "5"}, {"1X2", "6"}, {"", ""}};
    int partido = 1;
    for (const auto& [signos, codigo] : casos) {
        for (int s = 0; s < 3; ++s) {
            base.Elegir(
                partido, s,
                signos.find(engine::kSignos[static_cast<std::size_t>(s)]) != std::string::npos);
        }
        EXPECT_EQ(Signos(base, partido), codigo) << signos;
        ++partido;
    }
}

TEST(PorPorcentajes, ElRestoDelRedondeoVaAlUltimoSignoConCupo) {
    EXPECT_EQ(CuposDePartido(10, {50, 30, 20}), (Cupos{5, 3, 2}));
    EXPECT_EQ(CuposDePartido(7, {50, 30, 20}), (Cupos{3, 2, 2}));
    // Un doble 1X con 100 y 0: siempre el 1.
    EXPECT_EQ(CuposDePartido(10, {100, 0, 0}), (Cupos{10, 0, 0}));
    // El 2 sin cupo: el resto a la X.
    EXPECT_EQ(CuposDePartido(3, {34, 66, 0}), (Cupos{1, 2, 0}));
    // 33 por ciento de 2 es 0 en los tres: el resto al 1.
    EXPECT_EQ(CuposDePartido(2, {33, 33, 34}), (Cupos{2, 0, 0}));
    // Con 4, cada uno 1 y el que sobra al 2.
    EXPECT_EQ(CuposDePartido(4, {33, 33, 34}), (Cupos{1, 1, 2}));
}

TEST(PorPorcentajes, UnDobleConCienYCeroDaSiempreElPrimero) {
    std::vector<engine::RegistroColumna> registros(40);
    for (auto& r : registros) r.columna.fill(' ');
    base::AzarEstandar azar(7);
    GeneraPorc(registros, 3, "5", 1, CuposDePartido(40, {0, 100, 0}), azar);
    for (const auto& r : registros) EXPECT_EQ(r.columna[2], 'X');
    GeneraPorc(registros, 4, "4", 1, CuposDePartido(40, {0, 0, 100}), azar);
    for (const auto& r : registros) EXPECT_EQ(r.columna[3], '2');
}

TEST(PorPorcentajes, UnFijoSeEscribeSinSorteo) {
    std::vector<engine::RegistroColumna> registros(5);
    for (auto& r : registros) r.columna.fill(' ');
    base::AzarEstandar azar(1);
    GeneraPorc(registros, 1, "X", 3, CuposDePartido(5, {0, 100, 0}), azar);
    EXPECT_EQ(registros[0].columna[0], ' ');
    EXPECT_EQ(registros[1].columna[0], ' ');
    EXPECT_EQ(registros[4].columna[0], 'X');
}

TEST(PorPorcentajes, LosContadoresEmpiezanPorLoQueYaHayEnLosRegistros) {
    // Los dos primeros ya llevan "1" y el cupo del 1 es 2: los demás no pueden llevarlo.
    std::vector<engine::RegistroColumna> registros(6);
    for (auto& r : registros) r.columna.fill(' ');
    registros[0].columna[0] = registros[1].columna[0] = '1';
    base::AzarEstandar azar(3);
    GeneraPorc(registros, 1, "6", 3, Cupos{2, 2, 2}, azar);
    int unos = 0;
    for (const auto& r : registros) unos += r.columna[0] == '1' ? 1 : 0;
    EXPECT_EQ(unos, 2);
}

TEST(PorPorcentajes, UnTripleConLosTresCuposLlenosDejaLaPosicion) {
    std::vector<engine::RegistroColumna> registros(4);
    for (auto& r : registros) r.columna.fill(' ');
    registros[0].columna[0] = '1';
    registros[1].columna[0] = 'X';
    registros[2].columna[0] = '2';
    base::AzarEstandar azar(5);
    GeneraPorc(registros, 1, "6", 4, Cupos{1, 1, 1}, azar);
    EXPECT_EQ(registros[3].columna[0], ' ');
}

// Lo que hace el sistema: cada activa contra cada activa posterior, registro entero.
void MarcarCuadratico(std::vector<engine::RegistroColumna>& registros) {
    for (std::size_t i = 0; i < registros.size(); ++i) {
        if (!registros[i].Activa()) continue;
        for (std::size_t j = i + 1; j < registros.size(); ++j) {
            if (registros[j].Activa() && registros[j] == registros[i]) {
                registros[j].estado = engine::kEliminada;
            }
        }
    }
}

TEST(PorPorcentajes, LasRepetidasSeMarcanComoConLaComparacionDeCadaParDeRegistros) {
    std::mt19937 motor(2024);
    for (int vuelta = 0; vuelta < 300; ++vuelta) {
        const std::size_t n = 1 + motor() % 120;
        std::vector<engine::RegistroColumna> registros(n);
        for (auto& r : registros) {
            // Pocas posiciones libres para que haya muchas repetidas, y algún blanco.
            for (std::size_t p = 0; p < r.columna.size(); ++p) {
                r.columna[p] = p < 3 ? " 1X2"[motor() % 4] : '1';
            }
            r.pleno = {motor() % 5 == 0 ? 'M' : '1', '0'};
            r.estado = motor() % 7 == 0 ? engine::kEliminada : engine::kActiva;
        }
        auto rapido = registros;
        MarcarRepetidas(rapido);
        MarcarCuadratico(registros);
        ASSERT_EQ(rapido, registros) << "vuelta " << vuelta;
    }
}

TEST(PorPorcentajes, QuitarRepesCompletaConBlancosOTomaLasPrimeras) {
    const engine::PlenoBase pleno{'2', 'M'};
    std::vector<engine::RegistroColumna> registros(5);
    for (std::size_t i = 0; i < registros.size(); ++i) {
        registros[i].columna.fill('1');
        registros[i].columna[0] = engine::kSignos[i % 3];
        registros[i].pleno = pleno;
    }
    registros[3].estado = registros[4].estado = engine::kEliminada;
    auto corto = registros;
    EXPECT_EQ(QuitarRepes(corto, 5, pleno), 3);
    ASSERT_EQ(corto.size(), 5U);
    EXPECT_EQ(engine::TextoDeColumna(corto[3].columna), std::string(14, ' '));
    EXPECT_EQ(corto[4].pleno, pleno);
    EXPECT_TRUE(corto[4].Activa());
    registros[3].estado = registros[4].estado = engine::kActiva;
    EXPECT_EQ(QuitarRepes(registros, 5, pleno), 5);
}

TEST(PorPorcentajes, NueveSeNiegaOchoYDiezNo) {
    for (const std::int32_t n : {9, 8, 10}) {
        EnCarpeta e(Triples());
        DialogoGuionado dialogo;
        base::AzarEstandar azar(1);
        const auto r = GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), std::to_string(n),
                                             Iguales(50, 30, 20), azar, dialogo);
        if (n == 9) {
            EXPECT_FALSE(r);
            EXPECT_EQ(dialogo.Textos(),
                      std::vector<std::string>{
                          "No se pueden generar 9 columnas porque el último boleto tendría una "
                          "sola, lo que no es correcto. Debe al menos fijar una columna más o "
                          "menos."});
        } else {
            EXPECT_EQ(r, n);
            EXPECT_TRUE(dialogo.Textos().empty());
        }
    }
}

// Una base de 1.944 columnas (6 fijos, 3 dobles 1X y 5 triples); el 10 % es 194,4 y el 15 %
// 291,6.
engine::QuinielaBase Base1944() {
    engine::QuinielaBase base = Triples(6);
    for (int p = 7; p <= 9; ++p) base.Elegir(p, 2, false);
    return base;
}

TEST(PorPorcentajes, PorEncimaDelDiezPorCientoPreguntaYDelQuincePorCientoSeNiega) {
    ASSERT_EQ(Base1944().Columnas(), 1944.0F);
    Porcentajes p = Iguales(40, 30, 30);
    for (std::size_t m = 0; m < 6; ++m) p[0][m] = 100;
    for (std::size_t m = 6; m < 9; ++m) {
        p[0][m] = 60;
        p[1][m] = 40;
    }
    base::AzarEstandar azar(11);
    {
        EnCarpeta e(Base1944());
        DialogoGuionado dialogo;
        EXPECT_EQ(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "194", p, azar, dialogo), 194);
        EXPECT_TRUE(dialogo.Textos().empty());
    }
    {
        EnCarpeta e(Base1944());
        DialogoGuionado dialogo;
        dialogo.Responder(base::Respuesta::No);
        EXPECT_FALSE(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "195", p, azar, dialogo));
        EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kPreguntaExcesivo)});
        EXPECT_EQ(dialogo.PorDefecto(), std::vector<base::Respuesta>{base::Respuesta::No});
        EXPECT_FALSE(std::filesystem::exists(e.carpeta / std::string(engine::kCmbTmp)));
    }
    {
        EnCarpeta e(Base1944());
        DialogoGuionado dialogo;
        dialogo.Responder(base::Respuesta::Si);
        EXPECT_TRUE(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "291", p, azar, dialogo));
        EXPECT_EQ(dialogo.Textos().front(), kPreguntaExcesivo);
    }
    {
        EnCarpeta e(Base1944());
        DialogoGuionado dialogo;
        EXPECT_FALSE(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "292", p, azar, dialogo));
        EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kMsgMuyElevado)});
    }
}

TEST(PorPorcentajes, UnNumeroVacioONoNumericoLoPide) {
    for (const char* numero : {"", "  ", "doce", "12a", "0", "-8"}) {
        EnCarpeta e(Triples());
        DialogoGuionado dialogo;
        base::AzarEstandar azar(1);
        EXPECT_FALSE(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), numero, Iguales(50, 30, 20),
                                           azar, dialogo));
        EXPECT_EQ(dialogo.Textos(),
                  std::vector<std::string>{std::string(kMsgSinNumeroPorcentajes)});
    }
}

TEST(PorPorcentajes, UnPartidoQueNoSumaCienSeDiceYNoSeTocaNada) {
    EnCarpeta e(Triples());
    const auto ruta = e.carpeta / std::string(engine::kCmbTmp);
    {
        base::ArchivoDe<engine::RegistroColumna> cmb(ruta);
        engine::RegistroColumna r;
        r.columna.fill('1');
        cmb.Anadir(r);
        cmb.Cerrar();
    }
    Porcentajes p = Iguales(50, 30, 20);
    p[1][6] = 31;
    const auto antes = e.comb;
    DialogoGuionado dialogo;
    base::AzarEstandar azar(1);
    EXPECT_FALSE(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "16", p, azar, dialogo));
    EXPECT_EQ(dialogo.Textos(),
              std::vector<std::string>{"Los porcentajes del partido 7 no suman 100"});
    EXPECT_EQ(base::CuentaRegistros(ruta, engine::RegistroColumna::kLongitud), 1);
    EXPECT_EQ(e.comb.origenPorcentajes, antes.origenPorcentajes);
}

TEST(PorPorcentajes, UnSignoFueraDeLaBaseNoCuentaEnLaSuma) {
    // Partido 1 fijo al 1: solo su 100 cuenta, aunque la tabla traiga otra cosa en X y 2.
    EnCarpeta e(Triples(1));
    Porcentajes p = Iguales(50, 30, 20);
    p[0][0] = 100;
    DialogoGuionado dialogo;
    base::AzarEstandar azar(1);
    EXPECT_EQ(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "16", p, azar, dialogo), 16);
    EXPECT_EQ(e.comb.tablaPorcentajes[1][0], 0);
    EXPECT_EQ(e.comb.tablaPorcentajes[0][0], 100);
}

// Cuántas llevan cada signo en la posición del partido (los blancos no cuentan).
Cupos Cuenta(const std::vector<engine::RegistroColumna>& registros, std::size_t m) {
    Cupos cuenta{};
    for (const auto& r : registros) {
        const int s = engine::IndiceSigno(r.columna[m]);
        if (s >= 0) ++cuenta[static_cast<std::size_t>(s)];
    }
    return cuenta;
}

TEST(PorPorcentajes, ConSemillaFijaCadaPartidoQuedaAUnaColumnaDeSusCuposYSinRepetidas) {
    std::mt19937 motor(99);
    int completas = 0;
    for (int vuelta = 0; vuelta < 20; ++vuelta) {
        // Entre 10 y 80 cada signo: hay columnas distintas de sobra para n.
        Porcentajes p{};
        for (std::size_t m = 0; m < engine::kPartidos; ++m) {
            const auto uno = static_cast<std::uint8_t>(10 + motor() % 71);
            const auto equis = static_cast<std::uint8_t>(10 + motor() % (81 - uno));
            p[0][m] = uno;
            p[1][m] = equis;
            p[2][m] = static_cast<std::uint8_t>(100 - uno - equis);
        }
        const std::int32_t n = 8 * static_cast<std::int32_t>(1 + motor() % 200);
        EnCarpeta e(Triples());
        DialogoGuionado dialogo;
        base::AzarEstandar azar(static_cast<std::uint64_t>(vuelta));
        const auto generadas =
            GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), std::to_string(n), p, azar, dialogo);
        ASSERT_TRUE(generadas);
        const auto cmb = e.Cmb();
        ASSERT_EQ(cmb.size(), static_cast<std::size_t>(n));
        const std::vector<engine::RegistroColumna> entregadas(cmb.begin(),
                                                              cmb.begin() + *generadas);
        std::set<std::string> distintas;
        for (const auto& r : entregadas) distintas.insert(engine::TextoDeColumna(r.columna));
        EXPECT_EQ(distintas.size(), entregadas.size()) << "vuelta " << vuelta;
        // Una columna que quitó QuitarRepes y no se pudo rehacer deja su hueco en los cupos.
        const std::int32_t faltan = n - *generadas;
        if (faltan > 0) {
            EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{MsgSoloSePudieron(*generadas)});
        } else {
            ++completas;
        }
        for (std::size_t m = 0; m < engine::kPartidos; ++m) {
            const Cupos cupos = CuposDePartido(n, {p[0][m], p[1][m], p[2][m]});
            const Cupos cuenta = Cuenta(entregadas, m);
            for (std::size_t s = 0; s < 3; ++s) {
                EXPECT_LE(cuenta[s], cupos[s]) << "vuelta " << vuelta << " partido " << m + 1;
                EXPECT_GE(cuenta[s] + faltan + 1, cupos[s])
                    << "vuelta " << vuelta << " partido " << m + 1 << " signo " << s;
            }
        }
    }
    // Con una sola repetida la última pasada la rehace igual (los cupos fuerzan cada signo), así
    // que no todas llegan a n; las que llegan quedan a una columna de sus cupos.
    EXPECT_GT(completas, 0);
}

TEST(PorPorcentajes, LaCombinacionQuedaComoElRepartoLaDeja) {
    EnCarpeta e(Triples(4));
    Porcentajes p = Iguales(40, 35, 25);
    for (std::size_t m = 0; m < 4; ++m) p[0][m] = 100;
    e.comb.rechazos.porCondicion[2] = 7;
    e.comb.totalReducidas = 30;
    DialogoGuionado dialogo;
    base::AzarEstandar azar(4);
    EXPECT_EQ(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "200", p, azar, dialogo), 200);
    EXPECT_EQ(e.comb.origenPorcentajes, 1);
    EXPECT_EQ(e.comb.valorPorcentajes, 200);
    EXPECT_EQ(e.comb.totalGeneradas, 200);
    EXPECT_EQ(e.comb.activasGeneradas, 200);
    EXPECT_EQ(e.comb.totalReducidas, 0);
    EXPECT_EQ(e.comb.rechazos, engine::Rechazos{});
    EXPECT_EQ(e.comb.tablaPorcentajes[1][6], 35);
    EXPECT_EQ(e.comb.panel.condicionada, 200);
    for (const auto& r : e.Cmb()) {
        EXPECT_EQ(engine::TextoDeColumna(r.columna).substr(0, 4), "1111");
        EXPECT_EQ(r.pleno, e.comb.pleno);
        EXPECT_TRUE(r.Activa());
    }
}

TEST(PorPorcentajes, SiLaBaseNoDaTantasDistintasParaTrasQuincePasadasYLoDice) {
    // Cinco triples al 100 % del 1: solo el sexto varía, así que hay 3 columnas distintas.
    engine::QuinielaBase base = Triples(8);
    Porcentajes p = Iguales(100, 0, 0);
    p[0][13] = 34;
    p[1][13] = 33;
    p[2][13] = 33;
    const Reparto r = [&] {
        base::AzarEstandar azar(8);
        return RepartirPorPorcentajes(base, base.Pleno(), 16, p, azar);
    }();
    EXPECT_EQ(r.pasadas, 15);
    EXPECT_EQ(r.generadas, 3);
    ASSERT_EQ(r.registros.size(), 16U);
    // Tras la última pasada, la cola son registros en blanco.
    EXPECT_EQ(engine::TextoDeColumna(r.registros[15].columna), std::string(14, ' '));
    EXPECT_EQ(engine::TextoDeColumna(r.registros[0].columna).substr(0, 8), "11111111");

    EnCarpeta e(base);
    DialogoGuionado dialogo;
    base::AzarEstandar azar(8);
    EXPECT_EQ(GenerarPorPorcentajes(e.comb, e.carpeta.Ruta(), "16", p, azar, dialogo), 3);
    EXPECT_EQ(
        dialogo.Textos(),
        std::vector<std::string>{"Sólo se pudieron generar 3 columnas con los requisitos pedidos"});
    // Los blancos no se quitan: el archivo tiene los 16 registros.
    EXPECT_EQ(e.Cmb().size(), 16U);
    EXPECT_EQ(e.comb.valorPorcentajes, 3);
}

TEST(PorPorcentajes, SumaCienTocaLaCompanera) {
    const engine::QuinielaBase base = Triples();
    Porcentajes p = Iguales(50, 30, 20);
    const auto fila = [&] { return std::array{p[0][0], p[1][0], p[2][0]}; };
    // El 1 a 60: sobran 10, que salen de la X.
    p[0][0] = 60;
    SumaCien(p, base, 1, 0);
    EXPECT_EQ(fila(), (std::array<std::uint8_t, 3>{60, 20, 20}));
    // El 1 a 95: sobran 35 y la X solo tiene 20: la X a 0 y el 2 a 100 - 95.
    p[0][0] = 95;
    SumaCien(p, base, 1, 0);
    EXPECT_EQ(fila(), (std::array<std::uint8_t, 3>{95, 0, 5}));
    // El 2 a 50: sobran 45, que salen del 1 (la compañera del 2, dando la vuelta).
    p[2][0] = 50;
    SumaCien(p, base, 1, 2);
    EXPECT_EQ(fila(), (std::array<std::uint8_t, 3>{50, 0, 50}));
    // La X a 90: sobran 90 y el 2 tiene 50: el 2 a 0 y el 1 (el siguiente, dando la vuelta) a 10.
    p[1][0] = 90;
    SumaCien(p, base, 1, 1);
    EXPECT_EQ(fila(), (std::array<std::uint8_t, 3>{10, 90, 0}));
    // La X a 60: faltan 30, al 2.
    p[1][0] = 60;
    SumaCien(p, base, 1, 1);
    EXPECT_EQ(fila(), (std::array<std::uint8_t, 3>{10, 60, 30}));
    // Sumando 100 no cambia nada.
    SumaCien(p, base, 1, 0);
    EXPECT_EQ(fila(), (std::array<std::uint8_t, 3>{10, 60, 30}));
}

TEST(PorPorcentajes, SumaCienSaltaElSignoQueNoEstaEnLaBase) {
    engine::QuinielaBase base = Triples();
    base.Elegir(2, 2, false);  // partido 2: "1X"
    Porcentajes p{};
    p[0][1] = 70;
    p[1][1] = 50;
    // La compañera de la X es el 1 (el 2 no está en la base).
    SumaCien(p, base, 2, 1);
    EXPECT_EQ((std::array{p[0][1], p[1][1], p[2][1]}), (std::array<std::uint8_t, 3>{50, 50, 0}));
    p[1][1] = 20;
    SumaCien(p, base, 2, 1);
    EXPECT_EQ((std::array{p[0][1], p[1][1], p[2][1]}), (std::array<std::uint8_t, 3>{80, 20, 0}));
}

TEST(PorPorcentajes, LasTeclasDeUnaCelda) {
    EXPECT_EQ(TeclaEnCelda("45", '\x7f'), "0");
    EXPECT_EQ(TeclaEnCelda("45", '\b'), "4");
    EXPECT_EQ(TeclaEnCelda("4", '\b'), "0");
    EXPECT_EQ(TeclaEnCelda("0", '7'), "7");
    EXPECT_EQ(TeclaEnCelda("7", '5'), "75");
    EXPECT_EQ(TeclaEnCelda("75", '1'), "75");
    EXPECT_EQ(TeclaEnCelda("10", '0'), "100");
    EXPECT_EQ(TeclaEnCelda("100", '0'), "100");
    EXPECT_EQ(TeclaEnCelda("10", '5'), "10");
    EXPECT_EQ(TeclaEnCelda("33", 'a'), "33");
}

TEST(PorPorcentajes, QueCeldasSeEditanYQueMuestraLaRejillaAlAbrirse) {
    engine::Combinacion c;
    c.base = Triples(1);
    c.base.Elegir(2, 2, false);
    EXPECT_FALSE(CeldaEditable(c.base, 1, 0));
    EXPECT_TRUE(CeldaEditable(c.base, 2, 1));
    EXPECT_FALSE(CeldaEditable(c.base, 2, 2));
    c.tablaPorcentajes = Iguales(20, 30, 50);
    Porcentajes p = PorcentajesAlAbrir(c);
    EXPECT_EQ(p[0][0], 100);
    EXPECT_EQ(p[1][0], 0);
    EXPECT_EQ(p[1][5], 0);
    c.origenPorcentajes = 1;
    p = PorcentajesAlAbrir(c);
    EXPECT_EQ(p[0][0], 100);
    EXPECT_EQ(p[1][5], 30);
    EXPECT_EQ(p[2][1], 0);
}

}  // namespace
}  // namespace quinteva::builders
