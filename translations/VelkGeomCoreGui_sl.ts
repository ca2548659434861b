<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 od %Ln projekta</numerusform>
            <numerusform>%1 od %Ln projektov</numerusform>
            <numerusform>%1 od %Ln projektov</numerusform>
            <numerusform>%1 od %Ln projektov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 od %Ln vrstice</numerusform>
            <numerusform>%1 od %Ln vrstic</numerusform>
            <numerusform>%1 od %Ln vrstic</numerusform>
            <numerusform>%1 od %Ln vrstic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>Najden %Ln projekt</numerusform>
            <numerusform>Najdena %Ln projekta</numerusform>
            <numerusform>Najdeni %Ln projekti</numerusform>
            <numerusform>Najdenih %Ln projektov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln vrstica</numerusform>
            <numerusform>%Ln vrstici</numerusform>
            <numerusform>%Ln vrstice</numerusform>
            <numerusform>%Ln vrstic</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(prazno)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Pokaži vse stolpce</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Odstrani vse filtre stolpcev</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Vse razen izbranih</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Nadaljevano na začetku tabele</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Nadaljevano na koncu tabele</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Gradnja iskalnega kazala</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Odstrani pogoj</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Dodaj pogoj</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Imenika katalogov ni mogoče prebrati.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Iskalnega kazala ni bilo mogoče zgraditi: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Iskalno kazalo se še gradi.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Iskalno kazalo se še gradi; doslej: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Iskanje ni uspelo: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Iskanje ni na voljo.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Prvi %Ln projekt; obstajajo še drugi. Iščite natančneje.</numerusform>
            <numerusform>Prva %Ln projekta; obstajajo še drugi. Iščite natančneje.</numerusform>
            <numerusform>Prvi %Ln projekti; obstajajo še drugi. Iščite natančneje.</numerusform>
            <numerusform>Prvih %Ln projektov; obstajajo še drugi. Iščite natančneje.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Poskusi znova</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Odmrzni stolpce</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funkcije</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Najdeni projekti</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Išče se po tem, kar je na tem računalniku.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Išči v tabeli</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Nobena vrstica ne ustreza filtrom stolpcev</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiraj</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logika</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filtriraj po vrednostih ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Ime, standard, oznaka ali vrednost</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Ni najdeno</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Ni zadetkov. Iščite z drugimi besedami ali manj pogoji.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Išči samo v %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Naslednji zadetek (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operatorji</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Odstrani razvrščanje</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Razvrsti stolpec padajoče</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Razvrsti stolpec naraščajoče</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Skrij stolpec</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Stolpec v levo</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Stolpec v desno</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Zamrzni stolpce do sem</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Prilagodi širine stolpcev</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filter stolpca</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filter stolpca %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Zapri iskanje (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Išči...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Iščite besede ali dodajte pogoje.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Iskane besede</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabela %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Neznana napaka</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Spremenljivka</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Primerjava</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Prejšnji zadetek (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>vrednost</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Vrednosti stolpca %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Območje vrednosti (vrednosti: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Iskanje ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Prikaže vrstice, katerih vrednost vsebuje besedilo. Z =, &lt;, &lt;=, &gt; ali &gt;= pred njim se primerja; ! pred njim zanika, samo = najde prazne vrednosti. &amp; zahteva oboje, | eno od obeh. Alt+puščica dol prikaže vrednosti.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Prireditev spremenljivki ciljne tabele</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>se začne z</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>veljata obe primerjavi</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>do</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>primerjava ne velja</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>velja ena od primerjav</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>vsebuje</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>deljeno z</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>enako</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>večje kot</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>večje ali enako</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>na potenco</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>manjše kot</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>manjše ali enako</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>krat</translation>
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
            <numerusform>in %Ln redkejša vrednost</numerusform>
            <numerusform>in %Ln redkejši vrednosti</numerusform>
            <numerusform>in %Ln redkejše vrednosti</numerusform>
            <numerusform>in %Ln redkejših vrednosti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>in še %Ln vrstica</numerusform>
            <numerusform>in še %Ln vrstici</numerusform>
            <numerusform>in še %Ln vrstice</numerusform>
            <numerusform>in še %Ln vrstic</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>ni enako</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>od–do</translation>
    </message>
</context>
</TS>
