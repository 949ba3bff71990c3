#include "outputs/json_bag.h"

#include <algorithm>
#include <cstdio>

#include "outputs/utf16.h"

namespace quinteva::outputs {
namespace {

ErrorJson ErrorDeClave() { return ErrorJson(5, "Invalid procedure call or argument"); }
ErrorJson ErrorDeIndice() { return ErrorJson(9, "Subscript out of range"); }

char Minuscula(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IgualSinMayusculas(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Minuscula(x) == Minuscula(y); });
}

}  // namespace

JsonBag::JsonBag() { Clear(); }

JsonBag::~JsonBag() = default;

void JsonBag::IsArray(bool esArray) {
    if (!valores_.empty()) {
        throw ErrorJson(5, "Cannot change IsArray setting after items have been added");
    }
    esArray_ = esArray;
}

void JsonBag::Clear() {
    nombres_.clear();
    valores_.clear();
    indice_.clear();
    esArray_ = false;
}

std::size_t JsonBag::Posicion(std::int32_t indice) const {
    if (indice < 1 || indice > Count()) throw ErrorDeIndice();
    return static_cast<std::size_t>(indice - 1);
}

std::optional<std::size_t> JsonBag::Buscar(const std::string& nombre) const {
    if (indice_.empty()) {
        const auto encontrado = std::find(nombres_.begin(), nombres_.end(), nombre);
        if (encontrado == nombres_.end()) return std::nullopt;
        return static_cast<std::size_t>(encontrado - nombres_.begin());
    }
    const auto encontrado = indice_.find(nombre);
    if (encontrado == indice_.end()) return std::nullopt;
    return encontrado->second;
}

std::size_t JsonBag::PosicionDeNombre(const std::string& nombre) const {
    const auto posicion = Buscar(nombre);
    if (!posicion) throw ErrorDeClave();
    return *posicion;
}

void JsonBag::Quitar(std::size_t posicion) {
    valores_.erase(valores_.begin() + static_cast<std::ptrdiff_t>(posicion));
    if (esArray_) return;
    if (!indice_.empty()) {
        indice_.erase(nombres_[posicion]);
        for (auto& [nombre, lugar] : indice_) {
            if (lugar > posicion) --lugar;
        }
    }
    nombres_.erase(nombres_.begin() + static_cast<std::ptrdiff_t>(posicion));
}

void JsonBag::Anadir(std::string nombre, Valor valor) {
    // Un objeto del archivo oficial tiene de seis a ocho miembros: una sola reserva.
    if (valores_.empty()) {
        valores_.reserve(8);
        if (!esArray_) nombres_.reserve(8);
    }
    if (!esArray_) {
        nombres_.push_back(std::move(nombre));
        if (!indice_.empty()) {
            indice_.emplace(nombres_.back(), nombres_.size() - 1);
        } else if (nombres_.size() >= kMiembrosSinIndice) {
            for (std::size_t i = 0; i < nombres_.size(); ++i) indice_.emplace(nombres_[i], i);
        }
    }
    valores_.push_back(std::move(valor));
}

const Valor& JsonBag::Item(const Clave& clave) const {
    if (std::holds_alternative<std::monostate>(clave)) {
        throw ErrorJson(94, "Key must be String or an index)");
    }
    if (const auto* nombre = std::get_if<std::string>(&clave)) {
        if (esArray_) throw ErrorJson(5, "Array values can only be acessed by index");
        return valores_[PosicionDeNombre(*nombre)];
    }
    return valores_[Posicion(std::get<std::int32_t>(clave))];
}

