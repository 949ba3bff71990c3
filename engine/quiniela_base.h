#pragma once

#include <array>
#include <string>
#include <string_view>

#include "engine/columns.h"

namespace quinteva::engine {

// La Quiniela Base: la rejilla de 15 filas y 5 columnas de la ventana principal, guardada como los
// textos de sus celdas. Columna 0 el número de partido, 1 "Local - Visitante", 2 a 4 los signos
// 1, X, 2. Un signo elegido se ve "X"; uno sin elegir se ve "1", "x" (minúscula) o "2", así que
// la prueba de si un signo vale es siempre si la celda es la "X" mayúscula. En la fila 15 las
// columnas 2 y 4 son los goles del Pleno al 15: "", "0", "1", "2" o "M".
class QuinielaBase {
  public:
    static constexpr int kFilas = 15;
    static constexpr int kColumnas = 5;

    QuinielaBase();

    // fila de 1 a 15, columna de 0 a 4.
    const std::string& Celda(int fila, int columna) const;

    // partido de 1 a 14, signo 0, 1, 2 en el orden 1, X, 2.
    bool Elegido(int partido, int signo) const;
    void Elegir(int partido, int signo, bool elegido);
    void Alternar(int partido, int signo) { Elegir(partido, signo, !Elegido(partido, signo)); }
    int SignosElegidos(int partido) const;

    void PonerEquipos(int fila, std::string_view localVisitante);
    const std::string& Equipos(int fila) const { return Celda(fila, 1); }

    // Lanza Error si un gol no es "", "0", "1", "2" ni "M".
    void PonerGoles(std::string_view local, std::string_view visitante);
    std::string GolesLocal() const { return Celda(kFilas, 2); }
    std::string GolesVisitante() const { return Celda(kFilas, 4); }
    // Los dos goles como PlenoBase (blancos si faltan).
    PlenoBase Pleno() const;

    // Apuestas posibles: el producto de los signos elegidos, en precisión simple.
    float Columnas() const;
    int Dobles() const;
    int Triples() const;
    // Los 14 partidos con algún signo y los dos goles del Pleno puestos.
    bool Completa() const;

    friend bool operator==(const QuinielaBase&, const QuinielaBase&) = default;

  private:
    std::string& CeldaMutable(int fila, int columna);
    int PartidosConSignos(int signos) const;

    std::array<std::array<std::string, kColumnas>, kFilas> celdas_;
};

}  // namespace quinteva::engine
