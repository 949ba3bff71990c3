#include "outputs/print_slips.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "outputs/print_range.h"
#include "outputs/slip_marks.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"

namespace quinteva::outputs {
namespace {

using base::Respuesta;
using engine::RegistroColumna;
using pruebas::AjustesEnMemoria;
using pruebas::DialogoGuionado;

RegistroColumna Columna(std::string_view signos, std::string_view pleno) {
    RegistroColumna r;
    r.columna = engine::ColumnaDeTexto(signos);
    r.pleno = engine::PlenoDeTexto(pleno);
    return r;
}

// n columnas que van rotando sus signos, con el Pleno "1-M" en la primera de cada boleto.
std::vector<RegistroColumna> Columnas(int n) {
    std::vector<RegistroColumna> columnas;
    const std::string signos = "1X2";
    for (int c = 0; c < n; ++c) {
        std::string texto;
        for (int i = 0; i < engine::kPartidos; ++i)
            texto += signos[static_cast<std::size_t>((c + i) % 3)];
        columnas.push_back(Columna(texto, c % 8 == 0 ? "1M" : "00"));
    }
    return columnas;
}

std::vector<TextoImpreso> Marcas(const Impresion& hoja) {
    std::vector<TextoImpreso> marcas;
    for (const auto& t : hoja.Textos()) {
        if (t.texto == kMarca) marcas.push_back(t);
    }
    return marcas;
}

int Paso(char signo) { return signo == 'X' ? 1 : signo == '2' ? 2 : 0; }

TEST(GeometriaBoleto, LosPasosDeFabricaApaisada) {
    const AjustesEnMemoria ajustes;
    const auto g =
        GeometriaDeBoletos(Direccion::Apaisada, ValoresGuardados(ajustes, Direccion::Apaisada));
    EXPECT_EQ(g.origenX, 2340);
    EXPECT_EQ(g.origenY, 1040);
    EXPECT_NEAR(g.pasoX, 212.26, 0.005);
    EXPECT_NEAR(g.pasoY, 286.69, 0.005);
}

TEST(GeometriaBoleto, VerticalLeeLosDeApaisadaPeroRestauraLosSuyos) {
    const AjustesEnMemoria ajustes;
    EXPECT_EQ(ValoresGuardados(ajustes, Direccion::Vertical),
              (ValoresAjuste{2340, 1040, 1850, 1130}));
    EXPECT_EQ(ValoresDeRestaurar(Direccion::Vertical), (ValoresAjuste{3930, 2270, 275, 1900}));
    EXPECT_EQ(ValoresDeRestaurar(Direccion::Apaisada), (ValoresAjuste{2340, 1040, 1850, 1130}));
    const auto g = GeometriaDeBoletos(Direccion::Vertical, {3930, 2270, 275, 1900});
    EXPECT_EQ(g.origenX, 275);
    EXPECT_EQ(g.origenY, 2270);
    EXPECT_FLOAT_EQ(g.pasoX, (7897.0F - 3930 - 275) / 13);
    EXPECT_FLOAT_EQ(g.pasoY, (9072.0F - 1900 - 2270) / 23);
}

// Las marcas de un boleto donde dicen las fórmulas, en las dos direcciones y con un ajuste propio.
class MarcasDeUnBoleto : public ::testing::TestWithParam<Direccion> {};

TEST_P(MarcasDeUnBoleto, CadaSignoEnSuCasillaYElPlenoDeLaPrimera) {
    const Direccion d = GetParam();
    const ValoresAjuste valores = {2200, 980, 1700, 1200};
    const GeometriaBoleto g = GeometriaDeBoletos(d, valores);
    const auto columnas = Columnas(8);
    const Impresion hoja = ImprimirUno(columnas, 1, DisposicionDeBoletos(d, valores, "09/03/24"));
    const auto marcas = Marcas(hoja);
    ASSERT_EQ(marcas.size(), 8U * 14 + 2);
    std::size_t m = 0;
    for (int k = 1; k <= 8; ++k) {
        const auto& c = columnas[static_cast<std::size_t>(k - 1)];
        for (int i = 0; i < 14; ++i, ++m) {
            const float grupo = (k - 1) * 3.0F;
            const int s = Paso(c.columna[static_cast<std::size_t>(i)]);
            const float x = d == Direccion::Apaisada ? grupo * g.pasoX + g.origenX + s * g.pasoX
                                                     : i * g.pasoX + g.origenX;
            const float y = d == Direccion::Apaisada ? i * g.pasoY + g.origenY
                                                     : grupo * g.pasoY + g.origenY + s * g.pasoY;
            EXPECT_FLOAT_EQ(marcas[m].x, x) << k << " " << i;
            EXPECT_FLOAT_EQ(marcas[m].y, y) << k << " " << i;
            EXPECT_EQ(marcas[m].fuente, "Arial");
            EXPECT_EQ(marcas[m].tamano, 14);
            EXPECT_TRUE(marcas[m].negrita);
        }
        if (k != 1) continue;
        // El Pleno "1-M" de la primera columna, tras sus marcas.
        if (d == Direccion::Apaisada) {
            EXPECT_FLOAT_EQ(marcas[m].x, 7 * g.pasoX + g.origenX + g.pasoX);
            EXPECT_FLOAT_EQ(marcas[m + 1].x, 20 * g.pasoX + g.origenX + 3 * g.pasoX);
            EXPECT_FLOAT_EQ(marcas[m].y, 14 * g.pasoY + g.origenY);
        } else {
            EXPECT_FLOAT_EQ(marcas[m].x, g.origenX - g.pasoX);
            EXPECT_FLOAT_EQ(marcas[m].y, 7 * g.pasoY + g.origenY + g.pasoY);
            EXPECT_FLOAT_EQ(marcas[m + 1].y, 20 * g.pasoY + g.origenY + 3 * g.pasoY);
        }
        m += 2;
    }
    EXPECT_EQ(hoja.Paginas(), 1);
}

INSTANTIATE_TEST_SUITE_P(Direcciones, MarcasDeUnBoleto,
                         ::testing::Values(Direccion::Apaisada, Direccion::Vertical));

TEST(MarcasDeBoleto, LaCabeceraYLaLineaDelProducto) {
    const ValoresAjuste valores = {2340, 1040, 1850, 1130};
    const Impresion apaisada =
        ImprimirUno(Columnas(3), 1, DisposicionDeBoletos(Direccion::Apaisada, valores, "09/03/24"));
    const auto& cabecera = apaisada.Textos()[14];
    EXPECT_EQ(cabecera.texto, "09/03/24 Nº 1");
    EXPECT_EQ(cabecera.tamano, 12);
    EXPECT_FLOAT_EQ(cabecera.x, 2940);
    EXPECT_FLOAT_EQ(cabecera.y, 125);
    const auto& producto = apaisada.Textos()[15];
    EXPECT_EQ(producto.texto, kLineaProducto);
    EXPECT_EQ(producto.tamano, 8);
    EXPECT_FLOAT_EQ(producto.y, 125 + Impresion::AltoDeLinea(12) - 40);

    const Impresion vertical =
        ImprimirUno(Columnas(3), 1, DisposicionDeBoletos(Direccion::Vertical, valores, "09/03/24"));
    const auto& v = vertical.Textos()[14];
    EXPECT_EQ(v.texto, "09/03/24 Nº 1");
    EXPECT_TRUE(v.negrita);
    EXPECT_FLOAT_EQ(v.x, 1850 - 200 + 4366);
    EXPECT_FLOAT_EQ(v.y, 1040 - 200);
}

TEST(MarcasDeBoleto, ElUltimoBoletoConMenosDeOchoLlevaSuCabeceraYSuPleno) {
    const auto columnas = Columnas(9);
    const Impresion hoja = ImprimirUno(
        columnas, 2, DisposicionDeBoletos(Direccion::Apaisada, {2340, 1040, 1850, 1130}, "f"));
    EXPECT_EQ(Marcas(hoja).size(), 14U + 2);
    EXPECT_EQ(hoja.Textos()[14].texto, "f Nº 2");
    // Su Pleno es el de su primera columna, la 9 ("1-M").
    const auto g = GeometriaDeBoletos(Direccion::Apaisada, {2340, 1040, 1850, 1130});
    const auto marcas = Marcas(hoja);
    EXPECT_FLOAT_EQ(marcas[14].x, 7 * g.pasoX + g.origenX + g.pasoX);
    EXPECT_FLOAT_EQ(marcas[15].x, 20 * g.pasoX + g.origenX + 3 * g.pasoX);
}

TEST(MarcasDeBoleto, UnCeroEnElPlenoNoMueveNada) {
    const ValoresAjuste valores = {2340, 1040, 1850, 1130};
    const auto g = GeometriaDeBoletos(Direccion::Apaisada, valores);
    const auto marcas =
        Marcas(ImprimirUno(std::vector{Columna("11111111111111", "02")}, 1,
                           DisposicionDeBoletos(Direccion::Apaisada, valores, "f")));
    EXPECT_FLOAT_EQ(marcas[14].x, 7 * g.pasoX + g.origenX);
    EXPECT_FLOAT_EQ(marcas[15].x, 20 * g.pasoX + g.origenX + 2 * g.pasoX);
}

TEST(MarcasDeBoleto, EnVerticalElPlenoNuncaCaeAIzquierdaDelPapel) {
    const ValoresAjuste valores = {3930, 2270, 100, 1900};
    const auto g = GeometriaDeBoletos(Direccion::Vertical, valores);
    ASSERT_LT(g.origenX - g.pasoX, 0);
    const auto marcas = Marcas(
        ImprimirUno(Columnas(1), 1, DisposicionDeBoletos(Direccion::Vertical, valores, "f")));
    EXPECT_FLOAT_EQ(marcas[14].x, 0);
    EXPECT_FLOAT_EQ(marcas[15].x, 0);
}

TEST(MarcasDeBoleto, TodosUnBoletoPorPaginaConElNumeroConPuntoDeMillares) {
    const auto columnas = Columnas(1235 * 8);
    const ValoresAjuste valores = {2340, 1040, 1850, 1130};
    const Impresion hoja = ImprimirTodos(columnas, 1233 * 8 + 1, 1235 * 8,
                                         DisposicionDeBoletos(Direccion::Apaisada, valores, "f"));
    EXPECT_EQ(hoja.Paginas(), 2);
    std::vector<std::string> cabeceras;
    for (const auto& t : hoja.Textos()) {
        if (t.tamano == 12) cabeceras.push_back(t.texto + " p" + std::to_string(t.pagina));
    }
    EXPECT_EQ(cabeceras, (std::vector<std::string>{"f Nº 1.234 p1", "f Nº 1.235 p2"}));
    // "Imprimir &Uno" no da formato al número.
    EXPECT_EQ(ImprimirUno(columnas, 1234, DisposicionDeBoletos(Direccion::Apaisada, valores, "f"))
                  .Textos()[14]
                  .texto,
              "f Nº 1234");
}

TEST(MarcasDeBoleto, LosTextosDeUnaPaginaSonLosQueLlevanSuNumero) {
    const Impresion hoja =
        ImprimirTodos(Columnas(20), 1, 20,
                      DisposicionDeBoletos(Direccion::Apaisada, {2340, 1040, 1850, 1130}, "f"));
    ASSERT_EQ(hoja.Paginas(), 3);
    std::size_t total = 0;
    for (int p = 0; p <= 4; ++p) {
        const auto textos = hoja.TextosDePagina(p);
        total += textos.size();
        for (const auto& t : textos) EXPECT_EQ(t.pagina, p);
        EXPECT_EQ(textos.size(), static_cast<std::size_t>(std::count_if(
                                     hoja.Textos().begin(), hoja.Textos().end(),
                                     [p](const TextoImpreso& t) { return t.pagina == p; })));
    }
    EXPECT_EQ(total, hoja.Textos().size());
}

TEST(ImpresionEnBoletos, LaPruebaPideLosCuatroValoresYLosGuarda) {
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    ImpresionEnBoletos boletos(ajustes, dialogo);
    EXPECT_FALSE(boletos.Prueba(Direccion::Vertical, {"3930", "", "275", "1900"}));
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kMsgFaltaAjuste)});
    const auto prueba = boletos.Prueba(Direccion::Vertical, {"3930", "2270", "275", "1900"});
    ASSERT_TRUE(prueba);
    ASSERT_EQ(prueba->Textos().size(), 2U);
    EXPECT_EQ(prueba->Textos()[0].texto, "X");
    EXPECT_EQ(prueba->Textos()[0].tamano, 8);
    EXPECT_FLOAT_EQ(prueba->Textos()[0].x, 7897 - 3930);
    EXPECT_FLOAT_EQ(prueba->Textos()[0].y, 2270);
    EXPECT_FLOAT_EQ(prueba->Textos()[1].x, 275);
    EXPECT_FLOAT_EQ(prueba->Textos()[1].y, 9072 - 1900);
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Valores", "Imp", ""), "Vertical");
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Valores", "VX14", ""), "275");
    EXPECT_EQ(boletos.Geometria(),
              GeometriaDeBoletos(Direccion::Vertical, {3930, 2270, 275, 1900}));
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Avisos", "AjusteBoletos", "NO"), "NO");
    EXPECT_TRUE(boletos.Aceptar(Direccion::Apaisada, {"2340", "1040", "1850", "1130"}));
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Avisos", "AjusteBoletos", "NO"), "SI");
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Valores", "Imp", ""), "Apaisada");
}

