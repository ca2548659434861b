<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Supprimer tous les filtres de colonne</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Poursuivi au début de la table</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Poursuivi à la fin de la table</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Rechercher dans la table</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Occurrence suivante (F3)</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Annuler le tri</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Trier la colonne par ordre décroissant</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Trier la colonne par ordre croissant</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Ajuster la largeur des colonnes</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtre de colonne</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtre de colonne %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Fermer la recherche (Échap)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Rechercher...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Table %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Occurrence précédente (Maj+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Plage de valeurs (%1 valeurs) : %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Affiche les lignes dont la valeur contient le texte. Précédé de =, &lt;, &lt;=, &gt; ou &gt;=, il est comparé.</translation>
    </message>
</context>
</TS>
