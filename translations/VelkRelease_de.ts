<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 mit Dezimalkomma</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: das ist Teil %2 einer anderen Arbeit als %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>Datum mit Uhrzeit</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Entscheidungen übernommen aus %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>Teil %1 fehlt</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>Teil %1 ist mehrfach da (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>Topologie (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>Wahrheitswert</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>Wertebereich (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>berechnet (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>das Verzeichnis ist nicht lesbar</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>das Verzeichnis lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>das ist kein Teil, den velkmap assign --shard geschrieben hat</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile</numerusform>
            <numerusform>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>die Spalte „%1“ ist weggefallen</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>die Tabelle der Dokumente hat keine Spalte %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>die Tabelle des Projekts ist nicht lesbar</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>die Zellen sind durch Semikolons getrennt</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>die Zellen sind durch Tabulatoren getrennt</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>diesen Katalog gibt es nicht</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>es gibt keine Spalte „%1“</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>es gibt keinen Teil</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>es sind nicht so viele Projekte darin, wie er nennt</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>gelesen als %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>intern (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>kein Projekt hat ein Datum</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>neue Spalte „%1“</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>nur in der Groß- und Kleinschreibung verschieden: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>„%1“</translation>
    </message>
</context>
</TS>
