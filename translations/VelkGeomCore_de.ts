<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Zeile %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Dem Text fehlt das schließende Hochkomma</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Der Ausdruck ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Der Text ist leer</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Die Funktion %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Die Variable %1 existiert nicht in der Zieltabelle</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Die Variable %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Die Zielzeile ist schon für eine andere Zeile bestätigt.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Eine Bedingung muss ein Vergleich sein</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Eine Formel muss einer Variablen einen Wert zuweisen</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Erwartet wird %1, gefunden wurde %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Erwartet wird eine Zuweisung an die Variable %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Falsche Anzahl von Argumenten für die Funktion %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Hier wird ein Vergleich erwartet, kein Wert</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Hier wird ein Wert erwartet, kein Vergleich</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Weitere Zeilen der Quelltabelle haben diese Werte.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Weitere Zeilen der Zieltabelle haben diese Werte.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Zeichen %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>das Ende</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>ein Operator oder das Ende</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>ein Variablenname</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>ein Wert</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>eine schließende Klammer</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>enthält Fehler!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>kein Wert</translation>
    </message>
</context>
</TS>
