#include "seasons/teams.h"

#include <algorithm>
#include <cctype>
#include <system_error>

#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::seasons {
namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 2> kClaveEquipos = {"NEq1", "NEq2"};

// El valor de un campo de cifras como lo toma el programa: las cifras del principio; 0 sin
// ninguna. Un número muy largo se queda grande, para que dé Desbordamiento y no una vuelta.
int ValorDeCampo(std::string_view campo) {
    campo = base::Recortar(campo);
    long valor = 0;
    for (char c : campo) {
        if (std::isdigit(static_cast<unsigned char>(c)) == 0) break;
        valor = std::min(valor * 10 + (c - '0'), 1'000'000L);
    }
    return static_cast<int>(valor);
}

bool SoloCifras(std::string_view texto) {
    return !texto.empty() && std::all_of(texto.begin(), texto.end(), [](char c) {
        return std::isdigit(static_cast<unsigned char>(c)) != 0;
    });
}

// El orden de las listas: sin distinguir mayúsculas ni tildes, la "ñ" tras la "n".
std::string ClaveOrden(std::string_view nombre) {
    constexpr std::string_view kConTilde = "\xE1\xC1\xE9\xC9\xED\xCD\xF3\xD3\xFA\xDA\xFC\xDC";
    constexpr std::string_view kSinTilde = "aaeeiioouuuu";
    std::string clave;
    for (const char c : base::AWindows1252(nombre)) {
        const auto tilde = kConTilde.find(c);
        if (tilde != std::string_view::npos) {
            clave += kSinTilde[tilde];
        } else if (c == '\xF1' || c == '\xD1') {
            clave += "n~";
        } else {
            clave += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return clave;
}

void Ordenar(std::vector<std::string>& equipos) {
    std::stable_sort(equipos.begin(), equipos.end(),
                     [](const auto& a, const auto& b) { return ClaveOrden(a) < ClaveOrden(b); });
}

// El equipo con su nombre, su división y su valoración, de la Temporada dada, y el resto
// (puesto, cifras de la clasificación y puestos por Jornada) a cero.
RegEquipo SinCifras(const RegEquipo& e, std::string_view temporada) {
    RegEquipo limpio;
    limpio.temporada = temporada;
    limpio.nombre = e.nombre;
    limpio.division = e.division;
    limpio.valoracion = e.valoracion;
    return limpio;
}

// Sin el error del sistema en inglés: el texto que leerá el usuario.
void Exigir(const std::error_code& error, std::string texto) {
    if (error) throw base::Error(std::move(texto));
}

void CambiarEquipos(const fs::path& nomeq, auto cambio) {
    base::ArchivoDe<RegEquipo> equipos(nomeq);
    for (std::int32_t n = 1; n <= equipos.Cuenta(); ++n) {
        RegEquipo e = equipos.Leer(n);
        if (cambio(e)) equipos.Escribir(n, e);
    }
    equipos.Cerrar();
}

std::uintmax_t Longitud(const fs::path& ruta) {
    std::error_code error;
    const auto longitud = fs::file_size(ruta, error);
    return error ? 0 : longitud;
}

}  // namespace

std::vector<std::string> NombresDeLaDivision(const fs::path& carpetaTemporada, int division) {
    std::vector<std::string> nombres;
    const base::ArchivoDe<RegEquipo> nomeq(carpetaTemporada / kNomeq);
    for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
        const RegEquipo e = nomeq.Leer(n);
        if (e.division == division) nombres.emplace_back(base::Recortar(e.nombre));
    }
    return nombres;
}

std::string MsgDivisionCompleta(std::string_view numero) {
    return "Ya hay introducidos " + std::string(numero) + " Equipos.";
}

std::string PreguntaModificarEquipo(std::string_view nombre) {
    return "Está seguro de que desea modificar el Equipo " + std::string(nombre) + "?";
}

std::string PreguntaModificarValoracion(std::string_view nombre) {
    return "Está seguro de que desea modificar la valoración del Equipo " + std::string(nombre) +
           "?";
}

std::string PreguntaEliminarEquipo(std::string_view nombre) {
    return "Está seguro de que desea eliminar el Equipo " + std::string(nombre) + "?";
}

VentanaEquipos::VentanaEquipos(fs::path carpetaTrabajo, fs::path carpetaTemporada,
                               base::Ajustes& ajustes, base::Dialogo& dialogo)
    : carpetaTrabajo_(std::move(carpetaTrabajo)),
      carpetaTemporada_(std::move(carpetaTemporada)),
      ajustes_(ajustes),
      dialogo_(dialogo) {}

