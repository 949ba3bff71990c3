#include "seasons/teams.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using base::Respuesta;
using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;
using pruebas::DialogoGuionado;
using pruebas::Intercambio;

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

std::vector<RegEquipo> Equipos(const fs::path& carpeta) {
    base::ArchivoDe<RegEquipo> archivo(carpeta / kNomeq);
    std::vector<RegEquipo> equipos;
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) equipos.push_back(archivo.Leer(n));
    return equipos;
}

// Un equipo como se lee de "Nomeq.rar": el nombre con sus blancos hasta 15.
RegEquipo Equipo(std::string nombre, int division, int valoracion = 0) {
    RegEquipo e;
    e.temporada = "23/24";
    nombre.resize(15, ' ');
    e.nombre = std::move(nombre);
    e.division = division;
    e.valoracion = valoracion;
    return e;
}

RegEquipo ConCifras(RegEquipo e) {
    e.posicion = 3;
    e.jugados = 20;
    e.puntos = 41;
    e.ganados = 12;
    e.empatados = 5;
    e.perdidos = 3;
    e.golesFavor = 30;
    e.golesContra = 14;
    e.diferencia = 16;
    e.puntosCasa = 25;
    e.puntosFuera = 16;
    e.posicionJornada[0] = 7;
    e.posicionJornada[44] = 3;
    return e;
}

// Una temporada en curso, "Temporada2324", con los equipos dados en "Nomeq.rar".
struct Temporada {
    CarpetaTemporal trabajo;
    fs::path carpeta;
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;

    explicit Temporada(const std::vector<RegEquipo>& equipos = {}) {
        FijarTemporadaActual(trabajo.Ruta(), "Temporada2324");
        carpeta = trabajo / "Temporada2324";
        fs::create_directories(carpeta);
        base::ArchivoDe<RegEquipo> archivo(carpeta / kNomeq);
        for (const auto& e : equipos) archivo.Anadir(e);
        archivo.Cerrar();
    }
    VentanaEquipos Ventana() {
        VentanaEquipos v(trabajo.Ruta(), carpeta, ajustes, dialogo);
        v.Abrir();
        return v;
    }
    void ConJornadasDeLiga() {
        base::ArchivoDe<RegPartidoLiga> liga(carpeta / kJlig2);
        RegPartidoLiga p;
        p.jornada = 1;
        p.division = 1;
        p.partido = 1;
        p.local = "Girona";
        p.visitante = "Betis";
        p.golesLocal = 2;
        p.golesVisitante = 1;
        liga.Anadir(p);
        liga.Cerrar();
    }
};

std::vector<Intercambio> Mensajes(std::initializer_list<std::string_view> textos) {
    std::vector<Intercambio> mensajes;
    for (auto t : textos) mensajes.push_back({"Mensaje", std::string(t)});
    return mensajes;
}

TEST(VentanaEquipos, AlAbrirseMuestraLasListasOrdenadasYLosNumeros) {
    Temporada t({Equipo("Sevilla", 1), Equipo("Ávila", 2), Equipo("Athletic Club", 1),
                 Equipo("Barcelona", 1), Equipo("Nadie", 0), Equipo("Leganés", 2)});
    t.ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "20");
    const VentanaEquipos v = t.Ventana();
    EXPECT_EQ(v.Division(0).equipos,
              (std::vector<std::string>{"Athletic Club", "Barcelona", "Sevilla"}));
    EXPECT_EQ(v.Division(1).equipos, (std::vector<std::string>{"Ávila", "Leganés"}));
    EXPECT_EQ(v.Division(0).numero, "20");
    EXPECT_EQ(v.Division(1).numero, "");
    EXPECT_EQ(v.Temporada(), "23/24");
    EXPECT_TRUE(v.NumeroFijo(0));
    EXPECT_FALSE(v.TemporadaEditable());
    EXPECT_FALSE(v.SoloMirar());
    EXPECT_EQ(v.Modo(), ModoEquipos::Anadir);
}

TEST(VentanaEquipos, ConJornadasDeLigaSoloSeMira) {
    Temporada t({Equipo("Girona", 1)});
    t.ConJornadasDeLiga();
    VentanaEquipos v = t.Ventana();
    EXPECT_TRUE(v.SoloMirar());
    EXPECT_FALSE(v.IntroEnNombre(0, "Betis", ""));
    EXPECT_EQ(Equipos(t.carpeta).size(), 1U);
}

