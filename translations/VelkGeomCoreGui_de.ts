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
        <source>In der Tabelle suchen</source>
        <translation>In der Tabelle suchen</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopieren</translation>
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
</context>
</TS>
