#include "syndicates/pena_files.h"

#include <algorithm>

#include "base/error.h"
#include "base/record_files.h"
#include "seasons/season_folder.h"
#include "syndicates/pena_store.h"

namespace quinteva::syndicates {
namespace {

using namespace base;

// Un campo de texto: dónde empieza y su ancho.
struct Campo {
    std::size_t posicion;
    std::size_t ancho;
};

template <std::size_t N, typename Registro>
void PonerTextos(std::span<Byte> b, const std::array<Campo, N>& campos,
                 const std::array<std::string Registro::*, N>& miembros, const Registro& r) {
    for (std::size_t i = 0; i < N; ++i)
        PonerTexto(b, campos[i].posicion, campos[i].ancho, r.*miembros[i]);
}

template <std::size_t N, typename Registro>
void TomarTextos(std::span<const Byte> b, const std::array<Campo, N>& campos,
                 const std::array<std::string Registro::*, N>& miembros, Registro& r) {
    for (std::size_t i = 0; i < N; ++i)
        r.*miembros[i] = TomarTexto(b, campos[i].posicion, campos[i].ancho);
}

constexpr std::array<Campo, 11> kCamposPena = {{{0, 50},
                                                {50, 15},
                                                {65, 5},
                                                {70, 35},
                                                {105, 5},
                                                {110, 35},
                                                {145, 25},
                                                {170, 9},
                                                {179, 40},
                                                {219, 50},
                                                {269, 50}}};
const std::array<std::string RegPena::*, 11> kMiembrosPena = {
    &RegPena::nombre,       &RegPena::nombreReducido, &RegPena::temporada, &RegPena::direccion,
    &RegPena::codigoPostal, &RegPena::ciudad,         &RegPena::provincia, &RegPena::telefono,
    &RegPena::titular,      &RegPena::email,          &RegPena::web};

constexpr std::array<Campo, 11> kCamposApostante = {{{0, 5},
                                                     {5, 35},
                                                     {40, 9},
                                                     {49, 35},
                                                     {84, 5},
                                                     {89, 35},
                                                     {124, 25},
                                                     {149, 9},
                                                     {158, 9},
                                                     {167, 50},
                                                     {217, 20}}};
const std::array<std::string RegApostante::*, 11> kMiembrosApostante = {
    &RegApostante::temporada, &RegApostante::nombre,       &RegApostante::nif,
    &RegApostante::direccion, &RegApostante::codigoPostal, &RegApostante::ciudad,
    &RegApostante::provincia, &RegApostante::telefono,     &RegApostante::movil,
    &RegApostante::email,     &RegApostante::cuenta};
constexpr std::size_t kCuotas = 237;
constexpr std::size_t kObtenido = kCuotas + 4 * RegApostante::kImportes;

constexpr std::size_t kAcertadas = 25;
constexpr std::size_t kPremios = kAcertadas + 2 * RegJornadaPena::kCategorias;

// "aa/aa" a "Temporada aa-aa".
std::string NombreCarpeta(std::string_view temporada) {
    std::string nombre(temporada);
    std::replace(nombre.begin(), nombre.end(), '/', '-');
    return "Temporada " + nombre;
}

}  // namespace

std::array<Byte, RegPena::kLongitud> RegPena::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerTextos(b, kCamposPena, kMiembrosPena, *this);
    return b;
}

RegPena RegPena::DeBytes(std::span<const Byte> b) {
    RegPena r;
    TomarTextos(b, kCamposPena, kMiembrosPena, r);
    return r;
}

std::array<Byte, RegJornadaPena::kLongitud> RegJornadaPena::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerTexto(b, 0, 5, temporada);
    PonerInt16(b, 5, jornada);
    std::copy(reservado.begin(), reservado.end(), b.begin() + 7);
    PonerInt16(b, 15, cerrada);
    PonerFloat32(b, 17, numColumnas);
    PonerFloat32(b, 21, importe);
    for (std::size_t i = 0; i < kCategorias; ++i) {
        PonerInt16(b, kAcertadas + 2 * i, acertadas[i]);
        PonerFloat32(b, kPremios + 4 * i, premios[i]);
    }
    PonerFloat32(b, 61, totalCobrado);
    PonerFloat32(b, 65, gastos);
    PonerFloat32(b, 69, aRepartir);
    return b;
}