TEST(VentanaEquipos, UnJlig2RecienCreadoEstaVacioYNoBloquea) {
    Temporada t;
    { base::ArchivoDe<RegPartidoLiga> liga(t.carpeta / kJlig2); }
    EXPECT_EQ(fs::file_size(t.carpeta / kJlig2), 0U);
    EXPECT_FALSE(t.Ventana().SoloMirar());
}

TEST(VentanaEquipos, SinNumeroNiTemporadaPrimeroElNumeroYLuegoLaTemporada) {
    Temporada t;
    VentanaEquipos v = t.Ventana();
    EXPECT_FALSE(v.IntroEnNombre(0, "Girona", ""));
    v.EscribirNumero(0, "20");
    EXPECT_FALSE(v.IntroEnNombre(0, "Girona", ""));
    EXPECT_EQ(t.dialogo.Registro(), Mensajes({kMsgFaltaNumero, kMsgFaltaTemporada}));
    EXPECT_TRUE(Equipos(t.carpeta).empty());
}

TEST(VentanaEquipos, AnadirEscribeElRegistroYOrdenaLaLista) {
    Temporada t;
    VentanaEquipos v = t.Ventana();
    v.EscribirNumero(0, "20");
    v.EscribirNumero(1, "22");
    v.EscribirTemporada("23/24");
    EXPECT_TRUE(v.IntroEnNombre(0, "  Girona ", "7"));
    EXPECT_TRUE(v.IntroEnNombre(0, "Betis", ""));
    EXPECT_TRUE(v.IntroEnNombre(1, "Eldense", "255"));
    EXPECT_EQ(v.Division(0).equipos, (std::vector<std::string>{"Betis", "Girona"}));
    EXPECT_TRUE(t.dialogo.Registro().empty());
    // Los bytes de "Nomeq.rar": Temporada, Nombre, División, Valoración y el resto a cero.
    const auto registro = [](std::string nombre, char division, char valoracion) {
        nombre.resize(15, ' ');
        return "23/24" + nombre + division + valoracion + std::string(63, '\0');
    };
    EXPECT_EQ(Leer(t.carpeta / kNomeq),
              registro("Girona", 1, 7) + registro("Betis", 1, 0) + registro("Eldense", 2, '\xFF'));
    EXPECT_TRUE(v.NumeroFijo(0));
    EXPECT_FALSE(v.TemporadaEditable());
}

TEST(VentanaEquipos, UnNombreDeMasDeQuinceSeCortaEnElRegistro) {
    Temporada t;
    VentanaEquipos v = t.Ventana();
    v.EscribirNumero(0, "20");
    v.EscribirTemporada("23/24");
    EXPECT_TRUE(v.IntroEnNombre(0, "Real Sociedad de Fútbol", ""));
    EXPECT_EQ(base::Recortar(Equipos(t.carpeta).at(0).nombre), "Real Sociedad d");
}

TEST(VentanaEquipos, LaDivisionLlenaNoAdmiteMas) {
    std::vector<RegEquipo> equipos;
    for (int i = 0; i < 18; ++i) equipos.push_back(Equipo("Equipo " + std::to_string(i), 1));
    Temporada t(equipos);
    t.ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "18");
    VentanaEquipos v = t.Ventana();
    EXPECT_FALSE(v.IntroEnNombre(0, "Otro", ""));
    EXPECT_EQ(t.dialogo.Textos(), (std::vector<std::string>{"Ya hay introducidos 18 Equipos."}));
    EXPECT_EQ(Equipos(t.carpeta).size(), 18U);
}

TEST(VentanaEquipos, ElMismoNombreEnLasDosDivisionesSeRechazaPorElTextoRecortado) {
    Temporada t({Equipo("Barcelona", 1)});
    t.ajustes.Guardar(base::kAplicacion, "Valores", "NEq2", "22");
    VentanaEquipos v = t.Ventana();
    EXPECT_FALSE(v.IntroEnNombre(1, " Barcelona  ", ""));
    EXPECT_EQ(t.dialogo.Registro(), Mensajes({kMsgEquipoRepetido}));
    // Las mayúsculas cuentan.
    EXPECT_TRUE(v.IntroEnNombre(1, "BARCELONA", ""));
    EXPECT_EQ(Equipos(t.carpeta).size(), 2U);
}

