#include "syndicates/participants.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "base/record_files.h"
#include "base/text1252.h"

namespace quinteva::syndicates {

namespace {

std::string Nombre(const RegApostante& a) { return std::string(base::Recortar(a.nombre)); }

bool TieneCuotas(const RegApostante& a) {
    return std::any_of(a.cuotas.begin(), a.cuotas.end(), [](float c) { return c > 0.0F; });
}

// Comprueba el nombre de los datos: que lo haya y que no sea el de otro que el excluido.
bool NombreValido(const std::vector<RegApostante>& apostantes, const RegApostante& datos,
                  std::optional<std::size_t> excluido, base::Dialogo& dialogo) {
    if (Nombre(datos).empty()) {
        dialogo.Mensaje(kMsgFaltaNombreApostante, base::Icono::Aviso);
        return false;
    }
    for (std::size_t i = 0; i < apostantes.size(); ++i) {
        if (i != excluido && base::MismoTextoSinMayusculas(apostantes[i].nombre, datos.nombre)) {
            dialogo.Mensaje(MsgApostanteYaExiste(Nombre(datos)), base::Icono::Aviso);
            return false;
        }
    }
    return true;
}

// Un número de Jornada escrito: nada si no lo hay o no es un número.
std::optional<int> Jornada(std::string_view texto) {
    texto = base::Recortar(texto);
    int n = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    if (texto.empty() || error != std::errc{} || fin != texto.data() + texto.size()) {
        return std::nullopt;
    }
    return n;
}

// Un importe escrito con coma o punto decimal, en float32; nada si no lo hay.
std::optional<float> Importe(std::string_view texto) {
    std::string t(base::Recortar(texto));
    std::replace(t.begin(), t.end(), ',', '.');
    float valor = 0;
    const auto [fin, error] = std::from_chars(t.data(), t.data() + t.size(), valor);
    if (t.empty() || error != std::errc{} || fin != t.data() + t.size()) return std::nullopt;
    return valor;
}

// Los pasos 1 a 5 de "Introducir cuotas": el Apostante, el importe y el rango.
struct Rango {
    float importe = 0;
    int desde = 0;
    int hasta = 0;
};
std::optional<Rango> ComprobarCuotas(std::optional<std::size_t> elegido, std::string_view importe,
                                     std::string_view desde, std::string_view hasta,
                                     base::Dialogo& dialogo) {
    const auto aviso = [&](std::string_view texto) {
        dialogo.Mensaje(texto, base::Icono::Aviso);
        return std::nullopt;
    };
    if (!elegido) return aviso(kMsgSeleccioneDeLaLista);
    const auto cuota = Importe(importe);
    if (!cuota || *cuota <= 0.0F) return aviso(kMsgFaltaImporte);
    const auto inicial = Jornada(desde);
    if (!inicial || *inicial < 1) return aviso(kMsgFaltaJornadaInicial);
    const int final = Jornada(hasta).value_or(*inicial);
    if (final < *inicial) return aviso(kMsgFinalMenor);
    if (final > kJornadasPena) return aviso(kMsgJornadaMaxima);
    return Rango{*cuota, *inicial, final};
}

RegApostante SinImportes(RegApostante datos, const std::string& temporada) {
    datos.cuotas.fill(0.0F);
    datos.obtenido.fill(0.0F);
    datos.temporada = temporada;
    return datos;
}

}  // namespace

std::string MsgApostanteYaExiste(std::string_view nombre) {
    return "El apostante " + std::string(nombre) +
           " ya existe en la base de datos y no puede haber dos apostantes con el mismo nombre y "
           "apellidos.";
}

std::string PreguntaModificarApostante(std::string_view nombre) {
    return "Está seguro de que desea modificar los datos del apostante " + std::string(nombre) +
           "?";
}

std::string PreguntaEliminarApostante(std::string_view nombre) {
    return "Está seguro de que desea eliminar de la base de datos al apostante " +
           std::string(nombre) + "?";
}

std::string MsgNoSePuedeEliminar(std::string_view nombre) {
    return "No es posible eliminar de la base de datos al apostante " + std::string(nombre) +
           " porque tiene introducidas cuotas jugadas en algunas jornadas.";
}

std::string MsgJornadaCerradaCuotas(int jornada) {
    return "La jornada " + std::to_string(jornada) +
           " está cerrada y no se pueden modificar sus datos mientras no se abra.";
}

std::string PreguntaSustituirCuota(std::string_view nombre, float cuota, int jornada) {
    return "El apostante " + std::string(nombre) + " ya figura con una cuota de " +
           TextoDeImporte(cuota) + " euros en la Jornada " + std::to_string(jornada) +
           ". Desea sustituir esa cuota por esta nueva?";
}

std::string MsgFilaSinNombre(int fila) {
    return "Debe figurar al menos el nombre del apostante. No se importó la fila nº " +
           std::to_string(fila);
}

std::string TextoDeImporte(float importe) {
    char texto[32];
    std::snprintf(texto, sizeof texto, "%.7g", static_cast<double>(importe));
    std::string t = texto;
    std::replace(t.begin(), t.end(), '.', ',');
    return t;
}

std::optional<std::size_t> BuscarApostante(const std::vector<RegApostante>& apostantes,
                                           std::string_view nombre) {
    for (std::size_t i = 0; i < apostantes.size(); ++i) {
        if (base::MismoTextoSinMayusculas(apostantes[i].nombre, nombre)) return i;
    }
    return std::nullopt;
}

bool AnadirApostante(const ArchivosPena& pena, RegApostante datos, base::Dialogo& dialogo) {
    auto apostantes = pena.LeerApostantes();
    if (!NombreValido(apostantes, datos, std::nullopt, dialogo)) return false;
    apostantes.push_back(SinImportes(std::move(datos), pena.LeerPena().temporada));
    pena.GuardarApostantes(apostantes);
    return true;
}

bool ModificarApostante(const ArchivosPena& pena, std::optional<std::size_t> elegido,
                        RegApostante datos, base::Dialogo& dialogo) {
    auto apostantes = pena.LeerApostantes();
    if (!elegido || *elegido >= apostantes.size()) {
        dialogo.Mensaje(kMsgSeleccioneDelCuadro, base::Icono::Aviso);
        return false;
    }
    if (dialogo.PreguntaSiNo(PreguntaModificarApostante(Nombre(datos))) != base::Respuesta::Si) {
        return false;
    }
    if (!NombreValido(apostantes, datos, elegido, dialogo)) return false;
    RegApostante& a = apostantes[*elegido];
    datos.temporada = a.temporada;
    datos.cuotas = a.cuotas;
    datos.obtenido = a.obtenido;
    a = std::move(datos);
    pena.GuardarApostantes(apostantes);
    return true;
}

bool EliminarApostante(const ArchivosPena& pena, std::size_t elegido, base::Dialogo& dialogo) {
    auto apostantes = pena.LeerApostantes();
    if (elegido >= apostantes.size()) return false;
    const std::string nombre = Nombre(apostantes[elegido]);
    if (dialogo.PreguntaSiNo(PreguntaEliminarApostante(nombre)) != base::Respuesta::Si) {
        return false;
    }
    if (TieneCuotas(apostantes[elegido])) {
        dialogo.Mensaje(MsgNoSePuedeEliminar(nombre), base::Icono::Aviso);
        return false;
    }
    apostantes.erase(apostantes.begin() + static_cast<std::ptrdiff_t>(elegido));
    pena.GuardarApostantes(apostantes);
    return true;
}

bool IntroducirCuotas(const ArchivosPena& pena, std::optional<std::size_t> elegido,
                      std::string_view importe, std::string_view desde, std::string_view hasta,
                      base::Dialogo& dialogo) {
    const auto rango = ComprobarCuotas(elegido, importe, desde, hasta, dialogo);
    if (!rango) return false;
    auto apostantes = pena.LeerApostantes();
    if (*elegido >= apostantes.size()) return false;
    RegApostante& a = apostantes[*elegido];
    const auto jornadas = pena.LeerJornadas();
    bool cambiada = false;
    for (int j = rango->desde; j <= rango->hasta; ++j) {
        const auto u = static_cast<std::size_t>(j);
        if (jornadas[u - 1].cerrada == -1) {
            dialogo.Mensaje(MsgJornadaCerradaCuotas(j), base::Icono::Aviso);
            continue;
        }
        if (a.cuotas[u] > 0.0F) {
            const auto r =
                dialogo.PreguntaSiNoCancelar(PreguntaSustituirCuota(Nombre(a), a.cuotas[u], j));
            if (r == base::Respuesta::Cancelar) break;
            if (r == base::Respuesta::No) continue;
        }
        a.cuotas[u] = rango->importe;
        cambiada = true;
    }
    if (cambiada) pena.GuardarApostantes(apostantes);
    return cambiada;
}

std::optional<std::vector<RegApostante>> ElegirParticipes(const ArchivosPena& pena,
                                                          const std::filesystem::path& carpeta,
                                                          base::Dialogo& dialogo) {
    if (dialogo.PreguntaSiNo(kPreguntaImportar) != base::Respuesta::Si) return std::nullopt;
    const auto ptc = dialogo.ArchivoParaAbrir("Importar", kFiltroParticipes, carpeta);
    if (!ptc || ptc->empty()) return std::nullopt;
    std::error_code e;
    if (std::filesystem::equivalent(*ptc, pena.Archivo(kExtApostantes), e)) {
        dialogo.Mensaje(kMsgMismaPena, base::Icono::Aviso);
        return std::nullopt;
    }
    return base::LeerTodos<RegApostante>(*ptc);
}

int ImportarParticipes(const ArchivosPena& pena, const std::vector<RegApostante>& origen,
                       const std::vector<bool>& marcados, base::Dialogo& dialogo) {
    if (std::none_of(marcados.begin(), marcados.end(), [](bool m) { return m; })) {
        dialogo.Mensaje(kMsgNadaMarcado, base::Icono::Aviso);
        return 0;
    }
    auto apostantes = pena.LeerApostantes();
    const std::string temporada = pena.LeerPena().temporada;
    int importados = 0;
    for (std::size_t i = 0; i < origen.size() && i < marcados.size(); ++i) {
        if (!marcados[i]) continue;
        if (Nombre(origen[i]).empty()) {
            dialogo.Mensaje(MsgFilaSinNombre(static_cast<int>(i) + 1), base::Icono::Aviso);
            continue;
        }
        if (!NombreValido(apostantes, origen[i], std::nullopt, dialogo)) continue;
        apostantes.push_back(SinImportes(origen[i], temporada));
        ++importados;
    }
    if (importados > 0) pena.GuardarApostantes(apostantes);
    dialogo.Mensaje(kMsgImportacionTerminada);
    return importados;
}

}  // namespace quinteva::syndicates
