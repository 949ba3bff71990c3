#!/usr/bin/env bash
# Comprueba que la lista de paquetes trae todo lo que lee la configuración: cada archivo de CMake
# que lee la configuración del preajuste dev, fuera del proyecto, es de un paquete de Debian que la
# lista instala, por sí o por sus Depends (sin Recommends). Así un paquete puesto a mano en una máquina no esconde lo que a otra le faltaría.
#   scripts/comprobar_paquetes.sh [LISTA]     (por omisión, scripts/paquetes.txt)
# Termina con 1 y el nombre de cada paquete que falta.
set -euo pipefail

raiz="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
lista="$(realpath "${1:-$raiz/scripts/paquetes.txt}")"
trabajo="$(mktemp -d)"
trap 'rm -rf "$trabajo"' EXIT

# Los paquetes de la lista y, uno tras otro, sus Pre-Depends y Depends instalados; un paquete
# virtual cuenta por los instalados que lo proveen.
cierre_de_la_lista() {
  dpkg-query -W -f='${db:Status-Abbrev}\t${Package}\t${Provides}\t${Pre-Depends}, ${Depends}\n' |
    awk -F'\t' -v lista="$lista" '
      function nombres(campo, salida,   partes, n, i, alternativas, m, j, nombre) {
        n = split(campo, partes, /[,|]/)
        for (i = 1; i <= n; i++) {
          nombre = partes[i]
          sub(/\(.*/, "", nombre); gsub(/[ \t]/, "", nombre); sub(/:.*/, "", nombre)
          if (nombre != "") salida[nombre] = 1
        }
      }
      $1 ~ /^ii/ {
        instalado[$2] = 1; dependencias[$2] = $4
        delete provistos; nombres($3, provistos)
        for (v in provistos) proveedores[v] = proveedores[v] " " $2
      }
      END {
        while ((getline linea < lista) > 0) {
          sub(/#.*/, "", linea); gsub(/[ \t]/, "", linea)
          if (linea != "") { pendientes[++fin] = linea; visto[linea] = 1 }
        }
        for (i = 1; i <= fin; i++) {
          p = pendientes[i]
          if (!(p in instalado)) continue
          print p
          delete deps; nombres(dependencias[p], deps)
          for (d in deps) {
            n = split(d " " proveedores[d], candidatos, " ")
            for (k = 1; k <= n; k++) {
              c = candidatos[k]
              if (c != "" && (c in instalado) && !(c in visto)) { visto[c] = 1; pendientes[++fin] = c }
            }
          }
        }
      }' | sort -u
}

# Los archivos de CMake que lee la configuración (los de su traza), fuera del proyecto y de la
# carpeta de prueba.
archivos_de_la_configuracion() {
  (cd "$raiz" && cmake --preset dev -B "$trabajo/build" --trace-expand --trace-format=json-v1 \
    --trace-redirect="$trabajo/traza.json") >"$trabajo/configurar.log" 2>&1 || {
    cat "$trabajo/configurar.log" >&2
    echo "La configuración falló: falta algún paquete en $lista" >&2
    exit 1
  }
  grep -o '"file":"[^"]*"' "$trabajo/traza.json" | sed 's/^"file":"//; s/"$//' | sort -u |
    while read -r f; do
      case "$f" in "$raiz"/* | "$trabajo"/*) continue ;; esac
      [ -f "$f" ] && echo "$f"
    done
}

# "archivo<TAB>ruta": la ruta y sus otras formas, el destino de sus enlaces y la ruta con o sin
# /usr delante, porque dpkg conoce cada archivo por una sola de ellas.
variantes() {
  local f real r
  while read -r f; do
    real="$(realpath "$f")"
    for r in "$f" "$real"; do
      printf '%s\t%s\n' "$f" "$r"
      case "$r" in /usr/*) printf '%s\t%s\n' "$f" "${r#/usr}" ;; *) printf '%s\t%s\n' "$f" "/usr$r" ;; esac
    done
  done | sort -u
}

# "paquete<TAB>ruta" por cada ruta que es de algún paquete: un solo dpkg -S para todas.
duenos() {
  { cut -f2 "$1" | xargs -d '\n' dpkg -S -- 2>/dev/null || true; } | grep -v '^diversion' |
    awk '{ i = index($0, ": "); n = split(substr($0, 1, i - 1), p, ", ")
           for (k = 1; k <= n; k++) { sub(/:.*/, "", p[k]); print p[k] "\t" substr($0, i + 2) } }'
}

cierre_de_la_lista >"$trabajo/cierre"
archivos_de_la_configuracion >"$trabajo/archivos"
variantes <"$trabajo/archivos" >"$trabajo/variantes"
duenos "$trabajo/variantes" >"$trabajo/duenos"
# Cada archivo con los paquetes que lo traen; falta el paquete que no es de la lista ni de lo que
# ella trae, y se dice una vez con uno de los archivos que la configuración le lee.
awk -F'\t' '
  FILENAME == ARGV[1] { cierre[$1] = 1; next }
  FILENAME == ARGV[2] { duenos[$2] = duenos[$2] " " $1; next }
  FILENAME == ARGV[3] { todos[$1] = todos[$1] duenos[$2]; next }
  END {
    for (f in todos) {
      n = split(todos[f], p, " "); bien = 0; nombres = ""
      for (k = 1; k <= n; k++) {
        if (p[k] in cierre) bien = 1
        if (index(" " nombres " ", " " p[k] " ") == 0) nombres = nombres (nombres == "" ? "" : " ") p[k]
      }
      if (n == 0) print "No es de ningún paquete de Debian (¿puesto a mano?): " f
      else if (!bien) { cuenta[nombres]++; ejemplo[nombres] = f }
    }
    for (q in cuenta)
      print "Falta en la lista de paquetes: " q " (la configuración lee " cuenta[q] \
            " de sus archivos, como " ejemplo[q] ")"
  }' "$trabajo/cierre" "$trabajo/duenos" "$trabajo/variantes" | sort >"$trabajo/faltan"
total=$(wc -l <"$trabajo/archivos")

if [ -s "$trabajo/faltan" ]; then
  cat "$trabajo/faltan" >&2
  exit 1
fi
echo "Paquetes: los $total archivos que lee la configuración son de la lista."
