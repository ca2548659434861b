<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>nadpis oddílu bez konce</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>uvozovky bez konce; text platí, jak stojí</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Dokument nemá žádnou hodnotu.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>To není JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>To není běžný soubor.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Chybí koncové uvozovky textu.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Chybí název položky.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopie se liší od originálu.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Řídicí znak v textu musí být zapsán únikovou sekvencí.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Text obsahuje polovinu náhradního páru.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Text obsahuje neznámou únikovou sekvenci.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Text není UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Chybí hodnota.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Číslo nemá za tečkou žádné číslice.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Číslo nemá v exponentu žádné číslice.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Číslo nemá žádné číslice.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Číslo je příliš velké.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Za \u musí stát čtyři šestnáctkové číslice.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Za dokumentem ještě něco stojí.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Za názvem položky chybí dvojtečka.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Za položkou chybí čárka nebo }.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Za prvkem seznamu chybí čárka nebo ].</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>text za uvozovkami; vše platí, jak stojí</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>řádek %1, sloupec %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>to je adresář</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>není to rozšíření: chybí VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>to není běžný soubor</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>název obsahuje znak NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>text za nadpisem oddílu se nebere v úvahu</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>soubor je v UTF-16; uložte jej jako UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>rozšíření je vytvořeno pro verzi %1, toto je %2; přeložte je znovu</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>řádky končí jen znakem návratu vozíku; uložte soubor s posuvy řádku</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>neznámá úniková sekvence %1 platí, jak stojí</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>je jen pro čtení</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>není UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>ani oddíl, ani klíč, ani komentář</translation>
    </message>
</context>
</TS>
