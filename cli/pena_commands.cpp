// pena: las cuentas de una Peña de la temporada en curso, por su nombre reducido.
#include <iostream>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/settings_ini.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "engine/pricing.h"
#include "outputs/pdf_writer.h"
#include "seasons/pools.h"
#include "syndicates/ledger.h"
#include "syndicates/participants.h"
#include "syndicates/reports.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso =
    "pena nueva NOMBRE --corto CORTO | pena apostante CORTO --nombre N | pena cuotas CORTO "
    "--apostante N --importe E --desde J --hasta K | pena jornada CORTO --jornada J [--columnas "
    "N] [--acertadas c15,...,c10] [--premios p15,...,p10] [--gastos G] [--cerrar] [--distribuir] "
    "| pena informe CORTO [--apostante N] [--json | --pdf F.pdf]";

[[noreturn]] void Uso() { throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)}; }

// La Peña de ese nombre reducido en la carpeta de Peñas de la temporada en curso.
syndicates::ArchivosPena Pena(const Argumentos& a) {
    if (a.Posicionales().size() != 2) Uso();
    const auto carpeta = syndicates::CarpetaDePenas(a.CarpetaTrabajo());
    const syndicates::ArchivosPena pena(carpeta / a.Posicionales()[1]);
    if (!std::filesystem::exists(pena.Archivo(syndicates::kExtPena))) {
        throw base::Error("No existe la Peña " + a.Posicionales()[1] + " en " + carpeta.string());
    }
    return pena;
}

std::size_t ApostanteDe(const syndicates::ArchivosPena& pena, const std::string& nombre) {
    const auto i = syndicates::BuscarApostante(pena.LeerApostantes(), nombre);
    if (!i) throw base::Error("No hay ningún apostante " + nombre + " en la Peña");
    return *i;
}

int NuevaPena(const Argumentos& a, std::ostream& salida) {
    if (a.Posicionales().size() != 2) Uso();
    syndicates::RegPena datos;
    datos.nombre = a.Posicionales()[1];
    datos.nombreReducido = a.Exigir("corto", kUso);
    datos.temporada =
        a.Valor("temporada").value_or(syndicates::TemporadaEnCurso(a.CarpetaTrabajo()));
    datos.ciudad = a.Valor("ciudad").value_or("");
    datos.titular = a.Valor("titular").value_or("");
    datos.email = a.Valor("email").value_or("");
    DialogoDeOrdenes dialogo(std::cerr);
    const auto ruta = syndicates::CrearDatosPena(a.CarpetaTrabajo(), datos, dialogo);
    if (!ruta) return 1;
    salida << "Creada " << ruta->string() << '\n';
    return 0;
}

int NuevoApostante(const Argumentos& a) {
    const auto pena = Pena(a);
    syndicates::RegApostante datos;
    datos.nombre = a.Exigir("nombre", kUso);
    datos.nif = a.Valor("nif").value_or("");
    datos.telefono = a.Valor("telefono").value_or("");
    datos.email = a.Valor("email").value_or("");
    DialogoDeOrdenes dialogo(std::cerr);
    return syndicates::AnadirApostante(pena, datos, dialogo) ? 0 : 1;
}

int Cuotas(const Argumentos& a) {
    const auto pena = Pena(a);
    const std::size_t apostante = ApostanteDe(pena, a.Exigir("apostante", kUso));
    DialogoDeOrdenes dialogo(std::cerr);
    const bool guardadas = syndicates::IntroducirCuotas(pena, apostante, a.Exigir("importe", kUso),
                                                        a.Exigir("desde", kUso),
                                                        a.Valor("hasta").value_or(""), dialogo);
    return guardadas ? 0 : 1;
}

// Seis cifras separadas por comas, de 15 a 10 aciertos.
std::array<std::string, 6> Seis(const Argumentos& a, std::string_view opcion,
                                const std::array<std::string, 6>& antes) {
    const auto valor = a.Valor(opcion);
    if (!valor) return antes;
    const auto partes = SepararPorComas(*valor);
    if (partes.size() != 6) throw ErrorDeUso{"--" + std::string(opcion) + " lleva seis cifras"};
    std::array<std::string, 6> seis;
    std::copy(partes.begin(), partes.end(), seis.begin());
    return seis;
}

void MostrarPagina(const syndicates::PaginaJornada& p, bool json, std::ostream& salida) {
    if (json) {
        salida << "{\"Jornada\": " << p.jornada << ", \"Fecha\": " << TextoJson(p.fecha)
               << ", \"NumColumnas\": " << TextoJson(p.numColumnas)
               << ", \"Importe\": " << TextoJson(p.importe)
               << ", \"Estado\": " << TextoJson(p.cerrada ? "Cerrada" : "Abierta")
               << ", \"TotalCobrado\": " << TextoJson(p.totalCobrado)
               << ", \"Gastos\": " << TextoJson(p.gastos)
               << ", \"ARepartir\": " << TextoJson(p.aRepartir) << ", \"Apostantes\": [";
        const char* coma = "";
        for (const auto& f : p.filas) {
            salida << coma << "{\"Nombre\": " << TextoJson(f.nombre)
                   << ", \"Jugado\": " << TextoJson(f.jugado)
                   << ", \"Participacion\": " << TextoJson(f.participacion)
                   << ", \"Obtenido\": " << TextoJson(f.obtenido) << '}';
            coma = ", ";
        }
        salida << "]}\n";
        return;
    }
    salida << "Jornada " << p.jornada << "  " << p.fecha << "  "
           << (p.cerrada ? "Cerrada" : "Abierta") << "\nNº Columnas: " << p.numColumnas
           << "  Importe (euros): " << p.importe << "  Nº de Apostantes: " << p.NumApostantes()
           << '\n';
    for (std::size_t i = 0; i < p.acertadas.size(); ++i) {
        salida << "De " << 15 - i << ": " << p.acertadas[i] << " x " << p.premios[i] << '\n';
    }
    salida << "Total cobrado: " << p.totalCobrado << "  Gastos: " << p.gastos
           << "  A repartir: " << p.aRepartir << '\n';
    for (const auto& f : p.filas) {
        salida << f.nombre << '\t' << f.jugado << '\t' << f.participacion << '\t' << f.obtenido
               << '\n';
    }
    salida << "Total\t" << p.totalJugado << "\t100%\t" << p.totalObtenido << '\n';
}

