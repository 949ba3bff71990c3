#include "syndicates/pena_store.h"

#include "base/error.h"
#include "base/record_files.h"

namespace quinteva::syndicates {

ArchivosPena::ArchivosPena(std::filesystem::path ruta, base::Volcar volcar)
    : ruta_(std::move(ruta)), volcar_(std::move(volcar)) {}

std::filesystem::path ArchivosPena::Archivo(std::string_view extension) const {
    return ArchivoPena(ruta_, extension);
}

template <typename Registro>
void ArchivosPena::GuardarTodos(std::string_view extension,
                                const std::vector<Registro>& registros) const {
    std::string bytes;
    bytes.reserve(registros.size() * Registro::kLongitud);
    for (const Registro& r : registros) {
        const auto b = r.ABytes();
        bytes.append(reinterpret_cast<const char*>(b.data()), b.size());
    }
    base::EscribirAtomico(Archivo(extension), bytes, volcar_);
}

RegPena ArchivosPena::LeerPena() const {
    const auto nmp = Archivo(kExtPena);
    const auto registros = base::LeerTodos<RegPena>(nmp);
    if (registros.empty()) throw base::Error("No existe la Peña " + nmp.string());
    return registros.front();
}

void ArchivosPena::GuardarPena(const RegPena& pena) const {
    GuardarTodos(kExtPena, std::vector<RegPena>{pena});
}

std::vector<RegJornadaPena> ArchivosPena::LeerJornadas() const {
    auto jornadas = base::LeerTodos<RegJornadaPena>(Archivo(kExtJornadas));
    if (jornadas.size() < static_cast<std::size_t>(kJornadasPena)) {
        RegJornadaPena vacia;
        vacia.temporada = LeerPena().temporada;
        jornadas.resize(kJornadasPena, vacia);
    }
    jornadas.resize(kJornadasPena);
    return jornadas;
}

RegJornadaPena ArchivosPena::LeerJornada(int jornada) const {
    if (jornada < 1 || jornada > kJornadasPena) {
        throw base::Error("Número de registro incorrecto");
    }
    return LeerJornadas()[static_cast<std::size_t>(jornada - 1)];
}

void ArchivosPena::GuardarJornada(int jornada, const RegJornadaPena& registro) const {
    auto jornadas = LeerJornadas();
    jornadas.at(static_cast<std::size_t>(jornada - 1)) = registro;
    GuardarJornadas(jornadas);
}

void ArchivosPena::GuardarJornadas(const std::vector<RegJornadaPena>& jornadas) const {
    GuardarTodos(kExtJornadas, jornadas);
}

std::vector<RegApostante> ArchivosPena::LeerApostantes() const {
    return base::LeerTodos<RegApostante>(Archivo(kExtApostantes));
}

void ArchivosPena::GuardarApostantes(const std::vector<RegApostante>& apostantes) const {
    GuardarTodos(kExtApostantes, apostantes);
}

}  // namespace quinteva::syndicates
