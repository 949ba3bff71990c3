// Escribe los sistemas reducidos del programa: cada uno se construye con su receta, se comprueba
// que no repite filas y que cubre todo su espacio con su radio (palabra a palabra), se completa
// hasta las filas que muestra el programa con palabras distintas y se escribe en el formato
// "sistema NIVEL TRIPLES DOBLES FILAS" seguido de sus filas.
//
// Uso: sistemas_reducidos data/sistemas_reducidos.txt
//      sistemas_reducidos --grupo TRIPLES DOBLES RADIO FILAS [GENERADOR...]
//      sistemas_reducidos --plano TRIPLES DOBLES RADIO FILAS
// La segunda forma busca un grupo de traslaciones al azar para una receta con pesos (o, con los
// generadores dados, una semilla); la tercera prueba uno a uno los grupos de dos generadores de
// triples. Las dos escriben los generadores y la semilla de la receta.
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "grupos.h"
#include "recetas.h"

namespace {

using namespace sistemas;

Codigo Construir(const Sistema& s) {
    Codigo c = s.receta();
    const int radio = 14 - s.nivel;
    if (c.espacio.Triples() != s.triples || c.espacio.Dobles() != s.dobles) {
        throw std::runtime_error("la receta da otro espacio");
    }
    if (!SinRepetidas(c)) throw std::runtime_error("filas repetidas");
    if (!NoCubiertas(c, radio).empty()) throw std::runtime_error("no cubre su espacio");
    if (c.filas.size() > static_cast<std::size_t>(s.filas)) {
        std::cerr << "  aviso: " << c.filas.size() << " filas, más de las " << s.filas
                  << " que muestra el programa\n";
        return c;
    }
    return Rellenar(std::move(c), static_cast<std::size_t>(s.filas));
}

int EscribirReceta(const std::optional<Grupo>& g) {
    if (!g) {
        std::cerr << "ningún grupo\n";
        return 1;
    }
    std::cout << "generadores";
    for (const Palabra& p : g->generadores) std::cout << " " << ATexto(p);
    std::cout << "\nsemilla " << g->semilla << "\n";
    return 0;
}

int BuscarReceta(int triples, int dobles, int radio, int filas,
                 const std::vector<Palabra>& generadores) {
    const Espacio e(triples, dobles);
    return EscribirReceta(generadores.empty()
                              ? BuscarGrupo(e, radio, filas, radio + 1, 1, kPasosPorGrupo, 100'000)
                              : BuscarSemilla(e, radio, filas, generadores, kPasosPorGrupo, 1'000));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc >= 6 && std::string(argv[1]) == "--grupo") {
        std::vector<Palabra> generadores;
        for (int i = 6; i < argc; ++i) generadores.push_back(DeTexto(argv[i]));
        return BuscarReceta(std::stoi(argv[2]), std::stoi(argv[3]), std::stoi(argv[4]),
                            std::stoi(argv[5]), generadores);
    }
    if (argc == 6 && std::string(argv[1]) == "--plano") {
        return EscribirReceta(BuscarPlano(Espacio(std::stoi(argv[2]), std::stoi(argv[3])),
                                          std::stoi(argv[4]), std::stoi(argv[5]), kPasosPorGrupo));
    }
    if (argc != 2) {
        std::cerr << "Uso: sistemas_reducidos SALIDA | --grupo TRIPLES DOBLES RADIO FILAS "
                     "[GENERADOR...] | --plano TRIPLES DOBLES RADIO FILAS\n";
        return 2;
    }
    std::ofstream salida(argv[1], std::ios::binary);
    salida << "# Los sistemas reducidos: los escribe tools/sistemas_reducidos.\n";
    for (const Sistema& s : Sistemas()) {
        std::cerr << "sistema " << s.nivel << " " << s.triples << "+" << s.dobles << "\n";
        try {
            const Codigo c = Construir(s);
            salida << "sistema " << s.nivel << " " << s.triples << " " << s.dobles << " "
                   << c.filas.size() << "\n";
            for (const Palabra& f : c.filas) salida << ATexto(f) << "\n";
        } catch (const std::exception& e) {
            std::cerr << "  " << e.what() << "\n";
            return 1;
        }
    }
    return salida ? 0 : 1;
}
