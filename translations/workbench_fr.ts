<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CheckTexts</name>
    <message>
        <source>%1 is not known</source>
        <translation>%1 est inconnu</translation>
    </message>
    <message>
        <source>ELSE without IF</source>
        <translation>ELSE sans IF</translation>
    </message>
    <message>
        <source>Second ELSE of one IF</source>
        <translation>Deuxième ELSE pour un IF</translation>
    </message>
    <message>
        <source>ENDIF without IF</source>
        <translation>ENDIF sans IF</translation>
    </message>
    <message>
        <source>IF without ENDIF</source>
        <translation>IF sans ENDIF</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 needs %2 values or more and has %3</source>
        <translation>%1 demande au moins %2 valeurs et en a %3</translation>
    </message>
    <message>
        <source>Blanks are missing in %1</source>
        <translation>Il manque des espaces dans %1</translation>
    </message>
    <message>
        <source>%1 begins no statement</source>
        <translation>%1 ne commence aucune instruction</translation>
    </message>
    <message>
        <source>%1 cannot stand here</source>
        <translation>%1 ne peut pas se trouver ici</translation>
    </message>
    <message>
        <source>A value is missing behind %1</source>
        <translation>Il manque une valeur après %1</translation>
    </message>
    <message>
        <source>An operator is missing before %1</source>
        <translation>Il manque un opérateur avant %1</translation>
    </message>
    <message>
        <source>%1 needs its values in brackets</source>
        <translation>%1 demande ses valeurs entre parenthèses</translation>
    </message>
    <message>
        <source>%1 is no network variable input</source>
        <translation>%1 n’est pas une entrée de variable réseau</translation>
    </message>
    <message>
        <source>%1 is an input, which no program can set</source>
        <translation>%1 est une entrée, qu’aucun programme ne peut écrire</translation>
    </message>
    <message>
        <source>%1 is a constant, which no program can set</source>
        <translation>%1 est une constante, qu’aucun programme ne peut écrire</translation>
    </message>
    <message>
        <source>%1 cannot be set</source>
        <translation>%1 ne peut pas être écrit</translation>
    </message>
    <message>
        <source>%1 is read, but never set</source>
        <translation>%1 est lu, mais jamais écrit</translation>
    </message>
    <message>
        <source>%1 is set, but never read</source>
        <translation>%1 est écrit, mais jamais lu</translation>
    </message>
    <message>
        <source>Nothing closes this bracket</source>
        <translation>Rien ne ferme cette parenthèse</translation>
    </message>
    <message>
        <source>This bracket closes nothing</source>
        <translation>Cette parenthèse ne ferme rien</translation>
    </message>
    <message>
        <source>There are too many brackets in brackets</source>
        <translation>Trop de parenthèses entre parenthèses</translation>
    </message>
    <message>
        <source>= sets a value, == compares</source>
        <translation>= écrit une valeur, == compare</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>Affectation</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message>
        <source>Otherwise</source>
        <translation>Sinon</translation>
    </message>
    <message>
        <source>End of a condition</source>
        <translation>Fin d’une condition</translation>
    </message>
    <message>
        <source>End of the program</source>
        <translation>Fin du programme</translation>
    </message>
    <message>
        <source>Deletion of network values</source>
        <translation>Effacement de valeurs réseau</translation>
    </message>
    <message>
        <source>%1 needs one value and has %2</source>
        <translation>%1 demande une valeur et en a %2</translation>
    </message>
    <message>
        <source>%1 needs %2 values and has %3</source>
        <translation>%1 demande %2 valeurs et en a %3</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Empty the field</source>
        <translation>Vider le champ</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows a controller project.</source>
        <translation>Affiche un projet de régulateur.</translation>
    </message>
    <message>
        <source>Write a picture of the window and quit.</source>
        <translation>Enregistrer une image de la fenêtre et quitter.</translation>
    </message>
    <message>
        <source>Show everything on a dark ground.</source>
        <translation>Tout afficher sur fond sombre.</translation>
    </message>
    <message>
        <source>Show everything larger or smaller, 0.5 to 4 times.</source>
        <translation>Tout afficher plus grand ou plus petit, de 0.5 à 4 fois.</translation>
    </message>
    <message>
        <source>Speak this language: en, de, es or fr.</source>
        <translation>Utiliser cette langue&#xa0;: en, de, es ou fr.</translation>
    </message>
    <message>
        <source>The scale is a number from 0.5 to 4.</source>
        <translation>L’échelle est un nombre de 0.5 à 4.</translation>
    </message>
    <message>
        <source>There is no translation for the language %1.</source>
        <translation>Il n’y a pas de traduction pour la langue %1.</translation>
    </message>
    <message>
        <source>Begin with this category, such as &quot;Inputs&quot;.</source>
        <translation>Commencer par cette catégorie, p. ex. «&#xa0;Inputs&#xa0;».</translation>
    </message>
    <message>
        <source>There is no category %1.</source>
        <translation>Il n’y a pas de catégorie %1.</translation>
    </message>
    <message>
        <source>The project file; without one that of the last time, or the sample project.</source>
        <translation>Le fichier de projet&#xa0;; sans lui, celui de la dernière fois ou le projet d’exemple.</translation>
    </message>
</context>
<context>
    <name>FindInPrograms</name>
    <message>
        <source>Find In Programs</source>
        <translation>Rechercher dans les programmes</translation>
    </message>
    <message>
        <source>Text to find:</source>
        <translation>Texte recherché&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CategoryMenu</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Show &amp;Beside</source>
        <translation>Afficher à &amp;côté</translation>
    </message>
    <message>
        <source>Show Belo&amp;w</source>
        <translation>Afficher au-&amp;dessous</translation>
    </message>
    <message>
        <source>A&amp;dd Program…</source>
        <translation>A&amp;jouter un programme…</translation>
    </message>
    <message>
        <source>Re&amp;name Program…</source>
        <translation>Reno&amp;mmer le programme…</translation>
    </message>
    <message>
        <source>Re&amp;move Program…</source>
        <translation>&amp;Supprimer le programme…</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Vers le &amp;haut</translation>
    </message>
    <message>
        <source>Mo&amp;ve Down</source>
        <translation>Vers le &amp;bas</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CheckModel</name>
    <message>
        <source>Nothing found.</source>
        <translation>Rien trouvé.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Problems that are not listed: %1</source>
        <translation>Problèmes qui ne sont pas listés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Instruction</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Endroit</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utilisation</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, ligne %2</translation>
    </message>
