#include "builders/boletos.h"

#include "base/error.h"
#include "base/record_files.h"
#include "engine/combination_files.h"
#include "engine/pricing.h"

namespace quinteva::builders {
namespace {

using engine::Combinacion;
using engine::RegistroColumna;

// La cabecera se reescribe en su sitio: solo cambia el campo del conjunto jugado.
void EscribirJugada(const std::filesystem::path& uxd, Jugada jugada) {
    engine::LeerCabecera(uxd);  // comprueba que existe y tiene su longitud
    base::ArchivoRegistros archivo(uxd, engine::RegistroCabecera::kLongitud);
    auto registro = archivo.Leer(1);
    base::PonerTexto(registro, 16, 3, CampoJugada(jugada));
    archivo.Escribir(1, registro);
    archivo.Cerrar();
}

}  // namespace

engine::Columna ColumnaAlAzar(base::Azar& azar) {
    engine::Columna columna{};
    for (auto& signo : columna)
        signo = engine::kSignos[static_cast<std::size_t>(azar.Entero(0, 2))];
    return columna;
}

std::string_view CampoJugada(Jugada jugada) {
    return jugada == Jugada::Condicionada ? "cnd" : "red";
}

Jugada JugadaElegida(const Combinacion& comb) {
    if (comb.jugada == "cnd") return Jugada::Condicionada;
    if (comb.jugada == "red") return Jugada::Reducida;
    throw base::Error("No se ha elegido si se juega la Condicionada o la Reducida.");
}

Conjunto ConjuntoDe(Combinacion& comb, Jugada jugada, const std::filesystem::path& carpetaTrabajo) {
    if (comb.ruta.empty()) throw base::Error("La Quiniela no tiene nombre de archivo");
    if (jugada == Jugada::Condicionada) {
        return {carpetaTrabajo / engine::kCmbTmp, engine::RutaHermana(comb.ruta, ".cnd"),
                comb.totalGeneradas, comb.activasGeneradas};
    }
    return {carpetaTrabajo / engine::kRedTmp, engine::RutaHermana(comb.ruta, ".red"),
            comb.totalReducidas, comb.activasReducidas};
}

void ExigirColumnasGuardadas(const Conjunto& conjunto, Jugada jugada) {
    if (conjunto.total > 0 &&
        base::CuentaRegistros(conjunto.guardado, RegistroColumna::kLongitud) > 0) {
        return;
    }
    throw base::Error(std::string("La combinación no tiene columnas ") +
                      (jugada == Jugada::Condicionada ? "generadas" : "reducidas") +
                      " guardadas: falta o está vacío el archivo " +
                      conjunto.guardado.filename().string() + ".");
}

std::int32_t ApuestasJugadas(const Combinacion& comb, Jugada jugada) {
    return jugada == Jugada::Condicionada ? comb.activasGeneradas : comb.activasReducidas;
}

void PrecioRed(Combinacion& comb, const base::Ajustes& ajustes) {
    comb.panel.reducidas.at(comb.nivelReducida) = comb.activasReducidas;
    comb.panel.precio = engine::Importe(comb.activasReducidas, ajustes);
}

void MostrarPrecio(Combinacion& comb, Jugada jugada, const base::Ajustes& ajustes) {
    if (jugada == Jugada::Condicionada) {
        engine::PrecioComb(comb, ajustes);
    } else {
        PrecioRed(comb, ajustes);
    }
}

void Aleatoria(Combinacion& comb, Jugada jugada, const EntornoBoletos& entorno) {
    const Conjunto conjunto = ConjuntoDe(comb, jugada, entorno.carpetaTrabajo);
    ExigirColumnasGuardadas(conjunto, jugada);
    const engine::Columna columna = ColumnaAlAzar(entorno.azar);

    base::ArchivoDe<RegistroColumna> guardado(conjunto.guardado);
    const RegistroColumna ultimo = guardado.Leer(guardado.Cuenta());
    guardado.Anadir({columna, ultimo.pleno, engine::kActiva});
    guardado.Cerrar();
    ++conjunto.total;
    ++conjunto.activas;

    base::ArchivoDe<RegistroColumna> almacen(conjunto.almacen);
    almacen.Anadir({columna, {' ', ' '}, ' '});
    almacen.Cerrar();

    MostrarPrecio(comb, jugada, entorno.ajustes);
    entorno.dialogo.Mensaje(kMsgAleatoria);
}

void AleatoriaCon(Combinacion& comb, const EntornoBoletos& entorno) {
    Aleatoria(comb, Jugada::Condicionada, entorno);
}

void AleatoriaRed(Combinacion& comb, const EntornoBoletos& entorno) {
    Aleatoria(comb, Jugada::Reducida, entorno);
}

void MarcarJugada(Combinacion& comb, Jugada jugada) {
    EscribirJugada(comb.ruta, jugada);
    comb.jugada = std::string(CampoJugada(jugada));
}

void ElegirJugada(Combinacion& comb, Jugada jugada, const EntornoBoletos& entorno,
                  const std::function<bool()>& anadirManual) {
    ExigirColumnasGuardadas(ConjuntoDe(comb, jugada, entorno.carpetaTrabajo), jugada);
    MarcarJugada(comb, jugada);

    if (UnaSolaEnElUltimoBoleto(ApuestasJugadas(comb, jugada))) {
        const bool aMano =
            entorno.dialogo.PreguntaSiNo(kPreguntaAnadirManual) == base::Respuesta::Si;
        if (!aMano || !anadirManual()) Aleatoria(comb, jugada, entorno);
    }
    MostrarPrecio(comb, jugada, entorno.ajustes);
}

}  // namespace quinteva::builders
