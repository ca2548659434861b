<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>szakaszcím lezárás nélkül</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>idézőjel lezárás nélkül; a szöveg úgy érvényes, ahogy áll</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>A dokumentumnak nincs értéke.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Ez nem JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Ez nem közönséges fájl.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Hiányzik egy szöveg záró idézőjele.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Hiányzik egy bejegyzés neve.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>A másolat eltér az eredetitől.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>A szövegben lévő vezérlőkaraktert escape-sorozattal kell írni.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Egy szöveg fél helyettesítő párt tartalmaz.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Egy szöveg ismeretlen escape-sorozatot tartalmaz.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Egy szöveg nem UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Hiányzik egy érték.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Egy szám pontja mögött nincs számjegy.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Egy szám kitevőjében nincs számjegy.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Egy számnak nincs számjegye.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Egy szám túl nagy.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>A \u után négy hexadecimális számjegynek kell állnia.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>A dokumentum mögött áll még valami.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Egy bejegyzés neve után hiányzik a kettőspont.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Egy bejegyzés után vessző vagy } hiányzik.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Egy listaérték után vessző vagy ] hiányzik.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>szöveg az idézőjelek mögött; minden úgy érvényes, ahogy áll</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>%1. sor, %2. oszlop</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>ez egy könyvtár</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>ez nem bővítmény: hiányzik a VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>ez nem közönséges fájl</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>a név NUL karaktert tartalmaz</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>a szakaszcím mögötti szöveg figyelmen kívül marad</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>a fájl UTF-16; mentse UTF-8 formában</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>a bővítmény a(z) %1 verzióhoz készült, ez a(z) %2; fordítsa le újra</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>a sorok csak kocsivissza jellel végződnek; mentse a fájlt soremeléssel</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>az ismeretlen %1 escape-sorozat úgy érvényes, ahogy áll</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>csak olvasható</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>nem UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nem olvasható: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>nem írható: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>sem szakasz, sem kulcs, sem megjegyzés</translation>
    </message>
</context>
</TS>
