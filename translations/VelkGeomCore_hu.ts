<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Sor: %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Az értéktartományok más értékei másik célhoz tartoznak.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Más célprojektben is van sor ezekkel az értékekkel.
  Projekt: %1
  Sor: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>A célprojekt neve eltér a forrásprojektétől, és egyetlen hozzárendelés sincs megerősítve.
  Forrásprojekt: %1
  Célprojekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>A szövegből hiányzik a záró aposztróf</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>A kifejezés túl mélyen egymásba ágyazott</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>A szöveg üres</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>A(z) %1 függvény ismeretlen</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>A szabvány megnevezései eltérnek.
  Régi megnevezés: %1
  Új megnevezés: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>A célprojekt táblázatát nem lehetett beolvasni.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>A(z) %1 változó nem létezik a céltáblázatban</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>A(z) %1 változó ismeretlen</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>A(z) %1 változó értékei eltérnek.
  Régi érték: %2
  Új érték: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>A célsor már egy másik sorhoz meg van erősítve.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>A legtöbb sornak más értékei vannak a célprojektben.
  Célprojekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>A hozzárendelt sor nem létezik a céltáblázatban.
  Projekt: %1
  Sor: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>A(z) %1 képletében egy szöveg hosszabb %2 karakternél, ezért érték nélkül marad</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>A célprojekt egyik feltétele nem teljesül.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Egy célprojekt egyik feltétele hibás.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>A feltételnek összehasonlításnak kell lennie</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>A képletnek értéket kell adnia egy változónak</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Várt: %1, talált: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Értékadás várt a(z) %1 változónak</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Hibás számú argumentum a(z) %1 függvényhez</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Itt összehasonlítás várt, nem érték</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Itt érték várt, nem összehasonlítás</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>A forrásnak és a célnak nincs közös, értékkel bíró változója.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>A forrástáblázat más sorainak is ezek az értékei.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>A céltáblázat más sorainak is ezek az értékei.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>%1. karakter: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>A céltáblázat túl sok értéktartománya fedi egymást ahhoz, hogy mind összehasonlítható legyen.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>A sor túl kevés értékének van megfelelője a céltáblázatban.
  Megfelelő nélkül: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>a vége</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>műveleti jel vagy a vége</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>változónév</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>érték</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>záró zárójel</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>hibát tartalmaz!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>nincs érték</translation>
    </message>
</context>
</TS>
