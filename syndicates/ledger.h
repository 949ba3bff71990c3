#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "syndicates/pena_store.h"

namespace quinteva::syndicates {

// La página Jornadas de la ventana de la Peña: lo que muestra, como texto, porque varias
// comprobaciones del sistema se hacen sobre lo que se ve.

inline constexpr std::string_view kMsgCrearFaltanNombres =
    "Tiene que introducir Nombres normal y reducido de la Peña.";
inline constexpr std::string_view kMsgPenaRepetida =
    "Ya existe otra Peña con este mismo nombre reducido. Debe poner otro.";
inline constexpr std::string_view kMsgJornadaCerradaColumnas =
    "La Jornada está cerrada, tiene que abrirla si desea modificar datos.";
inline constexpr std::string_view kMsgSeleccioneJornada =
    "Tiene que seleccionar la Jornada de quinielas que se juega.";
inline constexpr std::string_view kMsgImporteDistinto =
    "El importe que juegan los apostantes tiene que ser igual al importe de las columnas "
    "jugadas.";
inline constexpr std::string_view kMsgSinColumnas =
    "No ha indicado el número de columnas que se juegan.";
inline constexpr std::string_view kCeroNegativo = "0,00 ";

// "Crear nueva Peña": los dos nombres, el reducido sin blancos y que no exista ya en la carpeta
// de su Temporada. La ruta de la Peña sin extensión.
std::optional<std::filesystem::path> CrearDatosPena(
    const std::filesystem::path& carpetaTrabajo, RegPena datos, base::Dialogo& dialogo,
    const base::Volcar& volcar = base::VolcarEnDisco);
// "&Modificar": los dos nombres; solo se escribe el ".nmp", con el nombre reducido de siempre.
bool ModificarDatosPena(const ArchivosPena& pena, RegPena datos, base::Dialogo& dialogo);

// Una fila de "Relación de apostantes y cantidades jugadas".
struct FilaJornadaPena {
    std::string nombre;
    std::string jugado;
    std::string participacion;
    std::string obtenido;
};

struct PaginaJornada {
    int jornada = 0;  // 0: ninguna elegida
    std::string fecha;
    std::string numColumnas;  // la caja "Nº Columnas:"
    std::string importe;      // la etiqueta "Importe (euros):"
    bool cerrada = false;
    std::array<std::string, RegJornadaPena::kCategorias> acertadas;  // "Col. acertadas"
    std::array<std::string, RegJornadaPena::kCategorias> premios;    // "Cobra c/u"
    std::string totalCobrado;
    std::string gastos;
    std::string aRepartir;
    std::vector<FilaJornadaPena> filas;
    // Los totales de debajo de la rejilla: lo jugado y lo obtenido ("100%" va en medio).
    std::string totalJugado;
    std::string totalObtenido;

    std::size_t NumApostantes() const { return filas.size(); }
};

// LlenarFlex1: los Apostantes con cuota en la Jornada (por nombre), su participación, y los datos
// del registro de la Jornada; la fecha es la de "Jquin.rar".
PaginaJornada LlenarFlex1(const ArchivosPena& pena, int jornada, std::string fecha);

// El menú de la relación: por "Nombres" (como la llena LlenarFlex1) o por "Importe" jugado, de
// menos a más.
enum class OrdenFilas { Nombres, Importe };
void OrdenarFilas(PaginaJornada& pagina, OrdenFilas orden);

// ReCalculo: "Total cobrado" de las seis categorías con sus dos casillas, "A repartir" (menos
// los gastos; negativo, "0,00 ").
void ReCalculo(PaginaJornada& pagina);
// "Distri&buir" se habilita con algo que repartir y la Jornada cerrada.
bool PuedeDistribuir(const PaginaJornada& pagina);

// Lo tecleado en "Nº Columnas:", con sus cuentas propias: el importe con el precio de una
// columna, "Total cobrado" sin "De 10" y "A repartir" menos el importe si no hay gastos. Cerrada,
// se rehúsa (false, sin tocar nada).
bool TeclearColumnas(PaginaJornada& pagina, std::string_view columnas, float precioColumna,
                     base::Dialogo& dialogo);

// "Cerrada": la Jornada elegida, el importe igual al total jugado (como texto) y columnas; si
// pasa, queda cerrada en el registro y se recalcula. "Abierta" lo deshace. false si no cambió.
bool CerrarJornada(const ArchivosPena& pena, PaginaJornada& pagina, base::Dialogo& dialogo);
void AbrirJornada(const ArchivosPena& pena, PaginaJornada& pagina);

// "Distri&buir": a cada fila "A repartir" por su participación, y la última se lleva lo que
// falte por el redondeo.
void Distribuir(PaginaJornada& pagina);

// "Guardar": la página en el registro de su Jornada (lo vacío es 0) y lo obtenido de cada fila en
// su Apostante.
void GuardarPagina(const ArchivosPena& pena, const PaginaJornada& pagina);

// Un importe escrito como lo muestra la página ("1.234,50"); vacío o no numérico, 0.
double ValorDeTexto(std::string_view texto);
std::string TextoDeDinero(double valor);

}  // namespace quinteva::syndicates
