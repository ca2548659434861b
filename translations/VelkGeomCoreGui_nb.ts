<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Opphev alle kolonnefiltre</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Fortsatt fra begynnelsen av tabellen</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Fortsatt fra slutten av tabellen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funksjoner</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Søk i tabellen</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopier</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logikk</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Ikke funnet</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Neste treff (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operatorer</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Opphev sortering</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Sorter kolonnen synkende</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Sorter kolonnen stigende</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Tilpass kolonnebredder</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Kolonnefilter</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Kolonnefilter %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Lukk søket (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Søk...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabell %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Forrige treff (Shift+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Verdiområde (%1 verdier): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Viser linjer der verdien inneholder teksten. Med =, &lt;, &lt;=, &gt; eller &gt;= foran sammenlignes det.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Tildeling til en variabel i måltabellen</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>begge sammenligninger gjelder</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>sammenligningen gjelder ikke</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>en av sammenligningene gjelder</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>delt på</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>lik</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>større enn</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>større enn eller lik</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>opphøyd i</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>mindre enn</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>mindre enn eller lik</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>ganger</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>minus</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>pluss</translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>ulik</translation>
    </message>
</context>
</TS>
