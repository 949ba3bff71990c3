#include "outputs/conditions_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "base/record_files.h"
#include "outputs/line_pages.h"
#include "outputs/text_width.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

// Una base de 2 triples y 2 dobles 1X, el resto "1", con equipos.
engine::Combinacion Combinacion() {
    engine::Combinacion c;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) c.base.Elegir(p, s, s == 0 || p <= 2 || (p <= 4 && s == 1));
        c.base.PonerEquipos(p, "Local" + std::to_string(p) + " - Visitante");
    }
    c.base.PonerGoles("2", "M");
    c.condiciones = engine::CondicionesIniciales(c.base);
    return c;
}

const CabeceraCondiciones kCabecera{25, "12/03/25", "Mia"};

std::vector<std::string> Textos(const Impresion& impresion, int pagina = 0) {
    std::vector<std::string> textos;
    for (const auto& t : impresion.Textos()) {
        if (pagina == 0 || t.pagina == pagina) textos.push_back(t.texto);
    }
    return textos;
}

bool Tiene(const Impresion& impresion, const std::string& texto, int pagina = 0) {
    const auto textos = Textos(impresion, pagina);
    return std::find(textos.begin(), textos.end(), texto) != textos.end();
}

// Las celdas de la fila de la tabla de la base cuyo número es n (la primera celda "n" que hay
// después de la cabecera, que acaba en "  2 "), de izquierda a derecha.
std::vector<std::string> FilaDeLaBase(const Impresion& impresion, int n) {
    const auto& textos = impresion.Textos();
    auto cabecera = std::find_if(textos.begin(), textos.end(),
                                 [](const TextoImpreso& t) { return t.texto == "  2 "; });
    auto celda = std::find_if(cabecera, textos.end(),
                              [&](const TextoImpreso& t) { return t.texto == std::to_string(n); });
    std::map<float, std::string> fila;
    for (const auto& t : textos) {
        if (t.pagina == celda->pagina && t.y == celda->y) fila[t.x] = t.texto;
    }
    std::vector<std::string> celdas;
    for (const auto& [x, texto] : fila) celdas.push_back(texto);
    return celdas;
}

DatosPrevios Datos(std::int32_t total, std::int32_t activas) {
    DatosPrevios d;
    d.reduccion = "Sin reducir";
    d.total = total;
    d.activas = activas;
    return d;
}

TEST(InformeCondiciones, SinCondicionesSoloElResumenYLaQuinielaBase) {
    const auto informe = InformeCondiciones(Combinacion(), kCabecera, Datos(36, 36));
    EXPECT_EQ(informe.Paginas(), 1);
    EXPECT_TRUE(Tiene(informe, std::string(kTituloCondiciones)));
    EXPECT_TRUE(Tiene(informe, "Jornada: 25    Fecha: 12/03/25    Nombre: Mia"));
    EXPECT_TRUE(Tiene(informe,
                      "Sin reducir   Apuestas eliminadas manual.: 0   Apuestas jugadas: "
                      "36 (27,00 €)"));
    EXPECT_TRUE(Tiene(informe, "Quiniela Base"));
    for (const char* seccion : {"Generales", "Seguidos", "Interrupciones", "Repeticiones", "Sumas",
                                "Parejas", "Tríos", "Comparaciones", "Grupos", "Aciertos"}) {
        EXPECT_FALSE(Tiene(informe, seccion)) << seccion;
    }
    // La cabecera de la Jornada y el pie de la página.
    EXPECT_TRUE(Tiene(informe, "Jornada: 25    Fecha: 12/03/25"));
    EXPECT_TRUE(Tiene(informe, "Página 1"));
    EXPECT_TRUE(Tiene(informe, "Quinteva (quinteva.example)"));
}

