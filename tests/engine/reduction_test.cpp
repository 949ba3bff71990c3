#include "engine/reduction.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "base/error.h"
#include "base/record_files.h"
#include "engine/cover.h"
#include "tests/support/counting_progress.h"
#include "tests/support/literal_cover.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::engine {
namespace {

using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;
using pruebas::ProgresoContador;
using pruebas::ReducirPorRondas;

struct Caso {
    CarpetaTemporal carpeta;
    Combinacion combinacion;
    AjustesEnMemoria ajustes;

    explicit Caso(const std::vector<std::string>& columnas, char estado = kActiva) {
        combinacion.pleno = PlenoDeTexto("1M");
        base::ArchivoDe<RegistroColumna> cmb(carpeta / std::string(kCmbTmp));
        for (const auto& c : columnas) cmb.Anadir({ColumnaDeTexto(c), PlenoDeTexto("00"), estado});
        combinacion.totalGeneradas = static_cast<std::int32_t>(columnas.size());
    }

    std::vector<RegistroColumna> Reducidas() const {
        std::vector<RegistroColumna> r;
        const base::ArchivoDe<RegistroColumna> red(carpeta / std::string(kRedTmp));
        for (std::int32_t n = 1; n <= red.Cuenta(); ++n) r.push_back(red.Leer(n));
        return r;
    }

    std::vector<std::string> Textos() const {
        std::vector<std::string> t;
        for (const auto& r : Reducidas()) t.push_back(TextoDeColumna(r.columna));
        return t;
    }
};

// Columnas al azar de una base al azar, con repetidas y, a veces, un carácter que no es signo.
std::vector<std::string> ColumnasAlAzar(std::mt19937& azar, std::size_t cuantas) {
    std::array<std::string, kPartidos> signos;
    for (auto& s : signos) {
        const int tipo = static_cast<int>(azar() % 4);
        s = tipo == 0   ? "1X2"
            : tipo == 1 ? "1X"
            : tipo == 2 ? "X2"
                        : std::string(1, "1X2"[azar() % 3]);
    }
    std::vector<std::string> columnas;
    for (std::size_t i = 0; i < cuantas; ++i) {
        std::string c;
        for (const auto& s : signos) c += s[azar() % s.size()];
        if (azar() % 500 == 0) c[azar() % 14] = azar() % 2 ? ' ' : 'x';
        columnas.push_back(c);
        if (azar() % 10 == 0) columnas.push_back(columnas[azar() % columnas.size()]);
    }
    return columnas;
}

TEST(DifierenMasDe, CuentaHastaPasarElLimite) {
    const Columna a = ColumnaDeTexto("11111111111111");
    EXPECT_FALSE(DifierenMasDe(a, a, 0));
    EXPECT_FALSE(DifierenMasDe(a, ColumnaDeTexto("X1111111111112"), 2));
    EXPECT_TRUE(DifierenMasDe(a, ColumnaDeTexto("X1111111111112"), 1));
}

TEST(CodigoColumna, BaseTresYSinCodigoSiNoEsSigno) {
    EXPECT_EQ(CodigoColumna(ColumnaDeTexto("11111111111111")), 0);
    EXPECT_EQ(CodigoColumna(ColumnaDeTexto("1111111111111X")), 1);
    EXPECT_EQ(CodigoColumna(ColumnaDeTexto("X1111111111111")), 1594323);
    EXPECT_EQ(CodigoColumna(ColumnaDeTexto("22222222222222")), kCodigosColumna - 1);
    EXPECT_EQ(CodigoColumna(ColumnaDeTexto("1111111111111x")), -1);
}

// El código se saca de ocho caracteres a la vez: se compara con el cálculo signo a signo en
// columnas al azar, y cada uno de los 256 bytes en cada partido solo vale si es un signo.
TEST(CodigoColumna, IgualQueSignoASignoYCadaByteEnCadaPartido) {
    const auto signoASigno = [](const Columna& c) {
        std::int32_t codigo = 0;
        for (const Signo s : c) {
            const auto* signo = std::find(kSignos.begin(), kSignos.end(), s);
            if (signo == kSignos.end()) return -1;
            codigo = codigo * 3 + static_cast<std::int32_t>(signo - kSignos.begin());
        }
        return codigo;
    };
    std::mt19937 azar(7);
    for (int i = 0; i < 20000; ++i) {
        Columna c;
        for (Signo& s : c) s = kSignos[azar() % 3];
        ASSERT_EQ(CodigoColumna(c), signoASigno(c));
    }
    for (std::size_t p = 0; p < kPartidos; ++p) {
        for (int byte = 0; byte < 256; ++byte) {
            Columna c = ColumnaDeTexto("1X21X21X21X21X");
            c[p] = static_cast<Signo>(byte);
            ASSERT_EQ(CodigoColumna(c), signoASigno(c)) << "partido " << p << ", byte " << byte;
        }
    }
}

TEST(ReducirConCondiciones, IgualQuePorRondasEnListasAlAzar) {
    std::mt19937 azar(20261122);
    for (int lista = 0; lista < 100; ++lista) {
        const std::size_t tamano = lista % 25 == 0 ? 20000 : 1 + azar() % 1500;
        const auto columnas = ColumnasAlAzar(azar, tamano);
        for (int distancia = 1; distancia <= 3; ++distancia) {
            Caso caso(columnas, lista % 3 == 0 ? kEliminada : kActiva);
            ProgresoContador progreso;
            const auto r = ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), distancia,
                                                 progreso, caso.ajustes);
            const auto esperadas = ReducirPorRondas(columnas, distancia);
            ASSERT_EQ(caso.Textos(), esperadas) << "lista " << lista << " distancia " << distancia;
            EXPECT_EQ(r.reducidas, static_cast<std::int32_t>(esperadas.size()));
            EXPECT_EQ(caso.combinacion.totalReducidas, r.reducidas);
            EXPECT_EQ(caso.combinacion.activasReducidas, r.reducidas);
            EXPECT_EQ(progreso.Avances(), r.reducidas);
            EXPECT_FALSE(r.detenida);
        }
    }
}

