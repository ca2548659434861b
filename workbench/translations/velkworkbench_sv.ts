<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Det finns inget att ändra.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Bekräfta %Ln rad?</numerusform>
            <numerusform>Bekräfta %Ln rader?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Bekräfta %Ln rad som utgången?</numerusform>
            <numerusform>Bekräfta %Ln rader som utgångna?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Ta bort tilldelningen av %Ln rad?</numerusform>
            <numerusform>Ta bort tilldelningen av %Ln rader?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Ta bort tilldelningen av %Ln rad och bekräfta den som utgången?</numerusform>
            <numerusform>Ta bort tilldelningen av %Ln rader och bekräfta dem som utgångna?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln av dem är redan bekräftad.</numerusform>
            <numerusform>%Ln av dem är redan bekräftade.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln av dem förlorar sin värdeområdestilldelning.</numerusform>
            <numerusform>%Ln av dem förlorar sina värdeområdestilldelningar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln rad utan mål förblir obekräftad.</numerusform>
            <numerusform>%Ln rader utan mål förblir obekräftade.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln rad förblir som den är.</numerusform>
            <numerusform>%Ln rader förblir som de är.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln rad i konflikt ändras inte.</numerusform>
            <numerusform>%Ln rader i konflikt ändras inte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln rad finns inte i något målprojekt.</numerusform>
            <numerusform>%Ln rader finns inte i något målprojekt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln rad bekräftad.</numerusform>
            <numerusform>%Ln rader bekräftade.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln rad bekräftad som utgången.</numerusform>
            <numerusform>%Ln rader bekräftade som utgångna.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Tilldelningen av %Ln rad borttagen.</numerusform>
            <numerusform>Tilldelningen av %Ln rader borttagen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Tilldelningen av %Ln rad borttagen och raden bekräftad som utgången.</numerusform>
            <numerusform>Tilldelningen av %Ln rader borttagen och raderna bekräftade som utgångna.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ingen efterföljare</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tangent</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Säkerhet</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Ny rad</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Skäl</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 redan beslutade eller säkra här</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 utan rad i den nya utgåvan</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 då bekräftade som utgångna</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 i projekt som saknas här</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 i konflikt där</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Inte övertagna: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Det finns inget att ta över från %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Filen innehåller ingen mappning från katalogutgåva %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Även den här filen leder till katalogutgåva %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Välj en mappning som leder från samma gamla katalogutgåva till en tidigare ny.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Övertagen från %1: bekräftad där för katalogutgåva %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Tidigare mappning läses</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Inget kan tas över från %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Katalog för katalogutgåva %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Målprojekt söks</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Beslut tas över</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Avbrutet, inget togs över</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Beslut övertagna från %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Övertaget från %1: %2 av %Ln bekräftad rad, %3 säkert tilldelade, %4 föreslagna.</numerusform>
            <numerusform>Övertaget från %1: %2 av %Ln bekräftade rader, %3 säkert tilldelade, %4 föreslagna.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Mapp för den gamla katalogutgåvan</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Mapp för den nya katalogutgåvan</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Katalogmappar</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Var ligger de två katalogutgåvorna för den här mappningsfilen? Mapparna sparas tillsammans med filen.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Gammal utgåva (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>Ny &amp;utgåva (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Båda mapparna behövs.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 är ingen mapp.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>%1 saknas i den gamla utgåvan. Det som söks är mappen där katalogen %2 ligger.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Katalogen %1 saknas i den nya utgåvan.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Raden %1 i %2 kan inte visas</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Ingen rad är i konflikt</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Alla konflikter är avgjorda; spara nu</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Konflikt %1 av %2, ännu %3 öppna</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln rad i %1 motsäger sig på samma sätt. Gäller beslutet för alla?</numerusform>
            <numerusform>%Ln rader i %1 motsäger sig på samma sätt. Gäller beslutet för alla?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Eget: %1
Annat: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;För alla</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Rad för rad</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Raden är inte i konflikt</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Det egna beslutet är inte känt: raden var i konflikt redan vid öppnandet</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Ingen rad är i konflikt.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Alla konflikter är avgjorda.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln rad till motsäger sig som denna.</numerusform>
            <numerusform>%Ln rader till motsäger sig som denna.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Konfliktens sidor</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Eget</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Annat</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Besluta på nytt</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 av %Ln konflikt fortfarande öppen.</numerusform>
            <numerusform>%1 av %Ln konflikter fortfarande öppna.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>öppen</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>eget</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>annat</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nytt</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Eget beslut</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Annat beslut</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Gäller</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>automatiskt tilldelad</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>att kontrollera</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>bekräftad</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>utan mål, öppen</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>bekräftad som utgången</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>inte känt</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, rad %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Tillstånd</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Målprojekt</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Målrad</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Värdeområden</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Gammal rad</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Tidigare</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Eget beslut</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Annat beslut</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Uppgift</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>lika</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>ersatt som i %Ln rad till</numerusform>
            <numerusform>ersatt som i %Ln rader till</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>liknande</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>olika</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>bara i den nya raden</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>bara i den gamla raden</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Gammalt</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nytt</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>Tabellen innehåller inte raden.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Utan mål. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Den tilldelade raden är ingen av kandidaterna.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Gammalt och nytt</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Kandidater</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Bekräftad.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Säkert tilldelad.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rad</numerusform>
            <numerusform>%Ln rader</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>jämförda: de första %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Inga gemensamma skillnader.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Gemensamt: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Markerade rader</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Katalogutgåva</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Filen innehåller flera katalogutgåvor. Vilken ska öppnas?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Mappningsfilen läses</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Filen kan inte öppnas.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Filen är öppnad enbart för läsning.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Låset kan tas bort om det är säkert att ingen längre arbetar där, till exempel efter ett datorhaveri.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Läs bara</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Ta bort låset</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Låset kunde inte tas bort.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Katalogerna är inte kända; de anges med --source och --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Spara ändringarna i %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Kastade ändringar går förlorade.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Spa&amp;ra</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Kasta</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln rad</numerusform>
            <numerusform>%1: %Ln rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Ännu %Ln rad i konflikt, i dessa projekt:</numerusform>
            <numerusform>Ännu %Ln rader i konflikt, i dessa projekt:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Visa konflikterna</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Spara ä&amp;ndå</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Sparat: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Filen sparades inte.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Slå &amp;ihop ändringarna</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>&amp;Behåll en kopia och skriv på nytt</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Skriv min version</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>De andras ändringar har tagits över. Kontrollera dem och spara sedan en gång till.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>De andras ändringar kunde inte tas över.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Mappningsfilen kan inte skapas.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>och %Ln till</numerusform>
            <numerusform>och %Ln till</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>%1 läses</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Mappningsfilen %1 kan inte läsas (%2).
Välj en annan fil eller kopiera tillbaka säkerhetskopian %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Mappningsfilen %1 kan inte läsas (%2).
Välj en annan fil.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 innehåller ingen utgåva.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 innehåller ingen utgåva %2. Det finns: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 är öppnad enbart för läsning.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 redigeras just nu av %2 och är därför öppnad enbart för läsning.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Det går inte att skriva i mappen för %1 (%2). Filen är därför öppnad enbart för läsning; sparad under ett annat namn kan den redigeras.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>För %1 finns arbete som inte sparades. Det erbjuds så snart filen kan öppnas för redigering (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 har även ett annat namn (hård länk). När den sparas förblir filen med det andra namnet som den var.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>%1 sparas</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>%1 säkerhetskopieras</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 redigeras just nu av %2. Inget skrevs. Välj ett annat namn.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Inget kan skapas i mappen för %1 (%2). Inget skrevs. Välj en annan mapp.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Ingen rad i det här projektet finns i filtret.
Öppna ”%1” och välj ”%2” för att se alla rader igen.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Inget projekt har en rad i filtret.
Öppna ”%1” och välj ”%2” för att se alla projekt igen.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Mappningsfiler (*.json);;Alla filer (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Öppna mappningsfil</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Spara mappningsfil</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Spara tabell</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabeller (*.csv);;Alla filer (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Välj den gemensamma kopian</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Ta över beslut från</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filtret är borttaget: projektet har ingen rad i det</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Slutet nått, fortsätter från början</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Början nådd, fortsätter från slutet</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Ingen rad är kvar i filtret</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>ersatt text</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>omräknat tal</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Tillstånd</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Varför öppen</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Typ av skillnad</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Skillnad i kolumnen</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Senast beslutat av</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(inget av detta)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>inte de valda</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Läser tabellerna...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rad</numerusform>
            <numerusform>%Ln rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln projekt</numerusform>
            <numerusform>i %Ln projekt</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Inget filter: alla rader</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Oläsliga tabeller: %Ln</numerusform>
            <numerusform>Oläsliga tabeller: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter över alla rader</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Ta &amp;bort filter</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Ursprung</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>övertagna från en tidigare mappning</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 är ingen vanlig fil och kan därför inte användas som lås. Inget skrevs. Ta bort det som ligger där.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 sparas just nu av ett annat program. Inget skrevs. Spara igen om en stund.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Inget kan skapas i mappen för %1 (%2). Inget skrevs. Frigör utrymme eller spara under ett annat namn.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 kan inte läsas (%2). Inget skrevs. Spara under ett annat namn.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 är ingen läsbar mappningsfil (%2). Inget skrevs. När du sparar behålls den befintliga filen under ett namn med tidsstämpel och en ny skapas som bara innehåller denna utgåva.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 är ingen läsbar mappningsfil (%2). Inget skrevs. När du sparar behålls den befintliga filen under ett namn med tidsstämpel och en ny skapas. De andra utgåvorna kommer från säkerhetskopian %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 är oläslig och kunde inte behållas som %2 (%3). Inget skrevs. Spara under ett annat namn.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 har raderats eller bytt namn sedan den öppnades. När du sparar skapas filen på nytt och innehåller bara denna utgåva (%2). Inget har skrivits än.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 har ändrats av någon annan sedan den öppnades, men inte denna utgåva (%2). När du sparar förblir de andra utgåvorna som de nu är i filen. Inget har skrivits än.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 har ändrats av någon annan sedan den öppnades, även denna utgåva (%2). När du sparar förloras den personens ändringar i utgåvan. Inget har skrivits än: spara ändå, spara under ett annat namn eller öppna filen på nytt.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Det går inte att skriva till %1 (%2). Inget skrevs. Kontrollera skrivrättigheterna eller spara under ett annat namn.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 sparades inte: %2. Filen är oförändrad, ändringarna är fortfarande öppna. Frigör utrymme och spara en gång till, eller spara under ett annat namn.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>filen kunde inte skrivas fullständigt</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>den skrivna filen är inte läsbar (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>den skrivna filen innehåller inte det som skulle sparas</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>utgåvan %1 saknas i den skrivna filen, eller så är den en annan</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Säkerhetskopian %1 kunde inte skapas (%2). Inget skrevs. Frigör utrymme eller spara under ett annat namn.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 ändrades av någon annan medan den sparades. Inget skrevs. Spara en gång till.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 sparades inte: %2. Filen är oförändrad, ändringarna är fortfarande öppna. Spara under ett annat namn.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Tillbaka</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Handbok</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Innehåll</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Sök på sidan</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Beslutshistorik...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Vem beslutade vad, när och varför</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Skäl till beslutet...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Till det senaste beslutet eller till de valda raderna, till exempel varför det inte finns någon efterföljare</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Rad %1 i %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln rad i %1</numerusform>
            <numerusform>%Ln rader i %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Skäl noterat: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Beslutshistorik</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Vald rad</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Valt projekt</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Alla projekt</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Sök vem, projekt, mål eller skäl</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Läs om</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Spara som CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>S&amp;täng</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Oläsliga rader i journalen: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Beslut: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Filen kan inte skrivas.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ingen efterföljare</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (inte sparat)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Vem</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Hittills</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nytt</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Vad</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Skäl</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Övertagen från %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Mapp med CSV-filer</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Katalogens mapp</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Importera tabeller</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Mapp med CSV-filer:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Katalogens mapp:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Av varje CSV-fil blir det ett projekt med sin tabell på samma plats i katalogen. Den som importerar tabellerna igen behåller radernas nummer.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importera</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Mappen med CSV-filerna saknas.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Katalogens mapp saknas; den skapas om mappen ovanför finns.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Den ena mappen ligger i den andra.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Bekräfta raden eller tilldela den valda raden</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Ta bort radens tilldelning</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Ta bort tilldelningen och bekräfta som utgången</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Redigera värdeområdestilldelningen</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Kopiera villkor från raden</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Bekräfta hela projektet</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Sök i tabellen</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Sök nästa</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Sök föregående</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Kolumnfilter</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Kopiera rader</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Större tabell</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Mindre tabell</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabell i normal storlek</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Ingen tangent</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Tangenter</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Kommando eller tangent</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Kommandon</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Var</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tangent</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabell</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Fönster</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Tangent för %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Fält och listor behöver själva tangenten %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Både %2 och %3 skulle ha tangenten %1.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Självvald</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 har då inte längre tangenten %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Tangenten %1 hör nu till %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Inget hittades</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Bekräftad: tilldelningen är avgjord</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Förslag: måste bekräftas eller korrigeras</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Utan ikon: entydigt lika, tilldelad av programmet</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Ingen tilldelning hittades</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Utgången: bekräftat att det inte finns någon tilldelning</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Konflikt med någon annans ändring</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Projektet eller tabellen kan inte läsas</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Radens värdeområdestilldelningar</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>I måltabellen: den tilldelade raden</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Teckenförklaring</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Villkoret har kopierats till urklipp</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Det kopierade villkoret kan inte användas så här, ett värde saknas, är ett område eller innehåller ett citattecken: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Här i filtret är allt klart, utanför är ännu %Ln rad öppen.</numerusform>
            <numerusform>Här i filtret är allt klart, utanför är ännu %Ln rader öppna.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Slutet nått, fortsätter från början</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Början nådd, fortsätter från slutet</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Konflikt %1 av %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Ingen rad har något av de valda tillstånden</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Ingen rad behöver längre ett beslut</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Ingen av de öppna raderna kan visas; tabellerna saknas</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Gå till rad</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Nummer eller standardbeteckning:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Gå till</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Inget projekt är valt</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Ingen rad med ”%1” i det här projektet</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Träff %1 av %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Utför</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Steget kan ångras.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Det gäller de markerade raderna.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Det gäller alla rader i projektet.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filter: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Inget annat projekt har sådana rader</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Det gäller bara de visade raderna i projektet: %1 av %2.</translation>
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
        <translation>Visa bara rader i konflikt med någon annans ändring, och deras projekt</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Att kontrollera</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Visa bara rader med ett förslag som måste bekräftas eller korrigeras, och deras projekt</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Utan mål</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Visa bara rader som inget hittades för, och deras projekt</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatiskt</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Visa bara rader som är entydigt lika och tilldelades av programmet, och deras projekt</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekräftad</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Visa bara rader med bekräftad tilldelning, och deras projekt</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Utgången</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Visa bara rader som är bekräftade som utgångna, och deras projekt</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Använd länkdatabas</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Fil på den här datorn</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL-server</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>den vanliga</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Lösenordet finns i lösenordsfilen, i skrivbordets nyckelring eller i PGPASSWORD, eller anges vid inloggningen. Det sparas inte.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>om möjligt</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>alltid</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>alltid, servern kontrollerad</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>aldrig</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Fil:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Värd:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Databas:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>A&amp;nvändare:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Kryptering:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Länkdatabas: filens namn saknas.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Länkdatabas: databasens namn saknas eller är ogiltigt.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Kontrollera länkdatabasens nummer</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>I länkdatabasen finns ingen grupp som du hör till.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Välj grupp</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Länkdatabasens grupp:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Raden %1 i %2 finns inte i den här mappningen.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Länkdatabasens nummer kontrolleras</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Numren kunde inte kontrolleras.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Ändringar i länkdatabasen kan ha gått förlorade.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Licensen för länkdatabasen saknas.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Inloggning i länkdatabasen</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Lösenordet gäller tills programmet avslutas och sparas inte. Lämnas det tomt hämtas det från lösenordsfilen.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Under detta namn står i protokollet vem som raderat något.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Länkhanterare</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Sök nummer, projekt eller beskrivning</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Beskrivning</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Visa rad</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Länka till en annan rad...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Välj sedan projekt och rad och skicka markeringen med ”Markering till länkhanteraren”.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Senast raderat...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>S&amp;täng</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Länkar: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Inget är raderat som skulle kunna återställas.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Återställa det senast raderade? Rader: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 raderade dem den %2 från %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>Åte&amp;rställ</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Den första länken (%Ln); sökningen visar andra.</numerusform>
            <numerusform>De första %Ln länkarna; sökningen visar andra.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Kontroll av numren</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Nummer på projekt i den här mappningen: %1, på andra projekt: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Inte jämförda eftersom de är oläsliga: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Stäng</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Raden är utgången eller finns inte</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>bekräftad som utgången</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>projektet har den inte</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Flera rader gör anspråk på det</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Artikeln avviker</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Artikeln avviker (inte jämförd)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Öppna rader med nummer</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Nummer: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Raden %1 finns inte i %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Projektet %1 kan inte visas.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Hitta</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projekt, rad, kommando eller inställning</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Hittat</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Delar av orden räcker; ett tal efteråt avser en rad.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Inget hittades</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln träff</numerusform>
            <numerusform>%Ln träffar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>De första %1 av %Ln träff</numerusform>
            <numerusform>De första %1 av %Ln träffar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Rad %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Inställning</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Fel: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Varning: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Meddelanden</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Rensa meddelanden</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Kopiera alla meddelanden</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Användare:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Lösenord:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Ingen anslutning till länkdatabasen: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>ERP-numren kan inte läsas. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Rader tilldelade på nytt: ingen ändring</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Här finns ingen sådan rad. %1 går till nästa.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>skrivskyddad</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Katalogen</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Till vänster står den gamla katalogutgåvan. Ikonerna visar var det ännu finns något att besluta. Välj ett projekt för att se dess rader.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Målen</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Här står projekten i den nya utgåvan som kan ta över rader, med villkor och variabelmappningar.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Raderna</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Till vänster den gamla tabellen, till höger den nya. %1 bekräftar tilldelningen eller tilldelar raden som valts till höger, %2 tar bort den, %3 bekräftar att raden är utgången.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Vad som ännu är öppet</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Räknaren säger hur många rader som behöver ett beslut. %1 går till nästa, även i nästa projekt.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Inget går förlorat</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Varje steg kan ångras. Det som inte är sparat erbjuder programmet att återställa efter en krasch. Rundturen finns i menyn Hjälp.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Tilldela hela katalogens rader?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Det bekräftade blir kvar i vilket fall. Steget kan ångras.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Bara rader utan tilldelning</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Allt obekräftat på nytt</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Alla projekt tilldelade</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Målprojektet %1 finns inte.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Målprojekt: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Inställningar: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Det finns inget tips om det här stället</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Töm listan</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Dela</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Senast öppnade</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Redigera</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>Gå &amp;till</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Granska</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Visa</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>Bara &amp;rader</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Hjälp</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Länkdatabas</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Radernas tillstånd</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Verktyg</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Ingen fil är öppen för redigering.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Egna ändringar ovanpå filens version</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln konflikt: eget beslut</numerusform>
            <numerusform>%Ln konflikter: eget beslut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln konflikt: den andra sidans beslut</numerusform>
            <numerusform>%Ln konflikter: den andra sidans beslut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln konflikt: ska beslutas på nytt</numerusform>
            <numerusform>%Ln konflikter: ska beslutas på nytt</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Journalen %1 kan inte skrivas (%2). Efter en krasch skulle ändringarna vara förlorade: spara snart.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Den återställda versionen kan inte säkras (%1). Frigör utrymme och öppna en gång till; journalen är oförändrad.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Återställning efter en krasch</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Journalen %1 kan inte skapas (%2). Efter en krasch skulle ändringarna vara förlorade: spara ofta.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Ingen mappningsfil är öppen.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Sparande pågår.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Inget sparades. %1 Spara under ett annat namn.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Låset på %1 är förlorat och kan inte förnyas. Andra skulle kunna redigera filen samtidigt.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Den automatiska säkringen lyckades inte (%1). Spara snart.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Ändringen togs inte över. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Konflikter markerade</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Ångrat: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Gjort om: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>”%1” passar inte längre till det som ändrats sedan. Listan över steg säger vad som står i vägen.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Målprojekt söks</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Avbrutet, inget skapades</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Rader tilldelas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projekt: %1 på samma plats, %2 på en annan, %3 uppdelat, %4 utan mål, %5 oläsligt</numerusform>
            <numerusform>%Ln projekt: %1 på samma plats, %2 på en annan, %3 uppdelade, %4 utan mål, %5 oläsliga</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 av %Ln projekt</numerusform>
            <numerusform>%1 av %Ln projekt</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>varav %1 tilldelade, %2 att kontrollera, %3 utan mål</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Avbrutet: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 med %Ln rad</numerusform>
            <numerusform>%1 med %Ln rader</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln ändring togs över.</numerusform>
            <numerusform>%Ln ändringar togs över.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln rad har båda beslutat lika.</numerusform>
            <numerusform>%Ln rader har båda beslutat lika.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln rad är beslutad olika och markerad som konflikt.</numerusform>
            <numerusform>%Ln rader är beslutade olika och markerade som konflikt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln annan motsägelse: filens version gäller.</numerusform>
            <numerusform>%Ln andra motsägelser: filens version gäller.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Raden %1 kan inte visas</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Inget fynd är valt</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Åtgärdat: %1 i %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tabellerna jämförs</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln tilldelad rad granskad</numerusform>
            <numerusform>%Ln tilldelade rader granskade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln fynd</numerusform>
            <numerusform>%Ln fynd</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Grannskap</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Raderna %1 till %2 är förskjutna med %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Raderna %1 och %2 är omkastade</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Rad %1 ligger %2 fel</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Rad %1 har en annan rads målrad</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Rad %1 är överhoppad</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>öppen</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Åtgärdat: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Fynd</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Åtgärdat</translation>
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
        <translation>Mapp för den gamla katalogutgåvan</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Mapp för den nya katalogutgåvan</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Tilldela raderna direkt</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Ny mappning</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Gammal katalogutgåva:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Katalog i den:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>Ny &amp;katalogutgåva:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Välj mappningsfil</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Mappningsfil:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Skapa</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Mappen för den gamla katalogutgåvan saknas.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Mappen för den nya katalogutgåvan saknas.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Varje utgåva behöver en mapp med katalogen.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Mappningsfilen behöver ett namn.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Mappen %1 finns inte.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 finns redan.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>När du sparar tillkommer den nya utgåvan; en utgåva med samma datum ersätts, med allt som är bekräftat i den.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Använd den här filen</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>mediet är fullt</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>filen blir större än vad som är tillåtet här</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>skrivrättigheten saknas</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>mediet är skrivskyddat</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>mappen eller filen finns inte längre</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>på dess plats finns något annat än en vanlig fil</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>utan mål</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Gammal rad</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Ny rad</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Övriga skillnader</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Projektets tabell kan inte läsas.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Sökväg:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Standard:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Beteckning:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Projektversion:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Tabellversion:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Rader:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Fil:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtrera</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln öppen rad med förslag</numerusform>
            <numerusform>%Ln öppna rader med förslag</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>i %Ln mönster</numerusform>
            <numerusform>i %Ln mönster</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln av dem jämförs fortfarande</numerusform>
            <numerusform>%Ln av dem jämförs fortfarande</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Vald: %Ln rad</numerusform>
            <numerusform>Valda: %Ln rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln av dem uttagen</numerusform>
            <numerusform>%Ln av dem uttagna</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>De öppna radernas skillnader</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln projekt</numerusform>
            <numerusform>i %Ln projekt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln öppen rad utan efterföljare</numerusform>
            <numerusform>%Ln öppna rader utan efterföljare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tabellerna jämförs: %Ln projekt läst</numerusform>
            <numerusform>Tabellerna jämförs: %Ln projekt lästa</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rad</numerusform>
            <numerusform>%Ln rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projekt</numerusform>
            <numerusform>%Ln projekt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln rad till har dessa och andra skillnader</numerusform>
            <numerusform>%Ln rader till har dessa och andra skillnader</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Skillnad</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Säkerhet</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Undantag</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>tal i närheten</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>annat tal</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>annan ordalydelse</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>värde tillkommet</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>värde saknas</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>går inte att jämföra</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ingen skillnad</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>annat skrivsätt</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>osäkert: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>hel mapp utan mål: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>helt projekt utan mål: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>målprojektet finns inte längre: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 finns inte längre</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>ingen liknande rad: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>projektnamn</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>ett annat</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>annat värde</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>en eller flera av dem på varje rad</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>inte tillgängligt: ingen fil är öppen</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>inte tillgängligt: länkdatabasen ansluts</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>inte tillgängligt: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>inte tillgängligt: ingen länkdatabas är ansluten</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>inte tillgängligt: länkhanteraren väntar inte på någon markering</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>inte tillgängligt: inget projekt är valt</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>inte tillgängligt: ingen rad är vald</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>ERP-nummer för %1, rad %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Vänligen tilldela ett ERP-nummer.

Projekt: %1
Rad: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Inget e-postmeddelande kunde påbörjas.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>På den här datorn är inget e-postprogram inställt. Förfrågan lyder:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Ingen tabell syns som kan skrivas ut</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Skriv ut: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 har skickats till skrivaren</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 utskrivet till %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 kunde inte skrivas ut.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Skrivaren tar inte emot sidor.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 kan inte skrivas.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Sida</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Fråga</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Observera</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Rad %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln rad är bekräftad trots att värden i dess område inte har någon ny rad.</numerusform>
            <numerusform>%Ln rader är bekräftade trots att värden i deras områden inte har någon ny rad.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Ta tillbaka</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Bekräfta ändå</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln rad</numerusform>
            <numerusform>%1: %Ln rader</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Raden har ingen värdeområdestilldelning.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>saknas: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>flera gånger: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>inte i det gamla området: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Radens värdeområde</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 av %Ln värde tilldelat</numerusform>
            <numerusform>%1: %2 av %Ln värden tilldelade</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Skäl till beslutet</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;För:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Skäl:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>utgått ur sortimentet</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>sammanslagen med en annan artikel</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>uppdelad på flera artiklar</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>flyttad till en annan katalog</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>ännu inte kontrollerad</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Återställning</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Sparat</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Återställt</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Per</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekräftad</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Att kontrollera</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Utan mål</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Den sparade versionen är nyare än allt som kan återställas.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>Å&amp;terställ</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Med senare ändringar (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>Öppna &amp;den sparade versionen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln steg</numerusform>
            <numerusform>%Ln steg</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>För %1 finns arbete som inte sparades: %2, senast ”%3”. Det kommer från %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 med %Ln rad</numerusform>
            <numerusform>%1 med %Ln rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln projekt</numerusform>
            <numerusform>%1 i %Ln projekt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Tabeller importeras</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 har ingen CSV-fil längre och förblir som det är</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>I mappen finns ingen CSV-fil; inget importerades</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Avbrutet: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Allt skrevs inte: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 kan inte skrivas.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Exportera rader</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabeller (*.csv);;Alla filer (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Rader exporteras</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Avbrutet, inget exporterades</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Skriv rapport</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF-filer (*.pdf);;HTML-sidor (*.html);;Alla filer (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Rapporten skapas</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Avbrutet, ingen rapport skrevs</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Sidorna sätts</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Rapporten skriven till %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Avbrutet, ingen rapport skapades</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Sida %1 av %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabell</numerusform>
            <numerusform>%Ln tabeller</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 nya, %2 ändrade, %3 oförändrade, %4 inte importerade</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln rad exporterad till %1</numerusform>
            <numerusform>%Ln rader exporterade till %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 med %Ln rad</numerusform>
            <numerusform>%1 med %Ln rader</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Överenskomna ersättningar</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>i hela katalogutgåvan</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Kom överens</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Dra tillbaka</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Belägg</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Ta över</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>En ersättning säger att ett gammalt värde står för ett nytt. Den ger förslag men bekräftar inget.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>överenskommen</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>överenskommen i %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Tabellerna läses</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln rad för</numerusform>
            <numerusform>%Ln rader för</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln rad emot</numerusform>
            <numerusform>%Ln rader emot</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Ingen är överenskommen. När listan över skillnader är öppen erbjuds dess ersättningar här.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Mappningsrapport: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Katalogutgåva %1 till %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Skapad den %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Radernas läge</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Efter mappar, med allt därunder</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Efter projekt</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Varför rader är öppna</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Hur öppna rader skiljer sig från sina förslag</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Stickprov</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Vem som beslutat vad</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Öppna rader</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Vad som inte kunde läsas</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekräftad</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Bekräftade som utgångna</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Säkert tilldelade</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Att kontrollera</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Utan mål</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>I konflikt</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Beteckning</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Skäl</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Skillnader</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Sannolikhet</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Undantag</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Exempel</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Vem</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Vad</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Bedömda</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Rätt</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Högst fel (95 % säkert)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>avvisat</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabellen är inte läsbar</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>går inte att jämföra</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ingen skillnad</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>och %1 till</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>två personer har beslutat olika</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>någon annan beslutar</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>en tabell är inte läsbar</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>ett villkor eller en formel misslyckas</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>inget mål är ansvarigt</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>en kolumn saknas</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>flera rader är lika</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>för olika</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>lika, bara inte bekräftad</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>osäkert: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Öppna rader utan efterföljare</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Rader bekräftade som utgångna</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Vad de har gemensamt</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>totalt</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Övertaget från tidigare mappningar</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Tidigare mappning</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Fortfarande som övertagna</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Bedömda rader</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Klara rader: %1 av %2; öppna: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Läs målprojekt från arkivet</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://server:port/sökväg</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>En katalog per rad. Utan rad är katalogens namn även dess servers.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>den senaste</translation>
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
        <translation>Se&amp;rver:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>R&amp;evision:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>&amp;Utrymme på den här datorn:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Vän&amp;tan på servern:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Server, rad %1: &quot;%2&quot; har inte formen &quot;Katalog = svn://server:port/sökväg&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Inloggning i arkivet</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 kräver inloggning.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Namn och lösenord gäller tills programmet avslutas och sparas inte.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Raden %1 kan inte visas</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Ingen rad är öppen längre</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tabellerna är inte jämförda än</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Från början: %Ln rad öppen</numerusform>
            <numerusform>Från början: %Ln rader öppna</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Öppna rader kommer efter sin osäkerhet</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Öppna rader kommer efter sin plats</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Raden hör inte till det valda mönstret</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Rad %1 uttagen</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Inget mönster är valt, eller alla dess rader är beslutade</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rad</numerusform>
            <numerusform>%Ln rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>bekräfta i %Ln projekt?</numerusform>
            <numerusform>bekräfta i %Ln projekt?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Steget kan ångras.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Bekräfta</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln rad bekräftad</numerusform>
            <numerusform>%Ln rader bekräftade</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Det finns ingen kandidat %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Rad %1 → %2 bekräftad</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Överenskomna ersättningar: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Välj ett mönster eller markera öppna rader</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Stickprov</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Dra</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Stickprov, rad %1 av %2: + rätt, − fel</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Inget stickprov pågår</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Alla rader i stickprovet är redan beslutade</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 av %2 rätt</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Stickprovet avvisat, %1; bedömt av %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>alla rader bedömda</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>med 95 % säkerhet färre än %1 % fel</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Stickprov: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>bedömt av %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>där fanns den felaktiga</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Rad %1 är fel: stickprovet är slut</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Fortsätt</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Titta på den felaktiga raden</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln av dem är osäker.</numerusform>
            <numerusform>%Ln av dem är osäkra.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Alla mönster är klara</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln projekt</numerusform>
            <numerusform>i %Ln projekt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln rad bekräftad som utgången</numerusform>
            <numerusform>%Ln rader bekräftade som utgångna</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Rad %1 i %2 är fel. Mängden har delats; med vilken del ska det fortsätta?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Så många av %Ln rad dras och bedöms en och en. %1 rätta säger med 95 % säkerhet att färre än 5 % är fel, %2 rätta färre än 1 %.</numerusform>
            <numerusform>Så många av %Ln rader dras och bedöms en och en. %1 rätta säger med 95 % säkerhet att färre än 5 % är fel, %2 rätta färre än 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Skriptkonsol</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Skriptens utdata</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Rad i ett skript</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>En rad JavaScript. Retur kör den, Tabb kompletterar, Upp och Ned bläddrar.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Stoppar det pågående skriptet (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Töm</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Raderar utdata</translation>
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
        <translation>(konsol)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Klart</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Klart, status %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Rad %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Den är för stor.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Den är ingen text i UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 kan inte läsas. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Öppna skript</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Skript (*.js);;Alla filer (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Spara skript</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 kan inte skrivas. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Skriptet är inte sparat.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(utan namn)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nytt skript</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Öppna …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Kör</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argument:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Skriptets text</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argument</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>på</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(process %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Journalen %1 kan inte läsas (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Efter den senast avslutade sessionen är journalen %1 inte läsbar. Vad som stod där är inte känt; journalen behålls.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Slutet av journalen %1 är inte läsbart. Den senaste ändringen kan saknas.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Journalen %1 är skadad. Efter skadan passar %Ln ändring fortfarande, %2 passar inte längre; fler kan saknas. Journalen behålls.</numerusform>
            <numerusform>Journalen %1 är skadad. Efter skadan passar %Ln ändringar fortfarande, %2 passar inte längre; fler kan saknas. Journalen behålls.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Journalen %1 är skadad eller passar inte till mappningsfilen. Minst %Ln senare ändring saknas; journalen behålls.</numerusform>
            <numerusform>Journalen %1 är skadad eller passar inte till mappningsfilen. Minst %Ln senare ändringar saknas; journalen behålls.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Gå vidare till nästa öppna rad efter ett &amp;beslut</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Som skrivbordet</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Ljust</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Mörkt</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>aldrig</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Språk:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>Fär&amp;ger:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Te&amp;ckenstorlek:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Säker&amp;hetskopia var:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Hög kontrast</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>En mapp per rad, därifrån får läsas det som filer i en katalog anger utanför katalogerna.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Tillåtna mappar:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Tillåtna mappar: &quot;%1&quot; är ingen mapp med fullständig sökväg.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Mappningen delas inte med någon. Välj först den gemensamma kopian.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 finns redan och är en annan mappning. Välj en annan kopia, eller hämta den befintliga till en ny fil.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Andra har publicerat något sedan den senaste uppdateringen.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Rader i konflikt publiceras inte: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Det finns ändringar i andras mappar: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Mappen är redan upptagen: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Någon annan publicerar just nu (%1). Försök igen om en stund.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Den gemensamma kopian kan inte nås: %1. Den egna filen är oförändrad; försök igen senare.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>En av filerna är ingen läsbar mappning: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Det kunde inte skrivas: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Det gick inte.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Den gemensamma kopian läses</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Delad via %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>De andras ändringar hämtas</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Det finns inget nytt</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Ändringarna publiceras</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mappning redigerad</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Publicerat, revision %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Först tas det över. Därefter kan du publicera.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Uppdatera</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Publicera ändå</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Ta över mappar</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>&amp;Ta över</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Mapparna förs in</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Inga egna mappar längre</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Egna mappar: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(här)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>har den öppen</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>har den inte öppen</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>senast %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>mappar %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Egen revision %1, senaste revision %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Andra har publicerat något.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Det finns inget nytt från andra.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Egna ändringar är inte publicerade än.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Gemensam kopia: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Den senaste publiceringen avbröts, men kom fram.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Den senaste publiceringen avbröts. Publicera en gång till.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Den gemensamma filen hade ändrats i arbetskopian utan att skickas in. Det har behållits i %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Arbetskopian hade lämnats mitt i ett arbete och har städats upp.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Arbetskopians förvaltning var skadad och har hämtats på nytt; den tidigare är %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Något avbrutet har ställts i ordning.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Katalogens mappar, med kommatecken emellan; * står för valfria tecken, ? för ett. Tomt lämnar tillbaka alla:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>ångra</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Allt beslutat</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Rader som ännu behöver ett beslut</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filter: ingen rad</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Rader som filtret över alla rader visar</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln rad&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln rader&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Öppet: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 i %Ln projekt</numerusform>
            <numerusform>%1 i %Ln projekt</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Ännu ingen rad tilldelad</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Avbryter det pågående arbetet; det som är klart blir kvar</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Fel och varningar: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Steg</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Sök vem, vad eller rader</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>Tillbaka &amp;hit</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Tar tillbaka detta och alla senare gällande steg</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Till r&amp;aden</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Stäng</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Ta tillbaka med beroende (%Ln)</numerusform>
            <numerusform>&amp;Ta tillbaka med beroende (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Ta bara tillbaka detta</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Gör om med tidigare (%Ln)</numerusform>
            <numerusform>&amp;Gör om med tidigare (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Inget steg ännu</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Inget annat steg beror på det.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Steget kan göras om för sig.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Bygger på det: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Det bygger på: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>I vägen, eftersom de beslutade annat: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Där står nu något annat som inget steg i listan har beslutat, till exempel från ett annat program. Steget kan inte längre flyttas.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>och %Ln till</numerusform>
            <numerusform>och %Ln till</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln projekt</numerusform>
            <numerusform>%1 i %Ln projekt</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>gäller</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>tillbakataget</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>passerat</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Per</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Vem</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Vad</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rader</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Ändringen i %1 får effekt först när raderna tilldelas på nytt. Då behålls bara det som är bekräftat.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln rad i %1 var bekräftad som utgången och är det inte längre: %2</numerusform>
            <numerusform>%Ln rader i %1 var bekräftade som utgångna och är det inte längre: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>I %1 förblir variabler ignorerade: %2. För att mappa en av dem igen, välj &quot;Formel...&quot; eller radera raden och ange den på nytt.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Ett villkor för målprojektet %1 i %2 har fallit bort.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>En variabelmappning för målprojektet %1 i %2 har fallit bort.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Rad %1 → %2 i %3: även %Ln annan rad har målraden: %4</numerusform>
            <numerusform>Rad %1 → %2 i %3: även %Ln andra rader har målraden: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln rad i %1 delar sin målrad med nytilldelade: %2</numerusform>
            <numerusform>%Ln rader i %1 delar sin målrad med nytilldelade: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln konflikt godtagen</numerusform>
            <numerusform>%Ln konflikter godtagna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln rad bekräftad</numerusform>
            <numerusform>%Ln rader bekräftade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln rad bekräftad som utgången</numerusform>
            <numerusform>%Ln rader bekräftade som utgångna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln rad tilldelad</numerusform>
            <numerusform>%Ln rader tilldelade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>tilldelningen av %Ln rad borttagen</numerusform>
            <numerusform>tilldelningen av %Ln rader borttagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>värdeområdestilldelningen för %Ln rad ändrad</numerusform>
            <numerusform>värdeområdestilldelningen för %Ln rader ändrad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>konflikten för %Ln rad löst</numerusform>
            <numerusform>konflikten för %Ln rader löst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln rad ändrad</numerusform>
            <numerusform>%Ln rader ändrade</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>rad %1 → %2 bekräftad</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>rad %1 → %2 tilldelad</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (tidigare %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>rad %1 bekräftad som utgången (tidigare %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>rad %1 bekräftad som utgången</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>tilldelningen av rad %1 borttagen (tidigare %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projekt tillagt</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projekt borttaget</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Målprojekt tillagt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Målprojekt borttaget</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Målprojektens ordning ändrad</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Villkor ändrade</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Variabelmappning ändrad</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versioner ändrade</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Status ändrad</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln projekt</numerusform>
            <numerusform>%1 i %Ln projekt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Tillbaka</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Hoppa över</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Nästa</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Klart</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, rad %2: post %3 i värdeområdestilldelningen har inte formen {NAME=VÄRDE} -&gt; radnummer: &quot;%4&quot;. Rätta den eller lös upp den på nytt.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, rad %2: värdeområdestilldelningen nämner raden %3, men raden har inget målprojekt. Tilldela den eller töm texten.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, rad %2: värdeområdestilldelningen nämner raden %3, som inte finns i %4. Rätta den eller lös upp den på nytt.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: målprojektet %2:s tabell kan inte läsas, dess värdeområdestilldelningar är okontrollerade. Kontrollera målprojektens mapp (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Värdeområdestilldelningar kontrolleras</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln värdeområdestilldelning kontrollerad</numerusform>
            <numerusform>%Ln värdeområdestilldelningar kontrollerade</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>inga anmärkningar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln anmärkning</numerusform>
            <numerusform>%Ln anmärkningar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (avbrutet): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Stäm av katalogutgåvor</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>En katalog har kommit ut i ny utgåva, och varje rad i den gamla måste överföras till en rad i den nya. Programmet föreslår, du kontrollerar och bekräftar.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Senast öppnade:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>Ny &amp;mappning...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Skapar en ny mappningsfil av två katalogutgåvor</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>Öpp&amp;na...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Öppnar en mappningsfil</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Öppna &amp;exempelkatalogen</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Öppnar en egen mappningsfil för den medföljande exempelkatalogen</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Spa&amp;ra</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Skriver alla ändringar till mappningsfilen</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>S&amp;para som...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Skriver till en annan mappningsfil</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>S&amp;täng</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Stänger mappningsfilen</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Katalogmappar...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Väljer mapparna för den gamla och den nya katalogutgåvan</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Gemensam kopia...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Väljer kopian som flera arbetar med den här mappningen genom</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Uppdatera</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Tar över det som andra har publicerat</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Publicera</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Ger de egna ändringarna vidare till de andra</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>Ta över &amp;mappar...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Talar om för de andra vilka mappar du själv redigerar</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Vem arbetar med vad</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Visar vem som har mappningen öppen och vilka mappar som hör till vem</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importera tabeller...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Gör en mapp med CSV-filer till projekt i en katalog</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>E&amp;xportera rader...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Skriver utgåvans alla rader med deras tilldelningar till en CSV-fil</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Rapp&amp;ort...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Skriver som PDF eller HTML hur långt utgåvan har kommit och varför rader är öppna</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Avslutar programmet</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>Å&amp;ngra</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Ångrar det senaste steget</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Utför det ångrade steget igen</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Bekräfta rader...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Bekräftar i ett steg tilldelningen av de markerade eller alla visade rader</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Bekräfta rader &amp;utan mål som utgångna...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Bekräftar bland de markerade eller alla visade rader dem utan mål som utgångna</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Ta bo&amp;rt tilldelningar...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Tar i ett steg bort tilldelningen av de markerade eller alla visade rader</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Ta bort tilldelningar &amp;och bekräfta...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>De markerade raderna, eller alla visade, är utgångna: tar bort och bekräftar i ett steg</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Tilldela alla projekt...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Söker tilldelningar för katalogens alla rader; det bekräftade blir kvar</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Kontrollera &amp;värdeområdestilldelningar</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Jämför alla värdeområdestexter med målprojektens tabeller</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>Skri&amp;pt...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Öppnar ett fönster där skript skrivs och körs</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Inställningar...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Språk, teckensnitt, tangenter, säkerhetskopior</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Nästa öppna rad</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Går till nästa rad som behöver ett beslut, även i nästa projekt</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>&amp;Föregående öppna rad</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Går till föregående rad som behöver ett beslut, även i föregående projekt</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>Gå &amp;till rad...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Söker en rad i projektet efter nummer eller beteckning</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Den andra tabellen</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Växlar mellan den gamla och den nya tabellen</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Hitta...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Hittar projekt, rader, kommandon och inställningar genom delar av orden</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Skillnadsmönster</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Visar hur de öppna raderna skiljer sig från sina förslag</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Gammalt och nytt</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Visar radens gamla och nya värden bredvid varandra, och dess kandidater</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Bekräfta mönster...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Bekräftar i ett steg alla rader i det valda mönstret</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>Ta ut &amp;rad</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Raden bekräftas inte tillsammans med mönstrets andra rader</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Mönstrets nästa rad</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Går till nästa öppna rad i det valda mönstret</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Mönstrets &amp;föregående rad</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Går till föregående öppna rad i det valda mönstret</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Näst&amp;a mönster</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Väljer nästa mönster i listan</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>&amp;Osäkrast först</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Öppna rader kommer efter risken för fel i stället för efter sin plats</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Grannska&amp;p</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Visar var tilldelningar av intilliggande rader inte passar ihop</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Rätta till ra&amp;derna</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Åtgärdar i ett steg det valda fyndet i grannskapet</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Ersättningar...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Kommer överens om ersättningar av värden för katalogutgåvan eller drar tillbaka dem</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>S&amp;tickprov...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Drar rader ur det valda mönstret eller de markerade raderna, som bedöms en och en</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Sti&amp;ckprov: rätt</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Stickprovets visade rad är rätt tilldelad</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Stic&amp;kprov: fel</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Stickprovets visade rad är fel tilldelad; stickprovet avslutas</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Kandidat &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Tilldelar raden den här kandidaten och bekräftar den</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Kandidat &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Kandidat &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Kandidat &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Kandidat &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Radens värdeområde</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Visar vilka värden i det gamla området som har nya rader</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Ko&amp;nflikter</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Visar de rader som två sidor har beslutat olika</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Nästa öppna konflikt</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Går till nästa rad vars konflikt ännu är öppen</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Konflikt: eget beslut</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>I den här konflikten gäller det egna beslutet</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Konflikt: annat beslut</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>I den här konflikten gäller den andra sidans beslut</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Konflikt: besluta på nytt</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Inget av besluten gäller; raden är åter utan mål</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Bygger upp visningen på nytt: träd, statistik, tabeller från disken</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Handbok</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Öppnar handboken på det ställe det gäller</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>Ta&amp;ngenter...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Visar och ändrar tangenterna för alla kommandon</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Tips om det här stället</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Visar tipset där tangenterna verkar: i en tabell varför raden har sitt tillstånd</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Rundtur</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Visar i några få steg var saker finns</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>Om &amp;det här programmet</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Version och mappar</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Steg...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Listar alla steg, även från tidigare sessioner, och tar tillbaka enstaka</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Nästa projekt med öppna rader</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Går till nästa projekt där något ska beslutas</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Föregående projekt med öppna rader</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Går till föregående projekt där något ska beslutas</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter över alla rader</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Väljer rader i alla projekt efter tillstånd, skäl, skillnad och person; F8 går igenom dem</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Skri&amp;v ut...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Visar sidorna av tabellen som syns och skriver ut dem</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Visar rapportens sidor och skriver ut dem</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Skriv ut rapport...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Ta över beslut...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Tar i ett steg över det som redan bekräftats för samma gamla utgåva från en tidigare mappning</translation>
    </message>
</context>
</TS>
