<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ORVTListview</name>
    <message>
        <source>Code</source>
        <extracomment>The program of the controller</extracomment>
        <translation>Programm</translation>
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
        <source>Controllers</source>
        <extracomment>PID control loops</extracomment>
        <translation>Regler</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Trend logs</extracomment>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>Zeitglieder</translation>
    </message>
    <message>
        <source>Optimum Starts</source>
        <extracomment>Functions that start a plant as late as possible before occupancy</extracomment>
        <translation>Startoptimierungen</translation>
    </message>
    <message>
        <source>Network Var Inputs</source>
        <translation>Netzwerkvar.-Eingänge</translation>
    </message>
    <message>
        <source>Network Var Outputs</source>
        <translation>Netzwerkvar.-Ausgänge</translation>
    </message>
    <message>
        <source>Input Parameters</source>
        <translation>Eingangsparameter</translation>
    </message>
    <message>
        <source>Output Parameters</source>
        <translation>Ausgangsparameter</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Basic Programming</source>
        <translation>Grundprogrammierung</translation>
    </message>
    <message>
        <source>Internal Points</source>
        <translation>Interne Datenpunkte</translation>
    </message>
    <message>
        <source>Built-In Functions</source>
        <translation>Integrierte Funktionen</translation>
    </message>
    <message>
        <source>Network Variables</source>
        <translation>Netzwerkvariablen</translation>
    </message>
    <message>
        <source>Hardware Configuration</source>
        <translation>Hardwarekonfiguration</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>The name of a point, as the program uses it</extracomment>
        <translation>Bezeichner</translation>
    </message>
    <message>
        <source>Mode</source>
        <extracomment>Manual or automatic</extracomment>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>The unit of measure of a point</extracomment>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Commissioned</source>
        <extracomment>Whether the point was checked when the plant was put into service</extracomment>
        <translation>In Betrieb genommen</translation>
    </message>
    <message>
        <source>Hw Override Mode</source>
        <extracomment>The switch on the device that overrides an output</extracomment>
        <translation>HW-Handmodus</translation>
    </message>
    <message>
        <source>Hw Override Value</source>
        <translation>HW-Handwert</translation>
    </message>
    <message>
        <source>Input</source>
        <extracomment>What a control loop measures</extracomment>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Setpoint</source>
        <translation>Sollwert</translation>
    </message>
    <message>
        <source>Proportional Band</source>
        <translation>P-Bereich</translation>
    </message>
    <message>
        <source>Integral Gain</source>
        <translation>I-Verstärkung</translation>
    </message>
    <message>
        <source>Integral Time</source>
        <translation>Nachstellzeit</translation>
    </message>
    <message>
        <source>Derivative Gain</source>
        <translation>D-Verstärkung</translation>
    </message>
    <message>
        <source>Derivative Time</source>
        <translation>Vorhaltezeit</translation>
    </message>
    <message>
        <source>Dead Band</source>
        <translation>Totzone</translation>
    </message>
    <message>
        <source>Bias</source>
        <extracomment>What is added to the output of a control loop</extracomment>
        <translation>Arbeitspunkt</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Direct or reverse</extracomment>
        <translation>Wirksinn</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Teiler</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>The point that a log records or a timer drives</extracomment>
        <translation>Datenpunkt</translation>
    </message>
    <message>
        <source>Differential</source>
        <extracomment>The change of value that makes a log record</extracomment>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>The interval at which a log records</extracomment>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Unit</source>
        <extracomment>The unit of measure of a log</extracomment>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Target Temperature</source>
        <translation>Zieltemperatur</translation>
    </message>
    <message>
        <source>Target Setpoint</source>
        <translation>Zielsollwert</translation>
    </message>
    <message>
        <source>Outdoor Temperature</source>
        <translation>Außentemperatur</translation>
    </message>
    <message>
        <source>Schedule</source>
        <extracomment>The time programme that an optimum start follows</extracomment>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Max Starting Time</source>
        <extracomment>The longest time before occupancy at which the plant may start</extracomment>
        <translation>Max. Aufheizzeit</translation>
    </message>
    <message>
        <source>Format Name</source>
        <translation>Formatname</translation>
    </message>
    <message>
        <source>Persistent</source>
        <extracomment>Whether a value survives a power failure</extracomment>
        <translation>Remanent</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Datenquelle</translation>
    </message>
    <message>
        <source>Scale Min/Rising Edge</source>
        <extracomment>The scale&apos;s lower end of an analogue input, the rising edge of a digital one</extracomment>
        <translation>Skala min./pos. Flanke</translation>
    </message>
    <message>
        <source>Scale Max/Falling Edge</source>
        <extracomment>The scale&apos;s upper end of an analogue input, the falling edge of a digital one</extracomment>
        <translation>Skala max./neg. Flanke</translation>
    </message>
    <message>
        <source>Input Min</source>
        <translation>Eingang min.</translation>
    </message>
    <message>
        <source>Input Max</source>
        <translation>Eingang max.</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Override</source>
        <extracomment>Whether the value of an input is forced</extracomment>
        <translation>Übersteuerung</translation>
    </message>
    <message>
        <source>PWM Period</source>
        <translation>PWM-Periode</translation>
    </message>
    <message>
        <source>Click here to read data values</source>
        <translation>Hier klicken, um die Werte zu lesen</translation>
    </message>
    <message>
        <source>Idle</source>
        <extracomment>The state of a component that waits for nothing</extracomment>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Busy</source>
        <extracomment>The state of a component that waits for the controller</extracomment>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find - Replace</source>
        <translation>Suchen - Ersetzen</translation>
    </message>
    <message>
        <source>Find What</source>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>Also the title of the window</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>...</source>
        <extracomment>Shows the fields for replacing</extracomment>
        <translation>...</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Find Whole Word Only</source>
        <translation>Nur ganzes Wort suchen</translation>
    </message>
    <message>
        <source>Match Case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Searches for the full word by itself and not as part of a larger word.</source>
        <translation>Sucht das Wort nur für sich allein, nicht als Teil eines längeren Wortes.</translation>
    </message>
    <message>
        <source>Finds all occurrences with the exact combination of uppercase and lowercase letters specified in the Find What box.</source>
        <extracomment>Find What is the label of the field, in the words of its own translation</extracomment>
        <translation>Findet nur Stellen, die in Groß- und Kleinschreibung genau dem Feld „Suchen nach“ entsprechen.</translation>
    </message>
    <message>
        <source>Found in</source>
        <extracomment>Stands before the position: Found in Row: 3, Col: 7</extracomment>
        <translation>Gefunden in</translation>
    </message>
    <message>
        <source>Not found!</source>
        <translation>Nicht gefunden!</translation>
    </message>
    <message>
        <source>replace(s)!</source>
        <extracomment>Stands behind a number: 3 replace(s)!</extracomment>
        <translation>Ersetzung(en)!</translation>
    </message>
    <message>
        <source>Row:</source>
        <extracomment>The caret&apos;s position, first piece: Row: 3, Col: 7</extracomment>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>, Col:</source>
        <extracomment>The caret&apos;s position, second piece: Row: 3, Col: 7</extracomment>
        <translation>, Spalte</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Also the title of messages</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>List not found!</source>
        <extracomment>The list of known words</extracomment>
        <translation>Wortliste nicht gefunden!</translation>
    </message>
    <message>
        <source>Invalid letter: &apos;\&apos; that is reserved to RTF!</source>
        <translation>Ungültiges Zeichen: &apos;\&apos; ist für RTF reserviert!</translation>
    </message>
    <message>
        <source>The text is too large.</source>
        <translation>Der Text ist zu groß.</translation>
    </message>
    <message>
        <source>Code Text Setting</source>
        <extracomment>How the code editor looks</extracomment>
        <translation>Darstellung des Programms</translation>
    </message>
    <message>
        <source>Bad %1 for Editer of Code!</source>
        <extracomment>%1 is the name of a colour setting, such as BackColor</extracomment>
        <translation>Ungültige Farbe %1 für den Programmeditor!</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>The content of a cell of yes or no</extracomment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>The content of a cell of yes or no</extracomment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>This cell cannot be edited.</source>
        <translation>Diese Zelle kann nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>This cell must not be empty.</source>
        <translation>Diese Zelle darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Characters at most: %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Zeichen höchstens: %1.</translation>
    </message>
    <message>
        <source>This text does not fit here.</source>
        <translation>Dieser Text passt hier nicht.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Das ist keine Zahl.</translation>
    </message>
    <message>
        <source>Only a whole number fits here.</source>
        <translation>Hier passt nur eine ganze Zahl.</translation>
    </message>
    <message>
        <source>Decimals at most: %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Nachkommastellen höchstens: %1.</translation>
    </message>
    <message>
        <source>The number must not be below %1.</source>
        <extracomment>%1 is a number with its unit</extracomment>
        <translation>Die Zahl darf nicht kleiner als %1 sein.</translation>
    </message>
    <message>
        <source>The number must not be above %1.</source>
        <extracomment>%1 is a number with its unit</extracomment>
        <translation>Die Zahl darf nicht größer als %1 sein.</translation>
    </message>
    <message>
        <source>This is not in the list.</source>
        <translation>Das steht nicht in der Liste.</translation>
    </message>
    <message>
        <source>This is neither %1 nor %2.</source>
        <extracomment>%1 and %2 are the words for yes and no</extracomment>
        <translation>Das ist weder %1 noch %2.</translation>
    </message>
    <message>
        <source>There is no point of this name.</source>
        <translation>Es gibt keinen Punkt dieses Namens.</translation>
    </message>
    <message>
        <source>There is not enough room here.</source>
        <translation>Hier ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>Behind a list of cells: so many are not listed</extracomment>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1, sorted upwards</source>
        <extracomment>The header of a column, for screen readers; %1 is its text</extracomment>
        <translation>%1, aufsteigend sortiert</translation>
    </message>
    <message>
        <source>%1, sorted downwards</source>
        <extracomment>The header of a column, for screen readers; %1 is its text</extracomment>
        <translation>%1, absteigend sortiert</translation>
    </message>
    <message>
        <source>Changed</source>
        <extracomment>The value of a cell has changed</extracomment>
        <translation>geändert</translation>
    </message>
    <message>
        <source>Old</source>
        <extracomment>The value of a cell was read a while ago</extracomment>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>By hand</source>
        <extracomment>The value of a cell is set by hand</extracomment>
        <translation>von Hand</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>The value of a cell is an alarm</extracomment>
        <translation>im Alarm</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>A command: the current cell of a table</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <extracomment>A command: the selected cells of a table, and the headers of their columns</extracomment>
        <translation>Mit Kopf kopieren</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <extracomment>A command: the topmost selected cell into those below</extracomment>
        <translation>Nach unten ausfüllen</translation>
    </message>
    <message>
        <source>Sort Upwards</source>
        <extracomment>A command: the rows of a table by a column</extracomment>
        <translation>Aufsteigend ordnen</translation>
    </message>
    <message>
        <source>Sort Downwards</source>
        <extracomment>A command: the rows of a table by a column</extracomment>
        <translation>Absteigend ordnen</translation>
    </message>
    <message>
        <source>Not Sorted</source>
        <extracomment>A command: the rows of a table</extracomment>
        <translation>Nicht sortiert</translation>
    </message>
    <message>
        <source>All Rows</source>
        <extracomment>A command: no filter of the rows of a table</extracomment>
        <translation>Alle Zeilen</translation>
    </message>
    <message>
        <source>Add Row</source>
        <extracomment>A command: to a table</extracomment>
        <translation>Zeile hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate Rows</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Zeilen verdoppeln</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Zeilen entfernen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <extracomment>A command: rows of a table</extracomment>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <extracomment>A command: rows of a table</extracomment>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Fit Column</source>
        <extracomment>A command: as wide as its texts</extracomment>
        <translation>Spalte anpassen</translation>
    </message>
    <message>
        <source>Fit All Columns</source>
        <extracomment>A command: as wide as their texts</extracomment>
        <translation>Spalten anpassen</translation>
    </message>
    <message>
        <source>Hide Column</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Spalte ausblenden</translation>
    </message>
    <message>
        <source>Columns</source>
        <extracomment>A menu: those of a table that are seen</extracomment>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Edit Cell</source>
        <extracomment>A step of undo</extracomment>
        <translation>Zelle bearbeiten</translation>
    </message>
    <message>
        <source>Edit Cells</source>
        <extracomment>A step of undo: several cells at once</extracomment>
        <translation>Zellen bearbeiten</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s selection is not a number</source>
        <translation>Beschädigter Undo-Schritt: Die Auswahl ist keine Zahl</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s selection is too large a number</source>
        <translation>Beschädigter Undo-Schritt: Die Auswahl ist zu groß</translation>
    </message>
    <message>
        <source>The undo snapshot has fewer than three fields</source>
        <translation>Beschädigter Undo-Schritt: weniger als drei Felder</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s text holds the separator of its fields</source>
        <translation>Beschädigter Undo-Schritt: Der Text enthält das Feldtrennzeichen</translation>
    </message>
    <message>
        <source>The text holds a character that the 8-bit code page lacks</source>
        <translation>Der Text enthält ein Zeichen, das der 8-Bit-Codepage fehlt</translation>
    </message>
    <message>
        <source>Insufficient memory to compress string</source>
        <translation>Zu wenig Speicher, um den Text zu komprimieren</translation>
    </message>
    <message>
        <source>Insufficient space in output buffer to compress string</source>
        <translation>Zu wenig Platz im Ausgabepuffer, um den Text zu komprimieren</translation>
    </message>
    <message>
        <source>Unknown error during compress operation</source>
        <translation>Unbekannter Fehler beim Komprimieren</translation>
    </message>
    <message>
        <source>Insufficient memory to uncompress string</source>
        <translation>Zu wenig Speicher, um den Text zu dekomprimieren</translation>
    </message>
    <message>
        <source>Insufficient space in output buffer to uncompress string</source>
        <translation>Zu wenig Platz im Ausgabepuffer, um den Text zu dekomprimieren</translation>
    </message>
    <message>
        <source>Cannot uncompress corrupt data</source>
        <translation>Beschädigte Daten lassen sich nicht dekomprimieren</translation>
    </message>
    <message>
        <source>Unknown error during uncompress operation</source>
        <translation>Unbekannter Fehler beim Dekomprimieren</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <extracomment>The strip beside the program, for screen readers</extracomment>
        <translation>Zeilennummern</translation>
    </message>
    <message>
        <source>Go to line:</source>
        <extracomment>In front of a field for a number</extracomment>
        <translation>Gehe zu Zeile:</translation>
    </message>
    <message>
        <source>Line %1</source>
        <extracomment>The line of the caret, for screen readers; %1 is its number</extracomment>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1 lines hidden</source>
        <extracomment>A number: so many lines of the program are folded away, for screen readers</extracomment>
        <translation>%1 Zeilen ausgeblendet</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Numbers: the third match of seventeen is selected; %2 may be 17+ for at least 17</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 found</source>
        <extracomment>A number of matches, of which none is selected; it may be 17+ for at least 17</extracomment>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Known words</source>
        <extracomment>The list of known words, for screen readers</extracomment>
        <translation>Bekannte Wörter</translation>
    </message>
    <message>
        <source>Functions</source>
        <extracomment>The kind of a known word, such as AVERAGE</extracomment>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>Reserved Words</source>
        <extracomment>The kind of a known word, such as IF</extracomment>
        <translation>Reservierte Wörter</translation>
    </message>
    <message>
        <source>Empty the filter</source>
        <extracomment>The button in a field by which the rows of a table are filtered</extracomment>
        <translation>Filter leeren</translation>
    </message>
</context>
</TS>
