<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 ligger utanför katalogen och skrivs inte; rätta "path" i deskriptorn, eller ta bort länken</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 med decimalkomma</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: det är del %2 av ett annat arbete än %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>citattecken inuti celler gäller som tecken, först på rad %1, kolumn %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>datum med klockslag</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Beslut övertagna från %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projekt i delarna: %1 (olika: %2), i hela arbetet: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>del %1 saknas</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>del %1 finns flera gånger (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologi (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>sanningsvärde</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>värdeområde (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>tal</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>beräknad (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>katalogen är inte läsbar</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>katalogen kan inte skapas</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>det är ingen del som velkmap assign --shard har skrivit</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>det är ingen vanlig fil</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>nyckeln "%1" saknas eller upprepas i %2 av %Ln rad</numerusform>
            <numerusform>nyckeln "%1" saknas eller upprepas i %2 av %Ln rader</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>villkoret "%1" för %2 kan inte tolkas; det som tilldelades är inte säkert</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>kolumn %1 har inget namn och heter nu "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>kolumn %1 har en gång till namnet "%2" och heter nu "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>kolumnen "%1" är enligt deskriptorn: %2; dess celler ser ut som: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>kolumnen "%1" har fallit bort</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>tabellen från den tidigare importen är inte läsbar, dess rad-id:n skulle inte kunna behållas; rätta den, eller ta bort den för att börja om</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>tabellen över dokument har ingen kolumn %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>projektets tabell är inte läsbar</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>tabellen för %1 är inte läsbar; projektets rader förblir som de är</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>tabellen för %1 är inte läsbar; det som tilldelades utan den är inte säkert</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>raden slutar bara med vagnretur; spara filen med radmatningar</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>cellerna skiljs åt av semikolon</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>cellerna skiljs åt av tabbar</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>den enda kolumnen heter "%1"; om det är flera, ange deras skiljetecken med --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>den första raden ser ut som data; den gäller som kolumnernas namn, så sätt en rad med namn före den</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>den här katalogen finns inte</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>skulle ge samma tabell som %1; byt namn på en av dem</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>det finns ingen kolumn "%1"</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>det finns ingen del</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>den innehåller inte så många projekt som den anger</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>heltal</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>läst som %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>intern (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>inget projekt har ett datum</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>ingen nyckelkolumn hittades; en rads id är dess plats i filen</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>kan inte läsas: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>kan inte skrivas: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>kan inte öppnas: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>ny kolumn "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>skiljer sig bara i stora och små bokstäver: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>om den är kodad på annat sätt, ange kodningen med --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
