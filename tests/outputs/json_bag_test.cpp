#include "outputs/json_bag.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "tests/outputs/json_errors.h"

namespace quinteva::outputs {
namespace {

using pruebas::EsperarErrorJson;

std::string Ida(std::string_view texto) {
    JsonBag bolsa;
    bolsa.JSON(texto);
    return bolsa.JSON();
}

// --- Estructura y serialización ---

TEST(JsonBag, VaciosLeenYSalenExactos) {
    for (const char* texto : {"{}", "[]"}) {
        JsonBag bolsa;
        bolsa.JSON(texto);
        EXPECT_EQ(bolsa.Count(), 0);
        EXPECT_EQ(bolsa.JSON(), texto);
        bolsa.Whitespace = true;
        EXPECT_EQ(bolsa.JSON(), texto);
    }
}

TEST(JsonBag, BlancosDelanteSeSaltanYUnNumeroNoEsRaiz) {
    EXPECT_EQ(Ida(" \r\n\t{\"a\":1}"), "{\"a\":1}");
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("5"); }, 13, "Expected either { or [ at character 1");
    EsperarErrorJson([&] { bolsa.JSON(""); }, 13, "Expected either { or [ at character 1");
    EsperarErrorJson([&] { bolsa.JSON("  x"); }, 13, "Expected either { or [ at character 3");
}

TEST(JsonBag, ComasSobrantes) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("{,\"a\":1}"); }, 13,
                     "Found \",\" before first item at character 2");
    bolsa.JSON("[,1]");
    EXPECT_EQ(bolsa.Count(), 1);
    bolsa.JSON("[,,1,,2,]");
    EXPECT_EQ(bolsa.JSON(), "[1,2]");
    bolsa.JSON("{\"a\":1,,,\"b\":2,}");
    EXPECT_EQ(bolsa.JSON(), "{\"a\":1,\"b\":2}");
    // Tampoco se exige coma entre miembros.
    bolsa.JSON("{\"a\":1 \"b\":2}");
    EXPECT_EQ(bolsa.JSON(), "{\"a\":1,\"b\":2}");
}

TEST(JsonBag, NombresDistinguenMayusculasYElRepetidoPasaAlFinal) {
    JsonBag bolsa;
    bolsa.JSON("{\"Total\":1,\"total\":2,\"x\":3,\"Total\":4}");
    EXPECT_EQ(bolsa.Count(), 3);
    EXPECT_EQ(bolsa.JSON(), "{\"total\":2,\"x\":3,\"Total\":4}");
    EXPECT_EQ(std::get<double>(bolsa.Item("Total")), 4.0);
    EXPECT_EQ(bolsa.NewEnum(), (std::vector<std::string>{"total", "x", "Total"}));
    EXPECT_EQ(bolsa.Name(3), "Total");
}

TEST(JsonBag, ClearConvierteElArrayEnObjeto) {
    JsonBag bolsa;
    bolsa.JSON("[1,2]");
    ASSERT_TRUE(bolsa.IsArray());
    bolsa.Clear();
    EXPECT_FALSE(bolsa.IsArray());
    bolsa.Item("a", 1);
    EXPECT_EQ(bolsa.JSON(), "{\"a\":1}");
}

TEST(JsonBag, IsArrayNoCambiaConElementos) {
    JsonBag bolsa;
    bolsa.Item("a", 1);
    const std::string texto = "Cannot change IsArray setting after items have been added";
    EsperarErrorJson([&] { bolsa.IsArray(true); }, 5, texto);
    EsperarErrorJson([&] { bolsa.IsArray(false); }, 5, texto);
    JsonBag vacia;
    vacia.IsArray(true);
    EXPECT_TRUE(vacia.IsArray());
    EXPECT_EQ(vacia.JSON(), "[]");
}

