#include "outputs/conditions_report.h"

#include <vector>

#include "base/formats.h"
#include "base/record_files.h"
#include "engine/pricing.h"
#include "outputs/line_pages.h"
#include "outputs/pdf_writer.h"
#include "outputs/slip_marks.h"
#include "outputs/text_width.h"

namespace quinteva::outputs {

namespace {

using Fila = std::vector<std::string>;
using Columnas = std::vector<ColumnaTabla>;

constexpr std::string_view kArial = "Arial";
constexpr int kCuerpo = 9;
constexpr int kTitulo = 16;
constexpr int kSeccion = 10;
constexpr float kAnchoRotulo = 2825.0F;
constexpr float kAnchoCifra = 700.0F;
constexpr float kAnchoSigno = 310.0F;

constexpr ColumnaTabla Izquierda(float ancho) { return {Alineacion::Izquierda, ancho}; }
constexpr ColumnaTabla Centro(float ancho) { return {Alineacion::Centro, ancho}; }

std::string N(int valor) { return std::to_string(valor); }

std::string Signo(int indice) {
    return std::string(1, engine::kSignos[static_cast<std::size_t>(indice)]);
}

// El informe sobre la hoja: secciones con su título, tablas de mínimo y máximo, líneas.
class Informe {
  public:
    explicit Informe(const CabeceraCondiciones& c)
        : hoja_([linea = "Jornada: " + N(c.jornada) + "    Fecha: " + c.fecha](
                    Impresion& h, int pagina) { Marco(h, linea, pagina); }) {}

    void Linea(std::string_view texto, bool negrita = false) {
        hoja_.Linea(texto, kArial, kCuerpo, negrita);
    }
    void Titulo(std::string_view texto, int tamano) { hoja_.Linea(texto, kArial, tamano, true); }
    // Una sección nueva: una línea en blanco y su título, que no se queda solo al pie.
    void Seccion(std::string_view titulo, int filas) {
        hoja_.Blanco(kCuerpo);
        hoja_.Reservar(filas + 2, kCuerpo);
        hoja_.Linea(titulo, kArial, kSeccion, true);
    }
    void Tabla(const Columnas& columnas, const Fila& cabecera, const std::vector<Fila>& filas) {
        if (!cabecera.empty()) hoja_.Fila(cabecera, columnas, kArial, kCuerpo, true);
        for (const Fila& f : filas) hoja_.Fila(f, columnas, kArial, kCuerpo, false);
    }
    // Filas de rótulo, "Min" y "Max".
    void MinMax(const std::vector<Fila>& filas) {
        Tabla({Izquierda(kAnchoRotulo), Centro(kAnchoCifra), Centro(kAnchoCifra)},
              {"", "Min", "Max"}, filas);
    }
    Impresion Terminar() { return hoja_.Terminar(); }

  private:
    // La cabecera de la Jornada a la derecha, arriba; abajo la línea del producto y la página.
    static void Marco(Impresion& h, const std::string& jornada, int pagina) {
        const float derecha = kAnchoA4 - HojaDeLineas::kMargen;
        const float abajo = kAltoA4 - HojaDeLineas::kMargen + 200.0F;
        h.Fuente(kArial, kCuerpo, false);
        h.Texto(derecha - AnchoDeTexto(jornada, kArial, kCuerpo, false),
                HojaDeLineas::kMargen - 500.0F, jornada);
        h.Texto(HojaDeLineas::kMargen, abajo, kLineaProducto);
        const std::string numero = "Página " + N(pagina);
        h.Texto(derecha - AnchoDeTexto(numero, kArial, kCuerpo, false), abajo, numero);
    }

