#include <cstdio>
#include <iostream>
#include <optional>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/settings_ini.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "outputs/pdf_writer.h"
#include "outputs/played_set.h"
#include "outputs/print_paper.h"
#include "outputs/print_range.h"
#include "outputs/print_slips.h"
#include "seasons/pools.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUso =
    "imprimir RUTA.uxd [--direccion vertical|apaisada] [--desde N --hasta M] "
    "[--papel boleto|blanco] (--pdf F.pdf | --marcas --json)";

// Twips con dos decimales como mucho: "2340", "1326.69".
std::string Numero(float valor) {
    char texto[32];
    std::snprintf(texto, sizeof texto, "%.2f", static_cast<double>(valor));
    std::string numero = texto;
    numero.erase(numero.find_last_not_of('0') + 1);
    if (numero.back() == '.') numero.pop_back();
    return numero;
}

void Marcas(const outputs::Impresion& impresion, std::ostream& salida) {
    salida << '[';
    const char* separador = "";
    for (const auto& t : impresion.Textos()) {
        salida << separador << "{\"Pagina\": " << t.pagina << ", \"Texto\": " << TextoJson(t.texto)
               << ", \"Fuente\": " << TextoJson(t.fuente) << ", \"Tamano\": " << t.tamano
               << ", \"Negrita\": " << (t.negrita ? "true" : "false") << ", \"X\": " << Numero(t.x)
               << ", \"Y\": " << Numero(t.y) << '}';
        separador = ",\n ";
    }
    salida << "]\n";
}

outputs::DisposicionBoleto Disposicion(const Argumentos& argumentos, const base::Ajustes& ajustes,
                                       std::string fecha) {
    const auto direccionDada = argumentos.Valor("direccion");
    if (direccionDada && *direccionDada != "vertical" && *direccionDada != "apaisada") {
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)};
    }
    const outputs::Direccion direccion = !direccionDada ? outputs::DireccionGuardada(ajustes)
                                         : *direccionDada == "vertical"
                                             ? outputs::Direccion::Vertical
                                             : outputs::Direccion::Apaisada;
    const std::string papel = argumentos.Valor("papel").value_or("boleto");
    if (papel == "blanco") {
        return outputs::DisposicionDePapel(direccion, outputs::AjustePapelGuardado(ajustes),
                                           std::move(fecha));
    }
    if (papel != "boleto") throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)};
    return outputs::DisposicionDeBoletos(direccion, outputs::ValoresGuardados(ajustes, direccion),
                                         std::move(fecha));
}

}  // namespace

int Imprimir(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(1, kUso);
    const auto pdf = argumentos.Valor("pdf");
    if (!pdf && !(argumentos.Marca("marcas") && argumentos.Json())) {
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)};
    }
    const std::filesystem::path uxd = argumentos.Posicionales()[0];
    const auto juego = outputs::LeerJuegoJugado(uxd);
    const auto activas = outputs::LeerColumnas(juego.columnas, true);
    if (activas.empty()) throw base::Error("No hay columnas que imprimir.");
    const auto trabajo = argumentos.CarpetaTrabajo();
    const base::AjustesIni ajustes(trabajo);
    DialogoDeOrdenes dialogo(std::cerr);
    const std::int32_t boletos = outputs::NumeroDeBoletos(activas.size());
    const bool todos = !argumentos.Valor("desde") && !argumentos.Valor("hasta");
    const auto rango =
        outputs::RangoDeImpresion(dialogo, todos, argumentos.Valor("desde").value_or(""),
                                  argumentos.Valor("hasta").value_or(""), boletos);
    if (!rango) return 1;
    const auto impresion = outputs::ImprimirTodos(
        activas, rango->desde, rango->hasta,
        Disposicion(argumentos, ajustes, seasons::FechaDeJornadaEnCurso(trabajo, juego.jornada)));
    if (pdf) {
        base::EscribirAtomico(*pdf, outputs::PdfDeImpresion(impresion));
        return 0;
    }
    Marcas(impresion, salida);
    return 0;
}

}  // namespace quinteva::cli
