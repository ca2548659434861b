<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 af %Ln projekt</numerusform>
            <numerusform>%1 af %Ln projekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 af %Ln linje</numerusform>
            <numerusform>%1 af %Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln projekt fundet</numerusform>
            <numerusform>%Ln projekter fundet</numerusform>
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
        <translation>Ophæv alle kolonnefiltre</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Alle undtagen de valgte</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Fortsat fra tabellens begyndelse</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Fortsat fra tabellens slutning</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Opbygning af søgeindeks</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Fjern betingelse</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Tilføj betingelse</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Katalogernes mappe kan ikke læses.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Søgeindekset kunne ikke opbygges: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Søgeindekset bliver stadig opbygget.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Søgeindekset bliver stadig opbygget; indtil nu: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Søgningen mislykkedes: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Søgningen er ikke tilgængelig.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Det første %Ln projekt; der er flere. Søg mere præcist.</numerusform>
            <numerusform>De første %Ln projekter; der er flere. Søg mere præcist.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Ophæv fastgørelse</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funktioner</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Fundne projekter</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Der søges i det, der ligger på denne maskine.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Søg i tabellen</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Ingen linje passer til kolonnefiltrene</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiér</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logik</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filtrer efter værdier ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Navn, norm, betegnelse eller værdi</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Ikke fundet</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Intet fundet. Søg med andre ord eller færre betingelser.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Søg kun i %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Næste forekomst (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operatorer</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Ophæv sortering</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Sortér kolonnen faldende</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Sortér kolonnen stigende</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Skjul kolonne</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Kolonne mod venstre</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Kolonne mod højre</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Fastgør kolonner hertil</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Tilpas kolonnebredder</translation>
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
        <translation>Luk søgning (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Søg...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Søg efter ord, eller tilføj betingelser.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabel %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Ukendt fejl</translation>
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
        <translation>Forrige forekomst (Skift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>værdi</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Værdier i kolonnen %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Værdiområde (værdier: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Der søges ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Viser linjer, hvis værdi indeholder teksten. Med =, &lt;, &lt;=, &gt; eller &gt;= foran sammenlignes der; ! foran vender om, = alene finder tomme værdier. &amp; kræver begge, | en af dem. Alt+pil ned viser værdierne.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Tildeling til en variabel i måltabellen</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>begynder med</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>begge sammenligninger gælder</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>til</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>sammenligningen gælder ikke</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>en af sammenligningerne gælder</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>indeholder</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>divideret med</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>lig med</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>større end</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>større end eller lig med</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>opløftet i</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>mindre end</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>mindre end eller lig med</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>gange</translation>
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
            <numerusform>og %Ln sjældnere værdi</numerusform>
            <numerusform>og %Ln sjældnere værdier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>og %Ln mere</numerusform>
            <numerusform>og %Ln mere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>og %Ln linje mere</numerusform>
            <numerusform>og %Ln linjer mere</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>forskellig fra</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>fra–til</translation>
    </message>
</context>
</TS>
