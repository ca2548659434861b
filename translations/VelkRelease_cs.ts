<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 leží mimo katalog a nezapíše se; opravte „path“ v deskriptoru, nebo odstraňte odkaz</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 s desetinnou čárkou</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: to je část %2 jiné práce než %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>uvozovky uvnitř buněk se berou jako znaky, poprvé v řádku %1, sloupci %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>datum a čas</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Rozhodnutí převzatá z %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projekty v částech: %1 (různé: %2), v celé práci: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>část %1 chybí</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>část %1 je tu vícekrát (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologie (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>logická hodnota</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>rozsah hodnot (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>číslo</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>vypočtené (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>adresář není čitelný</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>adresář nelze vytvořit</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>to není část, kterou zapsal velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>to není běžný soubor</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>klíč „%1“ chybí nebo se opakuje v %2 z %Ln řádku</numerusform>
            <numerusform>klíč „%1“ chybí nebo se opakuje v %2 z %Ln řádků</numerusform>
            <numerusform>klíč „%1“ chybí nebo se opakuje v %2 z %Ln řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>podmínku „%1“ z %2 nelze rozebrat; co bylo přiřazeno, není jisté</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>sloupec %1 nemá název a jmenuje se nyní „%2“</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>sloupec %1 má znovu název „%2“ a jmenuje se nyní „%3“</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>sloupec „%1“ je podle deskriptoru: %2; jeho buňky vypadají jako: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>sloupec „%1“ odpadl</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>tabulka z dřívějšího importu není čitelná, její ID řádků by nešlo zachovat; opravte ji, nebo ji odstraňte a začněte znovu</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>tabulka dokumentů nemá sloupec %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>tabulka projektu není čitelná</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>tabulka %1 není čitelná; řádky projektu zůstávají beze změny</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>tabulka %1 není čitelná; co bylo přiřazeno bez ní, není jisté</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>řádek končí pouze návratem vozíku; uložte soubor s odřádkováním</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>buňky jsou odděleny středníky</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>buňky jsou odděleny tabulátory</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>jediný sloupec se jmenuje „%1“; je-li jich více, uveďte jejich oddělovač pomocí --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>první řádek vypadá jako data; bere se jako názvy sloupců, vložte tedy před něj řádek s názvy</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>tento katalog neexistuje</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>dala by stejnou tabulku jako %1; jednu z nich přejmenujte</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>sloupec „%1“ neexistuje</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>není tu žádná část</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>neobsahuje tolik projektů, kolik uvádí</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>celé číslo</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>načteno jako %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>interní (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>žádný projekt nemá datum</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>nebyl nalezen žádný klíčový sloupec; ID řádku je jeho místo v souboru</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nelze přečíst: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>nelze zapsat: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>nelze otevřít: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>nový sloupec „%1“</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>liší se jen velikostí písmen: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>má-li jiné kódování, uveďte je pomocí --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>„%1“</translation>
    </message>
</context>
</TS>
