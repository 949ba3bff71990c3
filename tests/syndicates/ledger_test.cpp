// Las cuentas de una Peña: los Apostantes, las cuotas, la página de una Jornada con su cierre y
// su reparto, y lo que queda en sus tres archivos.
#include "syndicates/ledger.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "base/error.h"
#include "base/text1252.h"
#include "syndicates/participants.h"
#include "syndicates/pena_hits.h"
#include "syndicates/reports.h"
#include "tests/support/file_bytes.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"
#include "tests/syndicates/expected_bytes.h"

namespace quinteva::syndicates {
namespace {

using pruebas::DialogoGuionado;

RegPena DatosPena(const std::string& nombre = "Peña Los Amigos",
                  const std::string& corto = "Los Amigos") {
    RegPena p;
    p.nombre = nombre;
    p.nombreReducido = corto;
    p.temporada = "23/24";
    return p;
}

RegApostante Apostante(const std::string& nombre, const std::string& nif = "") {
    RegApostante a;
    a.nombre = nombre;
    a.nif = nif;
    return a;
}

// Una Peña recién creada en su carpeta de trabajo.
struct PenaNueva {
    pruebas::CarpetaTemporal trabajo;
    DialogoGuionado dialogo;
    ArchivosPena pena{*CrearDatosPena(trabajo.Ruta(), DatosPena(), dialogo)};

    void Anadir(std::initializer_list<const char*> nombres) {
        for (const char* n : nombres) ASSERT_TRUE(AnadirApostante(pena, Apostante(n), dialogo));
    }
    void Cuota(std::size_t apostante, const char* importe, const char* desde,
               const char* hasta = "") {
        ASSERT_TRUE(IntroducirCuotas(pena, apostante, importe, desde, hasta, dialogo));
    }
};

TEST(CrearPena, LosDosNombresElCortoSinBlancosYNoRepetido) {
    pruebas::CarpetaTemporal trabajo;
    DialogoGuionado dialogo;
    EXPECT_FALSE(CrearDatosPena(trabajo.Ruta(), DatosPena("", "X"), dialogo));
    EXPECT_FALSE(CrearDatosPena(trabajo.Ruta(), DatosPena("Peña", "  "), dialogo));
    const auto ruta = CrearDatosPena(trabajo.Ruta(), DatosPena(), dialogo);
    ASSERT_TRUE(ruta);
    EXPECT_EQ(*ruta, trabajo / "Peñas" / "Temporada 23-24" / "LosAmigos");
    EXPECT_FALSE(CrearDatosPena(trabajo.Ruta(), DatosPena("Otra", "Los  Amigos"), dialogo));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{std::string(kMsgCrearFaltanNombres),
                                                          std::string(kMsgCrearFaltanNombres),
                                                          std::string(kMsgPenaRepetida)}));
    // Los 70 registros de ".jrn" están desde el principio.
    const ArchivosPena pena(*ruta);
    EXPECT_EQ(std::filesystem::file_size(pena.Archivo(kExtJornadas)), 70U * 73U);
    EXPECT_EQ(pena.LeerJornada(70).temporada, "23/24");
    EXPECT_EQ(std::filesystem::file_size(pena.Archivo(kExtApostantes)), 0U);
    // Modificar solo escribe el ".nmp".
    const auto jrn = pruebas::BytesDeArchivo(pena.Archivo(kExtJornadas));
    RegPena cambiada = DatosPena("Peña de los Amigos del Barrio");
    cambiada.ciudad = "Zaragoza";
    EXPECT_TRUE(ModificarDatosPena(pena, cambiada, dialogo));
    EXPECT_EQ(base::Recortar(pena.LeerPena().ciudad), "Zaragoza");
    EXPECT_EQ(pruebas::BytesDeArchivo(pena.Archivo(kExtJornadas)), jrn);
}

