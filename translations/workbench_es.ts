<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CheckTexts</name>
    <message>
        <source>%1 is not known</source>
        <translation>%1 no se conoce</translation>
    </message>
    <message>
        <source>ELSE without IF</source>
        <translation>ELSE sin IF</translation>
    </message>
    <message>
        <source>Second ELSE of one IF</source>
        <translation>Segundo ELSE de un IF</translation>
    </message>
    <message>
        <source>ENDIF without IF</source>
        <translation>ENDIF sin IF</translation>
    </message>
    <message>
        <source>IF without ENDIF</source>
        <translation>IF sin ENDIF</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>%1 needs %2 values or more and has %3</source>
        <translation>%1 necesita %2 valores o más y tiene %3</translation>
    </message>
    <message>
        <source>Blanks are missing in %1</source>
        <translation>Faltan espacios en %1</translation>
    </message>
    <message>
        <source>%1 begins no statement</source>
        <translation>Ninguna instrucción empieza con %1</translation>
    </message>
    <message>
        <source>%1 cannot stand here</source>
        <translation>%1 no puede estar aquí</translation>
    </message>
    <message>
        <source>A value is missing behind %1</source>
        <translation>Falta un valor detrás de %1</translation>
    </message>
    <message>
        <source>An operator is missing before %1</source>
        <translation>Falta un operador delante de %1</translation>
    </message>
    <message>
        <source>%1 needs its values in brackets</source>
        <translation>%1 necesita sus valores entre paréntesis</translation>
    </message>
    <message>
        <source>%1 is no network variable input</source>
        <translation>%1 no es una entrada de variable de red</translation>
    </message>
    <message>
        <source>%1 is an input, which no program can set</source>
        <translation>%1 es una entrada, que ningún programa puede escribir</translation>
    </message>
    <message>
        <source>%1 is a constant, which no program can set</source>
        <translation>%1 es una constante, que ningún programa puede escribir</translation>
    </message>
    <message>
        <source>%1 cannot be set</source>
        <translation>%1 no se puede escribir</translation>
    </message>
    <message>
        <source>%1 is read, but never set</source>
        <translation>%1 se lee, pero nunca se escribe</translation>
    </message>
    <message>
        <source>%1 is set, but never read</source>
        <translation>%1 se escribe, pero nunca se lee</translation>
    </message>
    <message>
        <source>Nothing closes this bracket</source>
        <translation>Nada cierra este paréntesis</translation>
    </message>
    <message>
        <source>This bracket closes nothing</source>
        <translation>Este paréntesis no cierra nada</translation>
    </message>
    <message>
        <source>There are too many brackets in brackets</source>
        <translation>Demasiados paréntesis entre paréntesis</translation>
    </message>
    <message>
        <source>= sets a value, == compares</source>
        <translation>= escribe un valor, == compara</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>Asignación</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condición</translation>
    </message>
    <message>
        <source>Otherwise</source>
        <translation>Si no</translation>
    </message>
    <message>
        <source>End of a condition</source>
        <translation>Fin de una condición</translation>
    </message>
    <message>
        <source>End of the program</source>
        <translation>Fin del programa</translation>
    </message>
    <message>
        <source>Deletion of network values</source>
        <translation>Borrado de valores de red</translation>
    </message>
    <message>
        <source>%1 needs one value and has %2</source>
        <translation>%1 necesita un valor y tiene %2</translation>
    </message>
    <message>
        <source>%1 needs %2 values and has %3</source>
        <translation>%1 necesita %2 valores y tiene %3</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Sugerencia</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Empty the field</source>
        <translation>Vaciar el campo</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows a controller project.</source>
        <translation>Muestra un proyecto de controlador.</translation>
    </message>
    <message>
        <source>Write a picture of the window and quit.</source>
        <translation>Guardar una imagen de la ventana y salir.</translation>
    </message>
    <message>
        <source>Show everything on a dark ground.</source>
        <translation>Mostrar todo sobre fondo oscuro.</translation>
    </message>
    <message>
        <source>Show everything larger or smaller, 0.5 to 4 times.</source>
        <translation>Mostrar todo más grande o más pequeño, de 0.5 a 4 veces.</translation>
    </message>
    <message>
        <source>Speak this language: en, de, es or fr.</source>
        <translation>Usar este idioma: en, de, es o fr.</translation>
    </message>
    <message>
        <source>The scale is a number from 0.5 to 4.</source>
        <translation>La escala es un número de 0.5 a 4.</translation>
    </message>
    <message>
        <source>There is no translation for the language %1.</source>
        <translation>No hay traducción para el idioma %1.</translation>
    </message>
    <message>
        <source>Begin with this category, such as &quot;Inputs&quot;.</source>
        <translation>Empezar con esta categoría, p. ej. «Inputs».</translation>
    </message>
    <message>
        <source>There is no category %1.</source>
        <translation>No hay ninguna categoría %1.</translation>
    </message>
    <message>
        <source>The project file; without one that of the last time, or the sample project.</source>
        <translation>El archivo del proyecto; sin él, el de la última vez o el proyecto de ejemplo.</translation>
    </message>
