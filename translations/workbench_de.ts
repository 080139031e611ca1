<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CheckTexts</name>
    <message>
        <source>%1 is not known</source>
        <translation>%1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>ELSE without IF</source>
        <translation>ELSE ohne IF</translation>
    </message>
    <message>
        <source>Second ELSE of one IF</source>
        <translation>Zweites ELSE zu einem IF</translation>
    </message>
    <message>
        <source>ENDIF without IF</source>
        <translation>ENDIF ohne IF</translation>
    </message>
    <message>
        <source>IF without ENDIF</source>
        <translation>IF ohne ENDIF</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1 needs %2 values or more and has %3</source>
        <translation>%1 braucht %2 oder mehr Werte und hat %3</translation>
    </message>
    <message>
        <source>Blanks are missing in %1</source>
        <translation>In %1 fehlen Leerzeichen</translation>
    </message>
    <message>
        <source>%1 begins no statement</source>
        <translation>Mit %1 beginnt keine Anweisung</translation>
    </message>
    <message>
        <source>%1 cannot stand here</source>
        <translation>%1 kann hier nicht stehen</translation>
    </message>
    <message>
        <source>A value is missing behind %1</source>
        <translation>Hinter %1 fehlt ein Wert</translation>
    </message>
    <message>
        <source>An operator is missing before %1</source>
        <translation>Vor %1 fehlt ein Operator</translation>
    </message>
    <message>
        <source>%1 needs its values in brackets</source>
        <translation>%1 braucht seine Werte in Klammern</translation>
    </message>
    <message>
        <source>%1 is no network variable input</source>
        <translation>%1 ist kein Netzwerkvariablen-Eingang</translation>
    </message>
    <message>
        <source>%1 is an input, which no program can set</source>
        <translation>%1 ist ein Eingang, den kein Programm setzen kann</translation>
    </message>
    <message>
        <source>%1 is a constant, which no program can set</source>
        <translation>%1 ist eine Konstante, die kein Programm setzen kann</translation>
    </message>
    <message>
        <source>%1 cannot be set</source>
        <translation>%1 kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>%1 is read, but never set</source>
        <translation>%1 wird gelesen, aber nie gesetzt</translation>
    </message>
    <message>
        <source>%1 is set, but never read</source>
        <translation>%1 wird gesetzt, aber nie gelesen</translation>
    </message>
    <message>
        <source>Nothing closes this bracket</source>
        <translation>Diese Klammer wird nicht geschlossen</translation>
    </message>
    <message>
        <source>This bracket closes nothing</source>
        <translation>Diese Klammer schließt nichts</translation>
    </message>
    <message>
        <source>There are too many brackets in brackets</source>
        <translation>Zu viele Klammern in Klammern</translation>
    </message>
    <message>
        <source>= sets a value, == compares</source>
        <translation>= setzt einen Wert, == vergleicht</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>Zuweisung</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Otherwise</source>
        <translation>Sonst-Zweig</translation>
    </message>
    <message>
        <source>End of a condition</source>
        <translation>Ende einer Bedingung</translation>
    </message>
    <message>
        <source>End of the program</source>
        <translation>Programmende</translation>
    </message>
    <message>
        <source>Deletion of network values</source>
        <translation>Löschen von Netzwerkwerten</translation>
    </message>
    <message>
        <source>%1 needs one value and has %2</source>
        <translation>%1 braucht einen Wert und hat %2</translation>
    </message>
    <message>
        <source>%1 needs %2 values and has %3</source>
        <translation>%1 braucht %2 Werte und hat %3</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Empty the field</source>
        <translation>Feld leeren</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows a controller project.</source>
        <translation>Zeigt ein Reglerprojekt.</translation>
    </message>
    <message>
        <source>Write a picture of the window and quit.</source>
        <translation>Ein Bild des Fensters schreiben und beenden.</translation>
    </message>
    <message>
        <source>Show everything on a dark ground.</source>
        <translation>Alles auf dunklem Grund zeigen.</translation>
    </message>
    <message>
        <source>Show everything larger or smaller, 0.5 to 4 times.</source>
        <translation>Alles größer oder kleiner zeigen, 0.5- bis 4-fach.</translation>
    </message>
    <message>
        <source>Speak this language: en, de, es or fr.</source>
        <translation>Diese Sprache verwenden: en, de, es oder fr.</translation>
    </message>
    <message>
        <source>The scale is a number from 0.5 to 4.</source>
        <translation>Die Vergrößerung ist eine Zahl von 0.5 bis 4.</translation>
    </message>
    <message>
        <source>There is no translation for the language %1.</source>
        <translation>Für die Sprache %1 gibt es keine Übersetzung.</translation>
    </message>
    <message>
        <source>Begin with this category, such as &quot;Inputs&quot;.</source>
        <translation>Mit dieser Kategorie beginnen, etwa „Inputs“.</translation>
    </message>
    <message>
        <source>There is no category %1.</source>
        <translation>Es gibt keine Kategorie %1.</translation>
    </message>
    <message>
        <source>The project file; without one that of the last time, or the sample project.</source>
        <translation>Die Projektdatei; ohne Angabe die vom letzten Mal oder das Beispielprojekt.</translation>
    </message>
