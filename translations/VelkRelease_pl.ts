<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 leży poza katalogiem i nie zostanie zapisany; popraw „path” w deskryptorze albo usuń dowiązanie</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 z przecinkiem dziesiętnym</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: to część %2 innej pracy niż %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>cudzysłowy wewnątrz komórek są traktowane jak znaki, najpierw w wierszu %1, kolumnie %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>data</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>data z godziną</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Decyzje przejęte z %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projekty w częściach: %1 (różne: %2), w całej pracy: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>brak części %1</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>część %1 występuje kilka razy (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologia (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>wartość logiczna</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>zakres wartości (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>liczba</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>obliczane (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>nie można odczytać folderu</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>nie można utworzyć folderu</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>to nie jest część zapisana przez velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>klucza „%1” brak albo się powtarza: %2 z %Ln wiersza</numerusform>
            <numerusform>klucza „%1” brak albo się powtarza: %2 z %Ln wierszy</numerusform>
            <numerusform>klucza „%1” brak albo się powtarza: %2 z %Ln wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>warunku „%1” z %2 nie można odczytać; to, co przypisano, nie jest pewne</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>kolumna %1 nie ma nazwy i nazywa się teraz „%2”</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>kolumna %1 ma znowu nazwę „%2” i nazywa się teraz „%3”</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>kolumna „%1” według deskryptora: %2; jej komórki wyglądają jak: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>kolumny „%1” już nie ma</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>nie można odczytać tabeli z wcześniejszego importu, więc nie dałoby się zachować identyfikatorów jej wierszy; popraw ją albo usuń, aby zacząć od nowa</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>tabela dokumentów nie ma kolumny %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>nie można odczytać tabeli projektu</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>nie można odczytać tabeli %1; wiersze projektu pozostają bez zmian</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>nie można odczytać tabeli %1; to, co przypisano bez niej, nie jest pewne</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>wiersz kończy się samym powrotem karetki; zapisz plik ze znakami nowego wiersza</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>komórki są rozdzielone średnikami</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>komórki są rozdzielone tabulatorami</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>jedyna kolumna nazywa się „%1”; jeśli jest ich więcej, podaj ich separator za pomocą --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>pierwszy wiersz wygląda na dane; jest traktowany jak nazwy kolumn, więc wstaw przed nim wiersz z nazwami</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>ten katalog nie istnieje</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>dałby tę samą tabelę co %1; zmień nazwę jednego z plików</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>nie ma kolumny „%1”</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>nie ma żadnej części</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>nie zawiera tylu projektów, ile podaje</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>liczba całkowita</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>odczytano jako %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>wewnętrzne (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>żaden projekt nie ma daty</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>nie znaleziono kolumny klucza; identyfikatorem wiersza jest jego miejsce w pliku</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nie można odczytać: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>nie można zapisać: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>nowa kolumna „%1”</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>różnią się tylko wielkością liter: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>jeśli ma inne kodowanie, podaj je za pomocą --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>„%1”</translation>
    </message>
</context>
</TS>
