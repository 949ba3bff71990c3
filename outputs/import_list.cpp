#include "outputs/import_list.h"

#include <fstream>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "outputs/json_bag.h"
#include "outputs/official_generation.h"

namespace quinteva::outputs {

namespace {

constexpr std::string_view kSeccion = "Importar";
constexpr std::string_view kSeparadores = " \t,;-";

struct Modo {
    ModoImportado modo;
    std::string_view texto;
    std::string_view leyenda;
};
constexpr std::array<Modo, 4> kModos = {{
    {ModoImportado::Boletos, "Boletos", "En cara de boletos oficiales"},
    {ModoImportado::Papel1, "Papel1", "En cuartillas (1 por página)"},
    {ModoImportado::Papel2, "Papel2", "En folios o A4 (2 por página)"},
    {ModoImportado::Papel0, "Papel0", "En dorso de boletos oficiales"},
}};

std::filesystem::path Almacen(const std::filesystem::path& carpetaTrabajo) {
    return carpetaTrabajo / kArimpTmp;
}

bool EsGol(char c) { return c == '0' || c == '1' || c == '2' || c == 'M'; }

// Una línea del texto como columna: 14 signos y, si se pide, los dos goles del Pleno.
std::optional<engine::RegistroColumna> Columna(std::string_view linea, bool conPleno) {
    std::string cifras;
    for (char c : linea) {
        if (kSeparadores.find(c) != std::string_view::npos) continue;
        cifras.push_back(c == 'x' ? 'X' : c == 'm' ? 'M' : c);
    }
    const std::size_t largo = engine::kPartidos + (conPleno ? 2 : 0);
    if (cifras.size() != largo) return std::nullopt;
    engine::RegistroColumna r;
    for (std::size_t p = 0; p < r.columna.size(); ++p) {
        if (engine::IndiceSigno(cifras[p]) < 0) return std::nullopt;
        r.columna[p] = cifras[p];
    }
    r.pleno = {' ', ' '};
    if (conPleno) {
        if (!EsGol(cifras[14]) || !EsGol(cifras[15])) return std::nullopt;
        r.pleno = {cifras[14], cifras[15]};
    }
    return r;
}

void Escribir(const std::filesystem::path& carpetaTrabajo,
              const std::vector<engine::RegistroColumna>& columnas) {
    std::string bytes;
    bytes.reserve(columnas.size() * engine::RegistroColumna::kLongitud);
    for (const auto& c : columnas) {
        const auto b = c.ABytes();
        bytes.append(b.begin(), b.end());
    }
    base::EscribirAtomico(Almacen(carpetaTrabajo), bytes);
}

}  // namespace

std::string_view TextoModo(ModoImportado modo) {
    return kModos[static_cast<std::size_t>(modo)].texto;
}

std::string_view LeyendaModo(ModoImportado modo) {
    return kModos[static_cast<std::size_t>(modo)].leyenda;
}

ModoImportado ModoGuardado(const base::Ajustes& ajustes) {
    const std::string texto = ajustes.Leer(base::kAplicacion, kSeccion, "Imprimir", "Boletos");
    for (const Modo& m : kModos) {
        if (m.texto == texto) return m.modo;
    }
    return ModoImportado::Boletos;
}

void GuardarModo(base::Ajustes& ajustes, ModoImportado modo) {
    ajustes.Guardar(base::kAplicacion, kSeccion, "Imprimir", TextoModo(modo));
}

ListaImportada ImportarTexto(const std::filesystem::path& archivo, bool conPleno,
                             const std::filesystem::path& carpetaTrabajo) {
    std::ifstream entrada(archivo, std::ios::binary);
    if (!entrada) throw base::Error("No se puede abrir el archivo " + archivo.string());
    std::vector<engine::RegistroColumna> columnas;
    std::string linea;
    for (int numero = 1; std::getline(entrada, linea); ++numero) {
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        const std::string_view limpia = base::Recortar(linea);
        if (limpia.empty() || limpia.front() == '#') continue;
        const auto columna = Columna(limpia, conPleno);
        if (!columna) {
            throw base::Error("La línea " + std::to_string(numero) + " no es una columna" +
                              (conPleno ? " con su Pleno al 15" : "") + ": " +
                              base::DeWindows1252(limpia));
        }
        columnas.push_back(*columna);
    }
    if (columnas.empty()) throw base::Error("El archivo no tiene ninguna columna.");
    Escribir(carpetaTrabajo, columnas);
    return {static_cast<double>(columnas.size()), std::nullopt};
}

ListaImportada ImportarJson(const std::filesystem::path& archivo,
                            const std::filesystem::path& carpetaTrabajo) {
    JsonBag raiz;
    raiz.JSON(LeerTextoArchivo(archivo));
    ArchivoOficialLeido leido = RecorrerArchivoOficial(raiz);
    std::vector<engine::RegistroColumna> columnas;
    for (const BoletoOficial& boleto : leido.cabecera.boletos) {
        CadaColumnaDeBoleto(boleto, [&](const engine::Columna& signos, const std::string& pleno) {
            engine::RegistroColumna r;
            for (std::size_t p = 0; p < signos.size(); ++p) {
                r.columna[p] = signos[p] == '\0' ? ' ' : signos[p];
            }
            r.pleno = {pleno.empty() ? ' ' : pleno[0], pleno.empty() ? ' ' : pleno[1]};
            columnas.push_back(r);
        });
    }
    Escribir(carpetaTrabajo, columnas);
    return {static_cast<double>(columnas.size()), std::move(leido.cabecera)};
}

std::vector<engine::RegistroColumna> LeerImportadas(const std::filesystem::path& carpetaTrabajo) {
    return base::LeerTodos<engine::RegistroColumna>(Almacen(carpetaTrabajo));
}

std::int32_t BoletosImportados(const ListaImportada& lista) {
    if (lista.json) return static_cast<std::int32_t>(lista.json->boletos.size());
    return NumeroDeBoletos(static_cast<std::size_t>(lista.columnasImportadas));
}

BoletoEnPantalla EscrolImportado(const ListaImportada& lista,
                                 const std::filesystem::path& carpetaTrabajo, int boleto) {
    if (!lista.json) return Escrol(LeerImportadas(carpetaTrabajo), boleto);
    BoletoEnPantalla pantalla;
    pantalla.numero = base::Formato(boleto, "#,##0");
    const auto& boletos = lista.json->boletos;
    if (boleto < 1 || boleto > static_cast<int>(boletos.size())) return pantalla;
    CadaColumnaDeBoleto(boletos[static_cast<std::size_t>(boleto - 1)],
                        [&](const engine::Columna& signos, const std::string& pleno) {
                            std::string texto(signos.begin(), signos.end());
                            for (char& c : texto) c = c == '\0' ? ' ' : c;
                            pantalla.columnas.push_back(texto);
                            if (pleno.size() == 2) pantalla.pleno = {pleno[0], '-', pleno[1]};
                        });
    return pantalla;
}

bool PuedeImprimir(const base::Ajustes& ajustes, ModoImportado modo, base::Dialogo& dialogo) {
    if (modo != ModoImportado::Boletos) {
        const bool dorso = ajustes.Leer(base::kAplicacion, "Valores", "DB", "0") == "1" &&
                           ajustes.Leer(base::kAplicacion, "Valores", "ImpDorsoBoleto", "") == "V";
        if (dorso != (modo == ModoImportado::Papel0)) {
            dialogo.Mensaje(kMsgDorsoDistinto, base::Icono::Aviso);
            return false;
        }
    }
    const std::string_view clave = modo == ModoImportado::Boletos ? "AjusteBoletos" : "AjustePapel";
    if (ajustes.Leer(base::kAplicacion, "Avisos", clave, "NO") == "NO") {
        dialogo.Mensaje(kMsgAjusteAntes, base::Icono::Aviso);
        return false;
    }
    return true;
}

bool CompletarA100(ListaImportada& lista, const std::filesystem::path& carpetaTrabajo,
                   base::Azar& azar, base::Dialogo& dialogo) {
    if (lista.columnasImportadas >= kMinimoColumnas) return false;
    if (dialogo.AceptarCancelar(kPreguntaCompletar) != base::Respuesta::Aceptar) return false;
    base::ArchivoDe<engine::RegistroColumna> almacen(Almacen(carpetaTrabajo));
    const engine::PlenoBase pleno =
        almacen.Cuenta() > 0 ? almacen.Leer(1).pleno : engine::PlenoBase{' ', ' '};
    const int nuevas = kMinimoColumnas - static_cast<int>(lista.columnasImportadas);
    for (int n = 0; n < nuevas; ++n) {
        engine::RegistroColumna r;
        for (auto& signo : r.columna) {
            signo = engine::kSignos[static_cast<std::size_t>(azar.Entero(1, 3) - 1)];
        }
        r.pleno = pleno;
        almacen.Anadir(r);
        lista.columnasImportadas += 1;
    }
    almacen.Cerrar();
    dialogo.Mensaje(kMsgCompletado);
    return true;
}

}  // namespace quinteva::outputs