TEST(VentanaEquipos, UnaValoracionPorEncimaDe255DesbordaSinTocarNada) {
    Temporada t({Equipo("Barcelona", 1)});
    t.ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "20");
    VentanaEquipos v = t.Ventana();
    const std::string antes = Leer(t.carpeta / kNomeq);
    EXPECT_THROW(v.IntroEnNombre(0, "Girona", "256"), base::Desbordamiento);
    EXPECT_EQ(Leer(t.carpeta / kNomeq), antes);
    EXPECT_EQ(v.Division(0).equipos, (std::vector<std::string>{"Barcelona"}));
}

TEST(VentanaEquipos, ModificarElNombrePreguntaYReescribeElRegistro) {
    Temporada t({Equipo("Girona", 1, 4), Equipo("Betis", 1, 9)});
    VentanaEquipos v = t.Ventana();
    const auto [nombre, valoracion] = v.ElegirParaModificar(0, 1);
    EXPECT_EQ(nombre, "Girona");
    EXPECT_EQ(valoracion, "4");
    EXPECT_EQ(v.Modo(), ModoEquipos::Modificar);
    t.dialogo.Responder(Respuesta::No).Responder(Respuesta::Si);
    EXPECT_FALSE(v.IntroEnNombre(0, "Girona FC", "5"));
    EXPECT_EQ(Equipos(t.carpeta).at(0), Equipo("Girona", 1, 4));
    EXPECT_TRUE(v.IntroEnNombre(0, "Girona FC", "5"));
    EXPECT_EQ(t.dialogo.Textos(), (std::vector<std::string>{
                                      "Está seguro de que desea modificar el Equipo Girona FC?",
                                      "Está seguro de que desea modificar el Equipo Girona FC?"}));
    EXPECT_EQ(t.dialogo.PorDefecto(), (std::vector<Respuesta>{Respuesta::Si, Respuesta::Si}));
    const auto equipos = Equipos(t.carpeta);
    EXPECT_EQ(base::Recortar(equipos.at(0).nombre), "Girona FC");
    EXPECT_EQ(equipos.at(0).valoracion, 5);
    EXPECT_EQ(equipos.at(1), Equipo("Betis", 1, 9));
    EXPECT_EQ(v.Division(0).equipos.at(1), "Girona FC");
    EXPECT_EQ(v.Modo(), ModoEquipos::Anadir);
}

TEST(VentanaEquipos, ConJornadasDeLigaNoSeCambiaElNombrePeroSiLaValoracion) {
    Temporada t({Equipo("Girona", 1, 4)});
    t.ConJornadasDeLiga();
    VentanaEquipos v = t.Ventana();
    v.ElegirParaModificar(0, 0);
    EXPECT_FALSE(v.IntroEnNombre(0, "Girona FC", "4"));
    EXPECT_EQ(t.dialogo.Registro(), Mensajes({kMsgNoModificar}));
    t.dialogo.Responder(Respuesta::Si);
    EXPECT_TRUE(v.IntroEnValoracion(0, "Girona", "12"));
    EXPECT_EQ(t.dialogo.Textos().back(),
              "Está seguro de que desea modificar la valoración del Equipo Girona?");
    EXPECT_EQ(Equipos(t.carpeta).at(0).valoracion, 12);
}

TEST(VentanaEquipos, LaValoracionPideNombreYValoracion) {
    Temporada t({Equipo("Girona", 1, 4)});
    VentanaEquipos v = t.Ventana();
    v.ElegirParaModificar(0, 0);
    EXPECT_FALSE(v.IntroEnValoracion(0, "", "3"));
    EXPECT_FALSE(v.IntroEnValoracion(0, "Girona", " "));
    EXPECT_EQ(t.dialogo.Registro(), Mensajes({kMsgFaltaNombre, kMsgFaltaValoracion}));
    EXPECT_EQ(Equipos(t.carpeta).at(0).valoracion, 4);
}

