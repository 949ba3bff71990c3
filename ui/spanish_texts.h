#pragma once

class QCoreApplication;

namespace quinteva::ui {

// Los textos propios de Qt (los botones "Sí" y "No", los diálogos de archivos y de impresión, las
// teclas de los atajos) en español, sea cual sea el idioma del sistema: las traducciones de Qt que
// instala qt6-translations-l10n. También el idioma por defecto de fechas y números. Devuelve false
// si las traducciones no están; el programa sigue, con los textos de Qt en inglés.
bool TextosDeQtEnEspanol(QCoreApplication& aplicacion);

}  // namespace quinteva::ui