TEST(Apostantes, AnadirConNombreYSinRepetirloSinDistinguirMayusculas) {
    PenaNueva p;
    EXPECT_FALSE(AnadirApostante(p.pena, Apostante("   "), p.dialogo));
    p.Anadir({"Núñez Ortiz, Ángel"});
    EXPECT_FALSE(AnadirApostante(p.pena, Apostante("  NÚÑEZ ORTIZ, ÁNGEL "), p.dialogo));
    EXPECT_EQ(p.dialogo.Textos(),
              (std::vector<std::string>{std::string(kMsgFaltaNombreApostante),
                                        MsgApostanteYaExiste("NÚÑEZ ORTIZ, ÁNGEL")}));
    const auto apostantes = p.pena.LeerApostantes();
    ASSERT_EQ(apostantes.size(), 1U);
    EXPECT_EQ(apostantes[0].temporada, "23/24");
}

TEST(Apostantes, ModificarPreguntaYConservaSusImportes) {
    PenaNueva p;
    p.Anadir({"Alba", "Benito"});
    p.Cuota(0, "3", "5");
    EXPECT_FALSE(ModificarApostante(p.pena, std::nullopt, Apostante("X"), p.dialogo));
    p.dialogo.Responder(base::Respuesta::Si);
    EXPECT_FALSE(ModificarApostante(p.pena, 0, Apostante("benito"), p.dialogo));
    p.dialogo.Responder(base::Respuesta::Si);
    EXPECT_TRUE(ModificarApostante(p.pena, 0, Apostante("Alba Gil", "12345678Z"), p.dialogo));
    EXPECT_EQ(p.dialogo.Textos(),
              (std::vector<std::string>{
                  std::string(kMsgSeleccioneDelCuadro), PreguntaModificarApostante("benito"),
                  MsgApostanteYaExiste("benito"), PreguntaModificarApostante("Alba Gil")}));
    const auto a = p.pena.LeerApostantes()[0];
    EXPECT_EQ(base::Recortar(a.nif), "12345678Z");
    EXPECT_EQ(a.cuotas[5], 3.0F);
}

TEST(Apostantes, EliminarSoloSinCuotasTambienSiLaUnicaSeDejoEnCero) {
    PenaNueva p;
    p.Anadir({"Alba", "Benito"});
    p.Cuota(1, "2", "4");
    p.dialogo.Responder(base::Respuesta::Si);
    EXPECT_FALSE(EliminarApostante(p.pena, 1, p.dialogo));
    EXPECT_EQ(p.dialogo.Textos().back(), MsgNoSePuedeEliminar("Benito"));
    // La única cuota puesta a 0: se puede.
    auto apostantes = p.pena.LeerApostantes();
    apostantes[1].cuotas[4] = 0;
    p.pena.GuardarApostantes(apostantes);
    p.dialogo.Responder(base::Respuesta::No);
    EXPECT_FALSE(EliminarApostante(p.pena, 1, p.dialogo));
    p.dialogo.Responder(base::Respuesta::Si);
    EXPECT_TRUE(EliminarApostante(p.pena, 1, p.dialogo));
    ASSERT_EQ(p.pena.LeerApostantes().size(), 1U);
    EXPECT_EQ(base::Recortar(p.pena.LeerApostantes()[0].nombre), "Alba");
}

TEST(Cuotas, LasComprobacionesEnSuOrden) {
    PenaNueva p;
    p.Anadir({"Alba"});
    EXPECT_FALSE(IntroducirCuotas(p.pena, std::nullopt, "2", "1", "2", p.dialogo));
    EXPECT_FALSE(IntroducirCuotas(p.pena, 0, "", "1", "2", p.dialogo));
    EXPECT_FALSE(IntroducirCuotas(p.pena, 0, "2", "", "2", p.dialogo));
    EXPECT_FALSE(IntroducirCuotas(p.pena, 0, "2", "5", "3", p.dialogo));
    EXPECT_FALSE(IntroducirCuotas(p.pena, 0, "2", "69", "71", p.dialogo));
    EXPECT_EQ(p.dialogo.Textos(),
              (std::vector<std::string>{
                  std::string(kMsgSeleccioneDeLaLista), std::string(kMsgFaltaImporte),
                  std::string(kMsgFaltaJornadaInicial), std::string(kMsgFinalMenor),
                  std::string(kMsgJornadaMaxima)}));
}

