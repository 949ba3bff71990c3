#!/usr/bin/env bash
# Comprueba que la lista de paquetes trae cuanto lee la configuración: cada archivo de CMake
# que lee la configuración del preajuste dev, fuera del proyecto, y cada ".pc" que encuentra
# pkg-config para ella, es de un paquete de Debian que la lista instala, por sí o por sus Depends
# (sin Recommends). Así un paquete puesto a mano en una
# máquina no esconde lo que a otra le faltaría.
#   scripts/comprobar_paquetes.sh [LISTA]     (por omisión, scripts/paquetes.txt)
# Termina con 1 y el nombre de cada paquete que falta.
set -euo pipefail

raiz="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
lista="$(realpath "${1:-$raiz/scripts/paquetes.txt}")"
trabajo="$(mktemp -d)"
trap 'rm -rf "$trabajo"' EXIT

# pkg-config, que la configuración llama por FindPkgConfig, anota los ".pc" que encuentra.
pkg_config_anotado() {
  local real
  real="$(command -v pkg-config)" || return 0
  printf '#!/bin/sh\nexec "%s" --debug "$@" 2>>"%s"\n' "$real" "$trabajo/pkg-config.log" \
    >"$trabajo/pkg-config"
  chmod +x "$trabajo/pkg-config"
  echo "-DPKG_CONFIG_EXECUTABLE=$trabajo/pkg-config"
}

# Los archivos de CMake que lee la configuración (los de su traza) y los ".pc" que encontró
# pkg-config, fuera del proyecto y de la carpeta de prueba.
archivos_de_la_configuracion() {
  local anotado
  anotado="$(pkg_config_anotado)"
  (cd "$raiz" && cmake --preset dev -B "$trabajo/build" ${anotado:+"$anotado"} --trace-expand \
    --trace-format=json-v1 --trace-redirect="$trabajo/traza.json") \
    >"$trabajo/configurar.log" 2>&1 || {
    cat "$trabajo/configurar.log" >&2
    echo "La configuración falló: falta algún paquete en $lista" >&2
    exit 1
  }
  {
    grep -o '"file":"[^"]*"' "$trabajo/traza.json" | sed 's/^"file":"//; s/"$//'
    if [ -f "$trabajo/pkg-config.log" ]; then
      grep -o 'found: /[^ ]*\.pc' "$trabajo/pkg-config.log" | sed 's/^found: //' || true
    fi
  } | sort -u |
    while read -r f; do
      case "$f" in "$raiz"/* | "$trabajo"/*) continue ;; esac
      [ -f "$f" ] && echo "$f"
    done
}

source "$raiz/scripts/paquetes_debian.sh"
cierre_de_la_lista "$lista" >"$trabajo/cierre"
archivos_de_la_configuracion | duenos_de_archivos >"$trabajo/duenos"
# Falta el paquete que no es de la lista ni de lo que ella trae; se dice una vez, con uno de los
# archivos que la configuración le lee.
awk -F'\t' '
  FILENAME == ARGV[1] { cierre[$1] = 1; next }
  { paquetes[$1] = paquetes[$1] ($2 == "" ? "" : " " $2) }
  END {
    for (f in paquetes) {
      n = split(paquetes[f], p, " "); bien = 0
      for (k = 1; k <= n; k++) if (p[k] in cierre) bien = 1
      if (n == 0) print "No es de ningún paquete de Debian (¿puesto a mano?): " f
      else if (!bien) { nombres = substr(paquetes[f], 2); cuenta[nombres]++; ejemplo[nombres] = f }
    }
    for (q in cuenta)
      print "Falta en la lista de paquetes: " q " (la configuración lee " cuenta[q] \
            " de sus archivos, como " ejemplo[q] ")"
  }' "$trabajo/cierre" "$trabajo/duenos" | sort >"$trabajo/faltan"
total=$(cut -f1 "$trabajo/duenos" | sort -u | wc -l)

if [ -s "$trabajo/faltan" ]; then
  cat "$trabajo/faltan" >&2
  exit 1
fi
echo "Paquetes: los $total archivos que lee la configuración son de la lista."
