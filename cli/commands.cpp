#include "cli/commands.h"

#include <vector>

namespace quinteva::cli {

std::span<const Subcomando> Subcomandos() {
    static const std::vector<Subcomando> subcomandos = {
        {"temporada",
         "temporada [--carpeta DIR] [--json]",
         "La temporada actual, su carpeta y los registros de cada archivo de la temporada.",
         {},
         &Temporada},
        {"demo",
         "demo [--carpeta DIR] [--json]",
         "Instala en una carpeta de trabajo sin temporada la de demostración que trae el "
         "programa, como su primer arranque.",
         {},
         &Demo},
        {"equipos",
         "equipos [--division 1|2] [--json]",
         "Los equipos de \"Nomeq.rar\" con todas sus cifras, en el orden del archivo.",
         {{"division"}, {}},
         &EquiposCmd},
        {"equipo-nuevo",
         "equipo-nuevo --division 1|2 --nombre NOMBRE [--valoracion N] [--temporada aa/aa] "
         "[--equipos N]",
         "Añade un equipo como la ventana \"Equipos\" (--equipos, el número de equipos de la "
         "división, con el primero; --temporada, con las dos listas vacías).",
         {{"division", "nombre", "valoracion", "temporada", "equipos"}, {}},
         &EquipoNuevo},
        {"nueva-temporada",
         "nueva-temporada aa/aa --equipos1 N --equipos2 M",
         "\"Nueva Temporada\": la carpeta nueva con los equipos de la actual sin cifras.",
         {{"equipos1", "equipos2"}, {}},
         &NuevaTemporadaCmd},
        {"todo-a-cero",
         "todo-a-cero",
         "\"Todo a Cero\": los equipos sin cifras (Temporada \"19/20\") y los goles de la liga a "
         "cero.",
         {},
         &TodoACeroCmd},
        {"clasificacion",
         "clasificacion --division 1|2 [--json]",
         "La clasificación de la división como la muestra \"Clasificación\": cada equipo en la "
         "fila de su puesto.",
         {{"division"}, {}},
         &ClasificacionCmd},
        {"recalcular",
         "recalcular --division 1|2",
         "\"Recalcular\": la clasificación de la división rehecha desde la Jornada 1.",
         {{"division"}, {}},
         &RecalcularCmd},
        {"liga-jornada",
         "liga-jornada --division 1|2 --jornada N --fecha dd/mm/aa --equipos \"L1,V1,L2,V2,...\"",
         "\"Guardar\" de \"Jornadas de Liga\": una Jornada nueva, cambiada o solo su fecha, según "
         "lo que cambie.",
         {{"division", "jornada", "fecha", "equipos"}, {}},
         &LigaJornada},
        {"liga-resultados",
         "liga-resultados --division 1|2 --jornada N --goles \"2-1 0-0 - 3-1 ...\"",
         "\"Guardar\" de \"Introducir o Ver Resultados\" de la Liga: un L-V por fila, - para "
         "dejarla en blanco; luego la clasificación.",
         {{"division", "jornada", "goles"}, {}},
         &LigaResultados},
        {"depurar-liga",
         "depurar-liga [--carpeta DIR]",
         "DepurarLiga: \"Jlig2.rar\" se queda con los partidos de la temporada en curso, y su "
         "copia en \"Jlig2.bak\".",
         {},
         &DepurarLigaCmd},
        {"estadisticas",
         "estadisticas --tipo signos|rachas|parejas|trios|grupos [--posiciones P1,P2,...] [--n N] "
         "[--temporada aa/aa|Todas] [--json]",
         "Lo que cuenta \"Estadísticas\" en las columnas ganadoras de \"Jornadas.rar\"; sin "
         "--temporada, la que elige la ventana al abrir.",
         {{"tipo", "posiciones", "n", "temporada"}, {}},
         &Estadisticas},
        {"historico",
         "historico --equipo E | --equipos E1,E2 | --temporada aa/aa --division 1|2 --jornada N "
         "[--json]",
         "\"Histórico de Resultados\": los partidos de un equipo, de dos, o de una Jornada.",
         {{"equipo", "equipos", "temporada", "division", "jornada"}, {}},
         &Historico},
        {"imprimir",
         "imprimir RUTA.uxd [--direccion vertical|apaisada] [--desde N --hasta M] "
         "[--papel boleto|blanco] (--pdf F.pdf | --marcas --json)",
         "\"Imprimir &Todos\" en boletos oficiales o en papel blanco, con el ajuste guardado: "
         "las páginas en PDF o las marcas de cada página (twips).",
         {{"direccion", "desde", "hasta", "papel", "pdf"}, {"marcas"}},
         &Imprimir},
        {"informe-condiciones",
         "informe-condiciones RUTA.uxd --pdf F.pdf",
         "\"Quinteva [Condiciones]\": el resumen, la Quiniela Base con los porcentajes de cada "
         "signo y cada familia de condiciones activa, en PDF.",
         {{"pdf"}, {}},
         &InformeCondicionesCmd},
        {"muy-reducida",
         "muy-reducida RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A --nivel 13|12|11 "
         "[--jornada N]",
         "\"Quiniela muy reducida\": una Combinación nueva cuya base es una fila de la tabla de "
         "reducciones, generada, reducida al nivel, guardada y con las reducidas para jugar.",
         {{"base", "pleno", "nivel", "jornada"}, {}},
         &MuyReducidaCmd},
        {"porcentajes",
         "porcentajes RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A --columnas N --semilla S "
         "--porcentajes \"50-30-20 ...\" [--jornada N]",
         "\"Quiniela por Porcentajes\": N columnas repartidas por los porcentajes 1-X-2 de cada "
         "partido (14 tríos; un partido fijo va al 100 en su signo), sin repetidas, guardadas y "
         "para jugar.",
         {{"base", "pleno", "columnas", "semilla", "porcentajes", "jornada"}, {}},
         &PorcentajesCmd},
        {"pena",
         "pena nueva NOMBRE --corto CORTO [--temporada aa/aa] [--ciudad C] [--titular T] "
         "[--email E] | pena apostante CORTO --nombre N [--nif X] [--telefono T] [--email E] | "
         "pena cuotas CORTO --apostante N --importe E --desde J [--hasta K] | pena jornada CORTO "
         "--jornada J [--columnas N] [--acertadas c15,...,c10] [--premios p15,...,p10] "
         "[--gastos G] [--cerrar] [--distribuir] [--json] | pena informe CORTO [--apostante N] "
         "[--json | --pdf F.pdf]",
         "Las Peñas de la temporada en curso: crearlas, sus Apostantes, sus cuotas, la página de "
         "una Jornada (con su cierre y su reparto) y sus informes.",
         OpcionesPena(), &PenaCmd},
        {"verificar",
         "verificar RUTA.uxd --al 13|12|11",
         "La garantía de las reducidas guardadas (\".red\") frente a las generadas (\".cnd\"): "
         "cada generada activa a 1, 2 o 3 signos de alguna reducida; dice la primera que no.",
         {{"al"}, {}},
         &VerificarCmd},
        {"probabilidades",
         "probabilidades RUTA.uxd [--jugadas condicionadas|reducidas] [--pleno PORCENTAJE] "
         "[--json]",
         "La probabilidad de que la mejor columna jugada tenga 14, 13, 12, 11 o 10 aciertos, o "
         "menos, y la del Pleno al 15, con la ganadora sacada con los porcentajes de \"Sumas\", "
         "los de la Quiniela por Porcentajes o, sin ellos, igual entre los signos de la base; el "
         "Pleno jugado, uno de 16 salvo que --pleno diga su probabilidad.",
         {{"jugadas", "pleno"}, {}},
         &ProbabilidadesCmd},
        {"historico-condiciones",
         "historico-condiciones RUTA.uxd [--carpeta DIR] [--json]",
         "\"Histórico de condiciones\": las columnas ganadoras guardadas (\"Jornadas.rar\" de "
         "las temporadas en la carpeta de trabajo) frente a las condiciones de la Combinación: "
         "cuántas cumplen todas, cuántas deja pasar cada familia sola y la condición que "
         "rechaza cada Jornada.",
         {{}, {}},
         &HistoricoCondicionesCmd},
        {"refundir",
         "refundir SALIDA.txt A.uxd B.uxd ... [--estructura continuo|separadores|columna] "
         "[--semilla S] [--json]",
         "\"Refundir combinaciones\": las columnas que se juegan de varias Combinaciones de una "
         "Jornada a un archivo de texto, sin repetidas y con el Pleno de la primera.",
         {{"estructura", "semilla"}, {}},
         &RefundirCmd},
        {"rapida-basica",
         "rapida-basica RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A --columnas N [--equis "
         "MIN-MAX] [--doses ...] [--variantes ...] [--interrupciones ...] "
         "[--interrupciones-consecutivas ...] [--unos-seguidos ...] [--equis-seguidas ...] "
         "[--doses-seguidos ...] [--semilla S] [--jornada N]",
         "\"Quiniela rápida Básica\": las filas dadas (MIN-MAX, MIN- o -MAX) a las condiciones, "
         "generar, guardar y ajustar a N las columnas generadas para jugar.",
         OpcionesRapidaBasica(), &RapidaBasicaCmd},
        {"ponderar", "ponderar [--local-MARCA ...] [--visitante-MARCA ...] [--json]",
         "\"Ponderar equipos\" de un partido: MARCA es bajas-importantes, contrario-se-le-da-mal, "
         "campo-le-perjudica, arbitro-no-le-favorece, otras-desfavorables o favorables; da "
         "PesoLocal y PesoVisitante.",
         OpcionesPonderar(), &Ponderar},
        {"importar",
         "importar F.json|F.txt [--sin-pleno] [--json]",
         "\"Importar archivo\": un archivo oficial o una lista de texto (una columna por línea, "
         "con su Pleno salvo --sin-pleno) a \"Arimp.tmp\", con sus boletos.",
         {{}, {"sin-pleno"}},
         &Importar},
        {"actualizar",
         "actualizar --servidor URL",
         "\"Actualización por Internet\": los archivos de la temporada del servidor del editor, "
         "con sus pasos y mensajes en stderr.",
         {{"servidor"}, {}},
         &Actualizar},
        {"quiniela",
         "quiniela --jornada N [--json]",
         "Los partidos de una Jornada de Quinielas de \"Jquin.rar\", con su fecha y sus signos.",
         {{"jornada"}, {}},
         &Quiniela},
        {"quiniela-resultados",
         "quiniela-resultados --jornada N --signos 1X2... (14) --pleno L-V",
         "\"Guardar\" de \"Introducir o Ver Resultados\" de Quinielas: la columna ganadora en "
         "\"Jquin.rar\" y \"Jornadas.rar\".",
         {{"jornada", "signos", "pleno"}, {}},
         &QuinielaResultados},
        {"nueva",
         "nueva RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A [--jornada N] [--carpeta DIR]",
         "Una Combinación nueva con esa Quiniela Base y las condiciones por defecto, guardada.",
         {{"base", "pleno", "jornada"}, {}},
         &Nueva},
        {"info",
         "info RUTA.uxd [--json]",
         "Nombre, Jornada, base, Pleno, cuentas de la cabecera, familias activas y Nº Condiciones.",
         {},
         &Info},
        {"generar",
         "generar RUTA.uxd [--carpeta DIR] [--json]",
         "Abre la Combinación, genera las columnas, la guarda y muestra las rechazadas.",
         {},
         &GenerarCmd},
        {"analizar",
         "analizar RUTA.uxd --columna 14SIGNOS",
         "Las condiciones que no cumple una columna, una por línea (Condición, tabulador, Filtro).",
         {{"columna"}, {}},
         &Analizar},
        {"reducir",
         "reducir RUTA.uxd --al 13|12|11 [--partidos 2,5,9] [--optimizada [--segundos S] "
         "[--semilla N]] [--carpeta DIR] [--json]",
         "Reduce las columnas generadas como \"&Reducir\" (por tablas sin condiciones, si no por "
         "recubrimiento; --partidos elige los partidos de la reducción por tablas), guarda y "
         "muestra la cuenta. Con --optimizada, la \"Reducción optimizada\" (S segundos de "
         "búsqueda, 10 por defecto) y cuántas columnas ahorra.",
         {{"al", "partidos", "segundos", "semilla"}, {"optimizada"}},
         &ReducirCmd},
        {"tablas",
         "tablas [--json] | tablas --sistema NIVEL TRIPLES DOBLES",
         "Las 73 filas de la Tabla de reducciones (\"*\": en negrita), o las filas de un sistema "
         "reducido, una por línea.",
         {{}, {"sistema"}},
         &Tablas},
        {"oficial",
         "oficial RUTA.uxd --receptor NNNNN --jornada N --salida DIR/NOMBRE [--anio AAAA]",
         "Escribe DIR/NOMBRE.json, el archivo oficial de apuestas del juego jugado de la "
         "Combinación (el año, de la fecha de su Jornada si no se da).",
         {{"receptor", "jornada", "salida", "anio"}, {}},
         &Oficial},
        {"json-leer",
         "json-leer F.json [--json]",
         "Los datos que muestra \"Archivo JSON\" de un archivo oficial.",
         {},
         &JsonLeer},
        {"json-modificar",
         "json-modificar F.json [--jornada N] [--anio AAAA] [--receptor NNNNN] [--json]",
         "Cambia Jornada, año o Receptor de un archivo oficial y lo guarda con su resumen nuevo.",
         {{"jornada", "anio", "receptor"}, {}},
         &JsonModificar},
        {"ajustar",
         "ajustar RUTA.uxd --juego cnd|red --apuestas N [--carpeta DIR] [--json]",
         "Elige el conjunto jugado y ajusta sus columnas activas a N, como la página Boletos. "
         "Contesta Sí a seguir (base muy ajustada, bajar el número) y No a añadir a mano: la "
         "columna que complete el último Boleto se añade al azar. Un N rechazado sale con el "
         "mensaje del sistema y código 1.",
         {{"juego", "apuestas"}, {}},
         &AjustarCmd},
        {"eliminar",
         "eliminar RUTA.uxd --juego cnd|red --regla mas|menos|igual N unos|equis|doses|variantes "
         "[--carpeta DIR] [--json]",
         "Excluye las columnas con más de, menos de o exactamente N signos de esa clase, y cierra "
         "como la ventana: si el último Boleto queda con una sola columna, añade una al azar.",
         {{"juego", "regla"}, {}},
         &EliminarCmd},
        {"jugar-todas",
         "jugar-todas RUTA.uxd --juego cnd|red [--carpeta DIR] [--json]",
         "Vuelve a jugar todas las columnas del conjunto (\"Jugar Todas\").",
         {{"juego"}, {}},
         &JugarTodasCmd},
        {"texto",
         "texto RUTA.uxd --formato separadores|columna|continuo --salida F.txt [--json]",
         "Escribe las columnas activas del conjunto jugado con el Pleno al 15, una por registro; "
         "sobrescribe F.txt si ya existe.",
         {{"formato", "salida"}, {}},
         &TextoCmd},
        {"aciertos",
         "aciertos ORIGEN --ganadora \"14 signos\" --pleno H-A [--avance] [--columnas] [--json] "
         "[--jornada N] [--anio AAAA]",
         "Las columnas con 15 a 9 aciertos de una Combinación (.uxd, su conjunto jugado), un "
         "archivo oficial JSON (--jornada y --anio de la Jornada) o un AD243 (--jornada); se "
         "distinguen por el contenido. Con --columnas, dónde están (Boleto, Columna, Aciertos). "
         "Con --avance, la comprobación en marcha de una Combinación: \"-\" por cada partido "
         "que no se sabe. Las preguntas se contestan Sí; los mensajes salen por stderr.",
         {{"ganadora", "pleno", "jornada", "anio"}, {"avance", "columnas"}},
         &AciertosCmd},
    };
    return subcomandos;
}

}  // namespace quinteva::cli
