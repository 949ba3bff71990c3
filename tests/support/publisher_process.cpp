#include "tests/support/publisher_process.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace quinteva::pruebas {

ServidorPublicando::ServidorPublicando(const std::filesystem::path& programa,
                                       const std::filesystem::path& carpeta) {
    int tubo[2];
    if (pipe(tubo) != 0) throw std::runtime_error("pipe");
    proceso_ = fork();
    if (proceso_ == 0) {
        dup2(tubo[1], STDOUT_FILENO);
        close(tubo[0]);
        close(tubo[1]);
        execl(programa.c_str(), programa.c_str(), "--carpeta", carpeta.c_str(), "--puerto", "0",
              static_cast<char*>(nullptr));
        _exit(127);
    }
    close(tubo[1]);
    // La primera línea dice dónde escucha: "Quinteva publica DIR en http://127.0.0.1:PUERTO".
    std::string linea;
    char c = 0;
    while (read(tubo[0], &c, 1) == 1 && c != '\n') linea.push_back(c);
    close(tubo[0]);
    const auto http = linea.rfind("http://");
    if (http == std::string::npos) {
        kill(proceso_, SIGTERM);
        waitpid(proceso_, nullptr, 0);
        throw std::runtime_error("quinteva-servidor no arrancó: " + linea);
    }
    direccion_ = linea.substr(http);
}

ServidorPublicando::~ServidorPublicando() {
    kill(proceso_, SIGTERM);
    waitpid(proceso_, nullptr, 0);
}

}  // namespace quinteva::pruebas
