#include "outputs/official_file.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <type_traits>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/text1252.h"
#include "outputs/md5.h"
#include "outputs/numeric_text.h"

namespace quinteva::outputs {
namespace {

constexpr int kColumnasPorBoleto = 8;

base::Error TiposDistintos() { return base::Error("No coinciden los tipos"); }

double NumeroDe(const Valor& valor) {
    return std::visit(
        [](const auto& v) -> double {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, bool>) {
                return v ? -1.0 : 0.0;
            } else if constexpr (std::is_arithmetic_v<T>) {
                return static_cast<double>(v);
            } else if constexpr (std::is_same_v<T, Moneda>) {
                return static_cast<double>(v.diezmilesimas) / 10000.0;
            } else if constexpr (std::is_same_v<T, Decimal>) {
                return std::strtod(v.Texto().c_str(), nullptr);
            } else if constexpr (std::is_same_v<T, std::string>) {
                if (!EsNumerico(v)) throw TiposDistintos();
                return ValorNumerico(v);
            } else if constexpr (std::is_same_v<T, Vacio>) {
                return 0.0;
            } else if constexpr (std::is_same_v<T, Fecha>) {
                return v.serie;
            } else if constexpr (std::is_same_v<T, Nulo>) {
                throw base::Error("Uso no válido de Null");
            } else {
                throw TiposDistintos();
            }
        },
        valor);
}

std::string TextoDe(const Valor& valor) {
    if (const auto* texto = std::get_if<std::string>(&valor)) return *texto;
    if (std::holds_alternative<Vacio>(valor)) return {};
    if (std::holds_alternative<Fecha>(valor)) return TextoDeDouble(std::get<Fecha>(valor).serie);
    if (!EsNumeroOLogico(valor)) NumeroDe(valor);  // nulo o bolsa: su error
    return TextoDeNumero(valor).value_or("");
}

std::string TextoFijo(std::string texto, std::size_t ancho) {
    texto.resize(ancho, ' ');
    return texto;
}

void FijarEnCabecera(CabeceraOficial& c, std::string_view clave, const Valor& v) {
    if (clave == "idJuego") c.idJuego = EnteroDe<std::int16_t>(NumeroDe(v));
    if (clave == "idSorteo") c.idSorteo = TextoFijo(TextoDe(v), CabeceraOficial::kLongitudIdSorteo);
    if (clave == "idReceptor") c.idReceptor = EnteroDe<std::int32_t>(NumeroDe(v));
    if (clave == "totalBoletos") c.totalBoletos = EnteroDe<std::int16_t>(NumeroDe(v));
    if (clave == "totalApuestasSencillas") {
        c.totalApuestasSencillas = EnteroDe<std::int16_t>(NumeroDe(v));
    }
    if (clave == "importeTotal") c.importeTotal = EnteroDe<std::int32_t>(NumeroDe(v));
    if (clave == "hash") c.hash = TextoDe(v);
}

void FijarEnBoleto(BoletoOficial& b, std::string_view clave, const Valor& v) {
    if (clave == "seqBoleto") b.seqBoleto = EnteroDe<std::int16_t>(NumeroDe(v));
    if (clave == "combinacion") b.combinacion = TextoDe(v);
    if (clave == "importe") b.importe = EnteroDe<std::int16_t>(NumeroDe(v));
    if (clave == "numApuestas") b.numApuestas = EnteroDe<std::int16_t>(NumeroDe(v));
    if (clave == "tipoSorteo") b.tipoSorteo = EnteroDe<std::int16_t>(NumeroDe(v));
    if (clave == "metodo") b.metodo = EnteroDe<std::int16_t>(NumeroDe(v));
}

// El Pleno de un Boleto: el carácter dos antes del final de "combinacion" y el último.
std::string PlenoDe(const std::string& combinacion) {
    if (combinacion.size() < 3) return {};
    return {combinacion[combinacion.size() - 3], combinacion.back()};
}

// Se guarda el primero; cada igual deja "SI" y cada distinto "NO", así que decide el último.
void CompararPlenos(ArchivoOficialLeido& leido) {
    std::string primero;
    for (const BoletoOficial& b : leido.cabecera.boletos) {
        const std::string pleno = PlenoDe(b.combinacion);
        if (primero.empty()) primero = pleno;
        leido.igualPleno = pleno == primero ? "SI" : "NO";
    }
}

void Recorrer(const JsonBag& bolsa, const std::string& nombre, bool esBoleto, std::size_t boleto,
              ArchivoOficialLeido& leido) {
    auto& boletos = leido.cabecera.boletos;
    if (nombre == "apuestas") boletos.assign(static_cast<std::size_t>(bolsa.Count()), {});
    for (std::int32_t i = 1; i <= bolsa.Count(); ++i) {
        const Valor& valor = bolsa.Item(i);
        const std::string clave = bolsa.IsArray() ? std::string() : bolsa.Name(i);
        if (const auto* hija = std::get_if<std::shared_ptr<JsonBag>>(&valor)) {
            Recorrer(**hija, clave, nombre == "apuestas", static_cast<std::size_t>(i - 1), leido);
        } else if (nombre == "cabecera") {
            FijarEnCabecera(leido.cabecera, clave, valor);
        } else if (esBoleto && boleto < boletos.size()) {
            FijarEnBoleto(boletos[boleto], clave, valor);
        }
    }
    if (nombre == "apuestas") CompararPlenos(leido);
}

// ".", el lugar, "=" y los 14 signos separados por ",".
void AnadirColumna(std::string& texto, int lugar, const engine::Columna& columna) {
    texto += '.';
    texto += static_cast<char>('0' + lugar);
    texto += '=';
    for (std::size_t i = 0; i < columna.size(); ++i) {
        if (i > 0) texto += ',';
        texto += columna[i];
    }
}

BoletoOficial CerrarBoleto(std::int64_t numero, std::string texto, int enBoleto, float precio,
                           const engine::RegistroColumna& ultima) {
    BoletoOficial b;
    b.seqBoleto = EnteroDe<std::int16_t>(static_cast<double>(numero));
    b.combinacion = std::move(texto) + ":.1=" + ultima.pleno[0] + "-" + ultima.pleno[1];
    b.numApuestas = static_cast<std::int16_t>(enBoleto);
    b.importe = EnteroDe<std::int16_t>(static_cast<float>(enBoleto) * precio * 100.0F);
    b.tipoSorteo = 1;
    b.metodo = 1;
    return b;
}

void AnadirBoleto(JsonBag& apuestas, const BoletoOficial& b) {
    JsonBag& o = apuestas.AddNewObject();
    o.Item("combinacion", b.combinacion);
    o.Item("importe", b.importe);
    o.Item("metodo", b.metodo);
    o.Item("numApuestas", b.numApuestas);
    o.Item("seqBoleto", b.seqBoleto);
    o.Item("tipoSorteo", b.tipoSorteo);
}

void AnadirBoletoGuardado(JsonBag& apuestas, const BoletoOficial& b) {
    JsonBag& o = apuestas.AddNewObject();
    o.Item("seqBoleto", b.seqBoleto);
    o.Item("combinacion", b.combinacion);
    o.Item("importe", b.importe);
    o.Item("numApuestas", b.numApuestas);
    o.Item("tipoSorteo", b.tipoSorteo);
    o.Item("metodo", b.metodo);
}

// En ASCII Windows-1252 y UTF-8 coinciden byte a byte: el archivo oficial no necesita conversión.
bool SoloAscii(std::string_view texto) {
    return std::all_of(texto.begin(), texto.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string IdSorteo(std::string_view anio, double jornada) {
    return std::string(anio) + "/" + base::Formato(jornada, "00#");
}

std::vector<BoletoOficial> ConstruirBoletos(std::span<const engine::RegistroColumna> columnas,
                                            float precio) {
    std::vector<BoletoOficial> boletos;
    boletos.reserve(columnas.size() / kColumnasPorBoleto + 1);
    std::int64_t numero = 0;
    int enBoleto = 0;
    std::string texto;
    for (std::size_t leidas = 1; leidas <= columnas.size(); ++leidas) {
        const engine::RegistroColumna& r = columnas[leidas - 1];
        if (++enBoleto == 1) {
            texto.clear();
            ++numero;
        }
        AnadirColumna(texto, enBoleto, r.columna);
        if (enBoleto == kColumnasPorBoleto) {
            boletos.push_back(CerrarBoleto(numero, std::move(texto), enBoleto, precio, r));
            enBoleto = 0;
        } else if (leidas == columnas.size()) {
            boletos.push_back(CerrarBoleto(numero, std::move(texto), enBoleto, precio, r));
        }
    }
    return boletos;
}

std::string HashCabecera(std::string_view idJuego, std::string_view idSorteo,
                         std::string_view idReceptor, std::string_view totalBoletos,
                         std::string_view totalApuestas, std::string_view importeTotal) {
    std::string texto;
    for (const std::string_view pieza :
         {idJuego, idSorteo, idReceptor, totalBoletos, totalApuestas, importeTotal}) {
        texto += pieza;
    }
    return MD5().DigestStrToHexStr(texto);
}

void ArbolGenerado(JsonBag& raiz, std::span<const engine::RegistroColumna> columnas,
                   const DatosOficiales& datos) {
    const std::vector<BoletoOficial> boletos = ConstruirBoletos(columnas, datos.precio);
    raiz.Clear();
    raiz.IsArray(false);
    JsonBag& asm_ = raiz.AddNewObject("asm");
    JsonBag& apuestas = asm_.AddNewArray("apuestas");
    for (const BoletoOficial& b : boletos) AnadirBoleto(apuestas, b);

    const auto totalApuestas = static_cast<std::int32_t>(columnas.size());
    const auto totalBoletos = static_cast<std::int32_t>(boletos.size());
    // En doble precisión y sin redondear: un precio que el single no guarda exacto deja cola.
    const double importeTotal =
        static_cast<double>(totalApuestas) * static_cast<double>(datos.precio) * 100.0;
    const std::int16_t idJuego = 2;
    JsonBag& cabecera = asm_.AddNewObject("cabecera");
    cabecera.Item("hash",
                  HashCabecera(std::to_string(idJuego), datos.idSorteo,
                               std::to_string(datos.idReceptor), std::to_string(totalBoletos),
                               std::to_string(totalApuestas), TextoDeDouble(importeTotal)));
    cabecera.Item("idJuego", idJuego);
    cabecera.Item("idReceptor", datos.idReceptor);
    cabecera.Item("idSorteo", datos.idSorteo);
    cabecera.Item("importeTotal", importeTotal);
    cabecera.Item("totalApuestasSencillas", totalApuestas);
    cabecera.Item("totalBoletos", totalBoletos);
}

std::string ArbolGuardado(JsonBag& raiz, const CabeceraOficial& c) {
    // El Receptor va en 16 bits: por encima de 32.767 desborda.
    const auto idReceptor = EnteroDe<std::int16_t>(c.idReceptor);
    raiz.Clear();
    JsonBag& asm_ = raiz.AddNewObject("asm");
    JsonBag& cabecera = asm_.AddNewObject("cabecera");
    cabecera.Item("idJuego", c.idJuego);
    cabecera.Item("idSorteo", c.idSorteo);
    cabecera.Item("idReceptor", idReceptor);
    cabecera.Item("totalBoletos", c.totalBoletos);
    cabecera.Item("totalApuestasSencillas", c.totalApuestasSencillas);
    cabecera.Item("importeTotal", c.importeTotal);
    const std::string hash =
        HashCabecera(std::to_string(c.idJuego), c.idSorteo, std::to_string(idReceptor),
                     std::to_string(c.totalBoletos), std::to_string(c.totalApuestasSencillas),
                     std::to_string(c.importeTotal));
    cabecera.Item("hash", hash);
    JsonBag& apuestas = asm_.AddNewArray("apuestas");
    for (const BoletoOficial& b : c.boletos) AnadirBoletoGuardado(apuestas, b);
    return hash;
}

ArchivoOficialLeido RecorrerArchivoOficial(const JsonBag& raiz) {
    ArchivoOficialLeido leido;
    Recorrer(raiz, {}, false, 0, leido);
    return leido;
}

void EscribirArchivoOficial(const std::filesystem::path& ruta, const JsonBag& raiz) {
    const std::string texto = raiz.JSON();
    base::EscribirAtomico(ruta, SoloAscii(texto) ? texto : base::AWindows1252(texto));
}

std::string LeerTextoArchivo(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary | std::ios::ate);
    if (!archivo) throw base::Error("No se puede leer el archivo " + ruta.string());
    std::string bytes(static_cast<std::size_t>(archivo.tellg()), '\0');
    archivo.seekg(0);
    if (!archivo.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
        throw base::Error("No se puede leer el archivo " + ruta.string());
    }
    return SoloAscii(bytes) ? bytes : base::DeWindows1252(bytes);
}

}  // namespace quinteva::outputs
