<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ColoursDialog</name>
    <message>
        <source>Colours of the Program</source>
        <translation>Colores del programa</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
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
        <source>High contrast</source>
        <translation>Contraste alto</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propios</translation>
    </message>
    <message>
        <source>Colour &amp;set:</source>
        <translation>Con&amp;junto de colores:</translation>
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
        <source>The program sets the colours.</source>
        <translation>Los colores los pone su programa.</translation>
    </message>
    <message>
        <source>Hard to read on this ground: %1.</source>
        <translation>Difícil de leer sobre este fondo: %1.</translation>
    </message>
</context>
<context>
    <name>ColumnsDialog</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Ready Columns</source>
        <translation>Columnas &amp;previstas</translation>
    </message>
    <message>
        <source>Columns of “%1”</source>
        <translation>Columnas de «%1»</translation>
    </message>
    <message>
        <source>&amp;Kept in the form:</source>
        <translation>&amp;Guardado en el formulario:</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Width in twips</source>
        <translation>Ancho en twips</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>nothing: the columns are those of the type</source>
        <translation>nada: las columnas son las del tipo</translation>
    </message>
</context>
<context>
    <name>ListTaskMenu</name>
    <message>
        <source>Columns of This Type…</source>
        <translation>Columnas de este tipo…</translation>
    </message>
    <message>
        <source>Colours of the Program…</source>
        <translation>Colores del programa…</translation>
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
    <name>PropertyGroups</name>
    <message>
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamiento</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspecto</translation>
    </message>
</context>
</TS>
