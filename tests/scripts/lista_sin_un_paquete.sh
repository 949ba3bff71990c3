#!/usr/bin/env bash
# La comprobación de la lista de paquetes tiene que poder fallar: con la lista sin
# libqt6opengl6-dev (el paquete que Qt6Charts pide al configurarse y que una vez faltó), termina
# con 1 y nombra el paquete.
set -uo pipefail
raiz="$1"
trabajo="$(mktemp -d)"
trap 'rm -rf "$trabajo"' EXIT

grep -vx 'libqt6opengl6-dev' "$raiz/scripts/paquetes.txt" >"$trabajo/lista.txt"
if cmp -s "$raiz/scripts/paquetes.txt" "$trabajo/lista.txt"; then
  echo "La lista no tiene libqt6opengl6-dev: no hay nada que quitar"
  exit 1
fi
"$raiz/scripts/comprobar_paquetes.sh" "$trabajo/lista.txt" >"$trabajo/salida" 2>&1
codigo=$?
cat "$trabajo/salida"
if [ "$codigo" -ne 1 ]; then
  echo "La comprobación terminó con $codigo, no con 1"
  exit 1
fi
if ! grep -q '^Falta en la lista de paquetes: libqt6opengl6-dev (' "$trabajo/salida"; then
  echo "La comprobación no nombra libqt6opengl6-dev"
  exit 1
fi
