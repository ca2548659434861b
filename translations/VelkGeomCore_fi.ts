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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" ei ole linkkitietokannan osoite. Mahdollisia ovat sqlite:TIEDOSTO ja postgresql://KÄYTTÄJÄ@KONE:PORTTI/TIETOKANTA.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1: "supports" ei saa olla suurempi kuin "cases"</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 saa sisältää vain objekteja</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 sisältää liian syvälle sisäkkäisiä arvoja</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>Kohdetta %1 ei ole versiossa %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1: kohta "sourcePath" on tyhjä</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1: kohta "%2" puuttuu</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 on toisen ohjelman tietokanta</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 ei ole hakuindeksi, eikä sitä voi korvata</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1: muodon on oltava [lähderivi, kohderivi, tila], sitten laajennettu teksti, jos sellainen on, sitten true ristiriidalle; rivit lasketaan nollasta, -1 tarkoittaa, ettei kohderiviä ole</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1: arvon on oltava objekti</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1: arvon on oltava teksti</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1: arvon on oltava luettelo</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1: on nimettävä muuttuja ja joko tekstit "before" ja "after" tai desimaaliluvut "factor" ja "offset"</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1: arvon on oltava kokonaisluku väliltä 0–2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1: arvon on oltava true tai false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1: lajin on oltava "var" kohtineen "source" ja "target" tai "value" kohtineen "formula"</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 mainitsee lähderivin %2 uudelleen</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Luetaan versio %2 siltä osin kuin se on tällä koneella.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Ei ole varmaa, vahvistettiinko muutokset: tarkista ennen toistamista.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: kohde, jonka "path" on tyhjä, on nyt viimeisenä</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln solu eikä %1 kuten otsikkorivillä</numerusform>
            <numerusform>%Ln solua eikä %1 kuten otsikkorivillä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln muu</numerusform>
            <numerusform>%Ln muuta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln muu virhe</numerusform>
            <numerusform>%Ln muuta virhettä</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Keskeytetty: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Arvoalueiden muut arvot kuuluvat toiseen kohteeseen.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>kohteen "%1" alun, lopun ja askeleen on oltava enintään 15-numeroisia lukuja</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Luettelon tietovaraston ohjelmaa %1 ei voi käynnistää: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Tietovarasto %1 ei vastaa: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Tietovarasto %1 vaatii kirjautumisen: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Skriptiä ei voi lukea: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Skripti pysäytettiin</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Skripti pysäytettiin: se tarvitsi yli %1 Mt muistia</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Skripti pysäytettiin: se kesti yli %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Skripti pysäytettiin: se ei kutsunut mitään oliota %1 sekuntiin</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Luettelo %1 ei mahdu %2 Mt:n välimuistiin; haku ei tunne sitä</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Luetteloversio</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Luetteloversio ilmoittaa sourceDate-arvokseen "%1".</translation>
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
        <translation>Teksti on tyhjä</translation>
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
        <translation>Linkkitietokannan ajuri %1 puuttuu</translation>
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
        <translation>Lauseessa on nollamerkki</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Tulostetta ei voi kirjoittaa: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Tiedosto muuttui lukemisen aikana.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funktiota %1 ei tunneta</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Ryhmää "%1" ei ole linkkitietokannassa, tai %2 ei kuulu siihen</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Linkkitietokanta %1 ei vastaa, yhteydestä siihen on luovuttu</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Linkkitietokantaa %1 ei ole</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Linkkitietokannan %1 muoto on %2, tämä ohjelma tuntee vain muodon %3; tarvitaan uudempi versio</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Linkkitietokantaa %1 ei voi avata: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Linkkitietokanta työskentelee</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>Taulua %1 ei ole linkkitietokannassa</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Kohdeprojektin taulukkoa ei voitu lukea.
  Projekti: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Linkkitietokannan %1 tauluja ei voi luoda tai päivittää: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Yhteys linkkitietokantaan %1 on palautunut</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Yhteys linkkitietokantaan %1 katkesi: %2</translation>
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
        <translation>Kohderivi on jo vahvistettu toiselle riville.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Poistettu rivi %1 ei ole enää linkkitietokannan lokissa; se on ehkä jo palautettu</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Muutokset menetettiin linkkitietokannan yhteyden mukana; ne on toistettava</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP-numero</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Kohteen %1 kaavan teksti ylittää %Ln merkin ja jää ilman arvoa</numerusform>
            <numerusform>Kohteen %1 kaavan teksti ylittää %Ln merkkiä ja jää ilman arvoa</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Toinen skripti on vielä käynnissä</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Kohdistustiedoston on sisällettävä objekti.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Se on kahden samanpäiväisen luetteloversion välissä.</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Linkkitietokantaan ei ole yhteyttä. Se valitaan asetuksissa.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Linkkitietokantaa ei ole yhdistetty.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Funktiolla %1 on väärä määrä argumentteja</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Linkkitietokannan virhe: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Luettelolle "%1" ei ole määritetty tietovarastoa; sen nimestä ei saada osoitetta</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Asiakirjan jälkeen on tavu, jonka arvo on 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>Kohteessa %1 ei ole linkkitietokantaa, tai se on vanhempaa muotoa. Se luodaan tai uudistetaan ensimmäisellä kirjoituskerralla.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>Linkkitietokannan osoitteessa on salasana. Sen paikka on salasanatiedosto tai PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Ei vastausta kohteesta %1 ajassa %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Mikään kohteiden rivi ei sovi tähän.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Vahvistamattomat muutokset on menetetty (lauseita: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Sama vain ehdotettujen ehtojen tai muuttujamääritysten ansiosta. Ne ovat voimassa heti, kun yksi kohteen rivi on vahvistettu.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Lähteellä ja kohteella ei ole yhteistä muuttujaa, jolla on arvo.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>teksti</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>tekstiä solun päättävän lainausmerkin jälkeen</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>teksti, alku, määrä</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>teksti, etsittävä</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>teksti, etsittävä, korvaava</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>vertailu, silloin, muuten</translation>
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
        <source>Wert</source>
        <translation>arvo</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>arvo, desimaalit</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>arvo, arvo, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Arvot ovat liian syvällä sisäkkäin.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>kulma</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>luku</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>luku, desimaalit</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>luku, jakaja</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>luku, luku, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Merkki %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>rivi %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>rivi %1, sarake %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Rivi %1, merkki %2: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>desimaalimerkki on ”.” tai ”,”</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>loppu</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>kentällä ei ole nimeä</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>kenttä ”%1” on kahdesti</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>projektilla ei ole taulukkoa; sen lekseemin SACHM on nimettävä sellainen</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>projektia ei luettu</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>lasketulla kentällä ”%1” ei ole kaavaa</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>se on osoite; vain tiedostoja luetaan</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>kuvaustiedostossa on lineSubIdField ilman lineIdField-kenttää</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>jäsen ”%1” on kahdesti</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>tiedoston nimessä on NUL-merkki</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>muuttujan %2 arvoalueessa "%1" on liian monta arvoa (%3); vain %Ln käydään läpi</numerusform>
            <numerusform>muuttujan %2 arvoalueessa "%1" on liian monta arvoa (%3); vain %Ln käydään läpi</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>solun lainausmerkit eivät muodosta pareja</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>ehdolla ei ole nimeä</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>tavut eivät ole UTF-8:aa; tallenna tiedosto UTF-8-muodossa</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>tiedosto on tyhjä; sen ensimmäisen rivin on nimettävä sarakkeet</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>suodatusehto "%1" ei jäsenny: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>lasketun sarakkeen "%1" kaava ei jäsenny: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>kohteen "%1" askel ei ole suurempi kuin 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>sarakkeella ei ole nimeä</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>kuvaustiedoston sarake "%1" puuttuu</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>sarake "%1", jonka kuvaustiedoston %2 nimeää, puuttuu</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>sarake "%1" esiintyy kahdesti</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>viereistä lukitustiedostoa ei voi kirjoittaa</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>kohteen "%1" luvuissa on liian monta numeroa</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>rivinumero %1 on jo rivillä %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>nämä lasketut sarakkeet tarvitsevat toisiaan: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>lainausmerkki solussa, joka ei ala sellaisella; laita koko solu lainausmerkkeihin ja kahdenna sen sisällä olevat</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>lainausmerkkiä ei suljeta</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>odotetaan kenttää eli objektia</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>odotetaan tekstien objektia</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>odotetaan objektia, jossa on jäsen kullekin kielelle</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>odotetaan objektia</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operaattori tai loppu</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>odotetaan tekstiä</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>puolipisteiden välinen arvo on tyhjä</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>odotetaan ehtoa eli objektia</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>odotetaan ehtojen luetteloa</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>odotetaan kenttien luetteloa</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>odotetaan tekstien luetteloa</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>odotetaan lukua</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>odotetaan kokonaislukua 0–2147483647</translation>
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
        <source>ersetzt: %1</source>
        <translation>korvattu: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>lukinnut %1 koneella %2 (prosessi %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>sama: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>ei ole UTF-8-tekstiä</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>ei arvoa</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>ei kelvollista JSONia: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>ei voi lukea: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>ei voi avata: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>enemmän rivejä kuin taulukkoon mahtuu</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>yli 64 tasoa syvä</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>ilman vastinetta: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>samoin %Ln muulla rivillä</numerusform>
            <numerusform>samoin %Ln muulla rivillä</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>Tilaa sslmode "%1" ei ole; mahdollisia ovat: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>odotetaan arvoa true tai false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>tuntematon laji ”%1”; tunnetaan %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>tuntematon tyyppi ”%1”; tunnetaan %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>eri: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Muutoksia kirjoitetaan linkkitietokantaan</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>samankaltainen: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" loppuu alkuaan alempana</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1": askel puuttuu; kirjoita kuten 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>”%1” on osoite; vain tiedostoja luetaan</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>”%1” ei ole päiväys; kirjoita se kuten 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1" ei ole muuttujan %2 arvoalue: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" ei ole luettavissa oleva hakemisto</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" ei ole rivinumero eli kokonaisluku väliltä 0–2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>hakemistoon "%1" ei voi kirjoittaa</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>”%1” on luetteloiden ulkopuolella; siirrä se sinne tai salli sen hakemisto</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>”%1” on paikan ”%2” ulkopuolella; siirrä se sinne tai salli sen hakemisto</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" esiintyy useammin kuin kerran; viimeinen pätee.</translation>
    </message>
</context>
</TS>
