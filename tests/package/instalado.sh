#!/usr/bin/env bash
# El programa instalado como lo instalaría un usuario, lejos del árbol de compilación:
#   instalado.sh prefijo CARPETA_COMPILACION   «cmake --install» en un prefijo temporal;
#   instalado.sh deb CARPETA_COMPILACION       el .deb de cpack, desempaquetado; además, cada
#                                              biblioteca que cargan sus ejecutables es de un
#                                              paquete que el .deb pide (o de lo que ese trae).
# En los dos: están los ejecutables, los datos, la entrada de escritorio y el icono; la línea de
# órdenes encuentra la temporada de demostración junto a ella; y el programa arranca, sin pantalla,
# con una carpeta personal vacía, e instala la temporada de demostración en ella.
set -euo pipefail
modo="$1"
compilacion="$(realpath "$2")"
raiz="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
trabajo="$(mktemp -d)"
trap 'rm -rf "$trabajo"' EXIT

falla() {
  echo "$*"
  exit 1
}

case "$modo" in
  prefijo)
    prefijo="$trabajo/prefijo"
    cmake --install "$compilacion" --prefix "$prefijo" >/dev/null
    ;;
  deb)
    (cd "$trabajo" && cpack --config "$compilacion/CPackConfig.cmake" -B "$trabajo/cpack" >/dev/null)
    deb="$(ls "$trabajo"/cpack/quinteva_*.deb)"
    dpkg-deb -x "$deb" "$trabajo/raiz"
    prefijo="$trabajo/raiz/usr"
    dpkg-deb -f "$deb" Depends | tr ',' '\n' | sed 's/(.*//; s/[[:space:]]//g' >"$trabajo/pide"
    source "$raiz/scripts/paquetes_debian.sh"
    cierre_de_la_lista "$trabajo/pide" >"$trabajo/cierre"
    for ejecutable in "$prefijo"/bin/quinteva{,-cli,-servidor}; do
      ldd "$ejecutable" | sed -n 's/.*=> \(\/[^ ]*\) .*/\1/p'
    done | sort -u >"$trabajo/bibliotecas"
    duenos_de_archivos <"$trabajo/bibliotecas" |
      awk -F'\t' 'FILENAME == ARGV[1] { pide[$1] = 1; next } ($2 in pide) { print $1 }' \
        "$trabajo/cierre" - | sort -u | comm -23 "$trabajo/bibliotecas" - >"$trabajo/sin_paquete"
    if [ -s "$trabajo/sin_paquete" ]; then
      falla "El .deb no pide el paquete de estas bibliotecas: $(tr '\n' ' ' <"$trabajo/sin_paquete")"
    fi
    ;;
  *) falla "Uso: instalado.sh prefijo|deb CARPETA_COMPILACION" ;;
esac

for archivo in bin/quinteva bin/quinteva-cli bin/quinteva-servidor share/quinteva/equipos.txt \
  share/quinteva/temporada_demo/Tempor.rar share/quinteva/temporada_demo/Jquin.rar \
  share/applications/quinteva.desktop share/icons/hicolor/scalable/apps/quinteva.svg; do
  [ -f "$prefijo/$archivo" ] || falla "Falta $archivo en lo instalado"
done

# La línea de órdenes, con una carpeta de trabajo vacía: sin temporada, y con la de demostración
# que trae el programa tras «demo».
unset QUINTEVA_CARPETA
mkdir "$trabajo/vacia"
salida="$("$prefijo/bin/quinteva-cli" temporada --json --carpeta "$trabajo/vacia")"
echo "$salida"
grep -q '"TemporadaActual": null' <<<"$salida" || falla "Una carpeta vacía ya tiene temporada"
salida="$("$prefijo/bin/quinteva-cli" demo --json --carpeta "$trabajo/vacia")"
echo "$salida"
grep -qF "\"Instalada\": true, \"CarpetaDatos\": \"$prefijo/share/quinteva\"" <<<"$salida" ||
  falla "La línea de órdenes no encuentra sus datos en $prefijo/share/quinteva"
salida="$("$prefijo/bin/quinteva-cli" temporada --json --carpeta "$trabajo/vacia")"
echo "$salida"
grep -q '"Jquin.rar": [1-9]' <<<"$salida" || falla "La temporada de demostración no tiene Jornadas"

# El programa, con una carpeta personal vacía: sigue abierto a los 5 s (lo cierra timeout) y ha
# instalado la temporada de demostración en su carpeta de trabajo.
mkdir -p "$trabajo/casa" "$trabajo/tmp"
codigo=0
env -u XDG_DATA_HOME HOME="$trabajo/casa" TMPDIR="$trabajo/tmp" QT_QPA_PLATFORM=offscreen \
  timeout 5 "$prefijo/bin/quinteva" || codigo=$?
[ "$codigo" -eq 124 ] || falla "El programa instalado terminó con $codigo al arrancar"
[ -f "$trabajo/casa/.local/share/Quinteva/Tempor.rar" ] ||
  falla "El programa instalado no instaló la temporada de demostración"
echo "Instalado ($modo): bien"
