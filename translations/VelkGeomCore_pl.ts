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
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Inne wartości zakresów należą do innego celu.</translation>
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
        <source>Der Text ist leer</source>
        <translation>Tekst jest pusty</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkcja %1 jest nieznana</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Nie można było odczytać tabeli projektu docelowego.
  Projekt: %1</translation>
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
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Wartości zmiennej %1 są różne.
  Stara wartość: %2
  Nowa wartość: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Wiersz docelowy jest już potwierdzony dla innego wiersza.</translation>
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
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Tekst w formule dla %1 jest dłuższy niż %2 znaków i pozostaje bez wartości</translation>
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
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Oczekiwano: %1, znaleziono: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Oczekiwano przypisania do zmiennej %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Błędna liczba argumentów funkcji %1</translation>
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
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Źródło i cel nie mają wspólnej zmiennej z wartością.</translation>
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
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
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
        <source>das Ende</source>
        <translation>koniec</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operator lub koniec</translation>
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
        <source>eine schließende Klammer</source>
        <translation>nawias zamykający</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>zawiera błędy!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>brak wartości</translation>
    </message>
</context>
</TS>