</context>
<context>
    <name>ORVTListview::CheckResults</name>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ColourPreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ComparisonView</name>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ControllerMenu</name>
    <message>
        <source>A&amp;dd To Trend</source>
        <translation>A&amp;jouter à la courbe</translation>
    </message>
    <message>
        <source>&amp;Controller</source>
        <translation>&amp;Contrôleur</translation>
    </message>
    <message>
        <source>Read &amp;All</source>
        <translation>&amp;Tout lire</translation>
    </message>
    <message>
        <source>&amp;Stop Reading</source>
        <translation>&amp;Arrêter la lecture</translation>
    </message>
    <message>
        <source>&amp;Reading…</source>
        <translation>&amp;Lecture…</translation>
    </message>
    <message>
        <source>&amp;Trend</source>
        <translation>Co&amp;urbe</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ControllerPart</name>
    <message>
        <source>The values have been read.</source>
        <translation>Les valeurs ont été lues.</translation>
    </message>
    <message>
        <source>There are no values to read here.</source>
        <translation>Il n’y a aucune valeur à lire ici.</translation>
    </message>
    <message>
        <source>Select rows of a table with values first.</source>
        <translation>Sélectionnez d’abord des lignes d’un tableau avec des valeurs.</translation>
    </message>
    <message>
        <source>The trend is full: remove points from it first.</source>
        <translation>La courbe est pleine&#xa0;: retirez-en d’abord des points.</translation>
    </message>
    <message>
        <source>There is nothing new to draw in the selected rows.</source>
        <translation>Il n’y a rien de nouveau à tracer dans les lignes choisies.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::DockTitle</name>
    <message>
        <source>Put back into the window</source>
        <translation>Remettre dans la fenêtre</translation>
    </message>
    <message>
        <source>Show in a window of its own</source>
        <translation>Afficher dans une fenêtre séparée</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fermer %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Known Words</source>
        <translation>&amp;Mots connus</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Re&amp;store Typed Text</source>
        <translation>Récupérer le te&amp;xte saisi</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Copy with C&amp;olours</source>
        <translation>Copier a&amp;vec les couleurs</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>There is no older typed text. The next time the latest comes again.</source>
        <translation>Il n’y a pas de texte saisi plus ancien. La prochaine fois, le plus récent revient.</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>Rec&amp;hercher…</translation>
    </message>
    <message>
        <source>R&amp;eplace…</source>
        <translation>Rem&amp;placer…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Chercher &amp;suivant</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Chercher précé&amp;dent</translation>
    </message>
    <message>
        <source>Ne&amp;xt Use</source>
        <translation>Occurre&amp;nce suivante</translation>
    </message>
    <message>
        <source>Prev&amp;ious Use</source>
        <translation>Occ&amp;urrence précédente</translation>
    </message>
    <message>
        <source>Go To &amp;Match</source>
        <translation>Aller au part&amp;enaire</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Rien n’a été trouvé.</translation>
    </message>
    <message>
        <source>&amp;Go To Line</source>
        <translation>Aller à la l&amp;igne</translation>
    </message>
    <message>
        <source>Find While T&amp;yping</source>
        <translation>Rechercher pendant la &amp;frappe</translation>
    </message>
    <message>
        <source>Nothing to restore: %1 and %2 reach all that was typed.</source>
        <translation>Rien à restaurer&#xa0;: %1 et %2 atteignent tout ce qui a été saisi.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::EditorViewMenu</name>
    <message>
        <source>&amp;Editor</source>
        <translation>É&amp;diteur</translation>
    </message>
    <message>
        <source>Line &amp;Numbers</source>
        <translation>&amp;Numéros de ligne</translation>
    </message>
    <message>
        <source>&amp;Current Line</source>
        <translation>&amp;Ligne courante</translation>
    </message>
    <message>
        <source>Pairs and &amp;Uses</source>
        <translation>&amp;Paires et usages</translation>
    </message>
    <message>
        <source>Next &amp;Problem</source>
        <translation>Problème &amp;suivant</translation>
    </message>
    <message>
        <source>P&amp;revious Problem</source>
        <translation>Pr&amp;oblème précédent</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>&amp;Basculer le signet</translation>
    </message>
    <message>
        <source>Ne&amp;xt Bookmark</source>
        <translation>Signe&amp;t suivant</translation>
    </message>
    <message>
        <source>&amp;Indent Guides</source>
        <translation>&amp;Guides de retrait</translation>
    </message>
    <message>
        <source>Blan&amp;ks</source>
        <translation>&amp;Espaces</translation>
    </message>
    <message>
        <source>&amp;Folding</source>
        <translation>&amp;Repliage</translation>
    </message>
    <message>
        <source>Normal Si&amp;ze</source>
        <translation>T&amp;aille normale</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>Tout re&amp;plier</translation>
    </message>
    <message>
        <source>Unfold A&amp;ll</source>
        <translation>Tout &amp;déplier</translation>
    </message>
    <message>
        <source>In&amp;dent While Typing</source>
        <translation>&amp;Mettre en retrait à la frappe</translation>
    </message>
    <message>
        <source>Smart &amp;Home</source>
        <translation>Or&amp;igine au premier mot</translation>
    </message>
    <message>
        <source>Drop Blanks at Line &amp;Ends</source>
        <translation>S&amp;upprimer les espaces en fin de ligne</translation>
    </message>
    <message>
        <source>Live &amp;Values</source>
        <translation>&amp;Valeurs actuelles</translation>
    </message>
    <message>
        <source>Readable C&amp;olours</source>
        <translation>Couleurs l&amp;isibles</translation>
    </message>
    <message>
        <source>&amp;Word List While Typing</source>
        <translation>Liste des &amp;mots à la frappe</translation>
    </message>
