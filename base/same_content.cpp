#include "base/same_content.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>
#include <vector>

namespace quinteva::base {

namespace {

using Archivo = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

constexpr std::size_t kTrozo = std::size_t{1} << 20;

Archivo AbrirParaLeer(const std::filesystem::path& ruta) {
    return Archivo(std::fopen(ruta.c_str(), "rb"), &std::fclose);
}

}  // namespace

bool MismoContenido(const std::filesystem::path& origen, const std::filesystem::path& copia,
                    std::uintmax_t bytes) {
    std::error_code error;
    if (std::filesystem::file_size(copia, error) != bytes || error) return false;
    const Archivo a = AbrirParaLeer(origen);
    const Archivo b = AbrirParaLeer(copia);
    if (!a || !b) return false;
    std::vector<unsigned char> trozoA(kTrozo);
    std::vector<unsigned char> trozoB(kTrozo);
    while (bytes > 0) {
        const auto pedir = static_cast<std::size_t>(std::min<std::uintmax_t>(kTrozo, bytes));
        if (std::fread(trozoA.data(), 1, pedir, a.get()) != pedir ||
            std::fread(trozoB.data(), 1, pedir, b.get()) != pedir ||
            std::memcmp(trozoA.data(), trozoB.data(), pedir) != 0) {
            return false;
        }
        bytes -= pedir;
    }
    return true;
}

}  // namespace quinteva::base
