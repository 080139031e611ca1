<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ORVTListview</name>
    <message>
        <source>Code</source>
        <extracomment>The program of the controller</extracomment>
        <translation>Programa</translation>
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
        <source>Controllers</source>
        <extracomment>PID control loops</extracomment>
        <translation>Reguladores</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Trend logs</extracomment>
        <translation>Históricos</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>Temporizadores</translation>
    </message>
    <message>
        <source>Optimum Starts</source>
        <extracomment>Functions that start a plant as late as possible before occupancy</extracomment>
        <translation>Arranques óptimos</translation>
    </message>
    <message>
        <source>Network Var Inputs</source>
        <translation>Variables de red de entrada</translation>
    </message>
    <message>
        <source>Network Var Outputs</source>
        <translation>Variables de red de salida</translation>
    </message>
    <message>
        <source>Input Parameters</source>
        <translation>Parámetros de entrada</translation>
    </message>
    <message>
        <source>Output Parameters</source>
        <translation>Parámetros de salida</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Basic Programming</source>
        <translation>Programación básica</translation>
    </message>
    <message>
        <source>Internal Points</source>
        <translation>Puntos internos</translation>
    </message>
    <message>
        <source>Built-In Functions</source>
        <translation>Funciones integradas</translation>
    </message>
    <message>
        <source>Network Variables</source>
        <translation>Variables de red</translation>
    </message>
    <message>
        <source>Hardware Configuration</source>
        <translation>Configuración de hardware</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>The name of a point, as the program uses it</extracomment>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Mode</source>
        <extracomment>Manual or automatic</extracomment>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>The unit of measure of a point</extracomment>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Commissioned</source>
        <extracomment>Whether the point was checked when the plant was put into service</extracomment>
        <translation>Puesto en servicio</translation>
    </message>
    <message>
        <source>Hw Override Mode</source>
        <extracomment>The switch on the device that overrides an output</extracomment>
        <translation>Modo forzado HW</translation>
    </message>
    <message>
        <source>Hw Override Value</source>
        <translation>Valor forzado HW</translation>
    </message>
    <message>
        <source>Input</source>
        <extracomment>What a control loop measures</extracomment>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Setpoint</source>
        <translation>Consigna</translation>
    </message>
    <message>
        <source>Proportional Band</source>
        <translation>Banda prop.</translation>
    </message>
    <message>
        <source>Integral Gain</source>
        <translation>Ganancia integral</translation>
    </message>
    <message>
        <source>Integral Time</source>
        <translation>Tiempo integral</translation>
    </message>
    <message>
        <source>Derivative Gain</source>
        <translation>Ganancia derivativa</translation>
    </message>
    <message>
        <source>Derivative Time</source>
        <translation>Tiempo derivativo</translation>
    </message>
    <message>
        <source>Dead Band</source>
        <translation>Banda muerta</translation>
    </message>
    <message>
        <source>Bias</source>
        <extracomment>What is added to the output of a control loop</extracomment>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Direct or reverse</extracomment>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Divisor</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>The point that a log records or a timer drives</extracomment>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Differential</source>
        <extracomment>The change of value that makes a log record</extracomment>
        <translation>Diferencial</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>The interval at which a log records</extracomment>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Unit</source>
        <extracomment>The unit of measure of a log</extracomment>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Target Temperature</source>
        <translation>Temp. objetivo</translation>
    </message>
    <message>
        <source>Target Setpoint</source>
        <translation>Consigna objetivo</translation>
    </message>
    <message>
        <source>Outdoor Temperature</source>
        <translation>Temp. exterior</translation>
    </message>
    <message>
        <source>Schedule</source>
        <extracomment>The time programme that an optimum start follows</extracomment>
        <translation>Horario</translation>
    </message>
    <message>
        <source>Max Starting Time</source>
        <extracomment>The longest time before occupancy at which the plant may start</extracomment>
        <translation>Tiempo arranque máx.</translation>
    </message>
    <message>
        <source>Format Name</source>
        <translation>Nombre de formato</translation>
    </message>
    <message>
        <source>Persistent</source>
        <extracomment>Whether a value survives a power failure</extracomment>
        <translation>Persistente</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Origen de datos</translation>
    </message>
    <message>
        <source>Scale Min/Rising Edge</source>
        <extracomment>The scale&apos;s lower end of an analogue input, the rising edge of a digital one</extracomment>
        <translation>Esc. mín./flanco sub.</translation>
    </message>
    <message>
        <source>Scale Max/Falling Edge</source>
        <extracomment>The scale&apos;s upper end of an analogue input, the falling edge of a digital one</extracomment>
        <translation>Esc. máx./flanco baj.</translation>
    </message>
    <message>
        <source>Input Min</source>
        <translation>Entrada mín.</translation>
    </message>
    <message>
        <source>Input Max</source>
        <translation>Entrada máx.</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Corrección</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Override</source>
        <extracomment>Whether the value of an input is forced</extracomment>
        <translation>Forzado</translation>
    </message>
    <message>
        <source>PWM Period</source>
        <translation>Periodo PWM</translation>
    </message>
    <message>
        <source>Click here to read data values</source>
        <translation>Haga clic aquí para leer los valores</translation>
    </message>
    <message>
        <source>Idle</source>
        <extracomment>The state of a component that waits for nothing</extracomment>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Busy</source>
        <extracomment>The state of a component that waits for the controller</extracomment>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find - Replace</source>
        <translation>Buscar - Reemplazar</translation>
    </message>
    <message>
        <source>Find What</source>
        <translation>Texto a buscar</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>Reemplazar por</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>Also the title of the window</extracomment>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>...</source>
        <extracomment>Shows the fields for replacing</extracomment>
        <translation>...</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Reemplazar todo</translation>
    </message>
    <message>
        <source>Find Whole Word Only</source>
        <translation>Solo palabra completa</translation>
    </message>
    <message>
        <source>Match Case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Searches for the full word by itself and not as part of a larger word.</source>
        <translation>Busca la palabra por sí sola, no como parte de otra más larga.</translation>
    </message>
    <message>
        <source>Finds all occurrences with the exact combination of uppercase and lowercase letters specified in the Find What box.</source>
        <extracomment>Find What is the label of the field, in the words of its own translation</extracomment>
        <translation>Encuentra las apariciones con las mismas mayúsculas y minúsculas que el campo «Texto a buscar».</translation>
    </message>
    <message>
        <source>Found in</source>
        <extracomment>Stands before the position: Found in Row: 3, Col: 7</extracomment>
        <translation>Encontrado:</translation>
    </message>
    <message>
        <source>Not found!</source>
        <translation>¡No encontrado!</translation>
    </message>
    <message>
        <source>replace(s)!</source>
        <extracomment>Stands behind a number: 3 replace(s)!</extracomment>
        <translation>reemplazo(s)</translation>
    </message>
    <message>
        <source>Row:</source>
        <extracomment>The caret&apos;s position, first piece: Row: 3, Col: 7</extracomment>
        <translation>Línea</translation>
    </message>
    <message>
        <source>, Col:</source>
        <extracomment>The caret&apos;s position, second piece: Row: 3, Col: 7</extracomment>
        <translation>, columna</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Also the title of messages</extracomment>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>List not found!</source>
        <extracomment>The list of known words</extracomment>
        <translation>¡Lista de palabras no encontrada!</translation>
    </message>
    <message>
        <source>Invalid letter: &apos;\&apos; that is reserved to RTF!</source>
        <translation>¡Carácter no válido: &apos;\&apos; está reservado para RTF!</translation>
    </message>
    <message>
        <source>The text is too large.</source>
        <translation>El texto es demasiado grande.</translation>
    </message>
    <message>
        <source>Code Text Setting</source>
        <extracomment>How the code editor looks</extracomment>
        <translation>Aspecto del programa</translation>
    </message>
    <message>
        <source>Bad %1 for Editer of Code!</source>
        <extracomment>%1 is the name of a colour setting, such as BackColor</extracomment>
        <translation>¡Color %1 no válido para el editor de programas!</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>The content of a cell of yes or no</extracomment>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>The content of a cell of yes or no</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>This cell cannot be edited.</source>
        <translation>Esta celda no se puede editar.</translation>
    </message>
    <message>
        <source>This cell must not be empty.</source>
        <translation>Esta celda no debe quedar vacía.</translation>
    </message>
    <message>
        <source>Characters at most: %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Caracteres como máximo: %1.</translation>
    </message>
    <message>
        <source>This text does not fit here.</source>
        <translation>Este texto no es adecuado aquí.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Esto no es un número.</translation>
    </message>
    <message>
        <source>Only a whole number fits here.</source>
        <translation>Aquí solo cabe un número entero.</translation>
    </message>
    <message>
        <source>Decimals at most: %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Decimales como máximo: %1.</translation>
    </message>
    <message>
        <source>The number must not be below %1.</source>
        <extracomment>%1 is a number with its unit</extracomment>
        <translation>El número no debe ser menor que %1.</translation>
    </message>
    <message>
        <source>The number must not be above %1.</source>
        <extracomment>%1 is a number with its unit</extracomment>
        <translation>El número no debe ser mayor que %1.</translation>
    </message>
    <message>
        <source>This is not in the list.</source>
        <translation>Esto no está en la lista.</translation>
    </message>
    <message>
        <source>This is neither %1 nor %2.</source>
        <extracomment>%1 and %2 are the words for yes and no</extracomment>
        <translation>Esto no es ni %1 ni %2.</translation>
    </message>
    <message>
        <source>There is no point of this name.</source>
        <translation>No hay ningún punto con este nombre.</translation>
    </message>
    <message>
        <source>There is not enough room here.</source>
        <translation>Aquí no hay espacio suficiente.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>Behind a list of cells: so many are not listed</extracomment>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>%1, sorted upwards</source>
        <extracomment>The header of a column, for screen readers; %1 is its text</extracomment>
        <translation>%1, orden ascendente</translation>
    </message>
    <message>
        <source>%1, sorted downwards</source>
        <extracomment>The header of a column, for screen readers; %1 is its text</extracomment>
        <translation>%1, orden descendente</translation>
    </message>
    <message>
        <source>Changed</source>
        <extracomment>The value of a cell has changed</extracomment>
        <translation>modificado</translation>
    </message>
    <message>
        <source>Old</source>
        <extracomment>The value of a cell was read a while ago</extracomment>
        <translation>antiguo</translation>
    </message>
    <message>
        <source>By hand</source>
        <extracomment>The value of a cell is set by hand</extracomment>
        <translation>a mano</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>The value of a cell is an alarm</extracomment>
        <translation>alarma</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>A command: the current cell of a table</extracomment>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <extracomment>A command: the selected cells of a table, and the headers of their columns</extracomment>
        <translation>Copiar con títulos</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <extracomment>A command: the topmost selected cell into those below</extracomment>
        <translation>Rellenar hacia abajo</translation>
    </message>
    <message>
        <source>Sort Upwards</source>
        <extracomment>A command: the rows of a table by a column</extracomment>
        <translation>Orden ascendente</translation>
    </message>
    <message>
        <source>Sort Downwards</source>
        <extracomment>A command: the rows of a table by a column</extracomment>
        <translation>Orden descendente</translation>
    </message>
    <message>
        <source>Not Sorted</source>
        <extracomment>A command: the rows of a table</extracomment>
        <translation>Sin ordenar</translation>
    </message>
    <message>
        <source>All Rows</source>
        <extracomment>A command: no filter of the rows of a table</extracomment>
        <translation>Todas las filas</translation>
    </message>
    <message>
        <source>Add Row</source>
        <extracomment>A command: to a table</extracomment>
        <translation>Añadir fila</translation>
    </message>
    <message>
        <source>Duplicate Rows</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Duplicar filas</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Quitar filas</translation>
    </message>
    <message>
        <source>Move Up</source>
        <extracomment>A command: rows of a table</extracomment>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <extracomment>A command: rows of a table</extracomment>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Fit Column</source>
        <extracomment>A command: as wide as its texts</extracomment>
        <translation>Ajustar columna</translation>
    </message>
    <message>
        <source>Fit All Columns</source>
        <extracomment>A command: as wide as their texts</extracomment>
        <translation>Ajustar columnas</translation>
    </message>
    <message>
        <source>Hide Column</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Ocultar columna</translation>
    </message>
    <message>
        <source>Columns</source>
        <extracomment>A menu: those of a table that are seen</extracomment>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Edit Cell</source>
        <extracomment>A step of undo</extracomment>
        <translation>Editar celda</translation>
    </message>
    <message>
        <source>Edit Cells</source>
        <extracomment>A step of undo: several cells at once</extracomment>
        <translation>Editar celdas</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s selection is not a number</source>
        <translation>Paso de deshacer dañado: la selección no es un número</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s selection is too large a number</source>
        <translation>Paso de deshacer dañado: la selección es demasiado grande</translation>
    </message>
    <message>
        <source>The undo snapshot has fewer than three fields</source>
        <translation>Paso de deshacer dañado: menos de tres campos</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s text holds the separator of its fields</source>
        <translation>Paso de deshacer dañado: el texto contiene el separador de los campos</translation>
    </message>
    <message>
        <source>The text holds a character that the 8-bit code page lacks</source>
        <translation>El texto contiene un carácter que falta en la página de códigos de 8 bits</translation>
    </message>
    <message>
        <source>Insufficient memory to compress string</source>
        <translation>Memoria insuficiente para comprimir el texto</translation>
    </message>
    <message>
        <source>Insufficient space in output buffer to compress string</source>
        <translation>Espacio insuficiente en el búfer de salida para comprimir el texto</translation>
    </message>
    <message>
        <source>Unknown error during compress operation</source>
        <translation>Error desconocido durante la compresión</translation>
    </message>
    <message>
        <source>Insufficient memory to uncompress string</source>
        <translation>Memoria insuficiente para descomprimir el texto</translation>
    </message>
    <message>
        <source>Insufficient space in output buffer to uncompress string</source>
        <translation>Espacio insuficiente en el búfer de salida para descomprimir el texto</translation>
    </message>
    <message>
        <source>Cannot uncompress corrupt data</source>
        <translation>No se pueden descomprimir datos dañados</translation>
    </message>
    <message>
        <source>Unknown error during uncompress operation</source>
        <translation>Error desconocido durante la descompresión</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <extracomment>The strip beside the program, for screen readers</extracomment>
        <translation>Números de línea</translation>
    </message>
    <message>
        <source>Go to line:</source>
        <extracomment>In front of a field for a number</extracomment>
        <translation>Ir a la línea:</translation>
    </message>
    <message>
        <source>Line %1</source>
        <extracomment>The line of the caret, for screen readers; %1 is its number</extracomment>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>%1 lines hidden</source>
        <extracomment>A number: so many lines of the program are folded away, for screen readers</extracomment>
        <translation>%1 líneas ocultas</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Numbers: the third match of seventeen is selected; %2 may be 17+ for at least 17</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 found</source>
        <extracomment>A number of matches, of which none is selected; it may be 17+ for at least 17</extracomment>
        <translation>Encontrados: %1</translation>
    </message>
    <message>
        <source>Known words</source>
        <extracomment>The list of known words, for screen readers</extracomment>
        <translation>Palabras conocidas</translation>
    </message>
    <message>
        <source>Functions</source>
        <extracomment>The kind of a known word, such as AVERAGE</extracomment>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>Reserved Words</source>
        <extracomment>The kind of a known word, such as IF</extracomment>
        <translation>Palabras reservadas</translation>
    </message>
    <message>
        <source>Empty the filter</source>
        <extracomment>The button in a field by which the rows of a table are filtered</extracomment>
        <translation>Vaciar el filtro</translation>
    </message>
</context>
</TS>
