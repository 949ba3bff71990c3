#include "builders/merge.h"

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/record_files.h"
#include "engine/combination_files.h"

namespace quinteva::builders {
namespace {

using engine::RegistroColumna;

std::string_view FinDeLinea(EstructuraRefundido estructura) {
    switch (estructura) {
        case EstructuraRefundido::Separadores:
            return "\r";
        case EstructuraRefundido::Columna:
            return "\r\n";
        case EstructuraRefundido::Continuo:
            return "";
    }
    throw base::Error("Tipo de archivo de texto desconocido");
}

EstructuraRefundido EstructuraDeCodigo(int codigo) {
    if (codigo < 1 || codigo > 3) throw base::Error("Tipo de archivo de texto desconocido");
    return static_cast<EstructuraRefundido>(codigo);
}

}  // namespace

std::size_t LongitudRegistroTexto(EstructuraRefundido estructura) {
    return engine::kPartidos + 2 + FinDeLinea(estructura).size();
}

std::string RegistroTexto(const engine::Columna& columna, const engine::PlenoBase& pleno,
                          EstructuraRefundido estructura) {
    std::string registro(columna.begin(), columna.end());
    registro.append(pleno.begin(), pleno.end());
    registro += FinDeLinea(estructura);
    return registro;
}

void AnadirRegistroTexto(base::AnexadorRegistros& destino, const engine::Columna& columna,
                         const engine::PlenoBase& pleno, EstructuraRefundido estructura) {
    const std::string texto = RegistroTexto(columna, pleno, estructura);
    destino.Anadir(std::span(reinterpret_cast<const base::Byte*>(texto.data()), texto.size()));
}

std::int32_t EscribirArchivoTxt(const std::filesystem::path& columnas,
                                const engine::PlenoBase& pleno, EstructuraRefundido estructura,
                                const std::filesystem::path& salida) {
    if (!std::filesystem::exists(columnas)) {
        throw base::Error("No existe el archivo de columnas " + columnas.filename().string());
    }
    const base::ArchivoDe<RegistroColumna> origen(columnas);
    // Un temporal de un intento anterior no debe quedar delante de las columnas.
    const auto temporal = base::RutaTemporalJunto(salida);
    std::filesystem::remove(temporal);
    std::int32_t escritas = 0;
    try {
        base::AnexadorRegistros destino(temporal, LongitudRegistroTexto(estructura));
        for (std::int32_t n = 1; n <= origen.Cuenta(); ++n) {
            const RegistroColumna registro = origen.Leer(n);
            if (!registro.Activa()) continue;
            AnadirRegistroTexto(destino, registro.columna, pleno, estructura);
            ++escritas;
        }
        destino.Cerrar();
    } catch (const std::exception&) {
        std::error_code ignorado;
        std::filesystem::remove(temporal, ignorado);
        throw;
    }
    base::Reemplazar(temporal, salida);
    return escritas;
}

std::optional<std::int32_t> GenerarArchivoTxt(const engine::Combinacion& comb, int codigo,
                                              base::Dialogo& dialogo) {
    if (codigo == 0) return std::nullopt;
    const EstructuraRefundido estructura = EstructuraDeCodigo(codigo);
    if (comb.ruta.empty()) throw base::Error("La Quiniela no tiene nombre de archivo");
    if (comb.jugada != "cnd" && comb.jugada != "red")
        throw base::Error(std::string(kMsgSinBoletos));

    const auto salida = dialogo.ArchivoParaGuardar("Generar archivo txt", kFiltroTxt, {});
    if (!salida || salida->empty()) return std::nullopt;
    if (std::filesystem::exists(*salida) &&
        dialogo.PreguntaSiNo(kPreguntaTxtExiste) != base::Respuesta::Si) {
        return std::nullopt;
    }
    const auto columnas = engine::RutaHermana(comb.ruta, comb.jugada == "red" ? ".red" : ".cnd");
    return EscribirArchivoTxt(columnas, comb.pleno, estructura, *salida);
}

}  // namespace quinteva::builders