int Jornada(const Argumentos& a, std::ostream& salida) {
    const auto pena = Pena(a);
    const std::string texto = a.Exigir("jornada", kUso);
    int jornada = 0;
    try {
        jornada = std::stoi(texto);
    } catch (const std::exception&) {
        Uso();
    }
    if (jornada < 1 || jornada > syndicates::kJornadasPena) Uso();
    DialogoDeOrdenes dialogo(std::cerr);
    auto p = syndicates::LlenarFlex1(pena, jornada,
                                     seasons::FechaDeJornadaEnCurso(a.CarpetaTrabajo(), jornada));
    p.acertadas = Seis(a, "acertadas", p.acertadas);
    p.premios = Seis(a, "premios", p.premios);
    if (const auto gastos = a.Valor("gastos")) p.gastos = *gastos;
    if (const auto columnas = a.Valor("columnas")) {
        const base::AjustesIni ajustes(a.CarpetaTrabajo());
        if (!syndicates::TeclearColumnas(p, *columnas, engine::PrecioColumna(ajustes), dialogo)) {
            return 1;
        }
    }
    syndicates::ReCalculo(p);
    if (a.Marca("cerrar") && !syndicates::CerrarJornada(pena, p, dialogo)) return 1;
    if (a.Marca("distribuir")) {
        if (!syndicates::PuedeDistribuir(p)) throw base::Error("No hay nada que distribuir");
        syndicates::Distribuir(p);
    }
    syndicates::GuardarPagina(pena, p);
    MostrarPagina(p, a.Json(), salida);
    return 0;
}

void MostrarCuentas(const syndicates::Cuentas& c, bool json, std::ostream& salida) {
    if (json) {
        salida << "{\"JornadasJugadas\": " << c.jornadasJugadas
               << ", \"Invertido\": " << TextoJson(c.invertido)
               << ", \"Obtenido\": " << TextoJson(c.obtenido)
               << ", \"Gastos\": " << TextoJson(c.gastos)
               << ", \"Resultado\": " << TextoJson(c.resultado)
               << ", \"Porcentaje\": " << (c.porcentaje ? TextoJson(*c.porcentaje) : "null")
               << ", \"Jornadas\": [";
        const char* coma = "";
        for (const auto& f : c.filas) {
            salida << coma << "{\"Jornada\": " << f.jornada
                   << ", \"Invertido\": " << TextoJson(f.invertido)
                   << ", \"Obtenido\": " << TextoJson(f.obtenido)
                   << ", \"Gastos\": " << TextoJson(f.gastos)
                   << ", \"Resultado\": " << TextoJson(f.resultado) << '}';
            coma = ", ";
        }
        salida << "]}\n";
        return;
    }
    salida << "Jornadas jugadas: " << c.jornadasJugadas << "\nInvertido (euros): " << c.invertido
           << "\nObtenido (euros): " << c.obtenido << "\nTotal Gastos (euros): " << c.gastos
           << "\nResultado (euros): " << c.resultado << '\n';
    if (c.porcentaje) salida << "Resultado (%): " << *c.porcentaje << '\n';
    for (const auto& f : c.filas) {
        salida << f.jornada << '\t' << f.invertido << '\t' << f.obtenido << '\t' << f.gastos << '\t'
               << f.resultado << '\n';
    }
}

int Informe(const Argumentos& a, std::ostream& salida) {
    const auto pena = Pena(a);
    const auto datos = pena.LeerPena();
    const auto nombre = a.Valor("apostante");
    std::optional<syndicates::RegApostante> apostante;
    if (nombre) apostante = pena.LeerApostantes()[ApostanteDe(pena, *nombre)];
    const syndicates::Cuentas cuentas = apostante ? syndicates::CuentasDeApostante(*apostante)
                                                  : syndicates::CuentasDePena(pena.LeerJornadas());
    if (const auto pdf = a.Valor("pdf")) {
        const auto hoja = apostante ? syndicates::ImpresionApostantes(datos, {*apostante})
                                    : syndicates::ImpresionInformePena(datos, cuentas);
        base::EscribirAtomico(*pdf, outputs::PdfDeImpresion(hoja));
        return 0;
    }
    MostrarCuentas(cuentas, a.Json(), salida);
    return 0;
}

}  // namespace

int PenaCmd(const Argumentos& a, std::ostream& salida) {
    if (a.Posicionales().empty()) Uso();
    const std::string& accion = a.Posicionales().front();
    if (accion == "nueva") return NuevaPena(a, salida);
    if (accion == "apostante") return NuevoApostante(a);
    if (accion == "cuotas") return Cuotas(a);
    if (accion == "jornada") return Jornada(a, salida);
    if (accion == "informe") return Informe(a, salida);
    Uso();
}

OpcionesAdmitidas OpcionesPena() {
    return {{"corto", "temporada", "ciudad", "titular", "email", "nombre", "nif", "telefono",
             "apostante", "importe", "desde", "hasta", "jornada", "columnas", "acertadas",
             "premios", "gastos", "pdf"},
            {"cerrar", "distribuir"}};
}

}  // namespace quinteva::cli