</context>
<context>
    <name>FindInPrograms</name>
    <message>
        <source>Find In Programs</source>
        <translation>In Programmen suchen</translation>
    </message>
    <message>
        <source>Text to find:</source>
        <translation>Gesuchter Text:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CategoryMenu</name>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show &amp;Beside</source>
        <translation>&amp;Daneben zeigen</translation>
    </message>
    <message>
        <source>Show Belo&amp;w</source>
        <translation>Da&amp;runter zeigen</translation>
    </message>
    <message>
        <source>A&amp;dd Program…</source>
        <translation>Programm &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Re&amp;name Program…</source>
        <translation>Programm um&amp;benennen…</translation>
    </message>
    <message>
        <source>Re&amp;move Program…</source>
        <translation>Programm &amp;entfernen…</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Mo&amp;ve Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CheckModel</name>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Problems that are not listed: %1</source>
        <translation>Probleme, die nicht aufgeführt sind: %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwendung</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CheckResults</name>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
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
    <name>ORVTListview::ComparisonView</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ControllerMenu</name>
    <message>
        <source>A&amp;dd To Trend</source>
        <translation>&amp;In den Trend aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Controller</source>
        <translation>&amp;Regelgerät</translation>
    </message>
    <message>
        <source>Read &amp;All</source>
        <translation>&amp;Alles lesen</translation>
    </message>
    <message>
        <source>&amp;Stop Reading</source>
        <translation>Lesen an&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Reading…</source>
        <translation>&amp;Lesen…</translation>
    </message>
    <message>
        <source>&amp;Trend</source>
        <translation>&amp;Trend</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ControllerPart</name>
    <message>
        <source>The values have been read.</source>
        <translation>Die Werte sind gelesen.</translation>
    </message>
    <message>
        <source>There are no values to read here.</source>
        <translation>Hier gibt es keine Werte zu lesen.</translation>
    </message>
    <message>
        <source>Select rows of a table with values first.</source>
        <translation>Wählen Sie zuerst Zeilen einer Tabelle mit Werten.</translation>
    </message>
    <message>
        <source>The trend is full: remove points from it first.</source>
        <translation>Der Trend ist voll: Entfernen Sie zuerst Punkte daraus.</translation>
    </message>
    <message>
        <source>There is nothing new to draw in the selected rows.</source>
        <translation>In den gewählten Zeilen gibt es nichts Neues zu zeichnen.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::DockTitle</name>
    <message>
        <source>Put back into the window</source>
        <translation>Ins Fenster zurücksetzen</translation>
    </message>
    <message>
        <source>Show in a window of its own</source>
        <translation>In eigenem Fenster zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
</context>
<context>
    <name>ORVTListview::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alle&amp;s auswählen</translation>
    </message>
    <message>
        <source>&amp;Known Words</source>
        <translation>&amp;Bekannte Wörter</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Re&amp;store Typed Text</source>
        <translation>&amp;Getippten Text zurückholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy with C&amp;olours</source>
        <translation>Mit &amp;Farben kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>There is no older typed text. The next time the latest comes again.</source>
        <translation>Es gibt keinen älteren getippten Text. Beim nächsten Mal kommt wieder der neueste.</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>Suc&amp;hen …</translation>
    </message>
    <message>
        <source>R&amp;eplace…</source>
        <translation>Erset&amp;zen …</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Weitersuche&amp;n</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Rückwärts s&amp;uchen</translation>
    </message>
    <message>
        <source>Ne&amp;xt Use</source>
        <translation>Nä&amp;chstes Vorkommen</translation>
    </message>
    <message>
        <source>Prev&amp;ious Use</source>
        <translation>V&amp;origes Vorkommen</translation>
    </message>
    <message>
        <source>Go To &amp;Match</source>
        <translation>Zum &amp;Partner</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>&amp;Go To Line</source>
        <translation>Zur Zei&amp;le</translation>
    </message>
    <message>
        <source>Find While T&amp;yping</source>
        <translation>Beim &amp;Tippen suchen</translation>
    </message>
    <message>
        <source>Nothing to restore: %1 and %2 reach all that was typed.</source>
        <translation>Nichts wiederherzustellen: %1 und %2 erreichen alles Getippte.</translation>
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
        <translation>Zeilen&amp;nummern</translation>
    </message>
    <message>
        <source>&amp;Current Line</source>
        <translation>&amp;Aktuelle Zeile</translation>
    </message>
    <message>
        <source>Pairs and &amp;Uses</source>
        <translation>&amp;Paare und Vorkommen</translation>
    </message>
    <message>
        <source>Next &amp;Problem</source>
        <translation>Nächstes P&amp;roblem</translation>
    </message>
    <message>
        <source>P&amp;revious Problem</source>
        <translation>V&amp;origes Problem</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>&amp;Lesezeichen umschalten</translation>
    </message>
    <message>
        <source>Ne&amp;xt Bookmark</source>
        <translation>Nächstes Lesezei&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Indent Guides</source>
        <translation>&amp;Einzugslinien</translation>
    </message>
    <message>
        <source>Blan&amp;ks</source>
        <translation>Lee&amp;rzeichen</translation>
    </message>
    <message>
        <source>&amp;Folding</source>
        <translation>&amp;Falten</translation>
    </message>
    <message>
        <source>Normal Si&amp;ze</source>
        <translation>Normale &amp;Größe</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>Alles fal&amp;ten</translation>
    </message>
    <message>
        <source>Unfold A&amp;ll</source>
        <translation>Alles a&amp;ufklappen</translation>
    </message>
    <message>
        <source>In&amp;dent While Typing</source>
        <translation>Auto&amp;matisch einrücken</translation>
    </message>
    <message>
        <source>Smart &amp;Home</source>
        <translation>Pos1 zum ersten &amp;Wort</translation>
    </message>
    <message>
        <source>Drop Blanks at Line &amp;Ends</source>
        <translation>Leerzeichen am Zeilenen&amp;de entfernen</translation>
    </message>
    <message>
        <source>Live &amp;Values</source>
        <translation>Aktuelle &amp;Werte</translation>
    </message>
    <message>
        <source>Readable C&amp;olours</source>
        <translation>Les&amp;bare Farben</translation>
    </message>
    <message>
        <source>&amp;Word List While Typing</source>
        <translation>Wortliste beim &amp;Schreiben</translation>
    </message>
