# Escribe los sistemas reducidos en SALIDA y los compara byte a byte con DATOS.
execute_process(COMMAND ${HERRAMIENTA} ${SALIDA} RESULT_VARIABLE resultado)
if(NOT resultado EQUAL 0)
  message(FATAL_ERROR "sistemas_reducidos terminó con ${resultado}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${SALIDA} ${DATOS}
                RESULT_VARIABLE distinto)
if(distinto)
  message(FATAL_ERROR "data/sistemas_reducidos.txt no es lo que escribe la herramienta: "
                      "cmake --build --preset dev --target datos_sistemas")
endif()