void VentanaEquipos::Abrir() {
    for (std::size_t d = 0; d < divisiones_.size(); ++d) {
        divisiones_[d] = {{}, ajustes_.Leer(base::kAplicacion, "Valores", kClaveEquipos[d], "")};
    }
    base::ArchivoDe<RegEquipo> equipos(carpetaTemporada_ / kNomeq);
    temporada_ = equipos.Cuenta() > 0 ? std::string(base::Recortar(equipos.Leer(1).temporada)) : "";
    for (std::int32_t n = 1; n <= equipos.Cuenta(); ++n) {
        const RegEquipo e = equipos.Leer(n);
        if (e.division == 1 || e.division == 2) {
            divisiones_[static_cast<std::size_t>(e.division - 1)].equipos.emplace_back(
                base::Recortar(e.nombre));
        }
    }
    for (auto& d : divisiones_) Ordenar(d.equipos);
    soloMirar_ = Longitud(carpetaTemporada_ / kJlig2) > 0;
    modo_ = ModoEquipos::Anadir;
    filaElegida_ = -1;
}

bool VentanaEquipos::HayJornadasDeLiga() const { return Longitud(carpetaTemporada_ / kJlig2) > 0; }

void VentanaEquipos::EscribirNumero(int division, std::string_view numero) {
    if (!NumeroFijo(division)) divisiones_[static_cast<std::size_t>(division)].numero = numero;
}

void VentanaEquipos::PulsarNumero(int division) {
    if (NumeroFijo(division)) dialogo_.Mensaje(kMsgNumeroFijo);
}

bool VentanaEquipos::SalirDeNumero(int division) {
    const std::string& numero = Division(division).numero;
    if (NumeroFijo(division) || numero.empty()) return true;
    const int valor = ValorDeCampo(numero);
    if (valor < kMinimoEquipos || valor > kMaximoEquipos) {
        dialogo_.Mensaje(kMsgNumeroFueraDeLimites);
        return false;
    }
    ajustes_.Guardar(base::kAplicacion, "Valores",
                     kClaveEquipos[static_cast<std::size_t>(division)], numero);
    dialogo_.Mensaje(kMsgRectifiqueNumero);
    return true;
}

bool VentanaEquipos::TeclaTemporada(char tecla) {
    if (!TemporadaEditable()) return false;
    if (std::isdigit(static_cast<unsigned char>(tecla)) != 0 || tecla == '/') return true;
    dialogo_.Mensaje(kMsgTeclaTemporada);
    return false;
}

void VentanaEquipos::EscribirTemporada(std::string_view temporada) {
    if (TemporadaEditable()) temporada_ = temporada;
}

bool VentanaEquipos::SalirDeTemporada() {
    if (!TemporadaEditable() || temporada_.size() >= 5) return true;
    dialogo_.Mensaje(kMsgTemporadaCorta);
    return false;
}

bool VentanaEquipos::IntroEnNombre(int division, std::string_view nombre,
                                   std::string_view valoracion) {
    if (soloMirar_ && modo_ == ModoEquipos::Anadir) return false;
    return modo_ == ModoEquipos::Anadir ? Anadir(division, nombre, valoracion)
                                        : CambiarNombre(division, nombre, valoracion);
}

bool VentanaEquipos::Anadir(int division, std::string_view nombre, std::string_view valoracion) {
    ListaDivision& lista = divisiones_[static_cast<std::size_t>(division)];
    if (lista.numero.empty()) {
        dialogo_.Mensaje(kMsgFaltaNumero);
        return false;
    }
    if (temporada_.empty()) {
        dialogo_.Mensaje(kMsgFaltaTemporada);
        return false;
    }
    if (static_cast<int>(lista.equipos.size()) >= ValorDeCampo(lista.numero)) {
        dialogo_.Mensaje(MsgDivisionCompleta(lista.numero));
        return false;
    }
    const std::string recortado(base::Recortar(nombre));
    if (recortado.empty()) return false;
    for (const auto& d : divisiones_) {
        if (std::find(d.equipos.begin(), d.equipos.end(), recortado) != d.equipos.end()) {
            dialogo_.Mensaje(kMsgEquipoRepetido);
            return false;
        }
    }
    RegEquipo equipo;
    equipo.temporada = temporada_;
    equipo.nombre = recortado;
    equipo.division = division + 1;
    equipo.valoracion = ValorDeCampo(valoracion);
    // Los bytes antes que la lista: una valoración por encima de 255 es Desbordamiento y la lista
    // no muestra un equipo que no está en el archivo.
    const auto bytes = equipo.ABytes();
    base::ArchivoRegistros archivo(carpetaTemporada_ / kNomeq, RegEquipo::kLongitud);
    archivo.Anadir(bytes);
    archivo.Cerrar();
    lista.equipos.push_back(recortado);
    Ordenar(lista.equipos);
    return true;
}