TEST(JsonBag, ExistsNoEncuentraElNombreSoloSinoLaClaveDeBusqueda) {
    JsonBag bolsa;
    bolsa.JSON("{\"a\":1,\"b\":2}");
    EXPECT_FALSE(bolsa.Exists("a"));
    EXPECT_TRUE(bolsa.Exists(1));
    EXPECT_TRUE(bolsa.Exists(2));
    EXPECT_FALSE(bolsa.Exists(0));
    EXPECT_FALSE(bolsa.Exists(3));
    EXPECT_FALSE(bolsa.Exists({}));
    const std::string clave = JsonBag::ClaveDeBusqueda("a");
    ASSERT_EQ(clave.size(), 9U);
    EXPECT_EQ(clave.substr(8), "a");
    EXPECT_EQ(clave.find_first_not_of("0123456789ABCDEF"), 8U);
    EXPECT_TRUE(bolsa.Exists(clave));
    EXPECT_FALSE(bolsa.Exists(JsonBag::ClaveDeBusqueda("c")));
    // En un array todo es falso.
    JsonBag lista;
    lista.JSON("[1]");
    EXPECT_FALSE(lista.Exists(1));
    EXPECT_FALSE(lista.Exists("a"));
}

TEST(JsonBag, RemoveNoQuitaElUltimoPorIndice) {
    JsonBag bolsa;
    bolsa.JSON("{\"a\":1,\"b\":2}");
    bolsa.Remove(bolsa.Count());
    EXPECT_EQ(bolsa.Count(), 2);
    bolsa.Remove(1);
    EXPECT_EQ(bolsa.JSON(), "{\"b\":2}");
    EXPECT_EQ(bolsa.Name(1), "b");
    bolsa.Remove("no-esta");
    EXPECT_EQ(bolsa.Count(), 1);
    bolsa.Remove("b");
    EXPECT_EQ(bolsa.JSON(), "{}");
    bolsa.JSON("[1,2]");
    bolsa.Remove({});
    EXPECT_EQ(bolsa.Count(), 2);
    EsperarErrorJson([&] { bolsa.Remove(0); }, 9, "Subscript out of range");
    EsperarErrorJson([&] { bolsa.Remove("a"); }, 5, "Must remove by index for arrays");
    bolsa.Remove(1);
    EXPECT_EQ(bolsa.JSON(), "[2]");
}

TEST(JsonBag, ItemEscritoEnArray) {
    JsonBag bolsa;
    bolsa.IsArray(true);
    bolsa.Item(5, std::string("x"));
    EXPECT_EQ(bolsa.Count(), 1);
    EXPECT_EQ(std::get<std::string>(bolsa.Item(1)), "x");
    bolsa.Item({}, 2);
    bolsa.Item({}, 3);
    // Un índice intermedio sustituye en su sitio.
    bolsa.Item(2, true);
    EXPECT_EQ(bolsa.JSON(), "[\"x\",true,3]");
    // El último se quita y la inserción falla: el elemento se pierde.
    EsperarErrorJson([&] { bolsa.Item(3, 9); }, 9, "Subscript out of range");
    EXPECT_EQ(bolsa.JSON(), "[\"x\",true]");
    EsperarErrorJson([&] { bolsa.Item(0, 9); }, 9, "Subscript out of range");
    EsperarErrorJson([&] { bolsa.Item("a", 1); }, 5,
                     "Array values can only be changed by index or added via Null");
}

TEST(JsonBag, ItemEscritoEnObjetoSoloPorNombre) {
    JsonBag bolsa;
    const std::string texto = "Object values can only be changed or added by key not by index";
    EsperarErrorJson([&] { bolsa.Item(1, 1); }, 5, texto);
    EsperarErrorJson([&] { bolsa.Item({}, 1); }, 5, texto);
    EsperarErrorJson([&] { bolsa.AddNewObject(); }, 5, texto);
}

TEST(JsonBag, ItemLeido) {
    JsonBag bolsa;
    bolsa.JSON("{\"a\":\"x\",\"b\":[7]}");
    EsperarErrorJson([&] { bolsa.Item(); }, 94, "Key must be String or an index)");
    EXPECT_EQ(std::get<std::string>(bolsa.Item("a")), "x");
    EXPECT_EQ(std::get<std::string>(bolsa.Item(1)), "x");
    EsperarErrorJson([&] { bolsa.Item("c"); }, 5, "Invalid procedure call or argument");
    EsperarErrorJson([&] { bolsa.Item(3); }, 9, "Subscript out of range");
    JsonBag& lista = bolsa.Hija("b");
    EsperarErrorJson([&] { lista.Item("a"); }, 5, "Array values can only be acessed by index");
    EsperarErrorJson([&] { lista.Name(1); }, 5, "Array items do not have names");
    EsperarErrorJson([&] { lista.NewEnum(); }, 5, "Arrays must be iterated using index values");
    // La hija vuelve por referencia: cambiarla cambia el árbol.
    lista.Item({}, 8);
    EXPECT_EQ(bolsa.JSON(), "{\"a\":\"x\",\"b\":[7,8]}");
    EsperarErrorJson([&] { bolsa.Hija("a"); }, 13, "Type mismatch");
}