</context>
<context>
    <name>ORVTListview::Exporting</name>
    <message>
        <source>%1: the name ends with none of the kinds that can be written</source>
        <translation>%1&#xa0;: le nom ne se termine par aucun des types qui peuvent être écrits</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Page web (*.html)</translation>
    </message>
    <message>
        <source>Table with commas (*.csv)</source>
        <translation>Tableau avec virgules (*.csv)</translation>
    </message>
    <message>
        <source>Table with tabs (*.tsv)</source>
        <translation>Tableau avec tabulations (*.tsv)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>There is no printer. Export as PDF instead.</source>
        <translation>Il n’y a pas d’imprimante. Exportez plutôt en PDF.</translation>
    </message>
    <message>
        <source>The printer does not take the program.</source>
        <translation>L’imprimante n’accepte pas le programme.</translation>
    </message>
    <message>
        <source>%1: the pages cannot be made</source>
        <translation>%1&#xa0;: les pages ne peuvent pas être produites</translation>
    </message>
    <message>
        <source>Export %1</source>
        <translation>Exporter %1</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Close Project</source>
        <translation>&amp;Fermer le projet</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nouveau projet…</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>&amp;Ouvrir un projet…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>The workbench writes, checks and shows the program of a controller, and the tables of its points. At the left is the tree of the project: it leads to the program and to each table. The controller behind it is a simulated one, so nothing can break.</source>
        <translation>L’atelier écrit, vérifie et montre le programme d’un contrôleur et les tableaux de ses points. À gauche se trouve l’arbre du projet&#xa0;: il mène au programme et à chaque tableau. Le contrôleur est simulé, rien ne peut donc être abîmé.</translation>
    </message>
    <message>
        <source>An air handling unit with its program and all twelve tables. Change what you like: nothing is saved unless you say so.</source>
        <translation>Une centrale de traitement d’air avec son programme et ses douze tableaux. Changez ce que vous voulez&#xa0;: rien n’est enregistré sans votre ordre.</translation>
    </message>
    <message>
        <source>New Project…</source>
        <translation>Nouveau projet…</translation>
    </message>
    <message>
        <source>One of your own: a name and a folder are all that it takes.</source>
        <translation>Un projet à vous&#xa0;: un nom et un dossier suffisent.</translation>
    </message>
    <message>
        <source>A project is a file in JSON with its program beside it.</source>
        <translation>Un projet est un fichier JSON avec son programme à côté.</translation>
    </message>
    <message>
        <source>This page comes back by Help, First Steps.</source>
        <translation>Cette page revient par «&#xa0;Aide, Premiers pas&#xa0;».</translation>
    </message>
    <message>
        <source>Look at the Sample</source>
        <translation>Voir l’exemple</translation>
    </message>
    <message>
        <source>Open a Project…</source>
        <translation>Ouvrir un projet…</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Everything can be done by keyboard. F1 lists all keys, F6 checks the program, F5 reads the values, %1 lists known words.</source>
        <translation>Tout se fait au clavier. F1 montre toutes les touches, F6 vérifie le programme, F5 lit les valeurs, %1 montre les mots connus.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Workbench of ORVTListview %1</source>
        <translation>Atelier d’ORVTListview %1</translation>
    </message>
    <message>
        <source>It writes, checks and shows the programs of controllers and their points.

Free software under the MIT licence. It stands on Qt %1.</source>
        <translation>Il écrit, vérifie et montre les programmes des régulateurs et leurs points.

Logiciel libre sous licence MIT. Il repose sur Qt %1.</translation>
    </message>
    <message>
        <source>&amp;First Steps</source>
        <translation>P&amp;remiers pas</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ImportDialog</name>
    <message>
        <source>The first line has the &amp;heads</source>
        <translation>La première ligne contient les &amp;titres</translation>
    </message>
    <message>
        <source>Import Points</source>
        <translation>Importer des points</translation>
    </message>
    <message>
        <source>%1 into the table %2:</source>
        <translation>%1 dans le tableau %2&#xa0;:</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Encodage&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Séparateur&#xa0;:</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>To&amp;us</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>Aucu&amp;n</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Added: %1. Changed: %2. Left alone: %3. Not possible: %4. Ticked: %5.</source>
        <translation>Ajoutés&#xa0;: %1. Modifiés&#xa0;: %2. Inchangés&#xa0;: %3. Impossibles&#xa0;: %4. Cochés&#xa0;: %5.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ImportModel</name>
    <message>
        <source>Added</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Left alone</source>
        <translation>Inchangé</translation>
    </message>
    <message>
        <source>Not possible: %1</source>
        <translation>Impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Avant&#xa0;: %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importation</translation>
    </message>
</context>
<context>
    <name>ORVTListview::KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Command or key</source>
        <translation>Commande ou touche</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
</context>
<context>
    <name>ORVTListview::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
</context>
<context>
    <name>ORVTListview::LinesMenu</name>
    <message>
        <source>&amp;Lines</source>
        <translation>Li&amp;gnes</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Vers le &amp;bas</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Joindre</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Trier</translation>
    </message>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Commentaire</translation>
    </message>
    <message>
        <source>&amp;Tidy</source>
        <translation>&amp;Mettre en ordre</translation>
    </message>
    <message>
        <source>C&amp;apital Letters</source>
        <translation>M&amp;ajuscules</translation>
    </message>
    <message>
        <source>S&amp;mall Letters</source>
        <translation>M&amp;inuscules</translation>
    </message>
