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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 darf nicht mehr „supports“ als „cases“ haben</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 darf nur Objekte enthalten</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 enthält zu tief verschachtelte Werte</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 gibt es in Revision %2 nicht</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 hat einen leeren Eintrag „sourcePath“</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 hat keinen Eintrag „%2“</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 ist die Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 ist kein Suchindex und kann nicht ersetzt werden</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 muss ein Objekt sein</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 muss ein Text sein</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 muss eine Liste sein</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 muss true oder false sein</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 nennt die Quellzeile %2 noch einmal</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: das Ziel mit leerem „path“ steht jetzt am Ende</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln Zelle statt %1 wie in der Kopfzeile</numerusform>
            <numerusform>%Ln Zellen statt %1 wie in der Kopfzeile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln weitere</numerusform>
            <numerusform>%Ln weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln weiterer Fehler</numerusform>
            <numerusform>%Ln weitere Fehler</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Abgebrochen: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>Alle Werte hintereinander als ein Text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Das Repository %1 antwortet nicht: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Das Repository %1 verlangt eine Anmeldung: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Das Skript lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Das Skript wurde angehalten</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Das Skript wurde angehalten: es brauchte mehr als %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>Der Betrag: die Zahl ohne Vorzeichen.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Der Katalogstand</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Der Katalogstand nennt „%1“ als sein sourceDate.</translation>
    </message>
    <message>
        <source>Der Kosinus eines Winkels in Grad.</source>
        <translation>Der Kosinus eines Winkels in Grad.</translation>
    </message>
    <message>
        <source>Der Logarithmus zur Basis 10.</source>
        <translation>Der Logarithmus zur Basis 10.</translation>
    </message>
    <message>
        <source>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</source>
        <translation>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</translation>
    </message>
    <message>
        <source>Der Sinus eines Winkels in Grad.</source>
        <translation>Der Sinus eines Winkels in Grad.</translation>
    </message>
    <message>
        <source>Der Tangens eines Winkels in Grad.</source>
        <translation>Der Tangens eines Winkels in Grad.</translation>
    </message>
    <message>
        <source>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</source>
        <translation>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</translation>
    </message>
    <message>
        <source>Der Text in großen Buchstaben.</source>
        <translation>Der Text in großen Buchstaben.</translation>
    </message>
    <message>
        <source>Der Text in kleinen Buchstaben.</source>
        <translation>Der Text in kleinen Buchstaben.</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Der Text ist leer</translation>
    </message>
    <message>
        <source>Der Text ohne Leerzeichen am Anfang und am Ende.</source>
        <translation>Der Text ohne Leerzeichen am Anfang und am Ende.</translation>
    </message>
    <message>
        <source>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</source>
        <translation>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</translation>
    </message>
    <message>
        <source>Der Treiber %1 für die Linkdatenbank fehlt</source>
        <translation>Der Treiber %1 für die Linkdatenbank fehlt</translation>
    </message>
    <message>
        <source>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</source>
        <translation>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</source>
        <translation>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Kosinus hat.</source>
        <translation>Der Winkel in Grad, der diesen Kosinus hat.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Sinus hat.</source>
        <translation>Der Winkel in Grad, der diesen Sinus hat.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Tangens hat.</source>
        <translation>Der Winkel in Grad, der diesen Tangens hat.</translation>
    </message>
    <message>
        <source>Der natürliche Logarithmus.</source>
        <translation>Der natürliche Logarithmus.</translation>
    </message>
    <message>
        <source>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</source>
        <translation>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</translation>
    </message>
    <message>
        <source>Die Anweisung enthält ein Nullzeichen</source>
        <translation>Die Anweisung enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>Die Anzahl der Zeichen des Textes.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Die Ausgabe lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Die Datei hat sich geändert, während sie gelesen wurde.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Die Funktion %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Die Linkdatenbank %1 gibt es nicht</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Die Linkdatenbank arbeitet</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>Die Quadratwurzel; kein Wert für negative Zahlen.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>Die Tabelle %1 gibt es in der Linkdatenbank nicht</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Die Verbindung zur Linkdatenbank %1 besteht wieder</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</translation>
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
        <source>Die Zahl e, hoch der Zahl.</source>
        <translation>Die Zahl e, hoch der Zahl.</translation>
    </message>
    <message>
        <source>Die Zahl ohne ihre Nachkommastellen.</source>
        <translation>Die Zahl ohne ihre Nachkommastellen.</translation>
    </message>
    <message>
        <source>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</source>
        <translation>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</translation>
    </message>
    <message>
        <source>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</source>
        <translation>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Die Zielzeile ist schon für eine andere Zeile bestätigt.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</translation>
    </message>
    <message>
        <source>Die größte der Zahlen.</source>
        <translation>Die größte der Zahlen.</translation>
    </message>
    <message>
        <source>Die kleinste der Zahlen.</source>
        <translation>Die kleinste der Zahlen.</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP-Nummer</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</numerusform>
            <numerusform>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Ein anderes Skript läuft noch</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Eine Mapping-Datei muss ein Objekt enthalten.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Er steht zwischen zwei Katalogständen desselben Datums.</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Es ist keine Linkdatenbank verbunden.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Falsche Anzahl von Argumenten für die Funktion %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Fehler der Linkdatenbank: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Hinter dem Dokument steht ein Byte mit dem Wert 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Keine Antwort von %1 in %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Keine Zeile der Ziele passt zu dieser.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>Text hinter dem schließenden Anführungszeichen einer Zelle</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>Text, Anfang, Anzahl</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>Text, Gesuchtes</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>Text, Gesuchtes, Ersatz</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>Vergleich, dann, sonst</translation>
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
        <source>Wert</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>Wert, Stellen</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>Wert, Wert, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Werte sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>Zahl, Stellen</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>Zahl, Teiler</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>Zahl, Zahl, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Zeichen %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Zeile %1, Zeichen %2: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>das Dezimalzeichen ist „.“ oder „,“</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>das Ende</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>das Feld hat keinen Namen</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>das Feld „%1“ gibt es zweimal</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>das Projekt wurde nicht gelesen</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>das berechnete Feld „%1“ hat keine Formel</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>das ist eine Adresse; nur Dateien werden gelesen</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>der Deskriptor hat ein lineSubIdField ohne lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>der Eintrag „%1“ steht zweimal da</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>der Name der Datei enthält ein NUL-Zeichen</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln wird durchlaufen</numerusform>
            <numerusform>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>die Anführungszeichen der Zelle passen nicht zueinander</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>die Bedingung hat keinen Namen</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>die Filterbedingung „%1“ ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>die Schrittweite von „%1“ ist nicht größer als 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>die Spalte hat keinen Namen</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>die Spalte „%1“ aus dem Deskriptor fehlt</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>die Spalte „%1“ gibt es zweimal</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>die Sperrdatei daneben lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>die Zahlen von „%1“ haben zu viele Ziffern</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>die Zeilennummer %1 hat schon Zeile %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>diese berechneten Spalten brauchen einander: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>ein Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>ein Feld wird erwartet, also ein Objekt</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>ein Objekt mit Texten wird erwartet</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>ein Objekt wird erwartet</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>ein Operator oder das Ende</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>ein Text wird erwartet</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>ein Wert zwischen den Semikolons ist leer</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>eine Bedingung wird erwartet, also ein Objekt</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>eine Liste von Bedingungen wird erwartet</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>eine Liste von Feldern wird erwartet</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>eine Liste von Texten wird erwartet</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>eine Zahl wird erwartet</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>eine ganze Zahl von 0 bis 2147483647 wird erwartet</translation>
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
        <source>ersetzt: %1</source>
        <translation>ersetzt: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>gesperrt von %1 auf %2 (Prozess %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>gleich: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>kein Text in UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>kein gültiges JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>mehr Zeilen, als eine Tabelle fassen kann</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>mehr als 64 Ebenen tief</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>ohne Gegenstück: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>so in %Ln weiteren Zeile</numerusform>
            <numerusform>so in %Ln weiteren Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" gibt es nicht; möglich sind: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true oder false wird erwartet</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>unbekannte Art „%1“; bekannt sind %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>unbekannter Typ „%1“; bekannt sind %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>verschieden: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Änderungen werden in die Linkdatenbank geschrieben</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>ähnlich: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>„%1“ endet unter seinem Anfang</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>„%1“ ist eine Adresse; nur Dateien werden gelesen</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>„%1“ ist kein Wertebereich von %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>„%1“ ist kein lesbares Verzeichnis</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>„%1“ ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</translation>
    </message>
</context>
</TS>
