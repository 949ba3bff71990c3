// quinteva-servidor: publica desde una carpeta lo que pide la actualización por Internet, para las
// pruebas y para quien quiera publicar su temporada.
#include <httplib.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "base/error.h"
#include "cli/arguments.h"
#include "server/publisher.h"

namespace {

using quinteva::servidor::Publicacion;

constexpr std::string_view kUso =
    "Uso: quinteva-servidor --carpeta DIR [--puerto N] [--direccion 127.0.0.1] "
    "[--publicacion NOMBRE]\n"
    "  Sirve DIR desde la raíz; los archivos de la actualización van en DIR/NOMBRE/Quinteva\n"
    "  (NOMBRE es \"descargas\" si no se dice). Con --puerto 0 elige un puerto libre.";

void Paginas(httplib::Server& servidor, const Publicacion& publicacion) {
    // Un archivo de la carpeta con el nombre de la página la sustituye: así se publica una
    // respuesta a mano. Los archivos se miran antes que estas páginas.
    servidor.Get("/QVactualizar.asp", [publicacion](const httplib::Request&, httplib::Response& r) {
        r.set_content(quinteva::servidor::RespuestaCarpeta(publicacion), "text/html");
    });
    servidor.Get("/VersionActual.asp",
                 [publicacion](const httplib::Request&, httplib::Response& r) {
                     r.set_content(quinteva::servidor::RespuestaVersion(publicacion), "text/html");
                 });
}

int Servir(const quinteva::cli::Argumentos& argumentos) {
    const auto carpeta = argumentos.Valor("carpeta");
    if (!carpeta || !argumentos.Posicionales().empty())
        throw quinteva::cli::ErrorDeUso{std::string(kUso)};
    Publicacion publicacion{*carpeta};
    if (const auto nombre = argumentos.Valor("publicacion")) publicacion.nombre = *nombre;
    const std::string direccion = argumentos.Valor("direccion").value_or("127.0.0.1");
    const int puertoPedido = std::atoi(argumentos.Valor("puerto").value_or("8080").c_str());

    httplib::Server servidor;
    if (!servidor.set_mount_point("/", publicacion.carpeta.string())) {
        throw quinteva::base::Error("No existe la carpeta " + publicacion.carpeta.string());
    }
    Paginas(servidor, publicacion);
    const int puerto = puertoPedido == 0
                           ? servidor.bind_to_any_port(direccion)
                           : (servidor.bind_to_port(direccion, puertoPedido) ? puertoPedido : -1);
    if (puerto < 0) {
        throw quinteva::base::Error("No se puede escuchar en " + direccion + ":" +
                                    std::to_string(puertoPedido));
    }
    std::cout << "Quinteva publica " << publicacion.carpeta.string() << " en http://" << direccion
              << ':' << puerto << std::endl;
    return servidor.listen_after_bind() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const quinteva::cli::Argumentos argumentos(std::vector<std::string>(argv + 1, argv + argc),
                                                   {{"puerto", "direccion", "publicacion"}, {}});
        return Servir(argumentos);
    } catch (const quinteva::cli::ErrorDeUso& e) {
        std::cerr << e.texto << '\n';
        return 2;
    } catch (const std::exception& e) {
        std::cerr << "Error: " << e.what() << '\n';
        return 1;
    }
}
