<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Riga %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" non è l'indirizzo di un database dei collegamenti. Possibili: sqlite:FILE e postgresql://UTENTE@HOST:PORTA/DATABASE.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 non può avere più "supports" che "cases"</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 può contenere solo oggetti</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 contiene valori annidati troppo in profondità</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 non esiste nella revisione %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 ha una voce "sourcePath" vuota</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 non ha la voce "%2"</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 è il database di un altro programma</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 non è un indice di ricerca e non può essere sostituito</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 deve essere [riga di origine, riga di destinazione, stato], poi il testo esteso se c'è, poi true per un conflitto; le righe si contano da 0, -1 è nessuna riga di destinazione</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 deve essere un oggetto</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 deve essere un testo</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 deve essere un elenco</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 deve nominare una variabile, e testi come "before" e "after" o numeri decimali come "factor" e "offset"</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 deve essere un intero da 0 a 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 deve essere true o false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 deve essere di tipo "var" con "source" e "target" oppure di tipo "value" con "formula"</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 nomina di nuovo la riga di origine %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Viene letta la revisione %2, per quanto si trova su questa macchina.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Non è certo che le modifiche siano state confermate: verificare prima di ripeterle.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: la destinazione con "path" vuoto è ora alla fine</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln cella invece di %1 come nell'intestazione</numerusform>
            <numerusform>%Ln celle invece di %1 come nell'intestazione</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>ancora %Ln</numerusform>
            <numerusform>altri %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>ancora %Ln errore</numerusform>
            <numerusform>altri %Ln errori</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Annullato: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Altri valori degli intervalli appartengono a un'altra destinazione.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>inizio, fine e passo di "%1" devono essere numeri di 15 cifre al massimo</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Anche un altro progetto di destinazione ha una riga con questi valori.
  Progetto: %1
  Riga: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Impossibile avviare il programma %1 per il repository del catalogo: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Il repository %1 non risponde: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Il repository %1 richiede l'accesso: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Lo script non si può leggere: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Lo script è stato fermato</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Lo script è stato fermato: ha usato più di %1 MB di memoria</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Lo script è stato fermato: ha impiegato più di %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Lo script è stato fermato: per %1 s non ha chiamato alcun oggetto</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Il progetto di destinazione ha un nome diverso da quello di origine e nessuna assegnazione verso di esso è confermata.
  Progetto di origine: %1
  Progetto di destinazione: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Manca l'apice di chiusura del testo</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>L'espressione è annidata troppo in profondità</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Il catalogo %1 non entra nella cache di %2 MB; la ricerca non lo conosce</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>La versione del catalogo</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>La versione del catalogo indica "%1" come sourceDate.</translation>
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
        <translation>Il testo è vuoto</translation>
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
        <translation>Manca il driver %1 per il database dei collegamenti</translation>
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
        <translation>L'istruzione contiene un carattere nullo</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>L'output non si può scrivere: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Il file è cambiato durante la lettura.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>La funzione %1 è sconosciuta</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Il gruppo "%1" non esiste nel database dei collegamenti, o %2 non ne fa parte</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>La base dei collegamenti %1 non risponde, la connessione è stata abbandonata</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Il database dei collegamenti %1 non esiste</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Il database dei collegamenti %1 ha la forma %2, questo programma conosce solo la forma %3; serve una versione più recente</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Il database dei collegamenti %1 non può essere aperto: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Il database dei collegamenti sta lavorando</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Le denominazioni della norma sono diverse.
  Denominazione precedente: %1
  Denominazione nuova: %2</translation>
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
        <translation>La tabella %1 non esiste nel database dei collegamenti</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Impossibile leggere la tabella del progetto di destinazione.
  Progetto: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Le tabelle del database dei collegamenti %1 non possono essere create o aggiornate: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>La variabile %1 non esiste nella tabella di destinazione</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>La variabile %1 è sconosciuta</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>La connessione al database dei collegamenti %1 è ristabilita</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>La connessione al database dei collegamenti %1 è interrotta: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>I valori della variabile %1 sono diversi.
  Valore precedente: %2
  Valore nuovo: %3</translation>
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
        <translation>La riga di destinazione è già confermata per un'altra riga.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>La riga eliminata %1 non è più nel registro del database dei collegamenti; probabilmente è già stata ripristinata</translation>
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
        <translation>La maggior parte delle righe ha altri valori nel progetto di destinazione.
  Progetto di destinazione: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>La riga assegnata non esiste nella tabella di destinazione.
  Progetto: %1
  Riga: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Le modifiche sono andate perse con la connessione al database dei collegamenti; vanno ripetute</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Numero ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Un testo nella formula per %1 supera %Ln carattere e resta senza valore</numerusform>
            <numerusform>Un testo nella formula per %1 supera %Ln caratteri e resta senza valore</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Un altro script è ancora in corso</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Una condizione del progetto di destinazione non è soddisfatta.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Una condizione di un progetto di destinazione è errata.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Una condizione deve essere un confronto</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Una formula deve assegnare un valore a una variabile</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Un file di mappatura deve contenere un oggetto.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Si trova tra due versioni del catalogo della stessa data.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Atteso %1, trovato %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>È attesa un'assegnazione alla variabile %1</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Non c'è connessione a un database dei collegamenti. Si sceglie nelle impostazioni.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Nessun database dei collegamenti è connesso.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Numero di argomenti errato per la funzione %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Errore del database dei collegamenti: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Nessun repository è impostato per il catalogo "%1"; il suo nome non dà un indirizzo</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Qui è atteso un confronto, non un valore</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Qui è atteso un valore, non un confronto</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Dopo il documento c'è un byte di valore 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>In %1 non c'è un database dei collegamenti, o è di una forma precedente. Viene creato o rinnovato alla prima scrittura.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>L'indirizzo del database dei collegamenti contiene una password. Va nel file delle password o in PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Nessuna risposta da %1 in %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Nessuna riga delle destinazioni corrisponde a questa.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Le modifiche non confermate sono perse (istruzioni: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Uguale solo per condizioni o assegnazioni di variabili proposte. Valgono appena una riga della destinazione è confermata.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Origine e destinazione non hanno variabili comuni con un valore.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>testo dopo le virgolette di chiusura di una cella</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>testo, inizio, numero</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>testo, cercato</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>testo, cercato, sostituto</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>confronto, allora, altrimenti</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Altre righe della tabella di origine hanno questi valori.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Altre righe della tabella di destinazione hanno questi valori.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valore</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>valore, decimali</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>valore, valore, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>I valori sono annidati troppo in profondità.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>angolo</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>numero</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>numero, decimali</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>numero, divisore</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>numero, numero, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Carattere %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>riga %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>riga %1, colonna %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Riga %1, carattere %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Troppi intervalli della tabella di destinazione si sovrappongono per confrontarli tutti.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Troppo pochi valori della riga hanno un corrispondente nella tabella di destinazione.
  Senza corrispondente: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>il carattere decimale è «.» o «,»</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>la fine</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>il campo non ha nome</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>il campo «%1» compare due volte</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>il progetto non ha una tabella; il suo lessema SACHM deve indicarla</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>il progetto non è stato letto</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>il campo calcolato «%1» non ha formula</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>è un indirizzo; si leggono solo file</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>il descrittore ha un lineSubIdField senza lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>la voce «%1» compare due volte</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>il nome del file contiene un carattere NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>l'intervallo "%1" di %2 ha troppi valori (%3); ne viene percorso solo %Ln</numerusform>
            <numerusform>l'intervallo "%1" di %2 ha troppi valori (%3); ne vengono percorsi solo %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>le virgolette della cella non sono appaiate</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>la condizione non ha nome</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>i byte non sono UTF-8; salvare il file come UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>il file è vuoto; la prima riga deve nominare le colonne</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>la condizione di filtro "%1" non è leggibile: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>la formula della colonna calcolata "%1" non è leggibile: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>il passo di "%1" non è maggiore di 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>la colonna non ha nome</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>manca la colonna "%1" del descrittore</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>manca la colonna "%1" nominata da %2 nel descrittore</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>la colonna "%1" compare due volte</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>il file di blocco accanto non può essere scritto</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>i numeri di "%1" hanno troppe cifre</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>il numero di riga %1 è già della riga %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>queste colonne calcolate hanno bisogno l'una dell'altra: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>virgolette in una cella che non inizia con esse; mettere tutta la cella tra virgolette e raddoppiare quelle interne</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>le virgolette non vengono chiuse</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>si attende un campo, cioè un oggetto</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>si attende un oggetto di testi</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>si attende un oggetto con una voce per ogni lingua</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>si attende un oggetto</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>un operatore o la fine</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>si attende un testo</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>un nome di variabile</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>un valore</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>un valore tra i punti e virgola è vuoto</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>si attende una condizione, cioè un oggetto</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>si attende un elenco di condizioni</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>si attende un elenco di campi</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>si attende un elenco di testi</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>si attende un numero</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>si attende un numero intero da 0 a 2147483647</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>una parentesi chiusa</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contiene errori!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>sostituito: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>bloccato da %1 su %2 (processo %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>uguale: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>non è un testo in UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>nessun valore</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>JSON non valido: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>non si può leggere: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>non si può aprire: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>più righe di quante ne contenga una tabella</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>oltre 64 livelli di profondità</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>senza corrispondente: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>così in un'altra riga: %Ln</numerusform>
            <numerusform>così in altre %Ln righe</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" non esiste; possibili: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>si attende true o false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>genere sconosciuto «%1»; noti: %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>tipo sconosciuto «%1»; noti: %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>diverso: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Scrittura delle modifiche nel database dei collegamenti</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>simile: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" finisce sotto il suo inizio</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1" non ha un passo; scriverlo come 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>«%1» è un indirizzo; si leggono solo file</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>«%1» non è una data; scriverla come 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1" non è un intervallo di valori di %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" non è una cartella leggibile</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" non è un numero di riga, cioè un intero da 0 a 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>in "%1" non si può scrivere</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» si trova fuori dai cataloghi; spostarlo lì, o consentirne la cartella</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» si trova fuori da «%2»; spostarlo lì, o consentirne la cartella</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" compare più di una volta; vale l'ultima voce.</translation>
    </message>
</context>
</TS>