TEST(InformeCondiciones, LaFilaDeUnPartidoConSusSignosYSusPorcentajes) {
    DatosPrevios d = Datos(10, 10);
    d.signos[0] = {5, 0, 5};
    const auto informe = InformeCondiciones(Combinacion(), kCabecera, d);
    // El partido 1 es triple; su X no la lleva ninguna columna: en blanco.
    EXPECT_EQ(FilaDeLaBase(informe, 1),
              (std::vector<std::string>{"1", "Local1 - Visitante", "1", "X", "2", "50", "50"}));
    // El Pleno: sus goles en las columnas del 1 y del 2.
    const auto pleno = FilaDeLaBase(informe, 15);
    ASSERT_GE(pleno.size(), 3U);
    EXPECT_EQ(std::vector<std::string>(pleno.end() - 2, pleno.end()),
              (std::vector<std::string>{"2", "M"}));
}

TEST(InformeCondiciones, LasEliminadasCuentanPeroDividenLasActivas) {
    // 30 registros con "1" en el partido 5, de los que solo 10 siguen activos: 300 %.
    DatosPrevios d = Datos(30, 10);
    d.signos[4] = {30, 0, 0};
    const auto informe = InformeCondiciones(Combinacion(), kCabecera, d);
    const auto fila = FilaDeLaBase(informe, 5);
    EXPECT_EQ(fila.back(), "300");
    EXPECT_TRUE(Tiene(informe,
                      "Sin reducir   Apuestas eliminadas manual.: 20   Apuestas "
                      "jugadas: 10 (7,50 €)"));
}

TEST(InformeCondiciones, CadaFamiliaActivaConSusValoresYLasPaginasConCabeceraYPie) {
    engine::Combinacion c = Combinacion();
    auto& k = c.condiciones;
    k.casilla.fill(true);
    k.minEquis = 3;
    k.maxSeg[2] = 4;
    k.minInterCons = 2;
    k.longRep[1] = 5;
    k.limiteRep[1] = 2;
    k.sumaMinima = 120;
    k.sumaMaxima = 480;
    k.sumasTabla[1][13] = 37;
    k.minPareja[5] = 1;
    k.maxTrio[26] = 3;
    k.listas[0][1] = 3;
    k.listas[0][2] = 7;
    k.numListas[0] = 2;
    k.comparaciones[0] = {1, 2, 1, 4, 3, 2};
    k.toleranciaGrupos = 1;
    for (int g : {0, 7, 49}) {
        auto& grupo = k.grupos[static_cast<std::size_t>(g)];
        grupo.activo = true;
        grupo.partidos[2] = grupo.partidos[9] = true;
        grupo.max[3] = 4;
    }
    k.toleranciaGruposAc = 2;
    auto& ac = k.gruposAc[3];
    ac.activo = true;
    ac.signos[6] = {'1', 'X', ' '};
    ac.aciertosMin = 1;
    ac.fallosMax = 6;
    const auto informe = InformeCondiciones(c, kCabecera, Datos(36, 36));
    for (const char* texto : {"Generales",
                              "Nº de Equis",
                              "Seguidos",
                              "Doses seguidos",
                              "Var. seguidas",
                              "Interrupciones",
                              "Totales",
                              "Consecutivas",
                              "Repeticiones",
                              "Nº de signos",
                              "Máximo",
                              "V",
                              "Sumas",
                              "%1",
                              "%X",
                              "%2",
                              "37",
                              "120",
                              "480",
                              "Parejas",
                              "X2",
                              "Tríos",
                              "222",
                              "Comparaciones",
                              "Partidos que incluye",
                              "Col. A:",
                              "3, 7",
                              "Condiciones",
                              "  Nº de X de Col. A",
                              ">=",
                              "  Nº de 2 de Col. B",
                              "Grupos",
                              "Tolerancia Grupos fallados: 1",
                              "Nº 1   Partidos: 3, 10",
                              "Nº 8   Partidos: 3, 10",
                              "Nº 50   Partidos: 3, 10",
                              "Variantes",
                              "Aciertos",
                              "Tolerancia Grupos de Aciertos fallados: 2",
                              "Nº 4",
                              "Pronóstico de cada Partido",
                              "1X",
                              "Fallos"}) {
        EXPECT_TRUE(Tiene(informe, texto)) << texto;
    }
    // Las secciones en su orden.
    const auto textos = Textos(informe);
    std::vector<std::size_t> posiciones;
    for (const char* seccion :
         {"Quiniela Base", "Generales", "Seguidos", "Interrupciones", "Repeticiones", "Sumas",
          "Parejas", "Tríos", "Comparaciones", "Grupos", "Aciertos"}) {
        posiciones.push_back(static_cast<std::size_t>(
            std::find(textos.begin(), textos.end(), seccion) - textos.begin()));
    }
    EXPECT_TRUE(std::is_sorted(posiciones.begin(), posiciones.end()));
    // Varias páginas: cada una con la cabecera de la Jornada, su número y la línea del producto;
    // el título solo en la primera.
    ASSERT_GE(informe.Paginas(), 3);
    for (int p = 1; p <= informe.Paginas(); ++p) {
        EXPECT_TRUE(Tiene(informe, "Jornada: 25    Fecha: 12/03/25", p)) << p;
        EXPECT_TRUE(Tiene(informe, "Página " + std::to_string(p), p)) << p;
        EXPECT_TRUE(Tiene(informe, "Quinteva (quinteva.example)", p)) << p;
        EXPECT_EQ(Tiene(informe, std::string(kTituloCondiciones), p), p == 1) << p;
    }
    // Ningún texto baja del margen de abajo salvo el pie.
    for (const auto& t : informe.Textos()) {
        if (t.texto.rfind("Página", 0) == 0 || t.texto == "Quinteva (quinteva.example)") continue;
        EXPECT_LE(t.y, 16838.0F - HojaDeLineas::kMargen) << t.texto;
    }
}

