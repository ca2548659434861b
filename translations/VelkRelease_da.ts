<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 ligger uden for kataloget og skrives ikke; ret "path" i deskriptoren, eller fjern linket</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 med decimalkomma</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: det er del %2 af et andet arbejde end %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>anførselstegn inde i celler gælder som tegn, først i linje %1, kolonne %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>dato</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>dato med klokkeslæt</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Beslutninger overtaget fra %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projekter i delene: %1 (forskellige: %2), i hele arbejdet: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>del %1 mangler</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>del %1 findes flere gange (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologi (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>sandhedsværdi</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>værdiområde (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>tal</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>beregnet (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>mappen er ikke læsbar</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>mappen kan ikke oprettes</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>det er ikke en del, som velkmap assign --shard har skrevet</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>det er ikke en almindelig fil</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>nøglen "%1" mangler eller gentages i %2 af %Ln linje</numerusform>
            <numerusform>nøglen "%1" mangler eller gentages i %2 af %Ln linjer</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>betingelsen "%1" for %2 kan ikke læses; det, der blev tildelt, er ikke sikkert</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>kolonne %1 har intet navn og hedder nu "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>kolonne %1 har endnu en gang navnet "%2" og hedder nu "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>kolonnen "%1" er ifølge deskriptoren: %2; dens celler ligner: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>kolonnen "%1" er faldet væk</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>tabellen fra den tidligere import er ikke læsbar, dens linje-id'er kunne ikke beholdes; ret den, eller slet den for at begynde forfra</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>tabellen over dokumenter har ingen kolonne %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>projektets tabel er ikke læsbar</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>tabellen for %1 er ikke læsbar; projektets linjer forbliver, som de er</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>tabellen for %1 er ikke læsbar; det, der blev tildelt uden den, er ikke sikkert</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>linjen ender kun med et vognretur; gem filen med linjeskift</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>cellerne er adskilt af semikoloner</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>cellerne er adskilt af tabulatorer</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>den eneste kolonne hedder "%1"; hvis der er flere, så angiv deres skilletegn med --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>den første linje ligner data; den gælder som kolonnernes navne, så sæt en linje med navne foran den</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>dette katalog findes ikke</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>ville give samme tabel som %1; omdøb en af dem</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>der er ingen kolonne "%1"</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>der er ingen del</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>den indeholder ikke så mange projekter, som den nævner</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>helt tal</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>læst som %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>intern (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>intet projekt har en dato</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>ingen nøglekolonne fundet; en linjes id er dens plads i filen</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>kan ikke læses: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>kan ikke skrives: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>kan ikke åbnes: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>ny kolonne "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>kun forskellige i store og små bogstaver: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>hvis den er kodet anderledes, så angiv kodningen med --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
