<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 von %Ln Projekt</numerusform>
            <numerusform>%1 von %Ln Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 von %Ln Zeile</numerusform>
            <numerusform>%1 von %Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln Projekt gefunden</numerusform>
            <numerusform>%Ln Projekte gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Alle Spalten einblenden</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Alle Spaltenfilter aufheben</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Alle außer den gewählten</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Am Anfang der Tabelle fortgesetzt</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Am Ende der Tabelle fortgesetzt</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Aufbau des Suchindex</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Bedingung entfernen</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Bedingung hinzufügen</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Das Verzeichnis der Kataloge kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Der Suchindex konnte nicht aufgebaut werden: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Der Suchindex wird noch aufgebaut.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Der Suchindex wird noch aufgebaut; bisher: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Die Suche ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Die Suche steht nicht zur Verfügung.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Das erste %Ln Projekt; es gibt mehr. Suchen Sie genauer.</numerusform>
            <numerusform>Die ersten %Ln Projekte; es gibt mehr. Suchen Sie genauer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Fixierung aufheben</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Gefundene Projekte</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>In der Tabelle suchen</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Keine Zeile passt zu den Spaltenfiltern</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logik</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Nach Werten filtern ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Name, Norm, Bezeichnung oder Wert</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Nur in %1 suchen</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Nächste Fundstelle (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operatoren</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Sortierung aufheben</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Spalte absteigend sortieren</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Spalte aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Spalte ausblenden</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Spalte nach links</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Spalte nach rechts</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Spalten bis hier fixieren</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Spaltenbreiten anpassen</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Spaltenfilter</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Spaltenfilter %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Suche schließen (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Suchen ...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Suchwörter</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Vorherige Fundstelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Werte der Spalte %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Wertebereich (Werte: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Wird gesucht ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Zuweisung an eine Variable der Zieltabelle</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>beginnt mit</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>beide Vergleiche gelten</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>der Vergleich gilt nicht</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>einer der Vergleiche gilt</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>geteilt durch</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>größer</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>größer oder gleich</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>hoch</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>kleiner</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>kleiner oder gleich</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>mal</translation>
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
            <numerusform>und %Ln seltenerer Wert</numerusform>
            <numerusform>und %Ln seltenere Werte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>und %Ln weitere Zeile</numerusform>
            <numerusform>und %Ln weitere Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>ungleich</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>von–bis</translation>
    </message>
</context>
</TS>
