<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Usuń wszystkie filtry kolumn</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Kontynuacja od początku tabeli</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Kontynuacja od końca tabeli</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Szukaj w tabeli</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Nie znaleziono</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Następne wystąpienie (F3)</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Usuń sortowanie</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Sortuj kolumnę malejąco</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Sortuj kolumnę rosnąco</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Dopasuj szerokość kolumn</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtr kolumny</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtr kolumny %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Zamknij wyszukiwanie (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Szukaj...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabela %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Poprzednie wystąpienie (Shift+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Zakres wartości (%1 wartości): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Pokazuje wiersze, których wartość zawiera tekst. Z =, &lt;, &lt;=, &gt; lub &gt;= na początku następuje porównanie.</translation>
    </message>
</context>
</TS>
