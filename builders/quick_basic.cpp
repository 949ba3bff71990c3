#include "builders/quick_basic.h"

#include <algorithm>
#include <charconv>

#include "base/text1252.h"

namespace quinteva::builders {

namespace {

constexpr std::array<std::string_view, kFilasBasica> kNombres = {
    "Equis",
    "Doses",
    "Variantes",
    "Interrupciones",
    "Interrupciones consecutivas",
    "Unos seguidos",
    "Equis seguidas",
    "Doses seguidos",
};

// Las filas 3 y 4, las interrupciones, van de 0 a 13 y sin elegir son 0 y 14.
bool EsDeInterrupciones(int fila) { return fila == 3 || fila == 4; }

// Los dos campos de las condiciones que escribe cada fila.
template <typename F>
void CamposDeFila(engine::SetCondiciones& c, int fila, F campos) {
    switch (fila) {
        case 0:
            campos(c.minEquis, c.maxEquis, c.posMinEquis, c.posMaxEquis);
            break;
        case 1:
            campos(c.minDoses, c.maxDoses, c.posMinDoses, c.posMaxDoses);
            break;
        case 2:
            campos(c.minVariantes, c.maxVariantes, c.posMinVariantes, c.posMaxVariantes);
            break;
        case 3:
            campos(c.minInter, c.maxInter, 0, 14);
            break;
        case 4:
            campos(c.minInterCons, c.maxInterCons, 0, 14);
            break;
        default: {
            const auto s = static_cast<std::size_t>(fila - 5);
            campos(c.minSeg[s], c.maxSeg[s], c.posMinSeg[s], c.posMaxSeg[s]);
        }
    }
}

// Lo elegido en la fila o, lo que falte, el límite de la tabla.
void PonerFila(engine::SetCondiciones& c, int fila, const LimiteBasica& l) {
    CamposDeFila(c, fila, [&](auto& minimo, auto& maximo, auto posMin, auto posMax) {
        using Min = std::remove_reference_t<decltype(minimo)>;
        using Max = std::remove_reference_t<decltype(maximo)>;
        minimo = static_cast<Min>(l.minimo.value_or(static_cast<int>(posMin)));
        maximo = static_cast<Max>(l.maximo.value_or(static_cast<int>(posMax)));
    });
}

bool AlgunaMarcada(const LimitesBasica& l, int desde, int hasta) {
    return std::any_of(l.begin() + desde, l.begin() + hasta + 1,
                       [](const LimiteBasica& f) { return f.Marcada(); });
}

}  // namespace

std::string MsgUltimoBoletoDeUna(std::int32_t columnas) {
    return "No es posible ajustar la combinación a " + std::to_string(columnas) +
           " apuestas porque el último boleto tendría una sola columna. Modifique el número de "
           "apuestas que desea.";
}

std::string MsgMaximoMenorQueMinimo(int fila) {
    const std::string nombre(kNombres[static_cast<std::size_t>(fila)]);
    return "El número máximo de " + nombre + " no puede ser menor que el mínimo de " + nombre;
}

std::string PreguntaMenosColumnas(std::int32_t columnas) {
    return "Con las condiciones que ha puesto se obtienen menos de " + std::to_string(columnas) +
           " apuestas. Desea no obstante generar esas columnas?";
}

std::pair<int, int> RangoDeFila(const engine::SetCondiciones& condiciones, int fila) {
    if (EsDeInterrupciones(fila)) return {0, 13};
    std::pair<int, int> rango;
    auto copia = condiciones;
    CamposDeFila(copia, fila, [&](auto&, auto&, auto posMin, auto posMax) {
        rango = {static_cast<int>(posMin), static_cast<int>(posMax)};
    });
    return rango;
}

void SoltarFilaBasica(engine::SetCondiciones& condiciones, int fila) {
    PonerFila(condiciones, fila, LimiteBasica{});
}

std::optional<std::int32_t> ComprobarBasica(std::string_view numero, float columnasBase,
                                            const LimitesBasica& limites, base::Dialogo& dialogo) {
    numero = base::Recortar(numero);
    if (numero.empty()) {
        dialogo.Mensaje(kMsgSinNumeroBasica, base::Icono::Aviso);
        return std::nullopt;
    }
    std::int32_t columnas = 0;
    std::from_chars(numero.data(), numero.data() + numero.size(), columnas);
    if (static_cast<float>(columnas) > columnasBase) {
        dialogo.Mensaje(kMsgMasQuePosibles, base::Icono::Aviso);
        return std::nullopt;
    }
    if (columnas % 8 == 1) {
        dialogo.Mensaje(MsgUltimoBoletoDeUna(columnas), base::Icono::Aviso);
        return std::nullopt;
    }
    for (int fila = 0; fila < kFilasBasica; ++fila) {
        const LimiteBasica& l = limites[static_cast<std::size_t>(fila)];
        if (l.minimo && l.maximo && *l.minimo > *l.maximo) {
            dialogo.Mensaje(MsgMaximoMenorQueMinimo(fila), base::Icono::Aviso);
            return std::nullopt;
        }
    }
    return columnas;
}

std::int16_t PonerLimitesBasica(engine::SetCondiciones& condiciones, const LimitesBasica& limites) {
    for (int fila = 0; fila < kFilasBasica; ++fila) {
        PonerFila(condiciones, fila, limites[static_cast<std::size_t>(fila)]);
    }
    const bool generales = AlgunaMarcada(limites, 0, 2);
    const bool seguidos = AlgunaMarcada(limites, 5, 7);
    condiciones.casilla[0] = generales;
    condiciones.casilla[1] = seguidos;
    condiciones.casilla[2] = limites[3].Marcada();
    condiciones.casilla[10] = limites[4].Marcada();
    return static_cast<std::int16_t>((generales ? 1 : 0) + (limites[3].Marcada() ? 1 : 0) +
                                     (limites[4].Marcada() ? 1 : 0) + (seguidos ? 1 : 0));
}

}  // namespace quinteva::builders
