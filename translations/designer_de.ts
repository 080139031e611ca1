<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ColoursDialog</name>
    <message>
        <source>Colours of the Program</source>
        <translation>Farben des Programms</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Colour &amp;set:</source>
        <translation>&amp;Farbsatz:</translation>
    </message>
    <message>
        <source>Reserved words</source>
        <translation>Reservierte Wörter</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Konstanten</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
    <message>
        <source>Network inputs</source>
        <translation>Netzwerkeingänge</translation>
    </message>
    <message>
        <source>Network outputs</source>
        <translation>Netzwerkausgänge</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>The program sets the colours.</source>
        <translation>Die Farben setzt Ihr Programm.</translation>
    </message>
    <message>
        <source>Hard to read on this ground: %1.</source>
        <translation>Auf diesem Hintergrund schlecht zu lesen: %1.</translation>
    </message>
</context>
<context>
    <name>ColumnsDialog</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach o&amp;ben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Ready Columns</source>
        <translation>Fe&amp;rtige Spalten</translation>
    </message>
    <message>
        <source>Columns of “%1”</source>
        <translation>Spalten von „%1“</translation>
    </message>
    <message>
        <source>&amp;Kept in the form:</source>
        <translation>Im &amp;Formular steht:</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Width in twips</source>
        <translation>Breite in Twips</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>nothing: the columns are those of the type</source>
        <translation>nichts: die Spalten sind die des Typs</translation>
    </message>
</context>
<context>
    <name>ListTaskMenu</name>
    <message>
        <source>Columns of This Type…</source>
        <translation>Spalten dieses Typs…</translation>
    </message>
    <message>
        <source>Colours of the Program…</source>
        <translation>Farben des Programms…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ColourPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>PropertyGroups</name>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
</context>
</TS>
