<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Wiersz %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" nie jest adresem bazy łączy. Możliwe są sqlite:PLIK i postgresql://UŻYTKOWNIK@KOMPUTER:PORT/BAZA.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 nie może mieć więcej „supports” niż „cases”</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 może zawierać tylko obiekty</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 zawiera zbyt głęboko zagnieżdżone wartości</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 nie istnieje w rewizji %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 ma pusty wpis „sourcePath”</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 nie ma wpisu „%2”</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 jest bazą innego programu</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 nie jest indeksem wyszukiwania i nie można go zastąpić</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 musi mieć postać [wiersz źródłowy, wiersz docelowy, stan], potem tekst rozszerzony, jeśli jest, potem true dla konfliktu; wiersze liczy się od 0, -1 to brak wiersza docelowego</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 musi być obiektem</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 musi być tekstem</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 musi być listą</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 musi podawać zmienną oraz teksty „before” i „after” albo liczby dziesiętne „factor” i „offset”</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 musi być liczbą całkowitą od 0 do 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 musi mieć wartość true albo false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 musi być rodzaju „var” z „source” i „target” albo rodzaju „value” z „formula”</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 ponownie podaje wiersz źródłowy %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Czytana jest rewizja %2, o ile jest na tej maszynie.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Nie wiadomo, czy zmiany zostały zatwierdzone: przed powtórzeniem należy sprawdzić.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: cel z pustym „path” stoi teraz na końcu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln komórka zamiast %1 jak w nagłówku</numerusform>
            <numerusform>%Ln komórki zamiast %1 jak w nagłówku</numerusform>
            <numerusform>%Ln komórek zamiast %1 jak w nagłówku</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>jeszcze %Ln</numerusform>
            <numerusform>jeszcze %Ln</numerusform>
            <numerusform>jeszcze %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>jeszcze %Ln błąd</numerusform>
            <numerusform>jeszcze %Ln błędy</numerusform>
            <numerusform>jeszcze %Ln błędów</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Przerwano: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Inne wartości zakresów należą do innego celu.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>początek, koniec i krok „%1” muszą być liczbami do 15 cyfr</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Również inny projekt docelowy ma wiersz z tymi wartościami.
  Projekt: %1
  Wiersz: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Nie można uruchomić programu %1 dla repozytorium katalogu: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Repozytorium %1 nie odpowiada: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Repozytorium %1 wymaga logowania: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Nie można odczytać skryptu: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Skrypt został zatrzymany</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Skrypt został zatrzymany: potrzebował więcej niż %1 MB pamięci</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Skrypt został zatrzymany: trwał dłużej niż %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Skrypt został zatrzymany: przez %1 s nie wywołał żadnego obiektu</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Projekt docelowy nazywa się inaczej niż źródłowy, a żadne przypisanie do niego nie jest potwierdzone.
  Projekt źródłowy: %1
  Projekt docelowy: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Tekstowi brakuje zamykającego apostrofu</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Wyrażenie jest zbyt głęboko zagnieżdżone</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Katalog %1 nie mieści się w pamięci podręcznej %2 MB; wyszukiwanie go nie zna</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Wersja katalogu</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Wersja katalogu podaje „%1” jako swoje sourceDate.</translation>
    </message>
    <message>
        <source>Der Kosinus eines Winkels in Grad.</source>
        <translation>The cosine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Logarithmus zur Basis 10.</source>
        <translation>The logarithm to base 10.</translation>
    </message>
    <message>
        <source>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</source>
        <translation>The remainder of the division, with the sign of the first number.</translation>
    </message>
    <message>
        <source>Der Sinus eines Winkels in Grad.</source>
        <translation>The sine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Tangens eines Winkels in Grad.</source>
        <translation>The tangent of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</source>
        <translation>The part of the text from the start, counted from 1, with so many characters; without a count all up to the end.</translation>
    </message>
    <message>
        <source>Der Text in großen Buchstaben.</source>
        <translation>The text in capital letters.</translation>
    </message>
    <message>
        <source>Der Text in kleinen Buchstaben.</source>
        <translation>The text in small letters.</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Tekst jest pusty</translation>
    </message>
    <message>
        <source>Der Text ohne Leerzeichen am Anfang und am Ende.</source>
        <translation>The text without blanks at its start and end.</translation>
    </message>
    <message>
        <source>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</source>
        <translation>The text with the replacement wherever the text looked for was.</translation>
    </message>
    <message>
        <source>Der Treiber %1 für die Linkdatenbank fehlt</source>
        <translation>Brak sterownika %1 bazy łączy</translation>
    </message>
    <message>
        <source>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</source>
        <translation>The value as a text, a number with so many decimals; without decimals as it is.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</source>
        <translation>The angle in degrees between the x axis and the line from the origin to the point (x, y).</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Kosinus hat.</source>
        <translation>The angle in degrees that has this cosine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Sinus hat.</source>
        <translation>The angle in degrees that has this sine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Tangens hat.</source>
        <translation>The angle in degrees that has this tangent.</translation>
    </message>
    <message>
        <source>Der natürliche Logarithmus.</source>
        <translation>The natural logarithm.</translation>
    </message>
    <message>
        <source>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</source>
        <translation>The second value if the comparison holds, else the third.</translation>
    </message>
    <message>
        <source>Die Anweisung enthält ein Nullzeichen</source>
        <translation>Instrukcja zawiera znak zerowy</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Nie można zapisać wyjścia: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Plik zmienił się podczas czytania.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkcja %1 jest nieznana</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Grupy "%1" nie ma w bazie łączy albo %2 do niej nie należy</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Baza łączy %1 nie odpowiada, połączenie z nią zostało porzucone</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Nie ma bazy łączy %1</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Baza łączy %1 ma formę %2, ten program zna tylko formę %3; potrzebna jest nowsza wersja</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Nie można otworzyć bazy łączy %1: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Baza łączy pracuje</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Oznaczenia normy są różne.
  Stare oznaczenie: %1
  Nowe oznaczenie: %2</translation>
    </message>
    <message>
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>Tabeli %1 nie ma w bazie łączy</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Nie można było odczytać tabeli projektu docelowego.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Nie można utworzyć lub zaktualizować tabel bazy łączy %1: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Zmienna %1 nie istnieje w tabeli docelowej</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Zmienna %1 jest nieznana</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Połączenie z bazą łączy %1 zostało przywrócone</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Połączenie z bazą łączy %1 zostało przerwane: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Wartości zmiennej %1 są różne.
  Stara wartość: %2
  Nowa wartość: %3</translation>
    </message>
    <message>
        <source>Die Zahl e, hoch der Zahl.</source>
        <translation>The number e to the power of the number.</translation>
    </message>
    <message>
        <source>Die Zahl ohne ihre Nachkommastellen.</source>
        <translation>The number without its decimals.</translation>
    </message>
    <message>
        <source>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</source>
        <translation>The number that the text reads as; no value if it is none.</translation>
    </message>
    <message>
        <source>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</source>
        <translation>The number, rounded to that many decimals; without decimals to a whole number, with negative ones before the decimal point.</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Wiersz docelowy jest już potwierdzony dla innego wiersza.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Usuniętego wiersza %1 nie ma już w dzienniku bazy łączy; pewnie został już przywrócony</translation>
    </message>
    <message>
        <source>Die größte der Zahlen.</source>
        <translation>The largest of the numbers.</translation>
    </message>
    <message>
        <source>Die kleinste der Zahlen.</source>
        <translation>The smallest of the numbers.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Większość wierszy ma w projekcie docelowym inne wartości.
  Projekt docelowy: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Przypisany wiersz nie istnieje w tabeli docelowej.
  Projekt: %1
  Wiersz: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Zmiany przepadły wraz z połączeniem z bazą łączy; trzeba je powtórzyć</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Numer ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Tekst w formule dla %1 jest dłuższy niż %Ln znak i pozostaje bez wartości</numerusform>
            <numerusform>Tekst w formule dla %1 jest dłuższy niż %Ln znaki i pozostaje bez wartości</numerusform>
            <numerusform>Tekst w formule dla %1 jest dłuższy niż %Ln znaków i pozostaje bez wartości</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Inny skrypt jeszcze działa</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Warunek projektu docelowego nie jest spełniony.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Warunek projektu docelowego jest błędny.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Warunek musi być porównaniem</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Formuła musi przypisać wartość zmiennej</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Plik mapowania musi zawierać obiekt.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Stoi między dwoma wersjami katalogu o tej samej dacie.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Oczekiwano: %1, znaleziono: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Oczekiwano przypisania do zmiennej %1</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Brak połączenia z bazą łączy. Wybiera się ją w ustawieniach.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Nie połączono z żadną bazą danych odnośników.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Błędna liczba argumentów funkcji %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Błąd bazy łączy: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Dla katalogu "%1" nie ustawiono repozytorium; z jego nazwy nie powstaje adres</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Oczekiwano tu porównania, nie wartości</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Oczekiwano tu wartości, nie porównania</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Za dokumentem stoi bajt o wartości 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>W %1 nie ma bazy łączy albo ma ona starszą formę. Zostanie utworzona lub odnowiona przy pierwszym zapisie.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>Adres bazy łączy zawiera hasło. Jego miejsce jest w pliku haseł lub w PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Brak odpowiedzi od %1 w ciągu %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Żaden wiersz celów nie pasuje do tego.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Niezatwierdzone zmiany zostały utracone (instrukcji: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Równe tylko dzięki zaproponowanym warunkom lub mapowaniom zmiennych. Obowiązują, gdy jeden wiersz celu zostanie potwierdzony.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Źródło i cel nie mają wspólnej zmiennej z wartością.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>tekst za zamykającym cudzysłowem komórki</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>tekst, początek, liczba</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>tekst, szukane</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>tekst, szukane, zamiana</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>porównanie, to, inaczej</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Te wartości mają też inne wiersze tabeli źródłowej.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Te wartości mają też inne wiersze tabeli docelowej.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>wartość</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>wartość, miejsca</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>wartość, wartość, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Wartości są zbyt głęboko zagnieżdżone.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>kąt</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>liczba</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>liczba, miejsca</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>liczba, dzielnik</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>liczba, liczba, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>wiersz %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>wiersz %1, kolumna %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Wiersz %1, znak %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Zbyt wiele zakresów wartości tabeli docelowej nakłada się, aby porównać wszystkie.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Zbyt mało wartości wiersza ma odpowiednik w tabeli docelowej.
  Bez odpowiednika: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>znak dziesiętny to „.” lub „,”</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>koniec</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>pole nie ma nazwy</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>pole „%1” występuje dwa razy</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>projekt nie ma tabeli; ma ją wskazać jego leksem SACHM</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>projekt nie został wczytany</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>pole obliczane „%1” nie ma formuły</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>to jest adres; czytane są tylko pliki</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>deskryptor ma lineSubIdField bez lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>wpis „%1” występuje dwa razy</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>nazwa pliku zawiera znak NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>zakres „%1” dla %2 ma za dużo wartości (%3); przegląda się tylko %Ln</numerusform>
            <numerusform>zakres „%1” dla %2 ma za dużo wartości (%3); przegląda się tylko %Ln</numerusform>
            <numerusform>zakres „%1” dla %2 ma za dużo wartości (%3); przegląda się tylko %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>cudzysłowy komórki nie tworzą par</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>warunek nie ma nazwy</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>bajty nie są w UTF-8; zapisz plik jako UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>plik jest pusty; pierwszy wiersz musi nazywać kolumny</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>warunku filtra „%1” nie można odczytać: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>wzoru kolumny obliczanej „%1” nie można odczytać: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>krok „%1” nie jest większy od 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>kolumna nie ma nazwy</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>brak kolumny „%1” z deskryptora</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>brak kolumny „%1”, którą wymienia %2 w deskryptorze</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>kolumna „%1” występuje dwukrotnie</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>nie można zapisać pliku blokady obok</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>liczby w „%1” mają za dużo cyfr</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>numer wiersza %1 ma już wiersz %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>te kolumny obliczane potrzebują się nawzajem: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>cudzysłów w komórce, która się nim nie zaczyna; ujmij całą komórkę w cudzysłów i podwój te wewnątrz</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>cudzysłów nie jest zamknięty</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>oczekiwano pola, czyli obiektu</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>oczekiwano obiektu z tekstami</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>oczekiwano obiektu z wpisem dla każdego języka</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>oczekiwano obiektu</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operator lub koniec</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>oczekiwano tekstu</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>nazwa zmiennej</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>wartość</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>wartość między średnikami jest pusta</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>oczekiwano warunku, czyli obiektu</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>oczekiwano listy warunków</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>oczekiwano listy pól</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>oczekiwano listy tekstów</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>oczekiwano liczby</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>oczekiwano liczby całkowitej od 0 do 2147483647</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>nawias zamykający</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>zawiera błędy!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>zastąpione: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>zablokowane przez %1 na %2 (proces %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>równe: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>to nie jest tekst w UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>brak wartości</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>niepoprawny JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nie można odczytać: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>więcej wierszy, niż mieści tabela</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>ponad 64 poziomy w głąb</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>bez odpowiednika: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>tak samo w %Ln innym wierszu</numerusform>
            <numerusform>tak samo w %Ln innych wierszach</numerusform>
            <numerusform>tak samo w %Ln innych wierszach</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>Nie ma sslmode "%1"; możliwe są: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>oczekiwano true lub false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>nieznany rodzaj „%1”; znane: %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>nieznany typ „%1”; znane: %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>różne: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Zmiany są zapisywane w bazie łączy</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>podobne: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>„%1” kończy się poniżej początku</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>„%1” nie ma kroku; zapisz jak 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>„%1” jest adresem; czytane są tylko pliki</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>„%1” nie jest datą; zapisz ją jak 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>„%1” nie jest zakresem wartości %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>„%1” nie jest czytelnym folderem</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>„%1” nie jest numerem wiersza, czyli liczbą całkowitą od 0 do 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>nie można pisać w „%1”</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>„%1” leży poza katalogami; przenieś to tam albo zezwól na ten folder</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>„%1” leży poza „%2”; przenieś to tam albo zezwól na ten folder</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>„%1” występuje więcej niż raz; liczy się ostatni wpis.</translation>
    </message>
</context>
</TS>
