<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 ligger utenfor katalogen og skrives ikke; rett "path" i deskriptoren, eller fjern lenken</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 med desimalkomma</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: det er del %2 av et annet arbeid enn %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>anførselstegn inne i celler gjelder som tegn, først i linje %1, kolonne %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>dato</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>dato med klokkeslett</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Beslutninger overtatt fra %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>prosjekter i delene: %1 (forskjellige: %2), i hele arbeidet: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>del %1 mangler</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>del %1 finnes flere ganger (%2): %3</translation>
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
        <translation>sannhetsverdi</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>verdiområde (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>tall</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>beregnet (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>mappen er ikke lesbar</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>mappen kan ikke opprettes</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>det er ingen del som velkmap assign --shard har skrevet</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>det er ikke en vanlig fil</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>nøkkelen "%1" mangler eller gjentas i %2 av %Ln linje</numerusform>
            <numerusform>nøkkelen "%1" mangler eller gjentas i %2 av %Ln linjer</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>betingelsen "%1" for %2 kan ikke tolkes; det som ble tilordnet, er ikke sikkert</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>kolonne %1 har ikke navn og heter nå "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>kolonne %1 har enda en gang navnet "%2" og heter nå "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>kolonnen "%1" er ifølge deskriptoren: %2; cellene ser ut som: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>kolonnen "%1" har falt bort</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>tabellen fra den tidligere importen er ikke lesbar, linje-id-ene kunne ikke beholdes; rett den, eller slett den for å begynne på nytt</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>tabellen over dokumenter har ingen kolonne %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>tabellen til prosjektet er ikke lesbar</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>tabellen til %1 er ikke lesbar; linjene i prosjektet forblir som de er</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>tabellen til %1 er ikke lesbar; det som ble tilordnet uten den, er ikke sikkert</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>linjen slutter bare med vognretur; lagre filen med linjeskift</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>cellene er skilt med semikolon</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>cellene er skilt med tabulator</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>den eneste kolonnen heter "%1"; hvis det er flere, angi skilletegnet med --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>den første linjen ser ut som data; den gjelder som navn på kolonnene, så sett en linje med navn foran den</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>denne katalogen finnes ikke</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>ville gitt samme tabell som %1; gi en av dem nytt navn</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>det finnes ingen kolonne "%1"</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>det finnes ingen del</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>den inneholder ikke så mange prosjekter som den nevner</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>heltall</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>lest som %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>intern (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>ingen prosjekter har dato</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>ingen nøkkelkolonne funnet; id-en til en linje er plassen i filen</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>kan ikke leses: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>kan ikke skrives: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>kan ikke åpnes: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>ny kolonne "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>bare forskjellige i store og små bokstaver: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>hvis den er kodet annerledes, angi kodingen med --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