TEST(ImpresionEnBoletos, ElAvisoUnaVezPorDireccionYCancelarNoImprime) {
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    ImpresionEnBoletos boletos(ajustes, dialogo);
    const auto columnas = Columnas(16);
    dialogo.Responder(Respuesta::Cancelar);
    EXPECT_FALSE(boletos.ImprimirUno(columnas, 1, "f"));
    dialogo.Responder(Respuesta::Aceptar);
    EXPECT_TRUE(boletos.ImprimirUno(columnas, 1, "f"));
    EXPECT_TRUE(boletos.ImprimirTodos(columnas, 1, 16, "f"));
    ASSERT_TRUE(boletos.Aceptar(Direccion::Vertical, {"3930", "2270", "275", "1900"}));
    dialogo.Responder(Respuesta::Aceptar);
    EXPECT_TRUE(boletos.ImprimirUno(columnas, 2, "f"));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{std::string(kAvisoBoletosApaisada),
                                                          std::string(kAvisoBoletosApaisada),
                                                          std::string(kAvisoBoletosVertical)}));
    EXPECT_TRUE(dialogo.GuionAgotado());
}

TEST(SeleccionDeImpresion, LosLimitesYSuPasoAColumnas) {
    DialogoGuionado dialogo;
    EXPECT_EQ(RangoDeImpresion(dialogo, true, "", "", 5), (RangoDeColumnas{1, 40}));
    EXPECT_EQ(RangoDeImpresion(dialogo, false, "2", "3", 5), (RangoDeColumnas{9, 24}));
    EXPECT_EQ(RangoDeImpresion(dialogo, false, "4", "4", 5), (RangoDeColumnas{25, 32}));
    EXPECT_FALSE(RangoDeImpresion(dialogo, false, "2", " ", 5));
    EXPECT_FALSE(RangoDeImpresion(dialogo, false, "3", "2", 5));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{std::string(kMsgDosLimites),
                                                          std::string(kMsgSegundoLimite)}));
}

}  // namespace
}  // namespace quinteva::outputs
