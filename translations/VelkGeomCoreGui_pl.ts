<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 z %Ln projektu</numerusform>
            <numerusform>%1 z %Ln projektów</numerusform>
            <numerusform>%1 z %Ln projektów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln wiersza</numerusform>
            <numerusform>%1 z %Ln wierszy</numerusform>
            <numerusform>%1 z %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>Znaleziono %Ln projekt</numerusform>
            <numerusform>Znaleziono %Ln projekty</numerusform>
            <numerusform>Znaleziono %Ln projektów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln wiersz</numerusform>
            <numerusform>%Ln wiersze</numerusform>
            <numerusform>%Ln wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(puste)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Pokaż wszystkie kolumny</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Usuń wszystkie filtry kolumn</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Wszystkie oprócz wybranych</translation>
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
        <source>Aufbau des Suchindex</source>
        <translation>Tworzenie indeksu wyszukiwania</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Usuń warunek</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Dodaj warunek</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Nie można odczytać katalogu z katalogami.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Nie można utworzyć indeksu wyszukiwania: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Indeks wyszukiwania jest jeszcze tworzony.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Indeks wyszukiwania jest jeszcze tworzony; dotąd: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Wyszukiwanie nie powiodło się: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Wyszukiwanie jest niedostępne.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Pierwszy %Ln projekt; jest ich więcej. Szukaj dokładniej.</numerusform>
            <numerusform>Pierwsze %Ln projekty; jest ich więcej. Szukaj dokładniej.</numerusform>
            <numerusform>Pierwszych %Ln projektów; jest ich więcej. Szukaj dokładniej.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Odblokuj kolumny</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funkcje</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Znalezione projekty</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Przeszukiwane jest to, co znajduje się na tym komputerze.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Szukaj w tabeli</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Żaden wiersz nie pasuje do filtrów kolumn</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logika</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filtruj według wartości ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Nazwa, norma, oznaczenie lub wartość</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Nie znaleziono</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Nic nie znaleziono. Szukaj innymi słowami lub z mniejszą liczbą warunków.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Szukaj tylko w %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Następne wystąpienie (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operatory</translation>
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
        <source>Spalte ausblenden</source>
        <translation>Ukryj kolumnę</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Kolumna w lewo</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Kolumna w prawo</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Zablokuj kolumny do tego miejsca</translation>
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
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Szukaj słów lub dodaj warunki.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Szukane słowa</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabela %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Nieznany błąd</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Zmienna</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Porównanie</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Poprzednie wystąpienie (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>wartość</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Wartości kolumny %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Zakres wartości (wartości: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Wyszukiwanie ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Pokazuje wiersze, których wartość zawiera tekst. Z =, &lt;, &lt;=, &gt; lub &gt;= na początku następuje porównanie; ! na początku zaprzecza, samo = znajduje puste wartości. &amp; wymaga obu, | jednego z nich. Alt+strzałka w dół pokazuje wartości.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Przypisanie do zmiennej tabeli docelowej</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>zaczyna się od</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>oba porównania są spełnione</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>do</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>porównanie nie jest spełnione</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>jedno z porównań jest spełnione</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>zawiera</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>podzielone przez</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>równe</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>większe niż</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>większe lub równe</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>do potęgi</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>mniejsze niż</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>mniejsze lub równe</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>razy</translation>
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
            <numerusform>i %Ln rzadsza wartość</numerusform>
            <numerusform>i %Ln rzadsze wartości</numerusform>
            <numerusform>i %Ln rzadszych wartości</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>i jeszcze: %Ln</numerusform>
            <numerusform>i jeszcze: %Ln</numerusform>
            <numerusform>i jeszcze: %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>i jeszcze %Ln wiersz</numerusform>
            <numerusform>i jeszcze %Ln wiersze</numerusform>
            <numerusform>i jeszcze %Ln wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>różne</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>od–do</translation>
    </message>
</context>
</TS>