</context>
<context>
    <name>ORVTListview::MainWindow</name>
    <message>
        <source>Rows are filled from the top: %1 is in row %2.</source>
        <translation>Les lignes se remplissent à partir du haut&#xa0;: %1 est à la ligne %2.</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>%1, lines: %2</source>
        <translation>%1, lignes&#xa0;: %2</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>What you type cannot be kept for recovery: %1</source>
        <translation>Ce que vous tapez ne peut pas être gardé pour la récupération&#xa0;: %1</translation>
    </message>
    <message>
        <source>Another workbench has this project open, too.</source>
        <translation>Un autre atelier a aussi ouvert ce projet.</translation>
    </message>
    <message>
        <source>The project of the last time is open again.</source>
        <translation>Le projet de la dernière fois est de nouveau ouvert.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::NewPointDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>&amp;Tableau&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
</context>
<context>
    <name>ORVTListview::NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>Folder of the New Project</source>
        <translation>Dossier du nouveau projet</translation>
    </message>
    <message>
        <source>The project and an empty program are made in this folder.</source>
        <translation>Le projet et un programme vide sont créés dans ce dossier.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Ce nom contient des caractères qu’un nom ne peut pas avoir.</translation>
    </message>
    <message>
        <source>This cannot be a folder.</source>
        <translation>Cela ne peut pas être un dossier.</translation>
    </message>
    <message>
        <source>%1 will be made.</source>
        <translation>%1 sera créé.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::OpeningFault</name>
    <message>
        <source>The project cannot be opened</source>
        <translation>Impossible d’ouvrir le projet</translation>
    </message>
    <message>
        <source>Mend the file and try again, or open another project. The file has been left as it is.</source>
        <translation>Corrigez le fichier et réessayez, ou ouvrez un autre projet. Le fichier n’a pas été modifié.</translation>
    </message>
    <message>
        <source>Open &amp;Another…</source>
        <translation>Ouvrir un &amp;autre…</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Open the Version &amp;Before</source>
        <translation>Ouvrir la &amp;version précédente</translation>
    </message>
