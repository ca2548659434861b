<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Linje %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Andre verdier i verdiområdene hører til et annet mål.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Også et annet målprosjekt har en linje med disse verdiene.
  Prosjekt: %1
  Linje: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Målprosjektet heter noe annet enn kildeprosjektet, og ingen tilordning dit er bekreftet.
  Kildeprosjekt: %1
  Målprosjekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Teksten mangler den avsluttende apostrofen</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Uttrykket er nestet for dypt</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Teksten er tom</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funksjonen %1 er ukjent</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Standardbetegnelsene er forskjellige.
  Gammel betegnelse: %1
  Ny betegnelse: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Målprosjektets tabell kunne ikke leses.
  Prosjekt: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variabelen %1 finnes ikke i måltabellen</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Variabelen %1 er ukjent</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Verdiene av variabelen %1 er forskjellige.
  Gammel verdi: %2
  Ny verdi: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Mållinjen er allerede bekreftet for en annen linje.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>De fleste linjer har andre verdier i målprosjektet.
  Målprosjekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Den tilordnede linjen finnes ikke i måltabellen.
  Prosjekt: %1
  Linje: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>En tekst i formelen for %1 blir lengre enn %2 tegn og får ingen verdi</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>En betingelse for målprosjektet er ikke oppfylt.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>En betingelse i et målprosjekt er feil.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>En betingelse må være en sammenligning</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>En formel må tilordne en variabel en verdi</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Forventet %1, fant %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>En tilordning til variabelen %1 er forventet</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Feil antall argumenter for funksjonen %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Her forventes en sammenligning, ikke en verdi</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Her forventes en verdi, ikke en sammenligning</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Kilde og mål har ingen felles variabel med en verdi.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Flere linjer i kildetabellen har disse verdiene.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Flere linjer i måltabellen har disse verdiene.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Tegn %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>For mange verdiområder i måltabellen overlapper til at alle kan sammenlignes.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>For få av linjens verdier har en motpart i måltabellen.
  Uten motpart: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>slutten</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>en operator eller slutten</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>et variabelnavn</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>en verdi</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>en avsluttende parentes</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>inneholder feil!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>ingen verdi</translation>
    </message>
</context>
</TS>