TEST(Cuotas, LasCerradasSeSaltanYLaCuotaQueYaHabiaSePregunta) {
    PenaNueva p;
    p.Anadir({"Alba"});
    p.Cuota(0, "1,5", "2", "3");
    // La Jornada 4 cerrada.
    RegJornadaPena cerrada = p.pena.LeerJornada(4);
    cerrada.cerrada = -1;
    p.pena.GuardarJornada(4, cerrada);
    // 2 ya tenía: No la deja; 3 ya tenía: Cancelar acaba el rango; 4 cerrada no se llega a ver.
    p.dialogo.Responder(base::Respuesta::No).Responder(base::Respuesta::Cancelar);
    EXPECT_FALSE(IntroducirCuotas(p.pena, 0, "2", "2", "5", p.dialogo));
    EXPECT_EQ(p.dialogo.Textos(),
              (std::vector<std::string>{PreguntaSustituirCuota("Alba", 1.5F, 2),
                                        PreguntaSustituirCuota("Alba", 1.5F, 3)}));
    EXPECT_EQ(PreguntaSustituirCuota("Alba", 1.5F, 2),
              "El apostante Alba ya figura con una cuota de 1,5 euros en la Jornada 2. Desea "
              "sustituir esa cuota por esta nueva?");
    // Sí sustituye; la cerrada se dice y se sigue con la 5.
    p.dialogo.Responder(base::Respuesta::Si);
    EXPECT_TRUE(IntroducirCuotas(p.pena, 0, "2,3", "3", "5", p.dialogo));
    EXPECT_EQ(p.dialogo.Textos().back(), MsgJornadaCerradaCuotas(4));
    const auto a = p.pena.LeerApostantes()[0];
    EXPECT_EQ(a.cuotas[2], 1.5F);
    EXPECT_EQ(a.cuotas[3], 2.3F);
    EXPECT_EQ(a.cuotas[4], 0.0F);
    EXPECT_EQ(a.cuotas[5], 2.3F);
    // El elemento 70 existe: la Jornada 70.
    p.Cuota(0, "1", "70");
    EXPECT_EQ(p.pena.LeerApostantes()[0].cuotas[70], 1.0F);
}

TEST(PaginaJornada, LasFilasPorNombreConSuParticipacionYLosTotales) {
    PenaNueva p;
    p.Anadir({"Zamora", "alba", "Benito", "Sin cuota"});
    p.Cuota(0, "2", "7");
    p.Cuota(1, "6", "7");
    p.Cuota(2, "2", "7");
    const PaginaJornada pagina = LlenarFlex1(p.pena, 7, "10/12/23");
    ASSERT_EQ(pagina.NumApostantes(), 3U);
    EXPECT_EQ(pagina.filas[0].nombre, "alba");
    EXPECT_EQ(pagina.filas[1].nombre, "Benito");
    EXPECT_EQ(pagina.filas[2].nombre, "Zamora");
    EXPECT_EQ(pagina.filas[0].jugado, "6,00");
    EXPECT_EQ(pagina.filas[0].participacion, "60,000");
    EXPECT_EQ(pagina.filas[1].participacion, "20,000");
    EXPECT_EQ(pagina.totalJugado, "10,00");
    EXPECT_EQ(pagina.totalObtenido, "0,00");
    EXPECT_EQ(pagina.numColumnas, "0");
    EXPECT_EQ(pagina.importe, "0,00");
    EXPECT_FALSE(pagina.cerrada);
    // El menú de la relación: por importe, de menos a más; y otra vez por nombres.
    PaginaJornada porImporte = pagina;
    OrdenarFilas(porImporte, OrdenFilas::Importe);
    EXPECT_EQ(porImporte.filas[0].nombre, "Benito");
    EXPECT_EQ(porImporte.filas[2].nombre, "alba");
    OrdenarFilas(porImporte, OrdenFilas::Nombres);
    EXPECT_EQ(porImporte.filas[0].nombre, "alba");
    // Una Jornada que no juega nadie: sin filas y sin "Distribuir".
    const PaginaJornada vacia = LlenarFlex1(p.pena, 8, "");
    EXPECT_TRUE(vacia.filas.empty());
    EXPECT_FALSE(PuedeDistribuir(vacia));
}