</context>
<context>
    <name>ORVTListview::Exporting</name>
    <message>
        <source>%1: the name ends with none of the kinds that can be written</source>
        <translation>%1: Der Name endet mit keiner der Arten, die geschrieben werden können</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Webseite (*.html)</translation>
    </message>
    <message>
        <source>Table with commas (*.csv)</source>
        <translation>Tabelle mit Kommas (*.csv)</translation>
    </message>
    <message>
        <source>Table with tabs (*.tsv)</source>
        <translation>Tabelle mit Tabulatoren (*.tsv)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>There is no printer. Export as PDF instead.</source>
        <translation>Es gibt keinen Drucker. Stattdessen lässt sich als PDF exportieren.</translation>
    </message>
    <message>
        <source>The printer does not take the program.</source>
        <translation>Der Drucker nimmt das Programm nicht an.</translation>
    </message>
    <message>
        <source>%1: the pages cannot be made</source>
        <translation>%1: Die Seiten lassen sich nicht erzeugen</translation>
    </message>
    <message>
        <source>Export %1</source>
        <translation>%1 exportieren</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
</context>
<context>
    <name>ORVTListview::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Close Project</source>
        <translation>Projekt sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt…</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>Projekt ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>The workbench writes, checks and shows the program of a controller, and the tables of its points. At the left is the tree of the project: it leads to the program and to each table. The controller behind it is a simulated one, so nothing can break.</source>
        <translation>Die Werkbank schreibt, prüft und zeigt das Programm eines Regelgeräts und die Tabellen seiner Punkte. Links steht der Baum des Projekts: Er führt zum Programm und zu jeder Tabelle. Das Regelgerät dahinter ist simuliert, es kann also nichts kaputtgehen.</translation>
    </message>
    <message>
        <source>An air handling unit with its program and all twelve tables. Change what you like: nothing is saved unless you say so.</source>
        <translation>Eine Lüftungsanlage mit ihrem Programm und allen zwölf Tabellen. Ändern Sie, was Sie möchten: Gespeichert wird nur, wenn Sie es sagen.</translation>
    </message>
    <message>
        <source>New Project…</source>
        <translation>Neues Projekt…</translation>
    </message>
    <message>
        <source>One of your own: a name and a folder are all that it takes.</source>
        <translation>Ein eigenes: Ein Name und ein Ordner genügen.</translation>
    </message>
    <message>
        <source>A project is a file in JSON with its program beside it.</source>
        <translation>Ein Projekt ist eine JSON-Datei mit ihrem Programm daneben.</translation>
    </message>
    <message>
        <source>This page comes back by Help, First Steps.</source>
        <translation>Diese Seite kommt mit „Hilfe, Erste Schritte“ wieder.</translation>
    </message>
    <message>
        <source>Look at the Sample</source>
        <translation>Beispiel ansehen</translation>
    </message>
    <message>
        <source>Open a Project…</source>
        <translation>Projekt öffnen…</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Everything can be done by keyboard. F1 lists all keys, F6 checks the program, F5 reads the values, %1 lists known words.</source>
        <translation>Alles geht mit der Tastatur. F1 listet alle Tasten, F6 prüft das Programm, F5 liest die Werte, %1 listet bekannte Wörter.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Workbench of ORVTListview %1</source>
        <translation>Werkbank von ORVTListview %1</translation>
    </message>
    <message>
        <source>It writes, checks and shows the programs of controllers and their points.

Free software under the MIT licence. It stands on Qt %1.</source>
        <translation>Sie schreibt, prüft und zeigt die Programme von Reglern und ihre Punkte.

Freie Software unter der MIT-Lizenz. Sie beruht auf Qt %1.</translation>
    </message>
    <message>
        <source>&amp;First Steps</source>
        <translation>&amp;Erste Schritte</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ImportDialog</name>
    <message>
        <source>The first line has the &amp;heads</source>
        <translation>Die erste Zeile enthält die &amp;Überschriften</translation>
    </message>
    <message>
        <source>Import Points</source>
        <translation>Punkte importieren</translation>
    </message>
    <message>
        <source>%1 into the table %2:</source>
        <translation>%1 in die Tabelle %2:</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>Kei&amp;ne</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Added: %1. Changed: %2. Left alone: %3. Not possible: %4. Ticked: %5.</source>
        <translation>Neu: %1. Geändert: %2. Unverändert: %3. Nicht möglich: %4. Angehakt: %5.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ImportModel</name>
    <message>
        <source>Added</source>
        <translation>Kommt hinzu</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Ändert sich</translation>
    </message>
    <message>
        <source>Left alone</source>
        <translation>Bleibt</translation>
    </message>
    <message>
        <source>Not possible: %1</source>
        <translation>Nicht möglich: %1</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Vorher: %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
</context>
<context>
    <name>ORVTListview::KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Command or key</source>
        <translation>Befehl oder Taste</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
</context>
<context>
    <name>ORVTListview::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>ORVTListview::LinesMenu</name>
    <message>
        <source>&amp;Lines</source>
        <translation>Ze&amp;ilen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Verdoppeln</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>Ver&amp;binden</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Sortieren</translation>
    </message>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Kommentar</translation>
    </message>
    <message>
        <source>&amp;Tidy</source>
        <translation>&amp;Aufräumen</translation>
    </message>
    <message>
        <source>C&amp;apital Letters</source>
        <translation>&amp;Großbuchstaben</translation>
    </message>
    <message>
        <source>S&amp;mall Letters</source>
        <translation>Kl&amp;einbuchstaben</translation>
    </message>
