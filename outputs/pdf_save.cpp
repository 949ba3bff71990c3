#include "outputs/pdf_save.h"

#include <system_error>

#include "base/atomic_write.h"
#include "outputs/pdf_writer.h"

namespace quinteva::outputs {

bool GuardarPdf(base::Dialogo& dialogo, const Impresion& impresion,
                const std::filesystem::path& inicial) {
    const auto ruta = dialogo.ArchivoParaGuardar("Guardar PDF", kFiltroPdf, inicial);
    if (!ruta) return false;
    std::error_code error;
    if (std::filesystem::exists(*ruta, error) &&
        dialogo.PreguntaSiNo(kPreguntaSobrescribir) != base::Respuesta::Si) {
        return false;
    }
    base::EscribirAtomico(*ruta, PdfDeImpresion(impresion));
    return true;
}

}  // namespace quinteva::outputs
