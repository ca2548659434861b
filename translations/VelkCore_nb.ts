<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>seksjonsoverskrift uten slutt</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>anførselstegn uten slutt; teksten gjelder som den står</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Dokumentet har ingen verdi.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Dette er ikke JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Det er ikke en vanlig fil.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Det avsluttende anførselstegnet i en tekst mangler.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Navnet på en oppføring mangler.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopien er ulik originalen.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Et kontrolltegn i en tekst må skrives som escape-sekvens.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>En tekst inneholder et halvt surrogatpar.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>En tekst inneholder en ukjent escape-sekvens.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>En tekst er ikke UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>En verdi mangler.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Et tall har ingen sifre etter punktet.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Et tall har ingen sifre i eksponenten.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Et tall har ingen sifre.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Et tall er for stort.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Etter \u må det stå fire heksadesimale sifre.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Det står noe etter dokumentet.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Et kolon mangler etter navnet på en oppføring.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Et komma eller } mangler etter en oppføring.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Et komma eller ] mangler etter en listeverdi.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>tekst etter anførselstegnene; alt gjelder som det står</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>rad %1, kolonne %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>det er en katalog</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>det er ingen utvidelse: VELK_EXTENSION mangler</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>det er ikke en vanlig fil</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>navnet inneholder et NUL-tegn</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>teksten etter seksjonsoverskriften blir ikke brukt</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>filen er UTF-16; lagre den som UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>utvidelsen er laget for versjon %1, dette er %2; kompiler den på nytt</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>linjene slutter bare med vognretur; lagre filen med linjeskift</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>den ukjente escape-sekvensen %1 gjelder som den står</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>er skrivebeskyttet</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>ikke UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>verken seksjon, nøkkel eller kommentar</translation>
    </message>
</context>
</TS>
