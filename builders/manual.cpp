#include "builders/manual.h"

#include <algorithm>

#include "base/error.h"
#include "base/record_files.h"
#include "engine/combination_files.h"

namespace quinteva::builders {
namespace {

using engine::Combinacion;
using engine::RegistroColumna;
using ArchivoColumnas = base::ArchivoDe<RegistroColumna>;

int Cuenta(const engine::Columna& columna, SignoRegla signo) {
    const auto es = [signo](engine::Signo s) {
        switch (signo) {
            case SignoRegla::Unos:
                return s == '1';
            case SignoRegla::Equis:
                return s == 'X';
            case SignoRegla::Doses:
                return s == '2';
            case SignoRegla::Variantes:
                return s == 'X' || s == '2';
        }
        return false;
    };
    return static_cast<int>(std::count_if(columna.begin(), columna.end(), es));
}

engine::Columna ColumnaDeCeldas(const std::array<std::string, 14>& celdas) {
    engine::Columna columna{};
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        const std::string& celda = celdas[i];
        const char signo = celda == "x" ? 'X' : celda.size() == 1 ? celda[0] : '?';
        if (engine::IndiceSigno(signo) < 0) {
            throw base::Error("El partido " + std::to_string(i + 1) + " tiene \"" + celda +
                              "\": los signos son 1, X y 2.");
        }
        columna[i] = signo;
    }
    return columna;
}

// El primer registro del archivo con los mismos 14 signos; 0 si no hay.
std::int32_t BuscarColumna(const ArchivoColumnas& archivo, const engine::Columna& columna) {
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) {
        if (archivo.Leer(n).columna == columna) return n;
    }
    return 0;
}

// Los dos archivos de un conjunto abiertos a la vez, registro a registro.
struct DosArchivos {
    ArchivoColumnas almacen;
    ArchivoColumnas guardado;

    explicit DosArchivos(const Conjunto& conjunto)
        : almacen(conjunto.almacen), guardado(conjunto.guardado) {}
    void PonerEstado(std::int32_t numero, char estado) {
        for (ArchivoColumnas* archivo : {&almacen, &guardado}) {
            RegistroColumna registro = archivo->Leer(numero);
            registro.estado = estado;
            archivo->Escribir(numero, registro);
        }
    }
    void Cerrar() {
        almacen.Cerrar();
        guardado.Cerrar();
    }
};

Conjunto ConjuntoJugado(Combinacion& comb, const EntornoBoletos& entorno) {
    const Jugada jugada = JugadaElegida(comb);
    Conjunto conjunto = ConjuntoDe(comb, jugada, entorno.carpetaTrabajo);
    ExigirColumnasGuardadas(conjunto, jugada);
    return conjunto;
}

}  // namespace

bool Cumple(const engine::Columna& columna, ModoRegla modo, int numero, SignoRegla signo) {
    int desde = numero, hasta = numero;
    if (modo == ModoRegla::Mas) desde = 0;
    if (modo == ModoRegla::Menos) hasta = engine::kPartidos;
    const int n = Cuenta(columna, signo);
    const bool dentro = n >= desde && n <= hasta;
    return modo == ModoRegla::Igual ? !dentro : dentro;
}

std::string MsgYaIncluida(std::int32_t numero, bool excluida) {
    std::string texto =
        "Esta columna ya está incluida en la combinación, columna " + std::to_string(numero);
    if (excluida) texto += ", aunque está excluida manualmente. Puede anular la exclusión.";
    return texto;
}

Inclusion Incluir(Combinacion& comb, const std::array<std::string, 14>& celdas,
                  VentanaAnadir& ventana, const EntornoBoletos& entorno) {
    if (std::any_of(celdas.begin(), celdas.end(), [](const std::string& c) { return c.empty(); })) {
        entorno.dialogo.Mensaje(kMsgFaltanSignos);
        return Inclusion::Rechazada;
    }
    const engine::Columna columna = ColumnaDeCeldas(celdas);
    const Jugada jugada = JugadaElegida(comb);
    const Conjunto conjunto = ConjuntoJugado(comb, entorno);

    ArchivoColumnas guardado(conjunto.guardado);
    if (const std::int32_t repetida = BuscarColumna(guardado, columna); repetida > 0) {
        const bool excluida = guardado.Leer(repetida).estado == engine::kEliminada;
        entorno.dialogo.Mensaje(MsgYaIncluida(repetida, excluida));
        return Inclusion::Rechazada;
    }
    const RegistroColumna registro{columna, guardado.Leer(guardado.Cuenta()).pleno,
                                   engine::kActiva};
    guardado.Anadir(registro);
    guardado.Cerrar();
    ++conjunto.total;
    ++conjunto.activas;
    ArchivoColumnas almacen(conjunto.almacen);
    almacen.Anadir(registro);
    almacen.Cerrar();

    MostrarPrecio(comb, jugada, entorno.ajustes);
    comb.panel.guardada = false;
    ventana.cambiada = true;
    engine::Guardar(comb, entorno.carpetaTrabajo, entorno.ajustes);

    if (!UnaSolaEnElUltimoBoleto(conjunto.activas)) return Inclusion::Incluida;
    if (entorno.dialogo.PreguntaSiNo(kPreguntaOtraAMano) == base::Respuesta::Si) {
        return Inclusion::OtraAMano;
    }
    Aleatoria(comb, jugada, entorno);
    ventana.cambiada = false;
    return Inclusion::CompletadaAlAzar;
}