void JsonBag::Item(const Clave& clave, Valor valor) {
    if (esArray_) {
        if (std::holds_alternative<std::string>(clave)) {
            throw ErrorJson(5, "Array values can only be changed by index or added via Null");
        }
        const auto* indice = std::get_if<std::int32_t>(&clave);
        if (indice == nullptr || *indice > Count()) {
            Anadir({}, std::move(valor));
            return;
        }
        // Se quita el elemento y se inserta delante del que ocupa ahora su sitio: con el último
        // no queda ninguno, la inserción falla y el elemento se pierde. Así se deja.
        const std::size_t posicion = Posicion(*indice);
        Quitar(posicion);
        if (posicion >= valores_.size()) throw ErrorDeIndice();
        valores_.insert(valores_.begin() + static_cast<std::ptrdiff_t>(posicion), std::move(valor));
        return;
    }
    const auto* nombre = std::get_if<std::string>(&clave);
    if (nombre == nullptr) {
        throw ErrorJson(5, "Object values can only be changed or added by key not by index");
    }
    // Un nombre repetido se quita y se añade de nuevo: pasa al final del orden.
    if (const auto existente = Buscar(*nombre)) Quitar(*existente);
    Anadir(*nombre, std::move(valor));
}

const std::string& JsonBag::Name(std::int32_t indice) const {
    if (esArray_) throw ErrorJson(5, "Array items do not have names");
    return nombres_[Posicion(indice)];
}

std::vector<std::string> JsonBag::Version() { return {"1.6"}; }

JsonBag& JsonBag::Nueva(const Clave& clave, bool esArray) {
    auto nueva = std::make_shared<JsonBag>();
    nueva->IsArray(esArray);
    JsonBag& referencia = *nueva;
    Item(clave, std::move(nueva));
    return referencia;
}

JsonBag& JsonBag::AddNewArray(const Clave& clave) { return Nueva(clave, true); }

JsonBag& JsonBag::AddNewObject(const Clave& clave) { return Nueva(clave, false); }

bool JsonBag::Exists(const Clave& clave) const {
    // Se busca la clave tal cual en la lista de nombres, que guarda claves de búsqueda: un nombre
    // solo no se encuentra. En un array la lista no existe y todo es falso.
    if (esArray_) return false;
    if (const auto* indice = std::get_if<std::int32_t>(&clave)) {
        return *indice >= 1 && *indice <= Count();
    }
    const auto* texto = std::get_if<std::string>(&clave);
    if (texto == nullptr) return false;
    return std::any_of(nombres_.begin(), nombres_.end(), [&](const std::string& nombre) {
        return IgualSinMayusculas(ClaveDeBusqueda(nombre), *texto);
    });
}

const std::vector<std::string>& JsonBag::NewEnum() const {
    if (esArray_) throw ErrorJson(5, "Arrays must be iterated using index values");
    return nombres_;
}

void JsonBag::Remove(const Clave& clave) {
    if (const auto* nombre = std::get_if<std::string>(&clave)) {
        if (esArray_) throw ErrorJson(5, "Must remove by index for arrays");
        if (const auto encontrado = Buscar(*nombre)) Quitar(*encontrado);
        return;
    }
    // Solo un índice menor que Count: el último no se puede quitar así y no pasa nada.
    const auto* indice = std::get_if<std::int32_t>(&clave);
    if (indice == nullptr || *indice >= Count()) return;
    Quitar(Posicion(*indice));
}

std::string JsonBag::ClaveDeBusqueda(std::string_view nombre) {
    // FNV-1a de 32 bits sobre los bytes UTF-16 (little-endian) del nombre.
    std::uint32_t resumen = 2166136261U;
    for (const char16_t unidad : AUtf16(nombre)) {
        for (const int desplazamiento : {0, 8}) {
            resumen ^= static_cast<std::uint32_t>((unidad >> desplazamiento) & 0xFF);
            resumen *= 16777619U;
        }
    }
    char hex[9];
    std::snprintf(hex, sizeof hex, "%08X", resumen);
    return hex + std::string(nombre);
}

JsonBag& JsonBag::Hija(const Clave& clave) const {
    const auto* hija = std::get_if<std::shared_ptr<JsonBag>>(&Item(clave));
    if (hija == nullptr || !*hija) throw ErrorJson(13, "Type mismatch");
    return **hija;
}

}  // namespace quinteva::outputs
