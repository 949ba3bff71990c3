#include "engine/combination_files.h"

#include "engine/pricing.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/record_files.h"
#include "base/same_content.h"
#include "base/text1252.h"

namespace quinteva::engine {
namespace {

using base::Byte;

// Recorre los campos de la cabecera en su sitio; el mismo recorrido escribe y lee.
struct Escritor {
    std::span<Byte> b;
    void U8(std::size_t pos, long long v) { base::PonerByte(b, pos, v); }
    void I16(std::size_t pos, long long v) { base::PonerInt16(b, pos, v); }
    void I32(std::size_t pos, long long v) { base::PonerInt32(b, pos, v); }
    void Casilla(std::size_t pos, bool v) { U8(pos, v ? 1 : 0); }
    void Marca16(std::size_t pos, bool v) { I16(pos, v ? -1 : 0); }
    void Texto(std::size_t pos, std::size_t ancho, const std::string& v) {
        base::PonerTexto(b, pos, ancho, v);
    }
    void Crudo(std::size_t pos, char v) { b[pos] = static_cast<Byte>(v); }
};

struct Lector {
    std::span<const Byte> b;
    template <typename T>
    void U8(std::size_t pos, T& v) {
        v = static_cast<T>(base::TomarByte(b, pos));
    }
    template <typename T>
    void I16(std::size_t pos, T& v) {
        v = static_cast<T>(base::TomarInt16(b, pos));
    }
    template <typename T>
    void I32(std::size_t pos, T& v) {
        v = static_cast<T>(base::TomarInt32(b, pos));
    }
    void Casilla(std::size_t pos, bool& v) { v = base::TomarByte(b, pos) != 0; }
    void Marca16(std::size_t pos, bool& v) { v = base::TomarInt16(b, pos) != 0; }
    void Texto(std::size_t pos, std::size_t ancho, std::string& v) {
        v = base::TomarTexto(b, pos, ancho);
    }
    void Crudo(std::size_t pos, char& v) { v = static_cast<char>(b[pos]); }
};

template <typename IO, typename R>
void Campos(IO& io, R& r) {
    auto& c = r.condiciones;
    io.Texto(0, 15, r.nombre);
    io.U8(15, r.jornada);
    io.Texto(16, 3, r.jugada);
    io.I32(19, r.alDirecto);
    io.I32(23, r.condicionada);
    io.I32(27, r.al13);
    io.I32(31, r.al12);
    io.I32(35, r.al11);
    for (std::size_t col = 0; col < 3; ++col) {
        for (std::size_t fila = 0; fila < 15; ++fila)
            io.U8(39 + col * 15 + fila, r.celdas[col][fila]);
    }
    // 84: 15 bytes reservados; 104: dos bytes de las casillas 5 y 6. Quedan a 0.
    for (std::size_t i = 0; i < 5; ++i) io.Casilla(99 + i, c.casilla[i]);
    for (std::size_t i = 0; i < 4; ++i) io.Casilla(106 + i, c.casilla[7 + i]);
    io.Crudo(110, r.pleno[0]);
    io.Crudo(111, r.pleno[1]);
    io.U8(112, c.posMaxVariantes);
    io.U8(113, c.maxVariantes);
    io.U8(114, c.posMaxEquis);
    io.U8(115, c.maxEquis);
    io.U8(116, c.posMaxDoses);
    io.U8(117, c.maxDoses);
    io.U8(118, c.posMinVariantes);
    io.U8(119, c.minVariantes);
    io.U8(120, c.posMinEquis);
    io.U8(121, c.minEquis);
    io.U8(122, c.posMinDoses);
    io.U8(123, c.minDoses);
    for (std::size_t k = 0; k < 4; ++k) {
        io.U8(124 + k, c.posMinSeg[k]);
        io.U8(128 + k, c.minSeg[k]);
        io.U8(132 + k, c.posMaxSeg[k]);
        io.U8(136 + k, c.maxSeg[k]);
    }
    io.U8(140, c.maxInter);
    io.U8(141, c.minInter);
    for (std::size_t i = 0; i < 9; ++i) {
        io.U8(142 + i, c.maxPareja[i]);
        io.U8(151 + i, c.minPareja[i]);
    }
    for (std::size_t i = 0; i < 27; ++i) {
        io.U8(160 + i, c.minTrio[i]);
        io.U8(187 + i, c.maxTrio[i]);
    }
    for (std::size_t g = 0; g < kGrupos; ++g) {
        auto& grupo = c.grupos[g];
        io.Marca16(214 + 2 * g, grupo.activo);
        for (std::size_t p = 0; p < kPartidos; ++p) {
            io.Marca16(314 + 28 * g + 2 * p, grupo.partidos[p]);
        }
        io.U8(1716 + g, grupo.posMin[kVariantes]);
        io.U8(1766 + g, grupo.posMax[kVariantes]);
        io.U8(1816 + g, grupo.posMin[kUno]);
        io.U8(1866 + g, grupo.posMax[kUno]);
        io.U8(1916 + g, grupo.posMin[kEquis]);
        io.U8(1966 + g, grupo.posMax[kEquis]);
        io.U8(2016 + g, grupo.posMin[kDos]);
        io.U8(2066 + g, grupo.posMax[kDos]);
        io.U8(2116 + g, grupo.min[kVariantes]);
        io.U8(2166 + g, grupo.max[kVariantes]);
        io.U8(2216 + g, grupo.min[kUno]);
        io.U8(2266 + g, grupo.max[kUno]);
        io.U8(2316 + g, grupo.min[kEquis]);
        io.U8(2366 + g, grupo.max[kEquis]);
        io.U8(2416 + g, grupo.min[kDos]);
        io.U8(2466 + g, grupo.max[kDos]);

        auto& ac = c.gruposAc[g];
        io.Marca16(2516 + 2 * g, ac.activo);
        for (std::size_t p = 0; p < kPartidos; ++p) {
            for (std::size_t k = 0; k < 3; ++k)
                io.Crudo(2616 + 42 * g + 3 * p + k, ac.signos[p][k]);
        }
        io.U8(4718 + g, ac.numPartidos);
        io.U8(4768 + g, ac.fallosMin);
        io.U8(4818 + g, ac.aciertosMin);
        io.U8(4868 + g, ac.fallosMax);
        io.U8(4918 + g, ac.aciertosMax);
    }
    io.U8(1714, c.ultimoGrupo);
    io.U8(1715, c.toleranciaGrupos);
    io.U8(4716, c.ultimoGrupoAc);
    io.U8(4717, c.toleranciaGruposAc);
    for (std::size_t s = 0; s < 3; ++s) {
        for (std::size_t p = 0; p < kPartidos; ++p) io.U8(4968 + 14 * s + p, c.sumasTabla[s][p]);
    }
    io.I16(5010, c.sumaMaxima);
    io.I16(5012, c.sumaMinima);
    for (std::size_t l = 0; l < 4; ++l) {
        io.U8(5014 + l, c.numListas[l]);
        for (std::size_t i = 0; i < 15; ++i) io.U8(5018 + 15 * l + i, c.listas[l][i]);
    }
    for (std::size_t f = 0; f < kComparacionesFilas; ++f) {
        auto& fila = c.comparaciones[f];
        io.U8(5078 + f, fila.activa);
        io.U8(5086 + f, fila.signoIzq);
        io.U8(5094 + f, fila.listaIzq);
        io.U8(5102 + f, fila.operador);
        io.U8(5110 + f, fila.signoDer);
        io.U8(5118 + f, fila.listaDer);
    }
    for (std::size_t k = 0; k < 4; ++k) {
        io.U8(5126 + k, c.longRep[k]);
        io.U8(5130 + k, c.limiteRep[k]);
    }
    io.U8(5134, r.dobles);
    io.U8(5135, r.triples);
    io.I32(5136, r.al10);
    io.U8(5140, c.maxInterCons);
    io.U8(5141, c.minInterCons);
    io.U8(5142, r.origenPorcentajes);
    for (std::size_t s = 0; s < 3; ++s) {
        for (std::size_t p = 0; p < kPartidos; ++p)
            io.U8(5143 + 14 * s + p, r.tablaPorcentajes[s][p]);
    }
    io.I32(5185, r.valorPorcentajes);
}

std::int32_t Etiqueta(const std::optional<std::int32_t>& v) { return v.value_or(0); }
std::optional<std::int32_t> DeCuenta(std::int32_t v) {
    return v == 0 ? std::nullopt : std::optional<std::int32_t>(v);
}

std::uintmax_t Longitud(const std::filesystem::path& ruta) {
    std::error_code error;
    const auto n = std::filesystem::file_size(ruta, error);
    if (error) throw base::Error("No se pudo leer el archivo " + ruta.string());
    return n;
}

std::vector<Byte> LeerTodo(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    if (!f) throw base::Error("No se pudo abrir el archivo " + ruta.string());
    std::vector<Byte> bytes((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    return bytes;
}

// Copia los primeros "registros" registros de un almacén a un archivo, por un temporal que se
// renombra encima, salvo que el archivo ya tenga exactamente esos bytes.
void CopiarRegistros(const std::filesystem::path& origen, std::int32_t registros,
                     const std::filesystem::path& destino) {
    const auto bytes = static_cast<std::uintmax_t>(registros) * RegistroColumna::kLongitud;
    if (bytes == 0) {
        base::EscribirAtomico(destino, {});
        return;
    }
    if (!std::filesystem::exists(origen) || Longitud(origen) < bytes) {
        throw base::Error("Faltan columnas en " + origen.filename().string());
    }
    if (base::MismoContenido(origen, destino, bytes)) return;
    base::CopiarAtomico(origen, destino, bytes);
}

// Precio de la primera cuenta mayor que 0 entre al 13, al 12, al 11, al 10 y "Condicionada".
void PonerPrecio(Combinacion& comb, const base::Ajustes& ajustes) {
    const double precio = static_cast<double>(PrecioColumna(ajustes));
    comb.panel.precio.reset();
    for (const auto& v : comb.panel.reducidas) {
        if (v.value_or(0) > 0) {
            comb.panel.precio = *v * precio;
            return;
        }
    }
    if (comb.panel.condicionada.value_or(0) > 0)
        comb.panel.precio = *comb.panel.condicionada * precio;
}

// Cuenta los registros de un ".cnd" o ".red" comprobando su longitud.
void ComprobarColumnas(const std::filesystem::path& ruta) {
    if (!std::filesystem::exists(ruta)) return;
    if (Longitud(ruta) % RegistroColumna::kLongitud != 0) {
        throw base::Error("El archivo " + ruta.filename().string() +
                          " está dañado: su longitud no es un múltiplo de 17 bytes");
    }
}

// Cuenta las activas (el estado es el byte 16 de cada registro de 17) de unos bytes que siguen
// a "leidos" bytes ya vistos.
std::int32_t ActivasEn(std::span<const unsigned char> trozo, std::uintmax_t leidos) {
    std::int32_t activas = 0;
    const auto enRegistro = static_cast<std::size_t>(leidos % RegistroColumna::kLongitud);
    std::size_t i = (RegistroColumna::kLongitud + 16 - enRegistro) % RegistroColumna::kLongitud;
    for (; i < trozo.size(); i += RegistroColumna::kLongitud) {
        activas += trozo[i] == static_cast<unsigned char>(kActiva) ? 1 : 0;
    }
    return activas;
}

// Copia un archivo de columnas al almacén, leyéndolo una vez, y devuelve total y activas.
std::pair<std::int32_t, std::int32_t> CargarAlmacen(const std::filesystem::path& origen,
                                                    const std::filesystem::path& almacen) {
    std::int32_t activas = 0;
    std::uintmax_t leidos = 0;
    std::filesystem::remove(almacen);
    base::CopiarAtomicoViendo(origen, almacen, [&](std::span<const unsigned char> trozo) {
        activas += ActivasEn(trozo, leidos);
        leidos += trozo.size();
    });
    return {static_cast<std::int32_t>(leidos / RegistroColumna::kLongitud), activas};
}

}  // namespace

std::array<Byte, RegistroCabecera::kLongitud> RegistroCabecera::ABytes() const {
    std::array<Byte, kLongitud> bytes{};
    Escritor e{bytes};
    Campos(e, *this);
    return bytes;
}

RegistroCabecera RegistroCabecera::DeBytes(std::span<const Byte> bytes) {
    if (bytes.size() < kLongitud) throw base::Error("Cabecera incompleta");
    RegistroCabecera r;
    Lector l{bytes};
    Campos(l, r);
    return r;
}

std::filesystem::path RutaHermana(const std::filesystem::path& uxd, std::string_view extension) {
    const std::string ruta = uxd.string();
    return std::filesystem::path(ruta.substr(0, ruta.size() >= 4 ? ruta.size() - 4 : 0) +
                                 std::string(extension));
}

RegistroCabecera CabeceraDe(const Combinacion& comb) {
    RegistroCabecera r;
    r.nombre = std::string(base::Recortar(comb.panel.nombre));
    r.jornada = comb.jornada;
    r.jugada = comb.jugada;
    r.alDirecto = static_cast<std::int32_t>(comb.panel.alDirecto.value_or(0.0F));
    r.condicionada = Etiqueta(comb.panel.condicionada);
    r.al13 = Etiqueta(comb.panel.reducidas[0]);
    r.al12 = Etiqueta(comb.panel.reducidas[1]);
    r.al11 = Etiqueta(comb.panel.reducidas[2]);
    r.al10 = Etiqueta(comb.panel.reducidas[3]);
    r.dobles = static_cast<std::uint8_t>(comb.panel.dobles.value_or(0));
    r.triples = static_cast<std::uint8_t>(comb.panel.triples.value_or(0));
    for (int p = 1; p <= kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) {
            r.celdas[static_cast<std::size_t>(s)][static_cast<std::size_t>(p - 1)] =
                comb.base.Elegido(p, s) ? 1 : 0;
        }
    }
    r.pleno = comb.pleno;
    r.origenPorcentajes = comb.origenPorcentajes;
    r.tablaPorcentajes = comb.tablaPorcentajes;
    r.valorPorcentajes = comb.valorPorcentajes;
    r.condiciones = comb.condiciones;
    return r;
}

namespace {

void GuardarEn(Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
               const base::Ajustes& ajustes, bool conservarJugada) {
    if (comb.ruta.empty()) throw base::Error("La Quiniela no tiene nombre de archivo");
    RegistroCabecera r = CabeceraDe(comb);
    // El conjunto jugado del archivo que ya había sobrevive.
    r.jugada.clear();
    if (conservarJugada && std::filesystem::exists(comb.ruta) &&
        Longitud(comb.ruta) >= RegistroCabecera::kLongitud) {
        const auto anterior = LeerTodo(comb.ruta);
        r.jugada = base::TomarTexto(anterior, 16, 3);
    }
    comb.jugada = std::string(base::Recortar(r.jugada));
    PonerPrecio(comb, ajustes);
    const auto bytes = r.ABytes();
    base::EscribirAtomico(
        comb.ruta, std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));