</context>
<context>
    <name>FindInPrograms</name>
    <message>
        <source>Find In Programs</source>
        <translation>Buscar en los programas</translation>
    </message>
    <message>
        <source>Text to find:</source>
        <translation>Texto buscado:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CategoryMenu</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Show &amp;Beside</source>
        <translation>Mostrar al &amp;lado</translation>
    </message>
    <message>
        <source>Show Belo&amp;w</source>
        <translation>Mostrar de&amp;bajo</translation>
    </message>
    <message>
        <source>A&amp;dd Program…</source>
        <translation>Aña&amp;dir programa…</translation>
    </message>
    <message>
        <source>Re&amp;name Program…</source>
        <translation>Ca&amp;mbiar el nombre del programa…</translation>
    </message>
    <message>
        <source>Re&amp;move Program…</source>
        <translation>&amp;Quitar el programa…</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Hacia a&amp;rriba</translation>
    </message>
    <message>
        <source>Mo&amp;ve Down</source>
        <translation>Ha&amp;cia abajo</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CheckModel</name>
    <message>
        <source>Nothing found.</source>
        <translation>No se ha encontrado nada.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Problems that are not listed: %1</source>
        <translation>Problemas que no se muestran: %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Instrucción</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Uso</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, línea %2</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CheckResults</name>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ColourPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ComparisonView</name>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ControllerMenu</name>
    <message>
        <source>A&amp;dd To Trend</source>
        <translation>&amp;Añadir a la tendencia</translation>
    </message>
    <message>
        <source>&amp;Controller</source>
        <translation>&amp;Controlador</translation>
    </message>
    <message>
        <source>Read &amp;All</source>
        <translation>Leer &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Stop Reading</source>
        <translation>&amp;Detener la lectura</translation>
    </message>
    <message>
        <source>&amp;Reading…</source>
        <translation>&amp;Lectura…</translation>
    </message>
    <message>
        <source>&amp;Trend</source>
        <translation>T&amp;endencia</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ControllerPart</name>
    <message>
        <source>The values have been read.</source>
        <translation>Se han leído los valores.</translation>
    </message>
    <message>
        <source>There are no values to read here.</source>
        <translation>Aquí no hay valores que leer.</translation>
    </message>
    <message>
        <source>Select rows of a table with values first.</source>
        <translation>Seleccione primero filas de una tabla con valores.</translation>
    </message>
    <message>
        <source>The trend is full: remove points from it first.</source>
        <translation>La tendencia está llena: quite primero puntos de ella.</translation>
    </message>
    <message>
        <source>There is nothing new to draw in the selected rows.</source>
        <translation>No hay nada nuevo que trazar en las filas elegidas.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::DockTitle</name>
    <message>
        <source>Put back into the window</source>
        <translation>Devolver a la ventana</translation>
    </message>
    <message>
        <source>Show in a window of its own</source>
        <translation>Mostrar en una ventana propia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Cerrar %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Known Words</source>
        <translation>Pa&amp;labras conocidas</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Re&amp;store Typed Text</source>
        <translation>Rec&amp;uperar texto escrito</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Cortar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>Copy with C&amp;olours</source>
        <translation>Copiar co&amp;n colores</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>There is no older typed text. The next time the latest comes again.</source>
        <translation>No hay texto escrito más antiguo. La próxima vez vuelve el más reciente.</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>R&amp;eplace…</source>
        <translation>Ree&amp;mplazar…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar sigu&amp;iente</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Buscar an&amp;terior</translation>
    </message>
    <message>
        <source>Ne&amp;xt Use</source>
        <translation>Uso si&amp;guiente</translation>
    </message>
    <message>
        <source>Prev&amp;ious Use</source>
        <translation>Uso pre&amp;vio</translation>
    </message>
    <message>
        <source>Go To &amp;Match</source>
        <translation>Ir a la pare&amp;ja</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se ha encontrado nada.</translation>
    </message>
    <message>
        <source>&amp;Go To Line</source>
        <translation>Ir a la lín&amp;ea</translation>
    </message>
    <message>
        <source>Find While T&amp;yping</source>
        <translation>Bús&amp;queda al escribir</translation>
    </message>
    <message>
        <source>Nothing to restore: %1 and %2 reach all that was typed.</source>
        <translation>Nada que restaurar: %1 y %2 llegan a todo lo escrito.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::EditorViewMenu</name>
    <message>
        <source>&amp;Editor</source>
        <translation>&amp;Editor</translation>
    </message>
    <message>
        <source>Line &amp;Numbers</source>
        <translation>&amp;Números de línea</translation>
    </message>
    <message>
        <source>&amp;Current Line</source>
        <translation>Línea &amp;actual</translation>
    </message>
    <message>
        <source>Pairs and &amp;Uses</source>
        <translation>&amp;Pares y usos</translation>
    </message>
    <message>
        <source>Next &amp;Problem</source>
        <translation>Pro&amp;blema siguiente</translation>
    </message>
    <message>
        <source>P&amp;revious Problem</source>
        <translation>Problema an&amp;terior</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>Alternar mar&amp;cador</translation>
    </message>
    <message>
        <source>Ne&amp;xt Bookmark</source>
        <translation>Marca&amp;dor siguiente</translation>
    </message>
    <message>
        <source>&amp;Indent Guides</source>
        <translation>&amp;Guías de sangría</translation>
    </message>
    <message>
        <source>Blan&amp;ks</source>
        <translation>&amp;Espacios</translation>
    </message>
    <message>
        <source>&amp;Folding</source>
        <translation>P&amp;legado</translation>
    </message>
    <message>
        <source>Normal Si&amp;ze</source>
        <translation>Tama&amp;ño normal</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>Plegar t&amp;odo</translation>
    </message>
    <message>
        <source>Unfold A&amp;ll</source>
        <translation>Desplegar &amp;todo</translation>
    </message>
    <message>
        <source>In&amp;dent While Typing</source>
        <translation>&amp;Sangrar al escribir</translation>
    </message>
    <message>
        <source>Smart &amp;Home</source>
        <translation>&amp;Inicio a la primera palabra</translation>
    </message>
    <message>
        <source>Drop Blanks at Line &amp;Ends</source>
        <translation>&amp;Quitar espacios al final de línea</translation>
    </message>
    <message>
        <source>Live &amp;Values</source>
        <translation>&amp;Valores actuales</translation>
    </message>
    <message>
        <source>Readable C&amp;olours</source>
        <translation>Colores leg&amp;ibles</translation>
    </message>
    <message>
        <source>&amp;Word List While Typing</source>
        <translation>Lista de palabras al escribi&amp;r</translation>
    </message>
