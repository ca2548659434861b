<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Zrušit všechny filtry sloupců</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Pokračuje se od začátku tabulky</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Pokračuje se od konce tabulky</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Hledat v tabulce</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Nenalezeno</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Další výskyt (F3)</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Zrušit řazení</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Seřadit sloupec sestupně</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Seřadit sloupec vzestupně</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Přizpůsobit šířku sloupců</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtr sloupce</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtr sloupce %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Zavřít hledání (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Hledat...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabulka %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Předchozí výskyt (Shift+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Rozsah hodnot (%1 hodnot): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Zobrazí řádky, jejichž hodnota obsahuje text. S =, &lt;, &lt;=, &gt; nebo &gt;= na začátku se porovnává.</translation>
    </message>
</context>
</TS>
