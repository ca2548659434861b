<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>Abschnittsüberschrift ohne Ende</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Das Dokument hat keinen Wert.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Das ist kein JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Das schließende Anführungszeichen eines Textes fehlt.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Der Name eines Eintrags fehlt.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Die Kopie unterscheidet sich vom Original.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Ein Text enthält ein halbes Surrogatpaar.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Ein Text enthält eine unbekannte Escape-Folge.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Ein Text ist kein UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Ein Wert fehlt.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Eine Zahl hat keine Ziffern in ihrem Exponenten.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Eine Zahl hat keine Ziffern.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Eine Zahl ist zu groß.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Hinter \u müssen vier hexadezimale Ziffern stehen.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Hinter dem Dokument steht noch etwas.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Hinter einem Eintrag fehlt ein Komma oder }.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Hinter einem Listenwert fehlt ein Komma oder ].</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>das ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>das ist keine Erweiterung: VELK_EXTENSION fehlt</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>der Name enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>die Datei ist UTF-16; speichern Sie sie als UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>ist nur zum Lesen da</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>kein UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>weder Abschnitt noch Schlüssel noch Kommentar</translation>
    </message>
</context>
</TS>
