<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>naslov razdelka brez konca</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>narekovaj brez konca; besedilo velja, kot stoji</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Dokument nima vrednosti.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>To ni JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>To ni običajna datoteka.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Manjka zaključni narekovaj besedila.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Manjka ime vnosa.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopija se razlikuje od izvirnika.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Krmilni znak v besedilu mora biti zapisan kot ubežno zaporedje.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Besedilo vsebuje polovico nadomestnega para.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Besedilo vsebuje neznano ubežno zaporedje.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Besedilo ni UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Manjka vrednost.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Število nima števk za piko.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Število nima števk v eksponentu.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Število nima števk.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Število je preveliko.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Za \u morajo stati štiri šestnajstiške števke.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Za dokumentom je še nekaj.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Za imenom vnosa manjka dvopičje.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Za vnosom manjka vejica ali }.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Za vrednostjo seznama manjka vejica ali ].</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>besedilo za narekovaji; vse velja, kot stoji</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>vrstica %1, stolpec %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>to je imenik</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>to ni razširitev: manjka VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>to ni običajna datoteka</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>ime vsebuje znak NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>besedilo za naslovom razdelka se ne upošteva</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>datoteka je UTF-16; shranite jo kot UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>razširitev je narejena za različico %1, to je %2; znova jo prevedite</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>vrstice se končajo samo s CR; shranite datoteko z LF</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>neznano ubežno zaporedje %1 velja, kot stoji</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>je samo za branje</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>ni UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>ni mogoče prebrati: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>ni mogoče zapisati: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>niti razdelek, niti ključ, niti opomba</translation>
    </message>
</context>
</TS>
