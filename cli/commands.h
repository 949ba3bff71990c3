#pragma once

#include <ostream>
#include <span>
#include <string_view>

#include "cli/arguments.h"

namespace quinteva::cli {

// Un subcomando de quinteva-cli: lo que hace, cómo se usa y qué opciones acepta. Devuelve el
// código de salida; los fallos del sistema salen como base::Error y los de uso como ErrorDeUso.
struct Subcomando {
    std::string_view nombre;
    std::string_view uso;
    std::string_view descripcion;
    OpcionesAdmitidas opciones;
    int (*ejecutar)(const Argumentos& argumentos, std::ostream& salida);
};

std::span<const Subcomando> Subcomandos();

// Cada subcomando vive en su archivo.
int Temporada(const Argumentos& argumentos, std::ostream& salida);
int Demo(const Argumentos& argumentos, std::ostream& salida);
int EquiposCmd(const Argumentos& argumentos, std::ostream& salida);
int EquipoNuevo(const Argumentos& argumentos, std::ostream& salida);
int NuevaTemporadaCmd(const Argumentos& argumentos, std::ostream& salida);
int TodoACeroCmd(const Argumentos& argumentos, std::ostream& salida);
int ClasificacionCmd(const Argumentos& argumentos, std::ostream& salida);
int RecalcularCmd(const Argumentos& argumentos, std::ostream& salida);
int LigaJornada(const Argumentos& argumentos, std::ostream& salida);
int LigaResultados(const Argumentos& argumentos, std::ostream& salida);
int DepurarLigaCmd(const Argumentos& argumentos, std::ostream& salida);
int Quiniela(const Argumentos& argumentos, std::ostream& salida);
int Estadisticas(const Argumentos& argumentos, std::ostream& salida);
int Historico(const Argumentos& argumentos, std::ostream& salida);
int MuyReducidaCmd(const Argumentos& argumentos, std::ostream& salida);
int PorcentajesCmd(const Argumentos& argumentos, std::ostream& salida);
int PenaCmd(const Argumentos& argumentos, std::ostream& salida);
OpcionesAdmitidas OpcionesPena();
int VerificarCmd(const Argumentos& argumentos, std::ostream& salida);
int ProbabilidadesCmd(const Argumentos& argumentos, std::ostream& salida);
int HistoricoCondicionesCmd(const Argumentos& argumentos, std::ostream& salida);
int RefundirCmd(const Argumentos& argumentos, std::ostream& salida);
int RapidaBasicaCmd(const Argumentos& argumentos, std::ostream& salida);
OpcionesAdmitidas OpcionesRapidaBasica();
int Ponderar(const Argumentos& argumentos, std::ostream& salida);
OpcionesAdmitidas OpcionesPonderar();
int Importar(const Argumentos& argumentos, std::ostream& salida);
int Imprimir(const Argumentos& argumentos, std::ostream& salida);
int InformeCondicionesCmd(const Argumentos& argumentos, std::ostream& salida);
int Actualizar(const Argumentos& argumentos, std::ostream& salida);
int QuinielaResultados(const Argumentos& argumentos, std::ostream& salida);
int Nueva(const Argumentos& argumentos, std::ostream& salida);
int Info(const Argumentos& argumentos, std::ostream& salida);
int GenerarCmd(const Argumentos& argumentos, std::ostream& salida);
int Analizar(const Argumentos& argumentos, std::ostream& salida);
int ReducirCmd(const Argumentos& argumentos, std::ostream& salida);
int Tablas(const Argumentos& argumentos, std::ostream& salida);
int Oficial(const Argumentos& argumentos, std::ostream& salida);
int JsonLeer(const Argumentos& argumentos, std::ostream& salida);
int JsonModificar(const Argumentos& argumentos, std::ostream& salida);
int AjustarCmd(const Argumentos& argumentos, std::ostream& salida);
int EliminarCmd(const Argumentos& argumentos, std::ostream& salida);
int JugarTodasCmd(const Argumentos& argumentos, std::ostream& salida);
int TextoCmd(const Argumentos& argumentos, std::ostream& salida);
int AciertosCmd(const Argumentos& argumentos, std::ostream& salida);

}  // namespace quinteva::cli
