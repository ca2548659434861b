<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 av %Ln prosjekt</numerusform>
            <numerusform>%1 av %Ln prosjekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 av %Ln linje</numerusform>
            <numerusform>%1 av %Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln prosjekt funnet</numerusform>
            <numerusform>%Ln prosjekter funnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linje</numerusform>
            <numerusform>%Ln linjer</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(tom)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Vis alle kolonner</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Opphev alle kolonnefiltre</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Alle unntatt de valgte</translation>
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
        <source>Aufbau des Suchindex</source>
        <translation>Oppbygging av søkeindeks</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Fjern betingelse</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Legg til betingelse</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Katalogenes mappe kan ikke leses.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Søkeindeksen kunne ikke bygges: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Søkeindeksen bygges fortsatt.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Søkeindeksen bygges fortsatt; så langt: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Søket mislyktes: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Søket er ikke tilgjengelig.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Det første %Ln prosjektet; det finnes flere. Søk mer presist.</numerusform>
            <numerusform>De første %Ln prosjektene; det finnes flere. Søk mer presist.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Opphev frysing</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funksjoner</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Prosjekter funnet</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Det søkes i det som ligger på denne maskinen.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Søk i tabellen</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Ingen linje passer til kolonnefiltrene</translation>
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
        <source>Nach Werten filtern ...</source>
        <translation>Filtrer etter verdier ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Navn, norm, betegnelse eller verdi</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Ikke funnet</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Ingenting funnet. Søk med andre ord eller færre betingelser.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Søk bare i %1</translation>
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
        <source>Spalte ausblenden</source>
        <translation>Skjul kolonne</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Kolonne mot venstre</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Kolonne mot høyre</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Frys kolonner hit</translation>
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
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Søk etter ord, eller legg til betingelser.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabell %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Ukjent feil</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Sammenligning</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Forrige treff (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>verdi</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Verdier i kolonnen %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Verdiområde (verdier: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Søker ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Viser linjer der verdien inneholder teksten. Med =, &lt;, &lt;=, &gt; eller &gt;= foran sammenlignes det; ! foran snur om, = alene finner tomme verdier. &amp; krever begge, | en av dem. Alt+pil ned viser verdiene.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Tildeling til en variabel i måltabellen</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>begynner med</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>begge sammenligninger gjelder</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>til</translation>
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
        <source>enthält</source>
        <translation>inneholder</translation>
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
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>og %Ln sjeldnere verdi</numerusform>
            <numerusform>og %Ln sjeldnere verdier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>og %Ln til</numerusform>
            <numerusform>og %Ln til</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>og %Ln linje til</numerusform>
            <numerusform>og %Ln linjer til</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>ulik</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>fra–til</translation>
    </message>
</context>
</TS>
