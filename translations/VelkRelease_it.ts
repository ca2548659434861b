<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 si trova fuori dal catalogo e non viene scritto; correggere "path" nel descrittore, oppure rimuovere il collegamento</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 con virgola decimale</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: è la parte %2 di un lavoro diverso da %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>le virgolette all'interno delle celle valgono come caratteri, per la prima volta nella riga %1, colonna %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>data</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>data e ora</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Decisioni riprese da %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>progetti nelle parti: %1 (diversi: %2), in tutto il lavoro: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>manca la parte %1</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>la parte %1 c'è più volte (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologia (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>valore logico</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>intervallo di valori (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>numero</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>calcolato (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>la cartella non è leggibile</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>la cartella non si può creare</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>non è una parte scritta da velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>non è un file regolare</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>la chiave "%1" manca o si ripete in %2 di %Ln riga</numerusform>
            <numerusform>la chiave "%1" manca o si ripete in %2 di %Ln righe</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>la condizione "%1" di %2 non è leggibile; ciò che è stato assegnato non è sicuro</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>la colonna %1 non ha nome e ora si chiama "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>la colonna %1 ha di nuovo il nome "%2" e ora si chiama "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>la colonna "%1" secondo il descrittore è: %2; le sue celle sembrano: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>la colonna "%1" non c'è più</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>la tabella dell'importazione precedente non è leggibile, gli id delle sue righe non si potrebbero conservare; correggerla, oppure eliminarla per ricominciare</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>la tabella dei documenti non ha la colonna %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>la tabella del progetto non è leggibile</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>la tabella di %1 non è leggibile; le righe del progetto restano come sono</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>la tabella di %1 non è leggibile; ciò che è stato assegnato senza di essa non è sicuro</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>la riga termina solo con un ritorno a capo (CR); salvare il file con avanzamenti di riga (LF)</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>le celle sono separate da punti e virgola</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>le celle sono separate da tabulazioni</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>l'unica colonna si chiama "%1"; se sono più d'una, indicare il separatore con --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>la prima riga sembra contenere dati; vale come nomi delle colonne, quindi mettere davanti una riga con i nomi</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>questo catalogo non esiste</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>darebbe la stessa tabella di %1; rinominarne una</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>non c'è nessuna colonna "%1"</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>non c'è nessuna parte</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>non contiene tanti progetti quanti ne indica</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>numero intero</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>letto come %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>interno (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>nessun progetto ha una data</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>nessuna colonna chiave trovata; l'id di una riga è il suo posto nel file</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>non si può leggere: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>non si può scrivere: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>non si può aprire: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>nuova colonna "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>diversi solo per maiuscole e minuscole: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>se è codificato diversamente, indicare la codifica con --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