</context>
<context>
    <name>ORVTListview::OpeningProgress</name>
    <message>
        <source>Colouring: %p %</source>
        <translation>Coloration&#xa0;: %p %</translation>
    </message>
    <message>
        <source>Colouring the program</source>
        <translation>Coloration du programme</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The program stays, the rest of it without colours</source>
        <translation>Le programme reste, sa suite sans couleurs</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointCells</name>
    <message>
        <source>Names are given by F2.</source>
        <translation>Les noms se donnent avec F2.</translation>
    </message>
    <message>
        <source>This row has no point.</source>
        <translation>Il n’y a aucun point dans cette ligne.</translation>
    </message>
    <message>
        <source>This cell holds numbers only.</source>
        <translation>Cette cellule n’accepte que des nombres.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointChooser</name>
    <message>
        <source>Inputs</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Sorties</translation>
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
        <translation>Points</translation>
    </message>
    <message>
        <source>Choose a point: its name goes into the program, or its row is shown</source>
        <translation>Choisir un point&#xa0;: son nom va dans le programme, ou sa ligne est affichée</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointImporting</name>
    <message>
        <source>Import Points</source>
        <translation>Importer des points</translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.tsv *.txt)</source>
        <translation>Tableaux en texte (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Points imported: %1</source>
        <translation>Points importés&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointKindMenu</name>
    <message>
        <source>&amp;Choose From</source>
        <translation>C&amp;hoisir parmi</translation>
    </message>
    <message>
        <source>&amp;Inputs</source>
        <translation>&amp;Entrées</translation>
    </message>
    <message>
        <source>&amp;Outputs</source>
        <translation>&amp;Sorties</translation>
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
        <translation>Le contrôleur n’est plus là</translation>
    </message>
    <message>
        <source>It answered for &quot;%1&quot;, which was not asked for</source>
        <translation>Il a répondu pour «&#xa0;%1&#xa0;», qui n’était pas demandé</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» n’est pas un nombre</translation>
    </message>
    <message>
        <source>%1, and %2 more</source>
        <translation>%1, et %2 autres</translation>
    </message>
    <message>
        <source>Values are missing</source>
        <translation>Il manque des valeurs</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointRenaming</name>
    <message>
        <source>Add Point</source>
        <translation>Ajouter un point</translation>
    </message>
    <message>
        <source>The table is full.</source>
        <translation>La table est pleine.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Remove Point</source>
        <translation>Supprimer le point</translation>
    </message>
    <message>
        <source>%1 is still named here, where it will be unknown:

%2

Remove it?</source>
        <translation>%1 est encore nommé ici, où il sera inconnu&#xa0;:

%2

Le supprimer&#xa0;?</translation>
    </message>
    <message>
        <source>Duplicate Point</source>
        <translation>Dupliquer le point</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointTables</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>Points&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ORVTListview::PointsMenu</name>
    <message>
        <source>P&amp;oints</source>
        <translation>P&amp;oints</translation>
    </message>
    <message>
        <source>&amp;Read Values</source>
        <translation>&amp;Lire les valeurs</translation>
    </message>
    <message>
        <source>&amp;Fit Columns</source>
        <translation>&amp;Ajuster les colonnes</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Add Point…</source>
        <translation>A&amp;jouter un point…</translation>
    </message>
    <message>
        <source>Re&amp;move Point</source>
        <translation>S&amp;upprimer le point</translation>
    </message>
    <message>
        <source>&amp;Edit Cells</source>
        <translation>Modifier les &amp;cellules</translation>
    </message>
    <message>
        <source>&amp;Hardware Overrides</source>
        <translation>Forçages &amp;matériels</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>&amp;Duplicate Point…</source>
        <translation>&amp;Dupliquer le point…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProblemWalk</name>
    <message>
        <source>The programs have no problems.</source>
        <translation>Les programmes n’ont aucun problème.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramMenu</name>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programme</translation>
    </message>
    <message>
        <source>&amp;Analyse</source>
        <translation>&amp;Analyser</translation>
    </message>
    <message>
        <source>&amp;Compile</source>
        <translation>&amp;Compiler</translation>
    </message>
    <message>
        <source>&amp;Export Statements…</source>
        <translation>&amp;Exporter les instructions…</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Résultats</translation>
    </message>
    <message>
        <source>A&amp;dd Program…</source>
        <translation>A&amp;jouter un programme…</translation>
    </message>
    <message>
        <source>Re&amp;name Program…</source>
        <translation>Reno&amp;mmer le programme…</translation>
    </message>
    <message>
        <source>Re&amp;move Program…</source>
        <translation>&amp;Supprimer le programme…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramNaming</name>
    <message>
        <source>Name of the program:</source>
        <translation>Nom du programme&#xa0;:</translation>
    </message>
    <message>
        <source>Add Program</source>
        <translation>Ajouter un programme</translation>
    </message>
    <message>
        <source>Rename Program</source>
        <translation>Renommer le programme</translation>
    </message>
    <message>
        <source>Remove the program %1 from the project?
What is not saved of it comes back only with Undo.</source>
        <translation>Supprimer le programme %1 du projet&#xa0;?
Ce qui n’en est pas enregistré ne revient qu’avec Annuler.</translation>
    </message>
    <message>
        <source>Remove the program %1 from the project?
Its file %2 stays where it is.</source>
        <translation>Supprimer le programme %1 du projet&#xa0;?
Son fichier %2 reste où il est.</translation>
    </message>
    <message>
        <source>Remove Program</source>
        <translation>Supprimer le programme</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramNavigation</name>
    <message>
        <source>Nothing uses %1.</source>
        <translation>Rien n’utilise %1.</translation>
    </message>
    <message>
        <source>&amp;Go To Point</source>
        <translation>Aller au &amp;point</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Re&amp;tour</translation>
    </message>
    <message>
        <source>All &amp;Uses</source>
        <translation>Toutes les &amp;utilisations</translation>
    </message>
    <message>
        <source>%1 is no point of the project.</source>
        <translation>%1 n’est pas un point du projet.</translation>
    </message>
    <message>
        <source>There is no place to go back to.</source>
        <translation>Il n’y a aucun endroit où retourner.</translation>
    </message>
    <message>
        <source>There is no name here.</source>
        <translation>Il n’y a pas de nom ici.</translation>
    </message>
    <message>
        <source>&amp;Find In Programs…</source>
        <translation>Rechercher &amp;dans les programmes…</translation>
    </message>
    <message>
        <source>%1 was not found.</source>
        <translation>%1 est introuvable.</translation>
    </message>
    <message>
        <source>No program uses %1.</source>
        <translation>Aucun programme n’utilise %1.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProgramViews</name>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectHistory</name>
    <message>
        <source>Undone: %1</source>
        <translation>Annulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rétabli&#xa0;: %1</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>%1 has been changed since. Take that back there first.</source>
        <translation>%1 a été modifié depuis. Annulez d’abord cela là-bas.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectLife</name>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>%1 is not there any more, or not at the moment.
Take it off the list?</source>
        <translation>%1 n’existe plus, ou n’est pas accessible pour le moment.
Le retirer de la liste&#xa0;?</translation>
    </message>
    <message>
        <source>Projects (*.orvt.json *.json)</source>
        <translation>Projets (*.orvt.json *.json)</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectSaving</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>Enregistrer en &amp;UTF-8</translation>
    </message>
    <message>
        <source>Save Else&amp;where…</source>
        <translation>Enregistrer &amp;ailleurs…</translation>
    </message>
    <message>
        <source>Nothing is lost: what was typed stays in the window and is kept for recovery.</source>
        <translation>Rien n’est perdu&#xa0;: ce qui a été tapé reste dans la fenêtre et est gardé pour la récupération.</translation>
    </message>
    <message>
        <source>Save Elsewhere</source>
        <translation>Enregistrer ailleurs</translation>
    </message>
    <message>
        <source>The project %1 has changes that are not saved.
Save them?</source>
        <translation>Le projet %1 a des modifications non enregistrées.
Les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The program %1 has changes that are not saved.
Save them?</source>
        <translation>Le programme %1 a des modifications non enregistrées.
Les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The points of %1 have changes that are not saved.
Save them?</source>
        <translation>Les points de %1 ont des modifications non enregistrées.
Les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The program %1 and the points of %2 have changes that are not saved.
Save them?</source>
        <translation>Le programme %1 et les points de %2 ont des modifications non enregistrées.
Les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The file %1 has been changed elsewhere since it was opened.
Overwrite those changes?</source>
        <translation>Le fichier %1 a été modifié ailleurs depuis son ouverture.
Écraser ces modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Saved, but the version before cannot be kept: %1</source>
        <translation>Enregistré, mais la version précédente ne peut pas être conservée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Projects (*.orvt.json)</source>
        <translation>Projets (*.orvt.json)</translation>
    </message>
    <message>
        <source>Other JSON files (*.json)</source>
        <translation>Autres fichiers JSON (*.json)</translation>
    </message>
    <message>
        <source>The programs %1 have changes that are not saved.
Save them?</source>
        <translation>Les programmes %1 ont des modifications non enregistrées.
Les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The programs %1 and the points of %2 have changes that are not saved.
Save them?</source>
        <translation>Les programmes %1 et les points de %2 ont des modifications non enregistrées.
Les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ProjectView</name>
    <message>
        <source>Views</source>
        <translation>Vues</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ReadingDialog</name>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Cyclic reading</source>
        <translation>Lecture en boucle</translation>
    </message>
    <message>
        <source>&amp;Pause between readings:</source>
        <translation>&amp;Pause entre deux lectures&#xa0;:</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Contrôleur simulé</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Est injoignable</translation>
    </message>
    <message>
        <source>Refuses</source>
        <translation>Refuse</translation>
    </message>
    <message>
        <source>Stops answering in the middle</source>
        <translation>S’arrête au milieu</translation>
    </message>
    <message>
        <source>A text for a number</source>
        <translation>Un texte à la place d’un nombre</translation>
    </message>
    <message>
        <source>Values are missing</source>
        <translation>Il manque des valeurs</translation>
    </message>
    <message>
        <source>A point that nobody asked for</source>
        <translation>Un point que personne n’a demandé</translation>
    </message>
    <message>
        <source>&amp;Time for an answer:</source>
        <translation>&amp;Temps pour une réponse&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Failure:</source>
        <translation>P&amp;anne&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Wrong answers:</source>
        <translation>&amp;Fausses réponses&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ReadingStatus</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop reading; what has been read stays</source>
        <translation>Arrête la lecture&#xa0;; ce qui est lu reste</translation>
    </message>
    <message>
        <source>Reading values: %1 of %2</source>
        <translation>Lecture des valeurs&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>%1. Values read: %2 of %3.</source>
        <translation>%1. Valeurs lues&#xa0;: %2 sur %3.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Projets &amp;récents</translation>
    </message>
    <message>
        <source>No projects yet</source>
        <translation>Pas encore de projets</translation>
    </message>
    <message>
        <source>Open the &amp;Last at Start</source>
        <translation>Ouvrir le &amp;dernier au démarrage</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecoveryDialog</name>
    <message>
        <source>Recover Unsaved Work</source>
        <translation>Récupérer le travail non enregistré</translation>
    </message>
    <message>
        <source>The workbench ended without saving this work of %1. What differs from the files is shown below.</source>
        <translation>L’atelier s’est terminé sans enregistrer ce travail du %1. Ce qui diffère des fichiers est montré ci-dessous.</translation>
    </message>
    <message>
        <source>The files are newer than this work.</source>
        <translation>Les fichiers sont plus récents que ce travail.</translation>
    </message>
    <message>
        <source>Before, in the files</source>
        <translation>Avant, dans les fichiers</translation>
    </message>
    <message>
        <source>After, not saved</source>
        <translation>Après, non enregistré</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>&amp;Décider plus tard</translation>
    </message>
    <message>
        <source>%1 holds work that was not saved, but cannot be read as a whole. It stays there; a text editor shows what it holds.</source>
        <translation>%1 contient du travail non enregistré, mais ne peut pas être lu en entier. Le fichier reste là&#xa0;; un éditeur de texte montre ce qu’il contient.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RecoveryKeeper</name>
    <message>
        <source>Too many workbenches have this project open.</source>
        <translation>Trop d’ateliers ont ouvert ce projet.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::RenameDialog</name>
    <message>
        <source>Program, line %1</source>
        <translation>Programme, ligne %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>%1 becomes %2 in the places that have a tick:</source>
        <translation>%1 devient %2 aux endroits cochés&#xa0;:</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Endroit</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tous</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucun</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, ligne %2</translation>
    </message>
</context>
<context>
    <name>ORVTListview::SettingsDialog</name>
    <message>
        <source>Own &amp;font:</source>
        <translation>P&amp;olice propre&#xa0;:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>Celle du système</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Thème&#xa0;:</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>The project&apos;s</source>
        <translation>Comme dans le projet</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propres</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Couleurs&#xa0;:</translation>
    </message>
    <message>
        <source>Font &amp;size:</source>
        <translation>T&amp;aille de police&#xa0;:</translation>
    </message>
    <message>
        <source>Reserved words</source>
        <translation>Mots réservés</translation>
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
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>Network inputs</source>
        <translation>Entrées réseau</translation>
    </message>
    <message>
        <source>Network outputs</source>
        <translation>Sorties réseau</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Hard to read on this ground: %1. The editor shows them stronger while Readable Colours is on.</source>
        <translation>Difficile à lire sur ce fond&#xa0;: %1. L’éditeur les renforce tant que Couleurs lisibles est activé.</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>While Typing</source>
        <translation>À la frappe</translation>
    </message>
    <message>
        <source>&amp;Indent after IF and ELSE</source>
        <translation>&amp;Retrait après IF et ELSE</translation>
    </message>
    <message>
        <source>&amp;Home goes to the first word</source>
        <translation>Or&amp;igine mène au premier mot</translation>
    </message>
    <message>
        <source>Drop &amp;blanks at line ends</source>
        <translation>&amp;Supprimer les espaces en fin de ligne</translation>
    </message>
    <message>
        <source>The &amp;word list opens by itself</source>
        <translation>La liste des &amp;mots s’ouvre d’elle-même</translation>
    </message>
</context>
<context>
    <name>ORVTListview::SimulatedController</name>
    <message>
        <source>The controller refuses to tell its values</source>
        <translation>Le contrôleur refuse de donner ses valeurs</translation>
    </message>
    <message>
        <source>The controller has stopped answering</source>
        <translation>Le contrôleur ne répond plus</translation>
    </message>
    <message>
        <source>The controller cannot be reached</source>
        <translation>Le contrôleur est injoignable</translation>
    </message>
</context>
<context>
    <name>ORVTListview::StartPage</name>
    <message>
        <source>No project is open</source>
        <translation>Aucun projet n’est ouvert</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nouveau projet…</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>&amp;Ouvrir un projet…</translation>
    </message>
    <message>
        <source>Projects that were opened &amp;last:</source>
        <translation>&amp;Projets ouverts récemment&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TableMenu</name>
    <message>
        <source>Go To First Use</source>
        <translation>Aller à la première utilisation</translation>
    </message>
    <message>
        <source>There is no point in this row.</source>
        <translation>Il n’y a pas de point dans cette ligne.</translation>
    </message>
    <message>
        <source>%1 empties cells while Edit Cells is on; %2 removes the point.</source>
        <translation>%1 vide des cellules tant que «&#xa0;Modifier les cellules&#xa0;» est activé&#xa0;; %2 supprime le point.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TrendDock</name>
    <message>
        <source>Trend</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Drawn points</source>
        <translation>Points tracés</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Read &amp;Cyclically</source>
        <translation>Lire en &amp;boucle</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Export Trend</source>
        <translation>Exporter la courbe</translation>
    </message>
    <message>
        <source>Table with commas (*.csv)</source>
        <translation>Tableau avec virgules (*.csv)</translation>
    </message>
</context>
<context>
    <name>ORVTListview::TrendView</name>
    <message>
        <source>%1: not read</source>
        <translation>%1&#xa0;: non lu</translation>
    </message>
    <message>
        <source>%1: %2, from %3 to %4</source>
        <translation>%1&#xa0;: %2, de %3 à %4</translation>
    </message>
    <message>
        <source>No point is drawn yet. Select rows of a table and choose Add To Trend.</source>
        <translation>Aucun point n’est encore tracé. Sélectionnez des lignes d’un tableau, puis «&#xa0;Ajouter à la courbe&#xa0;».</translation>
    </message>
    <message>
        <source>Nothing has been read yet. Read Values reads once, Read Cyclically again and again.</source>
        <translation>Rien n’a encore été lu. «&#xa0;Lire les valeurs&#xa0;» lit une fois, «&#xa0;Lire en boucle&#xa0;» sans cesse.</translation>
    </message>
</context>
<context>
    <name>ORVTListview::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>Pa&amp;ramètres…</translation>
    </message>
</context>
<context>
    <name>ORVTListview::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>Next &amp;Pane</source>
        <translation>&amp;Volet suivant</translation>
    </message>
    <message>
        <source>P&amp;revious Pane</source>
        <translation>Volet &amp;précédent</translation>
    </message>
    <message>
        <source>Go To Pro&amp;ject</source>
        <translation>Aller au pro&amp;jet</translation>
    </message>
    <message>
        <source>Go To Pro&amp;gram</source>
        <translation>Aller au pro&amp;gramme</translation>
    </message>
    <message>
        <source>Go To &amp;Table</source>
        <translation>Aller au &amp;tableau</translation>
    </message>
    <message>
        <source>Go To Resu&amp;lts</source>
        <translation>Aller aux &amp;résultats</translation>
    </message>
    <message>
        <source>Go To Po&amp;ints</source>
        <translation>Aller aux p&amp;oints</translation>
    </message>
    <message>
        <source>Show &amp;Beside</source>
        <translation>Afficher à &amp;côté</translation>
    </message>
    <message>
        <source>Show Belo&amp;w</source>
        <translation>Afficher au-&amp;dessous</translation>
    </message>
    <message>
        <source>&amp;All In Tabs</source>
        <translation>To&amp;ut en onglets</translation>
    </message>
    <message>
        <source>&amp;Own Window</source>
        <translation>&amp;Fenêtre séparée</translation>
    </message>
    <message>
        <source>&amp;Close Table</source>
        <translation>Fermer le ta&amp;bleau</translation>
    </message>
    <message>
        <source>&amp;Next Tab</source>
        <translation>Onglet &amp;suivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious Tab</source>
        <translation>O&amp;nglet précédent</translation>
    </message>
</context>
<context>
    <name>PrintedPages</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>ProgramChoice</name>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programme&#xa0;:</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Tous les programmes</translation>
    </message>
</context>
<context>
    <name>ProjectTexts</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour (&quot;#rrggbb&quot; or a system colour)</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur («&#xa0;#rrggbb&#xa0;» ou une couleur du système)</translation>
    </message>
    <message>
        <source>a size from 1 to %1 points is expected</source>
        <translation>une taille de 1 à %1 points est attendue</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>an object is expected</source>
        <translation>un objet est attendu</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>manque</translation>
    </message>
    <message>
        <source>is not known here</source>
        <translation>n’est pas connu ici</translation>
    </message>
    <message>
        <source>an array is expected</source>
        <translation>une liste est attendue</translation>
    </message>
    <message>
        <source>holds more than %1 elements</source>
        <translation>contient plus de %1 éléments</translation>
    </message>
    <message>
        <source>a text is expected</source>
        <translation>un texte est attendu</translation>
    </message>
    <message>
        <source>true or false is expected</source>
        <translation>true ou false est attendu</translation>
    </message>
    <message>
        <source>a whole number of 32 bits is expected</source>
        <translation>un entier de 32 bits est attendu</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>un nombre est attendu</translation>
    </message>
    <message>
        <source>a name is expected, without blanks around it and control characters</source>
        <translation>un nom est attendu, sans espaces autour ni caractères de contrôle</translation>
    </message>
    <message>
        <source>a number or a text is expected</source>
        <translation>un nombre ou un texte est attendu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of %2 too</source>
        <translation>«&#xa0;%1&#xa0;» est aussi le nom de %2</translation>
    </message>
    <message>
        <source>has more than %1 names</source>
        <translation>a plus de %1 noms</translation>
    </message>
    <message>
        <source>%1: line %2 is not valid UTF-8</source>
        <translation>%1&#xa0;: la ligne %2 n’est pas de l’UTF-8 valide</translation>
    </message>
    <message>
        <source>%1: line %2 holds half a character</source>
        <translation>%1&#xa0;: la ligne %2 contient un demi-caractère</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a point</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom de point</translation>
    </message>
    <message>
        <source>Another point has the name &quot;%1&quot;</source>
        <translation>Un autre point s’appelle déjà «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>n’est pas un fichier</translation>
    </message>
    <message>
        <source>may only be read</source>
        <translation>est en lecture seule</translation>
    </message>
    <message>
        <source>its folder takes no new file (%1)</source>
        <translation>son dossier n’accepte pas de nouveau fichier (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands there twice</source>
        <translation>«&#xa0;%1&#xa0;» y figure deux fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a blank or one of ( ) , \ { }, which no name in a program can</source>
        <translation>«&#xa0;%1&#xa0;» contient une espace ou l’un de ( ) , \ { }, ce qu’aucun nom ne peut dans un programme</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a number</source>
        <translation>«&#xa0;%1&#xa0;» est un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a word of the language</source>
        <translation>«&#xa0;%1&#xa0;» est un mot du langage</translation>
    </message>
    <message>
        <source>%1: line %2 holds &quot;%3&quot;, which the file&apos;s encoding (Windows-1252) does not have</source>
        <translation>%1&#xa0;: la ligne %2 contient «&#xa0;%3&#xa0;», que l’encodage du fichier (Windows-1252) n’a pas</translation>
    </message>
    <message>
        <source>%1: its %2 have been changed elsewhere</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» a été modifié ailleurs</translation>
    </message>
    <message>
        <source>Work on %1 that is not saved. The workbench offers it when the project is opened the next time.</source>
        <translation>Travail non enregistré sur %1. L’atelier le propose à la prochaine ouverture du projet.</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 existe déjà.</translation>
    </message>
    <message>
        <source>the form %1 is newer than the form %2 that can be read here; a newer version opens the file, which stays as it is</source>
        <translation>le format %1 est plus récent que le format %2 qui peut être lu ici&#xa0;; une version plus récente ouvre le fichier, qui reste tel quel</translation>
    </message>
    <message>
        <source>no folder takes a recovery file</source>
        <translation>aucun dossier n’accepte de fichier de récupération</translation>
    </message>
    <message>
        <source>&quot;%1&quot; comes twice</source>
        <translation>«&#xa0;%1&#xa0;» apparaît deux fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of a row</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro de ligne</translation>
    </message>
    <message>
        <source>The table is full</source>
        <translation>Le tableau est plein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni oui ni non</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre</translation>
    </message>
    <message>
        <source>another program has the name &quot;%1&quot;</source>
        <translation>un autre programme s’appelle déjà «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>another program has the file &quot;%1&quot;</source>
        <translation>un autre programme a déjà le fichier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are one file</source>
        <translation>«&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» sont un seul fichier</translation>
    </message>
    <message>
        <source>a project has at least one program</source>
        <translation>un projet a au moins un programme</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a program</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom de programme</translation>
    </message>
    <message>
        <source>Another program has the name &quot;%1&quot;</source>
        <translation>Un autre programme s’appelle déjà «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a form from 1 to %1 is expected</source>
        <translation>un format de 1 à %1 est attendu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StatementExport</name>
    <message>
        <source>Export Statements</source>
        <translation>Exporter les instructions</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Instruction</translation>
    </message>
    <message>
        <source>Export Statements of %1</source>
        <translation>Exporter les instructions de %1</translation>
    </message>
</context>
<context>
    <name>ViewKeys</name>
    <message>
        <source>In a program</source>
        <translation>Dans un programme</translation>
    </message>
    <message>
        <source>Indent the selected lines</source>
        <translation>Indenter les lignes sélectionnées</translation>
    </message>
    <message>
        <source>Take their indent back</source>
        <translation>Réduire leur retrait</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>In a table</source>
        <translation>Dans une table</translation>
    </message>
    <message>
        <source>Edit the name or the cell</source>
        <translation>Modifier le nom ou la cellule</translation>
    </message>
    <message>
        <source>Select the row, or deselect it</source>
        <translation>Sélectionner la ligne, ou plus</translation>
    </message>
    <message>
        <source>Select the column of the cell</source>
        <translation>Sélectionner la colonne de la cellule</translation>
    </message>
    <message>
        <source>Select the row of the cell</source>
        <translation>Sélectionner la ligne de la cellule</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Copier la sélection</translation>
    </message>
    <message>
        <source>Copy it with the headers</source>
        <translation>Copier la sélection avec les en-têtes</translation>
    </message>
    <message>
        <source>Paste into the cells</source>
        <translation>Coller dans les cellules</translation>
    </message>
    <message>
        <source>Clear the cells</source>
        <translation>Vider les cellules</translation>
    </message>
    <message>
        <source>Fill the cells from the topmost one</source>
        <translation>Remplir les cellules à partir de la première</translation>
    </message>
    <message>
        <source>Enter it in all selected cells</source>
        <translation>L’entrer dans toutes les cellules sélectionnées</translation>
    </message>
    <message>
        <source>Change yes and no</source>
        <translation>Passer de oui à non</translation>
    </message>
    <message>
        <source>Empty the filter</source>
        <translation>Vider le filtre</translation>
    </message>
    <message>
        <source>In the project&apos;s tree</source>
        <translation>Dans l’arbre du projet</translation>
    </message>
    <message>
        <source>Open what is selected</source>
        <translation>Ouvrir la sélection</translation>
    </message>
    <message>
        <source>Expand, collapse</source>
        <translation>Développer, réduire</translation>
    </message>
    <message>
        <source>Rename the program</source>
        <translation>Renommer le programme</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Retirer le programme</translation>
    </message>
    <message>
        <source>Move the program up</source>
        <translation>Monter le programme</translation>
    </message>
    <message>
        <source>Move the program down</source>
        <translation>Descendre le programme</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Partout</translation>
    </message>
    <message>
        <source>Menu of what has the focus</source>
        <translation>Menu de ce qui a le focus</translation>
    </message>
    <message>
        <source>List of all points, in their field</source>
        <translation>Liste de tous les points, dans leur champ</translation>
    </message>
</context>
<context>
    <name>ViewTabs</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fermer %1</translation>
    </message>
    <message>
        <source>Open views</source>
        <translation>Vues ouvertes</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Workbench</source>
        <translation>Atelier</translation>
    </message>
</context>
</TS>