    HojaDeLineas hoja_;
};

void QuinielaBase(Informe& inf, const engine::Combinacion& c, const DatosPrevios& d) {
    inf.Seccion("Quiniela Base", engine::kPartidos + 3);
    const Columnas columnas = {Centro(400),         Izquierda(4200),     Centro(kAnchoSigno),
                               Centro(kAnchoSigno), Centro(kAnchoSigno), Izquierda(400),
                               Centro(kAnchoCifra), Centro(kAnchoCifra), Centro(kAnchoCifra)};
    inf.Tabla({Centro(400), Izquierda(4200), Centro(3 * kAnchoSigno), Izquierda(400),
               Centro(3 * kAnchoCifra)},
              {"", "", "Signos", "", "Porcentajes"}, {});
    std::vector<Fila> filas;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        Fila f = {N(p), c.base.Equipos(p)};
        for (int s = 0; s < 3; ++s) f.push_back(c.base.Elegido(p, s) ? Signo(s) : "");
        f.emplace_back();
        for (int s = 0; s < 3; ++s) {
            const std::int32_t cuenta =
                d.signos[static_cast<std::size_t>(p - 1)][static_cast<std::size_t>(s)];
            f.push_back(
                cuenta == 0 || d.activas == 0
                    ? std::string()
                    : base::Formato(static_cast<double>(cuenta) * 100.0 / d.activas, "##0"));
        }
        filas.push_back(std::move(f));
    }
    const int pleno = engine::QuinielaBase::kFilas;
    filas.push_back(
        {N(pleno), c.base.Equipos(pleno), c.base.GolesLocal(), "", c.base.GolesVisitante()});
    inf.Tabla(columnas, {"Nº", "Partido", "1", "X", "2", "", "  1 ", "  X ", "  2 "}, filas);
}

void Generales(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Generales", 4);
    inf.MinMax({{"Nº de Variantes", N(k.minVariantes), N(k.maxVariantes)},
                {"Nº de Equis", N(k.minEquis), N(k.maxEquis)},
                {"Nº de Doses", N(k.minDoses), N(k.maxDoses)}});
}

void Seguidos(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Seguidos", 5);
    constexpr std::array<const char*, 4> kRotulos = {"Unos seguidos", "Equis seguidas",
                                                     "Doses seguidos", "Var. seguidas"};
    std::vector<Fila> filas;
    for (std::size_t i = 0; i < kRotulos.size(); ++i) {
        filas.push_back({kRotulos[i], N(k.minSeg[i]), N(k.maxSeg[i])});
    }
    inf.MinMax(filas);
}

void Interrupciones(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Interrupciones", 3);
    inf.MinMax({{"Totales", N(k.minInter), N(k.maxInter)},
                {"Consecutivas", N(k.minInterCons), N(k.maxInterCons)}});
}

void Repeticiones(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Repeticiones", 5);
    std::vector<Fila> filas;
    for (std::size_t i = 0; i < 4; ++i) {
        filas.push_back(
            {i < 3 ? Signo(static_cast<int>(i)) : "V", N(k.longRep[i]), N(k.limiteRep[i])});
    }
    inf.Tabla({Izquierda(kAnchoRotulo), Centro(1400), Centro(1400)}, {"", "Nº de signos", "Máximo"},
              filas);
}

void Sumas(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Sumas", engine::kPartidos + 3);
    inf.MinMax({{"Suma", N(k.sumaMinima), N(k.sumaMaxima)}});
    std::vector<Fila> filas;
    for (std::size_t p = 0; p < engine::kPartidos; ++p) {
        filas.push_back({N(static_cast<int>(p) + 1), N(k.sumasTabla[0][p]), N(k.sumasTabla[1][p]),
                         N(k.sumasTabla[2][p])});
    }
    inf.Tabla(
        {Izquierda(kAnchoRotulo), Centro(kAnchoCifra), Centro(kAnchoCifra), Centro(kAnchoCifra)},
        {"Partido", "%1", "%X", "%2"}, filas);
}

void Parejas(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Parejas", 10);
    std::vector<Fila> filas;
    for (std::size_t i = 0; i < engine::kTextoParejas.size(); ++i) {
        filas.push_back({engine::kTextoParejas[i], N(k.minPareja[i]), N(k.maxPareja[i])});
    }
    inf.MinMax(filas);
}

void Trios(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Tríos", 4);
    std::vector<Fila> filas;
    for (std::size_t i = 0; i < engine::kTextoTrios.size(); ++i) {
        const auto& t = engine::kTextoTrios[i];
        filas.push_back({std::string(t.begin(), t.end()), N(k.minTrio[i]), N(k.maxTrio[i])});
    }
    inf.MinMax(filas);
}

std::string NombreLista(int lista) {
    return std::string("Col. ") + static_cast<char>('A' + lista - 1);
}

void Comparaciones(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Comparaciones", 6);
    inf.Linea("Partidos que incluye", true);
    for (int l = 1; l <= 4; ++l) {
        const auto u = static_cast<std::size_t>(l - 1);
        std::string partidos;
        for (std::size_t i = 1; i <= k.numListas[u] && i < k.listas[u].size(); ++i) {
            partidos += (i > 1 ? ", " : "") + N(k.listas[u][i]);
        }
        inf.Tabla({Izquierda(1000), Izquierda(7000)}, {}, {{NombreLista(l) + ":", partidos}});
    }
    inf.Linea("Condiciones", true);
    constexpr std::array<const char*, 6> kOperadores = {"", "<", "<=", "=", ">=", ">"};
    std::vector<Fila> filas;
    for (const engine::Comparacion& c : k.comparaciones) {
        if (c.activa == 0) continue;
        const auto lado = [](int signo, int lista) {
            return "  Nº de " + (signo >= 1 && signo <= 3 ? Signo(signo - 1) : std::string()) +
                   " de " + NombreLista(lista);
        };
        filas.push_back({lado(c.signoIzq, c.listaIzq),
                         c.operador < kOperadores.size() ? kOperadores[c.operador] : "",
                         lado(c.signoDer, c.listaDer)});
    }
    inf.Tabla({Izquierda(kAnchoRotulo), Centro(600), Izquierda(kAnchoRotulo)}, {}, filas);
}

void Grupos(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Grupos", 2);
    inf.Linea("Tolerancia Grupos fallados: " + N(k.toleranciaGrupos));
    constexpr std::array<const char*, 4> kClases = {"Unos", "Equis", "Doses", "Variantes"};
    for (std::size_t g = 0; g < k.grupos.size(); ++g) {
        const engine::Grupo& grupo = k.grupos[g];
        if (!grupo.activo) continue;
        std::string partidos;
        for (std::size_t p = 0; p < engine::kPartidos; ++p) {
            if (grupo.partidos[p])
                partidos += (partidos.empty() ? "" : ", ") + N(static_cast<int>(p) + 1);
        }
        inf.Seccion("Nº " + N(static_cast<int>(g) + 1) + "   Partidos: " + partidos, 5);
        std::vector<Fila> filas;
        for (std::size_t c = 0; c < kClases.size(); ++c) {
            filas.push_back({kClases[c], N(grupo.min[c]), N(grupo.max[c])});
        }
        inf.MinMax(filas);
    }
}

void GruposDeAciertos(Informe& inf, const engine::SetCondiciones& k) {
    inf.Seccion("Aciertos", 2);
    inf.Linea("Tolerancia Grupos de Aciertos fallados: " + N(k.toleranciaGruposAc));
    Columnas catorce(engine::kPartidos, Centro(500));
    catorce.insert(catorce.begin(), Izquierda(1000));
    for (std::size_t g = 0; g < k.gruposAc.size(); ++g) {
        const engine::GrupoAciertos& grupo = k.gruposAc[g];
        if (!grupo.activo) continue;
        inf.Seccion("Nº " + N(static_cast<int>(g) + 1), 5);
        inf.Linea("Pronóstico de cada Partido");
        Fila numeros = {"Partido"};
        Fila pronostico = {""};
        for (std::size_t p = 0; p < engine::kPartidos; ++p) {
            numeros.push_back(N(static_cast<int>(p) + 1));
            std::string signos;
            for (const char s : grupo.signos[p]) {
                if (s != ' ') signos += s;
            }
            pronostico.push_back(signos);
        }
        inf.Tabla(catorce, numeros, {pronostico});
        inf.MinMax({{"Aciertos", N(grupo.aciertosMin), N(grupo.aciertosMax)},
                    {"Fallos", N(grupo.fallosMin), N(grupo.fallosMax)}});
    }
}

bool AlgunoActivo(const auto& grupos) {
    for (const auto& g : grupos) {
        if (g.activo) return true;
    }
    return false;
}

}  // namespace

