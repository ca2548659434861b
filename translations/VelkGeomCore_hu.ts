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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" nem egy hivatkozási adatbázis címe. Lehetséges: sqlite:FÁJL és postgresql://FELHASZNÁLÓ@GÉP:PORT/ADATBÁZIS.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 nem tartalmazhat több „supports”-ot, mint „cases”-t</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 csak objektumokat tartalmazhat</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 túl mélyen egymásba ágyazott értékeket tartalmaz</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 nem létezik a(z) %2. revízióban</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 „sourcePath” bejegyzése üres</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 nem tartalmaz „%2” bejegyzést</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 egy másik program adatbázisa</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 nem keresőindex, és nem cserélhető le</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 alakja: [forrássor, célsor, állapot], majd a bővített szöveg, ha van, majd ütközésnél true; a sorok számozása 0-tól indul, -1 azt jelenti, hogy nincs célsor</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 csak objektum lehet</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 csak szöveg lehet</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 csak lista lehet</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 egy változót nevez meg, hozzá „before” és „after” szöveget vagy „factor” és „offset” tizedes számot</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 csak 0 és 2147483647 közötti egész szám lehet</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 csak true vagy false lehet</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 fajtája „var” lehet „source” és „target” bejegyzéssel, vagy „value” „formula” bejegyzéssel</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 még egyszer megnevezi a(z) %2. forrássort</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. A(z) %2. revíziót olvassuk, amennyiben ezen a gépen megvan.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Bizonytalan, hogy a módosítások véglegesítve vannak-e: ismétlés előtt ellenőrizze.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: az üres „path” értékű cél most a végén áll</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln cella %1 helyett, ahogy a fejlécben van</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>további %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>további %Ln hiba</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Megszakítva: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Az értéktartományok más értékei másik célhoz tartoznak.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>„%1” kezdete, vége és lépésköze legfeljebb 15 jegyű szám lehet</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>A katalógustároló %1 programja nem indítható: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>A(z) %1 tároló nem válaszol: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>A(z) %1 tároló bejelentkezést kér: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>A szkript nem olvasható: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>A szkript leállt</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>A szkript leállt: több mint %1 MB memória kellett neki</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>A szkript leállt: több mint %1 s-ig tartott</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>A szkript leállt: %1 s-ig nem hívott objektumot</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>A(z) %1 katalógus nem fér el a %2 MB-os gyorsítótárban; a keresés nem ismeri</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>A katalógusverzió</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>A katalógusverzió sourceDate értéke „%1”.</translation>
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
        <translation>A szöveg üres</translation>
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
        <translation>Hiányzik a(z) %1 illesztőprogram a hivatkozási adatbázishoz</translation>
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
        <translation>Az utasítás nulla karaktert tartalmaz</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>A kimenet nem írható: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>A fájl olvasás közben megváltozott.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>A(z) %1 függvény ismeretlen</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>A(z) "%1" csoport nincs a hivatkozási adatbázisban, vagy %2 nem tartozik hozzá</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>A(z) %1 hivatkozási adatbázis nem válaszol, a kapcsolat feladva</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>A(z) %1 hivatkozási adatbázis nem létezik</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>A(z) %1 hivatkozási adatbázis formája %2, ez a program csak a(z) %3 formát ismeri; újabb változat kell</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>A(z) %1 hivatkozási adatbázis nem nyitható meg: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>A hivatkozási adatbázis dolgozik</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>A(z) %1 tábla nincs a hivatkozási adatbázisban</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>A célprojekt táblázatát nem lehetett beolvasni.
  Projekt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>A(z) %1 hivatkozási adatbázis táblái nem hozhatók létre vagy nem frissíthetők: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>A kapcsolat a(z) %1 hivatkozási adatbázissal helyreállt</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>A kapcsolat a(z) %1 hivatkozási adatbázissal megszakadt: %2</translation>
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
        <translation>A célsor már egy másik sorhoz meg van erősítve.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>A törölt %1. sor már nincs a hivatkozási adatbázis naplójában; valószínűleg már helyreállították</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>A módosítások a hivatkozási adatbázis kapcsolatával együtt elvesztek; meg kell ismételni őket</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP-szám</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>A(z) %1 képletében egy szöveg hosszabb %Ln karakternél, ezért érték nélkül marad</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Még egy másik szkript fut</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>A leképezési fájlnak egy objektumot kell tartalmaznia.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Két azonos dátumú katalógusverzió között áll.</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Nincs kapcsolat hivatkozási adatbázissal. A beállításokban választható ki.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Nincs csatlakoztatva hivatkozás-adatbázis.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Hibás számú argumentum a(z) %1 függvényhez</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>A hivatkozási adatbázis hibája: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>A(z) "%1" katalógushoz nincs tároló beállítva; a nevéből nem lesz cím</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>A dokumentum után egy 0 értékű bájt áll.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>%1 helyen nincs hivatkozási adatbázis, vagy régebbi formájú. Az első íráskor jön létre vagy újul meg.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>A hivatkozási adatbázis címében jelszó van. Annak a jelszófájlban vagy a PGPASSWORD változóban a helye.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Nincs válasz innen: %1, %2 s alatt</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>A célok egyetlen sora sem illik ehhez.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>A nem véglegesített módosítások elvesztek (utasítások: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Csak a javasolt feltételek vagy változó-hozzárendelések miatt egyezik. Akkor érvényesek, ha a cél egyik sorát megerősítették.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>A forrásnak és a célnak nincs közös, értékkel bíró változója.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>szöveg</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>szöveg egy cella záró idézőjele után</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>szöveg, kezdet, darab</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>szöveg, keresett</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>szöveg, keresett, csere</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>összehasonlítás, akkor, különben</translation>
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
        <source>Wert</source>
        <translation>érték</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>érték, tizedesek</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>érték, érték, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Az értékek túl mélyen vannak egymásba ágyazva.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>szög</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>szám</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>szám, tizedesek</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>szám, osztó</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>szám, szám, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>%1. karakter: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>%1. sor</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>%1. sor, %2. oszlop</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>%1. sor, %2. karakter: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>a tizedesjel „.” vagy „,”</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>a vége</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>a mezőnek nincs neve</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>a(z) „%1” mező kétszer szerepel</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>a projektnek nincs táblázata; a SACHM lexémának kell megneveznie</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>a projekt nem lett beolvasva</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>a számított „%1” mezőnek nincs képlete</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>ez egy cím; csak fájlok olvashatók</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>a leíróban lineSubIdField van lineIdField nélkül</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>a(z) „%1” bejegyzés kétszer szerepel</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>a fájl neve NUL karaktert tartalmaz</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>a(z) %2 „%1” értéktartományának túl sok értéke van (%3); csak %Ln lesz bejárva</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>a cella idézőjelei nem alkotnak párt</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>a feltételnek nincs neve</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>a bájtok nem UTF-8-ban vannak; mentse a fájlt UTF-8-ként</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>a fájl üres; első sorának meg kell neveznie az oszlopokat</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>a(z) „%1” szűrőfeltétel nem értelmezhető: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>a számított „%1” oszlop képlete nem értelmezhető: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>„%1” lépésköze nem nagyobb 0-nál</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>az oszlopnak nincs neve</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>a leíró „%1” oszlopa hiányzik</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>hiányzik a(z) „%1” oszlop, amelyet a leíró %2 mezője megnevez</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>a(z) „%1” oszlop kétszer szerepel</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>a mellette lévő zárolófájl nem írható</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>„%1” számai túl sok jegyűek</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>a(z) %1 sorszám már a(z) %2. soré</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>ezeknek a számított oszlopoknak egymásra van szükségük: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>idézőjel olyan cellában, amely nem azzal kezdődik; tegye az egész cellát idézőjelbe, és kettőzze meg a benne lévőket</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>egy idézőjel nincs lezárva</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>mező szükséges, azaz objektum</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>szövegek objektuma szükséges</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>objektum szükséges, minden nyelvhez egy bejegyzéssel</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>objektum szükséges</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>műveleti jel vagy a vége</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>szöveg szükséges</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>egy érték a pontosvesszők között üres</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>feltétel szükséges, azaz objektum</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>feltételek listája szükséges</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>mezők listája szükséges</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>szövegek listája szükséges</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>szám szükséges</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>0 és 2147483647 közötti egész szám szükséges</translation>
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
        <source>ersetzt: %1</source>
        <translation>lecserélve: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>zárolta: %1, itt: %2 (folyamat: %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>azonos: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>nem UTF-8 szöveg</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>nincs érték</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>érvénytelen JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nem olvasható: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>nem nyitható meg: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>több sor, mint amennyi egy táblázatba fér</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>64 szintnél mélyebb</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>pár nélkül: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>további %Ln sorban is így</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>Nincs "%1" sslmode; lehetséges: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true vagy false szükséges</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>ismeretlen fajta: „%1”; ismertek: %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>ismeretlen típus: „%1”; ismertek: %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>eltérő: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>A változások írása a hivatkozási adatbázisba</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>hasonló: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>„%1” vége kisebb a kezdeténél</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>„%1” lépésköz nélküli; írja így: 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>a(z) „%1” cím; csak fájlok olvashatók</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>a(z) „%1” nem dátum; írja így: 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>„%1” nem értéktartománya ennek: %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>a(z) „%1” nem olvasható könyvtár</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>„%1” nem sorszám, vagyis nem 0 és 2147483647 közötti egész</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>a(z) „%1” nem írható</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>a(z) „%1” a katalógusokon kívül van; helyezze át oda, vagy engedélyezze a könyvtárát</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>a(z) „%1” ezen kívül van: „%2”; helyezze át oda, vagy engedélyezze a könyvtárát</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>„%1” többször szerepel; az utolsó bejegyzés érvényes.</translation>
    </message>
</context>
</TS>
