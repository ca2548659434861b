<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Není co měnit.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Potvrdit %Ln řádek?</numerusform>
            <numerusform>Potvrdit %Ln řádky?</numerusform>
            <numerusform>Potvrdit %Ln řádků?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Potvrdit %Ln řádek jako neplatný?</numerusform>
            <numerusform>Potvrdit %Ln řádky jako neplatné?</numerusform>
            <numerusform>Potvrdit %Ln řádků jako neplatné?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Zrušit přiřazení %Ln řádku?</numerusform>
            <numerusform>Zrušit přiřazení %Ln řádků?</numerusform>
            <numerusform>Zrušit přiřazení %Ln řádků?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Zrušit přiřazení %Ln řádku a potvrdit ho jako neplatný?</numerusform>
            <numerusform>Zrušit přiřazení %Ln řádků a potvrdit je jako neplatné?</numerusform>
            <numerusform>Zrušit přiřazení %Ln řádků a potvrdit je jako neplatné?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln z nich je už potvrzený.</numerusform>
            <numerusform>%Ln z nich jsou už potvrzené.</numerusform>
            <numerusform>%Ln z nich je už potvrzených.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln z nich ztratí své přiřazení rozsahů hodnot.</numerusform>
            <numerusform>%Ln z nich ztratí svá přiřazení rozsahů hodnot.</numerusform>
            <numerusform>%Ln z nich ztratí svá přiřazení rozsahů hodnot.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln řádek bez cíle zůstane nepotvrzený.</numerusform>
            <numerusform>%Ln řádky bez cíle zůstanou nepotvrzené.</numerusform>
            <numerusform>%Ln řádků bez cíle zůstane nepotvrzených.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln řádek zůstane, jak je.</numerusform>
            <numerusform>%Ln řádky zůstanou, jak jsou.</numerusform>
            <numerusform>%Ln řádků zůstane, jak je.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln řádek v konfliktu se nezmění.</numerusform>
            <numerusform>%Ln řádky v konfliktu se nezmění.</numerusform>
            <numerusform>%Ln řádků v konfliktu se nezmění.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln řádek není zapsán v žádném cílovém projektu.</numerusform>
            <numerusform>%Ln řádky nejsou zapsány v žádném cílovém projektu.</numerusform>
            <numerusform>%Ln řádků není zapsáno v žádném cílovém projektu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>Potvrzen %Ln řádek.</numerusform>
            <numerusform>Potvrzeny %Ln řádky.</numerusform>
            <numerusform>Potvrzeno %Ln řádků.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln řádek potvrzen jako neplatný.</numerusform>
            <numerusform>%Ln řádky potvrzeny jako neplatné.</numerusform>
            <numerusform>%Ln řádků potvrzeno jako neplatné.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Přiřazení %Ln řádku zrušeno.</numerusform>
            <numerusform>Přiřazení %Ln řádků zrušeno.</numerusform>
            <numerusform>Přiřazení %Ln řádků zrušeno.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Přiřazení %Ln řádku zrušeno, potvrzen jako neplatný.</numerusform>
            <numerusform>Přiřazení %Ln řádků zrušeno, potvrzeny jako neplatné.</numerusform>
            <numerusform>Přiřazení %Ln řádků zrušeno, potvrzeno jako neplatné.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>bez nástupce</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Klávesa</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Jistota</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nový řádek</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Důvod</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 zde již rozhodnuto nebo jisté</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 bez řádku v nové verzi</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 tehdy potvrzeno jako neplatné</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 v projektech, které zde chybí</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 tam v konfliktu</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Nepřevzato: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Z %1 není co převzít.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Soubor neobsahuje mapování z verze katalogu %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>I tento soubor vede na verzi katalogu %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Vyberte mapování, které vede ze stejné staré verze katalogu na dřívější novou.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Převzato z %1: tam potvrzeno pro verzi katalogu %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Čte se dřívější mapování</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Z %1 nelze nic převzít.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Adresář verze katalogu %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Hledají se cílové projekty</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Rozhodnutí se přebírají</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Přerušeno, nic nebylo převzato</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Rozhodnutí převzatá z %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Z %1 převzato: %2 z %Ln potvrzeného řádku, %3 přiřazeno s jistotou, %4 navrženo.</numerusform>
            <numerusform>Z %1 převzato: %2 z %Ln potvrzených řádků, %3 přiřazeno s jistotou, %4 navrženo.</numerusform>
            <numerusform>Z %1 převzato: %2 z %Ln potvrzených řádků, %3 přiřazeno s jistotou, %4 navrženo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Adresář staré verze katalogu</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Adresář nové verze katalogu</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Adresáře katalogů</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Kde leží obě verze katalogu tohoto mapovacího souboru? Adresáře se pamatují společně se souborem.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Stará verze (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Nová verze (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Jsou potřeba oba adresáře.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 není adresář.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>Ve staré verzi chybí %1. Hledá se adresář, ve kterém leží katalog %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>V nové verzi chybí katalog %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Řádek %1 v %2 nelze zobrazit</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Žádný řádek není v konfliktu</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Všechny konflikty jsou rozhodnuty; teď uložte</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Konflikt %1 z %2, ještě nerozhodnuto: %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln řádek z %1 si odporuje stejným způsobem. Platí rozhodnutí pro všechny?</numerusform>
            <numerusform>%Ln řádky z %1 si odporují stejným způsobem. Platí rozhodnutí pro všechny?</numerusform>
            <numerusform>%Ln řádků z %1 si odporuje stejným způsobem. Platí rozhodnutí pro všechny?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Vlastní: %1
Jiné: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Pro všechny</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>Řá&amp;dek po řádku</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Řádek není v žádném konfliktu</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Vlastní rozhodnutí není známo: řádek byl v konfliktu už při otevření</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Žádný řádek není v konfliktu.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Všechny konflikty jsou rozhodnuty.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>Ještě %Ln řádek si odporuje jako tento.</numerusform>
            <numerusform>Ještě %Ln řádky si odporují jako tento.</numerusform>
            <numerusform>Ještě %Ln řádků si odporuje jako tento.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikty</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Strany konfliktu</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Vlastní</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Jiné</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Rozhodnout znovu</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>Nerozhodnuté konflikty: %1 z %Ln.</numerusform>
            <numerusform>Nerozhodnuté konflikty: %1 z %Ln.</numerusform>
            <numerusform>Nerozhodnuté konflikty: %1 z %Ln.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>nerozhodnuto</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>vlastní</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>jiné</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nové</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Vlastní rozhodnutí</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Jiné rozhodnutí</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Platí</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>přiřazeno automaticky</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>ke kontrole</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>potvrzeno</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>bez cíle, otevřený</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>potvrzeno jako neplatný</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>neznámé</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, řádek %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Cílový projekt</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Cílový řádek</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Rozsahy hodnot</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Starý řádek</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Předtím</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Vlastní rozhodnutí</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Jiné rozhodnutí</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Údaj</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>stejné</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>nahrazeno jako v %Ln dalším řádku</numerusform>
            <numerusform>nahrazeno jako v %Ln dalších řádcích</numerusform>
            <numerusform>nahrazeno jako v %Ln dalších řádcích</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>podobné</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>různé</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>jen v novém řádku</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>jen ve starém řádku</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Proměnná</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Staré</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nové</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>Tabulka tento řádek neobsahuje.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Bez cíle. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Přiřazený řádek není žádným z kandidátů.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Staré a nové</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Kandidáti</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Potvrzeno.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Přiřazeno s jistotou.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln řádek</numerusform>
            <numerusform>%Ln řádky</numerusform>
            <numerusform>%Ln řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>porovnáno: prvních %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Žádné společné rozdíly.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Společné: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Vybrané řádky</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Verze katalogu</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Soubor obsahuje několik verzí katalogu. Kterou otevřít?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Čte se mapovací soubor</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Soubor nelze otevřít.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Soubor je otevřen jen pro čtení.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Zámek lze zrušit, pokud tam už určitě nikdo nepracuje, například po výpadku počítače.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Jen číst</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>Z&amp;rušit zámek</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Zámek se nepodařilo zrušit.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Katalogy nejsou známy; zadávají se pomocí --source a --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Uložit změny v %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Zahozené změny budou ztraceny.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Uložit</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>Za&amp;hodit</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln řádek</numerusform>
            <numerusform>%1: %Ln řádky</numerusform>
            <numerusform>%1: %Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Ještě %Ln řádek v konfliktu, v těchto projektech:</numerusform>
            <numerusform>Ještě %Ln řádky v konfliktu, v těchto projektech:</numerusform>
            <numerusform>Ještě %Ln řádků v konfliktu, v těchto projektech:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Zo&amp;brazit konflikty</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>&amp;Přesto uložit</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Uloženo: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Soubor nebyl uložen.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>&amp;Sloučit změny</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Ponechat &amp;kopii a zapsat znovu</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Zapsat vlastní verzi</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Změny ostatních byly převzaty. Zkontrolujte je a pak uložte ještě jednou.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Změny ostatních se nepodařilo převzít.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Mapovací soubor nelze vytvořit.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>a další: %Ln</numerusform>
            <numerusform>a další: %Ln</numerusform>
            <numerusform>a další: %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Čte se %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Mapovací soubor %1 nelze přečíst (%2).
Zvolte jiný soubor nebo obnovte záložní kopii %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Mapovací soubor %1 nelze přečíst (%2).
Zvolte jiný soubor.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 neobsahuje žádnou verzi.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 neobsahuje verzi %2. K dispozici: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 je otevřen jen pro čtení.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 právě upravuje %2, a proto je otevřen jen pro čtení.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Do složky souboru %1 nelze zapisovat (%2). Soubor je proto otevřen jen pro čtení; uložený pod jiným názvem ho lze upravovat.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>K %1 existuje práce, která nebyla uložena. Bude nabídnuta, jakmile půjde soubor otevřít k úpravám (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 má ještě jiný název (pevný odkaz). Při uložení zůstane soubor pod jiným názvem, jaký byl.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Ukládá se %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Zálohuje se %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 právě upravuje %2. Nic nebylo zapsáno. Zvolte jiný název.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Ve složce souboru %1 nelze nic vytvořit (%2). Nic nebylo zapsáno. Zvolte jinou složku.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Žádný řádek tohoto projektu není ve filtru.
Otevřete „%1“ a zvolte „%2“, aby byly zase vidět všechny řádky.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Žádný projekt nemá řádek ve filtru.
Otevřete „%1“ a zvolte „%2“, aby byly zase vidět všechny projekty.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Mapovací soubory (*.json);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Otevřít mapovací soubor</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Uložit mapovací soubor</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Uložit tabulku</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabulky (*.csv);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Zvolit společnou kopii</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Převzít rozhodnutí z</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filtr je zrušen: projekt v něm nemá žádný řádek</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Dosaženo konce, pokračuje se od začátku</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Dosaženo začátku, pokračuje se od konce</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Ve filtru už není žádný řádek</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>nahrazený text</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>přepočtené číslo</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Proč otevřené</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Druh rozdílu</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Rozdíl ve sloupci</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Naposledy rozhodl</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>nikdo</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(nic z toho)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>ne vybrané</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Čtou se tabulky...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln řádek</numerusform>
            <numerusform>%Ln řádky</numerusform>
            <numerusform>%Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>v %Ln projektu</numerusform>
            <numerusform>ve %Ln projektech</numerusform>
            <numerusform>v %Ln projektech</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Bez filtru: všechny řádky</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Nečitelné tabulky: %Ln</numerusform>
            <numerusform>Nečitelné tabulky: %Ln</numerusform>
            <numerusform>Nečitelné tabulky: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtr přes všechny řádky</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Zrušit &amp;filtr</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Původ</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>převzato z dřívějšího mapování</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 není běžný soubor, a nelze ho proto použít jako zámek. Nic nebylo zapsáno. Odstraňte, co tam je.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 právě ukládá jiný program. Nic nebylo zapsáno. Za chvíli uložte znovu.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Ve složce souboru %1 nelze nic vytvořit (%2). Nic nebylo zapsáno. Uvolněte místo nebo uložte pod jiným názvem.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 nelze přečíst (%2). Nic nebylo zapsáno. Uložte pod jiným názvem.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 není čitelný mapovací soubor (%2). Nic nebylo zapsáno. Při uložení se stávající soubor zachová pod názvem s časovým razítkem a vytvoří se nový, který obsahuje jen tuto verzi.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 není čitelný mapovací soubor (%2). Nic nebylo zapsáno. Při uložení se stávající soubor zachová pod názvem s časovým razítkem a vytvoří se nový. Ostatní verze pocházejí ze zálohy %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 je nečitelný a nepodařilo se ho zachovat jako %2 (%3). Nic nebylo zapsáno. Uložte pod jiným názvem.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 byl od otevření smazán nebo přejmenován. Při uložení se soubor vytvoří znovu a bude obsahovat jen tuto verzi (%2). Zatím nebylo nic zapsáno.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 od otevření změnil někdo jiný, ale ne tuto verzi (%2). Při uložení zůstanou ostatní verze, jak jsou nyní v souboru. Zatím nebylo nic zapsáno.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 od otevření změnil někdo jiný, i tuto verzi (%2). Při uložení se jeho změny v této verzi ztratí. Zatím nebylo nic zapsáno: přesto uložte, uložte pod jiným názvem nebo soubor otevřete znovu.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Do %1 nelze zapisovat (%2). Nic nebylo zapsáno. Zkontrolujte oprávnění k zápisu nebo uložte pod jiným názvem.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 nebyl uložen: %2. Soubor je beze změny, změny jsou stále otevřené. Uvolněte místo a uložte ještě jednou, nebo uložte pod jiným názvem.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>soubor se nepodařilo zapsat celý</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>zapsaný soubor není čitelný (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>zapsaný soubor neobsahuje, co mělo být uloženo</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>v zapsaném souboru chybí verze %1, nebo je jiná</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Záložní kopii %1 se nepodařilo vytvořit (%2). Nic nebylo zapsáno. Uvolněte místo nebo uložte pod jiným názvem.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 během ukládání změnil někdo jiný. Nic nebylo zapsáno. Uložte ještě jednou.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 nebyl uložen: %2. Soubor je beze změny, změny jsou stále otevřené. Uložte pod jiným názvem.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Příručka</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Obsah</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Hledat na stránce</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Historie rozhodnutí...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Kdo co rozhodl, kdy a proč</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Důvod rozhodnutí...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>K poslednímu rozhodnutí nebo k vybraným řádkům, například proč není nástupce</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Řádek %1 v %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln řádek v %1</numerusform>
            <numerusform>%Ln řádky v %1</numerusform>
            <numerusform>%Ln řádků v %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Důvod zaznamenán: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Historie rozhodnutí</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Vybraný řádek</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Vybraný projekt</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Všechny projekty</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Hledat kdo, projekt, cíl nebo důvod</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Načíst znovu</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Uložit jako CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Nečitelné řádky žurnálu: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Rozhodnutí: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Soubor nelze zapsat.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>bez nástupce</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (neuloženo)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Dosud</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nové</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Důvod</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Převzato z %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Složka se soubory CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Adresář katalogu</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Import tabulek</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Složka se soubory CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Adresář katalogu:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Z každého souboru CSV vznikne projekt s tabulkou na stejném místě v katalogu. Při opětovném importu tabulek zůstanou čísla řádků zachována.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Chybí složka se soubory CSV.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Chybí adresář katalogu; vytvoří se, pokud existuje nadřazený adresář.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Jeden adresář leží ve druhém.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Potvrdit řádek nebo přiřadit vybraný řádek</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Zrušit přiřazení řádku</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Zrušit přiřazení a potvrdit jako neplatný</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Upravit přiřazení rozsahů hodnot</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Kopírovat podmínku z řádku</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Potvrdit celý projekt</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Hledat v tabulce</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Hledat další</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Hledat předchozí</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtr sloupce</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Kopírovat řádky</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Větší tabulka</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Menší tabulka</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabulka v normální velikosti</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Výchozí</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>Žádná &amp;klávesa</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Klávesy</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Příkaz nebo klávesa</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Příkazy</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Příkaz</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Kde</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Klávesa</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabulka</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Klávesa pro: %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Klávesu %1 potřebují samotná pole a seznamy.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Klávesu %1 by měly %2 a %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Vlastní volba</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 pak už nebude mít klávesu %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Klávesu %1 má teď %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nic nenalezeno</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Potvrzený: přiřazení je rozhodnuto</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Návrh: je třeba ho potvrdit nebo opravit</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Bez obrázku: jednoznačně stejný, přiřazen programem</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Nenalezeno žádné přiřazení</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Neplatný: potvrzeno, že přiřazení neexistuje</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Konflikt se změnou někoho jiného</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Projekt nebo tabulku nelze přečíst</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Přiřazení rozsahů hodnot řádku</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>V cílové tabulce: přiřazený řádek</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Podmínka zkopírována do schránky</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Zkopírovanou podmínku takto ještě nelze použít: chybí hodnota, je rozsahem nebo obsahuje uvozovku: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Zde ve filtru je vše hotovo, mimo něj je ještě %Ln otevřený řádek.</numerusform>
            <numerusform>Zde ve filtru je vše hotovo, mimo něj jsou ještě %Ln otevřené řádky.</numerusform>
            <numerusform>Zde ve filtru je vše hotovo, mimo něj je ještě %Ln otevřených řádků.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Dosaženo konce, pokračuje se od začátku</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Dosaženo začátku, pokračuje se od konce</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Konflikt %1 z %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Žádný řádek není v některém ze zvolených stavů</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Žádný řádek už nepotřebuje rozhodnutí</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Žádný z otevřených řádků nelze zobrazit; chybí tabulky</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Přejít na řádek</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Číslo nebo normové označení:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Přejít</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Není vybrán žádný projekt</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>V tomto projektu není řádek s „%1“</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Výskyt %1 z %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Provést</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Tento krok lze vzít zpět.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Jde o označené řádky.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Jde o všechny řádky projektu.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filtr: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Žádný jiný projekt takové řádky nemá</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Jde jen o zobrazené řádky projektu: %1 z %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Konflikt</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Zobrazit jen řádky v konfliktu se změnou někoho jiného a jejich projekty</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Ke kontrole</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Zobrazit jen řádky s návrhem, který je třeba potvrdit nebo opravit, a jejich projekty</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Bez cíle</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Zobrazit jen řádky, pro které se nic nenašlo, a jejich projekty</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automaticky</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Zobrazit jen řádky, které jsou jednoznačně stejné a přiřadil je program, a jejich projekty</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potvrzené</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Zobrazit jen řádky s potvrzeným přiřazením a jejich projekty</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Neplatné</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Zobrazit jen řádky potvrzené jako neplatné a jejich projekty</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Používat databázi odkazů</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Soubor na tomto počítači</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Server PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>obvyklý</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Heslo je v souboru hesel, v klíčence prostředí nebo v PGPASSWORD, nebo se zadává při přihlášení. Neukládá se.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>pokud možno</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>vždy</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>vždy, server ověřen</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nikdy</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Druh:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Soubor:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>Počí&amp;tač:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>Po&amp;rt:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Databáze:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>&amp;Uživatel:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>Ši&amp;frování:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Databáze odkazů: chybí název souboru.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Databáze odkazů: název databáze chybí nebo není platný.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Zkontrolovat čísla databáze odkazů</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>V databázi odkazů není žádná skupina, do které patříte.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Vybrat skupinu</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Skupina databáze odkazů:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Řádek %1 z %2 není v tomto mapování.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Kontrolují se čísla databáze odkazů</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Čísla se nepodařilo zkontrolovat.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Změny v databázi odkazů jsou možná ztraceny.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Chybí licence pro databázi odkazů.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Přihlášení k databázi odkazů</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Heslo platí do konce programu a neukládá se. Zůstane-li prázdné, vezme se ze souboru hesel.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Pod tímto jménem je v protokolu uvedeno, kdo něco smazal.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Správce odkazů</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Hledat číslo, projekt nebo popis</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Číslo</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Popis</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Zobrazit řádek</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Propojit s jiným řádkem...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Potom vyberte projekt a řádek a odešlete výběr příkazem „Výběr do správce odkazů“.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Naposledy smazané...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Za&amp;vřít</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Odkazy: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Není smazáno nic, co by šlo obnovit.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Obnovit naposledy smazané? Řádky: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 je smazal(a) %2 z %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Obnovit</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>První %Ln odkaz; hledání ukáže další.</numerusform>
            <numerusform>První %Ln odkazy; hledání ukáže další.</numerusform>
            <numerusform>Prvních %Ln odkazů; hledání ukáže další.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Kontrola čísel</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Číslo</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Nález</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Čísla u projektů tohoto mapování: %1, u jiných projektů: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Neporovnáno, protože nečitelné: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Řádek neplatný nebo neexistuje</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>potvrzeno jako neplatný</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>projekt ho nemá</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Nárokováno několika řádky</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Díl se liší</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Díl se liší (neporovnáno)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Otevřené řádky s čísly</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Čísla: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Řádek %1 v %2 neexistuje.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Projekt %1 nelze zobrazit.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Najít</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projekt, řádek, příkaz nebo nastavení</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Nalezené</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Stačí části slov; číslo na konci znamená řádek.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nic nenalezeno</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln výskyt</numerusform>
            <numerusform>%Ln výskyty</numerusform>
            <numerusform>%Ln výskytů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>První výskyty: %1 z %Ln</numerusform>
            <numerusform>První výskyty: %1 z %Ln</numerusform>
            <numerusform>První výskyty: %1 z %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Řádek %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Příkaz</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Nastavení</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Chyba: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Varování: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Hlášení</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Vymazat hlášení</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Kopírovat všechna hlášení</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Uživatel:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Heslo:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Žádné spojení s databází odkazů: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Čísla ERP nelze přečíst. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Řádky přiřazeny znovu: žádná změna</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Zde takový řádek není. %1 přejde na další.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>jen pro čtení</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Vlevo je stará verze katalogu. Obrázky ukazují, kde je ještě co rozhodnout. Vyberte projekt, abyste viděli jeho řádky.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Cíle</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Zde jsou projekty nové verze, které mohou převzít řádky, s podmínkami a mapováním proměnných.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Vlevo stará tabulka, vpravo nová. %1 potvrdí přiřazení nebo přiřadí řádek vybraný vpravo, %2 ho zruší, %3 potvrdí, že řádek je neplatný.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Co je ještě otevřené</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Počítadlo říká, kolik řádků potřebuje rozhodnutí. %1 přejde na další, i v dalším projektu.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Nic se neztratí</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Každý krok lze vzít zpět. Co není uloženo, nabídne program po pádu k obnovení. Prohlídka je v nabídce Nápověda.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Přiřadit řádky celého katalogu?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Potvrzené v každém případě zůstane. Tento krok lze vzít zpět.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Jen řádky bez přiřazení</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Vše nepotvrzené znovu</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Přiřazeny všechny projekty</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Cílový projekt %1 neexistuje.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Cílový projekt: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Nastavení: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>K tomuto místu není žádná nápověda</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Vyprázdnit seznam</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Sdílení</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Naposledy otevřené</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>Úp&amp;ravy</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>&amp;Přejít</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Kontrola</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Zobrazení</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Jen řádky</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Databáze odkazů</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Stavy řádků</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Nástroje</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Není otevřen žádný soubor k úpravám.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Vlastní změny na verzi ze souboru</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln konflikt: vlastní rozhodnutí</numerusform>
            <numerusform>%Ln konflikty: vlastní rozhodnutí</numerusform>
            <numerusform>%Ln konfliktů: vlastní rozhodnutí</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln konflikt: rozhodnutí druhé strany</numerusform>
            <numerusform>%Ln konflikty: rozhodnutí druhé strany</numerusform>
            <numerusform>%Ln konfliktů: rozhodnutí druhé strany</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln konflikt: rozhodnout znovu</numerusform>
            <numerusform>%Ln konflikty: rozhodnout znovu</numerusform>
            <numerusform>%Ln konfliktů: rozhodnout znovu</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Do žurnálu %1 nelze zapisovat (%2). Po pádu by byly změny ztraceny: brzy uložte.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Obnovenou verzi nelze zajistit (%1). Uvolněte místo a otevřete znovu; žurnál je beze změny.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Obnovení po pádu</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Žurnál %1 nelze vytvořit (%2). Po pádu by byly změny ztraceny: ukládejte často.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Není otevřen žádný mapovací soubor.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Právě se ukládá.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Nebylo uloženo. %1 Uložte pod jiným názvem.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Zámek souboru %1 je ztracen a nelze ho obnovit. Ostatní by mohli soubor upravovat současně.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Automatické ukládání se nezdařilo (%1). Brzy uložte.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Změna nebyla převzata. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Konflikty označeny</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Vráceno zpět: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Provedeno znovu: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>„%1“ už neodpovídá tomu, co se potom změnilo. Seznam kroků říká, co tomu brání.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Hledají se cílové projekty</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Přerušeno, nic nebylo vytvořeno</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Přiřazují se řádky</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projekt: na stejném místě %1, na jiném %2, rozdělené %3, bez cíle %4, nečitelné %5</numerusform>
            <numerusform>%Ln projekty: na stejném místě %1, na jiném %2, rozdělené %3, bez cíle %4, nečitelné %5</numerusform>
            <numerusform>%Ln projektů: na stejném místě %1, na jiném %2, rozdělených %3, bez cíle %4, nečitelných %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 z %Ln projektu</numerusform>
            <numerusform>%1 z %Ln projektů</numerusform>
            <numerusform>%1 z %Ln projektů</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>z toho přiřazené %1, ke kontrole %2, bez cíle %3</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Přerušeno: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 s %Ln řádkem</numerusform>
            <numerusform>%1 se %Ln řádky</numerusform>
            <numerusform>%1 s %Ln řádky</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>Převzata %Ln změna.</numerusform>
            <numerusform>Převzaty %Ln změny.</numerusform>
            <numerusform>Převzato %Ln změn.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln řádek rozhodli oba stejně.</numerusform>
            <numerusform>%Ln řádky rozhodli oba stejně.</numerusform>
            <numerusform>%Ln řádků rozhodli oba stejně.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln řádek je rozhodnut různě a označen jako konflikt.</numerusform>
            <numerusform>%Ln řádky jsou rozhodnuty různě a označeny jako konflikt.</numerusform>
            <numerusform>%Ln řádků je rozhodnuto různě a označeno jako konflikt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln jiný rozpor: platí verze ze souboru.</numerusform>
            <numerusform>%Ln jiné rozpory: platí verze ze souboru.</numerusform>
            <numerusform>%Ln jiných rozporů: platí verze ze souboru.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Řádek %1 nelze zobrazit</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Není vybrán žádný nález</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Opraveno: %1 v %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tabulky se porovnávají</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>Prohlédnut %Ln přiřazený řádek</numerusform>
            <numerusform>Prohlédnuty %Ln přiřazené řádky</numerusform>
            <numerusform>Prohlédnuto %Ln přiřazených řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln nález</numerusform>
            <numerusform>%Ln nálezy</numerusform>
            <numerusform>%Ln nálezů</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Sousedství</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Řádky %1 až %2 jsou posunuty o %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Řádky %1 a %2 jsou zaměněny</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Řádek %1 je vedle o %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Řádek %1 má cílový řádek jiného</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Řádek %1 je přeskočen</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>nerozhodnuto</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Opraveno: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Nález</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Opraveno</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Adresář staré verze katalogu</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Adresář nové verze katalogu</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>Přiřadit &amp;hned řádky</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Nové mapování</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Stará verze katalogu:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Katalog v něm:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Nová verze katalogu:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Zvolit mapovací soubor</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Mapovací soubor:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Vytvořit</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Chybí adresář staré verze katalogu.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Chybí adresář nové verze katalogu.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Každá verze potřebuje adresář s katalogem.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Mapovací soubor potřebuje název.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Adresář %1 neexistuje.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 už existuje.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Při uložení přibude nová verze; verze se stejným datem bude nahrazena, se vším, co je v ní potvrzeno.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Použít tento soubor</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>médium je plné</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>soubor je větší, než je zde dovoleno</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>chybí oprávnění k zápisu</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>médium je chráněno proti zápisu</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>složka nebo soubor už neexistuje</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>na jeho místě je něco jiného než běžný soubor</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>bez cíle</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Starý řádek</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nový řádek</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Další rozdíly</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Tabulku projektu nelze přečíst.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Cesta:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Norma:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Označení:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Verze projektu:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Verze tabulky:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Řádky:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Soubor:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtrovat</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln otevřený řádek s návrhem</numerusform>
            <numerusform>%Ln otevřené řádky s návrhem</numerusform>
            <numerusform>%Ln otevřených řádků s návrhem</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>v %Ln vzoru</numerusform>
            <numerusform>ve %Ln vzorech</numerusform>
            <numerusform>v %Ln vzorech</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln z nich se ještě porovnává</numerusform>
            <numerusform>%Ln z nich se ještě porovnávají</numerusform>
            <numerusform>%Ln z nich se ještě porovnává</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Vybráno: %Ln řádek</numerusform>
            <numerusform>Vybráno: %Ln řádky</numerusform>
            <numerusform>Vybráno: %Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln z nich vyjmut</numerusform>
            <numerusform>%Ln z nich vyjmuty</numerusform>
            <numerusform>%Ln z nich vyjmuto</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Rozdíly otevřených řádků</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>v %Ln projektu</numerusform>
            <numerusform>ve %Ln projektech</numerusform>
            <numerusform>v %Ln projektech</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln otevřený řádek bez nástupce</numerusform>
            <numerusform>%Ln otevřené řádky bez nástupce</numerusform>
            <numerusform>%Ln otevřených řádků bez nástupce</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tabulky se porovnávají: přečten %Ln projekt</numerusform>
            <numerusform>Tabulky se porovnávají: přečteny %Ln projekty</numerusform>
            <numerusform>Tabulky se porovnávají: přečteno %Ln projektů</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln řádek</numerusform>
            <numerusform>%Ln řádky</numerusform>
            <numerusform>%Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projekt</numerusform>
            <numerusform>%Ln projekty</numerusform>
            <numerusform>%Ln projektů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>Ještě %Ln řádek má tyto a jiné rozdíly</numerusform>
            <numerusform>Ještě %Ln řádky mají tyto a jiné rozdíly</numerusform>
            <numerusform>Ještě %Ln řádků má tyto a jiné rozdíly</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Rozdíl</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Jistota</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Výjimky</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>číslo poblíž</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>jiné číslo</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>jiné znění</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>hodnota přibyla</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>hodnota chybí</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>nelze porovnat</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>žádný rozdíl</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>jiný zápis</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>nejisté: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>celá složka bez cíle: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>celý projekt bez cíle: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>cílový projekt už neexistuje: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 už neexistuje</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>žádný podobný řádek: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>název projektu</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>jiný</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>jiná hodnota</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>v každém řádku jedna nebo několik z nich</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>nedostupné: není otevřen žádný soubor</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>nedostupné: databáze odkazů se připojuje</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>nedostupné: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>nedostupné: není připojena žádná databáze odkazů</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>nedostupné: správce odkazů nečeká na žádný výběr</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>nedostupné: není vybrán žádný projekt</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>nedostupné: není vybrán žádný řádek</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Číslo ERP pro %1, řádek %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Prosíme o přidělení čísla ERP.

Projekt: %1
Řádek: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>E-mail se nepodařilo založit.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Na tomto počítači není nastaven žádný poštovní program. Žádost zní:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Není vidět žádná tabulka, kterou by bylo možné vytisknout</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Zpráva</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Tisk: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 bylo předáno tiskárně</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 vytištěno do %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 se nepodařilo vytisknout.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Tiskárna nepřijímá stránky.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 nelze zapsat.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Strana</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Otázka</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Upozornění</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln řádek je potvrzen, ačkoli hodnoty jeho rozsahu nemají nový řádek.</numerusform>
            <numerusform>%Ln řádky jsou potvrzeny, ačkoli hodnoty jejich rozsahů nemají nový řádek.</numerusform>
            <numerusform>%Ln řádků je potvrzeno, ačkoli hodnoty jejich rozsahů nemají nový řádek.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Vzít zpět</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Přesto potvrdit</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln řádek</numerusform>
            <numerusform>%1: %Ln řádky</numerusform>
            <numerusform>%1: %Ln řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Řádek nemá přiřazení rozsahů hodnot.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>chybějící: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>vícekrát: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>mimo starý rozsah: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rozsah hodnot řádku</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: přiřazené hodnoty: %2 z %Ln</numerusform>
            <numerusform>%1: přiřazené hodnoty: %2 z %Ln</numerusform>
            <numerusform>%1: přiřazené hodnoty: %2 z %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Důvod rozhodnutí</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Pro:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Důvod:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>vyřazeno z nabídky</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>sloučeno s jiným dílem</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>rozděleno na několik dílů</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>přesunuto do jiného katalogu</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>ještě nezkontrolováno</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Obnovení</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Uloženo</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Obnoveno</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Stav k</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potvrzené</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Ke kontrole</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Bez cíle</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Uložená verze je novější než vše, co lze obnovit.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>O&amp;bnovit</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>S &amp;pozdějšími změnami (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Otevřít uloženou verzi</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln krok</numerusform>
            <numerusform>%Ln kroky</numerusform>
            <numerusform>%Ln kroků</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>K %1 existuje práce, která nebyla uložena: %2, naposledy „%3“. Pochází od %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 s %Ln řádkem</numerusform>
            <numerusform>%1 se %Ln řádky</numerusform>
            <numerusform>%1 s %Ln řádky</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 ve %Ln projektech</numerusform>
            <numerusform>%1 v %Ln projektech</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Importují se tabulky</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 už nemá soubor CSV a zůstává, jak je</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Ve složce není žádný soubor CSV; nic nebylo importováno</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Přerušeno: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Nebylo zapsáno vše: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 nelze zapsat.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Export řádků</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabulky (*.csv);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Exportují se řádky</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Přerušeno, nic nebylo exportováno</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Zapsat zprávu</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Soubory PDF (*.pdf);;Stránky HTML (*.html);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Vytváří se zpráva</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Přerušeno, žádná zpráva nebyla zapsána</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Sázejí se stránky</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Zpráva zapsána do %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Zrušeno, zpráva nebyla vytvořena</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Strana %1 z %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabulka</numerusform>
            <numerusform>%Ln tabulky</numerusform>
            <numerusform>%Ln tabulek</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>nové %1, změněné %2, nezměněné %3, neimportované %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln řádek exportován do %1</numerusform>
            <numerusform>%Ln řádky exportovány do %1</numerusform>
            <numerusform>%Ln řádků exportováno do %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 s %Ln řádkem</numerusform>
            <numerusform>%1 se %Ln řádky</numerusform>
            <numerusform>%1 s %Ln řádky</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Dohodnuté náhrady</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>v celé verzi katalogu</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Dohodnout</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Odvolat</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>Do&amp;klady</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Převzít</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Náhrada říká, že stará hodnota odpovídá nové. Vytváří návrhy, ale nic nepotvrzuje.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>dohodnuto</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>dohodnuto v %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Čtou se tabulky</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln řádek pro</numerusform>
            <numerusform>%Ln řádky pro</numerusform>
            <numerusform>%Ln řádků pro</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln řádek proti</numerusform>
            <numerusform>%Ln řádky proti</numerusform>
            <numerusform>%Ln řádků proti</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Žádná není dohodnuta. Je-li seznam rozdílů otevřený, nabízejí se zde jeho náhrady.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Zpráva o mapování: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Verze katalogu %1 na %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Vytvořeno %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Stav řádků</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Podle složek, se vším pod nimi</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Podle projektů</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Proč jsou řádky otevřené</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>V čem se otevřené řádky liší od svých návrhů</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Náhodné vzorky</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Kdo co rozhodl</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Otevřené řádky</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Co se nepodařilo přečíst</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potvrzené</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Potvrzeno jako neplatné</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Přiřazeno s jistotou</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Ke kontrole</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Bez cíle</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>V konfliktu</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Označení</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Důvod</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Rozdíly</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Pravděpodobnost</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Výjimky</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Příklady</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Posouzeno</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Správně</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Chybných nejvýše (s jistotou 95 %)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>odmítnut</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabulka není čitelná</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>nelze porovnat</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>žádný rozdíl</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>a dalších %1</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>dva rozhodli různě</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>rozhoduje někdo jiný</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>tabulka není čitelná</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>podmínka nebo vzorec selhává</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>žádný cíl není příslušný</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>chybí sloupec</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>několik řádků je stejných</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>příliš nepodobné</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>stejné, jen nepotvrzené</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>nejisté: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Otevřené řádky bez nástupce</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Řádky potvrzené jako neplatné</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Co mají společného</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>celkem</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Převzato z dřívějších mapování</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Dřívější mapování</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Stále jako převzaté</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Posouzené řádky</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Vyřízené řádky: %1 z %2; otevřené: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>Číst &amp;cílové projekty z repozitáře</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://server:port/cesta</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Na každém řádku jeden katalog. Bez řádku je název katalogu zároveň názvem jeho serveru.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>nejnovější</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>Ser&amp;ver:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Revi&amp;ze:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>&amp;Místo na tomto počítači:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Čekání &amp;na server:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Server, řádek %1: &quot;%2&quot; nemá tvar &quot;Katalog = svn://server:port/cesta&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Přihlášení k repozitáři</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 vyžaduje přihlášení.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Jméno a heslo platí do konce programu a neukládají se.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Řádek %1 nelze zobrazit</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Žádný řádek už není otevřený</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tabulky ještě nejsou porovnány</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Od začátku: %Ln otevřený řádek</numerusform>
            <numerusform>Od začátku: %Ln otevřené řádky</numerusform>
            <numerusform>Od začátku: %Ln otevřených řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Otevřené řádky přicházejí podle nejistoty</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Otevřené řádky přicházejí podle místa</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Řádek nepatří k vybranému vzoru</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Řádek %1 vyjmut</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Není vybrán žádný vzor, nebo jsou všechny jeho řádky rozhodnuty</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln řádek</numerusform>
            <numerusform>%Ln řádky</numerusform>
            <numerusform>%Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>potvrdit v %Ln projektu?</numerusform>
            <numerusform>potvrdit ve %Ln projektech?</numerusform>
            <numerusform>potvrdit v %Ln projektech?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Tento krok lze vzít zpět.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Potvrdit</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>Potvrzen %Ln řádek</numerusform>
            <numerusform>Potvrzeny %Ln řádky</numerusform>
            <numerusform>Potvrzeno %Ln řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Kandidát %1 neexistuje</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Řádek %1 → %2 potvrzen</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Dohodnuté náhrady: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Vyberte vzor nebo označte otevřené řádky</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Náhodný vzorek</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Losovat</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Vzorek, řádek %1 z %2: + správně, − chybně</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Žádný vzorek neprobíhá</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Všechny řádky vzorku jsou už rozhodnuty</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>správně %1 z %2</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Vzorek odmítnut, %1; posoudil(a) %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>všechny řádky posouzeny</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>s jistotou 95 % méně než %1 % chybných</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Vzorek: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>posoudil(a) %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>tam byl ten chybný</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Řádek %1 je chybný: vzorek končí</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>Po&amp;kračovat</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>Prohlédnout &amp;chybný řádek</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln z nich je nejistý.</numerusform>
            <numerusform>%Ln z nich jsou nejisté.</numerusform>
            <numerusform>%Ln z nich je nejistých.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Všechny vzory jsou vyřízeny</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>v %Ln projektu</numerusform>
            <numerusform>ve %Ln projektech</numerusform>
            <numerusform>v %Ln projektech</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln řádek potvrzen jako neplatný</numerusform>
            <numerusform>%Ln řádky potvrzeny jako neplatné</numerusform>
            <numerusform>%Ln řádků potvrzeno jako neplatné</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Řádek %1 v %2 je chybný. Množina je rozdělena; se kterou částí pokračovat?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Tolik z %Ln řádku se vylosuje a posoudí jednotlivě. %1 správných říká s jistotou 95 %, že méně než 5 % je chybných, %2 správných méně než 1 %.</numerusform>
            <numerusform>Tolik z %Ln řádků se vylosuje a posoudí jednotlivě. %1 správných říká s jistotou 95 %, že méně než 5 % je chybných, %2 správných méně než 1 %.</numerusform>
            <numerusform>Tolik z %Ln řádků se vylosuje a posoudí jednotlivě. %1 správných říká s jistotou 95 %, že méně než 5 % je chybných, %2 správných méně než 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Konzole skriptů</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Výstup skriptů</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Řádek skriptu</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Řádek JavaScriptu. Enter ho provede, Tab doplní, šipkami nahoru a dolů se listuje.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Zastaví běžící skript (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Vyprázdnit</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Smaže výstup</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Skript %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konzole)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Hotovo, stav %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Je příliš velký.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Není to text v UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 nelze přečíst. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Otevřít skript</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Skripty (*.js);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Uložit skript</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 nelze zapsat. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Skript není uložen.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(beze jména)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nový skript</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Otevřít …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Spustit</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumenty:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Text skriptu</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumenty</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>na</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(proces %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Žurnál %1 nelze přečíst (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Za poslední ukončenou relací není žurnál %1 čitelný. Co tam bylo, není známo; žurnál se zachová.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Konec žurnálu %1 není čitelný. Poslední změna může chybět.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Žurnál %1 je poškozen. Za poškozeným místem se ještě hodí %Ln změna, už se nehodí: %2; další mohou chybět. Žurnál se zachová.</numerusform>
            <numerusform>Žurnál %1 je poškozen. Za poškozeným místem se ještě hodí %Ln změny, už se nehodí: %2; další mohou chybět. Žurnál se zachová.</numerusform>
            <numerusform>Žurnál %1 je poškozen. Za poškozeným místem se ještě hodí %Ln změn, už se nehodí: %2; další mohou chybět. Žurnál se zachová.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Žurnál %1 je poškozen nebo se nehodí k mapovacímu souboru. Chybí nejméně %Ln pozdější změna; žurnál se zachová.</numerusform>
            <numerusform>Žurnál %1 je poškozen nebo se nehodí k mapovacímu souboru. Chybí nejméně %Ln pozdější změny; žurnál se zachová.</numerusform>
            <numerusform>Žurnál %1 je poškozen nebo se nehodí k mapovacímu souboru. Chybí nejméně %Ln pozdějších změn; žurnál se zachová.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Po rozhodnutí přejít na další &amp;otevřený řádek</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Jako prostředí</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Světlé</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Tmavé</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nikdy</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Jazyk:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>&amp;Barvy:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Veli&amp;kost písma:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Záložní kopie každýc&amp;h:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Vysoký kontrast</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Na každém řádku jedna složka, ze které se smí číst to, co soubory katalogu uvádějí mimo katalogy.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Povolené složky:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Povolené složky: „%1“ není složka s úplnou cestou.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Mapování se s nikým nesdílí. Nejprve zvolte společnou kopii.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 už existuje a je to jiné mapování. Zvolte jinou kopii, nebo stávající načtěte do nového souboru.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Ostatní od poslední aktualizace něco zveřejnili.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Řádky v konfliktu se nezveřejňují: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Jsou změny ve složkách ostatních: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Složka je už obsazena: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Právě zveřejňuje někdo jiný (%1). Zkuste to za chvíli znovu.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Společná kopie není dostupná: %1. Vlastní soubor je beze změny; zkuste to později znovu.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Jeden ze souborů není čitelné mapování: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Nepodařilo se zapsat: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>To se nezdařilo.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Čte se společná kopie</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Sdíleno přes %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Načítají se změny ostatních</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Není nic nového</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Zveřejňují se změny</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapování upraveno</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Zveřejněno, stav %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Nejprve se převezme toto. Potom lze zveřejnit.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Aktualizovat</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Přesto zveřejnit</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Převzít složky</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>Pře&amp;vzít</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Zapisují se složky</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Už žádné vlastní složky</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Vlastní složky: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(zde)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>má otevřeno</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>nemá otevřeno</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>naposledy %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>složky %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Vlastní stav %1, nejnovější stav %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Ostatní něco zveřejnili.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Od ostatních není nic nového.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Vlastní změny ještě nejsou zveřejněny.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Společná kopie: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Poslední zveřejnění bylo přerušeno, ale dorazilo.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Poslední zveřejnění bylo přerušeno. Zveřejněte ještě jednou.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Společný soubor byl v pracovní kopii změněn a neodeslán. To je uchováno v %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Pracovní kopie byla opuštěna uprostřed práce a byla uklizena.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Správa pracovní kopie byla poškozena a byla načtena znovu; dřívější je %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Něco přerušeného bylo uvedeno do pořádku.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Složky katalogu, oddělené čárkami; * zastupuje libovolné znaky, ? jeden znak. Prázdné vrátí všechny:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>zpět</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Vše rozhodnuto</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Řádky, které ještě potřebují rozhodnutí</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filtr: žádný řádek</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Řádky, které ukazuje filtr přes všechny řádky</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln řádek&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln řádky&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln řádků&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Otevřené: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtr: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 ve %Ln projektech</numerusform>
            <numerusform>%1 v %Ln projektech</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Zatím není přiřazen žádný řádek</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Přeruší probíhající práci; co je hotové, zůstane</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Chyby a varování: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Kroky</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Hledat kdo, co nebo řádky</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>Z&amp;pět až sem</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Vezme zpět tento a všechny pozdější platné kroky</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Na řá&amp;dek</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Vzít zpět se závislými (%Ln)</numerusform>
            <numerusform>&amp;Vzít zpět se závislými (%Ln)</numerusform>
            <numerusform>&amp;Vzít zpět se závislými (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Vzít zpět jen tento</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Znovu provést s dřívějšími (%Ln)</numerusform>
            <numerusform>&amp;Znovu provést s dřívějšími (%Ln)</numerusform>
            <numerusform>&amp;Znovu provést s dřívějšími (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Znovu provést</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Zatím žádný krok</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Žádný jiný krok na něm nezávisí.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Krok lze samostatně znovu provést.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Na tom staví: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Staví na: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Brání tomu, protože rozhodly jinak: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Nyní je tam něco jiného, o čem nerozhodl žádný krok tohoto seznamu, například jiný program. Krokem už nelze pohnout.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>a další: %Ln</numerusform>
            <numerusform>a další: %Ln</numerusform>
            <numerusform>a další: %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 ve %Ln projektech</numerusform>
            <numerusform>%1 v %Ln projektech</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>platí</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>vzato zpět</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>překonáno</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Stav k</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Řádky</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Změna v %1 se projeví, až se řádky přiřadí znovu. Zachová se přitom jen to, co je potvrzeno.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln řádek v %1 byl potvrzen jako neplatný a už není: %2</numerusform>
            <numerusform>%Ln řádky v %1 byly potvrzeny jako neplatné a už nejsou: %2</numerusform>
            <numerusform>%Ln řádků v %1 bylo potvrzeno jako neplatné a už není: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>V %1 zůstávají ignorované proměnné: %2. Chcete-li některou znovu přiřadit, zvolte &quot;Vzorec...&quot; nebo řádek smažte a zadejte znovu.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Odpadla podmínka cílového projektu %1 v %2.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Odpadlo mapování proměnných cílového projektu %1 v %2.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Řádek %1 → %2 v %3: cílový řádek má i %Ln jiný řádek: %4</numerusform>
            <numerusform>Řádek %1 → %2 v %3: cílový řádek mají i %Ln jiné řádky: %4</numerusform>
            <numerusform>Řádek %1 → %2 v %3: cílový řádek má i %Ln jiných řádků: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln řádek v %1 sdílí svůj cílový řádek s nově přiřazenými: %2</numerusform>
            <numerusform>%Ln řádky v %1 sdílejí svůj cílový řádek s nově přiřazenými: %2</numerusform>
            <numerusform>%Ln řádků v %1 sdílí svůj cílový řádek s nově přiřazenými: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>přijat %Ln konflikt</numerusform>
            <numerusform>přijaty %Ln konflikty</numerusform>
            <numerusform>přijato %Ln konfliktů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>Potvrzen %Ln řádek</numerusform>
            <numerusform>Potvrzeny %Ln řádky</numerusform>
            <numerusform>Potvrzeno %Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln řádek potvrzen jako neplatný</numerusform>
            <numerusform>%Ln řádky potvrzeny jako neplatné</numerusform>
            <numerusform>%Ln řádků potvrzeno jako neplatné</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>přiřazen %Ln řádek</numerusform>
            <numerusform>přiřazeny %Ln řádky</numerusform>
            <numerusform>přiřazeno %Ln řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>přiřazení %Ln řádku zrušeno</numerusform>
            <numerusform>přiřazení %Ln řádků zrušeno</numerusform>
            <numerusform>přiřazení %Ln řádků zrušeno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>přiřazení rozsahů hodnot %Ln řádku změněno</numerusform>
            <numerusform>přiřazení rozsahů hodnot %Ln řádků změněno</numerusform>
            <numerusform>přiřazení rozsahů hodnot %Ln řádků změněno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>konflikt %Ln řádku vyřešen</numerusform>
            <numerusform>konflikt %Ln řádků vyřešen</numerusform>
            <numerusform>konflikt %Ln řádků vyřešen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>změněn %Ln řádek</numerusform>
            <numerusform>změněny %Ln řádky</numerusform>
            <numerusform>změněno %Ln řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>řádek %1 → %2 potvrzen</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>řádek %1 → %2 přiřazen</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (předtím %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>řádek %1 potvrzen jako neplatný (předtím %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>řádek %1 potvrzen jako neplatný</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>přiřazení řádku %1 zrušeno (předtím %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projekt přidán</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projekt odebrán</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Cílový projekt přidán</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Cílový projekt odebrán</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Pořadí cílových projektů změněno</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Podmínky změněny</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Mapování proměnných změněno</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Verze změněny</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Stav změněn</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 v %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 ve %Ln projektech</numerusform>
            <numerusform>%1 v %Ln projektech</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Přeskočit</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Další</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Hotovo</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, řádek %2: položka %3 přiřazení rozsahů hodnot nemá tvar {NAME=HODNOTA} -&gt; číslo řádku: &quot;%4&quot;. Opravte ji nebo rozložte znovu.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, řádek %2: přiřazení rozsahů hodnot uvádí řádek %3, ale řádek nemá cílový projekt. Přiřaďte ho nebo text vyprázdněte.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, řádek %2: přiřazení rozsahů hodnot uvádí řádek %3, který v %4 neexistuje. Opravte ho nebo rozložte znovu.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: tabulku cílového projektu %2 nelze přečíst, jeho přiřazení rozsahů hodnot nejsou zkontrolována. Zkontrolujte adresář cílových projektů (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Kontrolují se přiřazení rozsahů hodnot</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>Zkontrolováno %Ln přiřazení rozsahů hodnot</numerusform>
            <numerusform>Zkontrolována %Ln přiřazení rozsahů hodnot</numerusform>
            <numerusform>Zkontrolováno %Ln přiřazení rozsahů hodnot</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>bez výhrad</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln výhrada</numerusform>
            <numerusform>%Ln výhrady</numerusform>
            <numerusform>%Ln výhrad</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (přerušeno): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Porovnání verzí katalogů</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Vyšel nový katalog a každý řádek staré verze je třeba převést na řádek nové. Program navrhuje, vy kontrolujete a potvrzujete.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Naposledy otevřené:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>Nové &amp;mapování...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Vytvoří nový mapovací soubor ze dvou verzí katalogu</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>&amp;Otevřít...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Otevře mapovací soubor</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Otevřít &amp;vzorový katalog</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Otevře vlastní mapovací soubor pro přiložený vzorový katalog</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Uložit</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Zapíše všechny změny do mapovacího souboru</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Uložit &amp;jako...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Zapíše do jiného mapovacího souboru</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Zavře mapovací soubor</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Adresáře katalogů...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Zvolí adresáře staré a nové verze katalogu</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Společná kopie...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Zvolí kopii, přes kterou na tomto mapování pracuje více lidí</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Aktualizovat</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Převezme, co zveřejnili ostatní</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Zveřejnit</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Předá vlastní změny ostatním</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Převzít složky...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Sdělí ostatním, které složky sami upravujete</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Kdo na čem pracuje</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Ukáže, kdo má mapování otevřené a komu které složky patří</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importovat tabulky...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Vytvoří ze složky se soubory CSV projekty katalogu</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>&amp;Exportovat řádky...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Zapíše všechny řádky verze s jejich přiřazeními do souboru CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Zp&amp;ráva...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Zapíše jako PDF nebo HTML, jak daleko verze je a proč jsou řádky otevřené</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Konec</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Ukončí program</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>Zpě&amp;t</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Vezme zpět poslední krok</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>Zno&amp;vu</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Provede znovu krok vzatý zpět</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>Potv&amp;rdit řádky...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Potvrdí v jednom kroku přiřazení označených nebo všech zobrazených řádků</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Potvrdit řádky &amp;bez cíle jako neplatné...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Z označených nebo všech zobrazených řádků potvrdí jako neplatné ty bez cíle</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Zr&amp;ušit přiřazení...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Zruší v jednom kroku přiřazení označených nebo všech zobrazených řádků</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Zrušit přiřazení &amp;a potvrdit...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Označené nebo všechny zobrazené řádky jsou neplatné: zruší přiřazení a potvrdí v jednom kroku</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Přiřadit všechny projekty...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Hledá přiřazení pro všechny řádky katalogu; potvrzené zůstane</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Zkontrolovat přiřazení rozsahů &amp;hodnot</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Porovná všechny texty rozsahů hodnot s tabulkami cílových projektů</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>&amp;Skript...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Otevře okno, ve kterém se píší a spouštějí skripty</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Nastavení...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Jazyk, písmo, klávesy, zálohování</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Další otevřený řádek</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Přejde na další řádek, který potřebuje rozhodnutí, i v dalším projektu</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Předchozí &amp;otevřený řádek</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Přejde na předchozí řádek, který potřebuje rozhodnutí, i v předchozím projektu</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Přejít na řádek...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Hledá řádek projektu podle čísla nebo označení</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>Druhá &amp;tabulka</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Přepíná mezi starou a novou tabulkou</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Najít...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Najde projekty, řádky, příkazy a nastavení podle částí slov</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Vzory rozdílů</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Ukáže, v čem se otevřené řádky liší od svých návrhů</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Staré a nové</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Ukáže staré a nové hodnoty řádku vedle sebe a jeho kandidáty</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Potvrdit vzor...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Potvrdí v jednom kroku všechny řádky vybraného vzoru</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>Vyj&amp;mout řádek</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Řádek se nepotvrdí s ostatními řádky vzoru</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Další řádek vzoru</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Přejde na další otevřený řádek vybraného vzoru</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Před&amp;chozí řádek vzoru</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Přejde na předchozí otevřený řádek vybraného vzoru</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>D&amp;alší vzor</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Vybere další vzor v seznamu</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>&amp;Nejprve nejméně jisté</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Otevřené řádky přicházejí podle rizika omylu místo podle místa</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Souseds&amp;tví</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Ukáže, kde k sobě přiřazení sousedních řádků nepasují</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Sr&amp;ovnat řádky</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Opraví v jednom kroku vybraný nález v sousedství</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>Ná&amp;hrady...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Dohodne náhrady hodnot pro verzi katalogu nebo je odvolá</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Náhodný v&amp;zorek...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Vylosuje řádky vybraného vzoru nebo označené řádky, které se posuzují jednotlivě</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Vzo&amp;rek: správně</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Zobrazený řádek vzorku je přiřazen správně</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Vzore&amp;k: chybně</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Zobrazený řádek vzorku je přiřazen chybně; vzorek končí</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Kandidát &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Přiřadí řádku tohoto kandidáta a potvrdí ho</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Kandidát &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Kandidát &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Kandidát &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Kandidát &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rozsah hodnot řádku</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Ukáže, které hodnoty starého rozsahu mají nové řádky</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Kon&amp;flikty</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Ukáže řádky, které dvě strany rozhodly různě</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Další nerozhodnutý konflikt</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Přejde na další řádek, jehož konflikt je ještě nerozhodnutý</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Konflikt: vlastní rozhodnutí</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>V tomto konfliktu platí vlastní rozhodnutí</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Konflikt: jiné rozhodnutí</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>V tomto konfliktu platí rozhodnutí druhé strany</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Konflikt: rozhodnout znovu</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Žádné z rozhodnutí neplatí; řádek je opět bez cíle</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Sestaví zobrazení znovu: strom, statistiku, tabulky z disku</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>Pří&amp;ručka</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Otevře příručku na místě, o které jde</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Klávesy...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Ukáže a změní klávesy všech příkazů</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Nápověda k tomuto místu</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Ukáže nápovědu tam, kam směřují klávesy: v tabulce, proč má řádek svůj stav</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Prohlídka</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Ukáže v několika krocích, kde co je</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>O &amp;tomto programu</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Verze a adresáře</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Kroky...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Vypíše všechny kroky, i z dřívějších relací, a jednotlivé vezme zpět</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Další projekt s otevřenými řádky</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Přejde na další projekt, kde je o čem rozhodnout</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Předchozí projekt s otevřenými řádky</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Přejde na předchozí projekt, kde je o čem rozhodnout</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtr přes všechny řádky</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Vybere řádky všech projektů podle stavu, důvodu, rozdílu a osoby; F8 jimi prochází</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>&amp;Tisk...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Ukáže stránky viditelné tabulky a vytiskne je</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Ukáže stránky zprávy a vytiskne je</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Vytisknout zprávu...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Převzít rozhodnutí...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Převezme z dřívějšího mapování v jednom kroku to, co již bylo pro stejnou starou verzi potvrzeno</translation>
    </message>
</context>
</TS>
