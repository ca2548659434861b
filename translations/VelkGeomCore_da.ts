<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Linje %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Andre værdier i værdiområderne hører til et andet mål.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Også et andet målprojekt har en linje med disse værdier.
  Projekt: %1
  Linje: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Målprojektet hedder noget andet end kildeprojektet, og ingen tildeling dertil er bekræftet.
  Kildeprojekt: %1
  Målprojekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Teksten mangler den afsluttende apostrof</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Udtrykket er indlejret for dybt</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Teksten er tom</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funktionen %1 er ukendt</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Standardbetegnelserne er forskellige.
  Gammel betegnelse: %1
  Ny betegnelse: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Målprojektets tabel kunne ikke læses.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variablen %1 findes ikke i måltabellen</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Variablen %1 er ukendt</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Værdierne af variablen %1 er forskellige.
  Gammel værdi: %2
  Ny værdi: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Mållinjen er allerede bekræftet for en anden linje.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>De fleste linjer har andre værdier i målprojektet.
  Målprojekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Den tildelte linje findes ikke i måltabellen.
  Projekt: %1
  Linje: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>En tekst i formlen for %1 bliver længere end %2 tegn og forbliver uden værdi</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>En betingelse for målprojektet er ikke opfyldt.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>En betingelse i et målprojekt er fejlbehæftet.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>En betingelse skal være en sammenligning</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>En formel skal tildele en variabel en værdi</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Forventede %1, fandt %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Der forventes en tildeling til variablen %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Forkert antal argumenter til funktionen %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Her forventes en sammenligning, ikke en værdi</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Her forventes en værdi, ikke en sammenligning</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Kilde og mål har ingen fælles variabel med en værdi.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Flere linjer i kildetabellen har disse værdier.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Flere linjer i måltabellen har disse værdier.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Tegn %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>For mange værdiområder i måltabellen overlapper hinanden til at sammenligne alle.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>For få af linjens værdier har en modpart i måltabellen.
  Uden modpart: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>slutningen</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>en operator eller slutningen</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>et variabelnavn</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>en værdi</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>en afsluttende parentes</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>indeholder fejl!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>ingen værdi</translation>
    </message>
</context>
</TS>
