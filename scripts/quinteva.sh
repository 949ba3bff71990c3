#!/usr/bin/env bash
# Prepara la máquina (paquetes de Debian que falten), compila y, según la orden:
#   ejecutar  arranca el programa de escritorio;
#   pruebas   pasa todas las pruebas sin pantalla y, otra vez, las del núcleo con ASan y UBSan.
# Se puede repetir: lo que ya está hecho no se vuelve a hacer.
set -euo pipefail

orden="${1:-ejecutar}"
raiz="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$raiz"

# La lista de paquetes de Debian, sin comentarios ni líneas vacías.
mapfile -t paquetes < <(sed 's/#.*//; /^[[:space:]]*$/d' scripts/paquetes.txt)

instalar_lo_que_falta() {
  local faltan=()
  for p in "${paquetes[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || faltan+=("$p")
  done
  [ ${#faltan[@]} -eq 0 ] && return 0
  echo "Instalando: ${faltan[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${faltan[@]}"
}

compilar() {
  local preset="$1"
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j "$(nproc)"
}

# Una pasada corta de cada objetivo de libFuzzer sobre su corpus: ninguna entrada lo tumba.
fuzz() {
  compilar fuzz
  local corpus
  for objetivo in fuzz_json_bag fuzz_cabecera fuzz_ad243 fuzz_temporada fuzz_respuesta \
    fuzz_importar; do
    corpus="build/fuzz/corpus/$objetivo"
    mkdir -p "$corpus"
    [ -d "fuzz/corpus/$objetivo" ] && cp -n fuzz/corpus/$objetivo/* "$corpus"/ 2>/dev/null || true
    "build/fuzz/fuzz/$objetivo" "$corpus" -max_total_time=20 -max_len=8192 -timeout=10 \
      -print_final_stats=0 2>&1 | tail -n 2
  done
}

instalar_lo_que_falta
case "$orden" in
  ejecutar)
    compilar dev
    exec build/dev/app/quinteva "${@:2}"
    ;;
  pruebas)
    scripts/comprobar_paquetes.sh
    compilar dev
    QT_QPA_PLATFORM=offscreen ctest --preset dev -j "$(nproc)"
    fuzz
    compilar asan
    ctest --preset asan -j "$(nproc)"
    ;;
  *)
    echo "Uso: scripts/quinteva.sh ejecutar|pruebas" >&2
    exit 2
    ;;
esac
