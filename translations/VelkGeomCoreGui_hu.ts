<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Minden oszlopszűrő megszüntetése</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Folytatás a táblázat elejétől</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Folytatás a táblázat végétől</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrő</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Függvények</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Keresés a táblázatban</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Másolás</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logika</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Nem található</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Következő találat (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operátorok</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Rendezés megszüntetése</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Oszlop rendezése csökkenő sorrendben</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Oszlop rendezése növekvő sorrendben</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Oszlopszélességek igazítása</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Oszlopszűrő</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Oszlopszűrő: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Keresés bezárása (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Keresés...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Táblázat: %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Előző találat (Shift+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Értéktartomány (%1 érték): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Azokat a sorokat mutatja, amelyek értéke tartalmazza a szöveget. Elöl =, &lt;, &lt;=, &gt; vagy &gt;= esetén összehasonlít.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Értékadás a céltábla egy változójának</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>mindkét összehasonlítás igaz</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>az összehasonlítás nem igaz</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>az egyik összehasonlítás igaz</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>osztva</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>egyenlő</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>nagyobb</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>nagyobb vagy egyenlő</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>hatványon</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>kisebb</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>kisebb vagy egyenlő</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>szorozva</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>mínusz</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plusz</translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>nem egyenlő</translation>
    </message>
</context>
</TS>
