# Escribe la temporada de demostración en SALIDA y la compara byte a byte con DATOS.
execute_process(COMMAND ${HERRAMIENTA} ${DATOS}/equipos.txt ${SALIDA} RESULT_VARIABLE resultado)
if(NOT resultado EQUAL 0)
  message(FATAL_ERROR "temporada_demo terminó con ${resultado}")
endif()
file(GLOB archivos RELATIVE ${SALIDA} ${SALIDA}/*.rar)
list(LENGTH archivos cuantos)
if(cuantos LESS 6)
  message(FATAL_ERROR "temporada_demo escribió solo ${cuantos} archivos")
endif()
foreach(archivo IN LISTS archivos)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${SALIDA}/${archivo}
                          ${DATOS}/temporada_demo/${archivo} RESULT_VARIABLE distinto)
  if(distinto)
    message(FATAL_ERROR "data/temporada_demo/${archivo} no es lo que escribe el generador: "
                        "cmake --build --preset dev --target datos_demo")
  endif()
endforeach()