    const auto cnd = RutaHermana(comb.ruta, ".cnd");
    if (comb.panel.condicionada) {
        CopiarRegistros(carpetaTrabajo / kCmbTmp, comb.totalGeneradas, cnd);
    } else {
        std::filesystem::remove(cnd);
    }
    const auto red = RutaHermana(comb.ruta, ".red");
    const bool hayReducidas = std::any_of(comb.panel.reducidas.begin(), comb.panel.reducidas.end(),
                                          [](const auto& v) { return v.has_value(); });
    if (hayReducidas) {
        CopiarRegistros(carpetaTrabajo / kRedTmp, comb.totalReducidas, red);
    } else {
        std::filesystem::remove(red);
    }
    comb.panel.guardada = true;
}

}  // namespace

void Guardar(Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
             const base::Ajustes& ajustes) {
    GuardarEn(comb, carpetaTrabajo, ajustes, true);
}

void CargarCabecera(Combinacion& comb, const RegistroCabecera& r) {
    comb.panel = {};
    comb.panel.nombre = std::string(base::Recortar(r.nombre));
    comb.jornada = r.jornada;
    comb.jugada = std::string(base::Recortar(r.jugada));
    for (int p = 1; p <= kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) {
            comb.base.Elegir(
                p, s, r.celdas[static_cast<std::size_t>(s)][static_cast<std::size_t>(p - 1)] == 1);
        }
    }
    comb.pleno = r.pleno;
    const auto gol = [](char g) { return g == ' ' ? std::string() : std::string(1, g); };
    const std::string local = gol(r.pleno[0]);
    const std::string visitante = gol(r.pleno[1]);
    const auto valido = [](const std::string& g) {
        return g.empty() || g == "0" || g == "1" || g == "2" || g == "M";
    };
    comb.base.PonerGoles(valido(local) ? local : "", valido(visitante) ? visitante : "");