TEST(JsonBag, VersionYNuevasBolsas) {
    EXPECT_EQ(JsonBag::Version(), std::vector<std::string>{"1.6"});
    JsonBag raiz;
    raiz.DecimalMode(true);
    JsonBag& lista = raiz.AddNewArray("l");
    EXPECT_TRUE(lista.IsArray());
    EXPECT_FALSE(lista.DecimalMode());
    lista.AddNewObject().Item("k", 1);
    lista.AddNewArray();
    raiz.AddNewObject("o");
    EXPECT_EQ(raiz.JSON(), "{\"l\":[{\"k\":1},[]],\"o\":{}}");
}

TEST(JsonBag, LaHijaLeidaTomaElModoDecimalDeLaMadre) {
    JsonBag bolsa;
    bolsa.DecimalMode(true);
    bolsa.JSON("{\"a\":{\"b\":1.50}}");
    JsonBag& hija = bolsa.Hija("a");
    EXPECT_TRUE(hija.DecimalMode());
    EXPECT_EQ(std::get<Decimal>(hija.Item("b")).Texto(), "1.5");
}

// --- Textos ---

TEST(JsonBag, TabuladorCrudoSeRechazaYSaleEscapado) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("[\"a\tb\"]"); }, 13, "Invalid string character at 4");
    bolsa.IsArray(true);
    bolsa.Item({}, std::string("a\tb"));
    EXPECT_EQ(bolsa.JSON(), "[\"a\\tb\"]");
}

TEST(JsonBag, EscapesLeidos) {
    JsonBag bolsa;
    bolsa.JSON(R"(["\"\\\/\b\f\n\r\t\u0041\U0042\N"])");
    EXPECT_EQ(std::get<std::string>(bolsa.Item(1)), "\"\\/\b\f\n\r\tAB\n");
    EXPECT_EQ(bolsa.JSON(), R"(["\"\\/\b\f\n\r\tAB\n"])");
}

TEST(JsonBag, EscapesMalos) {
    JsonBag bolsa;
    const std::string texto = "Bad string character escape at character ";
    EsperarErrorJson([&] { bolsa.JSON(R"(["\q"])"); }, 13, texto + "4");
    EsperarErrorJson([&] { bolsa.JSON(R"(["\u00G1"])"); }, 13, texto + "4");
    EsperarErrorJson([&] { bolsa.JSON(R"(["\u00)"); }, 13, texto + "4");
    EsperarErrorJson([&] { bolsa.JSON("[\"\\"); }, 13, texto + "4");
}

TEST(JsonBag, TextoSinCerrar) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("[\"abc"); }, 13, "Expected \" at character 6");
    // La comilla de cierre como último carácter del texto también falla.
    EsperarErrorJson([&] { bolsa.JSON("{\"a\":\"b\""); }, 13, "Expected \" at character 9");
}

TEST(JsonBag, TablaDeEscapesAlEscribir) {
    JsonBag bolsa;
    bolsa.IsArray(true);
    bolsa.Item({}, std::string("\x01\x1f\x7f \xc2\xa0/!~"));
    bolsa.Item({}, std::string("\xcd\x8f\xe2\x80\x8b\xe2\x80\xa8\xe2\x81\xa0"));
    bolsa.Item({}, std::string("\xef\xb8\x80\xef\xb8\x81\xef\xbb\xbf\xef\xbf\xbd"));
    bolsa.Item({}, std::string("\xc3\xb1\xf0\x9f\x98\x80"));
    EXPECT_EQ(bolsa.JSON(),
              "[\"\\u0001\\u001F\\u007F \xc2\xa0/!~\","
              "\"\\u034F\\u200B\\u2028\\u2060\","
              "\"\xef\xb8\x80\\uFE01\\uFEFF\\uFFFD\","
              "\"\xc3\xb1\\uD83D\\uDE00\"]");
}

