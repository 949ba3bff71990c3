// verificar: la garantía de las reducidas guardadas de una Combinación frente a sus generadas.
#include "base/formats.h"
#include "cli/commands.h"
#include "engine/combination_files.h"
#include "engine/guarantee_check.h"
#include "outputs/played_set.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso = "verificar RUTA.uxd --al 13|12|11";

}  // namespace

int VerificarCmd(const Argumentos& a, std::ostream& salida) {
    a.ExigirPosicionales(1, kUso);
    const std::string al = a.Exigir("al", kUso);
    if (al != "13" && al != "12" && al != "11") throw ErrorDeUso{"--al es 13, 12 u 11"};
    const std::filesystem::path uxd = a.Posicionales()[0];
    engine::LeerCabecera(uxd);  // que sea una Combinación
    const auto generadas = outputs::LeerColumnas(engine::RutaHermana(uxd, ".cnd"), false);
    const auto reducidas = outputs::LeerColumnas(engine::RutaHermana(uxd, ".red"), false);
    const engine::Verificacion v =
        engine::VerificarGarantia(generadas, reducidas, engine::RadioDelNivel(std::stoi(al)));
    if (!v.Cumple()) {
        salida << "No cumple la garantía al " << al << ": la columna " << *v.registro << " ("
               << engine::TextoDeColumna(v.columna) << ") no está cubierta.\n";
        return 1;
    }
    salida << "Cumple la garantía al " << al << ": " << base::Formato(v.reducidas, "#,##0")
           << " reducidas cubren " << base::Formato(v.generadas, "#,##0") << " generadas.\n";
    return 0;
}

}  // namespace quinteva::cli
