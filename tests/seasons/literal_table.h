#pragma once

// La clasificación tal como la cuenta el programa, paso a paso sobre los archivos: cada consulta
// abre "Jlig2.rar" o "Nomeq.rar" y los recorre desde el registro 1. Es la referencia de la prueba
// diferencial de seasons::Clasificacion, que lee los partidos una vez por Jornada.

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league_table.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::pruebas {

class ClasificacionLiteral {
  public:
    using Fila = seasons::Clasificacion::Fila;

    ClasificacionLiteral(std::filesystem::path carpeta, int division)
        : carpeta_(std::move(carpeta)), division_(division) {}

    const std::vector<Fila>& Tabla() const { return filas_; }

    bool Clasifica(int j) {
        base::ArchivoDe<seasons::RegPartidoLiga> liga(carpeta_ / seasons::kJlig2);
        bool jugada = false;
        for (int n = 1; n <= liga.Cuenta() && !jugada; ++n) {
            const auto p = liga.Leer(n);
            jugada = p.jornada == j && p.division == division_ &&
                     (p.golesLocal > 0 || p.golesVisitante > 0);
        }
        if (!jugada) return false;
        base::ArchivoDe<seasons::RegEquipo> equipos(carpeta_ / seasons::kNomeq);
        int total = 0;
        for (int n = 1; n <= equipos.Cuenta(); ++n) total += equipos.Leer(n).division == division_;
        filas_.resize(static_cast<std::size_t>(total));
        std::size_t r = 0;
        for (int n = 1; n <= equipos.Cuenta(); ++n) {
            auto e = equipos.Leer(n);
            if (e.division != division_) continue;
            const std::string nombre(base::Recortar(e.nombre));
            for (int m = 1; m <= liga.Cuenta(); ++m) {
                const auto p = liga.Leer(m);
                const bool local = base::Recortar(p.local) == nombre;
                if (p.jornada != j || (!local && base::Recortar(p.visitante) != nombre)) continue;
                const int propios = local ? p.golesLocal : p.golesVisitante;
                const int ajenos = local ? p.golesVisitante : p.golesLocal;
                e.golesFavor += propios;
                e.golesContra += ajenos;
                e.diferencia += propios - ajenos;
                e.jugados += 1;
                if (propios > ajenos) {
                    e.puntos += 3;
                    e.ganados += 1;
                    (local ? e.puntosCasa : e.puntosFuera) += 3;
                    (local ? e.ganadosCasa : e.ganadosFuera) += 1;
                } else if (propios == ajenos) {
                    e.puntos += 1;
                    e.empatados += 1;
                    (local ? e.puntosCasa : e.puntosFuera) += 1;
                    (local ? e.empatadosCasa : e.empatadosFuera) += 1;
                } else {
                    e.perdidos += 1;
                    (local ? e.perdidosCasa : e.perdidosFuera) += 1;
                }
                equipos.Escribir(n, e);
                filas_[r].nombre = nombre;
                filas_[r].puntos = std::to_string(e.puntos);
                filas_[r].diferencia = std::to_string(e.diferencia);
                ++r;
                break;
            }
        }
        Ordenar(false);
        const std::size_t ultima = filas_.size();
        for (std::size_t a = 1; a <= ultima; ++a) {
            for (std::size_t b = a; b <= ultima; ++b) {
                if (filas_[a - 1].puntos == filas_[b - 1].puntos) continue;
                if (b - a <= 1) break;
                SubClasifica(a, b - 1);
                a = b - 1;
            }
        }
        Ordenar(true);
        for (std::size_t f = 1; f <= filas_.size(); ++f) {
            for (int n = 1; n <= equipos.Cuenta(); ++n) {
                auto e = equipos.Leer(n);
                if (base::Recortar(e.nombre) != filas_[f - 1].nombre) continue;
                e.posicion = static_cast<int>(f);
                e.posicionJornada[static_cast<std::size_t>(j - 1)] = static_cast<int>(f);
                equipos.Escribir(n, e);
                break;
            }
        }
        return true;
    }

  private:
    static long N(const std::string& t) { return std::strtol(t.c_str(), nullptr, 10); }

    void Ordenar(bool tresColumnas) {
        std::stable_sort(filas_.begin(), filas_.end(), [&](const Fila& a, const Fila& b) {
            if (N(a.puntos) != N(b.puntos)) return N(a.puntos) > N(b.puntos);
            if (!tresColumnas) return false;
            if (N(a.enfrentamiento) != N(b.enfrentamiento))
                return N(a.enfrentamiento) > N(b.enfrentamiento);
            return N(a.diferencia) > N(b.diferencia);
        });
    }

    // Dos recorridos del "Jlig2.rar" entero por cada par ordenado de las filas.
    void SubClasifica(std::size_t primero, std::size_t ultimo) {
        base::ArchivoDe<seasons::RegPartidoLiga> liga(carpeta_ / seasons::kJlig2);
        std::vector<int> cifras(ultimo - primero + 1, 0);
        for (std::size_t x = primero; x <= ultimo; ++x) {
            for (std::size_t y = primero; y <= ultimo; ++y) {
                for (int n = 1; n <= liga.Cuenta(); ++n) {
                    const auto p = liga.Leer(n);
                    if (base::Recortar(p.local) == filas_[x - 1].nombre &&
                        base::Recortar(p.visitante) == filas_[y - 1].nombre)
                        cifras[x - primero] += p.golesLocal - p.golesVisitante;
                }
            }
        }
        for (std::size_t x = primero; x <= ultimo; ++x) {
            for (std::size_t y = primero; y <= ultimo; ++y) {
                for (int n = 1; n <= liga.Cuenta(); ++n) {
                    const auto p = liga.Leer(n);
                    if (base::Recortar(p.local) == filas_[y - 1].nombre &&
                        base::Recortar(p.visitante) == filas_[x - 1].nombre)
                        cifras[x - primero] += p.golesVisitante - p.golesLocal;
                }
            }
        }
        for (std::size_t x = primero; x <= ultimo; ++x)
            filas_[x - 1].enfrentamiento = std::to_string(cifras[x - primero]);
    }

    std::filesystem::path carpeta_;
    int division_;
    std::vector<Fila> filas_;
};

}  // namespace quinteva::pruebas
