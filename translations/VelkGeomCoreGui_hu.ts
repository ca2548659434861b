<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 / %Ln projekt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 / %Ln sor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln projekt található</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln sor</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(üres)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Minden oszlop megjelenítése</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Minden oszlopszűrő megszüntetése</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Minden, kivéve a kiválasztottakat</translation>
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
        <source>Aufbau des Suchindex</source>
        <translation>Keresőindex felépítése</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Feltétel eltávolítása</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Feltétel hozzáadása</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>A katalógusok könyvtára nem olvasható.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>A keresőindex nem építhető fel: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>A keresőindex még épül.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>A keresőindex még épül; eddig: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>A keresés sikertelen: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>A keresés nem érhető el.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Az első %Ln projekt; több is van. Keressen pontosabban.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrő</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Rögzítés feloldása</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Függvények</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Talált projektek</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>A keresés az ezen a gépen lévő adatokban folyik.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Keresés a táblázatban</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Egy sor sem felel meg az oszlopszűrőknek</translation>
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
        <source>Nach Werten filtern ...</source>
        <translation>Szűrés értékek szerint ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Név, szabvány, megnevezés vagy érték</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Nem található</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Nincs találat. Keressen más szavakkal vagy kevesebb feltétellel.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Keresés csak itt: %1</translation>
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
        <source>Spalte ausblenden</source>
        <translation>Oszlop elrejtése</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Oszlop balra</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Oszlop jobbra</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Oszlopok rögzítése idáig</translation>
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
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Keressen szavakra, vagy adjon hozzá feltételeket.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Keresőszavak</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Táblázat: %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Ismeretlen hiba</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Változó</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Összehasonlítás</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Előző találat (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>érték</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>A(z) %1 oszlop értékei</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Értéktartomány (értékek: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Keresés ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Azokat a sorokat mutatja, amelyek értéke tartalmazza a szöveget. Elé írt =, &lt;, &lt;=, &gt; vagy &gt;= összehasonlít; a ! tagad, az = önmagában az üres értékeket találja meg. Az &amp; mindkettőt, a | az egyiket kéri. Az Alt+le nyíl az értékeket mutatja.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Értékadás a céltábla egy változójának</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>ezzel kezdődik</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>mindkét összehasonlítás igaz</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>–</translation>
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
        <source>enthält</source>
        <translation>tartalmazza</translation>
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
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>és %Ln ritkább érték</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>és még %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>és további %Ln sor</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>nem egyenlő</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>-tól–-ig</translation>
    </message>
</context>
</TS>
