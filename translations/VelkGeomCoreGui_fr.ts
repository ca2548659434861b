<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 projet sur %Ln</numerusform>
            <numerusform>%1 projets sur %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 ligne sur %Ln</numerusform>
            <numerusform>%1 lignes sur %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln projet trouvé</numerusform>
            <numerusform>%Ln projets trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Afficher toutes les colonnes</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Supprimer tous les filtres de colonne</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Toutes sauf celles choisies</translation>
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
        <source>Aufbau des Suchindex</source>
        <translation>Création de l'index de recherche</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Supprimer la condition</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Ajouter une condition</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Le répertoire des catalogues ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>L'index de recherche n'a pas pu être créé : %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>L'index de recherche est encore en cours de création.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>L'index de recherche est encore en cours de création ; pour l'instant : %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>La recherche a échoué : %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>La recherche n'est pas disponible.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Le %Ln premier projet ; il y en a d'autres. Précisez la recherche.</numerusform>
            <numerusform>Les %Ln premiers projets ; il y en a d'autres. Précisez la recherche.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Libérer les colonnes</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Projets trouvés</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>La recherche porte sur ce qui se trouve sur cette machine.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Rechercher dans la table</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Aucune ligne ne correspond aux filtres de colonne</translation>
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
        <source>Nach Werten filtern ...</source>
        <translation>Filtrer par valeurs ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Nom, norme, désignation ou valeur</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Rien trouvé. Recherchez avec d'autres mots ou moins de conditions.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Rechercher uniquement dans %1</translation>
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
        <source>Spalte ausblenden</source>
        <translation>Masquer la colonne</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Déplacer la colonne à gauche</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Déplacer la colonne à droite</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Figer les colonnes jusqu’ici</translation>
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
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Recherchez des mots ou ajoutez des conditions.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Mots recherchés</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Table %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Occurrence précédente (Maj+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Valeurs de la colonne %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Plage de valeurs (valeurs : %1) : %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Recherche ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Affiche les lignes dont la valeur contient le texte. Avec =, &lt;, &lt;=, &gt; ou &gt;= devant, la valeur est comparée ; ! devant inverse, = seul trouve les valeurs vides. &amp; exige les deux, | l'un des deux. Alt+flèche bas affiche les valeurs.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Affectation à une variable de la table cible</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>commence par</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>les deux comparaisons sont vraies</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>à</translation>
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
        <source>enthält</source>
        <translation>contient</translation>
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
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>et %Ln valeur plus rare</numerusform>
            <numerusform>et %Ln valeurs plus rares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>et %Ln autre</numerusform>
            <numerusform>et %Ln autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>et %Ln ligne de plus</numerusform>
            <numerusform>et %Ln lignes de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>différent de</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>de–à</translation>
    </message>
</context>
</TS>