TEST(VentanaEquipos, EliminarCopiaLosDemasYRenombra) {
    Temporada t({Equipo("Girona", 1), Equipo("Betis", 1), Equipo("Eldense", 2)});
    VentanaEquipos v = t.Ventana();
    t.dialogo.Responder(Respuesta::No).Responder(Respuesta::Si);
    EXPECT_FALSE(v.Eliminar(0, 1));
    EXPECT_TRUE(v.Eliminar(0, 1));
    EXPECT_EQ(t.dialogo.Textos().back(), "Está seguro de que desea eliminar el Equipo Girona?");
    EXPECT_EQ(Equipos(t.carpeta),
              (std::vector<RegEquipo>{Equipo("Betis", 1), Equipo("Eldense", 2)}));
    EXPECT_FALSE(fs::exists(t.carpeta / kNomeq2));
    EXPECT_EQ(v.Division(0).equipos, (std::vector<std::string>{"Betis"}));
}

TEST(VentanaEquipos, ConJornadasDeLigaNoSeElimina) {
    Temporada t({Equipo("Girona", 1)});
    t.ConJornadasDeLiga();
    VentanaEquipos v = t.Ventana();
    EXPECT_FALSE(v.Eliminar(0, 0));
    EXPECT_EQ(t.dialogo.Registro(), Mensajes({kMsgNoEliminar}));
    EXPECT_EQ(Equipos(t.carpeta).size(), 1U);
}

TEST(VentanaEquipos, ElNumeroDeEquiposEntre18Y25MientrasNoHayEquipos) {
    Temporada t({Equipo("Girona", 1)});
    VentanaEquipos v = t.Ventana();
    v.PulsarNumero(0);
    v.PulsarNumero(1);
    v.EscribirNumero(1, "17");
    EXPECT_FALSE(v.SalirDeNumero(1));
    v.EscribirNumero(1, "26");
    EXPECT_FALSE(v.SalirDeNumero(1));
    v.EscribirNumero(1, "25");
    EXPECT_TRUE(v.SalirDeNumero(1));
    EXPECT_EQ(t.dialogo.Registro(), Mensajes({kMsgNumeroFijo, kMsgNumeroFueraDeLimites,
                                              kMsgNumeroFueraDeLimites, kMsgRectifiqueNumero}));
    EXPECT_EQ(t.ajustes.Leer(base::kAplicacion, "Valores", "NEq2", ""), "25");
    EXPECT_EQ(t.ajustes.Leer(base::kAplicacion, "Valores", "NEq1", ""), "");
}

TEST(VentanaEquipos, LaTemporadaSoloConCifrasYBarraYCincoCaracteres) {
    Temporada t;
    VentanaEquipos v = t.Ventana();
    EXPECT_TRUE(v.TeclaTemporada('2'));
    EXPECT_TRUE(v.TeclaTemporada('/'));
    EXPECT_FALSE(v.TeclaTemporada('a'));
    v.EscribirTemporada("23/2");
    EXPECT_FALSE(v.SalirDeTemporada());
    v.EscribirTemporada("23/24");
    EXPECT_TRUE(v.SalirDeTemporada());
    EXPECT_EQ(t.dialogo.Registro(), Mensajes({kMsgTeclaTemporada, kMsgTemporadaCorta}));
}