RegJornadaPena RegJornadaPena::DeBytes(std::span<const Byte> b) {
    RegJornadaPena r;
    r.temporada = TomarTexto(b, 0, 5);
    r.jornada = TomarInt16(b, 5);
    std::copy_n(b.begin() + 7, r.reservado.size(), r.reservado.begin());
    r.cerrada = TomarInt16(b, 15);
    r.numColumnas = TomarFloat32(b, 17);
    r.importe = TomarFloat32(b, 21);
    for (std::size_t i = 0; i < kCategorias; ++i) {
        r.acertadas[i] = TomarInt16(b, kAcertadas + 2 * i);
        r.premios[i] = TomarFloat32(b, kPremios + 4 * i);
    }
    r.totalCobrado = TomarFloat32(b, 61);
    r.gastos = TomarFloat32(b, 65);
    r.aRepartir = TomarFloat32(b, 69);
    return r;
}

std::array<Byte, RegApostante::kLongitud> RegApostante::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerTextos(b, kCamposApostante, kMiembrosApostante, *this);
    for (std::size_t j = 0; j < kImportes; ++j) {
        PonerFloat32(b, kCuotas + 4 * j, cuotas[j]);
        PonerFloat32(b, kObtenido + 4 * j, obtenido[j]);
    }
    return b;
}

RegApostante RegApostante::DeBytes(std::span<const Byte> b) {
    RegApostante r;
    TomarTextos(b, kCamposApostante, kMiembrosApostante, r);
    for (std::size_t j = 0; j < kImportes; ++j) {
        r.cuotas[j] = TomarFloat32(b, kCuotas + 4 * j);
        r.obtenido[j] = TomarFloat32(b, kObtenido + 4 * j);
    }
    return r;
}

std::filesystem::path CarpetaPenasTemporada(const std::filesystem::path& carpetaTrabajo,
                                            std::string_view temporada) {
    return carpetaTrabajo / kCarpetaPenas / NombreCarpeta(temporada);
}

std::string TemporadaEnCurso(const std::filesystem::path& carpetaTrabajo) {
    const auto carpeta = seasons::TemporadaActual(carpetaTrabajo);
    const std::string temporada = carpeta ? seasons::TemporadaDeCarpeta(*carpeta) : std::string();
    if (temporada.empty()) throw base::Error("No hay temporada en curso");
    return temporada;
}

std::filesystem::path CarpetaDePenas(const std::filesystem::path& carpetaTrabajo) {
    return CarpetaPenasTemporada(carpetaTrabajo, TemporadaEnCurso(carpetaTrabajo));
}

std::filesystem::path ArchivoPena(const std::filesystem::path& rutaPena,
                                  std::string_view extension) {
    return rutaPena.string() + std::string(extension);
}

std::filesystem::path CrearPena(const std::filesystem::path& carpetaTrabajo, RegPena pena,
                                const base::Volcar& volcar) {
    std::erase(pena.nombreReducido, ' ');
    const auto carpeta = CarpetaPenasTemporada(carpetaTrabajo, pena.temporada);
    std::filesystem::create_directories(carpeta);
    const ArchivosPena archivos(carpeta / pena.nombreReducido, volcar);
    RegJornadaPena jornada;
    jornada.temporada = pena.temporada;
    archivos.GuardarJornadas(std::vector<RegJornadaPena>(kJornadasPena, jornada));
    archivos.GuardarApostantes({});
    // El ".nmp" el último: sin él no hay Peña que abrir.
    archivos.GuardarPena(pena);
    return archivos.Ruta();
}

}  // namespace quinteva::syndicates