DatosPrevios LeerDatosPrevios(const engine::Combinacion& c,
                              const std::filesystem::path& carpetaTrabajo,
                              const base::Ajustes& ajustes) {
    DatosPrevios d;
    const bool reducida = c.jugada == "red";
    d.reduccion = "Sin reducir";
    if (reducida) {
        for (std::size_t i = 0; i < c.panel.reducidas.size(); ++i) {
            if (!c.panel.reducidas[i]) continue;
            d.reduccion = "Reducida al " + N(13 - static_cast<int>(i));
            break;
        }
    }
    d.total = reducida ? c.totalReducidas : c.totalGeneradas;
    d.activas = reducida ? c.activasReducidas : c.activasGeneradas;
    d.precioColumna = engine::PrecioColumna(ajustes);
    const auto almacen = carpetaTrabajo / (reducida ? engine::kRedTmp : engine::kCmbTmp);
    for (const auto& r : base::LeerTodos<engine::RegistroColumna>(almacen)) {
        for (std::size_t p = 0; p < engine::kPartidos; ++p) {
            const int s = engine::IndiceSigno(r.columna[p]);
            if (s >= 0) ++d.signos[p][static_cast<std::size_t>(s)];
        }
    }
    return d;
}

std::string LineaResumen(const DatosPrevios& d) {
    const double importe = static_cast<double>(d.activas) * static_cast<double>(d.precioColumna);
    return d.reduccion +
           "   Apuestas eliminadas manual.: " + base::Formato(d.total - d.activas, "#,##0") +
           "   Apuestas jugadas: " + base::Formato(d.activas, "#,##0") + " (" +
           base::Formato(importe, "#,##0.#0") + " €)";
}

