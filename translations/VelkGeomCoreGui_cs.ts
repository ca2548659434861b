<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 z %Ln projektu</numerusform>
            <numerusform>%1 z %Ln projektů</numerusform>
            <numerusform>%1 z %Ln projektů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln řádku</numerusform>
            <numerusform>%1 z %Ln řádků</numerusform>
            <numerusform>%1 z %Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>Nalezen %Ln projekt</numerusform>
            <numerusform>Nalezeny %Ln projekty</numerusform>
            <numerusform>Nalezeno %Ln projektů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln řádek</numerusform>
            <numerusform>%Ln řádky</numerusform>
            <numerusform>%Ln řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(prázdné)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Zobrazit všechny sloupce</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Zrušit všechny filtry sloupců</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Vše kromě vybraných</translation>
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
        <source>Aufbau des Suchindex</source>
        <translation>Vytváření vyhledávacího rejstříku</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Odebrat podmínku</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Přidat podmínku</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Adresář katalogů nelze přečíst.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Vyhledávací rejstřík nelze vytvořit: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Vyhledávací rejstřík se ještě vytváří.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Vyhledávací rejstřík se ještě vytváří; zatím: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Hledání selhalo: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Hledání není k dispozici.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>První %Ln projekt; je jich víc. Hledejte přesněji.</numerusform>
            <numerusform>První %Ln projekty; je jich víc. Hledejte přesněji.</numerusform>
            <numerusform>Prvních %Ln projektů; je jich víc. Hledejte přesněji.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Zrušit ukotvení</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funkce</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Nalezené projekty</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Prohledává se to, co je na tomto počítači.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Hledat v tabulce</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Žádný řádek neodpovídá filtrům sloupců</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logika</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filtrovat podle hodnot ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Název, norma, označení nebo hodnota</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Nenalezeno</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Nic nenalezeno. Hledejte jinými slovy nebo s méně podmínkami.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Hledat jen v %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Další výskyt (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operátory</translation>
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
        <source>Spalte ausblenden</source>
        <translation>Skrýt sloupec</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Sloupec doleva</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Sloupec doprava</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Ukotvit sloupce až sem</translation>
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
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Hledejte slova nebo přidejte podmínky.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Hledaná slova</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabulka %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Neznámá chyba</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Proměnná</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Porovnání</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Předchozí výskyt (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>hodnota</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Hodnoty sloupce %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Rozsah hodnot (hodnot: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Hledá se ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Zobrazí řádky, jejichž hodnota obsahuje text. S =, &lt;, &lt;=, &gt; nebo &gt;= na začátku se porovnává; ! na začátku obrací význam, samotné = najde prázdné hodnoty. &amp; vyžaduje obojí, | jedno z obou. Alt+šipka dolů zobrazí hodnoty.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Přiřazení proměnné cílové tabulky</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>začíná na</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>platí obě porovnání</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>do</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>porovnání neplatí</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>platí jedno z porovnání</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>obsahuje</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>děleno</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>rovno</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>větší než</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>větší nebo rovno</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>na</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>menší než</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>menší nebo rovno</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>krát</translation>
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
            <numerusform>a %Ln vzácnější hodnota</numerusform>
            <numerusform>a %Ln vzácnější hodnoty</numerusform>
            <numerusform>a %Ln vzácnějších hodnot</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>a další: %Ln</numerusform>
            <numerusform>a další: %Ln</numerusform>
            <numerusform>a další: %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>a další %Ln řádek</numerusform>
            <numerusform>a další %Ln řádky</numerusform>
            <numerusform>a dalších %Ln řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>nerovno</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>od–do</translation>
    </message>
</context>
</TS>