// "Nueva Temporada" hasta el final: la carpeta nueva con "Nomeq.rar" y "Jornadas.rar" copiados y
// los equipos sin cifras, "Tempor.rar" apuntando a ella y los números guardados.
TEST(NuevaTemporada, CreaLaCarpetaYPasaLosEquiposSinCifras) {
    Temporada t({ConCifras(Equipo("Girona", 1, 8)), ConCifras(Equipo("Eldense", 2))});
    t.ConJornadasDeLiga();
    { std::ofstream(t.carpeta / kJornadas, std::ios::binary) << std::string(22, 'J'); }
    { std::ofstream(t.carpeta / kJquin, std::ios::binary) << std::string(51, 'Q'); }
    VentanaEquipos v = t.Ventana();
    t.dialogo.Responder(Respuesta::Aceptar)
        .Responder(std::optional<std::string>("24/25"))
        .Responder(std::optional<std::string>("20"))
        .Responder(std::optional<std::string>(" 22 "));
    EXPECT_EQ(v.NuevaTemporada(), std::optional<std::string>("Temporada 24/25"));
    EXPECT_EQ(
        t.dialogo.Textos(),
        (std::vector<std::string>{std::string(kPreguntaNuevaTemporada),
                                  std::string(kPideNuevaTemporada), std::string(kPideEquipos1),
                                  std::string(kPideEquipos2), std::string(kMsgTemporadaCreada)}));
    EXPECT_EQ(t.dialogo.PorDefecto(), (std::vector<Respuesta>{Respuesta::Cancelar}));
    EXPECT_EQ(TemporadaActual(t.trabajo.Ruta()), std::optional<std::string>("Temporada2425"));
    const fs::path nueva = t.trabajo / "Temporada2425";
    EXPECT_EQ(Leer(nueva / kJornadas), std::string(22, 'J'));
    EXPECT_FALSE(fs::exists(nueva / kJlig2));
    EXPECT_FALSE(fs::exists(nueva / kJquin));
    EXPECT_FALSE(fs::exists(nueva / kRean));
    RegEquipo girona = Equipo("Girona", 1, 8);
    girona.temporada = "24/25";
    RegEquipo eldense = Equipo("Eldense", 2);
    eldense.temporada = "24/25";
    EXPECT_EQ(Equipos(nueva), (std::vector<RegEquipo>{girona, eldense}));
    // La temporada anterior queda como estaba.
    EXPECT_EQ(Equipos(t.carpeta).at(0), ConCifras(Equipo("Girona", 1, 8)));
    EXPECT_EQ(t.ajustes.Leer(base::kAplicacion, "Valores", "NEq1", ""), "20");
    EXPECT_EQ(t.ajustes.Leer(base::kAplicacion, "Valores", "NEq2", ""), "22");
    EXPECT_EQ(v.Temporada(), "24/25");
    EXPECT_EQ(v.Division(1).numero, "22");
    EXPECT_FALSE(v.SoloMirar());
}

TEST(NuevaTemporada, CancelarOUnaTemporadaMalEscritaNoCambiaNada) {
    Temporada t({Equipo("Girona", 1)});
    VentanaEquipos v = t.Ventana();
    t.dialogo.Responder(Respuesta::Cancelar)
        .Responder(Respuesta::Aceptar)
        .Responder(std::optional<std::string>("2425"))
        .Responder(Respuesta::Aceptar)
        .Responder(std::optional<std::string>{});
    EXPECT_FALSE(v.NuevaTemporada());
    EXPECT_FALSE(v.NuevaTemporada());
    EXPECT_FALSE(v.NuevaTemporada());
    EXPECT_EQ(t.dialogo.Textos(),
              (std::vector<std::string>{
                  std::string(kPreguntaNuevaTemporada), std::string(kPreguntaNuevaTemporada),
                  std::string(kPideNuevaTemporada), std::string(kMsgFormatoTemporada),
                  std::string(kPreguntaNuevaTemporada), std::string(kPideNuevaTemporada),
                  std::string(kMsgFormatoTemporada)}));
    EXPECT_EQ(TemporadaActual(t.trabajo.Ruta()), std::optional<std::string>("Temporada2324"));
    std::vector<fs::path> carpetas;
    for (const auto& e : fs::directory_iterator(t.trabajo.Ruta())) {
        if (e.is_directory()) carpetas.push_back(e.path().filename());
    }
    EXPECT_EQ(carpetas, (std::vector<fs::path>{"Temporada2324"}));
}

// Con un número de equipos mal contestado queda la carpeta nueva con las cifras viejas y
// "Tempor.rar" sigue en la temporada anterior.
TEST(NuevaTemporada, UnNumeroDeEquiposMalDejaLaCarpetaConLasCifrasViejas) {
    for (const char* respuesta : {"veinte", "24"}) {
        Temporada t({ConCifras(Equipo("Girona", 1))});
        VentanaEquipos v = t.Ventana();
        t.dialogo.Responder(Respuesta::Aceptar)
            .Responder(std::optional<std::string>("24/25"))
            .Responder(std::optional<std::string>("20"))
            .Responder(std::optional<std::string>(respuesta));
        EXPECT_FALSE(v.NuevaTemporada());
        EXPECT_EQ(t.dialogo.Textos().back(),
                  std::string(respuesta) == "24" ? kMsgEquiposMayor : kMsgEquiposIncorrecto);
        EXPECT_EQ(TemporadaActual(t.trabajo.Ruta()), std::optional<std::string>("Temporada2324"));
        EXPECT_EQ(Equipos(t.trabajo / "Temporada2425"),
                  (std::vector<RegEquipo>{ConCifras(Equipo("Girona", 1))}));
        EXPECT_EQ(t.ajustes.Leer(base::kAplicacion, "Valores", "NEq1", "-"), "-");
    }
}