    comb.condiciones = r.condiciones;
    // Los "1" posibles no se guardan: salen de la base.
    const PosiblesGenerales posibles = CalcularPosiblesGenerales(comb.base);
    comb.condiciones.posMinUnos = posibles.minUnos;
    comb.condiciones.posMaxUnos = posibles.maxUnos;
    comb.origenPorcentajes = r.origenPorcentajes;
    comb.tablaPorcentajes = r.tablaPorcentajes;
    comb.valorPorcentajes = r.valorPorcentajes;

    comb.panel.guardada = true;
    comb.panel.alDirecto = comb.base.Columnas();
    comb.panel.dobles = r.dobles;
    comb.panel.triples = r.triples;
    comb.panel.condicionada = DeCuenta(r.condicionada);
    comb.panel.reducidas = {DeCuenta(r.al13), DeCuenta(r.al12), DeCuenta(r.al11), DeCuenta(r.al10)};
    comb.nivelReducida = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        if (comb.panel.reducidas[i]) {
            comb.nivelReducida = static_cast<std::uint8_t>(i);
            break;
        }
    }
}

RegistroCabecera LeerCabecera(const std::filesystem::path& ruta) {
    if (!std::filesystem::exists(ruta)) {
        throw base::Error("No existe el archivo " + ruta.string());
    }
    const auto longitud = Longitud(ruta);
    if (longitud == 0) {
        throw base::Error("El archivo " + ruta.filename().string() +
                          " está vacío: no es una Quiniela de Quinteva");
    }
    if (longitud != RegistroCabecera::kLongitud) {
        throw base::Error("El archivo " + ruta.filename().string() +
                          " no es una Quiniela de Quinteva: su cabecera ha de tener 5.189 bytes");
    }
    return RegistroCabecera::DeBytes(LeerTodo(ruta));
}

