<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>afsnitsoverskrift uden slutning</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>anførselstegn uden slutning; teksten gælder, som den står</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Dokumentet har ingen værdi.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Det er ikke JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Det er ikke en almindelig fil.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Det afsluttende anførselstegn i en tekst mangler.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Navnet på en post mangler.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopien adskiller sig fra originalen.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Et styretegn i en tekst skal skrives som escape-sekvens.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>En tekst indeholder et halvt surrogatpar.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>En tekst indeholder en ukendt escape-sekvens.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>En tekst er ikke UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>En værdi mangler.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Et tal har ingen cifre efter punktummet.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Et tal har ingen cifre i eksponenten.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Et tal har ingen cifre.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Et tal er for stort.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Efter \u skal der stå fire hexadecimale cifre.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Der står noget efter dokumentet.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Der mangler et kolon efter navnet på en post.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Der mangler et komma eller } efter en post.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Der mangler et komma eller ] efter en listeværdi.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>tekst efter anførselstegnene; alt gælder, som det står</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>række %1, kolonne %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>det er en mappe</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>det er ingen udvidelse: VELK_EXTENSION mangler</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>det er ikke en almindelig fil</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>navnet indeholder et NUL-tegn</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>teksten efter afsnitsoverskriften tages ikke med</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>filen er UTF-16; gem den som UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>udvidelsen er lavet til version %1, dette er %2; oversæt den igen</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>linjerne slutter kun med vognretur; gem filen med linjeskift</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>den ukendte escape-sekvens %1 gælder, som den står</translation>
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
        <translation>kan ikke læses: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>kan ikke skrives: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>hverken afsnit, nøgle eller kommentar</translation>
    </message>
</context>
</TS>