TEST(PaginaJornada, ReCalculoYLosGastosPorEncimaDeLoCobrado) {
    PaginaJornada p;
    p.acertadas = {"0", "1", "", "2", "3", "4"};
    p.premios = {"100,00", "1.000,50", "50,00", "", "2,00", "1,25"};
    ReCalculo(p);
    // 1 x 1.000,50 + 3 x 2 + 4 x 1,25: la categoría sin una de sus casillas no cuenta.
    EXPECT_EQ(p.totalCobrado, "1.011,50");
    EXPECT_EQ(p.aRepartir, "1.011,50");
    p.gastos = "11,50";
    ReCalculo(p);
    EXPECT_EQ(p.aRepartir, "1.000,00");
    p.gastos = "2.000";
    ReCalculo(p);
    EXPECT_EQ(p.aRepartir, "0,00 ");
    EXPECT_FALSE(PuedeDistribuir(p));
}

TEST(PaginaJornada, TeclearLasColumnasTieneSusPropiasCuentas) {
    PaginaJornada p;
    p.acertadas = {"0", "0", "0", "0", "1", "10"};
    p.premios = {"", "", "", "", "20,00", "1,00"};
    DialogoGuionado dialogo;
    ASSERT_TRUE(TeclearColumnas(p, "16", 0.75F, dialogo));
    EXPECT_EQ(p.importe, "12,00");
    // "De 10" no entra al teclear: 20,00, y sin gastos "A repartir" es eso menos el importe.
    EXPECT_EQ(p.totalCobrado, "20,00");
    EXPECT_EQ(p.aRepartir, "8,00");
    p.gastos = "3,00";
    ASSERT_TRUE(TeclearColumnas(p, "16", 0.75F, dialogo));
    EXPECT_EQ(p.aRepartir, "17,00");
    // ReCalculo sí cuenta "De 10".
    ReCalculo(p);
    EXPECT_EQ(p.totalCobrado, "30,00");
    p.cerrada = true;
    EXPECT_FALSE(TeclearColumnas(p, "32", 0.75F, dialogo));
    EXPECT_EQ(p.numColumnas, "16");
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kMsgJornadaCerradaColumnas)});
}

TEST(PaginaJornada, CerrarComparaElImporteConElTotalComoTexto) {
    PenaNueva p;
    p.Anadir({"Alba", "Benito"});
    p.Cuota(0, "3,3", "9");
    p.Cuota(1, "3,45", "9");
    PaginaJornada pagina = LlenarFlex1(p.pena, 9, "");
    EXPECT_EQ(pagina.totalJugado, "6,75");
    PaginaJornada sinJornada;
    EXPECT_FALSE(CerrarJornada(p.pena, sinJornada, p.dialogo));
    ASSERT_TRUE(TeclearColumnas(pagina, "8", 0.75F, p.dialogo));
    EXPECT_FALSE(CerrarJornada(p.pena, pagina, p.dialogo));
    // 9 columnas a 0,75 son 6,75, como lo que juegan (3,3 y 3,45 en float32).
    ASSERT_TRUE(TeclearColumnas(pagina, "9", 0.75F, p.dialogo));
    PaginaJornada cero = pagina;
    cero.numColumnas = "0";
    EXPECT_FALSE(CerrarJornada(p.pena, cero, p.dialogo));
    EXPECT_TRUE(CerrarJornada(p.pena, pagina, p.dialogo));
    EXPECT_EQ(p.dialogo.Textos(), (std::vector<std::string>{std::string(kMsgSeleccioneJornada),
                                                            std::string(kMsgImporteDistinto),
                                                            std::string(kMsgSinColumnas)}));
    EXPECT_TRUE(pagina.cerrada);
    EXPECT_EQ(p.pena.LeerJornada(9).cerrada, -1);
    AbrirJornada(p.pena, pagina);
    EXPECT_EQ(p.pena.LeerJornada(9).cerrada, 0);
    EXPECT_FALSE(pagina.cerrada);
}

