#pragma once

#include <fstream>
#include <string>

namespace quinteva::medicion {

// El pico de memoria residente del proceso en MiB (VmHWM de /proc/self/status); 0 si no se sabe.
inline double PicoMemoriaMiB() {
    std::ifstream estado("/proc/self/status");
    std::string linea;
    while (std::getline(estado, linea)) {
        if (linea.rfind("VmHWM:", 0) == 0) return std::stod(linea.substr(6)) / 1024.0;
    }
    return 0.0;
}

}  // namespace quinteva::medicion