// El desarrollo de una base al azar (hasta unas 2.000 columnas) en el orden de la generación (el
// último partido cambia antes), sin algunas columnas al azar: las guardadas seguidas comparten
// palabra del mapa.
std::vector<std::string> DesarrolloEnOrden(std::mt19937& azar) {
    // Los signos de cada partido, desde el último: los que más cambian son los de la palabra.
    std::array<std::string, kPartidos> signos;
    std::size_t total = 1;
    for (auto s = signos.rbegin(); s != signos.rend(); ++s) {
        const int tipo = static_cast<int>(azar() % 5);
        *s = tipo == 0 ? "1X2" : tipo == 1 ? "1X" : tipo == 2 ? "X2" : "1";
        if (total * s->size() > 2000) *s = "1";
        total *= s->size();
    }
    std::vector<std::string> columnas{""};
    for (const auto& s : signos) {
        std::vector<std::string> siguientes;
        for (const auto& c : columnas) {
            for (const char signo : s) siguientes.push_back(c + signo);
        }
        columnas = std::move(siguientes);
    }
    std::erase_if(columnas, [&](const std::string&) { return azar() % 8 == 0; });
    if (azar() % 2 == 0) columnas[azar() % columnas.size()][azar() % kPartidos] = 'x';
    return columnas;
}

TEST(ReducirConCondiciones, IgualQuePorRondasEnDesarrollosEnOrden) {
    std::mt19937 azar(2026112213);
    for (int lista = 0; lista < 40; ++lista) {
        const auto columnas = DesarrolloEnOrden(azar);
        for (int distancia = 1; distancia <= 3; ++distancia) {
            Caso caso(columnas);
            ProgresoContador progreso;
            const auto r = ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), distancia,
                                                 progreso, caso.ajustes);
            ASSERT_EQ(caso.Textos(), ReducirPorRondas(columnas, distancia))
                << "lista " << lista << " distancia " << distancia;
            EXPECT_FALSE(r.detenida);
        }
    }
}

TEST(ReducirConCondiciones, UnaParadaGuardaLoMismoQueLasRondasHechas) {
    std::mt19937 azar(7);
    for (int lista = 0; lista < 30; ++lista) {
        const auto columnas = ColumnasAlAzar(azar, 500 + azar() % 1500);
        const int distancia = 1 + lista % 3;
        const long parar = 1 + static_cast<long>(azar() % 20);
        Caso caso(columnas);
        ProgresoContador progreso(parar);
        const auto r = ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), distancia,
                                             progreso, caso.ajustes);
        const auto esperadas = ReducirPorRondas(columnas, distancia, parar);
        ASSERT_EQ(caso.Textos(), esperadas) << lista;
        EXPECT_EQ(r.reducidas, static_cast<std::int32_t>(esperadas.size()));
    }
}

