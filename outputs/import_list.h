#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/chance.h"
#include "base/dialog.h"
#include "base/settings.h"
#include "engine/columns.h"
#include "outputs/official_file.h"
#include "outputs/slip_marks.h"

namespace quinteva::outputs {

inline constexpr std::string_view kMsgDorsoDistinto =
    "Por favor acceda al Ajuste de impresión y marque correctamente si se imprime en el dorso de "
    "los Boletos o no. Los valores del ajuste son distintos para dada caso.";
inline constexpr std::string_view kMsgAjusteAntes =
    "Antes de imprimir la primera vez debe hacer el Ajuste de la impresora y realizar la Prueba "
    "de impresión. El ajuste es distinto según se imprima en boletos oficiales o en papel blanco.";
inline constexpr std::string_view kPreguntaCompletar =
    "Se añadirán apuestas a la combinación generadas aleatóriamente.";
inline constexpr std::string_view kMsgCompletado =
    "Proceso terminado. Ahora puede abrir de nuevo el archivo.";
inline constexpr int kMinimoColumnas = 100;

// Cómo imprime la ventana de importación ("Imprimir" de la sección "Importar").
enum class ModoImportado { Boletos, Papel1, Papel2, Papel0 };
std::string_view TextoModo(ModoImportado modo);
std::string_view LeyendaModo(ModoImportado modo);
ModoImportado ModoGuardado(const base::Ajustes& ajustes);
void GuardarModo(base::Ajustes& ajustes, ModoImportado modo);

// La lista importada: sus columnas en "Arimp.tmp" (ColumnasImportadas) y, si vino de un archivo
// oficial, su cabecera con sus Boletos, que es lo que muestra la pantalla.
struct ListaImportada {
    double columnasImportadas = 0;
    std::optional<CabeceraOficial> json;
};

// "I&mportar Archivo con/sin P15 a goles": una columna por línea, 14 signos (1, X o 2; la x
// también) y, con el Pleno, sus dos goles (0, 1, 2 o M) detrás, "1-M", "1M" o "1 M". Los
// blancos, tabuladores, comas y puntos y comas entre signos no cuentan; las líneas vacías y las
// que empiezan por "#" tampoco. Una línea mala para la importación con su número y nada se
// escribe; si no, "Arimp.tmp" se reescribe entero.
ListaImportada ImportarTexto(const std::filesystem::path& archivo, bool conPleno,
                             const std::filesystem::path& carpetaTrabajo);
// "Importar archivo  oficial JSON": el recorrido del archivo oficial, cada columna a "Arimp.tmp".
ListaImportada ImportarJson(const std::filesystem::path& archivo,
                            const std::filesystem::path& carpetaTrabajo);

std::vector<engine::RegistroColumna> LeerImportadas(const std::filesystem::path& carpetaTrabajo);
std::int32_t BoletosImportados(const ListaImportada& lista);
// Escrol y EscrolJSON: el boleto elegido, del almacén o de los Boletos del archivo oficial.
BoletoEnPantalla EscrolImportado(const ListaImportada& lista,
                                 const std::filesystem::path& carpetaTrabajo, int boleto);

// Antes de "Imprimir Un&o" e "Imprimir &Todos": el dorso del ajuste de acuerdo con el modo y el
// ajuste hecho alguna vez. false (con su mensaje) si no se puede imprimir.
bool PuedeImprimir(const base::Ajustes& ajustes, ModoImportado modo, base::Dialogo& dialogo);

// "Completar a 100": columnas al azar con el Pleno de la primera hasta llegar a 100. Nada si ya
// hay 100 o si el usuario cancela.
bool CompletarA100(ListaImportada& lista, const std::filesystem::path& carpetaTrabajo,
                   base::Azar& azar, base::Dialogo& dialogo);

}  // namespace quinteva::outputs
