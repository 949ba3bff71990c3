#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include "base/bytes.h"

namespace quinteva::base {

// Archivo de registros de longitud fija, numerados desde 1, sin cabecera. Se abre creando un
// archivo vacío si no existe; la cuenta es la longitud dividida por la del registro, redondeada
// hacia abajo, así que unos bytes sobrantes al final no se ven. Se escribe hasta cuenta + 1.
class ArchivoRegistros {
  public:
    ArchivoRegistros(const std::filesystem::path& ruta, std::size_t longitudRegistro);

    std::int32_t Cuenta() const;
    std::size_t LongitudRegistro() const { return longitud_; }

    std::vector<Byte> Leer(std::int32_t numero) const;
    void Leer(std::int32_t numero, std::span<Byte> destino) const;
    void Escribir(std::int32_t numero, std::span<const Byte> registro);
    // Escribe en cuenta + 1.
    void Anadir(std::span<const Byte> registro);

    // Cierra comprobando que todo llegó al disco; el destructor cierra sin comprobar.
    void Cerrar();

  private:
    struct CerrarArchivo {
        void operator()(std::FILE* f) const { std::fclose(f); }
    };
    std::unique_ptr<std::FILE, CerrarArchivo> archivo_;
    std::size_t longitud_;
};

// Añade registros al final con un búfer grande, para el trabajo masivo (la generación escribe
// millones). Deja en el disco los mismos bytes que ArchivoRegistros::Anadir uno a uno.
class AnexadorRegistros {
  public:
    AnexadorRegistros(const std::filesystem::path& ruta, std::size_t longitudRegistro);
    ~AnexadorRegistros();
    AnexadorRegistros(const AnexadorRegistros&) = delete;
    AnexadorRegistros& operator=(const AnexadorRegistros&) = delete;

    void Anadir(std::span<const Byte> registro) {
        if (registro.size() != longitud_ || usados_ + longitud_ > bufer_.size()) {
            AnadirVolcando(registro);
            return;
        }
        std::memcpy(bufer_.data() + usados_, registro.data(), longitud_);
        usados_ += longitud_;
        ++cuenta_;
    }
    // Registros en el archivo, contando los que aún están en el búfer.
    std::int32_t Cuenta() const { return cuenta_; }
    // Vacía el búfer al disco; lanza Error si el disco no los aceptó.
    void Cerrar();

  private:
    void AnadirVolcando(std::span<const Byte> registro);
    void Volcar();

    std::filesystem::path ruta_;
    std::size_t longitud_;
    std::int32_t cuenta_;
    std::vector<Byte> bufer_;
    std::size_t usados_ = 0;  // bytes del búfer que esperan a escribirse
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> archivo_;
};

// Lee un archivo de registros de principio a fin con un búfer grande, para los recorridos
// masivos (la reducción lee millones). No crea el archivo: si falta, Error.
class LectorRegistros {
  public:
    LectorRegistros(const std::filesystem::path& ruta, std::size_t longitudRegistro);

    std::int32_t Cuenta() const { return cuenta_; }
    // El siguiente registro, dentro del búfer (válido hasta la siguiente llamada); vacío cuando
    // ya no quedan.
    std::span<const Byte> Siguiente() {
        if (leidos_ < cuenta_ && posicion_ + longitud_ <= bufer_.size()) return Tomar();
        return Rellenar();
    }

  private:
    std::span<const Byte> Tomar() {
        const std::span<const Byte> registro(bufer_.data() + posicion_, longitud_);
        posicion_ += longitud_;
        ++leidos_;
        return registro;
    }
    // Llena el búfer de nuevo y toma el primero; vacío si no quedan.
    std::span<const Byte> Rellenar();

    std::filesystem::path ruta_;
    std::size_t longitud_;
    std::int32_t cuenta_ = 0;
    std::int32_t leidos_ = 0;
    std::vector<Byte> bufer_;
    std::size_t posicion_ = 0;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> archivo_;
};

// Registros de un archivo sin abrirlo ni crearlo: 0 si no existe.
std::int32_t CuentaRegistros(const std::filesystem::path& ruta, std::size_t longitudRegistro);

// Lanza el Error que describe el último fallo de E/S (disco lleno, permiso...).
[[noreturn]] void FalloDeArchivo(const std::filesystem::path& ruta);

}  // namespace quinteva::base

namespace quinteva::base {

// Archivo de registros de un tipo con kLongitud, ABytes() y DeBytes(span).
template <typename Registro>
class ArchivoDe {
  public:
    explicit ArchivoDe(const std::filesystem::path& ruta) : archivo_(ruta, Registro::kLongitud) {}

    std::int32_t Cuenta() const { return archivo_.Cuenta(); }
    Registro Leer(std::int32_t numero) const {
        std::array<Byte, Registro::kLongitud> bytes{};
        archivo_.Leer(numero, bytes);
        return Registro::DeBytes(bytes);
    }
    void Escribir(std::int32_t numero, const Registro& registro) {
        archivo_.Escribir(numero, registro.ABytes());
    }
    void Anadir(const Registro& registro) { archivo_.Anadir(registro.ABytes()); }
    void Cerrar() { archivo_.Cerrar(); }

  private:
    ArchivoRegistros archivo_;
};

// Todos los registros de un archivo de un tipo con kLongitud y DeBytes, de una lectura; si el
// archivo falta, ninguno (no se crea).
template <typename Registro>
std::vector<Registro> LeerTodos(const std::filesystem::path& ruta) {
    std::vector<Registro> registros;
    if (!std::filesystem::exists(ruta)) return registros;
    LectorRegistros lector(ruta, Registro::kLongitud);
    registros.reserve(static_cast<std::size_t>(lector.Cuenta()));
    for (auto bytes = lector.Siguiente(); !bytes.empty(); bytes = lector.Siguiente()) {
        registros.push_back(Registro::DeBytes(bytes));
    }
    return registros;
}

}  // namespace quinteva::base
