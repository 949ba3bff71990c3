#include "syndicates/ledger.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "base/formats.h"
#include "base/text1252.h"

namespace quinteva::syndicates {

namespace {

constexpr std::string_view kDinero = "#,##0.#0";
constexpr std::string_view kPorcentaje = "#,##0.##0";
// "Total cobrado" al teclear las columnas deja fuera "De 10".
constexpr std::size_t kCategoriasAlTeclear = 5;

bool Vacio(std::string_view texto) { return base::Recortar(texto).empty(); }

// "Total cobrado" de las primeras categorías con sus dos casillas.
double Cobrado(const PaginaJornada& p, std::size_t categorias) {
    double total = 0;
    for (std::size_t i = 0; i < categorias; ++i) {
        if (!Vacio(p.acertadas[i]) && !Vacio(p.premios[i])) {
            total += ValorDeTexto(p.acertadas[i]) * ValorDeTexto(p.premios[i]);
        }
    }
    return total;
}

std::vector<FilaJornadaPena> FilasDeLaJornada(const std::vector<RegApostante>& apostantes,
                                              std::size_t j, std::string& totalJugado,
                                              std::string& totalObtenido) {
    std::vector<FilaJornadaPena> filas;
    std::vector<float> cuotas;
    for (const RegApostante& a : apostantes) {
        if (a.cuotas[j] <= 0.0F) continue;
        filas.push_back({std::string(base::Recortar(a.nombre)),
                         TextoDeDinero(a.cuotas[j]),
                         {},
                         TextoDeDinero(a.obtenido[j])});
        cuotas.push_back(a.cuotas[j]);
    }
    const auto suma = [&](auto campo) {
        return std::accumulate(
            filas.begin(), filas.end(), 0.0,
            [&](double s, const FilaJornadaPena& f) { return s + ValorDeTexto(f.*campo); });
    };
    const double jugado = suma(&FilaJornadaPena::jugado);
    for (std::size_t i = 0; i < filas.size(); ++i) {
        filas[i].participacion =
            base::Formato(static_cast<double>(cuotas[i]) * 100.0 / jugado, kPorcentaje);
    }
    totalJugado = TextoDeDinero(jugado);
    totalObtenido = TextoDeDinero(suma(&FilaJornadaPena::obtenido));
    return filas;
}

void PonerEstado(const ArchivosPena& pena, int jornada, bool cerrada) {
    RegJornadaPena r = pena.LeerJornada(jornada);
    r.cerrada = cerrada ? -1 : 0;
    pena.GuardarJornada(jornada, r);
}

}  // namespace

double ValorDeTexto(std::string_view texto) {
    std::string t;
    for (const char c : base::Recortar(texto)) {
        if (c == '.') continue;
        t += c == ',' ? '.' : c;
    }
    return t.empty() ? 0.0 : std::strtod(t.c_str(), nullptr);
}

std::string TextoDeDinero(double valor) { return base::Formato(valor, kDinero); }

namespace {

bool ConNombres(const RegPena& datos, base::Dialogo& dialogo) {
    if (!Vacio(datos.nombre) && !Vacio(datos.nombreReducido)) return true;
    dialogo.Mensaje(kMsgCrearFaltanNombres, base::Icono::Aviso);
    return false;
}

}  // namespace

std::optional<std::filesystem::path> CrearDatosPena(const std::filesystem::path& carpetaTrabajo,
                                                    RegPena datos, base::Dialogo& dialogo,
                                                    const base::Volcar& volcar) {
    if (!ConNombres(datos, dialogo)) return std::nullopt;
    std::erase(datos.nombreReducido, ' ');
    const auto ruta = CarpetaPenasTemporada(carpetaTrabajo, datos.temporada) / datos.nombreReducido;
    if (std::filesystem::exists(ArchivoPena(ruta, kExtPena))) {
        dialogo.Mensaje(kMsgPenaRepetida, base::Icono::Aviso);
        return std::nullopt;
    }
    return CrearPena(carpetaTrabajo, std::move(datos), volcar);
}

bool ModificarDatosPena(const ArchivosPena& pena, RegPena datos, base::Dialogo& dialogo) {
    datos.nombreReducido = pena.LeerPena().nombreReducido;
    if (!ConNombres(datos, dialogo)) return false;
    pena.GuardarPena(datos);
    return true;
}

PaginaJornada LlenarFlex1(const ArchivosPena& pena, int jornada, std::string fecha) {
    PaginaJornada p;
    p.jornada = jornada;
    p.fecha = std::move(fecha);
    p.filas = FilasDeLaJornada(pena.LeerApostantes(), static_cast<std::size_t>(jornada),
                               p.totalJugado, p.totalObtenido);
    OrdenarFilas(p, OrdenFilas::Nombres);
    const RegJornadaPena r = pena.LeerJornada(jornada);
    p.numColumnas = base::Formato(r.numColumnas, "##0");
    p.importe = TextoDeDinero(r.importe);
    p.cerrada = r.cerrada == -1;
    for (std::size_t i = 0; i < RegJornadaPena::kCategorias; ++i) {
        p.acertadas[i] = std::to_string(r.acertadas[i]);
        p.premios[i] = TextoDeDinero(r.premios[i]);
    }
    p.totalCobrado = TextoDeDinero(r.totalCobrado);
    p.gastos = TextoDeDinero(r.gastos);
    p.aRepartir = TextoDeDinero(r.aRepartir);
    return p;
}

void OrdenarFilas(PaginaJornada& p, OrdenFilas orden) {
    std::stable_sort(p.filas.begin(), p.filas.end(), [orden](const auto& a, const auto& b) {
        if (orden == OrdenFilas::Importe) return ValorDeTexto(a.jugado) < ValorDeTexto(b.jugado);
        return base::ClaveSinMayusculas(a.nombre) < base::ClaveSinMayusculas(b.nombre);
    });
}

void ReCalculo(PaginaJornada& p) {
    const double cobrado = Cobrado(p, RegJornadaPena::kCategorias);
    p.totalCobrado = TextoDeDinero(cobrado);
    const double repartir = Vacio(p.gastos) ? cobrado : cobrado - ValorDeTexto(p.gastos);
    p.aRepartir = repartir < 0 ? std::string(kCeroNegativo) : TextoDeDinero(repartir);
}

bool PuedeDistribuir(const PaginaJornada& p) { return p.cerrada && ValorDeTexto(p.aRepartir) > 0; }

bool TeclearColumnas(PaginaJornada& p, std::string_view columnas, float precioColumna,
                     base::Dialogo& dialogo) {
    if (p.cerrada) {
        dialogo.Mensaje(kMsgJornadaCerradaColumnas, base::Icono::Aviso);
        return false;
    }
    p.numColumnas = std::string(columnas);
    const double importe = static_cast<double>(precioColumna) * ValorDeTexto(columnas);
    p.importe = TextoDeDinero(importe);
    const double cobrado = Cobrado(p, kCategoriasAlTeclear);
    p.totalCobrado = TextoDeDinero(cobrado);
    if (cobrado > 0 && importe > 0) {
        p.aRepartir =
            TextoDeDinero(Vacio(p.gastos) ? cobrado - importe : cobrado - ValorDeTexto(p.gastos));
    }
    return true;
}

bool CerrarJornada(const ArchivosPena& pena, PaginaJornada& p, base::Dialogo& dialogo) {
    const auto aviso = [&](std::string_view texto) {
        dialogo.Mensaje(texto, base::Icono::Aviso);
        return false;
    };
    if (p.jornada < 1) return aviso(kMsgSeleccioneJornada);
    if (p.importe != p.totalJugado) return aviso(kMsgImporteDistinto);
    const std::string_view columnas = base::Recortar(p.numColumnas);
    if (columnas.empty() || columnas == "0") return aviso(kMsgSinColumnas);
    PonerEstado(pena, p.jornada, true);
    p.cerrada = true;
    ReCalculo(p);
    return true;
}

void AbrirJornada(const ArchivosPena& pena, PaginaJornada& p) {
    if (p.jornada >= 1) PonerEstado(pena, p.jornada, false);
    p.cerrada = false;
}

void Distribuir(PaginaJornada& p) {
    const double repartir = ValorDeTexto(p.aRepartir);
    if (repartir < 0 || p.filas.empty()) return;
    double suma = 0;
    for (FilaJornadaPena& f : p.filas) {
        f.obtenido = TextoDeDinero(repartir * ValorDeTexto(f.participacion) / 100.0);
        suma += ValorDeTexto(f.obtenido);
    }
    if (TextoDeDinero(suma) != TextoDeDinero(repartir)) {
        FilaJornadaPena& ultima = p.filas.back();
        ultima.obtenido = TextoDeDinero(ValorDeTexto(ultima.obtenido) + (repartir - suma));
    }
    p.totalObtenido = p.aRepartir;
}

void GuardarPagina(const ArchivosPena& pena, const PaginaJornada& p) {
    RegJornadaPena r = pena.LeerJornada(p.jornada);
    const auto f = [](const std::string& texto) { return static_cast<float>(ValorDeTexto(texto)); };
    r.jornada = p.jornada;
    r.numColumnas = f(p.numColumnas);
    r.importe = f(p.importe);
    r.cerrada = p.cerrada ? -1 : 0;
    for (std::size_t i = 0; i < RegJornadaPena::kCategorias; ++i) {
        r.acertadas[i] = static_cast<int>(ValorDeTexto(p.acertadas[i]));
        r.premios[i] = f(p.premios[i]);
    }
    r.totalCobrado = f(p.totalCobrado);
    r.gastos = f(p.gastos);
    r.aRepartir = f(p.aRepartir);
    pena.GuardarJornada(p.jornada, r);

    auto apostantes = pena.LeerApostantes();
    for (const FilaJornadaPena& fila : p.filas) {
        for (RegApostante& a : apostantes) {
            if (base::MismoTextoSinMayusculas(a.nombre, fila.nombre)) {
                a.obtenido[static_cast<std::size_t>(p.jornada)] = f(fila.obtenido);
                break;
            }
        }
    }
    pena.GuardarApostantes(apostantes);
}

}  // namespace quinteva::syndicates
