#include "base/atomic_write.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <vector>

#include "base/error.h"
#include "base/record_files.h"

namespace quinteva::base {

std::filesystem::path RutaTemporalJunto(const std::filesystem::path& ruta) {
    auto temporal = ruta;
    temporal += ".nuevo";
    return temporal;
}

void Reemplazar(const std::filesystem::path& temporal, const std::filesystem::path& destino) {
    std::error_code error;
    std::filesystem::rename(temporal, destino, error);
    if (error) {
        std::filesystem::remove(temporal, error);
        throw Error("No se pudo reemplazar el archivo " + destino.string());
    }
}

bool VolcarEnDisco(std::FILE* archivo, std::string_view bytes) {
    // Un contenido vacío puede no tener datos: no se pasa un puntero nulo a fwrite.
    return bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), archivo) == bytes.size();
}

void EscribirAtomico(const std::filesystem::path& ruta, std::string_view contenido,
                     const Volcar& volcar) {
    const auto temporal = RutaTemporalJunto(ruta);
    {
        std::unique_ptr<std::FILE, int (*)(std::FILE*)> f(std::fopen(temporal.c_str(), "wb"),
                                                          &std::fclose);
        if (!f) FalloDeArchivo(temporal);
        const bool escrito = volcar(f.get(), contenido);
        if (!escrito || std::fclose(f.release()) != 0) {
            const int causa = errno;
            std::error_code ignorado;
            std::filesystem::remove(temporal, ignorado);
            errno = causa;
            FalloDeArchivo(temporal);
        }
    }
    Reemplazar(temporal, ruta);
}

void CopiarAtomico(const std::filesystem::path& origen, const std::filesystem::path& ruta,
                   std::uintmax_t bytes) {
    const auto temporal = RutaTemporalJunto(ruta);
    std::error_code error;
    std::filesystem::copy_file(origen, temporal, std::filesystem::copy_options::overwrite_existing,
                               error);
    if (!error) {
        const auto copiados = std::filesystem::file_size(temporal, error);
        if (!error && copiados != bytes) std::filesystem::resize_file(temporal, bytes, error);
    }
    if (error) {
        std::error_code ignorado;
        std::filesystem::remove(temporal, ignorado);
        errno = error.value();
        FalloDeArchivo(temporal);
    }
    Reemplazar(temporal, ruta);
}

void CopiarAtomicoViendo(const std::filesystem::path& origen, const std::filesystem::path& ruta,
                         const VerTrozo& ver) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> entrada(std::fopen(origen.c_str(), "rb"),
                                                            &std::fclose);
    if (!entrada) FalloDeArchivo(origen);
    const auto temporal = RutaTemporalJunto(ruta);
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> salida(std::fopen(temporal.c_str(), "wb"),
                                                           &std::fclose);
    if (!salida) FalloDeArchivo(temporal);
    auto fallo = [&](const std::filesystem::path& culpable) {
        const int causa = errno;
        salida.reset();
        std::error_code ignorado;
        std::filesystem::remove(temporal, ignorado);
        errno = causa;
        FalloDeArchivo(culpable);
    };
    std::vector<unsigned char> trozo(1 << 20);
    while (true) {
        const std::size_t leidos = std::fread(trozo.data(), 1, trozo.size(), entrada.get());
        if (leidos == 0) break;
        ver({trozo.data(), leidos});
        if (!VolcarEnDisco(salida.get(), {reinterpret_cast<const char*>(trozo.data()), leidos})) {
            fallo(temporal);
        }
    }
    if (std::ferror(entrada.get())) fallo(origen);
    if (std::fclose(salida.release()) != 0) fallo(temporal);
    Reemplazar(temporal, ruta);
}

void BorrarArchivo(const std::filesystem::path& ruta) {
    std::error_code error;
    std::filesystem::remove(ruta, error);
    if (error) throw Error("No se pudo borrar " + ruta.string());
}

}  // namespace quinteva::base