TEST(InformeCondiciones, DatosPreviosDelAlmacenQueSeJuega) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "0,5");
    engine::Combinacion c = Combinacion();
    {
        base::ArchivoDe<engine::RegistroColumna> red(carpeta / std::string(engine::kRedTmp));
        for (const char* columna : {"1X21111111111X", "1121111111111X", "X121111111111X"}) {
            red.Anadir({engine::ColumnaDeTexto(columna), {'2', 'M'}, engine::kActiva});
        }
        red.Cerrar();
    }
    c.jugada = "red";
    c.totalReducidas = 3;
    c.activasReducidas = 2;
    c.panel.reducidas[1] = 3;
    c.panel.reducidas[2] = 9;
    const DatosPrevios d = LeerDatosPrevios(c, carpeta.Ruta(), ajustes);
    EXPECT_EQ(d.reduccion, "Reducida al 12");
    EXPECT_EQ(d.total, 3);
    EXPECT_EQ(d.activas, 2);
    EXPECT_EQ(d.signos[0], (std::array<std::int32_t, 3>{2, 1, 0}));
    EXPECT_EQ(d.signos[13], (std::array<std::int32_t, 3>{0, 3, 0}));
    EXPECT_EQ(LineaResumen(d),
              "Reducida al 12   Apuestas eliminadas manual.: 1   Apuestas jugadas: 2 (1,00 €)");
    // Sin "red", las generadas; sin almacén, ningún signo.
    c.jugada = "cnd";
    c.totalGeneradas = c.activasGeneradas = 1234;
    const DatosPrevios g = LeerDatosPrevios(c, carpeta.Ruta(), ajustes);
    EXPECT_EQ(g.reduccion, "Sin reducir");
    EXPECT_EQ(g.signos[0], (std::array<std::int32_t, 3>{}));
    EXPECT_EQ(LineaResumen(g),
              "Sin reducir   Apuestas eliminadas manual.: 0   Apuestas jugadas: 1.234 (617,00 €)");
}

TEST(InformeCondiciones, AnchosParaCentrar) {
    EXPECT_FLOAT_EQ(AnchoDeTexto("10", "Arial", 10, false), 2 * 556 * 10 * 20 / 1000.0F);
    EXPECT_FLOAT_EQ(AnchoDeTexto("ab", "Courier New", 9, true), 2 * 600 * 9 * 20 / 1000.0F);
    EXPECT_GT(AnchoDeTexto("Máximo", "Arial", 9, true), AnchoDeTexto("Máximo", "Arial", 9, false));
}

}  // namespace
}  // namespace quinteva::outputs
