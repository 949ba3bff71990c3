#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace quinteva::outputs {

// El resumen MD5 de la cabecera del archivo oficial. La transformación, las constantes y el estado
// inicial son los publicados, con una desviación que se mantiene: el relleno mide 56 menos la
// posición en el bloque si esta es como mucho 56, y si no 120 menos ella, así que un mensaje de
// 56 bytes módulo 64 no lleva relleno ninguno, ni siquiera el byte 0x80. La longitud añadida son
// los 32 bits bajos de la cuenta de bits y cuatro bytes a cero.
class MD5 {
  public:
    void MD5Init();
    void MD5Update(std::span<const std::uint8_t> bytes);
    void MD5Final();

    // Los cuatro registros, cada uno con 8 cifras hexadecimales en mayúscula, byte bajo primero.
    std::string GetValues() const;

    // Un byte por carácter (su valor en Windows-1252) y el resumen en hexadecimal.
    std::string DigestStrToHexStr(std::string_view texto);
    // Lo mismo con los bytes de un archivo; Error si no se puede leer.
    std::string DigestFileToHexStr(const std::filesystem::path& ruta);

    static std::uint32_t LongLeftRotate(std::uint32_t valor, int bits);

    std::uint32_t RegisterA() const { return estado_[0]; }
    std::uint32_t RegisterB() const { return estado_[1]; }
    std::uint32_t RegisterC() const { return estado_[2]; }
    std::uint32_t RegisterD() const { return estado_[3]; }

  private:
    void Transformar(std::span<const std::uint8_t, 64> bloque);

    std::array<std::uint32_t, 4> estado_{};
    std::array<std::uint8_t, 64> bloque_{};
    std::uint64_t bytes_ = 0;
};

}  // namespace quinteva::outputs
