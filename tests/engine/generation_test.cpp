#include "engine/generation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "base/record_files.h"
#include "engine/filter.h"
#include "tests/engine/literal_filter.h"
#include "tests/engine/random_conditions.h"
#include "tests/support/counting_progress.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::engine {
namespace {

Combinacion ConBase(const std::vector<std::string>& signos) {
    Combinacion c;
    for (int p = 1; p <= kPartidos; ++p) {
        for (char s : signos[static_cast<std::size_t>(p - 1)])
            c.base.Elegir(p, IndiceSigno(s), true);
    }
    c.base.PonerGoles("2", "0");
    c.pleno = c.base.Pleno();
    c.condiciones = CondicionesIniciales(c.base);
    return c;
}

std::vector<RegistroColumna> Leer(const std::filesystem::path& ruta) {
    base::ArchivoDe<RegistroColumna> f(ruta);
    std::vector<RegistroColumna> v;
    for (std::int32_t i = 1; i <= f.Cuenta(); ++i) v.push_back(f.Leer(i));
    return v;
}

TEST(Generar, CatorceFijosDaUnaColumna) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = ConBase({"1", "X", "2", "1", "X", "2", "1", "X", "2", "1", "X", "2", "1", "X"});
    base::SinProgreso progreso;
    const auto r = Generar(c, carpeta.Ruta(), progreso, ajustes);
    EXPECT_EQ(r.examinadas, 1);
    EXPECT_EQ(c.totalGeneradas, 1);
    EXPECT_EQ(c.activasGeneradas, 1);
    const auto regs = Leer(carpeta / "Cmb.tmp");
    ASSERT_EQ(regs.size(), 1U);
    EXPECT_EQ(TextoDeColumna(regs[0].columna), "1X21X21X21X21X");
    EXPECT_EQ(TextoDePleno(regs[0].pleno), "20");
    EXPECT_EQ(regs[0].estado, '0');
    EXPECT_TRUE(r.reducirHabilitado);
    EXPECT_TRUE(r.avisoBoletos);
    EXPECT_FALSE(r.infoHabilitado);
}

TEST(Generar, OrdenDelCuentakilometros) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    std::vector<std::string> signos(14, "1");
    signos[12] = "X2";
    signos[13] = "1X2";
    Combinacion c = ConBase(signos);
    base::SinProgreso progreso;
    Generar(c, carpeta.Ruta(), progreso, ajustes);
    const auto regs = Leer(carpeta / "Cmb.tmp");
    ASSERT_EQ(regs.size(), 6U);
    const char* esperadas[] = {"111111111111X1", "111111111111XX", "111111111111X2",
                               "11111111111121", "1111111111112X", "11111111111122"};
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(TextoDeColumna(regs[i].columna), esperadas[i]);
}

TEST(Generar, TodoRechazado) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    ajustes.Guardar(base::kAplicacion, "Valores", "AvBoletos", "NO");
    Combinacion c = ConBase(std::vector<std::string>(14, "1X"));
    c.condiciones.casilla[kCasillaInterrupciones] = true;
    c.condiciones.minInter = 14;
    base::SinProgreso progreso;
    const auto r = Generar(c, carpeta.Ruta(), progreso, ajustes);
    EXPECT_TRUE(std::filesystem::exists(carpeta / "Cmb.tmp"));
    EXPECT_EQ(std::filesystem::file_size(carpeta / "Cmb.tmp"), 0U);
    EXPECT_EQ(c.totalGeneradas, 0);
    EXPECT_FALSE(r.reducirHabilitado);
    EXPECT_FALSE(r.avisoBoletos);
    EXPECT_TRUE(r.infoHabilitado);
    EXPECT_EQ(c.rechazos.porCondicion[2], 16384);
}

TEST(Generar, ParadaDejaLoEscrito) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = ConBase(std::vector<std::string>(14, "1X2"));
    pruebas::ProgresoContador progreso(3);
    const auto r = Generar(c, carpeta.Ruta(), progreso, ajustes);
    EXPECT_TRUE(r.detenida);
    EXPECT_EQ(r.examinadas, 3 * kColumnasPorAviso);
    EXPECT_EQ(c.totalGeneradas, 3 * kColumnasPorAviso);
    EXPECT_EQ(c.activasGeneradas, 0);
    EXPECT_FALSE(c.panel.condicionada.has_value());
    EXPECT_FALSE(r.reducirHabilitado);
    EXPECT_EQ(std::filesystem::file_size(carpeta / "Cmb.tmp"),
              static_cast<std::uintmax_t>(17 * 3 * kColumnasPorAviso));
}

