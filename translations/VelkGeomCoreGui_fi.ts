<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Poista kaikki sarakesuodattimet</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Jatkettiin taulukon alusta</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Jatkettiin taulukon lopusta</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Suodatin</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funktiot</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Etsi taulukosta</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopioi</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logiikka</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Ei löytynyt</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Seuraava osuma (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operaattorit</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Poista lajittelu</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Lajittele sarake laskevasti</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Lajittele sarake nousevasti</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Sovita sarakkeiden leveydet</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Sarakesuodatin</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Sarakesuodatin %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Tila</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Sulje haku (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Etsi...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Taulukko %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Edellinen osuma (Vaihto+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Arvoalue (%1 arvoa): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Näyttää rivit, joiden arvo sisältää tekstin. Kun edessä on =, &lt;, &lt;=, &gt; tai &gt;=, arvoa verrataan.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Sijoitus kohdetaulukon muuttujaan</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>molemmat vertailut pätevät</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>vertailu ei päde</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>jokin vertailuista pätee</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>jaettuna</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>yhtä suuri kuin</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>suurempi kuin</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>suurempi tai yhtä suuri</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>potenssiin</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>pienempi kuin</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>pienempi tai yhtä suuri</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>kertaa</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>miinus</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>eri suuri kuin</translation>
    </message>
</context>
</TS>
