<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 lies outside of the catalog and is not written; correct the "path" of the descriptor or remove the link</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 with decimal comma</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: it is part %2 of another work than %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>quotes inside of cells are taken as characters, first in row %1, column %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>date</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>datetime</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Decisions taken over from %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>the parts hold %1 projects (%2 of them once), the work has %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>part %1 is missing</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>part %1 is there %2 times: %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>string</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topology %1</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>boolean</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>range of %1s</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>number</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>computed %1</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>the directory cannot be read</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>the directory cannot be made</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>it is no part that velkmap assign --shard wrote</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>it is no regular file</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>the key "%1" is missing or repeated in %2 of %Ln line</numerusform>
            <numerusform>the key "%1" is missing or repeated in %2 of %Ln lines</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>the condition "%1" of %2 does not parse; nothing that was assigned is sure</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>column %1 has no name and is called "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>column %1 is named "%2" once more and is called "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>the column "%1" is %2 by the descriptor, but its cells look like %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>the column "%1" is gone</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>the table as it was imported before cannot be read, so its line ids cannot be kept; correct it, or remove it to begin again</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>the table of documents has no column %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>the project's table could not be read</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>the table of %1 could not be read; the project's lines were left as they are</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>the table of %1 could not be read; nothing that was assigned without it is sure</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>the row ends with a carriage return alone; save the file with line feeds</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>cells are separated by semicolons</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>cells are separated by tabs</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>the only column is named "%1"; if its cells are several, name what separates them by --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>the first row looks like data; it is taken as the columns' names, so put a row with names before it</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>there is no such catalog</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>would become the same table as %1; rename one</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>there is no column "%1"</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>there is no part</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>it does not hold as many projects as it names</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>integer</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>read as %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>internal %1</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>no project has a date</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>no key column was found; a line's id is its row</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>cannot be read: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>cannot be written: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>cannot be opened: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>new column "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>%1 differ in case alone</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>if it is written in another encoding, name that by --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
