<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Alle Spaltenfilter aufheben</translation>
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
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>In der Tabelle suchen</translation>
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
        <source>Nicht gefunden</source>
        <translation>Nicht gefunden</translation>
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
        <source>Tabelle %1</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Vorherige Fundstelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Wertebereich (%1 Werte): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Zuweisung an eine Variable der Zieltabelle</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>beide Vergleiche gelten</translation>
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
    <message>
        <source>ungleich</source>
        <translation>ungleich</translation>
    </message>
</context>
</TS>