// El diálogo admite 23 equipos y no más; la ventana, hasta 25: los dos límites se quedan así.
TEST(NuevaTemporada, VeintitresEquiposSiVeinticuatroNo) {
    Temporada t({Equipo("Girona", 1)});
    VentanaEquipos v = t.Ventana();
    t.dialogo.Responder(Respuesta::Aceptar)
        .Responder(std::optional<std::string>("24/25"))
        .Responder(std::optional<std::string>("23"))
        .Responder(std::optional<std::string>("0"));
    EXPECT_TRUE(v.NuevaTemporada());
    EXPECT_EQ(v.Division(0).numero, "23");
    EXPECT_EQ(v.Division(1).numero, "0");
}

TEST(NuevaTemporada, UnaTemporadaQueYaExisteSeBorraSinPreguntarMas) {
    Temporada t({Equipo("Girona", 1)});
    const fs::path vieja = t.trabajo / "Temporada2425";
    fs::create_directories(vieja);
    { std::ofstream(vieja / kJlig2, std::ios::binary) << std::string(51, 'L'); }
    { std::ofstream(vieja / "notas.txt") << "de antes"; }
    VentanaEquipos v = t.Ventana();
    t.dialogo.Responder(Respuesta::Aceptar)
        .Responder(std::optional<std::string>("24/25"))
        .Responder(std::optional<std::string>("20"))
        .Responder(std::optional<std::string>("22"));
    EXPECT_TRUE(v.NuevaTemporada());
    EXPECT_FALSE(fs::exists(vieja / kJlig2));
    EXPECT_FALSE(fs::exists(vieja / "notas.txt"));
    EXPECT_EQ(t.dialogo.Textos().size(), 5U);
}

TEST(TodoACero, EquiposA1920SinCifrasYGolesACero) {
    Temporada t({ConCifras(Equipo("Girona", 1, 6)), ConCifras(Equipo("Eldense", 2, 2))});
    t.ConJornadasDeLiga();
    { std::ofstream(t.carpeta / kJornadas, std::ios::binary) << std::string(22, 'J'); }
    { std::ofstream(t.carpeta / kJquin, std::ios::binary) << std::string(51, 'Q'); }
    { std::ofstream(t.trabajo / kHist, std::ios::binary) << std::string(51, 'H'); }
    VentanaEquipos v = t.Ventana();
    v.TodoACero();
    EXPECT_TRUE(t.dialogo.Registro().empty());
    RegEquipo girona = Equipo("Girona", 1, 6);
    girona.temporada = "19/20";
    RegEquipo eldense = Equipo("Eldense", 2, 2);
    eldense.temporada = "19/20";
    EXPECT_EQ(Equipos(t.carpeta), (std::vector<RegEquipo>{girona, eldense}));
    base::ArchivoDe<RegPartidoLiga> liga(t.carpeta / kJlig2);
    const RegPartidoLiga partido = liga.Leer(1);
    EXPECT_EQ(partido.golesLocal, 0);
    EXPECT_EQ(partido.golesVisitante, 0);
    EXPECT_EQ(base::Recortar(partido.local), "Girona");
    EXPECT_EQ(Leer(t.carpeta / kJornadas), std::string(22, 'J'));
    EXPECT_EQ(Leer(t.carpeta / kJquin), std::string(51, 'Q'));
    EXPECT_EQ(Leer(t.trabajo / kHist), std::string(51, 'H'));
}

TEST(VentanaEquipos, UnNomeqCortadoSeLeeHastaElUltimoRegistroEntero) {
    Temporada t({Equipo("Girona", 1), Equipo("Betis", 1)});
    fs::resize_file(t.carpeta / kNomeq, RegEquipo::kLongitud * 2 - 10);
    const VentanaEquipos v = t.Ventana();
    EXPECT_EQ(v.Division(0).equipos, (std::vector<std::string>{"Girona"}));
}

}  // namespace
}  // namespace quinteva::seasons
