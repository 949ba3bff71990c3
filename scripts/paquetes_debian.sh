# Funciones sobre los paquetes de Debian instalados, para los guiones que comprueban qué paquete
# trae cada archivo: se cargan con «source scripts/paquetes_debian.sh».

# Los paquetes de la lista y, uno tras otro, sus Pre-Depends y Depends instalados; un paquete
# virtual cuenta por los instalados que lo proveen.
cierre_de_la_lista() {
  local lista="$1"
  dpkg-query -W -f='${db:Status-Abbrev}\t${Package}\t${Provides}\t${Pre-Depends}, ${Depends}\n' |
    awk -F'\t' -v lista="$lista" '
      function nombres(campo, salida,   partes, n, i, nombre) {
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

# "archivo<TAB>paquete" por cada archivo leído de la entrada (una ruta por línea) y cada paquete
# que lo trae; un archivo que no es de ningún paquete sale con el paquete vacío. dpkg conoce cada
# archivo por una sola de sus formas (el destino de sus enlaces, con o sin /usr delante): se
# preguntan todas de una vez.
duenos_de_archivos() {
  local trabajo f real r
  trabajo="$(mktemp -d)"
  while read -r f; do
    real="$(realpath "$f")"
    for r in "$f" "$real"; do
      printf '%s\t%s\n' "$f" "$r"
      case "$r" in /usr/*) printf '%s\t%s\n' "$f" "${r#/usr}" ;; *) printf '%s\t%s\n' "$f" "/usr$r" ;; esac
    done
  done | sort -u >"$trabajo/variantes"
  { cut -f2 "$trabajo/variantes" | xargs -d '\n' dpkg -S -- 2>/dev/null || true; } |
    grep -v '^diversion' |
    awk '{ i = index($0, ": "); n = split(substr($0, 1, i - 1), p, ", ")
           for (k = 1; k <= n; k++) { sub(/:.*/, "", p[k]); print p[k] "\t" substr($0, i + 2) } }' \
      >"$trabajo/duenos"
  awk -F'\t' '
    FILENAME == ARGV[1] { duenos[$2] = duenos[$2] " " $1; next }
    { todos[$1] = todos[$1] duenos[$2] }
    END {
      for (f in todos) {
        n = split(todos[f], p, " ")
        if (n == 0) print f "\t"
        for (k = 1; k <= n; k++) if (!((f, p[k]) in dicho)) { dicho[f, p[k]] = 1; print f "\t" p[k] }
      }
    }' "$trabajo/duenos" "$trabajo/variantes"
  rm -rf "$trabajo"
}
