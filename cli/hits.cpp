// Subcomando aciertos: la comprobación de aciertos de una Combinación, un archivo oficial o un
// AD243.
#include <cctype>
#include <iostream>

#include "base/progress.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "outputs/hit_files.h"
#include "outputs/located_columns.h"
#include "outputs/numeric_text.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUso =
    "aciertos ORIGEN --ganadora \"14 signos\" --pleno H-A [--avance] [--columnas] [--json] "
    "[--jornada N] [--anio AAAA]";
// Lo que se puede escribir por un partido que no se sabe.
constexpr std::string_view kSinSaber = " -?";

char Mayuscula(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

// Los 14 signos de --ganadora: "1", "X", "2" (también "x") o, con --avance, " ", "-" o "?" por un
// partido que no se sabe.
std::string Signos(const Argumentos& a, bool avance) {
    const std::string texto = a.Valor("ganadora").value_or("");
    if (texto.size() != 14)
        throw ErrorDeUso{"--ganadora ha de tener 14 signos\nUso: quinteva-cli " +
                         std::string(kUso)};
    std::string signos;
    for (const char c : texto) {
        if (std::string_view("1X2").find(Mayuscula(c)) != std::string_view::npos) {
            signos += Mayuscula(c);
        } else if (avance && kSinSaber.find(c) != std::string_view::npos) {
            signos += ' ';
        } else {
            throw ErrorDeUso{"--ganadora: \"" + std::string(1, c) + "\" no es un signo 1, X, 2" +
                             (avance ? " ni un partido sin saber (-)" : "")};
        }
    }
    return signos;
}

// --pleno H-A: los dos caracteres del Pleno al 15; vacío si no se dio.
std::string Pleno(const Argumentos& a) {
    const auto texto = a.Valor("pleno");
    if (!texto) return {};
    std::string pleno;
    for (const char c : *texto) pleno += Mayuscula(c);
    if (pleno.size() != 3 || pleno[1] != '-' ||
        std::string_view("012M").find(pleno[0]) == std::string_view::npos ||
        std::string_view("012M").find(pleno[2]) == std::string_view::npos) {
        throw ErrorDeUso{"El Pleno al 15 va como H-A con 0, 1, 2 o M, p. ej. 1-M"};
    }
    return {pleno[0], pleno[2]};
}

int Numero(const Argumentos& a, std::string_view opcion, std::size_t cifras = 0) {
    const auto texto = a.Valor(opcion);
    if (!texto) throw ErrorDeUso{"Falta --" + std::string(opcion) + " para este archivo"};
    if (!outputs::EsNumerico(*texto) || (cifras != 0 && texto->size() != cifras)) {
        throw ErrorDeUso{"--" + std::string(opcion) + " ha de ser un número" +
                         (cifras != 0 ? " de " + std::to_string(cifras) + " cifras" : "")};
    }
    return static_cast<int>(outputs::ValorNumerico(*texto));
}

outputs::Comprobacion Comprobar(const Argumentos& a, const std::string& ganadora,
                                base::Dialogo& dialogo) {
    const std::filesystem::path origen = a.Posicionales()[0];
    const bool avance = a.Marca("avance");
    base::SinProgreso progreso;
    switch (outputs::OrigenDeArchivo(origen)) {
        case outputs::OrigenAciertos::Combinacion:
            if (avance) {
                const std::string celda = ganadora.size() == 16
                                              ? std::string{ganadora[14], ' ', ganadora[15]}
                                              : std::string();
                return outputs::Avance(origen, ganadora, celda, dialogo, progreso);
            }
            return outputs::Aciertos(origen, ganadora, dialogo, progreso);
        case outputs::OrigenAciertos::Json:
            if (avance) throw ErrorDeUso{"--avance solo comprueba una Combinación (.uxd)"};
            return outputs::AciertosJSON(origen, ganadora, Numero(a, "jornada"),
                                         std::to_string(Numero(a, "anio", 4)), dialogo);
        case outputs::OrigenAciertos::AD243:
            if (avance) throw ErrorDeUso{"--avance solo comprueba una Combinación (.uxd)"};
            return outputs::AciertosAD243(origen, ganadora, Numero(a, "jornada"), dialogo);
    }
    return {};
}

void Mostrar(const outputs::Comprobacion& c, bool columnas, bool json, std::ostream& salida) {
    const auto textos = outputs::TextosCuentas(c.tabla);
    const auto filas = outputs::FilasLocalizadas(c.tabla);
    if (json) {
        salida << '{';
        for (std::size_t i = 0; i < textos.size(); ++i) {
            salida << (i > 0 ? ", " : "") << TextoJson(outputs::kTitulosAciertos[i]) << ": "
                   << c.tabla.cuentas[i];
        }
        if (columnas) {
            salida << ", \"Columnas\": [";
            for (std::size_t i = 0; i < filas.size(); ++i) {
                salida << (i > 0 ? ", " : "") << "{\"Boleto\": " << TextoJson(filas[i].boleto)
                       << ", \"Columna\": " << TextoJson(filas[i].columna)
                       << ", \"Aciertos\": " << TextoJson(filas[i].aciertos) << '}';
            }
            salida << ']';
        }
        salida << "}\n";
        return;
    }
    for (std::size_t i = 0; i < textos.size(); ++i) {
        salida << outputs::kTitulosAciertos[i] << ": " << textos[i] << '\n';
    }
    if (!columnas) return;
    salida << "Boleto\tColumna\tAciertos\n";
    for (const auto& f : filas)
        salida << f.boleto << '\t' << f.columna << '\t' << f.aciertos << '\n';
}

}  // namespace

int AciertosCmd(const Argumentos& a, std::ostream& salida) {
    a.ExigirPosicionales(1, kUso);
    const bool avance = a.Marca("avance");
    const std::string pleno = Pleno(a);
    const std::string ganadora = Signos(a, avance) + pleno;
    if (!avance && pleno.empty()) {
        throw ErrorDeUso{"Sin --avance la columna ganadora ha de estar completa: falta --pleno"};
    }
    DialogoDeOrdenes dialogo(std::cerr);
    const outputs::Comprobacion c = Comprobar(a, ganadora, dialogo);
    if (!c.hecha) return 1;
    Mostrar(c, a.Marca("columnas"), a.Json(), salida);
    return 0;
}

}  // namespace quinteva::cli
