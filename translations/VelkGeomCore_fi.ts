<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Rivi %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Arvoalueiden muut arvot kuuluvat toiseen kohteeseen.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Myös toisessa kohdeprojektissa on rivi näillä arvoilla.
  Projekti: %1
  Rivi: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Kohdeprojektin nimi on eri kuin lähdeprojektin, eikä yhtään kohdistusta siihen ole vahvistettu.
  Lähdeprojekti: %1
  Kohdeprojekti: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Tekstistä puuttuu lopettava heittomerkki</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Lausekkeessa on liian monta sisäkkäistä tasoa</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Teksti on tyhjä</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funktiota %1 ei tunneta</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Standardin nimitykset eroavat.
  Vanha nimitys: %1
  Uusi nimitys: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Kohdeprojektin taulukkoa ei voitu lukea.
  Projekti: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Muuttujaa %1 ei ole kohdetaulukossa</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Muuttujaa %1 ei tunneta</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Muuttujan %1 arvot eroavat.
  Vanha arvo: %2
  Uusi arvo: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Kohderivi on jo vahvistettu toiselle riville.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Useimmilla riveillä on kohdeprojektissa muut arvot.
  Kohdeprojekti: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Kohdistettua riviä ei ole kohdetaulukossa.
  Projekti: %1
  Rivi: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Kohteen %1 kaavan teksti ylittää %2 merkkiä ja jää ilman arvoa</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Kohdeprojektin ehto ei täyty.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Kohdeprojektin ehto on virheellinen.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Ehdon on oltava vertailu</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Kaavan on annettava muuttujalle arvo</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Odotettiin: %1, löytyi: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Odotetaan sijoitusta muuttujaan %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Funktiolla %1 on väärä määrä argumentteja</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Tässä odotetaan vertailua, ei arvoa</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Tässä odotetaan arvoa, ei vertailua</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Lähteellä ja kohteella ei ole yhteistä muuttujaa, jolla on arvo.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Muillakin lähdetaulukon riveillä on nämä arvot.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Muillakin kohdetaulukon riveillä on nämä arvot.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Merkki %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Liian moni kohdetaulukon arvoalue on päällekkäinen, jotta kaikkia voisi verrata.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Liian harvalla rivin arvolla on vastine kohdetaulukossa.
  Ilman vastinetta: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>loppu</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operaattori tai loppu</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>muuttujan nimi</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>arvo</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>sulkeva sulje</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>sisältää virheitä!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>ei arvoa</translation>
    </message>
</context>
</TS>
