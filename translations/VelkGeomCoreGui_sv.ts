<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 av %Ln projekt</numerusform>
            <numerusform>%1 av %Ln projekt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 av %Ln rad</numerusform>
            <numerusform>%1 av %Ln rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln projekt hittades</numerusform>
            <numerusform>%Ln projekt hittades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rad</numerusform>
            <numerusform>%Ln rader</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(tom)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Visa alla kolumner</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Ta bort alla kolumnfilter</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Alla utom de valda</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Fortsatte från tabellens början</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Fortsatte från tabellens slut</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Sökindex skapas</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Ta bort villkor</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Lägg till villkor</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Katalogernas mapp kan inte läsas.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Sökindexet kunde inte skapas: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Sökindexet skapas fortfarande.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Sökindexet skapas fortfarande; hittills: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Sökningen misslyckades: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Sökningen är inte tillgänglig.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Det första %Ln projektet; det finns fler. Sök mer exakt.</numerusform>
            <numerusform>De första %Ln projekten; det finns fler. Sök mer exakt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Lås upp kolumner</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funktioner</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Hittade projekt</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Sökningen sker i det som finns på den här datorn.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Sök i tabellen</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Ingen rad passar kolumnfiltren</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logik</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filtrera efter värden ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Namn, standard, beteckning eller värde</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Hittades inte</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Inget hittades. Sök med andra ord eller färre villkor.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Sök endast i %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Nästa träff (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operatorer</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Ta bort sortering</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Sortera kolumnen fallande</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Sortera kolumnen stigande</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Dölj kolumn</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Kolumn åt vänster</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Kolumn åt höger</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Lås kolumner hit</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Anpassa kolumnbredder</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Kolumnfilter</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Kolumnfilter %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Stäng sökningen (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Sök...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Sök efter ord eller lägg till villkor.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Sökord</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabell %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Okänt fel</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Jämförelse</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Föregående träff (Skift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>värde</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Värden i kolumnen %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Värdeområde (värden: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Söker ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Visar rader vars värde innehåller texten. Med =, &lt;, &lt;=, &gt; eller &gt;= framför jämförs det; ! framför vänder, = ensamt hittar tomma värden. &amp; kräver båda, | en av dem. Alt+nedpil visar värdena.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Tilldelning till en variabel i måltabellen</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>börjar med</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>båda jämförelserna gäller</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>till</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>jämförelsen gäller inte</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>en av jämförelserna gäller</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>innehåller</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>delat med</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>lika med</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>större än</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>större än eller lika med</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>upphöjt till</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>mindre än</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>mindre än eller lika med</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>gånger</translation>
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
            <numerusform>och %Ln mer sällsynt värde</numerusform>
            <numerusform>och %Ln mer sällsynta värden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>och %Ln till</numerusform>
            <numerusform>och %Ln till</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>och %Ln rad till</numerusform>
            <numerusform>och %Ln rader till</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>skild från</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>från–till</translation>
    </message>
</context>
</TS>
