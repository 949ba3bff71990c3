# Avisos y sanitizadores comunes a todos los objetivos del proyecto.
function(quinteva_opciones objetivo)
  target_compile_options(${objetivo} PRIVATE -Wall -Wextra -Wpedantic)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # El filtro evalúa las familias sin saltos, con & y | sobre booleanos a propósito.
    target_compile_options(${objetivo} PRIVATE -Wno-bitwise-instead-of-logical)
  endif()
  if(QUINTEVA_WERROR)
    target_compile_options(${objetivo} PRIVATE -Werror)
  endif()
endfunction()

if(QUINTEVA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()

# Biblioteca del núcleo: solo la biblioteca estándar, includes desde la raíz del proyecto.
function(quinteva_biblioteca nombre)
  cmake_parse_arguments(ARG "" "" "FUENTES;DEPENDE" ${ARGN})
  add_library(${nombre} STATIC ${ARG_FUENTES})
  target_include_directories(${nombre} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${nombre} PUBLIC ${ARG_DEPENDE})
  quinteva_opciones(${nombre})
endfunction()
