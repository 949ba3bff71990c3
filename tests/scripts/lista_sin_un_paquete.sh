#!/usr/bin/env bash
# La comprobación de la lista de paquetes tiene que poder fallar: con la lista sin el paquete
# dado (libqt6opengl6-dev, que Qt6Charts pide al configurarse y que una vez faltó; o
# libcpp-httplib-dev, que solo se lee por pkg-config), termina con 1 y nombra el paquete.
#   lista_sin_un_paquete.sh RAIZ PAQUETE
set -uo pipefail
raiz="$1"
paquete="$2"
trabajo="$(mktemp -d)"
trap 'rm -rf "$trabajo"' EXIT

grep -vx "$paquete" "$raiz/scripts/paquetes.txt" >"$trabajo/lista.txt"
if cmp -s "$raiz/scripts/paquetes.txt" "$trabajo/lista.txt"; then
  echo "La lista no tiene $paquete: no hay nada que quitar"
  exit 1
fi
"$raiz/scripts/comprobar_paquetes.sh" "$trabajo/lista.txt" >"$trabajo/salida" 2>&1
codigo=$?
cat "$trabajo/salida"
if [ "$codigo" -ne 1 ]; then
  echo "La comprobación terminó con $codigo, no con 1"
  exit 1
fi
if ! grep -q "^Falta en la lista de paquetes: $paquete (" "$trabajo/salida"; then
  echo "La comprobación no nombra $paquete"
  exit 1
fi