TEST(PaginaJornada, TresIgualesYCienEurosLaUltimaSeLlevaElCentimo) {
    PenaNueva p;
    p.Anadir({"Alba", "Benito", "Carmen"});
    for (std::size_t a = 0; a < 3; ++a) p.Cuota(a, "1", "12");
    PaginaJornada pagina = LlenarFlex1(p.pena, 12, "");
    ASSERT_TRUE(TeclearColumnas(pagina, "4", 0.75F, p.dialogo));
    pagina.acertadas = {"0", "0", "0", "0", "0", "1"};
    pagina.premios = {"", "", "", "", "", "100,00"};
    ASSERT_TRUE(CerrarJornada(p.pena, pagina, p.dialogo));
    EXPECT_EQ(pagina.aRepartir, "100,00");
    ASSERT_TRUE(PuedeDistribuir(pagina));
    Distribuir(pagina);
    EXPECT_EQ(pagina.filas[0].obtenido, "33,33");
    EXPECT_EQ(pagina.filas[1].obtenido, "33,33");
    EXPECT_EQ(pagina.filas[2].obtenido, "33,34");
    EXPECT_EQ(pagina.totalObtenido, "100,00");
    GuardarPagina(p.pena, pagina);
    const auto apostantes = p.pena.LeerApostantes();
    EXPECT_FLOAT_EQ(apostantes[0].obtenido[12], 33.33F);
    EXPECT_FLOAT_EQ(apostantes[2].obtenido[12], 33.34F);
    const RegJornadaPena r = p.pena.LeerJornada(12);
    EXPECT_EQ(r.jornada, 12);
    EXPECT_EQ(r.cerrada, -1);
    EXPECT_EQ(r.acertadas[5], 1);
    EXPECT_FLOAT_EQ(r.aRepartir, 100.0F);
    // Vuelta a la página: lo obtenido de cada uno.
    EXPECT_EQ(LlenarFlex1(p.pena, 12, "").totalObtenido, "100,00");
}

// Una Jornada jugada de principio a fin: las cuotas, los aciertos copiados desde la comprobación
// ("A &Peña"), los premios, el cierre, el reparto y las cuentas.
TEST(PaginaJornada, LosAciertosDeLaComprobacionLleganALaJornadaQueSeReparte) {
    PenaNueva p;
    p.Anadir({"Alba", "Benito"});
    p.Cuota(0, "3", "20");
    p.Cuota(1, "1,5", "20");
    outputs::TablaAciertos tabla;
    tabla.cuentas = {0, 0, 1, 2, 5, 11};
    p.dialogo.Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>(p.pena.Archivo(kExtPena)));
    ASSERT_TRUE(CopiarAPena(p.trabajo.Ruta(), 20, tabla, p.dialogo));
    PaginaJornada pagina = LlenarFlex1(p.pena, 20, "");
    EXPECT_EQ(pagina.acertadas, (std::array<std::string, 6>{"0", "0", "1", "2", "5", "11"}));
    ASSERT_TRUE(TeclearColumnas(pagina, "6", 0.75F, p.dialogo));
    pagina.premios = {"", "", "30,00", "10,00", "", ""};
    ASSERT_TRUE(CerrarJornada(p.pena, pagina, p.dialogo));
    EXPECT_EQ(pagina.aRepartir, "50,00");
    Distribuir(pagina);
    EXPECT_EQ(pagina.filas[0].obtenido, "33,33");
    EXPECT_EQ(pagina.filas[1].obtenido, "16,67");
    GuardarPagina(p.pena, pagina);
    const Cuentas cuentas = CuentasDePena(p.pena.LeerJornadas());
    EXPECT_EQ(cuentas.jornadasJugadas, 1);
    EXPECT_EQ(cuentas.resultado, "45,50");
    EXPECT_EQ(CuentasDeApostante(p.pena.LeerApostantes()[1]).obtenido, "16,67");
}

