#include <iostream>
#include <string>
#include <vector>

#include "base/error.h"
#include "cli/commands.h"

namespace {

using quinteva::cli::Subcomando;

void Ayuda(std::ostream& salida) {
    salida << "Uso: quinteva-cli SUBCOMANDO [ARGUMENTOS] [--carpeta DIR] [--json]\n\n"
              "La carpeta de trabajo es --carpeta, si no la variable QUINTEVA_CARPETA, si no la "
              "del usuario.\n\nSubcomandos:\n";
    for (const Subcomando& s : quinteva::cli::Subcomandos()) {
        salida << "  " << s.uso << "\n      " << s.descripcion << '\n';
    }
}

const Subcomando* Buscar(std::string_view nombre) {
    for (const Subcomando& s : quinteva::cli::Subcomandos()) {
        if (s.nombre == nombre) return &s;
    }
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> palabras(argv + 1, argv + argc);
    if (palabras.empty() || palabras[0] == "--help" || palabras[0] == "-h" ||
        palabras[0] == "ayuda") {
        Ayuda(palabras.empty() ? std::cerr : std::cout);
        return palabras.empty() ? 2 : 0;
    }
    const Subcomando* subcomando = Buscar(palabras[0]);
    if (subcomando == nullptr) {
        std::cerr << "Subcomando desconocido: " << palabras[0]
                  << "\nquinteva-cli --help lista los subcomandos.\n";
        return 2;
    }
    try {
        const quinteva::cli::Argumentos argumentos(
            std::vector<std::string>(palabras.begin() + 1, palabras.end()), subcomando->opciones);
        return subcomando->ejecutar(argumentos, std::cout);
    } catch (const quinteva::cli::ErrorDeUso& e) {
        std::cerr << e.texto << '\n';
        return 2;
    } catch (const quinteva::base::Error& e) {
        std::cerr << "Error: " << e.what() << '\n';
        return 1;
    } catch (const std::exception& e) {
        std::cerr << "Error: " << e.what() << '\n';
        return 1;
    }
}