</context>
<context>
    <name>ORVTListview::Exporting</name>
    <message>
        <source>%1: the name ends with none of the kinds that can be written</source>
        <translation>%1: el nombre no termina en ninguno de los tipos que se pueden escribir</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Página web (*.html)</translation>
    </message>
    <message>
        <source>Table with commas (*.csv)</source>
        <translation>Tabla con comas (*.csv)</translation>
    </message>
    <message>
        <source>Table with tabs (*.tsv)</source>
        <translation>Tabla con tabuladores (*.tsv)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>There is no printer. Export as PDF instead.</source>
        <translation>No hay ninguna impresora. Exporte como PDF en su lugar.</translation>
    </message>
    <message>
        <source>The printer does not take the program.</source>
        <translation>La impresora no acepta el programa.</translation>
    </message>
    <message>
        <source>%1: the pages cannot be made</source>
        <translation>%1: no se pueden crear las páginas</translation>
    </message>
    <message>
        <source>Export %1</source>
        <translation>Exportar %1</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Close Project</source>
        <translation>Cerrar &amp;proyecto</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nuevo proyecto…</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>&amp;Abrir proyecto…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>The workbench writes, checks and shows the program of a controller, and the tables of its points. At the left is the tree of the project: it leads to the program and to each table. The controller behind it is a simulated one, so nothing can break.</source>
        <translation>El banco de trabajo escribe, comprueba y muestra el programa de un controlador y las tablas de sus puntos. A la izquierda está el árbol del proyecto: lleva al programa y a cada tabla. El controlador es simulado, así que nada se puede estropear.</translation>
    </message>
    <message>
        <source>An air handling unit with its program and all twelve tables. Change what you like: nothing is saved unless you say so.</source>
        <translation>Una unidad de tratamiento de aire con su programa y las doce tablas. Cambie lo que quiera: nada se guarda si usted no lo dice.</translation>
    </message>
    <message>
        <source>New Project…</source>
        <translation>Nuevo proyecto…</translation>
    </message>
    <message>
        <source>One of your own: a name and a folder are all that it takes.</source>
        <translation>Uno propio: bastan un nombre y una carpeta.</translation>
    </message>
    <message>
        <source>A project is a file in JSON with its program beside it.</source>
        <translation>Un proyecto es un archivo JSON con su programa al lado.</translation>
    </message>
    <message>
        <source>This page comes back by Help, First Steps.</source>
        <translation>Esta página vuelve con «Ayuda, Primeros pasos».</translation>
    </message>
    <message>
        <source>Look at the Sample</source>
        <translation>Ver el ejemplo</translation>
    </message>
    <message>
        <source>Open a Project…</source>
        <translation>Abrir un proyecto…</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Comenzar</translation>
    </message>
    <message>
        <source>Everything can be done by keyboard. F1 lists all keys, F6 checks the program, F5 reads the values, %1 lists known words.</source>
        <translation>Todo se puede hacer con el teclado. F1 muestra todas las teclas, F6 comprueba el programa, F5 lee los valores, %1 muestra las palabras conocidas.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Workbench of ORVTListview %1</source>
        <translation>Banco de trabajo de ORVTListview %1</translation>
    </message>
    <message>
        <source>It writes, checks and shows the programs of controllers and their points.

Free software under the MIT licence. It stands on Qt %1.</source>
        <translation>Escribe, comprueba y muestra los programas de los controladores y sus puntos.

Software libre con licencia MIT. Se basa en Qt %1.</translation>
    </message>
    <message>
        <source>&amp;First Steps</source>
        <translation>&amp;Primeros pasos</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ImportDialog</name>
    <message>
        <source>The first line has the &amp;heads</source>
        <translation>La primera línea contiene los &amp;títulos</translation>
    </message>
    <message>
        <source>Import Points</source>
        <translation>Importar puntos</translation>
    </message>
    <message>
        <source>%1 into the table %2:</source>
        <translation>%1 en la tabla %2:</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Codificación:</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Separador:</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todos</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ninguno</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Added: %1. Changed: %2. Left alone: %3. Not possible: %4. Ticked: %5.</source>
        <translation>Nuevos: %1. Cambiados: %2. Sin cambios: %3. No posibles: %4. Marcados: %5.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ImportModel</name>
    <message>
        <source>Added</source>
        <translation>Se añade</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Cambia</translation>
    </message>
    <message>
        <source>Left alone</source>
        <translation>Se queda</translation>
    </message>
    <message>
        <source>Not possible: %1</source>
        <translation>No es posible: %1</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Antes: %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importación</translation>
    </message>
</context>
<context>
    <name>ORVTListview::KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Command or key</source>
        <translation>Orden o tecla</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
</context>
<context>
    <name>ORVTListview::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
</context>
<context>
    <name>ORVTListview::LinesMenu</name>
    <message>
        <source>&amp;Lines</source>
        <translation>Líne&amp;as</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Hacia &amp;arriba</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Hacia a&amp;bajo</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Unir</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Ordenar</translation>
    </message>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Comentario</translation>
    </message>
    <message>
        <source>&amp;Tidy</source>
        <translation>&amp;Poner en orden</translation>
    </message>
    <message>
        <source>C&amp;apital Letters</source>
        <translation>&amp;Mayúsculas</translation>
    </message>
    <message>
        <source>S&amp;mall Letters</source>
        <translation>M&amp;inúsculas</translation>
    </message>
