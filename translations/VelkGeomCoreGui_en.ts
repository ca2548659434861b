<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 of %Ln project</numerusform>
            <numerusform>%1 of %Ln projects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 of %Ln line</numerusform>
            <numerusform>%1 of %Ln lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln project found</numerusform>
            <numerusform>%Ln projects found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln line</numerusform>
            <numerusform>%Ln lines</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(empty)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Show all columns</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Clear all column filters</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>All but the chosen ones</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Continued at the beginning of the table</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Continued at the end of the table</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Building the search index</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Remove condition</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Add condition</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>The directory of the catalogs cannot be read.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>The search index could not be built: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>The search index is still being built.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>The search index is still being built; so far: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>The search failed: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>The search is not available.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>The first %Ln project; there are more. Search more precisely.</numerusform>
            <numerusform>The first %Ln projects; there are more. Search more precisely.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Unfreeze columns</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Functions</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Projects found</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>What is on this machine is searched.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Find in table</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>No line passes the column filters</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logic</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filter by values ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Name, standard, designation or value</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Nothing found. Search with other words or fewer conditions.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Search in %1 only</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Next match (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operators</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Remove sorting</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Sort column in descending order</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Sort column in ascending order</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Hide column</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Move column left</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Move column right</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Freeze columns up to here</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Fit column widths</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Column filter</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Column filter %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Close search (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Find ...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Search for words, or add conditions.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Search words</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Table %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Unknown error</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Comparison</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Previous match (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>value</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Values of column %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Value range (values: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Searching ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Shows lines whose value holds the text. With =, &lt;, &lt;=, &gt; or &gt;= before it, it is compared; ! before it means not, = alone finds empty values. &amp; wants both, | either of them. Alt+Down shows the values.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Assignment to a variable of the target table</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>begins with</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>both comparisons hold</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>to</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>the comparison does not hold</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>one of the comparisons holds</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>contains</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>divided by</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>equal to</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>greater than</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>greater than or equal to</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>to the power of</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>less than</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>less than or equal to</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>times</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>minus</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>and %Ln rarer value</numerusform>
            <numerusform>and %Ln rarer values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>and %Ln more line</numerusform>
            <numerusform>and %Ln more lines</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>not equal to</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>from–to</translation>
    </message>
</context>
</TS>