TEST(ReducirConCondiciones, UnaSolaColumnaQuedaIgual) {
    Caso caso({"1X21X21X21X21X"});
    ProgresoContador progreso;
    const auto r =
        ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), 1, progreso, caso.ajustes);
    EXPECT_EQ(r.reducidas, 1);
    EXPECT_EQ(caso.Textos(), std::vector<std::string>{"1X21X21X21X21X"});
}

TEST(ReducirConCondiciones, AlTreceNuncaGuardaDosQueDifierenEnUno) {
    // Tres triples y once fijos, con las columnas en el orden de la generación.
    std::vector<std::string> columnas;
    for (char a : {'1', 'X', '2'}) {
        for (char b : {'1', 'X', '2'}) {
            for (char c : {'1', 'X', '2'}) columnas.push_back(std::string{a, b, c} + "11111111111");
        }
    }
    Caso caso(columnas);
    ProgresoContador progreso;
    ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), 1, progreso, caso.ajustes);
    const auto guardadas = caso.Reducidas();
    for (std::size_t i = 0; i < guardadas.size(); ++i) {
        for (std::size_t j = i + 1; j < guardadas.size(); ++j) {
            EXPECT_TRUE(DifierenMasDe(guardadas[i].columna, guardadas[j].columna, 1));
        }
    }
    for (const auto& c : columnas) {
        const bool cubierta = std::any_of(guardadas.begin(), guardadas.end(), [&](const auto& g) {
            return !DifierenMasDe(g.columna, ColumnaDeTexto(c), 1);
        });
        EXPECT_TRUE(cubierta) << c;
    }
}

TEST(ReducirConCondiciones, LasEliminadasParticipanYSalenActivasConElPleno) {
    Caso caso({"11111111111111", "2222222222222X"}, kEliminada);
    ProgresoContador progreso;
    ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), 2, progreso, caso.ajustes);
    const auto reducidas = caso.Reducidas();
    ASSERT_EQ(reducidas.size(), 2U);
    for (const auto& r : reducidas) {
        EXPECT_EQ(r.estado, kActiva);
        EXPECT_EQ(r.pleno, PlenoDeTexto("1M"));
    }
}

TEST(ReducirConCondiciones, UnaParadaEscribeLoGuardadoSinGarantia) {
    std::vector<std::string> columnas = {"11111111111111", "22222222222222", "XXXXXXXXXXXXXX"};
    Caso caso(columnas);
    ProgresoContador progreso(1);
    const auto r =
        ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), 1, progreso, caso.ajustes);
    EXPECT_TRUE(r.detenida);
    EXPECT_EQ(caso.Textos(), std::vector<std::string>{"11111111111111"});
    EXPECT_EQ(caso.combinacion.totalReducidas, 1);
}

TEST(ReducirConCondiciones, CuentaEnSuFilaYPrecio) {
    Caso caso({"11111111111111", "22222222222222"});
    caso.ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "0,5");
    caso.combinacion.panel.reducidas[0] = 99;
    caso.combinacion.panel.guardada = true;
    ProgresoContador progreso;
    ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), 2, progreso, caso.ajustes);
    EXPECT_EQ(caso.combinacion.panel.reducidas, (std::array<std::optional<std::int32_t>, 4>{
                                                    std::nullopt, 2, std::nullopt, std::nullopt}));
    EXPECT_EQ(caso.combinacion.panel.precio, 1.0);
    EXPECT_FALSE(caso.combinacion.panel.guardada);
}

TEST(ReducirConCondiciones, UnCmbMasCortoQueLoGeneradoEsUnError) {
    Caso caso({"11111111111111"});
    caso.combinacion.totalGeneradas = 5;
    ProgresoContador progreso;
    EXPECT_THROW(
        ReducirConCondiciones(caso.combinacion, caso.carpeta.Ruta(), 1, progreso, caso.ajustes),
        base::Error);
    EXPECT_FALSE(std::filesystem::exists(caso.carpeta / std::string(kRedTmp)));
}

}  // namespace
}  // namespace quinteva::engine