// Los tres archivos byte a byte tras una secuencia conocida.
TEST(ArchivosPena, LosTresArchivosByteAByteTrasUnaJornadaRepartida) {
    PenaNueva p;
    p.Anadir({"Alba"});
    p.Cuota(0, "1,5", "3");
    PaginaJornada pagina = LlenarFlex1(p.pena, 3, "");
    ASSERT_TRUE(TeclearColumnas(pagina, "2", 0.75F, p.dialogo));
    pagina.acertadas = {"0", "0", "0", "0", "1", "0"};
    pagina.premios = {"", "", "", "", "5,00", ""};
    pagina.gastos = "0,50";
    ASSERT_TRUE(CerrarJornada(p.pena, pagina, p.dialogo));
    Distribuir(pagina);
    GuardarPagina(p.pena, pagina);

    const std::string nmp = Bytes(319)
                                .Texto(0, 50,
                                       "Pe\xF1"
                                       "a Los Amigos")
                                .Texto(50, 15, "LosAmigos")
                                .Texto(65, 5, "23/24")
                                .Texto(70, 249, "")
                                .Cadena();
    EXPECT_EQ(pruebas::BytesDeArchivo(p.pena.Archivo(kExtPena)), nmp);

    Bytes jrn(70 * 73);
    for (std::size_t j = 0; j < 70; ++j) jrn.Texto(j * 73, 5, "23/24");
    const std::size_t r3 = 2 * 73;
    jrn.Valor(r3 + 5, std::int16_t{3})
        .Valor(r3 + 15, std::int16_t{-1})
        .Valor(r3 + 17, 2.0F)
        .Valor(r3 + 21, 1.5F)
        .Valor(r3 + 25 + 4 * 2, std::int16_t{1})
        .Valor(r3 + 37 + 4 * 4, 5.0F)
        .Valor(r3 + 61, 5.0F)
        .Valor(r3 + 65, 0.5F)
        .Valor(r3 + 69, 4.5F);
    EXPECT_EQ(pruebas::BytesDeArchivo(p.pena.Archivo(kExtJornadas)), jrn.Cadena());

    const std::string ptc = Bytes(805)
                                .Texto(0, 5, "23/24")
                                .Texto(5, 232, "Alba")
                                .Valor(237 + 3 * 4, 1.5F)
                                .Valor(521 + 3 * 4, 4.5F)
                                .Cadena();
    EXPECT_EQ(pruebas::BytesDeArchivo(p.pena.Archivo(kExtApostantes)), ptc);
}

// Un volcado que escribe la mitad y falla, como un disco que se llena en medio del guardado.
bool MitadYFalla(std::FILE* archivo, std::string_view bytes) {
    std::fwrite(bytes.data(), 1, bytes.size() / 2, archivo);
    errno = ENOSPC;
    return false;
}

