# Escribe un .cpp que define una constante std::string_view con el contenido de un archivo de
# datos. Uso: cmake -DENTRADA=... -DSALIDA=... -DNOMBRE=... -DCABECERA=... -P Incrustar.cmake
file(READ "${ENTRADA}" contenido)
file(WRITE "${SALIDA}.tmp"
  "#include \"${CABECERA}\"\n\n"
  "namespace quinteva::builders {\n\n"
  "const std::string_view ${NOMBRE} = R\"QUINTEVA(${contenido})QUINTEVA\";\n\n"
  "}  // namespace quinteva::builders\n")
file(RENAME "${SALIDA}.tmp" "${SALIDA}")
