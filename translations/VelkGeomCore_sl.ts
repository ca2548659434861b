<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Vrstica %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Druge vrednosti razponov pripadajo drugemu cilju.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Tudi drug ciljni projekt ima vrstico s temi vrednostmi.
  Projekt: %1
  Vrstica: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Ciljni projekt ima drugačno ime kot izvorni in nobena dodelitev vanj ni potrjena.
  Izvorni projekt: %1
  Ciljni projekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Besedilu manjka zaključni opuščaj</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Izraz je pregloboko gnezden</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Besedilo je prazno</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkcija %1 ni znana</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Oznaki standarda se razlikujeta.
  Stara oznaka: %1
  Nova oznaka: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabele ciljnega projekta ni bilo mogoče prebrati.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Spremenljivka %1 v ciljni tabeli ne obstaja</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Spremenljivka %1 ni znana</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Vrednosti spremenljivke %1 se razlikujejo.
  Stara vrednost: %2
  Nova vrednost: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Ciljna vrstica je že potrjena za drugo vrstico.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Večina vrstic ima v ciljnem projektu druge vrednosti.
  Ciljni projekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Dodeljena vrstica v ciljni tabeli ne obstaja.
  Projekt: %1
  Vrstica: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Besedilo v formuli za %1 je daljše od %2 znakov in ostane brez vrednosti</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Pogoj ciljnega projekta ni izpolnjen.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Pogoj ciljnega projekta je napačen.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Pogoj mora biti primerjava</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Formula mora spremenljivki prirediti vrednost</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Pričakovano: %1, najdeno: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Pričakovana je prireditev spremenljivki %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Napačno število argumentov funkcije %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Tu je pričakovana primerjava, ne vrednost</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Tu je pričakovana vrednost, ne primerjava</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Izvor in cilj nimata skupne spremenljivke z vrednostjo.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Te vrednosti imajo tudi druge vrstice izvorne tabele.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Te vrednosti imajo tudi druge vrstice ciljne tabele.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Preveč razponov ciljne tabele se prekriva, da bi primerjali vse.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Premalo vrednosti vrstice ima par v ciljni tabeli.
  Brez para: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>konec</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operator ali konec</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>ime spremenljivke</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>vrednost</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>zaklepaj</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>vsebuje napake!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>brez vrednosti</translation>
    </message>
</context>
</TS>
