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
        <source>Funktionen</source>
        <translation>Fonctions</translation>
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
        <source>Logik</source>
        <translation>Logique</translation>
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
        <source>Operatoren</source>
        <translation>Opérateurs</translation>
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
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Affectation à une variable de la table cible</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>les deux comparaisons sont vraies</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>la comparaison est fausse</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>l'une des comparaisons est vraie</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>divisé par</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>égal à</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>supérieur à</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>supérieur ou égal à</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>puissance</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>inférieur à</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>inférieur ou égal à</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>multiplié par</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>moins</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>différent de</translation>
    </message>
</context>
</TS>
