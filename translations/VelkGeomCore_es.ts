<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Línea %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Otros valores de los rangos pertenecen a otro destino.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Otro proyecto de destino también tiene una línea con estos valores.
  Proyecto: %1
  Línea: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>El proyecto de destino se llama distinto que el de origen, y ninguna asignación hacia él está confirmada.
  Proyecto de origen: %1
  Proyecto de destino: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Falta la comilla de cierre del texto</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>La expresión está anidada a demasiada profundidad</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>El texto está vacío</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>La función %1 es desconocida</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Las denominaciones de la norma son distintas.
  Denominación anterior: %1
  Denominación nueva: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>No se pudo leer la tabla del proyecto de destino.
  Proyecto: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>La variable %1 no existe en la tabla de destino</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>La variable %1 es desconocida</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Los valores de la variable %1 son distintos.
  Valor anterior: %2
  Valor nuevo: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>La línea de destino ya está confirmada para otra línea.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>La mayoría de las líneas tiene otros valores en el proyecto de destino.
  Proyecto de destino: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>La línea asignada no existe en la tabla de destino.
  Proyecto: %1
  Línea: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Un texto de la fórmula de %1 supera los %2 caracteres y queda sin valor</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>No se cumple una condición del proyecto de destino.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Una condición de un proyecto de destino es errónea.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Una condición debe ser una comparación</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Una fórmula debe asignar un valor a una variable</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Se esperaba %1, se encontró %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Se espera una asignación a la variable %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Número de argumentos incorrecto para la función %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Aquí se espera una comparación, no un valor</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Aquí se espera un valor, no una comparación</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>El origen y el destino no tienen ninguna variable común con valor.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Otras líneas de la tabla de origen tienen estos valores.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Otras líneas de la tabla de destino tienen estos valores.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Carácter %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Demasiados rangos de la tabla de destino se solapan para compararlos todos.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Muy pocos valores de la línea tienen equivalente en la tabla de destino.
  Sin equivalente: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>el final</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>un operador o el final</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>un nombre de variable</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>un valor</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>un paréntesis de cierre</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>¡contiene errores!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>ningún valor</translation>
    </message>
</context>
</TS>