TEST(JsonBag, MitadesDeParIdaYVuelta) {
    EXPECT_EQ(Ida(R"(["\uD83D\uDE00","\uD800x"])"), R"(["\uD83D\uDE00","\uD800x"])");
    JsonBag bolsa;
    bolsa.JSON(R"(["\uD83D\uDE00"])");
    EXPECT_EQ(std::get<std::string>(bolsa.Item(1)), "\xf0\x9f\x98\x80");
}

TEST(JsonBag, BytesQueNoSonUtf8SeLeenComoSustituto) {
    EXPECT_EQ(Ida("[\"a\xff\xc3\"]"), "[\"a\\uFFFD\\uFFFD\"]");
}

TEST(JsonBag, PosicionesEnUnidadesUtf16) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("{\"\xc3\xa9\xf0\x9f\x98\x80\":x}"); }, 13,
                     "Bad value at character 8");
}

// --- Valores y números ---

TEST(JsonBag, PalabrasSinMirarMayusculas) {
    JsonBag bolsa;
    bolsa.JSON("[TRUE,True,fAlSe,NULL]");
    EXPECT_EQ(std::get<bool>(bolsa.Item(1)), true);
    EXPECT_EQ(std::get<bool>(bolsa.Item(2)), true);
    EXPECT_EQ(std::get<bool>(bolsa.Item(3)), false);
    EXPECT_TRUE(std::holds_alternative<Nulo>(bolsa.Item(4)));
    EXPECT_EQ(bolsa.JSON(), "[true,true,false,null]");
    EsperarErrorJson([&] { bolsa.JSON("[tru]"); }, 13, "Bad value at character 2");
    EsperarErrorJson([&] { bolsa.JSON("[1,"); }, 13, "Bad value at character 4");
}

TEST(JsonBag, ErroresDeSintaxisDelObjeto) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("{\"a\" 1}"); }, 13, "Expected : at character 6");
    EsperarErrorJson([&] { bolsa.JSON("{\"a\":1;}"); }, 13, "Expected , or } at character 7");
    EsperarErrorJson([&] { bolsa.JSON("{"); }, 13, "Expected , or } at character 2");
}

TEST(JsonBag, TrasUnFalloQuedaLoLeido) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("{\"a\":1,\"b\":[2,x]}"); }, 13, "Bad value at character 15");
    EXPECT_EQ(bolsa.JSON(), "{\"a\":1}");
}

TEST(JsonBag, LoQueSigueALaRaizNoSeMira) { EXPECT_EQ(Ida("{\"a\":1} basura ]"), "{\"a\":1}"); }

TEST(JsonBag, NumerosEnModoDouble) {
    EXPECT_EQ(Ida("[1e5]"), "[100000]");
    EXPECT_EQ(Ida("[1E+20,0.5,-0,01,1.,-2.5e-3,0.00001]"), "[1e+20,0.5,0,1,1,-0.0025,1e-05]");
    EXPECT_EQ(Ida("[123456789012345678]"), "[1.23456789012346e+17]");
}

TEST(JsonBag, NumerosMalFormados) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON("[1.2.3]"); }, 13, "Second decimal point at character 5");
    EsperarErrorJson([&] { bolsa.JSON("[-.5]"); }, 13, "Digit expected at character 3");
    EsperarErrorJson([&] { bolsa.JSON("[1e+5-]"); }, 13, "Second exponent sign at character 6");
    EsperarErrorJson([&] { bolsa.JSON("[12"); }, 13,
                     "Ran off end of string while parsing a number");
    EsperarErrorJson([&] { bolsa.JSON("[1e5"); }, 13,
                     "Ran off end of string while parsing a number");
    EsperarErrorJson([&] { bolsa.JSON("[ 1e999]"); }, 6,
                     "Number overflow or parse error at character 3");
    EsperarErrorJson([&] { bolsa.JSON("[-]"); }, 6,
                     "Number overflow or parse error at character 2");
    // El exponente vacío no lo rechaza el recorrido sino la conversión.
    EsperarErrorJson([&] { bolsa.JSON("[1e]"); }, 6,
                     "Number overflow or parse error at character 2");
}

