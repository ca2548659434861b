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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" není adresa databáze odkazů. Možné jsou sqlite:SOUBOR a postgresql://UŽIVATEL@POČÍTAČ:PORT/DATABÁZE.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 nesmí mít víc „supports“ než „cases“</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 smí obsahovat jen objekty</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 obsahuje příliš hluboko vnořené hodnoty</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 v revizi %2 neexistuje</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 má prázdnou položku „sourcePath“</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 nemá položku „%2“</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 je databáze jiného programu</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 není index vyhledávání a nelze jej nahradit</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 musí být [zdrojový řádek, cílový řádek, stav], pak rozšířený text, pokud existuje, pak true pro konflikt; řádky se číslují od 0, -1 znamená žádný cílový řádek</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 musí být objekt</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 musí být text</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 musí být seznam</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 musí uvést proměnnou a k ní texty „before“ a „after“ nebo desetinná čísla „factor“ a „offset“</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 musí být celé číslo od 0 do 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 musí být true nebo false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 musí být druhu „var“ s „source“ a „target“, nebo druhu „value“ s „formula“</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 uvádí zdrojový řádek %2 znovu</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Čte se revize %2, pokud je na tomto počítači.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Není jisté, zda jsou změny potvrzeny: před opakováním se podívejte.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: cíl s prázdným „path“ je teď na konci</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln buňka místo %1 jako v záhlaví</numerusform>
            <numerusform>%Ln buňky místo %1 jako v záhlaví</numerusform>
            <numerusform>%Ln buněk místo %1 jako v záhlaví</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>další: %Ln</numerusform>
            <numerusform>další: %Ln</numerusform>
            <numerusform>další: %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln další chyba</numerusform>
            <numerusform>%Ln další chyby</numerusform>
            <numerusform>%Ln dalších chyb</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Zrušeno: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Jiné hodnoty rozsahů patří k jinému cíli.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>začátek, konec a krok „%1“ musí být čísla nejvýše o 15 číslicích</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Program %1 pro repozitář katalogu nelze spustit: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Repozitář %1 neodpovídá: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Repozitář %1 vyžaduje přihlášení: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Skript nelze přečíst: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Skript byl zastaven</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Skript byl zastaven: potřeboval více než %1 MB paměti</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Skript byl zastaven: trval déle než %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Skript byl zastaven: po dobu %1 s nezavolal žádný objekt</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Katalog %1 se nevejde do mezipaměti o velikosti %2 MB; hledání ho nezná</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Verze katalogu</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Verze katalogu uvádí „%1“ jako své sourceDate.</translation>
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
        <translation>Text je prázdný</translation>
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
        <translation>Chybí ovladač %1 pro databázi odkazů</translation>
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
        <translation>Příkaz obsahuje nulový znak</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Výstup nelze zapsat: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Soubor se během čtení změnil.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkce %1 není známa</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Skupina "%1" v databázi odkazů není, nebo do ní %2 nepatří</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Databáze odkazů %1 neodpovídá, spojení s ní bylo ukončeno</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Databáze odkazů %1 neexistuje</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Databáze odkazů %1 má formu %2, tento program zná jen formu %3; je třeba novější verze</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Databázi odkazů %1 nelze otevřít: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Databáze odkazů pracuje</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>Tabulka %1 v databázi odkazů není</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabulku cílového projektu se nepodařilo přečíst.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Tabulky databáze odkazů %1 nelze vytvořit nebo aktualizovat: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Spojení s databází odkazů %1 je obnoveno</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Spojení s databází odkazů %1 je přerušeno: %2</translation>
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
        <translation>Cílový řádek je již potvrzen pro jiný řádek.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Smazaný řádek %1 už není v protokolu databáze odkazů; nejspíš už byl obnoven</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Změny se ztratily se spojením s databází odkazů; je třeba je opakovat</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Číslo ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Text ve vzorci pro %1 je delší než %Ln znak a zůstává bez hodnoty</numerusform>
            <numerusform>Text ve vzorci pro %1 je delší než %Ln znaky a zůstává bez hodnoty</numerusform>
            <numerusform>Text ve vzorci pro %1 je delší než %Ln znaků a zůstává bez hodnoty</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Ještě běží jiný skript</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Soubor mapování musí obsahovat objekt.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Stojí mezi dvěma verzemi katalogu se stejným datem.</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Není spojení s databází odkazů. Vybírá se v nastavení.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Není připojena žádná databáze odkazů.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Chybný počet argumentů funkce %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Chyba databáze odkazů: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Pro katalog "%1" není nastaven žádný repozitář; z jeho názvu nelze vytvořit adresu</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Za dokumentem je bajt s hodnotou 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>V %1 není databáze odkazů, nebo je starší formy. Při prvním zápisu se vytvoří nebo obnoví.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>V adrese databáze odkazů je heslo. Patří do souboru hesel nebo do PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Žádná odpověď od %1 během %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Žádný řádek cílů se k tomuto nehodí.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Nepotvrzené změny jsou ztraceny (příkazů: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Shodné jen díky navrženým podmínkám nebo přiřazením proměnných. Platí, jakmile je potvrzen některý řádek cíle.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Zdroj a cíl nemají společnou proměnnou s hodnotou.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>text za uzavírací uvozovkou buňky</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>text, začátek, počet</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>text, hledané</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>text, hledané, náhrada</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>porovnání, pak, jinak</translation>
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
        <source>Wert</source>
        <translation>hodnota</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>hodnota, místa</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>hodnota, hodnota, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Hodnoty jsou vnořeny příliš hluboko.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>úhel</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>číslo</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>číslo, místa</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>číslo, dělitel</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>číslo, číslo, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>řádek %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>řádek %1, sloupec %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Řádek %1, znak %2: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>desetinný znak je „.“ nebo „,“</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>konec</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>pole nemá název</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>pole „%1“ je tu dvakrát</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>projekt nemá tabulku; má ji uvést jeho lexém SACHM</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>projekt nebyl načten</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>vypočítané pole „%1“ nemá vzorec</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>to je adresa; čtou se jen soubory</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>deskriptor má lineSubIdField bez lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>položka „%1“ je tu dvakrát</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>název souboru obsahuje znak NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>rozsah hodnot „%1“ pro %2 má příliš mnoho hodnot (%3); projde se jen %Ln</numerusform>
            <numerusform>rozsah hodnot „%1“ pro %2 má příliš mnoho hodnot (%3); projdou se jen %Ln</numerusform>
            <numerusform>rozsah hodnot „%1“ pro %2 má příliš mnoho hodnot (%3); projde se jen %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>uvozovky buňky netvoří páry</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>podmínka nemá název</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>bajty nejsou UTF-8; uložte soubor jako UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>soubor je prázdný; první řádek musí pojmenovat sloupce</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>podmínku filtru „%1“ nelze rozebrat: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>vzorec vypočteného sloupce „%1“ nelze rozebrat: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>krok „%1“ není větší než 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>sloupec nemá název</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>chybí sloupec „%1“ z deskriptoru</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>chybí sloupec „%1“, který uvádí %2 v deskriptoru</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>sloupec „%1“ je tam dvakrát</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>soubor zámku vedle nelze zapsat</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>čísla v „%1“ mají příliš mnoho číslic</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>číslo řádku %1 už má řádek %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>tyto vypočtené sloupce se navzájem potřebují: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>uvozovka uvnitř buňky, která jí nezačíná; dejte celou buňku do uvozovek a vnitřní zdvojte</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>uvozovka není uzavřena</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>očekává se pole, tedy objekt</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>očekává se objekt s texty</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>očekává se objekt s položkou pro každý jazyk</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>očekává se objekt</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operátor nebo konec</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>očekává se text</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>hodnota mezi středníky je prázdná</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>očekává se podmínka, tedy objekt</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>očekává se seznam podmínek</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>očekává se seznam polí</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>očekává se seznam textů</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>očekává se číslo</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>očekává se celé číslo od 0 do 2147483647</translation>
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
        <source>ersetzt: %1</source>
        <translation>nahrazeno: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>uzamčeno: %1 na %2 (proces %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>stejné: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>není to text v UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>žádná hodnota</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>neplatný JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nelze přečíst: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>nelze otevřít: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>více řádků, než tabulka pojme</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>hlouběji než 64 úrovní</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>bez protějšku: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>takto v %Ln dalším řádku</numerusform>
            <numerusform>takto ve %Ln dalších řádcích</numerusform>
            <numerusform>takto v %Ln dalších řádcích</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" neexistuje; možné jsou: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>očekává se true nebo false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>neznámý druh „%1“; známé jsou %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>neznámý typ „%1“; známé jsou %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>různé: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Změny se zapisují do databáze odkazů</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>podobné: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>„%1“ končí pod svým začátkem</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>„%1“ nemá krok; zapište jako 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>„%1“ je adresa; čtou se jen soubory</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>„%1“ není datum; pište je jako 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>„%1“ není rozsah hodnot pro %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>„%1“ není čitelný adresář</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>„%1“ není číslo řádku, tedy celé číslo od 0 do 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>do „%1“ nelze zapisovat</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>„%1“ leží mimo katalogy; přesuňte to tam, nebo povolte příslušný adresář</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>„%1“ leží mimo „%2“; přesuňte to tam, nebo povolte příslušný adresář</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>„%1“ je uvedeno víckrát; platí poslední položka.</translation>
    </message>
</context>
</TS>
