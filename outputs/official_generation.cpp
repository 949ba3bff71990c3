#include "outputs/official_generation.h"

#include "engine/pricing.h"

#include <cmath>
#include <cstdio>
#include <memory>

#include "base/dates.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/record_files.h"
#include "outputs/numeric_text.h"
#include "outputs/official_file.h"
#include "outputs/played_set.h"

namespace quinteva::outputs {
namespace {

constexpr std::string_view kTitulo = "Generar fichero oficial";
constexpr std::string_view kTituloPrograma = "Quinteva";
constexpr std::string_view kTextoReceptor = "La clave del Receptor debe tener cinco cifras.";
constexpr double kMaximoBoletos = 65535;
constexpr double kMaximaJornada = 100;

ResultadoGeneracion Aviso(base::Dialogo& dialogo, std::string_view texto, Campo foco) {
    dialogo.Mensaje(texto, base::Icono::Aviso);
    return {false, foco, std::nullopt};
}

void GuardarReceptor(base::Ajustes& ajustes, const std::string& receptor) {
    ajustes.Guardar(base::kAplicacionPrograma, "Valores", "Receptor", receptor);
}

// Nombre, carpeta, sobrescritura y creación del archivo vacío, comunes a las dos ventanas. Desde
// aquí un abandono deja un archivo vacío.
std::optional<std::filesystem::path> ElegirDestino(const std::string& nombre,
                                                   base::Dialogo& dialogo,
                                                   ResultadoGeneracion& resultado) {
    if (nombre.empty()) {
        resultado = Aviso(dialogo, "Debe introducir el nombre del archivo que se va a generar",
                          Campo::Nombre);
        return std::nullopt;
    }
    if (dialogo.AceptarCancelar(
            "Por favor seleccione el directorio donde desea guardar el archivo.") !=
        base::Respuesta::Aceptar) {
        return std::nullopt;
    }
    const auto carpeta = dialogo.Carpeta(kTitulo, {});
    if (!carpeta) return std::nullopt;
    const std::filesystem::path archivo = *carpeta / (nombre + ".json");
    if (std::filesystem::exists(archivo)) {
        const std::string pregunta = "Ya existe un archivo de nombre " + nombre +
                                     " en la carpeta " + carpeta->string() +
                                     ", que se eliminará. Desea continuar?";
        if (dialogo.PreguntaSiNo(pregunta) != base::Respuesta::Si) return std::nullopt;
        std::filesystem::remove(archivo);
    }
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> vacio(std::fopen(archivo.c_str(), "wb"),
                                                          &std::fclose);
    if (!vacio) base::FalloDeArchivo(archivo);
    resultado.archivo = archivo;
    return archivo;
}

// El límite de Boletos y la confirmación del tamaño.
bool ConfirmarTamano(double columnas, base::Dialogo& dialogo) {
    const double boletos = std::ceil(columnas / 8);
    if (boletos > kMaximoBoletos) {
        dialogo.Mensaje("El número máximo de boletos permitidos en el fichero es de 65.535",
                        base::Icono::Aviso);
        return false;
    }
    const std::string pregunta = "El archivo que se va a generar contiene " +
                                 base::Formato(boletos, "#,##0") + " Boletos con " +
                                 base::Formato(columnas, "#,##0") + " Apuestas. Desea continuar?";
    return dialogo.PreguntaSiNo(pregunta) == base::Respuesta::Si;
}

// La Jornada tecleada ya comprobada; nullopt si hay que preguntar otra vez. Solo se mira el tope.
std::optional<std::string> ComprobarJornada(const std::string& texto, base::Dialogo& dialogo) {
    if (!EsNumerico(texto)) {
        dialogo.Mensaje("Debe introducir el número de jornada correctamente.", base::Icono::Aviso);
        return std::nullopt;
    }
    if (ValorNumerico(texto) > kMaximaJornada) {
        dialogo.Mensaje("Debe introducir un número comprendido entre 1 y 100.", base::Icono::Aviso);
        return std::nullopt;
    }
    return texto;
}

// Una respuesta vacía no es un número y se pregunta otra vez, sin fin.
std::string PedirJornadaPrincipal(base::Dialogo& dialogo) {
    for (;;) {
        const std::string texto =
            dialogo
                .PedirTexto(
                    "Por favor ntroduzca el número de la Jornada a efectos del archivo "
                    "oficial JSON. Tenga en cuenta que no es el número de la Jornada de "
                    "Quinielas, si hace falte consulte donde lo vaya a validar",
                    kTituloPrograma)
                .value_or("");
        if (auto jornada = ComprobarJornada(texto, dialogo)) return *jornada;
    }
}

void Escribir(const std::filesystem::path& archivo,
              std::span<const engine::RegistroColumna> columnas, const std::string& receptor,
              const std::string& idSorteo, float precio) {
    JsonBag raiz;
    const DatosOficiales datos{EnteroDe<std::int32_t>(ValorNumerico(receptor)), idSorteo, precio};
    ArbolGenerado(raiz, columnas, datos);
    EscribirArchivoOficial(archivo, raiz);
}

// La Jornada de la ventana de importación; nullopt si el usuario cancela la generación.
std::optional<std::string> PedirJornadaImportacion(base::Dialogo& dialogo) {
    for (;;) {
        const std::string texto =
            dialogo
                .PedirTexto(
                    "Por favor, introduzca el nº de la Jornada a efectos del archivo JSON. "
                    "Tenga en cuenta que no es el mismo número que la Jornada de "
                    "Quinielas.",
                    kTituloPrograma)
                .value_or("");
        if (texto.empty()) {
            if (dialogo.PreguntaSiNo("Desea cancelar la generación del fichero?",
                                     base::Respuesta::No) == base::Respuesta::Si) {
                return std::nullopt;
            }
            continue;
        }
        if (auto jornada = ComprobarJornada(texto, dialogo)) return *jornada;
    }
}

// "dd/mm/aa" con día, mes y año válidos; el año de dos cifras va de 1930 a 2029.
std::optional<base::FechaHora> LeerFecha(const std::string& texto) {
    int dia = 0;
    int mes = 0;
    int anio = 0;
    char barra1 = 0;
    char barra2 = 0;
    char sobra = 0;
    if (std::sscanf(texto.c_str(), "%2d%c%2d%c%2d%c", &dia, &barra1, &mes, &barra2, &anio,
                    &sobra) != 5 ||
        barra1 != '/' || barra2 != '/') {
        return std::nullopt;
    }
    base::FechaHora fecha{anio < 30 ? 2000 + anio : 1900 + anio, mes, dia};
    if (mes < 1 || mes > 12 || dia < 1) return std::nullopt;
    if (base::SerieAFecha(base::FechaASerie(fecha)) != fecha) return std::nullopt;
    return fecha;
}

enum class Paso { Jornada, Fecha, Confirmar };

struct JornadaYFecha {
    std::string jornada;
    base::FechaHora fecha;
};

// La importación pide Jornada y fecha y las confirma, con sus vueltas atrás.
std::optional<JornadaYFecha> PedirJornadaYFecha(base::Dialogo& dialogo) {
    JornadaYFecha elegida;
    std::string textoFecha;
    Paso paso = Paso::Jornada;
    for (;;) {
        if (paso == Paso::Jornada) {
            auto jornada = PedirJornadaImportacion(dialogo);
            if (!jornada) return std::nullopt;
            elegida.jornada = *jornada;
            paso = Paso::Fecha;
        } else if (paso == Paso::Fecha) {
            textoFecha = dialogo
                             .PedirTexto(
                                 "Por favor introduzca la fecha de la Jornada de la "
                                 "Quiniela en formato 'dd/mm/aa'",
                                 kTituloPrograma)
                             .value_or("");
            if (textoFecha.empty()) {
                dialogo.Mensaje("Proceso cancelado");
                return std::nullopt;
            }
            if (textoFecha.size() != 8) continue;
            const auto fecha = LeerFecha(textoFecha);
            if (!fecha) {
                dialogo.Mensaje("La fecha no es correcta", base::Icono::Aviso);
                continue;
            }
            elegida.fecha = *fecha;
            paso = Paso::Confirmar;
        } else {
            if (dialogo.PreguntaSiNo("Es correcto Jornada nº " + elegida.jornada + ", de fecha " +
                                     textoFecha + "?") == base::Respuesta::Si) {
                return elegida;
            }
            paso =
                dialogo.PreguntaSiNo("Desea cambiar la fecha de la Jornada?") == base::Respuesta::Si
                    ? Paso::Fecha
                    : Paso::Jornada;
        }
    }
}

ResultadoGeneracion GenerarImportacion(const PeticionImportacion& peticion, base::Dialogo& dialogo,
                                       base::Ajustes& ajustes, ResultadoGeneracion& resultado) {
    // El campo solo admite cifras: aquí se mira la longitud, no las cifras.
    if (peticion.receptor.size() < 5) return Aviso(dialogo, kTextoReceptor, Campo::Receptor);
    const float precio = engine::PrecioColumna(ajustes);
    GuardarReceptor(ajustes, peticion.receptor);
    const auto destino = ElegirDestino(peticion.nombre, dialogo, resultado);
    if (!destino) return resultado;
    const auto jornadaYFecha = PedirJornadaYFecha(dialogo);
    if (!jornadaYFecha || !ConfirmarTamano(peticion.columnas, dialogo)) return resultado;
    const auto columnas = LeerColumnas(peticion.carpetaTrabajo / kArimpTmp, false);
    Escribir(
        *destino, columnas, peticion.receptor,
        IdSorteo(std::to_string(jornadaYFecha->fecha.anio), ValorNumerico(jornadaYFecha->jornada)),
        precio);
    dialogo.Mensaje("Proceso terminado");
    resultado.terminado = true;
    return resultado;
}

}  // namespace

ResultadoGeneracion GenerarDesdePrincipal(const PeticionPrincipal& peticion, base::Dialogo& dialogo,
                                          base::Ajustes& ajustes) {
    const float precio = engine::PrecioColumna(ajustes);
    // Solo se mira que sea un número, no su longitud.
    if (!EsNumerico(peticion.receptor)) return Aviso(dialogo, kTextoReceptor, Campo::Receptor);
    GuardarReceptor(ajustes, peticion.receptor);
    ResultadoGeneracion resultado;
    const auto destino = ElegirDestino(peticion.nombre, dialogo, resultado);
    if (!destino || !ConfirmarTamano(peticion.columnas, dialogo)) return resultado;
    const std::string jornada = PedirJornadaPrincipal(dialogo);
    const auto columnas = LeerColumnas(peticion.fuente, true);
    Escribir(*destino, columnas, peticion.receptor,
             IdSorteo(std::to_string(peticion.anio), ValorNumerico(jornada)), precio);
    dialogo.Mensaje("Proceso terminado.");
    resultado.terminado = true;
    return resultado;
}

ResultadoGeneracion GenerarDesdeImportacion(const PeticionImportacion& peticion,
                                            base::Dialogo& dialogo, base::Ajustes& ajustes) {
    ResultadoGeneracion resultado;
    try {
        return GenerarImportacion(peticion, dialogo, ajustes, resultado);
    } catch (const base::Error& e) {
        dialogo.Mensaje("Error: " + std::string(e.what()) + ".", base::Icono::Error);
        resultado.terminado = false;
        return resultado;
    }
}

}  // namespace quinteva::outputs