TEST(JsonBag, NumerosEnModoDecimal) {
    JsonBag bolsa;
    bolsa.DecimalMode(true);
    bolsa.JSON("[1e5,1.50,-0.25,0.1234567890123456789012345678901,79228162514264337593543950335]");
    EXPECT_TRUE(std::holds_alternative<Decimal>(bolsa.Item(1)));
    EXPECT_EQ(bolsa.JSON(),
              "[100000,1.5,-0.25,0.1234567890123456789012345679,79228162514264337593543950335]");
    EsperarErrorJson([&] { bolsa.JSON("[79228162514264337593543950336]"); }, 6,
                     "Number overflow or parse error at character 2");
    bolsa.DecimalMode(false);
    bolsa.JSON("[1.50]");
    EXPECT_TRUE(std::holds_alternative<double>(bolsa.Item(1)));
}

TEST(JsonBag, TodosLosTiposDeNumero) {
    JsonBag bolsa;
    bolsa.IsArray(true);
    bolsa.Item({}, std::int16_t{-7});
    bolsa.Item({}, std::int32_t{70000});
    bolsa.Item({}, 0.1F);
    bolsa.Item({}, 2.5);
    bolsa.Item({}, Moneda{15000});
    bolsa.Item({}, *Decimal::DeTexto("2.500"));
    bolsa.Item({}, std::uint8_t{255});
    bolsa.Item({}, false);
    bolsa.Item({}, Vacio{});
    EXPECT_EQ(bolsa.JSON(), "[-7,70000,0.1,2.5,1.5,2.5,255,false,null]");
}

TEST(JsonBag, LoQueNoSeSerializa) {
    JsonBag bolsa;
    bolsa.Item("dia", Fecha{45000.0});
    EsperarErrorJson([&] { bolsa.JSON(); }, 51, "dia, unknown/unsupported type = 7");
    bolsa.Clear();
    bolsa.Item("x", std::numeric_limits<double>::infinity());
    EsperarErrorJson([&] { bolsa.JSON(); }, 51, "x, value inf failed to serialize");
}

// --- Espacios ---

TEST(JsonBag, WhitespaceSangraConCuatroBlancosYCrLf) {
    JsonBag bolsa;
    bolsa.JSON("{\"a\":[1,{\"b\":\"c\"}],\"d\":{},\"e\":[]}");
    bolsa.Whitespace = true;
    EXPECT_EQ(bolsa.JSON(),
              "{\r\n"
              "    \"a\":[\r\n"
              "        1,\r\n"
              "        {\r\n"
              "            \"b\":\"c\"\r\n"
              "        }\r\n"
              "    ],\r\n"
              "    \"d\":{},\r\n"
              "    \"e\":[]\r\n"
              "}");
    // Solo cuenta el indicador de la bolsa que se serializa.
    bolsa.Whitespace = false;
    bolsa.Hija("a").Whitespace = true;
    EXPECT_EQ(bolsa.JSON(), "{\"a\":[1,{\"b\":\"c\"}],\"d\":{},\"e\":[]}");
}

// --- Tamaños ---

TEST(JsonBag, AnidamientoDesmedidoEsUnErrorYNoUnFallo) {
    JsonBag bolsa;
    EsperarErrorJson([&] { bolsa.JSON(std::string(100000, '[')); }, 28,
                     "Espacio de pila insuficiente");
}

TEST(JsonBag, MuchosElementosIdaYVuelta) {
    std::string texto = "{\"l\":[";
    for (int i = 0; i < 50000; ++i) texto += "{\"n\":" + std::to_string(i) + ",\"t\":\"x\"},";
    texto.back() = ']';
    texto += '}';
    JsonBag bolsa;
    bolsa.JSON(texto);
    EXPECT_EQ(bolsa.Hija("l").Count(), 50000);
    EXPECT_EQ(bolsa.JSON(), texto);
}

TEST(JsonBag, ObjetoGrandeConNombresRepetidos) {
    JsonBag bolsa;
    for (int i = 0; i < 2000; ++i) bolsa.Item("k" + std::to_string(i), i);
    bolsa.Item("k0", -1);
    EXPECT_EQ(bolsa.Count(), 2000);
    EXPECT_EQ(bolsa.Name(2000), "k0");
    EXPECT_EQ(bolsa.Name(1), "k1");
    EXPECT_EQ(std::get<std::int32_t>(bolsa.Item("k1999")), 1999);
}

}  // namespace
}  // namespace quinteva::outputs
