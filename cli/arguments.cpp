#include "cli/arguments.h"

#include <algorithm>
#include <charconv>
#include <sstream>

#include "base/text1252.h"
#include "base/working_folder.h"

namespace quinteva::cli {

Argumentos::Argumentos(const std::vector<std::string>& palabras,
                       const OpcionesAdmitidas& admitidas) {
    for (std::size_t i = 0; i < palabras.size(); ++i) {
        const std::string& palabra = palabras[i];
        if (!palabra.starts_with("--")) {
            posicionales_.push_back(palabra);
            continue;
        }
        const std::string nombre = palabra.substr(2);
        if (nombre == "json" || admitidas.marcas.contains(nombre)) {
            marcas_.insert(nombre);
        } else if (nombre == "carpeta" || admitidas.conValor.contains(nombre)) {
            if (i + 1 >= palabras.size()) throw ErrorDeUso{"Falta el valor de " + palabra};
            valores_[nombre] = palabras[++i];
        } else {
            throw ErrorDeUso{"Opción desconocida: " + palabra};
        }
    }
}

std::optional<std::string> Argumentos::Valor(std::string_view opcion) const {
    const auto v = valores_.find(opcion);
    if (v == valores_.end()) return std::nullopt;
    return v->second;
}

void Argumentos::ExigirPosicionales(std::size_t n, std::string_view uso) const {
    if (posicionales_.size() != n) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
}

std::string Argumentos::Exigir(std::string_view opcion, std::string_view uso) const {
    const auto valor = Valor(opcion);
    if (!valor) {
        throw ErrorDeUso{"Falta --" + std::string(opcion) + "\nUso: quinteva-cli " +
                         std::string(uso)};
    }
    return *valor;
}

int Argumentos::Division(std::string_view uso) const {
    const std::string division = Exigir("division", uso);
    if (division != "1" && division != "2") {
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
    }
    return division == "1" ? 1 : 2;
}

std::optional<std::uint64_t> Argumentos::Semilla() const {
    const auto texto = Valor("semilla");
    if (!texto) return std::nullopt;
    std::uint64_t semilla = 0;
    const auto [fin, error] =
        std::from_chars(texto->data(), texto->data() + texto->size(), semilla);
    if (texto->empty() || error != std::errc{} || fin != texto->data() + texto->size()) {
        throw ErrorDeUso{"--semilla es un número entero: " + *texto};
    }
    return semilla;
}

std::filesystem::path Argumentos::CarpetaTrabajo() const {
    const auto carpeta = Valor("carpeta");
    return base::ResolverCarpetaTrabajo(carpeta ? std::optional<std::filesystem::path>(*carpeta)
                                                : std::nullopt);
}

std::optional<double> NumeroDecimal(std::string texto) {
    std::replace(texto.begin(), texto.end(), ',', '.');
    try {
        std::size_t fin = 0;
        const double valor = std::stod(texto, &fin);
        if (fin == texto.size()) return valor;
    } catch (const std::exception&) {
    }
    return std::nullopt;
}

std::vector<std::string> SepararPorComas(const std::string& lista) {
    std::vector<std::string> partes;
    std::istringstream texto(lista);
    for (std::string parte; std::getline(texto, parte, ',');) {
        partes.emplace_back(base::Recortar(parte));
    }
    return partes;
}

}  // namespace quinteva::cli