</context>
<context>
    <name>ORVTListview::MainWindow</name>
    <message>
        <source>Rows are filled from the top: %1 is in row %2.</source>
        <translation>Las filas se llenan desde arriba: %1 está en la fila %2.</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>%1, lines: %2</source>
        <translation>%1, líneas: %2</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>What you type cannot be kept for recovery: %1</source>
        <translation>Lo que escribe no se puede guardar para su recuperación: %1</translation>
    </message>
    <message>
        <source>Another workbench has this project open, too.</source>
        <translation>Otro banco de trabajo también tiene abierto este proyecto.</translation>
    </message>
    <message>
        <source>The project of the last time is open again.</source>
        <translation>El proyecto de la última vez está abierto de nuevo.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::NewPointDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>&amp;Tabla:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
</context>
<context>
    <name>ORVTListview::NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Nuevo proyecto</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Examinar…</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>C&amp;rear</translation>
    </message>
    <message>
        <source>Folder of the New Project</source>
        <translation>Carpeta del proyecto nuevo</translation>
    </message>
    <message>
        <source>The project and an empty program are made in this folder.</source>
        <translation>El proyecto y un programa vacío se crean en esta carpeta.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Este nombre tiene caracteres que un nombre no puede tener.</translation>
    </message>
    <message>
        <source>This cannot be a folder.</source>
        <translation>Esto no puede ser una carpeta.</translation>
    </message>
    <message>
        <source>%1 will be made.</source>
        <translation>Se creará %1.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::OpeningFault</name>
    <message>
        <source>The project cannot be opened</source>
        <translation>No se puede abrir el proyecto</translation>
    </message>
    <message>
        <source>Mend the file and try again, or open another project. The file has been left as it is.</source>
        <translation>Corrija el archivo e inténtelo de nuevo, o abra otro proyecto. El archivo no se ha modificado.</translation>
    </message>
    <message>
        <source>Open &amp;Another…</source>
        <translation>Abrir &amp;otro…</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Open the Version &amp;Before</source>
        <translation>Abrir la &amp;versión anterior</translation>
    </message>
