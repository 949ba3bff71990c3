#include "seasons/record_files.h"

#include <gtest/gtest.h>

#include "base/error.h"
#include "base/text1252.h"

namespace quinteva::seasons {
namespace {

// El texto en bruto de un campo, para mirarlo en su desplazamiento.
template <std::size_t N>
std::string Texto(const std::array<Byte, N>& b, std::size_t desde, std::size_t ancho) {
    return {b.begin() + static_cast<long>(desde), b.begin() + static_cast<long>(desde + ancho)};
}
TEST(RegTempor, Golden) {
    const RegTempor r{"Temporada0102"};
    const auto b = r.ABytes();
    ASSERT_EQ(b.size(), 13U);
    EXPECT_EQ(Texto(b, 0, 13), "Temporada0102");
    EXPECT_EQ(RegTempor::DeBytes(b), r);
}

TEST(RegEquipo, Golden) {
    RegEquipo r;
    r.temporada = "13/14";
    r.nombre = "Real Sociedad  ";
    int v = 1;
    for (int* campo : {&r.division, &r.valoracion, &r.posicion, &r.jugados, &r.puntos, &r.ganados,
                       &r.empatados, &r.perdidos, &r.golesFavor, &r.golesContra}) {
        *campo = v++;
    }
    r.diferencia = -300;
    v = 20;
    for (int* campo : {&r.puntosCasa, &r.ganadosCasa, &r.empatadosCasa, &r.perdidosCasa,
                       &r.puntosFuera, &r.ganadosFuera, &r.empatadosFuera, &r.perdidosFuera}) {
        *campo = v++;
    }
    for (std::size_t j = 0; j < RegEquipo::kJornadas; ++j) r.posicionJornada[j] = 100 + int(j);

    const auto b = r.ABytes();
    ASSERT_EQ(b.size(), 85U);
    EXPECT_EQ(Texto(b, 0, 5), "13/14");
    EXPECT_EQ(Texto(b, 5, 15), "Real Sociedad  ");
    for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(b[20 + i], 1 + i) << "byte " << 20 + i;
    EXPECT_EQ(base::TomarInt16(b, 30), -300);
    for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(b[32 + i], 20 + i) << "byte " << 32 + i;
    for (std::size_t j = 0; j < 45; ++j) EXPECT_EQ(b[40 + j], 100 + j) << "jornada " << j + 1;
    EXPECT_EQ(RegEquipo::DeBytes(b), r);
}

TEST(RegEquipo, UnNombreDeDieciseisSeCortaAQuince) {
    RegEquipo r;
    r.nombre = "Deportivo Alavés";  // 16 caracteres
    const RegEquipo leido = RegEquipo::DeBytes(r.ABytes());
    EXPECT_EQ(leido.nombre, "Deportivo Alavé");
}

TEST(RegEquipo, UnContadorPorEncimaDe255EsUnDesbordamiento) {
    RegEquipo r;
    r.golesFavor = 256;
    EXPECT_THROW(r.ABytes(), base::Desbordamiento);
}

TEST(RegPartidoLiga, Golden) {
    RegPartidoLiga r;
    r.jornada = 38;
    r.siglo = "20";
    r.fecha = 41504.75;
    r.temporada = "13/14";
    r.division = 2;
    r.partido = 11;
    r.local = "Atlético Madrid";
    r.visitante = "Rayo Vallecano";
    r.golesLocal = 7;
    r.golesVisitante = 9;
    r.reservado = "R";
    const auto b = r.ABytes();
    ASSERT_EQ(b.size(), 51U);
    EXPECT_EQ(b[0], 38);
    EXPECT_EQ(Texto(b, 1, 2), "20");
    EXPECT_EQ(base::TomarDouble(b, 3), 41504.75);
    EXPECT_EQ(Texto(b, 11, 5), "13/14");
    EXPECT_EQ(b[16], 2);
    EXPECT_EQ(b[17], 11);
    EXPECT_EQ(Texto(b, 18, 15), "Atl\xE9tico Madrid");
    EXPECT_EQ(Texto(b, 33, 15), "Rayo Vallecano ");
    EXPECT_EQ(b[48], 7);
    EXPECT_EQ(b[49], 9);
    EXPECT_EQ(Texto(b, 50, 1), "R");
    const RegPartidoLiga leido = RegPartidoLiga::DeBytes(b);
    EXPECT_EQ(leido.ABytes(), b);
    EXPECT_EQ(base::Recortar(leido.visitante), "Rayo Vallecano");
    EXPECT_EQ(leido.fecha, r.fecha);
}

TEST(RegPartidoQuin, Golden) {
    RegPartidoQuin r;
    r.jornada = 70;
    r.siglo = "20";
    r.fecha = 45356.5;
    r.partido = 15;
    r.temporada = "23/24";
    r.jornadaDiv1 = 27;
    r.jornadaDiv2 = 30;
    r.division = 1;
    r.local = "Betis";
    r.visitante = "Sevilla";
    r.signo = "K";
    const auto b = r.ABytes();
    ASSERT_EQ(b.size(), 51U);
    EXPECT_EQ(b[0], 70);
    EXPECT_EQ(Texto(b, 1, 2), "20");
    EXPECT_EQ(base::TomarDouble(b, 3), 45356.5);
    EXPECT_EQ(b[11], 15);
    EXPECT_EQ(Texto(b, 12, 5), "23/24");
    EXPECT_EQ(b[17], 27);
    EXPECT_EQ(b[18], 30);
    EXPECT_EQ(b[19], 1);
    EXPECT_EQ(Texto(b, 20, 15), "Betis          ");
    EXPECT_EQ(Texto(b, 35, 15), "Sevilla        ");
    EXPECT_EQ(Texto(b, 50, 1), "K");
    const RegPartidoQuin leido = RegPartidoQuin::DeBytes(b);
    EXPECT_EQ(leido.ABytes(), b);
    EXPECT_EQ(base::Recortar(leido.local), "Betis");
    EXPECT_EQ(leido.jornadaDiv2, 30);
}

TEST(RegJornadaQuin, GoldenYCreadoEnBlanco) {
    EXPECT_EQ(RegJornadaQuin{}.signos, std::string(15, ' '));
    const RegJornadaQuin r{"23/24", -12345, "1X21X21X21X21XK"};
    const auto b = r.ABytes();
    ASSERT_EQ(b.size(), 22U);
    EXPECT_EQ(Texto(b, 0, 5), "23/24");
    EXPECT_EQ(base::TomarInt16(b, 5), -12345);
    EXPECT_EQ(Texto(b, 7, 15), "1X21X21X21X21XK");
    EXPECT_EQ(RegJornadaQuin::DeBytes(b), r);
}

TEST(RegReanalisis, Golden) {
    RegReanalisis r;
    r.jornada = 33;
    r.columnas = 1594323;
    r.variantes0 = 4;
    r.variantes1 = 9;
    r.premios = {1, 2, 30, 400, 5000, 60000, 700000};
    r.reducida = {-1, 0, 5, 6};
    r.condicionada = -1;
    const char* estados[] = {"Acertada",  "No jugado", "Acertado", "Fallado",   "Acertado",
                             "No jugado", "Fallado",   "Acertado", "No jugado", "Fallado",
                             "Acertado",  "Fallado",   "Jugado"};
    for (std::size_t i = 0; i < RegReanalisis::kEstados; ++i) r.estados[i] = estados[i];
    const auto b = r.ABytes();
    ASSERT_EQ(b.size(), 178U);
    EXPECT_EQ(base::TomarInt16(b, 0), 33);
    EXPECT_EQ(base::TomarInt32(b, 2), 1594323);
    EXPECT_EQ(base::TomarInt16(b, 6), 4);
    EXPECT_EQ(base::TomarInt16(b, 8), 9);
    for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(base::TomarInt32(b, 10 + 4 * i), r.premios[i]);
    EXPECT_EQ(base::TomarInt16(b, 38), -1);
    EXPECT_EQ(base::TomarInt16(b, 40), 0);
    EXPECT_EQ(base::TomarInt16(b, 42), 5);
    EXPECT_EQ(base::TomarInt16(b, 44), 6);
    EXPECT_EQ(base::TomarInt16(b, 46), -1);
    EXPECT_EQ(Texto(b, 48, 10), "Acertada  ");
    EXPECT_EQ(Texto(b, 58, 10), "No jugado ");
    EXPECT_EQ(Texto(b, 168, 10), "Jugado    ");
    const RegReanalisis leido = RegReanalisis::DeBytes(b);
    EXPECT_EQ(leido.ABytes(), b);
    EXPECT_EQ(leido.premios, r.premios);
    EXPECT_EQ(base::Recortar(leido.estados[12]), "Jugado");
}

}  // namespace
}  // namespace quinteva::seasons