namespace {

// Abrir, con los almacenes de la carpeta de trabajo o, sin ella, sin cargarlos.
void AbrirEn(Combinacion& comb, const std::filesystem::path* carpetaTrabajo,
             const base::Ajustes& ajustes) {
    const auto& ruta = comb.ruta;
    const RegistroCabecera r = LeerCabecera(ruta);
    const auto cnd = RutaHermana(ruta, ".cnd");
    const auto red = RutaHermana(ruta, ".red");
    ComprobarColumnas(cnd);
    ComprobarColumnas(red);

    // Todo comprobado: desde aquí se carga el estado.
    CargarCabecera(comb, r);
    PonerPrecio(comb, ajustes);
    comb.numCondiciones = NumeroDeCondiciones(comb.condiciones);
    comb.apuestasPosibles = comb.base.Columnas();
    comb.totalGeneradas = comb.activasGeneradas = 0;
    comb.totalReducidas = comb.activasReducidas = 0;
    if (!carpetaTrabajo) return;
    if (std::filesystem::exists(cnd)) {
        std::tie(comb.totalGeneradas, comb.activasGeneradas) =
            CargarAlmacen(cnd, *carpetaTrabajo / kCmbTmp);
        comb.panel.condicionada = comb.activasGeneradas;
    }
    if (std::filesystem::exists(red)) {
        std::tie(comb.totalReducidas, comb.activasReducidas) =
            CargarAlmacen(red, *carpetaTrabajo / kRedTmp);
        for (auto& v : comb.panel.reducidas) {
            if (v) {
                v = comb.activasReducidas;
                break;
            }
        }
    }
}

}  // namespace

