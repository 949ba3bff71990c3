#include "outputs/hit_files.h"

#include <fstream>
#include <iterator>
#include <variant>

#include "base/error.h"
#include "base/formats.h"
#include "base/text1252.h"
#include "engine/combination_files.h"
#include "outputs/ad243.h"
#include "outputs/json_bag.h"
#include "outputs/numeric_text.h"
#include "outputs/official_file.h"

namespace quinteva::outputs {
namespace {

constexpr std::size_t kDigitosSorteo = 3;
constexpr std::size_t kDigitosAnio = 4;

std::string Bytes(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) throw base::Error("No se puede leer el archivo " + ruta.string());
    return {std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>()};
}

// El final de `AciertosJSON` y `AciertosAD243`.
void TerminarArchivo(Comprobacion& c, base::Dialogo& dialogo) {
    c.hecha = true;
    c.columnas = HayLocalizadas(c.tabla);
    c.parpadea = c.tabla.cuentas[1] != 0;
    dialogo.Mensaje(kMsgComprobacionFinalizada);
}

// Las columnas de un Boleto en su orden; un signo que falta no acierta.
void CompararBoleto(const BoletoOficial& boleto, const Comparador& comparador, std::int32_t& numero,
                    TablaAciertos& tabla) {
    CadaColumnaDeBoleto(boleto, [&](const engine::Columna& signos, const std::string& pleno) {
        comparador.Anotar(signos.data(), pleno, ++numero, tabla);
    });
}

bool EmpiezaJson(std::string_view bytes) {
    const auto primero = bytes.find_first_not_of(" \t\r\n");
    return primero != std::string_view::npos && (bytes[primero] == '{' || bytes[primero] == '[');
}

std::string Inicio(const std::filesystem::path& ruta, std::size_t cuantos) {
    std::ifstream archivo(ruta, std::ios::binary);
    std::string bytes(cuantos, '\0');
    archivo.read(bytes.data(), static_cast<std::streamsize>(cuantos));
    bytes.resize(static_cast<std::size_t>(archivo.gcount()));
    return bytes;
}

}  // namespace

Comprobacion AciertosJSON(const std::filesystem::path& ruta, std::string_view ganadora, int jornada,
                          std::string_view anioJornada, base::Dialogo& dialogo) {
    Comprobacion c;
    if (ruta.empty()) return c;
    try {
        const std::string texto = LeerTextoArchivo(ruta);
        ArchivoOficialLeido leido;
        if (!texto.empty()) {
            JsonBag raiz;
            raiz.JSON(texto);
            leido = RecorrerArchivoOficial(raiz);
        }
        const std::string& idSorteo = leido.cabecera.idSorteo;
        const std::string sorteo = idSorteo.substr(idSorteo.size() - kDigitosSorteo);
        if (!EsNumerico(sorteo)) {
            dialogo.Mensaje(kMsgNoJson, base::Icono::Aviso);
            return c;
        }
        const std::string pregunta = "El archivo corresponde al Sorteo de Quinielas nº " + sorteo +
                                     ". Está seguro de que este fichero corresponde a la Jornada "
                                     "nº " +
                                     std::to_string(jornada) + " de Quinielas?";
        if (dialogo.PreguntaSiNo(pregunta) != base::Respuesta::Si) return c;
        if (idSorteo.substr(0, kDigitosAnio) != anioJornada) {
            dialogo.Mensaje(
                "El archivo no corresponde a la fecha de la Jornada nº " + std::to_string(jornada),
                base::Icono::Aviso);
            return c;
        }
        const Comparador comparador(ganadora);
        std::int32_t numero = 0;
        for (const BoletoOficial& boleto : leido.cabecera.boletos) {
            CompararBoleto(boleto, comparador, numero, c.tabla);
        }
        TerminarArchivo(c, dialogo);
    } catch (const std::exception& e) {
        MostrarError(dialogo, e);
    }
    return c;
}

Comprobacion AciertosAD243(const std::filesystem::path& ruta, std::string_view ganadora,
                           int jornada, base::Dialogo& dialogo) {
    Comprobacion c;
    if (ruta.empty()) return c;
    try {
        const auto leido = LeerAD243(Bytes(ruta));
        if (const auto* fallo = std::get_if<FalloAD243>(&leido)) {
            dialogo.Mensaje(MensajeFalloAD243(*fallo), base::Icono::Aviso);
            return c;
        }
        const ArchivoAD243& archivo = std::get<ArchivoAD243>(leido);
        if (archivo.jornada != base::Formato(jornada, "0#")) {
            dialogo.Mensaje("El archivo no corresponde a la Jornada nº " + std::to_string(jornada),
                            base::Icono::Aviso);
            return c;
        }
        const Comparador comparador(ganadora);
        std::int32_t numero = 0;
        for (const BoletoAD243& boleto : archivo.boletos) {
            const std::string_view pleno(boleto.pleno.data(), boleto.pleno.size());
            for (const engine::Columna& columna : boleto.columnas) {
                comparador.Anotar(columna.data(), pleno, ++numero, c.tabla);
            }
        }
        TerminarArchivo(c, dialogo);
    } catch (const std::exception& e) {
        MostrarError(dialogo, e);
    }
    return c;
}

OrigenAciertos OrigenDeArchivo(const std::filesystem::path& ruta) {
    const std::string inicio = Inicio(ruta, kCabeceraLeidaAD243);
    if (PareceAD243(inicio)) return OrigenAciertos::AD243;
    if (EmpiezaJson(inicio)) return OrigenAciertos::Json;
    std::error_code error;
    if (std::filesystem::file_size(ruta, error) == engine::RegistroCabecera::kLongitud) {
        return OrigenAciertos::Combinacion;
    }
    if (ruta.extension() == ".json") return OrigenAciertos::Json;
    if (ruta.extension() == ".uxd") return OrigenAciertos::Combinacion;
    return OrigenAciertos::AD243;
}

}  // namespace quinteva::outputs
