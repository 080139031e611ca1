<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ORVTListview</name>
    <message>
        <source>Code</source>
        <extracomment>The program of the controller</extracomment>
        <translation>Programme</translation>
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
        <source>Controllers</source>
        <extracomment>PID control loops</extracomment>
        <translation>Régulateurs</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Trend logs</extracomment>
        <translation>Historiques</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>Temporisateurs</translation>
    </message>
    <message>
        <source>Optimum Starts</source>
        <extracomment>Functions that start a plant as late as possible before occupancy</extracomment>
        <translation>Démarrages optimisés</translation>
    </message>
    <message>
        <source>Network Var Inputs</source>
        <translation>Variables réseau d’entrée</translation>
    </message>
    <message>
        <source>Network Var Outputs</source>
        <translation>Variables réseau de sortie</translation>
    </message>
    <message>
        <source>Input Parameters</source>
        <translation>Paramètres d’entrée</translation>
    </message>
    <message>
        <source>Output Parameters</source>
        <translation>Paramètres de sortie</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Basic Programming</source>
        <translation>Programmation de base</translation>
    </message>
    <message>
        <source>Internal Points</source>
        <translation>Points internes</translation>
    </message>
    <message>
        <source>Built-In Functions</source>
        <translation>Fonctions intégrées</translation>
    </message>
    <message>
        <source>Network Variables</source>
        <translation>Variables réseau</translation>
    </message>
    <message>
        <source>Hardware Configuration</source>
        <translation>Configuration matérielle</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>The name of a point, as the program uses it</extracomment>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Mode</source>
        <extracomment>Manual or automatic</extracomment>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>The unit of measure of a point</extracomment>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Commissioned</source>
        <extracomment>Whether the point was checked when the plant was put into service</extracomment>
        <translation>Mis en service</translation>
    </message>
    <message>
        <source>Hw Override Mode</source>
        <extracomment>The switch on the device that overrides an output</extracomment>
        <translation>Mode forçage mat.</translation>
    </message>
    <message>
        <source>Hw Override Value</source>
        <translation>Valeur forçage mat.</translation>
    </message>
    <message>
        <source>Input</source>
        <extracomment>What a control loop measures</extracomment>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Setpoint</source>
        <translation>Consigne</translation>
    </message>
    <message>
        <source>Proportional Band</source>
        <translation>Bande prop.</translation>
    </message>
    <message>
        <source>Integral Gain</source>
        <translation>Gain intégral</translation>
    </message>
    <message>
        <source>Integral Time</source>
        <translation>Temps intégral</translation>
    </message>
    <message>
        <source>Derivative Gain</source>
        <translation>Gain dérivé</translation>
    </message>
    <message>
        <source>Derivative Time</source>
        <translation>Temps dérivé</translation>
    </message>
    <message>
        <source>Dead Band</source>
        <translation>Zone morte</translation>
    </message>
    <message>
        <source>Bias</source>
        <extracomment>What is added to the output of a control loop</extracomment>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Direct or reverse</extracomment>
        <translation>Sens d’action</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Diviseur</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>The point that a log records or a timer drives</extracomment>
        <translation>Point</translation>
    </message>
    <message>
        <source>Differential</source>
        <extracomment>The change of value that makes a log record</extracomment>
        <translation>Différentiel</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>The interval at which a log records</extracomment>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Unit</source>
        <extracomment>The unit of measure of a log</extracomment>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Target Temperature</source>
        <translation>Température cible</translation>
    </message>
    <message>
        <source>Target Setpoint</source>
        <translation>Consigne cible</translation>
    </message>
    <message>
        <source>Outdoor Temperature</source>
        <translation>Temp. extérieure</translation>
    </message>
    <message>
        <source>Schedule</source>
        <extracomment>The time programme that an optimum start follows</extracomment>
        <translation>Horaire</translation>
    </message>
    <message>
        <source>Max Starting Time</source>
        <extracomment>The longest time before occupancy at which the plant may start</extracomment>
        <translation>Durée démarrage max.</translation>
    </message>
    <message>
        <source>Format Name</source>
        <translation>Nom du format</translation>
    </message>
    <message>
        <source>Persistent</source>
        <extracomment>Whether a value survives a power failure</extracomment>
        <translation>Rémanent</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Source de données</translation>
    </message>
    <message>
        <source>Scale Min/Rising Edge</source>
        <extracomment>The scale&apos;s lower end of an analogue input, the rising edge of a digital one</extracomment>
        <translation>Éch. min./front mont.</translation>
    </message>
    <message>
        <source>Scale Max/Falling Edge</source>
        <extracomment>The scale&apos;s upper end of an analogue input, the falling edge of a digital one</extracomment>
        <translation>Éch. max./front desc.</translation>
    </message>
    <message>
        <source>Input Min</source>
        <translation>Entrée min.</translation>
    </message>
    <message>
        <source>Input Max</source>
        <translation>Entrée max.</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Override</source>
        <extracomment>Whether the value of an input is forced</extracomment>
        <translation>Forçage</translation>
    </message>
    <message>
        <source>PWM Period</source>
        <translation>Période PWM</translation>
    </message>
    <message>
        <source>Click here to read data values</source>
        <translation>Cliquer ici pour lire les valeurs</translation>
    </message>
    <message>
        <source>Idle</source>
        <extracomment>The state of a component that waits for nothing</extracomment>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Busy</source>
        <extracomment>The state of a component that waits for the controller</extracomment>
        <translation>Occupé</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find - Replace</source>
        <translation>Rechercher - Remplacer</translation>
    </message>
    <message>
        <source>Find What</source>
        <translation>Texte à chercher</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Chercher suivant</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>Also the title of the window</extracomment>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>...</source>
        <extracomment>Shows the fields for replacing</extracomment>
        <translation>...</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Remplacer tout</translation>
    </message>
    <message>
        <source>Find Whole Word Only</source>
        <translation>Mot entier uniquement</translation>
    </message>
    <message>
        <source>Match Case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Searches for the full word by itself and not as part of a larger word.</source>
        <translation>Recherche le mot seul, et non comme partie d’un mot plus long.</translation>
    </message>
    <message>
        <source>Finds all occurrences with the exact combination of uppercase and lowercase letters specified in the Find What box.</source>
        <extracomment>Find What is the label of the field, in the words of its own translation</extracomment>
        <translation>Trouve les occurrences dont les majuscules et minuscules sont exactement celles du champ «&#xa0;Texte à chercher&#xa0;».</translation>
    </message>
    <message>
        <source>Found in</source>
        <extracomment>Stands before the position: Found in Row: 3, Col: 7</extracomment>
        <translation>Trouvé&#xa0;:</translation>
    </message>
    <message>
        <source>Not found!</source>
        <translation>Introuvable&#xa0;!</translation>
    </message>
    <message>
        <source>replace(s)!</source>
        <extracomment>Stands behind a number: 3 replace(s)!</extracomment>
        <translation>remplacement(s)&#xa0;!</translation>
    </message>
    <message>
        <source>Row:</source>
        <extracomment>The caret&apos;s position, first piece: Row: 3, Col: 7</extracomment>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>, Col:</source>
        <extracomment>The caret&apos;s position, second piece: Row: 3, Col: 7</extracomment>
        <translation>, colonne</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Also the title of messages</extracomment>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>List not found!</source>
        <extracomment>The list of known words</extracomment>
        <translation>Liste de mots introuvable&#xa0;!</translation>
    </message>
    <message>
        <source>Invalid letter: &apos;\&apos; that is reserved to RTF!</source>
        <translation>Caractère non valide&#xa0;: &apos;\&apos; est réservé au RTF&#xa0;!</translation>
    </message>
    <message>
        <source>The text is too large.</source>
        <translation>Le texte est trop long.</translation>
    </message>
    <message>
        <source>Code Text Setting</source>
        <extracomment>How the code editor looks</extracomment>
        <translation>Présentation du programme</translation>
    </message>
    <message>
        <source>Bad %1 for Editer of Code!</source>
        <extracomment>%1 is the name of a colour setting, such as BackColor</extracomment>
        <translation>Couleur %1 non valide pour l’éditeur de programme&#xa0;!</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>The content of a cell of yes or no</extracomment>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>The content of a cell of yes or no</extracomment>
        <translation>Non</translation>
    </message>
    <message>
        <source>This cell cannot be edited.</source>
        <translation>Cette cellule ne peut pas être modifiée.</translation>
    </message>
    <message>
        <source>This cell must not be empty.</source>
        <translation>Cette cellule ne doit pas être vide.</translation>
    </message>
    <message>
        <source>Characters at most: %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Caractères au plus&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This text does not fit here.</source>
        <translation>Ce texte ne convient pas ici.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Ce n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Only a whole number fits here.</source>
        <translation>Seul un nombre entier convient ici.</translation>
    </message>
    <message>
        <source>Decimals at most: %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Décimales au plus&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The number must not be below %1.</source>
        <extracomment>%1 is a number with its unit</extracomment>
        <translation>Le nombre ne doit pas être inférieur à %1.</translation>
    </message>
    <message>
        <source>The number must not be above %1.</source>
        <extracomment>%1 is a number with its unit</extracomment>
        <translation>Le nombre ne doit pas être supérieur à %1.</translation>
    </message>
    <message>
        <source>This is not in the list.</source>
        <translation>Cela ne figure pas dans la liste.</translation>
    </message>
    <message>
        <source>This is neither %1 nor %2.</source>
        <extracomment>%1 and %2 are the words for yes and no</extracomment>
        <translation>Ce n’est ni %1 ni %2.</translation>
    </message>
    <message>
        <source>There is no point of this name.</source>
        <translation>Il n’y a aucun point de ce nom.</translation>
    </message>
    <message>
        <source>There is not enough room here.</source>
        <translation>Il n’y a pas assez de place ici.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>Behind a list of cells: so many are not listed</extracomment>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>%1, sorted upwards</source>
        <extracomment>The header of a column, for screen readers; %1 is its text</extracomment>
        <translation>%1, tri croissant</translation>
    </message>
    <message>
        <source>%1, sorted downwards</source>
        <extracomment>The header of a column, for screen readers; %1 is its text</extracomment>
        <translation>%1, tri décroissant</translation>
    </message>
    <message>
        <source>Changed</source>
        <extracomment>The value of a cell has changed</extracomment>
        <translation>modifié</translation>
    </message>
    <message>
        <source>Old</source>
        <extracomment>The value of a cell was read a while ago</extracomment>
        <translation>ancien</translation>
    </message>
    <message>
        <source>By hand</source>
        <extracomment>The value of a cell is set by hand</extracomment>
        <translation>manuel</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>The value of a cell is an alarm</extracomment>
        <translation>alarme</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>A command: the current cell of a table</extracomment>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <extracomment>A command: the selected cells of a table, and the headers of their columns</extracomment>
        <translation>Copier avec en-têtes</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <extracomment>A command: the topmost selected cell into those below</extracomment>
        <translation>Recopier vers le bas</translation>
    </message>
    <message>
        <source>Sort Upwards</source>
        <extracomment>A command: the rows of a table by a column</extracomment>
        <translation>Tri croissant</translation>
    </message>
    <message>
        <source>Sort Downwards</source>
        <extracomment>A command: the rows of a table by a column</extracomment>
        <translation>Tri décroissant</translation>
    </message>
    <message>
        <source>Not Sorted</source>
        <extracomment>A command: the rows of a table</extracomment>
        <translation>Sans tri</translation>
    </message>
    <message>
        <source>All Rows</source>
        <extracomment>A command: no filter of the rows of a table</extracomment>
        <translation>Toutes les lignes</translation>
    </message>
    <message>
        <source>Add Row</source>
        <extracomment>A command: to a table</extracomment>
        <translation>Ajouter une ligne</translation>
    </message>
    <message>
        <source>Duplicate Rows</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Dupliquer les lignes</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Supprimer les lignes</translation>
    </message>
    <message>
        <source>Move Up</source>
        <extracomment>A command: rows of a table</extracomment>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <extracomment>A command: rows of a table</extracomment>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Fit Column</source>
        <extracomment>A command: as wide as its texts</extracomment>
        <translation>Ajuster la colonne</translation>
    </message>
    <message>
        <source>Fit All Columns</source>
        <extracomment>A command: as wide as their texts</extracomment>
        <translation>Ajuster les colonnes</translation>
    </message>
    <message>
        <source>Hide Column</source>
        <extracomment>A command: of a table</extracomment>
        <translation>Masquer la colonne</translation>
    </message>
    <message>
        <source>Columns</source>
        <extracomment>A menu: those of a table that are seen</extracomment>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Edit Cell</source>
        <extracomment>A step of undo</extracomment>
        <translation>Modifier la cellule</translation>
    </message>
    <message>
        <source>Edit Cells</source>
        <extracomment>A step of undo: several cells at once</extracomment>
        <translation>Saisie de cellules</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s selection is not a number</source>
        <translation>Étape d’annulation endommagée&#xa0;: la sélection n’est pas un nombre</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s selection is too large a number</source>
        <translation>Étape d’annulation endommagée&#xa0;: la sélection est trop grande</translation>
    </message>
    <message>
        <source>The undo snapshot has fewer than three fields</source>
        <translation>Étape d’annulation endommagée&#xa0;: moins de trois champs</translation>
    </message>
    <message>
        <source>The undo snapshot&apos;s text holds the separator of its fields</source>
        <translation>Étape d’annulation endommagée&#xa0;: le texte contient le séparateur des champs</translation>
    </message>
    <message>
        <source>The text holds a character that the 8-bit code page lacks</source>
        <translation>Le texte contient un caractère absent de la page de codes 8 bits</translation>
    </message>
    <message>
        <source>Insufficient memory to compress string</source>
        <translation>Mémoire insuffisante pour compresser le texte</translation>
    </message>
    <message>
        <source>Insufficient space in output buffer to compress string</source>
        <translation>Tampon de sortie trop petit pour compresser le texte</translation>
    </message>
    <message>
        <source>Unknown error during compress operation</source>
        <translation>Erreur inconnue pendant la compression</translation>
    </message>
    <message>
        <source>Insufficient memory to uncompress string</source>
        <translation>Mémoire insuffisante pour décompresser le texte</translation>
    </message>
    <message>
        <source>Insufficient space in output buffer to uncompress string</source>
        <translation>Tampon de sortie trop petit pour décompresser le texte</translation>
    </message>
    <message>
        <source>Cannot uncompress corrupt data</source>
        <translation>Impossible de décompresser des données endommagées</translation>
    </message>
    <message>
        <source>Unknown error during uncompress operation</source>
        <translation>Erreur inconnue pendant la décompression</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <extracomment>The strip beside the program, for screen readers</extracomment>
        <translation>Numéros de ligne</translation>
    </message>
    <message>
        <source>Go to line:</source>
        <extracomment>In front of a field for a number</extracomment>
        <translation>Aller à la ligne&#xa0;:</translation>
    </message>
    <message>
        <source>Line %1</source>
        <extracomment>The line of the caret, for screen readers; %1 is its number</extracomment>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>%1 lines hidden</source>
        <extracomment>A number: so many lines of the program are folded away, for screen readers</extracomment>
        <translation>%1 lignes masquées</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Chercher précédent</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Numbers: the third match of seventeen is selected; %2 may be 17+ for at least 17</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 found</source>
        <extracomment>A number of matches, of which none is selected; it may be 17+ for at least 17</extracomment>
        <translation>%1 trouvé(s)</translation>
    </message>
    <message>
        <source>Known words</source>
        <extracomment>The list of known words, for screen readers</extracomment>
        <translation>Mots connus</translation>
    </message>
    <message>
        <source>Functions</source>
        <extracomment>The kind of a known word, such as AVERAGE</extracomment>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>Reserved Words</source>
        <extracomment>The kind of a known word, such as IF</extracomment>
        <translation>Mots réservés</translation>
    </message>
    <message>
        <source>Empty the filter</source>
        <extracomment>The button in a field by which the rows of a table are filtered</extracomment>
        <translation>Vider le filtre</translation>
    </message>
</context>
</TS>