std::pair<std::string, std::string> VentanaEquipos::ElegirParaModificar(int division, int fila) {
    const std::string& nombre = Division(division).equipos.at(static_cast<std::size_t>(fila));
    int valoracion = 0;
    base::ArchivoDe<RegEquipo> equipos(carpetaTemporada_ / kNomeq);
    for (std::int32_t n = 1; n <= equipos.Cuenta(); ++n) {
        const RegEquipo e = equipos.Leer(n);
        if (base::Recortar(e.nombre) == nombre) valoracion = e.valoracion;
    }
    divisionElegida_ = division;
    filaElegida_ = fila;
    modo_ = ModoEquipos::Modificar;
    return {nombre, std::to_string(valoracion)};
}

bool VentanaEquipos::CambiarNombre(int division, std::string_view nombre,
                                   std::string_view valoracion) {
    if (filaElegida_ < 0 || division != divisionElegida_ || base::Recortar(nombre).empty()) {
        return false;
    }
    if (HayJornadasDeLiga()) {
        dialogo_.Mensaje(kMsgNoModificar);
        return false;
    }
    if (dialogo_.PreguntaSiNo(PreguntaModificarEquipo(base::Recortar(nombre))) !=
        base::Respuesta::Si) {
        return false;
    }
    Reescribir(nombre, valoracion);
    return true;
}

bool VentanaEquipos::IntroEnValoracion(int division, std::string_view nombre,
                                       std::string_view valoracion) {
    if (modo_ != ModoEquipos::Modificar || filaElegida_ < 0 || division != divisionElegida_) {
        return false;
    }
    if (base::Recortar(nombre).empty()) {
        dialogo_.Mensaje(kMsgFaltaNombre);
        return false;
    }
    if (base::Recortar(valoracion).empty()) {
        dialogo_.Mensaje(kMsgFaltaValoracion);
        return false;
    }
    if (dialogo_.PreguntaSiNo(PreguntaModificarValoracion(base::Recortar(nombre))) !=
        base::Respuesta::Si) {
        return false;
    }
    Reescribir(nombre, valoracion);
    return true;
}

void VentanaEquipos::Reescribir(std::string_view nombre, std::string_view valoracion) {
    std::string& fila = divisiones_[static_cast<std::size_t>(divisionElegida_)].equipos.at(
        static_cast<std::size_t>(filaElegida_));
    const std::string nuevo(base::Recortar(nombre));
    const int valor = ValorDeCampo(valoracion);
    CambiarEquipos(carpetaTemporada_ / kNomeq, [&](RegEquipo& e) {
        if (base::Recortar(e.nombre) != fila) return false;
        e.nombre = nuevo;
        e.valoracion = valor;
        return true;
    });
    fila = nuevo;
    modo_ = ModoEquipos::Anadir;
    filaElegida_ = -1;
}

bool VentanaEquipos::Eliminar(int division, int fila) {
    auto& equipos = divisiones_[static_cast<std::size_t>(division)].equipos;
    const std::string nombre = equipos.at(static_cast<std::size_t>(fila));
    if (base::CuentaRegistros(carpetaTemporada_ / kJlig2, RegPartidoLiga::kLongitud) > 0) {
        dialogo_.Mensaje(kMsgNoEliminar);
        return false;
    }
    if (dialogo_.PreguntaSiNo(PreguntaEliminarEquipo(nombre)) != base::Respuesta::Si) return false;
    const fs::path nomeq = carpetaTemporada_ / kNomeq;
    const fs::path nomeq2 = carpetaTemporada_ / kNomeq2;
    std::error_code error;
    fs::remove(nomeq2, error);
    {
        base::ArchivoDe<RegEquipo> origen(nomeq);
        base::ArchivoDe<RegEquipo> copia(nomeq2);
        for (std::int32_t n = 1; n <= origen.Cuenta(); ++n) {
            const RegEquipo e = origen.Leer(n);
            if (base::Recortar(e.nombre) != nombre) copia.Anadir(e);
        }
        copia.Cerrar();
    }
    fs::remove(nomeq, error);
    Exigir(error, "No se pudo borrar " + nomeq.string());
    fs::rename(nomeq2, nomeq, error);
    Exigir(error, "No se pudo renombrar " + nomeq2.string());
    equipos.erase(equipos.begin() + fila);
    return true;
}

