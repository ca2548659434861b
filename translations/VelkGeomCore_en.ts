<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Line %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Other values of the value ranges belong to another target.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Another target project has a line with these values, too.
  Project: %1
  Line: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>The target project's name differs from the source project's, and no assignment to it is confirmed.
  Source project: %1
  Target project: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>The closing quotation mark of the text is missing</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>The expression is nested too deeply</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>The text is empty</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>The function %1 is unknown</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>The standard designations differ.
  Old standard designation: %1
  New standard designation: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>The target project's table could not be read.
  Project: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>The variable %1 does not exist in the target table</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>The variable %1 is unknown</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>The values of the variable %1 differ.
  Old value: %2
  New value: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>The target line is already confirmed for another line.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Most lines have other values in the target project.
  Target project: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>The assigned line does not exist in the target table.
  Project: %1
  Line: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>A text in the formula for %1 becomes longer than %2 characters and has no value</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>A condition of the target project does not hold.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>A condition of a target project is faulty.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>A condition must be a comparison</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>A formula must assign a value to a variable</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Expected %1, found %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Expected an assignment to the variable %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Wrong number of arguments for the function %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>A comparison is expected here, not a value</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>A value is expected here, not a comparison</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Source and target have no variable in common that has a value.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Further lines of the source table have these values.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Further lines of the target table have these values.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Character %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Too many value ranges of the target table overlap to compare all of them.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Too few values of the line have a counterpart in the target table.
  Without counterpart: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>the end</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>an operator or the end</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>a variable name</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>a value</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>a closing parenthesis</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contains errors!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>no value</translation>
    </message>
</context>
</TS>