TEST(ArchivosPena, UnGuardadoQueFallaAMitadDejaLosArchivosDeAntes) {
    PenaNueva p;
    p.Anadir({"Alba", "Benito"});
    p.Cuota(0, "2", "1", "10");
    const auto antes = [&](std::string_view ext) {
        return pruebas::BytesDeArchivo(p.pena.Archivo(ext));
    };
    const std::string ptc = antes(kExtApostantes);
    const std::string jrn = antes(kExtJornadas);
    const std::string nmp = antes(kExtPena);
    const ArchivosPena rota(p.pena.Ruta(), MitadYFalla);
    EXPECT_THROW(AnadirApostante(rota, Apostante("Carmen"), p.dialogo), base::Error);
    EXPECT_THROW(IntroducirCuotas(rota, 1, "3", "1", "2", p.dialogo), base::Error);
    PaginaJornada pagina = LlenarFlex1(rota, 1, "");
    EXPECT_THROW(GuardarPagina(rota, pagina), base::Error);
    try {
        ModificarDatosPena(rota, DatosPena("Otro nombre"), p.dialogo);
        ADD_FAILURE() << "el guardado tenía que fallar";
    } catch (const base::Error& e) {
        EXPECT_STREQ(e.what(), "Disco lleno");
    }
    EXPECT_EQ(antes(kExtApostantes), ptc);
    EXPECT_EQ(antes(kExtJornadas), jrn);
    EXPECT_EQ(antes(kExtPena), nmp);
    EXPECT_EQ(p.pena.LeerApostantes().size(), 2U);
    // Ningún temporal a medias queda junto a la Peña.
    for (const auto& entrada : std::filesystem::directory_iterator(p.pena.Ruta().parent_path())) {
        EXPECT_NE(entrada.path().extension(), ".nuevo") << entrada.path();
    }
}

TEST(Importar, LaMismaPenaLasFilasSinNombreYLasRepetidas) {
    PenaNueva p;
    p.Anadir({"Alba"});
    // Otra Peña con sus partícipes.
    const auto otra = CrearDatosPena(p.trabajo.Ruta(), DatosPena("Otra", "Otra"), p.dialogo);
    const ArchivosPena origen(*otra);
    RegApostante conCuota = Apostante("Daniel", "11111111H");
    conCuota.cuotas[3] = 9;
    origen.GuardarApostantes({Apostante("Benito"), Apostante(""), Apostante("ALBA"), conCuota});
    // La misma Peña no.
    p.dialogo.Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>(p.pena.Archivo(kExtApostantes)));
    EXPECT_FALSE(ElegirParticipes(p.pena, p.trabajo.Ruta(), p.dialogo));
    EXPECT_EQ(p.dialogo.Textos().back(), kMsgMismaPena);
    p.dialogo.Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>(origen.Archivo(kExtApostantes)));
    const auto participes = ElegirParticipes(p.pena, p.trabajo.Ruta(), p.dialogo);
    ASSERT_TRUE(participes);
    ASSERT_EQ(participes->size(), 4U);
    EXPECT_EQ(ImportarParticipes(p.pena, *participes, {false, false, false, false}, p.dialogo), 0);
    EXPECT_EQ(p.dialogo.Textos().back(), kMsgNadaMarcado);
    const std::size_t marca = p.dialogo.Textos().size();
    EXPECT_EQ(ImportarParticipes(p.pena, *participes, {true, true, true, true}, p.dialogo), 2);
    const auto textos = p.dialogo.Textos();
    EXPECT_EQ(
        std::vector<std::string>(textos.begin() + static_cast<std::ptrdiff_t>(marca), textos.end()),
        (std::vector<std::string>{MsgFilaSinNombre(2), MsgApostanteYaExiste("ALBA"),
                                  std::string(kMsgImportacionTerminada)}));
    const auto apostantes = p.pena.LeerApostantes();
    ASSERT_EQ(apostantes.size(), 3U);
    EXPECT_EQ(base::Recortar(apostantes[2].nombre), "Daniel");
    EXPECT_EQ(base::Recortar(apostantes[2].nif), "11111111H");
    EXPECT_EQ(apostantes[2].cuotas[3], 0.0F);
    EXPECT_EQ(apostantes[2].temporada, "23/24");
}

}  // namespace
}  // namespace quinteva::syndicates
