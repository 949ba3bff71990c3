#include "outputs/slip_view.h"

#include "outputs/played_set.h"

namespace quinteva::outputs {

VistaQuinielas::VistaQuinielas(const std::filesystem::path& uxd, std::string fecha)
    : fecha_(std::move(fecha)) {
    const JuegoJugado juego = LeerJuegoJugado(uxd);
    jornada_ = juego.jornada;
    columnas_ = LeerColumnas(juego.columnas, true);
}

std::string VistaQuinielas::Cabecera() const {
    return "JORNADA " + std::to_string(jornada_) + ",  Fecha " + fecha_;
}

std::string VistaQuinielas::Titulo(int numero) { return "Quiniela Nº" + std::to_string(numero); }

std::vector<std::string> VistaQuinielas::Todas() const {
    std::vector<std::string> lineas;
    for (int i = 0; i < Cuenta(); ++i) {
        const engine::RegistroColumna& c = Columna(i);
        lineas.push_back(Titulo(i + 1) + "  " + engine::TextoDeColumna(c.columna) + "  " +
                         std::string(1, c.pleno[0]) + "-" + std::string(1, c.pleno[1]));
    }
    return lineas;
}

}  // namespace quinteva::outputs