bool EliminarPorRegla(Combinacion& comb, const Regla& regla, VentanaEliminar& ventana,
                      const EntornoBoletos& entorno) {
    if (!regla.modo || !regla.numero || !regla.signo) {
        entorno.dialogo.Mensaje(kMsgFaltanParametros);
        return false;
    }
    const Jugada jugada = JugadaElegida(comb);
    const Conjunto conjunto = ConjuntoJugado(comb, entorno);
    if (++ventana.eliminacionesPorRegla > 1 &&
        entorno.dialogo.AceptarCancelar(kMsgAcumulativa) == base::Respuesta::Cancelar) {
        return false;
    }
    DosArchivos archivos(conjunto);
    std::int32_t activas = 0;
    for (std::int32_t n = 1; n <= conjunto.total; ++n) {
        RegistroColumna registro = archivos.almacen.Leer(n);
        if (!Cumple(registro.columna, *regla.modo, *regla.numero, *regla.signo)) {
            archivos.PonerEstado(n, engine::kEliminada);
            registro.estado = engine::kEliminada;
        }
        activas += registro.Activa() ? 1 : 0;
    }
    archivos.Cerrar();
    conjunto.activas = activas;
    MostrarPrecio(comb, jugada, entorno.ajustes);
    return true;
}

void JugarTodas(Combinacion& comb, VentanaEliminar& ventana, const EntornoBoletos& entorno) {
    const Jugada jugada = JugadaElegida(comb);
    const Conjunto conjunto = ConjuntoJugado(comb, entorno);
    ventana.eliminacionesPorRegla = 0;
    DosArchivos archivos(conjunto);
    for (std::int32_t n = 1; n <= conjunto.total; ++n) archivos.PonerEstado(n, engine::kActiva);
    archivos.Cerrar();
    conjunto.activas = conjunto.total;
    MostrarPrecio(comb, jugada, entorno.ajustes);
}

void JugarColumna(Combinacion& comb, std::int32_t numero, bool jugar,
                  const EntornoBoletos& entorno) {
    const Jugada jugada = JugadaElegida(comb);
    const Conjunto conjunto = ConjuntoJugado(comb, entorno);
    DosArchivos archivos(conjunto);
    const bool eraActiva = archivos.almacen.Leer(numero).Activa();
    archivos.PonerEstado(numero, jugar ? engine::kActiva : engine::kEliminada);
    archivos.Cerrar();
    conjunto.activas += (jugar ? 1 : 0) - (eraActiva ? 1 : 0);
    MostrarPrecio(comb, jugada, entorno.ajustes);
}

std::int32_t RegistroDeRejilla(int columnasPorPagina, int valorScroll, int columnaRejilla) {
    const int inicio = columnasPorPagina * valorScroll - columnasPorPagina + 1;
    return inicio + columnaRejilla - 1;
}

std::vector<RegistroColumna> PaginaDeColumnas(Combinacion& comb, std::int32_t desde,
                                              std::int32_t cuantos, const EntornoBoletos& entorno) {
    const Conjunto conjunto = ConjuntoDe(comb, JugadaElegida(comb), entorno.carpetaTrabajo);
    const ArchivoColumnas almacen(conjunto.almacen);
    std::vector<RegistroColumna> pagina;
    for (std::int32_t n = std::max(desde, 1); n < desde + cuantos && n <= almacen.Cuenta(); ++n) {
        pagina.push_back(almacen.Leer(n));
    }
    return pagina;
}

bool CerrarEliminar(Combinacion& comb, const EntornoBoletos& entorno,
                    const std::function<void()>& abrirAnadir) {
    const Jugada jugada = JugadaElegida(comb);
    auto& dialogo = entorno.dialogo;
    if (UnaSolaEnElUltimoBoleto(ApuestasJugadas(comb, jugada))) {
        if (dialogo.PreguntaSiNo(kPreguntaMantenerEliminada) == base::Respuesta::Si) {
            dialogo.Mensaje(kMsgRehabilite);
            return false;
        }
        if (dialogo.PreguntaSiNo(kPreguntaAnadirManual) == base::Respuesta::Si) {
            abrirAnadir();
        } else {
            Aleatoria(comb, jugada, entorno);
        }
    }
    MostrarPrecio(comb, jugada, entorno.ajustes);
    engine::Guardar(comb, entorno.carpetaTrabajo, entorno.ajustes);
    return true;
}

}  // namespace quinteva::builders
