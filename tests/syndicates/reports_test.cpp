// Los informes de una Peña: sus cuentas y las de un Apostante, y los documentos que se imprimen.
#include "syndicates/reports.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quinteva::syndicates {
namespace {

std::vector<RegJornadaPena> Setenta() { return std::vector<RegJornadaPena>(kJornadasPena); }

bool Tiene(const outputs::Impresion& hoja, const std::string& texto, int pagina = 0) {
    const auto& textos = hoja.Textos();
    return std::any_of(textos.begin(), textos.end(), [&](const outputs::TextoImpreso& t) {
        return t.texto == texto && (pagina == 0 || t.pagina == pagina);
    });
}

TEST(InformePena, SinJornadasJugadasCerosYSinPorcentaje) {
    const Cuentas c = CuentasDePena(Setenta());
    EXPECT_EQ(c.jornadasJugadas, 0);
    EXPECT_EQ(c.invertido, "0,00");
    EXPECT_EQ(c.resultado, "0,00");
    EXPECT_FALSE(c.resultadoNegativo);
    EXPECT_FALSE(c.porcentaje);
    EXPECT_TRUE(c.filas.empty());
}

TEST(InformePena, SoloCuentanLasJornadasConColumnasYElResultadoNegativo) {
    auto jornadas = Setenta();
    jornadas[2].numColumnas = 16;
    jornadas[2].importe = 12;
    jornadas[2].totalCobrado = 3;
    jornadas[2].gastos = 1;
    // Sin columnas no cuenta aunque tenga importes.
    jornadas[3].importe = 50;
    jornadas[9].numColumnas = 8;
    jornadas[9].importe = 6;
    jornadas[9].totalCobrado = 40;
    const Cuentas c = CuentasDePena(jornadas);
    EXPECT_EQ(c.jornadasJugadas, 2);
    EXPECT_EQ(c.invertido, "18,00");
    EXPECT_EQ(c.obtenido, "43,00");
    EXPECT_EQ(c.gastos, "1,00");
    EXPECT_EQ(c.resultado, "24,00");
    EXPECT_FALSE(c.resultadoNegativo);
    EXPECT_EQ(c.porcentaje, "133,33% ");
    ASSERT_EQ(c.filas.size(), 2U);
    EXPECT_EQ(c.filas[0].jornada, 3);
    EXPECT_EQ(c.filas[0].resultado, "-10,00");
    EXPECT_EQ(c.filas[1].jornada, 10);
    jornadas[9].totalCobrado = 0;
    const Cuentas perdida = CuentasDePena(jornadas);
    EXPECT_TRUE(perdida.resultadoNegativo);
    EXPECT_EQ(perdida.resultado, "-16,00");
}

TEST(InformeApostante, LasJornadasConCuotaSinGastos) {
    RegApostante a;
    a.nombre = "Alba";
    a.cuotas[1] = 2;
    a.cuotas[70] = 3;
    a.obtenido[70] = 10;
    a.obtenido[5] = 99;  // sin cuota no sale
    const Cuentas c = CuentasDeApostante(a);
    EXPECT_EQ(c.jornadasJugadas, 2);
    EXPECT_EQ(c.invertido, "5,00");
    EXPECT_EQ(c.obtenido, "10,00");
    EXPECT_EQ(c.resultado, "5,00");
    EXPECT_EQ(c.porcentaje, "100,00% ");
    ASSERT_EQ(c.filas.size(), 2U);
    EXPECT_EQ(c.filas[1].jornada, 70);
    EXPECT_TRUE(c.filas[1].gastos.empty());
}

RegPena Pena() {
    RegPena p;
    p.nombre = "Peña Los Amigos";
    p.temporada = "23/24";
    return p;
}

TEST(DocumentosPena, LaJornadaEnteraConElPieDeCadaPagina) {
    PaginaJornada p;
    p.jornada = 12;
    p.fecha = "10/12/23";
    p.numColumnas = "4";
    p.importe = "3,00";
    p.acertadas = {"0", "0", "0", "0", "0", "1"};
    p.premios = {"0,00", "0,00", "0,00", "0,00", "0,00", "100,00"};
    p.totalCobrado = p.aRepartir = "100,00";
    p.gastos = "0,00";
    p.filas = {{"Alba", "1,50", "50,000", "50,00"}, {"Benito", "1,50", "50,000", "50,00"}};
    p.totalJugado = "3,00";
    p.totalObtenido = "100,00";
    const auto hoja = ImpresionJornada(Pena(), p);
    for (const char* texto : {"Quinteva - Peñas",
                              " Jornada: 12 Fecha: 10/12/23",
                              "Jugado",
                              "Nº Columnas",
                              "Importe",
                              "Nº de Apostantes",
                              "Obtenido",
                              "Col.acertadas",
                              "Cobra c/u",
                              "De 15",
                              "De 10",
                              "Total cobrado",
                              "Gastos",
                              "A repartir",
                              "Apostantes",
                              "Nombre",
                              "Particip.%",
                              "Benito",
                              "100%",
                              "Quinteva  Temp. 23/24",
                              "Página 1"}) {
        EXPECT_TRUE(Tiene(hoja, texto)) << texto;
    }
    EXPECT_EQ(hoja.Paginas(), 1);
}

TEST(DocumentosPena, ApostantesEInformeConSusPaginas) {
    std::vector<RegApostante> apostantes(30);
    for (std::size_t i = 0; i < apostantes.size(); ++i) {
        apostantes[i].nombre = "Apostante " + std::to_string(i + 1);
        apostantes[i].nif = "0000000" + std::to_string(i % 10);
        apostantes[i].cuotas[1] = 1;
        apostantes[i].cuotas[2] = 1;
    }
    const auto hoja = ImpresionApostantes(Pena(), apostantes);
    EXPECT_TRUE(Tiene(hoja, "Informe de Apostantes", 1));
    EXPECT_TRUE(Tiene(hoja, "DNI: 00000003"));
    EXPECT_TRUE(Tiene(hoja, "Apostante 30"));
    ASSERT_GT(hoja.Paginas(), 1);
    for (int pagina = 1; pagina <= hoja.Paginas(); ++pagina) {
        EXPECT_TRUE(Tiene(hoja, "Página " + std::to_string(pagina), pagina));
        EXPECT_TRUE(Tiene(hoja, "Quinteva  Temp. 23/24", pagina));
    }
    auto jornadas = Setenta();
    jornadas[0].numColumnas = 4;
    jornadas[0].importe = 3;
    const auto informe = ImpresionInformePena(Pena(), CuentasDePena(jornadas));
    EXPECT_TRUE(Tiene(informe, "Detalle de Jornadas jugadas"));
    EXPECT_TRUE(Tiene(informe, "Total Gastos (euros):"));
    EXPECT_TRUE(Tiene(informe, "-3,00"));
    const auto participes = ImpParticipes(Pena(), apostantes);
    EXPECT_TRUE(Tiene(participes, "Relación de Apostantes en base de datos"));
    EXPECT_TRUE(Tiene(participes, "Pag. 1"));
}

}  // namespace
}  // namespace quinteva::syndicates
