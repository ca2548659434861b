<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Rad %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" är ingen adress till en länkdatabas. Möjliga är sqlite:FIL och postgresql://ANVÄNDARE@VÄRD:PORT/DATABAS.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 får inte ha fler "supports" än "cases"</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 får bara innehålla objekt</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 innehåller för djupt nästlade värden</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 finns inte i revision %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 har en tom post "sourcePath"</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 saknar posten "%2"</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 är ett annat programs databas</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 är inget sökindex och kan inte ersättas</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 måste vara [källrad, målrad, tillstånd], sedan den utökade texten om det finns någon, sedan true för en konflikt; rader räknas från 0, -1 är ingen målrad</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 måste vara ett objekt</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 måste vara en text</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 måste vara en lista</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 måste nämna en variabel och därtill texter som "before" och "after" eller decimaltal som "factor" och "offset"</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 måste vara ett heltal från 0 till 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 måste vara true eller false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 måste vara av slaget "var" med "source" och "target" eller av slaget "value" med "formula"</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 nämner källrad %2 en gång till</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Revision %2 läses så långt den finns på denna dator.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Det är ovisst om ändringarna är sparade: se efter innan de upprepas.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: målet med tom "path" står nu sist</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln cell i stället för %1 som i rubriken</numerusform>
            <numerusform>%Ln celler i stället för %1 som i rubriken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln till</numerusform>
            <numerusform>%Ln till</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln fel till</numerusform>
            <numerusform>%Ln fel till</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Avbrutet: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Andra värden i värdeområdena hör till ett annat mål.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>början, slut och steg i "%1" ska vara tal med högst 15 siffror</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Även ett annat målprojekt har en rad med dessa värden.
  Projekt: %1
  Rad: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Programmet %1 för katalogens förråd kan inte startas: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Förrådet %1 svarar inte: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Förrådet %1 kräver inloggning: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Skriptet kan inte läsas: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Skriptet stoppades</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Skriptet stoppades: det behövde mer än %1 MB minne</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Skriptet stoppades: det tog mer än %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Skriptet stoppades: det anropade inget objekt på %1 s</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Målprojektet heter något annat än källprojektet och ingen tilldelning dit är bekräftad.
  Källprojekt: %1
  Målprojekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Texten saknar den avslutande apostrofen</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Uttrycket är för djupt nästlat</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Katalogen %1 får inte plats i cacheminnet på %2 MB; sökningen känner inte till den</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Katalogutgåvan</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Katalogutgåvan anger "%1" som sin sourceDate.</translation>
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
        <translation>Texten är tom</translation>
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
        <translation>Drivrutinen %1 för länkdatabasen saknas</translation>
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
        <translation>Satsen innehåller ett nolltecken</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Utdata kan inte skrivas: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Filen ändrades medan den lästes.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funktionen %1 är okänd</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Gruppen "%1" finns inte i länkdatabasen, eller %2 hör inte till den</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Länkdatabasen %1 svarar inte, förbindelsen till den har getts upp</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Länkdatabasen %1 finns inte</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Länkdatabasen %1 har form %2, detta program känner bara till form %3; en nyare version behövs</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Länkdatabasen %1 kan inte öppnas: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Länkdatabasen arbetar</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Standardens benämningar skiljer sig.
  Gammal benämning: %1
  Ny benämning: %2</translation>
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
        <translation>Tabellen %1 finns inte i länkdatabasen</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Målprojektets tabell kunde inte läsas.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Tabellerna i länkdatabasen %1 kan inte skapas eller uppdateras: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variabeln %1 finns inte i måltabellen</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Variabeln %1 är okänd</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Förbindelsen till länkdatabasen %1 finns igen</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Förbindelsen till länkdatabasen %1 bröts: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Variabeln %1 har olika värden.
  Gammalt värde: %2
  Nytt värde: %3</translation>
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
        <translation>Målraden är redan bekräftad för en annan rad.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Den raderade raden %1 finns inte längre i länkdatabasens protokoll; den är nog redan återställd</translation>
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
        <translation>De flesta rader har andra värden i målprojektet.
  Målprojekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Den tilldelade raden finns inte i måltabellen.
  Projekt: %1
  Rad: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Ändringarna gick förlorade med förbindelsen till länkdatabasen; de måste upprepas</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP-nummer</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>En text i formeln för %1 blir längre än %Ln tecken och får inget värde</numerusform>
            <numerusform>En text i formeln för %1 blir längre än %Ln tecken och får inget värde</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Ett annat skript körs fortfarande</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Ett villkor för målprojektet är inte uppfyllt.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Ett villkor i ett målprojekt är felaktigt.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Ett villkor måste vara en jämförelse</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>En formel måste tilldela en variabel ett värde</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>En mappningsfil måste innehålla ett objekt.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Den står mellan två katalogutgåvor med samma datum.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Förväntade %1, hittade %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>En tilldelning till variabeln %1 förväntas</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Det finns ingen förbindelse till en länkdatabas. Den väljs i inställningarna.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Ingen länkdatabas är ansluten.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Fel antal argument för funktionen %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Fel i länkdatabasen: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Inget förråd är angivet för katalogen "%1"; dess namn ger ingen adress</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Här förväntas en jämförelse, inte ett värde</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Här förväntas ett värde, inte en jämförelse</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Efter dokumentet står en byte med värdet 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>I %1 finns ingen länkdatabas, eller en av äldre form. Den skapas eller förnyas vid första skrivningen.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>Adressen till länkdatabasen innehåller ett lösenord. Det hör hemma i lösenordsfilen eller i PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Inget svar från %1 på %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Ingen rad i målen passar till denna.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Ändringar som inte var sparade är förlorade (satser: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Lika bara på grund av föreslagna villkor eller variabeltilldelningar. De gäller så snart en rad i målet är bekräftad.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Källa och mål har ingen gemensam variabel med ett värde.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>text efter en cells avslutande citattecken</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>text, start, antal</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>text, sökt</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>text, sökt, ersättning</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>jämförelse, då, annars</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Fler rader i källtabellen har dessa värden.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Fler rader i måltabellen har dessa värden.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>värde</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>värde, decimaler</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>värde, värde, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Värden är för djupt nästlade.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>vinkel</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>tal</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>tal, decimaler</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>tal, delare</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>tal, tal, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Tecken %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>rad %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>rad %1, kolumn %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Rad %1, tecken %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>För många värdeområden i måltabellen överlappar för att alla ska kunna jämföras.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>För få av radens värden har en motsvarighet i måltabellen.
  Utan motsvarighet: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>decimaltecknet är ”.” eller ”,”</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>slutet</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>fältet har inget namn</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>fältet ”%1” finns två gånger</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>projektet har ingen tabell; dess lexem SACHM ska namnge en</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>projektet lästes inte</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>det beräknade fältet ”%1” har ingen formel</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>det är en adress; bara filer läses</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>deskriptorn har ett lineSubIdField utan lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>posten ”%1” står två gånger</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>filens namn innehåller ett NUL-tecken</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>värdeområdet "%1" för %2 har för många värden (%3); bara %Ln gås igenom</numerusform>
            <numerusform>värdeområdet "%1" för %2 har för många värden (%3); bara %Ln gås igenom</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>cellens citattecken bildar inga par</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>villkoret har inget namn</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>byten är inte UTF-8; spara filen som UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>filen är tom; dess första rad måste namnge kolumnerna</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>filtervillkoret "%1" kan inte tolkas: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>formeln för den beräknade kolumnen "%1" kan inte tolkas: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>steget i "%1" är inte större än 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>kolumnen har inget namn</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>kolumnen "%1" i deskriptorn saknas</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>kolumnen "%1" saknas, som %2 i deskriptorn nämner</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>kolumnen "%1" finns två gånger</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>låsfilen bredvid kan inte skrivas</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>talen i "%1" har för många siffror</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>radnummer %1 har redan rad %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>dessa beräknade kolumner behöver varandra: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>ett citattecken i en cell som inte börjar med ett; sätt hela cellen inom citattecken och dubblera dem i den</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>ett citattecken stängs inte</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>ett fält väntas, alltså ett objekt</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>ett objekt med texter väntas</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>ett objekt med en post för varje språk väntas</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>ett objekt väntas</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>en operator eller slutet</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>en text väntas</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>ett variabelnamn</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>ett värde</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>ett värde mellan semikolonen är tomt</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>ett villkor väntas, alltså ett objekt</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>en lista med villkor väntas</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>en lista med fält väntas</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>en lista med texter väntas</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>ett tal väntas</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>ett heltal från 0 till 2147483647 väntas</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>en avslutande parentes</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>innehåller fel!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>ersatt: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>låst av %1 på %2 (process %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>lika: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>ingen text i UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>inget värde</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>ogiltig JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>kan inte läsas: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>kan inte öppnas: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>fler rader än en tabell rymmer</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>mer än 64 nivåer djupt</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>utan motsvarighet: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>likaså i %Ln annan rad</numerusform>
            <numerusform>likaså i %Ln andra rader</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" finns inte; möjliga är: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true eller false väntas</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>okänt slag ”%1”; kända är %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>okänd typ ”%1”; kända är %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>olika: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Ändringar skrivs till länkdatabasen</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>liknande: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" slutar under sin början</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1" har inget steg; skriv som 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>”%1” är en adress; bara filer läses</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>”%1” är inget datum; skriv det som 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1" är inget värdeområde för %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" är ingen läsbar katalog</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" är inget radnummer, alltså inget heltal från 0 till 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>det går inte att skriva i "%1"</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>”%1” ligger utanför katalogerna; flytta det dit, eller tillåt dess katalog</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>”%1” ligger utanför ”%2”; flytta det dit, eller tillåt dess katalog</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" förekommer mer än en gång; den sista posten gäller.</translation>
    </message>
</context>
</TS>