Impresion InformeCondiciones(const engine::Combinacion& c, const CabeceraCondiciones& cabecera,
                             const DatosPrevios& datos) {
    Informe inf(cabecera);
    inf.Titulo(kTituloCondiciones, kTitulo);
    inf.Linea("Jornada: " + N(cabecera.jornada) + "    Fecha: " + cabecera.fecha +
              "    Nombre: " + cabecera.nombre);
    inf.Linea("");
    inf.Linea(LineaResumen(datos));
    QuinielaBase(inf, c, datos);
    const engine::SetCondiciones& k = c.condiciones;
    const auto activa = [&](engine::Casilla casilla) {
        return k.casilla[static_cast<std::size_t>(casilla)];
    };
    if (activa(engine::kCasillaGenerales)) Generales(inf, k);
    if (activa(engine::kCasillaSeguidos)) Seguidos(inf, k);
    if (activa(engine::kCasillaInterrupciones) || activa(engine::kCasillaInterConsecutivas)) {
        Interrupciones(inf, k);
    }
    if (activa(engine::kCasillaRepeticiones)) Repeticiones(inf, k);
    if (activa(engine::kCasillaSumas)) Sumas(inf, k);
    if (activa(engine::kCasillaParejas)) Parejas(inf, k);
    if (activa(engine::kCasillaTrios)) Trios(inf, k);
    if (activa(engine::kCasillaComparaciones)) Comparaciones(inf, k);
    if (AlgunoActivo(k.grupos)) Grupos(inf, k);
    if (AlgunoActivo(k.gruposAc)) GruposDeAciertos(inf, k);
    return inf.Terminar();
}

}  // namespace quinteva::outputs
