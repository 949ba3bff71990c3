#pragma once

#include <cstdint>
#include <string_view>

#include "base/progress.h"
#include "builders/boletos.h"

namespace quinteva::builders {

inline constexpr std::string_view kMsgFaltaNumero =
    "Debe introducir el número de columnas que quiere que tenga la combinación.";
inline constexpr std::string_view kMsgBaseCorta =
    "Ese número de columnas es mayor que las que tiene la Quiniela Base. Modifique primero la "
    "Quiniela Base.";
inline constexpr std::string_view kPreguntaMuyAjustada =
    "La combinación está muy ajustada a la Quiniela Base, por lo que podría ser un proceso muy "
    "largo añadir las columnas indicadas. Desea continuar?";
inline constexpr std::string_view kPreguntaBajar =
    "Va a ajustar las apuestas a un número inferior de las existentes inicialmente. Ello supone "
    "que se va a elimimnar un número de columnas de la combinación. Está seguro de que desea "
    "continuar?";
inline constexpr std::string_view kPreguntaAleatoriaTrasParar =
    "Es preciso agregar una columna para completar el último boleto. Desea que el programa "
    "añada una generada aleatóriamente?.";

// "Ya está ajustada la combinación a " + T + " apuestas."
std::string MsgYaAjustada(std::int64_t apuestas);
// "No es posible ajustar la combinación a " + T + " apuestas porque el último boleto ..."
std::string MsgBoletoDeUna(std::int64_t apuestas);

enum class ResultadoAjuste {
    Ajustada,    // llegó al número pedido; se guardó
    Detenida,    // "&Detener" a mitad; se guardó lo hecho
    YaAjustada,  // ya tenía ese número
    Rechazada,   // número vacío, 0, con una sola columna en el último Boleto o mayor que la base
    Cancelada,   // el usuario contestó No
};

struct Ajuste {
    ResultadoAjuste resultado = ResultadoAjuste::Rechazada;
    // La ventana pone el foco en el campo del número.
    bool focoEnCampo = false;
    // Columnas añadidas (o revividas) o eliminadas por el sorteo.
    std::int32_t cambiadas = 0;
};

// "Ajustar nº de apuestas a:": lleva las activas del conjunto jugado al número del campo, con los
// mensajes y preguntas en su orden. Hacia arriba sortea columnas de la Quiniela Base (con el
// PlenoBase) y revive las eliminadas en las que cae; hacia abajo elimina registros al azar sin
// quitar ninguno. preguntarSiBaja es false cuando otra ventana lleva el ajuste. Al acabar, o al
// detenerse, muestra la cuenta y el precio y ejecuta Guardar.
Ajuste Ajustar(engine::Combinacion& combinacion, std::string_view campo,
               const EntornoBoletos& entorno, base::Progreso& progreso,
               bool preguntarSiBaja = true);

}  // namespace quinteva::builders