std::optional<int> VentanaEquipos::PedirEquipos(std::string_view pregunta) {
    const std::string respuesta(
        base::Recortar(dialogo_.PedirTexto(pregunta, "Quinteva").value_or("")));
    if (!SoloCifras(respuesta)) {
        dialogo_.Mensaje(kMsgEquiposIncorrecto);
        return std::nullopt;
    }
    const int equipos = ValorDeCampo(respuesta);
    if (equipos > kMaximoEquiposTemporadaNueva) {
        dialogo_.Mensaje(kMsgEquiposMayor);
        return std::nullopt;
    }
    return equipos;
}

std::optional<std::string> VentanaEquipos::NuevaTemporada() {
    if (dialogo_.AceptarCancelar(kPreguntaNuevaTemporada, base::Respuesta::Cancelar) !=
        base::Respuesta::Aceptar) {
        return std::nullopt;
    }
    const std::string nueva = dialogo_.PedirTexto(kPideNuevaTemporada, "Quinteva").value_or("");
    if (nueva.size() != 5 || nueva[2] != '/') {
        dialogo_.Mensaje(kMsgFormatoTemporada);
        return std::nullopt;
    }
    const std::string nombreCarpeta = NombreCarpetaTemporada(nueva);
    const fs::path carpeta = carpetaTrabajo_ / nombreCarpeta;
    // Una temporada con el nombre de otra que ya existe la vuelve a empezar: lo que había se
    // pierde.
    std::error_code error;
    fs::remove_all(carpeta, error);
    Exigir(error, "No se pudo borrar la carpeta " + carpeta.string());
    fs::create_directories(carpeta, error);
    Exigir(error, "No se pudo crear la carpeta " + carpeta.string());
    for (std::string_view archivo : {kNomeq, kJornadas}) {
        if (!fs::exists(carpetaTemporada_ / archivo)) continue;
        fs::copy_file(carpetaTemporada_ / archivo, carpeta / archivo, error);
        Exigir(error, "No se pudo copiar " + std::string(archivo) + " a " + carpeta.string());
    }
    const auto equipos1 = PedirEquipos(kPideEquipos1);
    if (!equipos1) return std::nullopt;
    const auto equipos2 = PedirEquipos(kPideEquipos2);
    if (!equipos2) return std::nullopt;

    temporada_ = nueva;
    const std::array<int, 2> numeros = {*equipos1, *equipos2};
    for (std::size_t d = 0; d < divisiones_.size(); ++d) {
        divisiones_[d].numero = std::to_string(numeros[d]);
        ajustes_.Guardar(base::kAplicacion, "Valores", kClaveEquipos[d], divisiones_[d].numero);
    }
    soloMirar_ = false;
    modo_ = ModoEquipos::Anadir;
    FijarTemporadaActual(carpetaTrabajo_, nombreCarpeta);
    carpetaTemporada_ = carpeta;
    CambiarEquipos(carpeta / kNomeq, [&](RegEquipo& e) {
        e = SinCifras(e, nueva);
        return true;
    });
    dialogo_.Mensaje(kMsgTemporadaCreada);
    return "Temporada " + nueva;
}

void VentanaEquipos::TodoACero() {
    CambiarEquipos(carpetaTemporada_ / kNomeq, [](RegEquipo& e) {
        e = SinCifras(e, kTemporadaACero);
        return true;
    });
    base::ArchivoDe<RegPartidoLiga> partidos(carpetaTemporada_ / kJlig2);
    for (std::int32_t n = 1; n <= partidos.Cuenta(); ++n) {
        RegPartidoLiga p = partidos.Leer(n);
        p.golesLocal = p.golesVisitante = 0;
        partidos.Escribir(n, p);
    }
    partidos.Cerrar();
}

}  // namespace quinteva::seasons
