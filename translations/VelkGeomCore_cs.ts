<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Řádek %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Jiné hodnoty rozsahů patří k jinému cíli.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Řádek s těmito hodnotami má i jiný cílový projekt.
  Projekt: %1
  Řádek: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Cílový projekt má jiný název než zdrojový a žádné přiřazení k němu není potvrzeno.
  Zdrojový projekt: %1
  Cílový projekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Textu chybí uzavírací apostrof</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Výraz je příliš hluboce vnořený</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Text je prázdný</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkce %1 není známa</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Označení normy se liší.
  Staré označení: %1
  Nové označení: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabulku cílového projektu se nepodařilo přečíst.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Proměnná %1 v cílové tabulce neexistuje</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Proměnná %1 není známa</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Hodnoty proměnné %1 se liší.
  Stará hodnota: %2
  Nová hodnota: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Cílový řádek je již potvrzen pro jiný řádek.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Většina řádků má v cílovém projektu jiné hodnoty.
  Cílový projekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Přiřazený řádek v cílové tabulce neexistuje.
  Projekt: %1
  Řádek: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Text ve vzorci pro %1 je delší než %2 znaků a zůstává bez hodnoty</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Podmínka cílového projektu není splněna.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Podmínka cílového projektu je chybná.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Podmínka musí být porovnání</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Vzorec musí přiřadit hodnotu proměnné</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Očekáváno: %1, nalezeno: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Očekává se přiřazení proměnné %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Chybný počet argumentů funkce %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Zde se očekává porovnání, ne hodnota</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Zde se očekává hodnota, ne porovnání</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Zdroj a cíl nemají společnou proměnnou s hodnotou.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Tyto hodnoty mají i další řádky zdrojové tabulky.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Tyto hodnoty mají i další řádky cílové tabulky.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Příliš mnoho rozsahů hodnot cílové tabulky se překrývá, než aby bylo možné porovnat všechny.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Příliš málo hodnot řádku má protějšek v cílové tabulce.
  Bez protějšku: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>konec</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operátor nebo konec</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>název proměnné</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>hodnota</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>uzavírací závorka</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>obsahuje chyby!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>žádná hodnota</translation>
    </message>
</context>
</TS>
