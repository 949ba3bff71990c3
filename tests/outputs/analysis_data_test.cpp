#include <gtest/gtest.h>

#include "base/record_files.h"
#include "outputs/analysis_data.h"
#include "outputs/analysis_view.h"
#include "outputs/failure_report.h"
#include "seasons/season_folder.h"
#include "tests/builders/boletos_fixture.h"

namespace quinteva::outputs {
namespace {

using seasons::RegReanalisis;

DatosJugados Datos() {
    DatosJugados d;
    d.generadas = 59049;
    d.condicionada = 1000;
    d.reducidas = {std::nullopt, 120, 80, std::nullopt};
    d.dobles = 2;
    d.triples = 8;
    d.enUso[kEstadoGenerales] = d.enUso[kEstadoConsecutivas] = d.enUso[kEstadoGrupo] = true;
    d.enUso[kEstadoAciertos] = true;
    d.eliminadas = 3;
    return d;
}

TablaAciertos Tabla(std::array<std::int32_t, 7> cuentas) {
    TablaAciertos t;
    t.cuentas = cuentas;
    return t;
}

TEST(Datos, ColumnasPremiosYEstadosDeLoJugado) {
    const RegReanalisis r = RegistroDatos(7, Datos(), Tabla({0, 1, 2, 3, 4, 5, 6}), {});
    EXPECT_EQ(r.jornada, 7);
    EXPECT_EQ(r.columnas, 120);
    EXPECT_EQ(r.reducida, (std::array<int, 4>{0, -1, 0, 0}));
    EXPECT_EQ(r.variantes0, 2);
    EXPECT_EQ(r.variantes1, 8);
    EXPECT_EQ(r.premios, (std::array<std::int32_t, 7>{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(r.condicionada, -1);
    EXPECT_EQ(r.estados, (std::array<std::string, 13>{
                             "Acertada", "Acertado", "No jugado", "Acertado", "No jugado",
                             "No jugado", "No jugado", "No jugado", "No jugado", "No jugado",
                             "Acertado", "Acertado", "Jugado"}));
}

TEST(Datos, SinCondicionesNiReducidasYFilasDelInforme) {
    DatosJugados d = Datos();
    d.condicionada = 59049;
    d.reducidas = {};
    d.eliminadas = 0;
    const std::vector<engine::FilaInforme> fallos = {
        {"Quiniela Base", "Fallo en pronóstico"},
        {"Cond. Generales", "Más de 3 Equis"},
        {"Interrupciones consecutivas", "Más de 2"},
        {"Grupos de Aciertos", "Más de 0 Grupos fallados"},
        {"Eliminadas", "Apuesta eliminada manualmente"}};
    const RegReanalisis r = RegistroDatos(7, d, Tabla({}), fallos);
    EXPECT_EQ(r.columnas, 59049);
    EXPECT_EQ(r.reducida, (std::array<int, 4>{}));
    EXPECT_EQ(r.condicionada, 0);
    // Sin condicionar, las familias quedan "No jugado" hasta que una fila las da por falladas;
    // "Consecutivas" con mayúscula no está en "Interrupciones consecutivas".
    EXPECT_EQ(r.estados, (std::array<std::string, 13>{
                             "Fallada", "Fallado", "No jugado", "No jugado", "No jugado",
                             "No jugado", "No jugado", "No jugado", "No jugado", "No jugado",
                             "Fallado", "Fallado", "Fallado"}));
}

TEST(Datos, DeLaCombinacionAbierta) {
    engine::Combinacion c;
    c.panel.alDirecto = 729;
    c.panel.condicionada = 500;
    c.panel.dobles = 1;
    c.panel.triples = 6;
    c.condiciones.casilla[engine::kCasillaSumas] = true;
    c.condiciones.gruposAc[3].activo = true;
    c.jugada = "red";
    c.totalReducidas = 40;
    c.activasReducidas = 37;
    c.totalGeneradas = 500;
    c.activasGeneradas = 500;
    const DatosJugados d = DatosDe(c);
    EXPECT_EQ(d.generadas, 729);
    EXPECT_EQ(d.condicionada, 500);
    EXPECT_EQ(d.eliminadas, 3);
    EXPECT_TRUE(d.enUso[kEstadoSumas] && d.enUso[kEstadoAciertos]);
    EXPECT_FALSE(d.enUso[kEstadoGrupo] || d.enUso[kEstadoGenerales]);
}

TEST(Datos, SeSobrescribeLaJornadaOSeAnade) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    RegReanalisis r = RegistroDatos(7, Datos(), Tabla({}), {});
    EXPECT_TRUE(GuardarDatos(carpeta.Ruta(), r, dialogo));
    r.jornada = 8;
    EXPECT_TRUE(GuardarDatos(carpeta.Ruta(), r, dialogo));
    r.jornada = 7;
    r.columnas = 99;
    EXPECT_TRUE(GuardarDatos(carpeta.Ruta(), r, dialogo));
    const base::ArchivoDe<RegReanalisis> rean(carpeta / seasons::kRean);
    ASSERT_EQ(rean.Cuenta(), 2);
    EXPECT_EQ(rean.Leer(1).ABytes(), r.ABytes());
    EXPECT_EQ(rean.Leer(2).jornada, 8);
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>(3, "Se han guardados los datos."));
    EXPECT_FALSE(GuardarDatos(carpeta / "no" / "hay", r, dialogo));
    EXPECT_TRUE(dialogo.Textos().back().starts_with("Error: "));
}

TEST(InformeSobreFallos, LasCondicionesQueIncumpleLaGanadora) {
    pruebas::BancoBoletos banco("1X2 1X2 1X2 1 1 1 1 1 1 1 1 1 1 1");
    EXPECT_TRUE(InformeFallos(banco.comb, "1X211111111111").empty());
    const auto filas = InformeFallos(banco.comb,
                                     "1X2X1111111111"
                                     "1M");
    ASSERT_EQ(filas.size(), 1U);
    EXPECT_EQ(filas[0], (engine::FilaInforme{"Quiniela Base", "Fallo en pronóstico"}));
}

// Un registro de "Rean.rar" con lo que interesa a la rejilla.
RegReanalisis Registro(int jornada, std::int32_t columnas, std::array<std::int32_t, 7> premios) {
    RegReanalisis r = RegistroDatos(jornada, Datos(), Tabla(premios), {});
    r.columnas = columnas;
    return r;
}

TEST(AnalisisDeDatos, SinDatosRejillaVaciaYPanelEnBlanco) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    const AnalisisDatos a = Contenido(carpeta.Ruta(), dialogo);
    EXPECT_TRUE(a.columnas.empty());
    ASSERT_EQ(a.resumen.size(), 25U);
    for (const ValorResumen& v : a.resumen) EXPECT_EQ(v.valor, "") << v.etiqueta;
    EXPECT_EQ(FilasAnalisis().size(), 27U);
    EXPECT_EQ(FilasAnalisis().front(), "Columnas jugadas");
    EXPECT_EQ(FilasAnalisis().back(), "Porcentaje Columnas con premio");
}

TEST(AnalisisDeDatos, ColumnasPorJornadaYPanel) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    {
        base::ArchivoDe<RegReanalisis> rean(carpeta / seasons::kRean);
        rean.Anadir(Registro(9, 2000, {0, 0, 0, 0, 0, 0, 3}));
        RegReanalisis base = Registro(3, 1000, {0, 1, 2, 3, 4, 5, 6});
        base.estados[kEstadoBase] = "Fallada";
        base.estados[kEstadoGenerales] = "Fallado";
        base.reducida = {};
        base.condicionada = 0;
        rean.Anadir(base);
        // Dos registros de la misma Jornada, que el escritor no deja: salen dos veces.
        rean.Anadir(Registro(9, 3000, {0, 0, 0, 0, 0, 1, 0}));
        rean.Cerrar();
    }
    const AnalisisDatos a = Contenido(carpeta.Ruta(), dialogo);
    ASSERT_EQ(a.columnas.size(), 3U);
    EXPECT_EQ(a.columnas[0].cabecera, "Jorn. 3");
    EXPECT_EQ(a.columnas[1].cabecera, "Jorn. 9");
    EXPECT_EQ(a.columnas[2].cabecera, "Jorn. 9");
    const auto& j3 = a.columnas[0].celdas;
    ASSERT_EQ(j3.size(), FilasAnalisis().size());
    EXPECT_EQ(j3[0], "1.000");
    EXPECT_EQ(j3[1], "2");
    EXPECT_EQ(j3[2], "8");
    EXPECT_EQ(j3[3], "NO");
    EXPECT_EQ(j3[4], "NO");
    EXPECT_EQ(j3[5], "Fallada");
    EXPECT_EQ(j3[6], "Fallado");
    EXPECT_EQ(j3[18], "SI");
    EXPECT_TRUE(a.columnas[0].premiada);
    EXPECT_EQ(j3[19], "0");
    EXPECT_EQ(j3[25], "6");
    EXPECT_EQ(j3[26], "1,50%");  // (0 + 1 + 2 + 3 + 4 + 5) / 1.000
    const auto& j9 = a.columnas[1].celdas;
    EXPECT_EQ(j9[3], "SI");
    EXPECT_EQ(j9[4], "Al 12");
    // Solo una cuenta de 9 aciertos: "Premios" dice "NO".
    EXPECT_EQ(j9[18], "NO");
    EXPECT_FALSE(a.columnas[1].premiada);

