<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>avsnittsrubrik utan slut</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>citattecken utan slut; texten gäller som den står</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Dokumentet har inget värde.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Det här är inte JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Det är ingen vanlig fil.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Det avslutande citattecknet för en text saknas.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Namnet på en post saknas.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopian skiljer sig från originalet.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Ett styrtecken i en text måste skrivas som escape-sekvens.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>En text innehåller ett halvt surrogatpar.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>En text innehåller en okänd escape-sekvens.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>En text är inte UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Ett värde saknas.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Ett tal har inga siffror efter punkten.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Ett tal har inga siffror i exponenten.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Ett tal har inga siffror.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Ett tal är för stort.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Efter \u måste fyra hexadecimala siffror stå.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Något står efter dokumentet.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Ett kolon saknas efter namnet på en post.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Ett komma eller } saknas efter en post.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Ett komma eller ] saknas efter ett listvärde.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>text efter citattecknen; allt gäller som det står</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>rad %1, kolumn %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>det är en katalog</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>det är inget tillägg: VELK_EXTENSION saknas</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>det är ingen vanlig fil</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>namnet innehåller ett NUL-tecken</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>texten efter avsnittsrubriken beaktas inte</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>filen är UTF-16; spara den som UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>tillägget är gjort för version %1, detta är %2; kompilera om det</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>raderna slutar bara med vagnretur; spara filen med radmatning</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>den okända escape-sekvensen %1 gäller som den står</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>är skrivskyddad</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>inte UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>varken avsnitt, nyckel eller kommentar</translation>
    </message>
</context>
</TS>