void Abrir(Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
           const base::Ajustes& ajustes) {
    AbrirEn(comb, &carpetaTrabajo, ajustes);
}

void AbrirParaGenerar(Combinacion& comb, const base::Ajustes& ajustes) {
    AbrirEn(comb, nullptr, ajustes);
}

void AbrirCombinacion(Combinacion& comb, const std::filesystem::path& ruta,
                      const std::filesystem::path& carpetaTrabajo, base::Ajustes& ajustes) {
    if (ruta.empty()) return;
    Combinacion nueva;
    nueva.ruta = ruta;
    Abrir(nueva, carpetaTrabajo, ajustes);
    comb = std::move(nueva);
    AnotarReciente(ajustes, ruta.string());
}

std::array<std::string, 3> Recientes(const base::Ajustes& ajustes) {
    return {ajustes.Leer(base::kAplicacion, "Valores", "Ult1", ""),
            ajustes.Leer(base::kAplicacion, "Valores", "Ult2", ""),
            ajustes.Leer(base::kAplicacion, "Valores", "Ult3", "")};
}

void AnotarReciente(base::Ajustes& ajustes, const std::string& ruta) {
    const auto r = Recientes(ajustes);
    ajustes.Guardar(base::kAplicacion, "Valores", "Ult3", r[1]);
    ajustes.Guardar(base::kAplicacion, "Valores", "Ult2", r[0]);
    ajustes.Guardar(base::kAplicacion, "Valores", "Ult1", ruta);
}