</context>
<context>
    <name>ORVTListview::OpeningProgress</name>
    <message>
        <source>Colouring: %p %</source>
        <translation>Coloreado: %p %</translation>
    </message>
    <message>
        <source>Colouring the program</source>
        <translation>Coloreando el programa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The program stays, the rest of it without colours</source>
        <translation>El programa se queda, el resto sin colores</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointCells</name>
    <message>
        <source>Names are given by F2.</source>
        <translation>Los nombres se dan con F2.</translation>
    </message>
    <message>
        <source>This row has no point.</source>
        <translation>En esta fila no hay ningún punto.</translation>
    </message>
    <message>
        <source>This cell holds numbers only.</source>
        <translation>Esta celda solo admite números.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointChooser</name>
    <message>
        <source>Inputs</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Salidas</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Constantes</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Choose a point: its name goes into the program, or its row is shown</source>
        <translation>Elegir un punto: su nombre se inserta en el programa o se muestra su fila</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointImporting</name>
    <message>
        <source>Import Points</source>
        <translation>Importar puntos</translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.tsv *.txt)</source>
        <translation>Tablas como texto (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Points imported: %1</source>
        <translation>Puntos importados: %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointKindMenu</name>
    <message>
        <source>&amp;Choose From</source>
        <translation>Elegir e&amp;ntre</translation>
    </message>
    <message>
        <source>&amp;Inputs</source>
        <translation>&amp;Entradas</translation>
    </message>
    <message>
        <source>&amp;Outputs</source>
        <translation>&amp;Salidas</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>&amp;Constants</source>
        <translation>&amp;Constantes</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointReading</name>
    <message>
        <source>The controller is gone</source>
        <translation>El controlador ya no está</translation>
    </message>
    <message>
        <source>It answered for &quot;%1&quot;, which was not asked for</source>
        <translation>Ha respondido por «%1», que no se había pedido</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number</source>
        <translation>%1: «%2» no es un número</translation>
    </message>
    <message>
        <source>%1, and %2 more</source>
        <translation>%1, y %2 más</translation>
    </message>
    <message>
        <source>Values are missing</source>
        <translation>Faltan valores</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointRenaming</name>
    <message>
        <source>Add Point</source>
        <translation>Añadir punto</translation>
    </message>
    <message>
        <source>The table is full.</source>
        <translation>La tabla está llena.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Remove Point</source>
        <translation>Quitar punto</translation>
    </message>
    <message>
        <source>%1 is still named here, where it will be unknown:

%2

Remove it?</source>
        <translation>%1 todavía se nombra aquí, donde será desconocido:

%2

¿Quitarlo?</translation>
    </message>
    <message>
        <source>Duplicate Point</source>
        <translation>Duplicar punto</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointTables</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>Puntos: %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointsMenu</name>
    <message>
        <source>P&amp;oints</source>
        <translation>P&amp;untos</translation>
    </message>
    <message>
        <source>&amp;Read Values</source>
        <translation>&amp;Leer valores</translation>
    </message>
    <message>
        <source>&amp;Fit Columns</source>
        <translation>&amp;Ajustar columnas</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Cambiar nombre</translation>
    </message>
    <message>
        <source>&amp;Add Point…</source>
        <translation>Añadir &amp;punto…</translation>
    </message>
    <message>
        <source>Re&amp;move Point</source>
        <translation>&amp;Quitar punto</translation>
    </message>
    <message>
        <source>&amp;Edit Cells</source>
        <translation>&amp;Editar celdas</translation>
    </message>
    <message>
        <source>&amp;Hardware Overrides</source>
        <translation>&amp;Mandos manuales</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Duplicate Point…</source>
        <translation>&amp;Duplicar punto…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProblemWalk</name>
    <message>
        <source>The programs have no problems.</source>
        <translation>Los programas no tienen problemas.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramMenu</name>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programa</translation>
    </message>
    <message>
        <source>&amp;Analyse</source>
        <translation>&amp;Analizar</translation>
    </message>
    <message>
        <source>&amp;Compile</source>
        <translation>&amp;Compilar</translation>
    </message>
    <message>
        <source>&amp;Export Statements…</source>
        <translation>&amp;Exportar instrucciones…</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Resultados</translation>
    </message>
    <message>
        <source>A&amp;dd Program…</source>
        <translation>Aña&amp;dir programa…</translation>
    </message>
    <message>
        <source>Re&amp;name Program…</source>
        <translation>Ca&amp;mbiar el nombre del programa…</translation>
    </message>
    <message>
        <source>Re&amp;move Program…</source>
        <translation>&amp;Quitar el programa…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramNaming</name>
    <message>
        <source>Name of the program:</source>
        <translation>Nombre del programa:</translation>
    </message>
    <message>
        <source>Add Program</source>
        <translation>Añadir programa</translation>
    </message>
    <message>
        <source>Rename Program</source>
        <translation>Cambiar el nombre del programa</translation>
    </message>
    <message>
        <source>Remove the program %1 from the project?
What is not saved of it comes back only with Undo.</source>
        <translation>¿Quitar el programa %1 del proyecto?
Lo que no está guardado de él solo vuelve con Deshacer.</translation>
    </message>
    <message>
        <source>Remove the program %1 from the project?
Its file %2 stays where it is.</source>
        <translation>¿Quitar el programa %1 del proyecto?
Su archivo %2 queda donde está.</translation>
    </message>
    <message>
        <source>Remove Program</source>
        <translation>Quitar el programa</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramNavigation</name>
    <message>
        <source>Nothing uses %1.</source>
        <translation>Nada usa %1.</translation>
    </message>
    <message>
        <source>&amp;Go To Point</source>
        <translation>Ir al &amp;punto</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Volver</translation>
    </message>
    <message>
        <source>All &amp;Uses</source>
        <translation>Todos los &amp;usos</translation>
    </message>
    <message>
        <source>%1 is no point of the project.</source>
        <translation>%1 no es un punto del proyecto.</translation>
    </message>
    <message>
        <source>There is no place to go back to.</source>
        <translation>No hay ningún lugar al que volver.</translation>
    </message>
    <message>
        <source>There is no name here.</source>
        <translation>Aquí no hay ningún nombre.</translation>
    </message>
    <message>
        <source>&amp;Find In Programs…</source>
        <translation>&amp;Buscar en los programas…</translation>
    </message>
    <message>
        <source>%1 was not found.</source>
        <translation>No se ha encontrado %1.</translation>
    </message>
    <message>
        <source>No program uses %1.</source>
        <translation>Ningún programa usa %1.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramViews</name>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectHistory</name>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>%1 has been changed since. Take that back there first.</source>
        <translation>%1 ha cambiado desde entonces. Deshaga eso allí primero.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectLife</name>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>%1 is not there any more, or not at the moment.
Take it off the list?</source>
        <translation>%1 ya no está, o no está accesible en este momento.
¿Quitarlo de la lista?</translation>
    </message>
    <message>
        <source>Projects (*.orvt.json *.json)</source>
        <translation>Proyectos (*.orvt.json *.json)</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectSaving</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>Guardar como &amp;UTF-8</translation>
    </message>
    <message>
        <source>Save Else&amp;where…</source>
        <translation>Guardar en o&amp;tro lugar…</translation>
    </message>
    <message>
        <source>Nothing is lost: what was typed stays in the window and is kept for recovery.</source>
        <translation>No se ha perdido nada: lo escrito sigue en la ventana y se guarda para su recuperación.</translation>
    </message>
    <message>
        <source>Save Elsewhere</source>
        <translation>Guardar en otro lugar</translation>
    </message>
    <message>
        <source>The project %1 has changes that are not saved.
Save them?</source>
        <translation>El proyecto %1 tiene cambios sin guardar.
¿Guardarlos?</translation>
    </message>
    <message>
        <source>The program %1 has changes that are not saved.
Save them?</source>
        <translation>El programa %1 tiene cambios sin guardar.
¿Guardarlos?</translation>
    </message>
    <message>
        <source>The points of %1 have changes that are not saved.
Save them?</source>
        <translation>Los puntos de %1 tienen cambios sin guardar.
¿Guardarlos?</translation>
    </message>
    <message>
        <source>The program %1 and the points of %2 have changes that are not saved.
Save them?</source>
        <translation>El programa %1 y los puntos de %2 tienen cambios sin guardar.
¿Guardarlos?</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The file %1 has been changed elsewhere since it was opened.
Overwrite those changes?</source>
        <translation>El archivo %1 ha sido modificado en otro lugar desde que se abrió.
¿Sobrescribir esos cambios?</translation>
    </message>
    <message>
        <source>Saved, but the version before cannot be kept: %1</source>
        <translation>Guardado, pero no se puede conservar la versión anterior: %1</translation>
    </message>
    <message>
        <source>Projects (*.orvt.json)</source>
        <translation>Proyectos (*.orvt.json)</translation>
    </message>
    <message>
        <source>Other JSON files (*.json)</source>
        <translation>Otros archivos JSON (*.json)</translation>
    </message>
    <message>
        <source>The programs %1 have changes that are not saved.
Save them?</source>
        <translation>Los programas %1 tienen cambios sin guardar.
¿Guardarlos?</translation>
    </message>
    <message>
        <source>The programs %1 and the points of %2 have changes that are not saved.
Save them?</source>
        <translation>Los programas %1 y los puntos de %2 tienen cambios sin guardar.
¿Guardarlos?</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectView</name>
    <message>
        <source>Views</source>
        <translation>Vistas</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ReadingDialog</name>
    <message>
        <source>Reading</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Cyclic reading</source>
        <translation>Lectura en ciclo</translation>
    </message>
    <message>
        <source>&amp;Pause between readings:</source>
        <translation>&amp;Pausa entre lecturas:</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Controlador simulado</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>No es accesible</translation>
    </message>
    <message>
        <source>Refuses</source>
        <translation>Se niega</translation>
    </message>
    <message>
        <source>Stops answering in the middle</source>
        <translation>Se detiene a la mitad</translation>
    </message>
    <message>
        <source>A text for a number</source>
        <translation>Un texto en lugar de un número</translation>
    </message>
    <message>
        <source>Values are missing</source>
        <translation>Faltan valores</translation>
    </message>
    <message>
        <source>A point that nobody asked for</source>
        <translation>Un punto que nadie ha pedido</translation>
    </message>
    <message>
        <source>&amp;Time for an answer:</source>
        <translation>&amp;Tiempo para una respuesta:</translation>
    </message>
    <message>
        <source>&amp;Failure:</source>
        <translation>&amp;Fallo:</translation>
    </message>
    <message>
        <source>&amp;Wrong answers:</source>
        <translation>&amp;Respuestas erróneas:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ReadingStatus</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop reading; what has been read stays</source>
        <translation>Deja de leer; lo leído se queda</translation>
    </message>
    <message>
        <source>Reading values: %1 of %2</source>
        <translation>Leyendo valores: %1 de %2</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>%1. Values read: %2 of %3.</source>
        <translation>%1. Valores leídos: %2 de %3.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>No projects yet</source>
        <translation>Aún no hay proyectos</translation>
    </message>
    <message>
        <source>Open the &amp;Last at Start</source>
        <translation>Abrir el ú&amp;ltimo al iniciar</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecoveryDialog</name>
    <message>
        <source>Recover Unsaved Work</source>
        <translation>Recuperar trabajo sin guardar</translation>
    </message>
    <message>
        <source>The workbench ended without saving this work of %1. What differs from the files is shown below.</source>
        <translation>El banco de trabajo terminó sin guardar este trabajo del %1. Abajo se muestra en qué difiere de los archivos.</translation>
    </message>
    <message>
        <source>The files are newer than this work.</source>
        <translation>Los archivos son más recientes que este trabajo.</translation>
    </message>
    <message>
        <source>Before, in the files</source>
        <translation>Antes, en los archivos</translation>
    </message>
    <message>
        <source>After, not saved</source>
        <translation>Después, sin guardar</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>Decidir &amp;luego</translation>
    </message>
    <message>
        <source>%1 holds work that was not saved, but cannot be read as a whole. It stays there; a text editor shows what it holds.</source>
        <translation>%1 contiene trabajo sin guardar, pero no se puede leer por completo. Se queda ahí; un editor de texto muestra lo que contiene.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecoveryKeeper</name>
    <message>
        <source>Too many workbenches have this project open.</source>
        <translation>Demasiados bancos de trabajo tienen abierto este proyecto.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RenameDialog</name>
    <message>
        <source>Program, line %1</source>
        <translation>Programa, línea %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>%1 becomes %2 in the places that have a tick:</source>
        <translation>%1 pasa a ser %2 en los lugares marcados:</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar nombre</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todos</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ninguno</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, línea %2</translation>
    </message>
</context>
<context>
    <name>ORVTListview::SettingsDialog</name>
    <message>
        <source>Own &amp;font:</source>
        <translation>&amp;Fuente propia:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>La del sistema</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Tema:</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>The project&apos;s</source>
        <translation>Como en el proyecto</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contraste alto</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propios</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Colores:</translation>
    </message>
    <message>
        <source>Font &amp;size:</source>
        <translation>Tama&amp;ño de fuente:</translation>
    </message>
    <message>
        <source>Reserved words</source>
        <translation>Palabras reservadas</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Constantes</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Salidas</translation>
    </message>
    <message>
        <source>Network inputs</source>
        <translation>Entradas de red</translation>
    </message>
    <message>
        <source>Network outputs</source>
        <translation>Salidas de red</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Hard to read on this ground: %1. The editor shows them stronger while Readable Colours is on.</source>
        <translation>Difícil de leer sobre este fondo: %1. El editor los muestra más intensos mientras Colores legibles esté activado.</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>While Typing</source>
        <translation>Al escribir</translation>
    </message>
    <message>
        <source>&amp;Indent after IF and ELSE</source>
        <translation>&amp;Sangrar tras IF y ELSE</translation>
    </message>
    <message>
        <source>&amp;Home goes to the first word</source>
        <translation>I&amp;nicio va a la primera palabra</translation>
    </message>
    <message>
        <source>Drop &amp;blanks at line ends</source>
        <translation>&amp;Quitar espacios al final de línea</translation>
    </message>
    <message>
        <source>The &amp;word list opens by itself</source>
        <translation>La lista de &amp;palabras se abre sola</translation>
    </message>
</context>
<context>
    <name>ORVTListview::SimulatedController</name>
    <message>
        <source>The controller refuses to tell its values</source>
        <translation>El controlador se niega a dar sus valores</translation>
    </message>
    <message>
        <source>The controller has stopped answering</source>
        <translation>El controlador ha dejado de responder</translation>
    </message>
    <message>
        <source>The controller cannot be reached</source>
        <translation>No se puede acceder al controlador</translation>
    </message>
</context>
<context>
    <name>ORVTListview::StartPage</name>
    <message>
        <source>No project is open</source>
        <translation>No hay ningún proyecto abierto</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nuevo proyecto…</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>&amp;Abrir proyecto…</translation>
    </message>
    <message>
        <source>Projects that were opened &amp;last:</source>
        <translation>Proyectos abiertos ú&amp;ltimamente:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TableMenu</name>
    <message>
        <source>Go To First Use</source>
        <translation>Ir al primer uso</translation>
    </message>
    <message>
        <source>There is no point in this row.</source>
        <translation>No hay ningún punto en esta fila.</translation>
    </message>
    <message>
        <source>%1 empties cells while Edit Cells is on; %2 removes the point.</source>
        <translation>%1 vacía celdas mientras «Editar celdas» está activado; %2 quita el punto.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TrendDock</name>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Drawn points</source>
        <translation>Puntos trazados</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Read &amp;Cyclically</source>
        <translation>Leer en &amp;ciclo</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Export Trend</source>
        <translation>Exportar la tendencia</translation>
    </message>
    <message>
        <source>Table with commas (*.csv)</source>
        <translation>Tabla con comas (*.csv)</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TrendView</name>
    <message>
        <source>%1: not read</source>
        <translation>%1: sin leer</translation>
    </message>
    <message>
        <source>%1: %2, from %3 to %4</source>
        <translation>%1: %2, de %3 a %4</translation>
    </message>
    <message>
        <source>No point is drawn yet. Select rows of a table and choose Add To Trend.</source>
        <translation>Aún no se traza ningún punto. Seleccione filas de una tabla y elija «Añadir a la tendencia».</translation>
    </message>
    <message>
        <source>Nothing has been read yet. Read Values reads once, Read Cyclically again and again.</source>
        <translation>Aún no se ha leído nada. «Leer valores» lee una vez, «Leer en ciclo» una y otra vez.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>A&amp;justes…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Ve&amp;ntana</translation>
    </message>
    <message>
        <source>Next &amp;Pane</source>
        <translation>Panel &amp;siguiente</translation>
    </message>
    <message>
        <source>P&amp;revious Pane</source>
        <translation>&amp;Panel anterior</translation>
    </message>
    <message>
        <source>Go To Pro&amp;ject</source>
        <translation>Ir al pro&amp;yecto</translation>
    </message>
    <message>
        <source>Go To Pro&amp;gram</source>
        <translation>Ir al pro&amp;grama</translation>
    </message>
    <message>
        <source>Go To &amp;Table</source>
        <translation>Ir a la &amp;tabla</translation>
    </message>
    <message>
        <source>Go To Resu&amp;lts</source>
        <translation>Ir a los &amp;resultados</translation>
    </message>
    <message>
        <source>Go To Po&amp;ints</source>
        <translation>Ir a los p&amp;untos</translation>
    </message>
    <message>
        <source>Show &amp;Beside</source>
        <translation>Mostrar al &amp;lado</translation>
    </message>
    <message>
        <source>Show Belo&amp;w</source>
        <translation>Mostrar de&amp;bajo</translation>
    </message>
    <message>
        <source>&amp;All In Tabs</source>
        <translation>T&amp;odo en pestañas</translation>
    </message>
    <message>
        <source>&amp;Own Window</source>
        <translation>&amp;Ventana propia</translation>
    </message>
    <message>
        <source>&amp;Close Table</source>
        <translation>&amp;Cerrar la tabla</translation>
    </message>
    <message>
        <source>&amp;Next Tab</source>
        <translation>Pestaña s&amp;iguiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious Tab</source>
        <translation>Pestaña &amp;anterior</translation>
    </message>
</context>
<context>
    <name>PrintedPages</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>ProgramChoice</name>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programa:</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Todos los programas</translation>
    </message>
</context>
<context>
    <name>ProjectTexts</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>La carpeta %1 no se puede crear.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour (&quot;#rrggbb&quot; or a system colour)</source>
        <translation>«%1» no es un color («#rrggbb» o un color del sistema)</translation>
    </message>
    <message>
        <source>a size from 1 to %1 points is expected</source>
        <translation>se espera un tamaño de 1 a %1 puntos</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>línea %1, columna %2</translation>
    </message>
    <message>
        <source>an object is expected</source>
        <translation>se espera un objeto</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>is not known here</source>
        <translation>no se conoce aquí</translation>
    </message>
    <message>
        <source>an array is expected</source>
        <translation>se espera una lista</translation>
    </message>
    <message>
        <source>holds more than %1 elements</source>
        <translation>tiene más de %1 elementos</translation>
    </message>
    <message>
        <source>a text is expected</source>
        <translation>se espera un texto</translation>
    </message>
    <message>
        <source>true or false is expected</source>
        <translation>se espera true o false</translation>
    </message>
    <message>
        <source>a whole number of 32 bits is expected</source>
        <translation>se espera un número entero de 32 bits</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>se espera un número</translation>
    </message>
    <message>
        <source>a name is expected, without blanks around it and control characters</source>
        <translation>se espera un nombre, sin espacios alrededor ni caracteres de control</translation>
    </message>
    <message>
        <source>a number or a text is expected</source>
        <translation>se espera un número o un texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of %2 too</source>
        <translation>«%1» es también el nombre de %2</translation>
    </message>
    <message>
        <source>has more than %1 names</source>
        <translation>tiene más de %1 nombres</translation>
    </message>
    <message>
        <source>%1: line %2 is not valid UTF-8</source>
        <translation>%1: la línea %2 no es UTF-8 válido</translation>
    </message>
    <message>
        <source>%1: line %2 holds half a character</source>
        <translation>%1: la línea %2 contiene medio carácter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a point</source>
        <translation>«%1» no es un nombre de punto</translation>
    </message>
    <message>
        <source>Another point has the name &quot;%1&quot;</source>
        <translation>Otro punto se llama ya «%1»</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>may only be read</source>
        <translation>es de solo lectura</translation>
    </message>
    <message>
        <source>its folder takes no new file (%1)</source>
        <translation>su carpeta no admite archivos nuevos (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands there twice</source>
        <translation>«%1» figura dos veces</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a blank or one of ( ) , \ { }, which no name in a program can</source>
        <translation>«%1» contiene un espacio o uno de ( ) , \ { }, lo que ningún nombre puede en un programa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a number</source>
        <translation>«%1» es un número</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a word of the language</source>
        <translation>«%1» es una palabra del lenguaje</translation>
    </message>
    <message>
        <source>%1: line %2 holds &quot;%3&quot;, which the file&apos;s encoding (Windows-1252) does not have</source>
        <translation>%1: la línea %2 contiene «%3», que la codificación del archivo (Windows-1252) no tiene</translation>
    </message>
    <message>
        <source>%1: its %2 have been changed elsewhere</source>
        <translation>%1: «%2» se ha cambiado en otro lugar</translation>
    </message>
    <message>
        <source>Work on %1 that is not saved. The workbench offers it when the project is opened the next time.</source>
        <translation>Trabajo en %1 sin guardar. El banco de trabajo lo ofrece la próxima vez que se abra el proyecto.</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 ya existe.</translation>
    </message>
    <message>
        <source>the form %1 is newer than the form %2 that can be read here; a newer version opens the file, which stays as it is</source>
        <translation>el formato %1 es más nuevo que el formato %2 que se puede leer aquí; una versión más nueva abre el archivo, que queda como está</translation>
    </message>
    <message>
        <source>no folder takes a recovery file</source>
        <translation>ninguna carpeta admite un archivo de recuperación</translation>
    </message>
    <message>
        <source>&quot;%1&quot; comes twice</source>
        <translation>«%1» aparece dos veces</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of a row</source>
        <translation>«%1» no es el número de una fila</translation>
    </message>
    <message>
        <source>The table is full</source>
        <translation>La tabla está llena</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>«%1» no es ni sí ni no</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>«%1» no es un número</translation>
    </message>
    <message>
        <source>another program has the name &quot;%1&quot;</source>
        <translation>otro programa se llama ya «%1»</translation>
    </message>
    <message>
        <source>another program has the file &quot;%1&quot;</source>
        <translation>otro programa tiene ya el archivo «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are one file</source>
        <translation>«%1» y «%2» son un mismo archivo</translation>
    </message>
    <message>
        <source>a project has at least one program</source>
        <translation>un proyecto tiene al menos un programa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a program</source>
        <translation>«%1» no es un nombre de programa</translation>
    </message>
    <message>
        <source>Another program has the name &quot;%1&quot;</source>
        <translation>Otro programa se llama ya «%1»</translation>
    </message>
    <message>
        <source>a form from 1 to %1 is expected</source>
        <translation>se espera un formato de 1 a %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StatementExport</name>
    <message>
        <source>Export Statements</source>
        <translation>Exportar instrucciones</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Instrucción</translation>
    </message>
    <message>
        <source>Export Statements of %1</source>
        <translation>Exportar las instrucciones de %1</translation>
    </message>
</context>
<context>
    <name>ViewKeys</name>
    <message>
        <source>In a program</source>
        <translation>En un programa</translation>
    </message>
    <message>
        <source>Indent the selected lines</source>
        <translation>Sangrar las líneas seleccionadas</translation>
    </message>
    <message>
        <source>Take their indent back</source>
        <translation>Quitarles la sangría</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>In a table</source>
        <translation>En una tabla</translation>
    </message>
    <message>
        <source>Edit the name or the cell</source>
        <translation>Editar el nombre o la celda</translation>
    </message>
    <message>
        <source>Select the row, or deselect it</source>
        <translation>Seleccionar la fila, o ya no</translation>
    </message>
    <message>
        <source>Select the column of the cell</source>
        <translation>Seleccionar la columna de la celda</translation>
    </message>
    <message>
        <source>Select the row of the cell</source>
        <translation>Seleccionar la fila de la celda</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Copiar la selección</translation>
    </message>
    <message>
        <source>Copy it with the headers</source>
        <translation>Copiar la selección con los encabezados</translation>
    </message>
    <message>
        <source>Paste into the cells</source>
        <translation>Pegar en las celdas</translation>
    </message>
    <message>
        <source>Clear the cells</source>
        <translation>Vaciar las celdas</translation>
    </message>
    <message>
        <source>Fill the cells from the topmost one</source>
        <translation>Llenar las celdas desde la de arriba</translation>
    </message>
    <message>
        <source>Enter it in all selected cells</source>
        <translation>Introducirlo en todas las celdas seleccionadas</translation>
    </message>
    <message>
        <source>Change yes and no</source>
        <translation>Cambiar entre sí y no</translation>
    </message>
    <message>
        <source>Empty the filter</source>
        <translation>Vaciar el filtro</translation>
    </message>
    <message>
        <source>In the project&apos;s tree</source>
        <translation>En el árbol del proyecto</translation>
    </message>
    <message>
        <source>Open what is selected</source>
        <translation>Abrir la selección</translation>
    </message>
    <message>
        <source>Expand, collapse</source>
        <translation>Desplegar, plegar</translation>
    </message>
    <message>
        <source>Rename the program</source>
        <translation>Cambiar el nombre del programa</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Quitar el programa</translation>
    </message>
    <message>
        <source>Move the program up</source>
        <translation>Subir el programa</translation>
    </message>
    <message>
        <source>Move the program down</source>
        <translation>Bajar el programa</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>Menu of what has the focus</source>
        <translation>Menú de lo que tiene el foco</translation>
    </message>
    <message>
        <source>List of all points, in their field</source>
        <translation>Lista de todos los puntos, en su campo</translation>
    </message>
</context>
<context>
    <name>ViewTabs</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Cerrar %1</translation>
    </message>
    <message>
        <source>Open views</source>
        <translation>Vistas abiertas</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Workbench</source>
        <translation>Banco de trabajo</translation>
    </message>
</context>
</TS>