</context>
<context>
    <name>ORVTListview::MainWindow</name>
    <message>
        <source>Rows are filled from the top: %1 is in row %2.</source>
        <translation>Die Zeilen füllen sich von oben: %1 steht in Zeile %2.</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>%1, lines: %2</source>
        <translation>%1, Zeilen: %2</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>What you type cannot be kept for recovery: %1</source>
        <translation>Was Sie tippen, kann nicht zur Wiederherstellung gesichert werden: %1</translation>
    </message>
    <message>
        <source>Another workbench has this project open, too.</source>
        <translation>Auch eine andere Werkbank hat dieses Projekt geöffnet.</translation>
    </message>
    <message>
        <source>The project of the last time is open again.</source>
        <translation>Das Projekt vom letzten Mal ist wieder geöffnet.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::NewPointDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Bezeichner:</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>&amp;Tabelle:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
</context>
<context>
    <name>ORVTListview::NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Projektname:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Anlegen</translation>
    </message>
    <message>
        <source>Folder of the New Project</source>
        <translation>Ordner des neuen Projekts</translation>
    </message>
    <message>
        <source>The project and an empty program are made in this folder.</source>
        <translation>Das Projekt und ein leeres Programm werden in diesem Ordner angelegt.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Dieser Name hat Zeichen, die ein Name nicht haben kann.</translation>
    </message>
    <message>
        <source>This cannot be a folder.</source>
        <translation>Das kann kein Ordner sein.</translation>
    </message>
    <message>
        <source>%1 will be made.</source>
        <translation>%1 wird angelegt.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::OpeningFault</name>
    <message>
        <source>The project cannot be opened</source>
        <translation>Das Projekt kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Mend the file and try again, or open another project. The file has been left as it is.</source>
        <translation>Berichtigen Sie die Datei und versuchen Sie es erneut, oder öffnen Sie ein anderes Projekt. Die Datei wurde nicht verändert.</translation>
    </message>
    <message>
        <source>Open &amp;Another…</source>
        <translation>&amp;Anderes öffnen…</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>Open the Version &amp;Before</source>
        <translation>&amp;Vorherige Fassung öffnen</translation>
    </message>
