#include "builders/merge_combinations.h"

#include <fstream>
#include <unordered_set>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "builders/boletos.h"
#include "engine/combination_files.h"

namespace quinteva::builders {

namespace {

// El temporal de las repetidas: el nombre sin sus tres últimos caracteres, más "bak".
std::filesystem::path RutaBak(const std::filesystem::path& salida) {
    std::string ruta = salida.string();
    ruta.resize(ruta.size() >= 3 ? ruta.size() - 3 : 0);
    return ruta + "bak";
}

std::filesystem::path SinExtension(std::filesystem::path ruta) { return ruta.replace_extension(); }

// Las activas de todas las filas con el Pleno de la primera, que se pregunta; nada si el usuario
// dice que no.
std::optional<std::vector<engine::Columna>> Activas(const std::vector<CombinacionARefundir>& filas,
                                                    engine::PlenoBase& pleno,
                                                    base::Dialogo& dialogo) {
    std::vector<engine::Columna> activas;
    bool primera = true;
    for (const CombinacionARefundir& fila : filas) {
        for (const auto& r : base::LeerTodos<engine::RegistroColumna>(fila.columnas)) {
            if (primera) {
                primera = false;
                pleno = r.pleno;
                if (dialogo.PreguntaSiNo(PreguntaPlenoRefundido(pleno)) != base::Respuesta::Si) {
                    dialogo.Mensaje(kMsgProcesoCancelado);
                    return std::nullopt;
                }
            }
            if (r.Activa()) activas.push_back(r.columna);
        }
    }
    return activas;
}

// Deja cada columna la primera vez que sale (solo cuentan los 14 signos); devuelve las quitadas.
std::int32_t QuitarRepetidas(std::vector<engine::Columna>& columnas) {
    std::unordered_set<std::string> vistas;
    vistas.reserve(columnas.size() * 2);
    const auto antes = columnas.size();
    std::erase_if(columnas, [&](const engine::Columna& c) {
        return !vistas.insert(std::string(c.begin(), c.end())).second;
    });
    return static_cast<std::int32_t>(antes - columnas.size());
}

void Escribir(const std::vector<engine::Columna>& columnas, const engine::PlenoBase& pleno,
              EstructuraRefundido estructura, const std::filesystem::path& salida) {
    const auto bak = RutaBak(salida);
    std::filesystem::remove(bak);
    base::AnexadorRegistros destino(bak, LongitudRegistroTexto(estructura));
    for (const engine::Columna& c : columnas) AnadirRegistroTexto(destino, c, pleno, estructura);
    destino.Cerrar();
    base::Reemplazar(bak, salida);
}

}  // namespace

std::string PreguntaPlenoRefundido(const engine::PlenoBase& pleno) {
    return std::string("El Pleno al 15 para toda la combinación es ") + pleno[0] + "-" + pleno[1] +
           ". Es correcto?";
}

std::string MsgRefundido(const Refusion& r) {
    std::string texto = "Proceso terminado, la nueva combinación tiene " +
                        std::to_string(r.columnas) + " apuestas. Se han eliminado " +
                        std::to_string(r.repetidas) + " columnas repetidas";
    if (r.agregadas == 0) return texto + ".";
    return texto + " y se han agregado aleatóriamente " + std::to_string(r.agregadas) +
           " columnas para completar el último boleto.";
}

std::optional<std::filesystem::path> ElegirArchivoRefundido(base::Dialogo& dialogo,
                                                            const std::filesystem::path& carpeta) {
    auto ruta = dialogo.ArchivoParaGuardar("Nombre y dirección del Archivo a generar", kFiltroAscii,
                                           carpeta);
    if (!ruta || ruta->empty()) return std::nullopt;
    if (std::filesystem::exists(*ruta)) {
        if (dialogo.PreguntaSiNo(kPreguntaSobrescribirRefundido, base::Respuesta::No) !=
            base::Respuesta::Si) {
            return std::nullopt;
        }
        std::filesystem::remove(*ruta);
    }
    return ruta;
}

std::optional<CombinacionARefundir> ComprobarParaRefundir(
    const std::filesystem::path& uxd, const std::vector<CombinacionARefundir>& filas,
    base::Dialogo& dialogo) {
    for (const CombinacionARefundir& fila : filas) {
        if (SinExtension(fila.columnas) == SinExtension(uxd)) {
            dialogo.Mensaje(kMsgYaAnadida, base::Icono::Aviso);
            return std::nullopt;
        }
    }
    const engine::RegistroCabecera cabecera = engine::LeerCabecera(uxd);
    const std::string jugada(base::Recortar(cabecera.jugada));
    if (jugada != "cnd" && jugada != "red") {
        dialogo.Mensaje(kMsgSinBoletos, base::Icono::Aviso);
        return std::nullopt;
    }
    const auto columnas = engine::RutaHermana(uxd, "." + jugada);
    if (base::CuentaRegistros(columnas, engine::RegistroColumna::kLongitud) == 0) {
        throw base::Error("No hay columnas en el archivo " + columnas.filename().string());
    }
    if (!filas.empty() && cabecera.jornada != filas.front().jornada) {
        dialogo.Mensaje(kMsgOtraJornada, base::Icono::Aviso);
        return std::nullopt;
    }
    return CombinacionARefundir{uxd.stem().string(), columnas, cabecera.jornada};
}

std::optional<CombinacionARefundir> AnadirParaRefundir(
    const std::vector<CombinacionARefundir>& filas, const std::filesystem::path& carpeta,
    base::Dialogo& dialogo) {
    const auto uxd = dialogo.ArchivoParaAbrir("Añadir las combinaciones a refundir",
                                              kFiltroCombinacion, carpeta);
    if (!uxd || uxd->empty()) return std::nullopt;
    try {
        return ComprobarParaRefundir(*uxd, filas, dialogo);
    } catch (const std::exception& e) {
        dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
        return std::nullopt;
    }
}

std::optional<Refusion> Refundir(const std::vector<CombinacionARefundir>& filas,
                                 const std::filesystem::path& salida,
                                 EstructuraRefundido estructura, base::Azar& azar,
                                 base::Dialogo& dialogo) {
    dialogo.Mensaje(kMsgRefundirLargo);
    try {
        // El archivo resultante existe desde que empieza el proceso.
        if (!std::filesystem::exists(salida)) std::ofstream(salida, std::ios::binary);
        engine::PlenoBase pleno{' ', ' '};
        auto columnas = Activas(filas, pleno, dialogo);
        if (!columnas) return std::nullopt;
        Refusion r;
        r.repetidas = QuitarRepetidas(*columnas);
        if (UnaSolaEnElUltimoBoleto(static_cast<std::int64_t>(columnas->size()))) {
            columnas->push_back(ColumnaAlAzar(azar));
            r.agregadas = 1;
        }
        Escribir(*columnas, pleno, estructura, salida);
        r.columnas = static_cast<std::int32_t>(columnas->size());
        dialogo.Mensaje(MsgRefundido(r));
        return r;
    } catch (const std::exception&) {
        dialogo.Mensaje(kMsgProcesoAbortado, base::Icono::Error);
        return std::nullopt;
    }
}

}  // namespace quinteva::builders
