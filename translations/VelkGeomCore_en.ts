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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" is no address of a link database. Possible are sqlite:FILE and postgresql://USER@HOST:PORT/DATABASE.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 must not have more "supports" than "cases"</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 must hold nothing but objects</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 holds values that are nested too deeply</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 does not exist in revision %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 has an empty "sourcePath"</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 lacks the member "%2"</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 is the database of another program</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 is no index and cannot be replaced</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 must be [source line, target line, state], then the extended text if there is one, then true for a conflict; lines count from 0, -1 is no target line</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 must be an object</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 must be a text</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 must be an array</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 must name a variable, and texts as "before" and "after" or decimal numbers as "factor" and "offset"</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 must be an integer from 0 to 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 must be true or false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 must be of kind "var" with "source" and "target", or of kind "value" with "formula"</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 names source line %2 once more</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Revision %2 is read as far as it is on this machine.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Whether the changes were committed is not certain: look before you repeat them.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: the target with an empty "path" was moved to the end</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln cell instead of %1, as the header row has</numerusform>
            <numerusform>%Ln cells instead of %1, as the header row has</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln more</numerusform>
            <numerusform>%Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln more error</numerusform>
            <numerusform>%Ln more errors</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelled: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Other values of the value ranges belong to another target.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>begin, end and step of "%1" are to be numbers of at most 15 digits</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>The program %1 for the catalog repository cannot be started: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>The repository %1 does not answer: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>The repository %1 asks for a login: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>The script cannot be read: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>The script was stopped</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>The script was stopped: it took more than %1 MB of memory</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>The script was stopped: it took more than %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>The script was stopped: for %1 s it called no object</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>The catalog %1 does not fit into the cache of %2 MB; the search does not know it</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>The release</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>The release says "%1" as its sourceDate.</translation>
    </message>
    <message>
        <source>Der Kosinus eines Winkels in Grad.</source>
        <translation>The cosine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Logarithmus zur Basis 10.</source>
        <translation>The logarithm to base 10.</translation>
    </message>
    <message>
        <source>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</source>
        <translation>The remainder of the division, with the sign of the first number.</translation>
    </message>
    <message>
        <source>Der Sinus eines Winkels in Grad.</source>
        <translation>The sine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Tangens eines Winkels in Grad.</source>
        <translation>The tangent of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</source>
        <translation>The part of the text from the start, counted from 1, with so many characters; without a count all up to the end.</translation>
    </message>
    <message>
        <source>Der Text in großen Buchstaben.</source>
        <translation>The text in capital letters.</translation>
    </message>
    <message>
        <source>Der Text in kleinen Buchstaben.</source>
        <translation>The text in small letters.</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>The text is empty</translation>
    </message>
    <message>
        <source>Der Text ohne Leerzeichen am Anfang und am Ende.</source>
        <translation>The text without blanks at its start and end.</translation>
    </message>
    <message>
        <source>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</source>
        <translation>The text with the replacement wherever the text looked for was.</translation>
    </message>
    <message>
        <source>Der Treiber %1 für die Linkdatenbank fehlt</source>
        <translation>The driver %1 for the link database is missing</translation>
    </message>
    <message>
        <source>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</source>
        <translation>The value as a text, a number with so many decimals; without decimals as it is.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</source>
        <translation>The angle in degrees between the x axis and the line from the origin to the point (x, y).</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Kosinus hat.</source>
        <translation>The angle in degrees that has this cosine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Sinus hat.</source>
        <translation>The angle in degrees that has this sine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Tangens hat.</source>
        <translation>The angle in degrees that has this tangent.</translation>
    </message>
    <message>
        <source>Der natürliche Logarithmus.</source>
        <translation>The natural logarithm.</translation>
    </message>
    <message>
        <source>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</source>
        <translation>The second value if the comparison holds, else the third.</translation>
    </message>
    <message>
        <source>Die Anweisung enthält ein Nullzeichen</source>
        <translation>The statement contains a null character</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>The output cannot be written: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>The file changed while it was read.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>The function %1 is unknown</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>There is no group "%1" in the link database, or %2 does not belong to it</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>The link database %1 does not answer, the connection to it has been given up</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>There is no link database %1</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>The link database %1 has form %2, this program knows form %3 only; a newer version is needed</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>The link database %1 cannot be opened: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>The link database is working</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>There is no table %1 in the link database</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>The target project's table could not be read.
  Project: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>The tables of the link database %1 cannot be made or brought up to date: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>The connection to the link database %1 is there again</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>The connection to the link database %1 was lost: %2</translation>
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
        <source>Die Zahl e, hoch der Zahl.</source>
        <translation>The number e to the power of the number.</translation>
    </message>
    <message>
        <source>Die Zahl ohne ihre Nachkommastellen.</source>
        <translation>The number without its decimals.</translation>
    </message>
    <message>
        <source>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</source>
        <translation>The number that the text reads as; no value if it is none.</translation>
    </message>
    <message>
        <source>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</source>
        <translation>The number, rounded to that many decimals; without decimals to a whole number, with negative ones before the decimal point.</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>The target line is already confirmed for another line.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>The deleted row %1 is no longer in the journal of the link database; it has probably been restored</translation>
    </message>
    <message>
        <source>Die größte der Zahlen.</source>
        <translation>The largest of the numbers.</translation>
    </message>
    <message>
        <source>Die kleinste der Zahlen.</source>
        <translation>The smallest of the numbers.</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>The changes were lost with the connection to the link database; they have to be repeated</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP number</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>A text in the formula for %1 becomes longer than %Ln character and has no value</numerusform>
            <numerusform>A text in the formula for %1 becomes longer than %Ln characters and has no value</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Another script is still running</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>A mapping file must hold an object.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>It stands between two releases of one date.</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>There is no connection to a link database. It is chosen in the settings.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>No link database is connected.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Wrong number of arguments for the function %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Error of the link database: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>No repository is set for the catalog "%1"; its name makes no address</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>A byte of value 0 stands behind the document.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>In %1 there is no link database, or one of an older form. It is made or renewed at the first writing.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>The address of the link database holds a password. That belongs in the password file or in PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>No answer from %1 in %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>No line of the targets fits this one.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Changes that were not committed are lost (statements: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Equal only by proposed conditions or variable mappings. They count as soon as a line of the target is confirmed.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Source and target have no variable in common that has a value.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>text after the closing quote of a cell</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>text, start, count</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>text, search</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>text, search, replacement</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>comparison, then, else</translation>
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
        <source>Wert</source>
        <translation>value</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>value, decimals</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>value, value, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Values are nested too deeply.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>angle</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>number</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>number, decimals</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>number, divisor</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>number, number, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Character %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>row %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>row %1, column %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Line %1, character %2: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>the decimal character is "." or ","</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>the end</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>the field has no name</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>the field "%1" stands twice</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>the project has no table; its lexeme SACHM is to name one</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>the project was not read</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>the computed field "%1" has no formula</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>is an address; only files are read</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>the descriptor has a lineSubIdField without a lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>the member "%1" stands twice</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>the name of the file has a NUL in it</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>the value range "%1" of %2 has too many values (%3); only %Ln is walked</numerusform>
            <numerusform>the value range "%1" of %2 has too many values (%3); only %Ln are walked</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>the quotes of the cell do not pair</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>the condition has no name</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>the bytes are no UTF-8; save the file as UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>the file is empty; its first row must name the columns</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>the filter condition "%1" does not parse: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>the formula of the computed column "%1" does not parse: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>the step of "%1" is not above 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>the column has no name</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>the column "%1" is missing, which the descriptor has</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>the column "%1" is missing, which the descriptor's %2 names</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>the column "%1" stands twice</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>the lock file beside it cannot be written</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>the numbers of "%1" have too many digits</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>the line id %1 is that of row %2 already</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>these computed columns need each other: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>a quote inside a cell that does not begin with one; quote the whole cell and double the quotes in it</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>a quote is left open</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>expected a field, which is an object</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>expected an object of texts</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>expected an object with a member for each language</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>expected an object</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>an operator or the end</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>expected a text</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>a value between the semicolons is empty</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>expected a condition, which is an object</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>expected a list of conditions</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>expected a list of fields</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>expected a list of texts</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>expected a number</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>expected an integer from 0 to 2147483647</translation>
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
        <source>ersetzt: %1</source>
        <translation>replaced: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>is locked by %1 on %2 (process %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>equal: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>it is no text in UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>no value</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>no valid JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>cannot be read: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>cannot be opened: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>more lines than a table can hold</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>more than 64 levels deep</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>without counterpart: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>likewise in %Ln other line</numerusform>
            <numerusform>likewise in %Ln other lines</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>There is no sslmode "%1"; possible are: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>expected true or false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>unknown kind "%1"; known are %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>unknown type "%1"; known are %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>different: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Changes are being written to the link database</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>similar: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" ends below its begin</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1" has no step; write it as 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>"%1" is an address; only files are read</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>"%1" is no date; write it as 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1" is no value range of %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" is no readable directory</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" is no line id, which is an integer from 0 to 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>"%1" cannot be written</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>"%1" lies outside of the catalogs; move it there, or allow its directory</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>"%1" lies outside of "%2"; move it there, or allow its directory</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" stands there more than once; the last one counts.</translation>
    </message>
</context>
</TS>
