#include "base/record_files.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "base/error.h"

namespace quinteva::base {
namespace {

// 64 KiB: cabe en la caché junto a lo que se hace con los registros.
constexpr std::size_t kBufer = 1 << 16;

std::FILE* AbrirCreando(const std::filesystem::path& ruta) {
    std::FILE* f = std::fopen(ruta.c_str(), "r+b");
    if (f == nullptr && errno == ENOENT) f = std::fopen(ruta.c_str(), "w+b");
    if (f == nullptr) FalloDeArchivo(ruta);
    return f;
}

long LongitudDe(std::FILE* f, const std::filesystem::path& ruta) {
    if (std::fseek(f, 0, SEEK_END) != 0) FalloDeArchivo(ruta);
    const long longitud = std::ftell(f);
    if (longitud < 0) FalloDeArchivo(ruta);
    return longitud;
}

[[noreturn]] void NumeroIncorrecto() { throw Error("Número de registro incorrecto"); }

}  // namespace

void FalloDeArchivo(const std::filesystem::path& ruta) {
    switch (errno) {
        case ENOSPC:
            throw Error("Disco lleno");
        case ENOENT:
            throw Error("No se encontró la ruta de acceso: " + ruta.string());
        case EACCES:
        case EROFS:
        case EPERM:
            throw Error("Permiso denegado: " + ruta.string());
        default:
            throw Error("Error de E/S en el dispositivo: " + ruta.string());
    }
}

std::int32_t CuentaRegistros(const std::filesystem::path& ruta, std::size_t longitud) {
    std::error_code error;
    const auto bytes = std::filesystem::file_size(ruta, error);
    return error ? 0 : static_cast<std::int32_t>(bytes / longitud);
}

ArchivoRegistros::ArchivoRegistros(const std::filesystem::path& ruta, std::size_t longitud)
    : archivo_(AbrirCreando(ruta)), longitud_(longitud) {}

std::int32_t ArchivoRegistros::Cuenta() const {
    return static_cast<std::int32_t>(LongitudDe(archivo_.get(), {}) / static_cast<long>(longitud_));
}

std::vector<Byte> ArchivoRegistros::Leer(std::int32_t numero) const {
    std::vector<Byte> registro(longitud_);
    Leer(numero, registro);
    return registro;
}

void ArchivoRegistros::Leer(std::int32_t numero, std::span<Byte> destino) const {
    if (numero < 1 || numero > Cuenta() || destino.size() != longitud_) NumeroIncorrecto();
    std::FILE* f = archivo_.get();
    if (std::fseek(f, static_cast<long>(numero - 1) * static_cast<long>(longitud_), SEEK_SET) !=
            0 ||
        std::fread(destino.data(), 1, longitud_, f) != longitud_) {
        FalloDeArchivo({});
    }
}

void ArchivoRegistros::Escribir(std::int32_t numero, std::span<const Byte> registro) {
    if (numero < 1 || numero > Cuenta() + 1 || registro.size() != longitud_) NumeroIncorrecto();
    std::FILE* f = archivo_.get();
    if (std::fseek(f, static_cast<long>(numero - 1) * static_cast<long>(longitud_), SEEK_SET) !=
            0 ||
        std::fwrite(registro.data(), 1, longitud_, f) != longitud_ || std::fflush(f) != 0) {
        FalloDeArchivo({});
    }
}

void ArchivoRegistros::Anadir(std::span<const Byte> registro) { Escribir(Cuenta() + 1, registro); }

void ArchivoRegistros::Cerrar() {
    if (std::fclose(archivo_.release()) != 0) FalloDeArchivo({});
}

AnexadorRegistros::AnexadorRegistros(const std::filesystem::path& ruta, std::size_t longitud)
    : ruta_(ruta), longitud_(longitud), cuenta_(0), archivo_(nullptr, &std::fclose) {
    archivo_.reset(AbrirCreando(ruta));
    const long bytes = LongitudDe(archivo_.get(), ruta);
    cuenta_ = static_cast<std::int32_t>(bytes / static_cast<long>(longitud));
    // Un resto de bytes sueltos queda detrás: el registro nuevo va en cuenta + 1, como en Escribir.
    if (std::fseek(archivo_.get(), static_cast<long>(cuenta_) * static_cast<long>(longitud),
                   SEEK_SET) != 0) {
        FalloDeArchivo(ruta);
    }
    // Al menos un registro cabe siempre.
    bufer_.resize(std::max(kBufer, longitud));
}

AnexadorRegistros::~AnexadorRegistros() {
    if (archivo_ && usados_ > 0) {
        std::fwrite(bufer_.data(), 1, usados_, archivo_.get());
    }
}

void AnexadorRegistros::AnadirVolcando(std::span<const Byte> registro) {
    if (registro.size() != longitud_) NumeroIncorrecto();
    if (usados_ + longitud_ > bufer_.size()) Volcar();
    std::memcpy(bufer_.data() + usados_, registro.data(), longitud_);
    usados_ += longitud_;
    ++cuenta_;
}

void AnexadorRegistros::Volcar() {
    const std::size_t usados = std::exchange(usados_, 0);
    if (usados > 0 && std::fwrite(bufer_.data(), 1, usados, archivo_.get()) != usados) {
        FalloDeArchivo(ruta_);
    }
}

void AnexadorRegistros::Cerrar() {
    Volcar();
    if (std::fclose(archivo_.release()) != 0) FalloDeArchivo(ruta_);
}

LectorRegistros::LectorRegistros(const std::filesystem::path& ruta, std::size_t longitud)
    : ruta_(ruta), longitud_(longitud), archivo_(std::fopen(ruta.c_str(), "rb"), &std::fclose) {
    if (!archivo_) FalloDeArchivo(ruta);
    cuenta_ =
        static_cast<std::int32_t>(LongitudDe(archivo_.get(), ruta) / static_cast<long>(longitud));
    if (std::fseek(archivo_.get(), 0, SEEK_SET) != 0) FalloDeArchivo(ruta);
}

std::span<const Byte> LectorRegistros::Rellenar() {
    if (leidos_ >= cuenta_) return {};
    // El búfer se rellena con registros enteros, así que siempre se ha gastado entero.
    bufer_.resize(std::max<std::size_t>(1, kBufer / longitud_) * longitud_);
    const std::size_t leidos = std::fread(bufer_.data(), 1, bufer_.size(), archivo_.get());
    if (leidos < bufer_.size() && std::ferror(archivo_.get())) FalloDeArchivo(ruta_);
    bufer_.resize(leidos);
    posicion_ = 0;
    if (bufer_.size() < longitud_) return {};
    return Tomar();
}

}  // namespace quinteva::base
