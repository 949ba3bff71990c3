# El paquete .deb («cpack» en la carpeta de compilación): lo que instala «cmake --install», bajo
# /usr. Sus dependencias son los paquetes de Debian que el programa y la línea de órdenes usan al
# ejecutarse, con el complemento de Qt que dibuja las ventanas y los textos de Qt en español.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quinteva)
set(CPACK_PACKAGE_CONTACT "Quinteva <quinteva@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Quiniela y Pleno al 15: condiciones, reducciones, boletos, aciertos y peñas")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libc6, libgcc-s1, libstdc++6, libqt6core6, libqt6gui6, libqt6widgets6, libqt6printsupport6, \
libqt6charts6, libqt6network6, libquazip1-qt6-1, libcpp-httplib0.11, qt6-qpa-plugins, \
qt6-translations-l10n")
include(CPack)