    std::map<std::string, std::string> panel;
    for (const ValorResumen& v : a.resumen) panel[v.etiqueta] = v.valor;
    EXPECT_EQ(panel["Jornadas jugadas"], "3 ");
    EXPECT_EQ(panel["Media columnas jugadas"], "2.000 ");
    EXPECT_EQ(panel["Máximo. columnas jugadas"], "3.000 ");
    EXPECT_EQ(panel["Mínimo columnas jugadas"], "1.000 ");
    EXPECT_EQ(panel["Porcentaje de Condicionadas"], "66,67% ");
    EXPECT_EQ(panel["Porcentaje de Reducidas"], "66,67% ");
    EXPECT_EQ(panel["Jornadas con 15 aciertos"], "0 ");
    EXPECT_EQ(panel["Jornadas con 10 aciertos"], "2 ");
    EXPECT_EQ(panel["Fallada Quiniela Base"], "33,33% ");
    EXPECT_EQ(panel["Falladas Condiciones Generales"], "33,33% ");
    EXPECT_EQ(panel["Fallado F. Parejas"], "- ");
    EXPECT_EQ(panel["Fallado Col. eliminadas manual."], "- ");
    EXPECT_TRUE(dialogo.Textos().empty());
}

}  // namespace
}  // namespace quinteva::outputs
