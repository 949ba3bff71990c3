#include "outputs/print_paper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"

namespace quinteva::outputs {
namespace {

using pruebas::AjustesEnMemoria;
using pruebas::DialogoGuionado;

std::vector<engine::RegistroColumna> DosColumnas() {
    engine::RegistroColumna a;
    a.columna = engine::ColumnaDeTexto("1X21X21X21X21X");
    a.pleno = engine::PlenoDeTexto("2M");
    engine::RegistroColumna b = a;
    b.columna = engine::ColumnaDeTexto("22222222222222");
    return {a, b};
}

TEST(PapelBlanco, LosMargenesDeFabricaEnTwips) {
    const AjustesEnMemoria ajustes;
    const AjustePapel ajuste = AjustePapelGuardado(ajustes);
    EXPECT_EQ(ajuste, AjustePapel{});
    EXPECT_EQ(MilimetrosATwips(30), 1701);
    EXPECT_EQ(MilimetrosATwips(40), 2268);
    const auto g = GeometriaDePapel(Direccion::Apaisada, ajuste);
    EXPECT_EQ(g.origenX, 4018);  // 8335 × 0,278 + 1701 = 4018,13
    EXPECT_EQ(g.origenY, 2330);  // 4139 × 0,015 + 2268 = 2330,085
    EXPECT_FLOAT_EQ(g.pasoX, (8912.0F - 4018) / 23);
    EXPECT_FLOAT_EQ(g.pasoY, (5993.0F - 2330) / 13);
    const auto v = GeometriaDePapel(Direccion::Vertical, ajuste);
    EXPECT_FLOAT_EQ(v.pasoX, (8912.0F - 4018) / 13);
    EXPECT_FLOAT_EQ(v.pasoY, (5993.0F - 2330) / 23);
}

TEST(PapelBlanco, UnMargenMueveIgualLasMarcasYElMarco) {
    AjustePapel ajuste;
    const Impresion antes =
        ImprimirUno(DosColumnas(), 1, DisposicionDePapel(Direccion::Apaisada, ajuste, "f"));
    ajuste.margenIzquierdo = 40;
    const Impresion despues =
        ImprimirUno(DosColumnas(), 1, DisposicionDePapel(Direccion::Apaisada, ajuste, "f"));
    const float mueve = 2268 - 1701;
    ASSERT_EQ(antes.Textos().size(), despues.Textos().size());
    for (std::size_t i = 0; i < antes.Textos().size(); ++i) {
        EXPECT_NEAR(despues.Textos()[i].x - antes.Textos()[i].x, mueve, 0.01) << i;
        EXPECT_FLOAT_EQ(despues.Textos()[i].y, antes.Textos()[i].y) << i;
    }
    ASSERT_EQ(antes.Trazos().size(), despues.Trazos().size());
    for (std::size_t i = 0; i < antes.Trazos().size(); ++i) {
        EXPECT_NEAR(despues.Trazos()[i].x1 - antes.Trazos()[i].x1, mueve, 0.01) << i;
        EXPECT_NEAR(despues.Trazos()[i].x2 - antes.Trazos()[i].x2, mueve, 0.01) << i;
    }
}

TEST(PapelBlanco, ElMarcoConSuBordeDePuntosUnaMarcaPorCasillaYLaNota) {
    const Impresion hoja =
        ImprimirUno(DosColumnas(), 1, DisposicionDePapel(Direccion::Apaisada, AjustePapel{}, "f"));
    const auto punteados = std::count_if(hoja.Trazos().begin(), hoja.Trazos().end(),
                                         [](const TrazoImpreso& t) { return t.punteado; });
    EXPECT_EQ(punteados, 4);
    EXPECT_EQ(hoja.Trazos().size(), 4U + 14 * 24 + 8);
    // El borde es el boleto desde los márgenes.
    EXPECT_FLOAT_EQ(hoja.Trazos()[14 * 24 + 8].x1, 1701);
    EXPECT_FLOAT_EQ(hoja.Trazos()[14 * 24 + 8].y1, 2268);
    EXPECT_FLOAT_EQ(hoja.Trazos()[14 * 24 + 8].x2, 1701 + 8335);
    EXPECT_EQ(hoja.Textos().front().texto, kNotaRecortar);
    // Cada marca de signo cae sobre la raya de su casilla.
    const auto g = GeometriaDePapel(Direccion::Apaisada, AjustePapel{});
    for (const auto& t : hoja.Textos()) {
        if (t.texto != "°") continue;
        const bool sobreUnaRaya =
            std::any_of(hoja.Trazos().begin(), hoja.Trazos().end(), [&](const TrazoImpreso& r) {
                return !r.punteado && std::abs(r.x1 - t.x) < 0.01F &&
                       std::abs(r.y1 - t.y - 150) < 0.01F;
            });
        EXPECT_TRUE(sobreUnaRaya) << t.x << "," << t.y;
    }
    EXPECT_GT(g.pasoX, 0);
}

TEST(PapelBlanco, EnElDorsoSoloLasMarcasDeLasCasillasYLasColumnas) {
    AjustePapel ajuste;
    ajuste.dorso = true;
    const Impresion hoja =
        ImprimirUno(DosColumnas(), 1, DisposicionDePapel(Direccion::Vertical, ajuste, "f"));
    EXPECT_EQ(hoja.Trazos().size(), 14U * 24 + 8);
    for (const auto& t : hoja.Textos()) EXPECT_NE(t.texto, kNotaRecortar);
}

TEST(ImpresionEnPapel, ElAjusteSeGuardaYElAvisoDependeDelDorso) {
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    ImpresionEnPapel papel(ajustes, dialogo, Direccion::Vertical);
    papel.Aceptar({8300, 4100, 25.5F, 38, true});
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Valores", "ImpMgIzq", ""), "25,5");
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Valores", "DB", ""), "1");
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Valores", "ImpDorsoBoleto", ""), "V");
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Avisos", "AjustePapel", "NO"), "SI");
    EXPECT_EQ(AjustePapelGuardado(ajustes), (AjustePapel{8300, 4100, 25.5F, 38, true}));
    dialogo.Responder(base::Respuesta::Aceptar);
    EXPECT_TRUE(papel.ImprimirUno(DosColumnas(), 1, "f"));
    EXPECT_TRUE(papel.ImprimirTodos(DosColumnas(), 1, 8, "f"));
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kAvisoDorsoVertical)});

    DialogoGuionado otro;
    ImpresionEnPapel blanco(ajustes, otro, Direccion::Apaisada);
    blanco.Aceptar(AjustePapel{});
    otro.Responder(base::Respuesta::Cancelar);
    EXPECT_FALSE(blanco.ImprimirUno(DosColumnas(), 1, "f"));
    EXPECT_EQ(otro.Textos(), std::vector<std::string>{std::string(kAvisoPapelBlanco)});
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Valores", "DB", ""), "0");
}

}  // namespace
}  // namespace quinteva::outputs
