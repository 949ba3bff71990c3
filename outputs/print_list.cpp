#include "outputs/print_list.h"

#include <algorithm>

namespace quinteva::outputs {

namespace {

constexpr float kTwipsPorPunto = 20.0F;
constexpr float kInterlineado = 1.15F;

}  // namespace

void Impresion::Fuente(std::string_view nombre, int tamano, bool negrita) {
    fuente_ = nombre;
    tamano_ = tamano;
    negrita_ = negrita;
}

void Impresion::Texto(float x, float y, std::string_view texto) {
    textos_.push_back({pagina_, std::string(texto), fuente_, tamano_, negrita_, x, y});
    y_ = y + AltoDeLinea(tamano_);
}

void Impresion::Linea(float x1, float y1, float x2, float y2, bool punteado) {
    trazos_.push_back({pagina_, x1, y1, x2, y2, punteado});
}

void Impresion::NuevaPagina() {
    if (Paginas() == pagina_) ++pagina_;
}

void Impresion::Reservar(std::size_t textos, std::size_t trazos) {
    textos_.reserve(textos);
    trazos_.reserve(trazos);
}

namespace {

template <typename T>
std::span<const T> DePagina(const std::vector<T>& todos, int pagina) {
    const auto antes = [](const T& elemento, int p) { return elemento.pagina < p; };
    const auto primero = std::lower_bound(todos.begin(), todos.end(), pagina, antes);
    const auto ultimo = std::lower_bound(primero, todos.end(), pagina + 1, antes);
    return {primero, ultimo};
}

}  // namespace

std::span<const TextoImpreso> Impresion::TextosDePagina(int pagina) const {
    return DePagina(textos_, pagina);
}

std::span<const TrazoImpreso> Impresion::TrazosDePagina(int pagina) const {
    return DePagina(trazos_, pagina);
}

int Impresion::Paginas() const {
    int paginas = 0;
    if (!textos_.empty()) paginas = textos_.back().pagina;
    if (!trazos_.empty()) paginas = std::max(paginas, trazos_.back().pagina);
    return paginas;
}

float Impresion::AltoDeLinea(int tamano) {
    return static_cast<float>(tamano) * kTwipsPorPunto * kInterlineado;
}

}  // namespace quinteva::outputs