</context>
<context>
    <name>ORVTListview::OpeningProgress</name>
    <message>
        <source>Colouring: %p %</source>
        <translation>%p % eingefärbt</translation>
    </message>
    <message>
        <source>Colouring the program</source>
        <translation>Programm wird eingefärbt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The program stays, the rest of it without colours</source>
        <translation>Das Programm bleibt, der Rest davon ohne Farben</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointCells</name>
    <message>
        <source>Names are given by F2.</source>
        <translation>Namen gibt man mit F2.</translation>
    </message>
    <message>
        <source>This row has no point.</source>
        <translation>In dieser Zeile ist kein Punkt.</translation>
    </message>
    <message>
        <source>This cell holds numbers only.</source>
        <translation>Diese Zelle nimmt nur Zahlen auf.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointChooser</name>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
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
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Choose a point: its name goes into the program, or its row is shown</source>
        <translation>Einen Punkt wählen: sein Name kommt ins Programm, oder seine Zeile wird gezeigt</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointImporting</name>
    <message>
        <source>Import Points</source>
        <translation>Punkte importieren</translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.tsv *.txt)</source>
        <translation>Tabellen als Text (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Points imported: %1</source>
        <translation>Importierte Punkte: %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointKindMenu</name>
    <message>
        <source>&amp;Choose From</source>
        <translation>&amp;Auswählen aus</translation>
    </message>
    <message>
        <source>&amp;Inputs</source>
        <translation>&amp;Eingänge</translation>
    </message>
    <message>
        <source>&amp;Outputs</source>
        <translation>&amp;Ausgänge</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variablen</translation>
    </message>
    <message>
        <source>&amp;Constants</source>
        <translation>&amp;Konstanten</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointReading</name>
    <message>
        <source>The controller is gone</source>
        <translation>Das Regelgerät ist nicht mehr da</translation>
    </message>
    <message>
        <source>It answered for &quot;%1&quot;, which was not asked for</source>
        <translation>Es hat für „%1“ geantwortet, wonach nicht gefragt war</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number</source>
        <translation>%1: „%2“ ist keine Zahl</translation>
    </message>
    <message>
        <source>%1, and %2 more</source>
        <translation>%1, und %2 weitere</translation>
    </message>
    <message>
        <source>Values are missing</source>
        <translation>Werte fehlen</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointRenaming</name>
    <message>
        <source>Add Point</source>
        <translation>Punkt hinzufügen</translation>
    </message>
    <message>
        <source>The table is full.</source>
        <translation>Die Tabelle ist voll.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Remove Point</source>
        <translation>Punkt entfernen</translation>
    </message>
    <message>
        <source>%1 is still named here, where it will be unknown:

%2

Remove it?</source>
        <translation>%1 wird hier noch genannt und wäre dort unbekannt:

%2

Entfernen?</translation>
    </message>
    <message>
        <source>Duplicate Point</source>
        <translation>Punkt duplizieren</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointTables</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>Punkte: %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointsMenu</name>
    <message>
        <source>P&amp;oints</source>
        <translation>P&amp;unkte</translation>
    </message>
    <message>
        <source>&amp;Read Values</source>
        <translation>&amp;Werte lesen</translation>
    </message>
    <message>
        <source>&amp;Fit Columns</source>
        <translation>&amp;Spalten anpassen</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Add Point…</source>
        <translation>&amp;Punkt hinzufügen…</translation>
    </message>
    <message>
        <source>Re&amp;move Point</source>
        <translation>Punkt &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Edit Cells</source>
        <translation>&amp;Zellen bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Hardware Overrides</source>
        <translation>&amp;Handübersteuerungen</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>Impor&amp;tieren…</translation>
    </message>
    <message>
        <source>&amp;Duplicate Point…</source>
        <translation>Punkt &amp;duplizieren…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProblemWalk</name>
    <message>
        <source>The programs have no problems.</source>
        <translation>Die Programme haben keine Probleme.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramMenu</name>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programm</translation>
    </message>
    <message>
        <source>&amp;Analyse</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>&amp;Compile</source>
        <translation>&amp;Übersetzen</translation>
    </message>
    <message>
        <source>&amp;Export Statements…</source>
        <translation>Anweisungen e&amp;xportieren…</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Ergebnisse</translation>
    </message>
    <message>
        <source>A&amp;dd Program…</source>
        <translation>Programm &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Re&amp;name Program…</source>
        <translation>Programm um&amp;benennen…</translation>
    </message>
    <message>
        <source>Re&amp;move Program…</source>
        <translation>Programm ent&amp;fernen…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramNaming</name>
    <message>
        <source>Name of the program:</source>
        <translation>Name des Programms:</translation>
    </message>
    <message>
        <source>Add Program</source>
        <translation>Programm hinzufügen</translation>
    </message>
    <message>
        <source>Rename Program</source>
        <translation>Programm umbenennen</translation>
    </message>
    <message>
        <source>Remove the program %1 from the project?
What is not saved of it comes back only with Undo.</source>
        <translation>Das Programm %1 aus dem Projekt entfernen?
Was davon nicht gespeichert ist, kommt nur mit Rückgängig zurück.</translation>
    </message>
    <message>
        <source>Remove the program %1 from the project?
Its file %2 stays where it is.</source>
        <translation>Das Programm %1 aus dem Projekt entfernen?
Seine Datei %2 bleibt, wo sie ist.</translation>
    </message>
    <message>
        <source>Remove Program</source>
        <translation>Programm entfernen</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramNavigation</name>
    <message>
        <source>Nothing uses %1.</source>
        <translation>Nichts verwendet %1.</translation>
    </message>
    <message>
        <source>&amp;Go To Point</source>
        <translation>&amp;Gehe zum Punkt</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Z&amp;urück</translation>
    </message>
    <message>
        <source>All &amp;Uses</source>
        <translation>&amp;Alle Verwendungen</translation>
    </message>
    <message>
        <source>%1 is no point of the project.</source>
        <translation>%1 ist kein Punkt des Projekts.</translation>
    </message>
    <message>
        <source>There is no place to go back to.</source>
        <translation>Es gibt keine Stelle, zu der es zurückginge.</translation>
    </message>
    <message>
        <source>There is no name here.</source>
        <translation>Hier steht kein Name.</translation>
    </message>
    <message>
        <source>&amp;Find In Programs…</source>
        <translation>In Programmen &amp;suchen…</translation>
    </message>
    <message>
        <source>%1 was not found.</source>
        <translation>%1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>No program uses %1.</source>
        <translation>Kein Programm verwendet %1.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramViews</name>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectHistory</name>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>%1 has been changed since. Take that back there first.</source>
        <translation>%1 wurde seitdem geändert. Machen Sie das zuerst dort rückgängig.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectLife</name>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>%1 is not there any more, or not at the moment.
Take it off the list?</source>
        <translation>%1 ist nicht mehr da oder im Augenblick nicht erreichbar.
Aus der Liste nehmen?</translation>
    </message>
    <message>
        <source>Projects (*.orvt.json *.json)</source>
        <translation>Projekte (*.orvt.json *.json)</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectSaving</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>Als &amp;UTF-8 speichern</translation>
    </message>
    <message>
        <source>Save Else&amp;where…</source>
        <translation>&amp;Woanders speichern…</translation>
    </message>
    <message>
        <source>Nothing is lost: what was typed stays in the window and is kept for recovery.</source>
        <translation>Nichts ist verloren: Das Getippte bleibt im Fenster und wird zur Wiederherstellung gesichert.</translation>
    </message>
    <message>
        <source>Save Elsewhere</source>
        <translation>Woanders speichern</translation>
    </message>
    <message>
        <source>The project %1 has changes that are not saved.
Save them?</source>
        <translation>Das Projekt %1 hat Änderungen, die nicht gespeichert sind.
Speichern?</translation>
    </message>
    <message>
        <source>The program %1 has changes that are not saved.
Save them?</source>
        <translation>Das Programm %1 hat Änderungen, die nicht gespeichert sind.
Speichern?</translation>
    </message>
    <message>
        <source>The points of %1 have changes that are not saved.
Save them?</source>
        <translation>Die Punkte von %1 haben ungespeicherte Änderungen.
Speichern?</translation>
    </message>
    <message>
        <source>The program %1 and the points of %2 have changes that are not saved.
Save them?</source>
        <translation>Das Programm %1 und die Punkte von %2 haben ungespeicherte Änderungen.
Speichern?</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The file %1 has been changed elsewhere since it was opened.
Overwrite those changes?</source>
        <translation>Die Datei %1 wurde seit dem Öffnen anderswo geändert.
Diese Änderungen überschreiben?</translation>
    </message>
    <message>
        <source>Saved, but the version before cannot be kept: %1</source>
        <translation>Gespeichert, aber die vorherige Fassung lässt sich nicht behalten: %1</translation>
    </message>
    <message>
        <source>Projects (*.orvt.json)</source>
        <translation>Projekte (*.orvt.json)</translation>
    </message>
    <message>
        <source>Other JSON files (*.json)</source>
        <translation>Andere JSON-Dateien (*.json)</translation>
    </message>
    <message>
        <source>The programs %1 have changes that are not saved.
Save them?</source>
        <translation>Die Programme %1 haben Änderungen, die nicht gespeichert sind.
Speichern?</translation>
    </message>
    <message>
        <source>The programs %1 and the points of %2 have changes that are not saved.
Save them?</source>
        <translation>Die Programme %1 und die Punkte von %2 haben ungespeicherte Änderungen.
Speichern?</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectView</name>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ReadingDialog</name>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Cyclic reading</source>
        <translation>Zyklisches Lesen</translation>
    </message>
    <message>
        <source>&amp;Pause between readings:</source>
        <translation>&amp;Pause zwischen zwei Lesungen:</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Simuliertes Regelgerät</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Ist nicht zu erreichen</translation>
    </message>
    <message>
        <source>Refuses</source>
        <translation>Weigert sich</translation>
    </message>
    <message>
        <source>Stops answering in the middle</source>
        <translation>Bricht mittendrin ab</translation>
    </message>
    <message>
        <source>A text for a number</source>
        <translation>Ein Text statt einer Zahl</translation>
    </message>
    <message>
        <source>Values are missing</source>
        <translation>Werte fehlen</translation>
    </message>
    <message>
        <source>A point that nobody asked for</source>
        <translation>Ein Punkt, nach dem niemand gefragt hat</translation>
    </message>
    <message>
        <source>&amp;Time for an answer:</source>
        <translation>&amp;Zeit für eine Antwort:</translation>
    </message>
    <message>
        <source>&amp;Failure:</source>
        <translation>&amp;Ausfall:</translation>
    </message>
    <message>
        <source>&amp;Wrong answers:</source>
        <translation>&amp;Falsche Antworten:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ReadingStatus</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stop reading; what has been read stays</source>
        <translation>Hört auf zu lesen; was gelesen ist, bleibt</translation>
    </message>
    <message>
        <source>Reading values: %1 of %2</source>
        <translation>Werte werden gelesen: %1 von %2</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>%1. Values read: %2 of %3.</source>
        <translation>%1. Gelesene Werte: %2 von %3.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>No projects yet</source>
        <translation>Noch keine Projekte</translation>
    </message>
    <message>
        <source>Open the &amp;Last at Start</source>
        <translation>Das letzte beim &amp;Start öffnen</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Liste leeren</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecoveryDialog</name>
    <message>
        <source>Recover Unsaved Work</source>
        <translation>Nicht Gespeichertes wiederherstellen</translation>
    </message>
    <message>
        <source>The workbench ended without saving this work of %1. What differs from the files is shown below.</source>
        <translation>Die Werkbank wurde beendet, ohne diese Arbeit vom %1 zu speichern. Unten steht, was sich von den Dateien unterscheidet.</translation>
    </message>
    <message>
        <source>The files are newer than this work.</source>
        <translation>Die Dateien sind neuer als diese Arbeit.</translation>
    </message>
    <message>
        <source>Before, in the files</source>
        <translation>Vorher, in den Dateien</translation>
    </message>
    <message>
        <source>After, not saved</source>
        <translation>Nachher, nicht gespeichert</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>&amp;Später entscheiden</translation>
    </message>
    <message>
        <source>%1 holds work that was not saved, but cannot be read as a whole. It stays there; a text editor shows what it holds.</source>
        <translation>%1 enthält nicht gespeicherte Arbeit, lässt sich aber nicht ganz lesen. Die Datei bleibt; ein Texteditor zeigt, was sie enthält.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecoveryKeeper</name>
    <message>
        <source>Too many workbenches have this project open.</source>
        <translation>Zu viele Werkbänke haben dieses Projekt geöffnet.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RenameDialog</name>
    <message>
        <source>Program, line %1</source>
        <translation>Programm, Zeile %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>%1 becomes %2 in the places that have a tick:</source>
        <translation>%1 wird an den angehakten Stellen zu %2:</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
</context>
<context>
    <name>ORVTListview::SettingsDialog</name>
    <message>
        <source>Own &amp;font:</source>
        <translation>Eigene Schrift&amp;art:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
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
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Erscheinungsbild:</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>The project&apos;s</source>
        <translation>Wie im Projekt</translation>
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
        <source>&amp;Colours:</source>
        <translation>&amp;Farben:</translation>
    </message>
    <message>
        <source>Font &amp;size:</source>
        <translation>Schrift&amp;größe:</translation>
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
        <source>Hard to read on this ground: %1. The editor shows them stronger while Readable Colours is on.</source>
        <translation>Auf diesem Hintergrund schlecht zu lesen: %1. Der Editor zeigt sie kräftiger, solange Lesbare Farben eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>While Typing</source>
        <translation>Beim Schreiben</translation>
    </message>
    <message>
        <source>&amp;Indent after IF and ELSE</source>
        <translation>Nach IF und ELSE ein&amp;rücken</translation>
    </message>
    <message>
        <source>&amp;Home goes to the first word</source>
        <translation>&amp;Pos1 geht zum ersten Wort</translation>
    </message>
    <message>
        <source>Drop &amp;blanks at line ends</source>
        <translation>&amp;Leerzeichen am Zeilenende entfernen</translation>
    </message>
    <message>
        <source>The &amp;word list opens by itself</source>
        <translation>&amp;Wortliste öffnet sich von selbst</translation>
    </message>
</context>
<context>
    <name>ORVTListview::SimulatedController</name>
    <message>
        <source>The controller refuses to tell its values</source>
        <translation>Das Regelgerät gibt seine Werte nicht heraus</translation>
    </message>
    <message>
        <source>The controller has stopped answering</source>
        <translation>Das Regelgerät antwortet nicht mehr</translation>
    </message>
    <message>
        <source>The controller cannot be reached</source>
        <translation>Das Regelgerät ist nicht zu erreichen</translation>
    </message>
</context>
<context>
    <name>ORVTListview::StartPage</name>
    <message>
        <source>No project is open</source>
        <translation>Kein Projekt ist geöffnet</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt…</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>Projekt ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Projects that were opened &amp;last:</source>
        <translation>&amp;Zuletzt geöffnete Projekte:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TableMenu</name>
    <message>
        <source>Go To First Use</source>
        <translation>Zur ersten Verwendung</translation>
    </message>
    <message>
        <source>There is no point in this row.</source>
        <translation>In dieser Zeile steht kein Punkt.</translation>
    </message>
    <message>
        <source>%1 empties cells while Edit Cells is on; %2 removes the point.</source>
        <translation>%1 leert Zellen, solange „Zellen bearbeiten“ eingeschaltet ist; %2 entfernt den Punkt.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TrendDock</name>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Drawn points</source>
        <translation>Gezeichnete Punkte</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Kleinster</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Größter</translation>
    </message>
    <message>
        <source>Read &amp;Cyclically</source>
        <translation>&amp;Zyklisch lesen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Export Trend</source>
        <translation>Trend exportieren</translation>
    </message>
    <message>
        <source>Table with commas (*.csv)</source>
        <translation>Tabelle mit Kommas (*.csv)</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TrendView</name>
    <message>
        <source>%1: not read</source>
        <translation>%1: nicht gelesen</translation>
    </message>
    <message>
        <source>%1: %2, from %3 to %4</source>
        <translation>%1: %2, von %3 bis %4</translation>
    </message>
    <message>
        <source>No point is drawn yet. Select rows of a table and choose Add To Trend.</source>
        <translation>Noch wird kein Punkt gezeichnet. Wählen Sie Zeilen einer Tabelle und dann „In den Trend aufnehmen“.</translation>
    </message>
    <message>
        <source>Nothing has been read yet. Read Values reads once, Read Cyclically again and again.</source>
        <translation>Noch ist nichts gelesen. „Werte lesen“ liest einmal, „Zyklisch lesen“ immer wieder.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>Ei&amp;nstellungen…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Next &amp;Pane</source>
        <translation>Nächster &amp;Bereich</translation>
    </message>
    <message>
        <source>P&amp;revious Pane</source>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>Go To Pro&amp;ject</source>
        <translation>Zum Pro&amp;jekt</translation>
    </message>
    <message>
        <source>Go To Pro&amp;gram</source>
        <translation>Zum Pro&amp;gramm</translation>
    </message>
    <message>
        <source>Go To &amp;Table</source>
        <translation>Zur &amp;Tabelle</translation>
    </message>
    <message>
        <source>Go To Resu&amp;lts</source>
        <translation>Zu den &amp;Ergebnissen</translation>
    </message>
    <message>
        <source>Go To Po&amp;ints</source>
        <translation>Zu den &amp;Punkten</translation>
    </message>
    <message>
        <source>Show &amp;Beside</source>
        <translation>&amp;Daneben zeigen</translation>
    </message>
    <message>
        <source>Show Belo&amp;w</source>
        <translation>Da&amp;runter zeigen</translation>
    </message>
    <message>
        <source>&amp;All In Tabs</source>
        <translation>&amp;Alle in Registern</translation>
    </message>
    <message>
        <source>&amp;Own Window</source>
        <translation>Eigenes &amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Close Table</source>
        <translation>Tabelle &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Next Tab</source>
        <translation>&amp;Nächstes Register</translation>
    </message>
    <message>
        <source>Pre&amp;vious Tab</source>
        <translation>V&amp;origes Register</translation>
    </message>
</context>
<context>
    <name>PrintedPages</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>ProgramChoice</name>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programm:</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Alle Programme</translation>
    </message>
</context>
<context>
    <name>ProjectTexts</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour (&quot;#rrggbb&quot; or a system colour)</source>
        <translation>„%1“ ist keine Farbe („#rrggbb“ oder eine Systemfarbe)</translation>
    </message>
    <message>
        <source>a size from 1 to %1 points is expected</source>
        <translation>erwartet wird eine Größe von 1 bis %1 Punkt</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>an object is expected</source>
        <translation>erwartet wird ein Objekt</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>is not known here</source>
        <translation>ist hier nicht bekannt</translation>
    </message>
    <message>
        <source>an array is expected</source>
        <translation>erwartet wird eine Liste</translation>
    </message>
    <message>
        <source>holds more than %1 elements</source>
        <translation>hat mehr als %1 Elemente</translation>
    </message>
    <message>
        <source>a text is expected</source>
        <translation>erwartet wird ein Text</translation>
    </message>
    <message>
        <source>true or false is expected</source>
        <translation>erwartet wird true oder false</translation>
    </message>
    <message>
        <source>a whole number of 32 bits is expected</source>
        <translation>erwartet wird eine ganze Zahl mit 32 Bit</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>erwartet wird eine Zahl</translation>
    </message>
    <message>
        <source>a name is expected, without blanks around it and control characters</source>
        <translation>erwartet wird ein Name ohne umgebende Leerzeichen und Steuerzeichen</translation>
    </message>
    <message>
        <source>a number or a text is expected</source>
        <translation>erwartet wird eine Zahl oder ein Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of %2 too</source>
        <translation>„%1“ heißt auch %2</translation>
    </message>
    <message>
        <source>has more than %1 names</source>
        <translation>hat mehr als %1 Namen</translation>
    </message>
    <message>
        <source>%1: line %2 is not valid UTF-8</source>
        <translation>%1: Zeile %2 ist kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>%1: line %2 holds half a character</source>
        <translation>%1: Zeile %2 enthält ein halbes Zeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a point</source>
        <translation>„%1“ ist kein Name für einen Punkt</translation>
    </message>
    <message>
        <source>Another point has the name &quot;%1&quot;</source>
        <translation>Ein anderer Punkt heißt schon „%1“</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>may only be read</source>
        <translation>darf nur gelesen werden</translation>
    </message>
    <message>
        <source>its folder takes no new file (%1)</source>
        <translation>der Ordner nimmt keine neue Datei an (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands there twice</source>
        <translation>„%1“ steht zweimal da</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a blank or one of ( ) , \ { }, which no name in a program can</source>
        <translation>„%1“ enthält ein Leerzeichen oder eines der Zeichen ( ) , \ { }, die kein Name in einem Programm haben kann</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a number</source>
        <translation>„%1“ ist eine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a word of the language</source>
        <translation>„%1“ ist ein Wort der Sprache</translation>
    </message>
    <message>
        <source>%1: line %2 holds &quot;%3&quot;, which the file&apos;s encoding (Windows-1252) does not have</source>
        <translation>%1: Zeile %2 enthält „%3“, was die Kodierung der Datei (Windows-1252) nicht hat</translation>
    </message>
    <message>
        <source>%1: its %2 have been changed elsewhere</source>
        <translation>%1: „%2“ wurde woanders geändert</translation>
    </message>
    <message>
        <source>Work on %1 that is not saved. The workbench offers it when the project is opened the next time.</source>
        <translation>Nicht gespeicherte Arbeit an %1. Die Werkbank bietet sie an, wenn das Projekt das nächste Mal geöffnet wird.</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 gibt es schon.</translation>
    </message>
    <message>
        <source>the form %1 is newer than the form %2 that can be read here; a newer version opens the file, which stays as it is</source>
        <translation>Das Format %1 ist neuer als das Format %2, das hier gelesen werden kann; eine neuere Version öffnet die Datei, die bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>no folder takes a recovery file</source>
        <translation>Kein Ordner nimmt eine Wiederherstellungsdatei auf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; comes twice</source>
        <translation>„%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of a row</source>
        <translation>„%1“ ist keine Zeilennummer</translation>
    </message>
    <message>
        <source>The table is full</source>
        <translation>Die Tabelle ist voll</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>„%1“ ist weder ja noch nein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>another program has the name &quot;%1&quot;</source>
        <translation>ein anderes Programm heißt schon „%1“</translation>
    </message>
    <message>
        <source>another program has the file &quot;%1&quot;</source>
        <translation>ein anderes Programm hat schon die Datei „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are one file</source>
        <translation>„%1“ und „%2“ sind eine Datei</translation>
    </message>
    <message>
        <source>a project has at least one program</source>
        <translation>ein Projekt hat mindestens ein Programm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a program</source>
        <translation>„%1“ ist kein Name für ein Programm</translation>
    </message>
    <message>
        <source>Another program has the name &quot;%1&quot;</source>
        <translation>Ein anderes Programm heißt schon „%1“</translation>
    </message>
    <message>
        <source>a form from 1 to %1 is expected</source>
        <translation>ein Format von 1 bis %1 wird erwartet</translation>
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
        <translation>Anweisungen exportieren</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>Durch Kommas getrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>Export Statements of %1</source>
        <translation>Anweisungen von %1 exportieren</translation>
    </message>
</context>
<context>
    <name>ViewKeys</name>
    <message>
        <source>In a program</source>
        <translation>In einem Programm</translation>
    </message>
    <message>
        <source>Indent the selected lines</source>
        <translation>Ausgewählte Zeilen einrücken</translation>
    </message>
    <message>
        <source>Take their indent back</source>
        <translation>Ihre Einrückung zurücknehmen</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <translation>Das Programm verlassen</translation>
    </message>
    <message>
        <source>In a table</source>
        <translation>In einer Tabelle</translation>
    </message>
    <message>
        <source>Edit the name or the cell</source>
        <translation>Namen oder Zelle bearbeiten</translation>
    </message>
    <message>
        <source>Select the row, or deselect it</source>
        <translation>Zeile auswählen oder nicht mehr</translation>
    </message>
    <message>
        <source>Select the column of the cell</source>
        <translation>Spalte der Zelle auswählen</translation>
    </message>
    <message>
        <source>Select the row of the cell</source>
        <translation>Zeile der Zelle auswählen</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Auswahl kopieren</translation>
    </message>
    <message>
        <source>Copy it with the headers</source>
        <translation>Auswahl mit den Überschriften kopieren</translation>
    </message>
    <message>
        <source>Paste into the cells</source>
        <translation>In die Zellen einfügen</translation>
    </message>
    <message>
        <source>Clear the cells</source>
        <translation>Zellen leeren</translation>
    </message>
    <message>
        <source>Fill the cells from the topmost one</source>
        <translation>Zellen aus der obersten füllen</translation>
    </message>
    <message>
        <source>Enter it in all selected cells</source>
        <translation>In alle ausgewählten Zellen eintragen</translation>
    </message>
    <message>
        <source>Change yes and no</source>
        <translation>Zwischen Ja und Nein wechseln</translation>
    </message>
    <message>
        <source>Empty the filter</source>
        <translation>Filter leeren</translation>
    </message>
    <message>
        <source>In the project&apos;s tree</source>
        <translation>Im Baum des Projekts</translation>
    </message>
    <message>
        <source>Open what is selected</source>
        <translation>Auswahl öffnen</translation>
    </message>
    <message>
        <source>Expand, collapse</source>
        <translation>Auf- und zuklappen</translation>
    </message>
    <message>
        <source>Rename the program</source>
        <translation>Programm umbenennen</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Programm entfernen</translation>
    </message>
    <message>
        <source>Move the program up</source>
        <translation>Programm nach oben verschieben</translation>
    </message>
    <message>
        <source>Move the program down</source>
        <translation>Programm nach unten verschieben</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Menu of what has the focus</source>
        <translation>Menü dessen, was den Fokus hat</translation>
    </message>
    <message>
        <source>List of all points, in their field</source>
        <translation>Liste aller Punkte, in ihrem Feld</translation>
    </message>
</context>
<context>
    <name>ViewTabs</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
    <message>
        <source>Open views</source>
        <translation>Offene Ansichten</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Workbench</source>
        <translation>Werkbank</translation>
    </message>
</context>
</TS>
