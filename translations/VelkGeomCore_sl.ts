<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Vrstica %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" ni naslov zbirke povezav. Možna sta sqlite:DATOTEKA in postgresql://UPORABNIK@GOSTITELJ:VRATA/ZBIRKA.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 ne sme imeti več »supports« kot »cases«</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 sme vsebovati samo objekte</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 vsebuje pregloboko ugnezdene vrednosti</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 v reviziji %2 ne obstaja</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 ima prazen vnos »sourcePath«</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 nima vnosa »%2«</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 je zbirka drugega programa</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 ni iskalni indeks in ga ni mogoče zamenjati</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 mora biti [izvorna vrstica, ciljna vrstica, stanje], nato razširjeno besedilo, če obstaja, nato true za spor; vrstice se štejejo od 0, -1 pomeni brez ciljne vrstice</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 mora biti objekt</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 mora biti besedilo</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 mora biti seznam</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 mora navesti spremenljivko ter besedili »before« in »after« ali decimalni števili »factor« in »offset«</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 mora biti celo število od 0 do 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 mora biti true ali false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 mora biti vrste »var« s »source« in »target« ali vrste »value« s »formula«</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 še enkrat navaja izvorno vrstico %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Bere se revizija %2, kolikor je na tem računalniku.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Ni gotovo, ali so spremembe potrjene: pred ponovitvijo preverite.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: cilj s praznim »path« je zdaj na koncu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln celica namesto %1 kot v glavi</numerusform>
            <numerusform>%Ln celici namesto %1 kot v glavi</numerusform>
            <numerusform>%Ln celice namesto %1 kot v glavi</numerusform>
            <numerusform>%Ln celic namesto %1 kot v glavi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>še %Ln</numerusform>
            <numerusform>še %Ln</numerusform>
            <numerusform>še %Ln</numerusform>
            <numerusform>še %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>še %Ln napaka</numerusform>
            <numerusform>še %Ln napaki</numerusform>
            <numerusform>še %Ln napake</numerusform>
            <numerusform>še %Ln napak</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Prekinjeno: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Druge vrednosti razponov pripadajo drugemu cilju.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>začetek, konec in korak »%1« morajo biti števila z največ 15 števkami</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Tudi drug ciljni projekt ima vrstico s temi vrednostmi.
  Projekt: %1
  Vrstica: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Programa %1 za repozitorij kataloga ni mogoče zagnati: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Repozitorij %1 se ne odziva: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Repozitorij %1 zahteva prijavo: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Skripta ni mogoče prebrati: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Skript je bil ustavljen</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Skript je bil ustavljen: porabil je več kot %1 MB pomnilnika</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Skript je bil ustavljen: trajal je več kot %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Skript je bil ustavljen: %1 s ni poklical nobenega objekta</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Ciljni projekt ima drugačno ime kot izvorni in nobena dodelitev vanj ni potrjena.
  Izvorni projekt: %1
  Ciljni projekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Besedilu manjka zaključni opuščaj</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Izraz je pregloboko gnezden</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Katalog %1 ne gre v predpomnilnik velikosti %2 MB; iskanje ga ne pozna</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Izdaja kataloga</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Izdaja kataloga navaja »%1« kot svoj sourceDate.</translation>
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
        <translation>Besedilo je prazno</translation>
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
        <translation>Manjka gonilnik %1 za zbirko povezav</translation>
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
        <translation>Stavek vsebuje ničelni znak</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Izpisa ni mogoče zapisati: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Datoteka se je med branjem spremenila.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkcija %1 ni znana</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Skupine "%1" ni v zbirki povezav ali pa ji %2 ne pripada</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Zbirka povezav %1 se ne odziva, povezava z njo je opuščena</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Zbirke povezav %1 ni</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Zbirka povezav %1 ima obliko %2, ta program pozna le obliko %3; potrebna je novejša različica</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Zbirke povezav %1 ni mogoče odpreti: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Zbirka povezav dela</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Oznaki standarda se razlikujeta.
  Stara oznaka: %1
  Nova oznaka: %2</translation>
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
        <translation>Tabele %1 ni v zbirki povezav</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabele ciljnega projekta ni bilo mogoče prebrati.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Tabel zbirke povezav %1 ni mogoče ustvariti ali posodobiti: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Spremenljivka %1 v ciljni tabeli ne obstaja</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Spremenljivka %1 ni znana</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Povezava z zbirko povezav %1 je znova vzpostavljena</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Povezava z zbirko povezav %1 je prekinjena: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Vrednosti spremenljivke %1 se razlikujejo.
  Stara vrednost: %2
  Nova vrednost: %3</translation>
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
        <translation>Ciljna vrstica je že potrjena za drugo vrstico.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Izbrisane vrstice %1 ni več v dnevniku zbirke povezav; verjetno je že obnovljena</translation>
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
        <translation>Večina vrstic ima v ciljnem projektu druge vrednosti.
  Ciljni projekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Dodeljena vrstica v ciljni tabeli ne obstaja.
  Projekt: %1
  Vrstica: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Spremembe so se izgubile s povezavo z zbirko povezav; treba jih je ponoviti</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Številka ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Besedilo v formuli za %1 je daljše od %Ln znaka in ostane brez vrednosti</numerusform>
            <numerusform>Besedilo v formuli za %1 je daljše od %Ln znakov in ostane brez vrednosti</numerusform>
            <numerusform>Besedilo v formuli za %1 je daljše od %Ln znakov in ostane brez vrednosti</numerusform>
            <numerusform>Besedilo v formuli za %1 je daljše od %Ln znakov in ostane brez vrednosti</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Drug skript se še izvaja</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Pogoj ciljnega projekta ni izpolnjen.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Pogoj ciljnega projekta je napačen.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Pogoj mora biti primerjava</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Formula mora spremenljivki prirediti vrednost</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Datoteka preslikav mora vsebovati objekt.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Stoji med dvema izdajama kataloga z istim datumom.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Pričakovano: %1, najdeno: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Pričakovana je prireditev spremenljivki %1</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Ni povezave z zbirko povezav. Izbere se v nastavitvah.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Nobena zbirka povezav ni povezana.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Napačno število argumentov funkcije %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Napaka zbirke povezav: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Za katalog "%1" ni nastavljenega repozitorija; iz njegovega imena ni mogoče dobiti naslova</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Tu je pričakovana primerjava, ne vrednost</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Tu je pričakovana vrednost, ne primerjava</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Za dokumentom je bajt z vrednostjo 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>V %1 ni zbirke povezav ali pa je starejše oblike. Ob prvem pisanju se ustvari ali obnovi.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>V naslovu zbirke povezav je geslo. Sodi v datoteko gesel ali v PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Ni odgovora od %1 v %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Nobena vrstica ciljev ne ustreza tej.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Nepotrjene spremembe so izgubljene (stavkov: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Enako samo zaradi predlaganih pogojev ali dodelitev spremenljivk. Veljajo, ko je potrjena ena vrstica cilja.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Izvor in cilj nimata skupne spremenljivke z vrednostjo.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>besedilo</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>besedilo za zaključnim narekovajem celice</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>besedilo, začetek, število</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>besedilo, iskano</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>besedilo, iskano, zamenjava</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>primerjava, potem, sicer</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Te vrednosti imajo tudi druge vrstice izvorne tabele.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Te vrednosti imajo tudi druge vrstice ciljne tabele.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>vrednost</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>vrednost, decimalke</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>vrednost, vrednost, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Vrednosti so pregloboko ugnezdene.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>kot</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>število</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>število, decimalke</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>število, delitelj</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>število, število, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>vrstica %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>vrstica %1, stolpec %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Vrstica %1, znak %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Preveč razponov ciljne tabele se prekriva, da bi primerjali vse.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Premalo vrednosti vrstice ima par v ciljni tabeli.
  Brez para: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>decimalni znak je ».« ali »,«</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>konec</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>polje nima imena</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>polje »%1« je navedeno dvakrat</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>projekt nima tabele; navesti jo mora njegov leksem SACHM</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>projekt ni bil prebran</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>izračunano polje »%1« nima formule</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>to je naslov; berejo se samo datoteke</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>deskriptor ima lineSubIdField brez lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>vnos »%1« je naveden dvakrat</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>ime datoteke vsebuje znak NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>območje »%1« za %2 ima preveč vrednosti (%3); pregleda se le %Ln</numerusform>
            <numerusform>območje »%1« za %2 ima preveč vrednosti (%3); pregledata se le %Ln</numerusform>
            <numerusform>območje »%1« za %2 ima preveč vrednosti (%3); pregledajo se le %Ln</numerusform>
            <numerusform>območje »%1« za %2 ima preveč vrednosti (%3); pregleda se jih le %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>narekovaji celice se ne ujemajo</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>pogoj nima imena</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>bajti niso UTF-8; shranite datoteko kot UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>datoteka je prazna; prva vrstica mora poimenovati stolpce</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>pogoja filtra »%1« ni mogoče razčleniti: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>formule izračunanega stolpca »%1« ni mogoče razčleniti: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>korak »%1« ni večji od 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>stolpec nima imena</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>manjka stolpec »%1« iz deskriptorja</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>manjka stolpec »%1«, ki ga navaja %2 v deskriptorju</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>stolpec »%1« je naveden dvakrat</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>datoteke zaklepa poleg ni mogoče zapisati</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>števila v »%1« imajo preveč števk</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>številko vrstice %1 že ima vrstica %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>ti izračunani stolpci potrebujejo drug drugega: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>narekovaj v celici, ki se z njim ne začne; dajte vso celico v narekovaje in podvojite notranje</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>narekovaj ni zaprt</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>pričakovano je polje, torej objekt</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>pričakovan je objekt z besedili</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>pričakovan je objekt z vnosom za vsak jezik</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>pričakovan je objekt</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operator ali konec</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>pričakovano je besedilo</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>ime spremenljivke</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>vrednost</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>vrednost med podpičji je prazna</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>pričakovan je pogoj, torej objekt</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>pričakovan je seznam pogojev</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>pričakovan je seznam polj</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>pričakovan je seznam besedil</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>pričakovano je število</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>pričakovano je celo število od 0 do 2147483647</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>zaklepaj</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>vsebuje napake!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>zamenjano: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>zaklenjeno: %1 na %2 (proces %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>enako: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>to ni besedilo v UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>brez vrednosti</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>neveljaven JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>ni mogoče prebrati: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>ni mogoče odpreti: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>več vrstic, kot jih tabela lahko sprejme</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>globlje od 64 ravni</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>brez ustreznika: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>tako še v %Ln vrstici</numerusform>
            <numerusform>tako še v %Ln vrsticah</numerusform>
            <numerusform>tako še v %Ln vrsticah</numerusform>
            <numerusform>tako še v %Ln vrsticah</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" ne obstaja; možni so: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>pričakovano je true ali false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>neznana vrsta »%1«; znane so %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>neznan tip »%1«; znani so %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>različno: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Spremembe se zapisujejo v zbirko povezav</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>podobno: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>»%1« se konča pod svojim začetkom</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>»%1« nima koraka; zapišite kot 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>»%1« je naslov; berejo se samo datoteke</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>»%1« ni datum; zapišite ga kot 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>»%1« ni območje vrednosti za %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>»%1« ni berljiv imenik</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>»%1« ni številka vrstice, torej celo število od 0 do 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>v »%1« ni mogoče pisati</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>»%1« leži zunaj katalogov; premaknite to tja ali dovolite imenik</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>»%1« leži zunaj »%2«; premaknite to tja ali dovolite imenik</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>»%1« je navedeno večkrat; velja zadnji vnos.</translation>
    </message>
</context>
</TS>
