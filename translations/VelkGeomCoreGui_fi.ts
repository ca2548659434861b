<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1/%Ln projekti</numerusform>
            <numerusform>%1/%Ln projektia</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 / %Ln rivi</numerusform>
            <numerusform>%1 / %Ln riviä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln projekti löytyi</numerusform>
            <numerusform>%Ln projektia löytyi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rivi</numerusform>
            <numerusform>%Ln riviä</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(tyhjä)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Näytä kaikki sarakkeet</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Poista kaikki sarakesuodattimet</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Kaikki paitsi valitut</translation>
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
        <source>Aufbau des Suchindex</source>
        <translation>Hakuindeksin luonti</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Poista ehto</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Lisää ehto</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Luetteloiden hakemistoa ei voi lukea.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Hakuindeksiä ei voitu luoda: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Hakuindeksiä luodaan vielä.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Hakuindeksiä luodaan vielä; tähän mennessä: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Haku epäonnistui: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Haku ei ole käytettävissä.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Ensimmäinen %Ln projekti; lisää on. Tarkenna hakua.</numerusform>
            <numerusform>Ensimmäiset %Ln projektia; lisää on. Tarkenna hakua.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Yritä uudelleen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Suodatin</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Poista kiinnitys</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funktiot</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Löydetyt projektit</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Haku kohdistuu siihen, mikä on tällä koneella.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Etsi taulukosta</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Mikään rivi ei vastaa sarakesuodattimia</translation>
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
        <source>Nach Werten filtern ...</source>
        <translation>Suodata arvojen mukaan ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Nimi, standardi, merkintä tai arvo</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Ei löytynyt</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Mitään ei löytynyt. Hae muilla sanoilla tai vähemmillä ehdoilla.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Etsi vain kohteesta %1</translation>
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
        <source>Spalte ausblenden</source>
        <translation>Piilota sarake</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Siirrä saraketta vasemmalle</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Siirrä saraketta oikealle</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Kiinnitä sarakkeet tähän asti</translation>
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
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Etsi sanoja tai lisää ehtoja.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Hakusanat</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Taulukko %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Tuntematon virhe</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Muuttuja</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Vertailu</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Edellinen osuma (Vaihto+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>arvo</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Sarakkeen %1 arvot</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Arvoalue (arvoja: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Etsitään ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Näyttää rivit, joiden arvo sisältää tekstin. Etumerkki =, &lt;, &lt;=, &gt; tai &gt;= vertaa; ! kääntää ehdon, pelkkä = löytää tyhjät arvot. &amp; vaatii molemmat, | jommankumman. Alt+nuoli alas näyttää arvot.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Sijoitus kohdetaulukon muuttujaan</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>alkaa</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>molemmat vertailut pätevät</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>–</translation>
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
        <source>enthält</source>
        <translation>sisältää</translation>
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
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>ja %Ln harvinaisempi arvo</numerusform>
            <numerusform>ja %Ln harvinaisempaa arvoa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ja %Ln muu</numerusform>
            <numerusform>ja %Ln muuta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>ja %Ln rivi lisää</numerusform>
            <numerusform>ja %Ln riviä lisää</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>eri suuri kuin</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>välillä</translation>
    </message>
</context>
</TS>
