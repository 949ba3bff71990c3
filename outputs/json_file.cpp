#include "outputs/json_file.h"

#include "base/error.h"
#include "base/formats.h"
#include "outputs/numeric_text.h"

namespace quinteva::outputs {
namespace {

constexpr int kMaximoCopias = 1000;

std::string Totales(double valor, std::string_view patron) {
    return base::Formato(valor, patron) + " ";
}

bool ParecenJson(const CamposArchivoJson& c) {
    return EsNumerico(c.anio) && EsNumerico(c.apuestas) && EsNumerico(c.boletos) &&
           EsNumerico(c.importe);
}

// El primer "RUTA-N.json" que no existe; pasado el 1.000 se queda en el 1.001.
std::filesystem::path RutaNueva(const std::filesystem::path& ruta) {
    int n = 1;
    for (; n <= kMaximoCopias; ++n) {
        if (!std::filesystem::exists(ruta.string() + "-" + std::to_string(n) + ".json")) break;
    }
    return ruta.string() + "-" + std::to_string(n) + ".json";
}

// Lo que se comprueba de los campos antes de guardar; el texto del aviso, o nada si están bien.
std::optional<std::string_view> AvisoDeCampos(const CamposArchivoJson& c) {
    if (!EsNumerico(c.receptor)) {
        return "No se ha introducido correctamente el número del Receptor. Debe tener cinco "
               "cifras.";
    }
    if (c.anio.size() != 4 || !EsNumerico(c.anio)) {
        return "El Año introducido no es correcto, debe tener cuatro cifras.";
    }
    if (!EsNumerico(c.jornada)) return "La Jornada introducida no es correcta.";
    return std::nullopt;
}

void Sustituir(const std::filesystem::path& nueva, const std::filesystem::path& original) {
    std::filesystem::remove(original);
    std::filesystem::rename(nueva, original);
}

}  // namespace

CamposArchivoJson CamposDe(const ArchivoOficialLeido& leido) {
    const CabeceraOficial& c = leido.cabecera;
    CamposArchivoJson campos;
    const std::string ultimas =
        c.idSorteo.substr(c.idSorteo.size() - std::min<std::size_t>(3, c.idSorteo.size()));
    campos.jornada = EsNumerico(ultimas) ? base::Formato(ValorNumerico(ultimas), "00#") : ultimas;
    campos.anio = c.idSorteo.substr(0, 4);
    campos.receptor = std::to_string(c.idReceptor);
    campos.hash = " " + c.hash;
    campos.apuestas = Totales(c.totalApuestasSencillas, "#,##0");
    campos.boletos = Totales(c.totalBoletos, "#,##0");
    campos.importe = Totales(c.importeTotal / 100.0, "#,##0.#0");
    campos.igualPleno = leido.igualPleno;
    return campos;
}

ArchivoJson AbrirArchivoJson(const std::filesystem::path& ruta, base::Dialogo& dialogo) {
    const std::string texto = LeerTextoArchivo(ruta);
    ArchivoOficialLeido leido;
    if (!texto.empty()) {
        JsonBag raiz;
        raiz.JSON(texto);
        leido = RecorrerArchivoOficial(raiz);
    }
    ArchivoJson archivo{ruta, leido.cabecera, CamposDe(leido)};
    if (!ParecenJson(archivo.campos)) {
        dialogo.Mensaje("Posiblemente este archivo no tenga formato JSON.", base::Icono::Aviso);
    }
    return archivo;
}

std::optional<ArchivoJson> DatosArchivo(base::Dialogo& dialogo,
                                        const std::filesystem::path& carpeta) {
    const auto ruta =
        dialogo.ArchivoParaAbrir("Archivo JSON", "Archivo oficial JSON (*.json)|*.json|", carpeta);
    if (!ruta) return std::nullopt;
    return AbrirArchivoJson(*ruta, dialogo);
}

void Modificar(base::Dialogo& dialogo) {
    dialogo.Mensaje(
        "Puede modificar la Jornada, Fecha y Receptor. Tras la modificación debe utilizar el "
        "botón Guardar para que tengan efecto los cambios.");
}

bool Guardar(ArchivoJson& archivo, base::Dialogo& dialogo) {
    if (const auto aviso = AvisoDeCampos(archivo.campos)) {
        dialogo.Mensaje(*aviso, base::Icono::Aviso);
        return false;
    }
    try {
        CabeceraOficial cabecera = archivo.cabecera;
        cabecera.idSorteo = IdSorteo(archivo.campos.anio, ValorNumerico(archivo.campos.jornada));
        cabecera.idReceptor = EnteroDe<std::int32_t>(ValorNumerico(archivo.campos.receptor));
        JsonBag raiz;
        const std::string hash = ArbolGuardado(raiz, cabecera);
        archivo.campos.hash = " " + hash;
        const std::filesystem::path nueva = RutaNueva(archivo.ruta);
        EscribirArchivoOficial(nueva, raiz);
        Sustituir(nueva, archivo.ruta);
    } catch (const std::exception& e) {
        dialogo.Mensaje("Error: " + std::string(e.what()) + ".", base::Icono::Error);
        return false;
    }
    dialogo.Mensaje("Modificación realizada");
    return true;
}

}  // namespace quinteva::outputs
