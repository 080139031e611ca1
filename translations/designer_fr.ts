<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ColoursDialog</name>
    <message>
        <source>Colours of the Program</source>
        <translation>Couleurs du programme</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
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
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propres</translation>
    </message>
    <message>
        <source>Colour &amp;set:</source>
        <translation>&amp;Jeu de couleurs&#xa0;:</translation>
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
        <source>The program sets the colours.</source>
        <translation>Les couleurs viennent de votre programme.</translation>
    </message>
    <message>
        <source>Hard to read on this ground: %1.</source>
        <translation>Difficile à lire sur ce fond&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>ColumnsDialog</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>&amp;Ready Columns</source>
        <translation>Colonnes &amp;prévues</translation>
    </message>
    <message>
        <source>Columns of “%1”</source>
        <translation>Colonnes de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;Kept in the form:</source>
        <translation>&amp;Gardé dans le formulaire&#xa0;:</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Width in twips</source>
        <translation>Largeur en twips</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>nothing: the columns are those of the type</source>
        <translation>rien&#xa0;: les colonnes sont celles du type</translation>
    </message>
</context>
<context>
    <name>ListTaskMenu</name>
    <message>
        <source>Columns of This Type…</source>
        <translation>Colonnes de ce type…</translation>
    </message>
    <message>
        <source>Colours of the Program…</source>
        <translation>Couleurs du programme…</translation>
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
    <name>PropertyGroups</name>
    <message>
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
</context>
</TS>
