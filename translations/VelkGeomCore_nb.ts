<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Linje %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" er ikke adressen til en linkdatabase. Mulige er sqlite:FIL og postgresql://BRUKER@VERT:PORT/DATABASE.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 kan ikke ha flere "supports" enn "cases"</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 kan bare inneholde objekter</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 inneholder for dypt nøstede verdier</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 finnes ikke i revisjon %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 har en tom oppføring "sourcePath"</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 mangler oppføringen "%2"</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 er et annet programs database</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 er ingen søkeindeks og kan ikke erstattes</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 må være [kildelinje, mållinje, tilstand], deretter den utvidede teksten hvis det finnes en, deretter true for en konflikt; linjer telles fra 0, -1 er ingen mållinje</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 må være et objekt</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 må være en tekst</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 må være en liste</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 må nevne en variabel og i tillegg tekster som "before" og "after" eller desimaltall som "factor" og "offset"</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 må være et heltall fra 0 til 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 må være true eller false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 må være av typen "var" med "source" og "target" eller av typen "value" med "formula"</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 nevner kildelinje %2 en gang til</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Revisjon %2 leses så langt den finnes på denne maskinen.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Det er uvisst om endringene er lagret: se etter før de gjentas.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: målet med tom "path" står nå til slutt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln celle i stedet for %1 som i overskriften</numerusform>
            <numerusform>%Ln celler i stedet for %1 som i overskriften</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln annen</numerusform>
            <numerusform>%Ln flere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln feil til</numerusform>
            <numerusform>%Ln feil til</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Avbrutt: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Andre verdier i verdiområdene hører til et annet mål.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>begynnelse, slutt og trinn i "%1" skal være tall med høyst 15 siffer</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Også et annet målprosjekt har en linje med disse verdiene.
  Prosjekt: %1
  Linje: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Programmet %1 for katalogens repository kan ikke startes: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Repositoriet %1 svarer ikke: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Repositoriet %1 krever innlogging: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Skriptet kan ikke leses: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Skriptet ble stoppet</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Skriptet ble stoppet: det brukte mer enn %1 MB minne</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Skriptet ble stoppet: det tok mer enn %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Skriptet ble stoppet: det kalte ikke noe objekt på %1 s</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Målprosjektet heter noe annet enn kildeprosjektet, og ingen tilordning dit er bekreftet.
  Kildeprosjekt: %1
  Målprosjekt: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Teksten mangler den avsluttende apostrofen</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Uttrykket er nestet for dypt</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Katalogen %1 får ikke plass i hurtiglageret på %2 MB; søket kjenner den ikke</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Katalogutgaven</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Katalogutgaven oppgir "%1" som sin sourceDate.</translation>
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
        <translation>Teksten er tom</translation>
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
        <translation>Driveren %1 for linkdatabasen mangler</translation>
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
        <translation>Setningen inneholder et nulltegn</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Utdataene kan ikke skrives: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Filen ble endret mens den ble lest.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funksjonen %1 er ukjent</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Gruppen "%1" finnes ikke i linkdatabasen, eller %2 hører ikke til den</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Linkdatabasen %1 svarer ikke, forbindelsen til den er gitt opp</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Linkdatabasen %1 finnes ikke</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Linkdatabasen %1 har form %2, dette programmet kjenner bare form %3; det trengs en nyere versjon</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Linkdatabasen %1 kan ikke åpnes: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Linkdatabasen arbeider</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Standardbetegnelsene er forskjellige.
  Gammel betegnelse: %1
  Ny betegnelse: %2</translation>
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
        <translation>Tabellen %1 finnes ikke i linkdatabasen</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Målprosjektets tabell kunne ikke leses.
  Prosjekt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Tabellene i linkdatabasen %1 kan ikke opprettes eller oppdateres: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variabelen %1 finnes ikke i måltabellen</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Variabelen %1 er ukjent</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Forbindelsen til linkdatabasen %1 er der igjen</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Forbindelsen til linkdatabasen %1 er brutt: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Verdiene av variabelen %1 er forskjellige.
  Gammel verdi: %2
  Ny verdi: %3</translation>
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
        <translation>Mållinjen er allerede bekreftet for en annen linje.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Den slettede raden %1 står ikke lenger i linkdatabasens protokoll; den er nok allerede gjenopprettet</translation>
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
        <translation>De fleste linjer har andre verdier i målprosjektet.
  Målprosjekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Den tilordnede linjen finnes ikke i måltabellen.
  Prosjekt: %1
  Linje: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Endringene gikk tapt med forbindelsen til linkdatabasen; de må gjentas</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP-nummer</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>En tekst i formelen for %1 blir lengre enn %Ln tegn og får ingen verdi</numerusform>
            <numerusform>En tekst i formelen for %1 blir lengre enn %Ln tegn og får ingen verdi</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Et annet skript kjører fortsatt</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>En betingelse for målprosjektet er ikke oppfylt.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>En betingelse i et målprosjekt er feil.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>En betingelse må være en sammenligning</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>En formel må tilordne en variabel en verdi</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>En mappingfil må inneholde et objekt.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Den står mellom to katalogutgaver med samme dato.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Forventet %1, fant %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>En tilordning til variabelen %1 er forventet</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Det er ingen forbindelse til en linkdatabase. Den velges i innstillingene.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Ingen lenkedatabase er tilkoblet.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Feil antall argumenter for funksjonen %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Feil i linkdatabasen: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Det er ikke angitt noe repository for katalogen "%1"; navnet gir ingen adresse</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Her forventes en sammenligning, ikke en verdi</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Her forventes en verdi, ikke en sammenligning</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Etter dokumentet står det en byte med verdien 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>I %1 er det ingen linkdatabase, eller en av eldre form. Den opprettes eller fornyes ved første skriving.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>Adressen til linkdatabasen inneholder et passord. Det hører hjemme i passordfilen eller i PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Ingen svar fra %1 på %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Ingen linje i målene passer til denne.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Endringer som ikke var lagret, er tapt (setninger: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Bare like på grunn av foreslåtte betingelser eller variabeltilordninger. De gjelder så snart en linje i målet er bekreftet.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Kilde og mål har ingen felles variabel med en verdi.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>tekst etter en celles avsluttende anførselstegn</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>tekst, start, antall</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>tekst, søkt</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>tekst, søkt, erstatning</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>sammenligning, da, ellers</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Flere linjer i kildetabellen har disse verdiene.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Flere linjer i måltabellen har disse verdiene.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>verdi</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>verdi, desimaler</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>verdi, verdi, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Verdier er nøstet for dypt.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>vinkel</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>tall</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>tall, desimaler</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>tall, divisor</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>tall, tall, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Tegn %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>rad %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>rad %1, kolonne %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Linje %1, tegn %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>For mange verdiområder i måltabellen overlapper til at alle kan sammenlignes.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>For få av linjens verdier har en motpart i måltabellen.
  Uten motpart: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>desimaltegnet er «.» eller «,»</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>slutten</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>feltet har ikke noe navn</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>feltet «%1» finnes to ganger</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>prosjektet har ingen tabell; leksemet SACHM skal nevne en</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>prosjektet ble ikke lest</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>det beregnede feltet «%1» har ingen formel</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>det er en adresse; bare filer leses</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>deskriptoren har et lineSubIdField uten lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>oppføringen «%1» står to ganger</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>filnavnet inneholder et NUL-tegn</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>verdiområdet "%1" for %2 har for mange verdier (%3); bare %Ln gjennomløpes</numerusform>
            <numerusform>verdiområdet "%1" for %2 har for mange verdier (%3); bare %Ln gjennomløpes</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>cellens anførselstegn passer ikke sammen</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>betingelsen har ikke noe navn</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>bytene er ikke UTF-8; lagre filen som UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>filen er tom; den første raden skal navngi kolonnene</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>filterbetingelsen "%1" kan ikke tolkes: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>formelen for den beregnede kolonnen "%1" kan ikke tolkes: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>trinnet i "%1" er ikke større enn 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>kolonnen har ikke navn</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>kolonnen "%1" fra deskriptoren mangler</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>kolonnen "%1" mangler, som %2 i deskriptoren nevner</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>kolonnen "%1" finnes to ganger</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>låsefilen ved siden av kan ikke skrives</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>tallene i "%1" har for mange siffer</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>linjenummer %1 har rad %2 allerede</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>disse beregnede kolonnene trenger hverandre: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>et anførselstegn i en celle som ikke begynner med et; sett hele cellen i anførselstegn og fordoble dem i den</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>et anførselstegn lukkes ikke</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>et felt ventes, altså et objekt</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>et objekt med tekster ventes</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>et objekt med en oppføring for hvert språk ventes</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>et objekt ventes</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>en operator eller slutten</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>en tekst ventes</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>et variabelnavn</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>en verdi</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>en verdi mellom semikolonene er tom</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>en betingelse ventes, altså et objekt</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>en liste med betingelser ventes</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>en liste med felt ventes</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>en liste med tekster ventes</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>et tall ventes</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>et heltall fra 0 til 2147483647 ventes</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>en avsluttende parentes</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>inneholder feil!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>erstattet: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>låst av %1 på %2 (prosess %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>lik: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>ikke tekst i UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>ingen verdi</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>ikke gyldig JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>kan ikke leses: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>kan ikke åpnes: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>flere linjer enn en tabell kan romme</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>mer enn 64 nivåer dypt</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>uten motstykke: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>slik i %Ln annen linje</numerusform>
            <numerusform>slik i %Ln andre linjer</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" finnes ikke; mulige er: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true eller false ventes</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>ukjent slag «%1»; kjente er %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>ukjent type «%1»; kjente er %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>ulik: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Endringer skrives til linkdatabasen</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>lignende: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" slutter under begynnelsen</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1" har ikke noe trinn; skriv det som 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>«%1» er en adresse; bare filer leses</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>«%1» er ingen dato; skriv den som 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1" er ikke et verdiområde for %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" er ikke en lesbar mappe</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" er ikke et linjenummer, altså et heltall fra 0 til 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>det kan ikke skrives i "%1"</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» ligger utenfor katalogene; flytt den dit, eller tillat mappen</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» ligger utenfor «%2»; flytt den dit, eller tillat mappen</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" står der mer enn én gang; den siste oppføringen gjelder.</translation>
    </message>
</context>
</TS>