void SubirReciente(base::Ajustes& ajustes, int n) {
    auto r = Recientes(ajustes);
    if (n < 2 || n > 3) return;
    const std::string elegida = r[static_cast<std::size_t>(n - 1)];
    std::vector<std::string> resto;
    for (int i = 0; i < 3; ++i) {
        if (i != n - 1) resto.push_back(r[static_cast<std::size_t>(i)]);
    }
    ajustes.Guardar(base::kAplicacion, "Valores", "Ult1", elegida);
    ajustes.Guardar(base::kAplicacion, "Valores", "Ult2", resto[0]);
    ajustes.Guardar(base::kAplicacion, "Valores", "Ult3", resto[1]);
}

std::string TituloReciente(std::string_view ruta) {
    if (ruta.size() < 25) return std::string(ruta);
    const auto barra = ruta.find_last_of("\\/");
    std::string_view cola = barra == std::string_view::npos ? ruta : ruta.substr(barra);
    const auto punto = cola.find_last_of('.');
    if (punto != std::string_view::npos && punto > 0) cola = cola.substr(0, punto);
    return std::string(ruta.substr(0, 10)) + "..." + std::string(cola);
}

namespace {

bool DentroDe(const std::filesystem::path& ruta, const std::filesystem::path& carpeta) {
    if (carpeta.empty()) return false;
    const auto r = std::filesystem::weakly_canonical(ruta);
    const auto c = std::filesystem::weakly_canonical(carpeta);
    auto i = r.begin();
    for (auto j = c.begin(); j != c.end(); ++j, ++i) {
        if (j->empty()) continue;
        if (i == r.end() || *i != *j) return false;
    }
    return true;
}

}  // namespace

bool GuardarComo(Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
                 const std::filesystem::path& carpetaPrograma, base::Ajustes& ajustes,
                 base::Dialogo& dialogo) {
    if (!comb.base.Completa()) {
        dialogo.Mensaje(kMsgBaseIncompleta, base::Icono::Aviso);
        return false;
    }
    const auto elegida = dialogo.ArchivoParaGuardar("Guardar como", kFiltroUxd, comb.ruta);
    if (!elegida) return false;
    auto ruta = *elegida;
    if (DentroDe(ruta, carpetaPrograma)) {
        dialogo.Mensaje(kMsgDirectorioPrograma, base::Icono::Aviso);
        return false;
    }
    if (base::AWindows1252(ruta.stem().string()).size() > 15) {
        dialogo.Mensaje(kMsgNombreLargo, base::Icono::Aviso);
        return false;
    }
    if (std::filesystem::exists(ruta)) {
        if (dialogo.PreguntaSiNo(kMsgSobrescribir) != base::Respuesta::Si) return false;
    }
    comb.panel.nombre = ruta.stem().string();
    comb.ruta = ruta;
    AnotarReciente(ajustes, ruta.string());
    // La que había se sobrescribe por un temporal que se renombra encima, así no se pierde si
    // algo falla; como si se hubiera borrado, su conjunto jugado no pasa a la nueva.
    GuardarEn(comb, carpetaTrabajo, ajustes, false);
    return true;
}

bool GuardarMenu(Combinacion& comb, const std::filesystem::path& carpetaTrabajo,
                 const std::filesystem::path& carpetaPrograma, base::Ajustes& ajustes,
                 base::Dialogo& dialogo) {
    if (!comb.base.Completa()) {
        dialogo.Mensaje(kMsgBaseIncompleta, base::Icono::Aviso);
        return false;
    }
    if (base::Recortar(comb.panel.nombre).empty() || comb.ruta.empty()) {
        return GuardarComo(comb, carpetaTrabajo, carpetaPrograma, ajustes, dialogo);
    }
    Guardar(comb, carpetaTrabajo, ajustes);
    return true;
}

}  // namespace quinteva::engine