TEST(Generar, LaCuentaEnMarchaLlegaConCadaAviso) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    // Nueve triples y cinco fijos, con como mucho una "X": se escriben 2.816 de 19.683.
    Combinacion c = ConBase(
        {"1X2", "1X2", "1X2", "1X2", "1X2", "1X2", "1X2", "1X2", "1X2", "1", "1", "1", "1", "1"});
    c.condiciones.maxEquis = 1;
    c.condiciones.casilla[kCasillaGenerales] = true;
    pruebas::ProgresoContador progreso;
    Generar(c, carpeta.Ruta(), progreso, ajustes);
    const auto& cuentas = progreso.CuentasEscritas();
    ASSERT_FALSE(cuentas.empty());
    EXPECT_TRUE(std::is_sorted(cuentas.begin(), cuentas.end()));
    EXPECT_GT(cuentas.size(), 4U);
    EXPECT_EQ(cuentas.back(), c.totalGeneradas);
    EXPECT_EQ(c.totalGeneradas, 2816);
}

TEST(Generar, SinCasillasNoSeFiltra) {
    // Valores puestos pero todas las casillas apagadas y ningún Grupo activo: todas las columnas.
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = ConBase(std::vector<std::string>(14, "1X"));
    c.condiciones.maxInter = 0;
    c.condiciones.grupos[0].min[0] = 14;
    c.condiciones.ultimoGrupo = 0;
    base::SinProgreso progreso;
    const auto r = Generar(c, carpeta.Ruta(), progreso, ajustes);
    EXPECT_EQ(c.numCondiciones, 0);
    EXPECT_EQ(c.totalGeneradas, 16384);
    EXPECT_FALSE(r.infoHabilitado);
}

TEST(Generar, IgualQueElFiltroLiteral) {
    pruebas::Sorteo s(99);
    for (int vuelta = 0; vuelta < 80; ++vuelta) {
        pruebas::CarpetaTemporal carpeta;
        pruebas::AjustesEnMemoria ajustes;
        Combinacion c;
        c.base = pruebas::BaseAlAzar(s);
        c.pleno = c.base.Pleno();
        c.condiciones = pruebas::CondicionesAlAzar(s, c.base);
        // Algunas vueltas se paran tras el primer aviso: cuentan solo las examinadas.
        const bool parar = vuelta % 4 == 3;
        pruebas::ProgresoContador progreso(parar ? 1 : -1);
        const auto resultado = Generar(c, carpeta.Ruta(), progreso, ajustes);
        const std::int64_t examinar = resultado.detenida ? kColumnasPorAviso : resultado.examinadas;
        std::int64_t vistas = 0;
        // Lo mismo a mano: todas las columnas en orden, filtro literal.
        std::vector<std::string> esperadas;
        Rechazos rechazos;
        std::string col(14, ' ');
        const bool filtrar = NumeroDeCondiciones(c.condiciones) > 0;
        auto recorrer = [&](auto&& self, int p) -> void {
            if (p == 14) {
                if (vistas++ >= examinar) return;
                if (!filtrar || pruebas::CondicionarLiteral(col, c.condiciones, rechazos))
                    esperadas.push_back(col);
                return;
            }
            for (int k = 0; k < 3; ++k) {
                if (!c.base.Elegido(p + 1, k)) continue;
                col[static_cast<std::size_t>(p)] = kSignos[static_cast<std::size_t>(k)];
                self(self, p + 1);
            }
        };
        recorrer(recorrer, 0);
        const auto regs = Leer(carpeta / "Cmb.tmp");
        ASSERT_EQ(regs.size(), esperadas.size());
        for (std::size_t i = 0; i < regs.size(); ++i)
            ASSERT_EQ(TextoDeColumna(regs[i].columna), esperadas[i]);
        EXPECT_EQ(c.rechazos, rechazos);
    }
}

}  // namespace
}  // namespace quinteva::engine
