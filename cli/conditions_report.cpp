// informe-condiciones: "Quinteva [Condiciones]" de una Combinación guardada, en PDF.
#include "outputs/conditions_report.h"
#include "base/atomic_write.h"
#include "base/settings_ini.h"
#include "cli/commands.h"
#include "cli/private_folder.h"
#include "engine/combination_files.h"
#include "outputs/pdf_writer.h"
#include "seasons/pools.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso = "informe-condiciones RUTA.uxd --pdf F.pdf";

}  // namespace

int InformeCondicionesCmd(const Argumentos& a, std::ostream& salida) {
    a.ExigirPosicionales(1, kUso);
    const std::string pdf = a.Exigir("pdf", kUso);
    const CarpetaDeAlmacenes almacenes(a);
    const base::AjustesIni ajustes(a.CarpetaTrabajo());
    engine::Combinacion c;
    c.ruta = a.Posicionales()[0];
    engine::Abrir(c, almacenes.Ruta(), ajustes);
    const auto datos = outputs::LeerDatosPrevios(c, almacenes.Ruta(), ajustes);
    const auto informe = outputs::InformeCondiciones(
        c,
        {c.jornada, seasons::FechaDeJornadaEnCurso(a.CarpetaTrabajo(), c.jornada),
         c.ruta.stem().string()},
        datos);
    base::EscribirAtomico(pdf, outputs::PdfDeImpresion(informe));
    salida << "Páginas: " << informe.Paginas() << '\n';
    return 0;
}

}  // namespace quinteva::cli
