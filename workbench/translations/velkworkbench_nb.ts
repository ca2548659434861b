<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Det er ingenting å endre.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Bekrefte %Ln linje?</numerusform>
            <numerusform>Bekrefte %Ln linjer?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Bekrefte %Ln linje som utgått?</numerusform>
            <numerusform>Bekrefte %Ln linjer som utgått?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Oppheve tilordningen av %Ln linje?</numerusform>
            <numerusform>Oppheve tilordningen av %Ln linjer?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Oppheve tilordningen av %Ln linje og bekrefte den som utgått?</numerusform>
            <numerusform>Oppheve tilordningen av %Ln linjer og bekrefte dem som utgått?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln av dem er allerede bekreftet.</numerusform>
            <numerusform>%Ln av dem er allerede bekreftet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln av dem mister tilordningen av verdiområder.</numerusform>
            <numerusform>%Ln av dem mister tilordningene av verdiområder.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln linje uten mål forblir ubekreftet.</numerusform>
            <numerusform>%Ln linjer uten mål forblir ubekreftet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln linje forblir som den er.</numerusform>
            <numerusform>%Ln linjer forblir som de er.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln linje i konflikt endres ikke.</numerusform>
            <numerusform>%Ln linjer i konflikt endres ikke.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln linje står ikke i noe målprosjekt.</numerusform>
            <numerusform>%Ln linjer står ikke i noe målprosjekt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln linje bekreftet.</numerusform>
            <numerusform>%Ln linjer bekreftet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln linje bekreftet som utgått.</numerusform>
            <numerusform>%Ln linjer bekreftet som utgått.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Tilordningen av %Ln linje opphevet.</numerusform>
            <numerusform>Tilordningen av %Ln linjer opphevet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Tilordningen av %Ln linje opphevet og linjen bekreftet som utgått.</numerusform>
            <numerusform>Tilordningen av %Ln linjer opphevet og linjene bekreftet som utgått.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ingen etterfølger</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tast</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Sikkerhet</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Ny linje</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Grunn</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 allerede avgjort eller sikre her</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 uten linje i den nye utgaven</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 den gang bekreftet som utgått</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 i prosjekter som mangler her</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 i konflikt der</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Ikke overtatt: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Det er ingenting å overta fra %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Filen inneholder ingen mapping fra katalogutgave %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Også denne filen fører til katalogutgave %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Velg en mapping som fører fra den samme gamle katalogutgaven til en tidligere ny.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Overtatt fra %1: bekreftet der for katalogutgave %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Tidligere mapping leses</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Ingenting kan overtas fra %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Mappe for katalogutgave %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Målprosjekter søkes</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Avgjørelser overtas</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Avbrutt, ingenting ble overtatt</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Avgjørelser overtatt fra %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Overtatt fra %1: %2 av %Ln bekreftet linje, %3 sikkert tilordnet, %4 foreslått.</numerusform>
            <numerusform>Overtatt fra %1: %2 av %Ln bekreftede linjer, %3 sikkert tilordnet, %4 foreslått.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Mappe med den gamle katalogutgaven</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Mappe med den nye katalogutgaven</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Katalogmapper</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Hvor ligger de to katalogutgavene til denne mappingfilen? Mappene huskes sammen med filen.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Gammel utgave (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>Ny &amp;utgave (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Begge mappene trengs.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 er ingen mappe.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>%1 mangler i den gamle utgaven. Det er mappen med katalogen %2 som søkes.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Katalogen %1 mangler i den nye utgaven.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Linje %1 i %2 kan ikke vises</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Ingen linje er i konflikt</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Alle konflikter er avgjort; lagre nå</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Konflikt %1 av %2, ennå %3 åpne</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln linje i %1 motsier seg på samme måte. Gjelder avgjørelsen for alle?</numerusform>
            <numerusform>%Ln linjer i %1 motsier seg på samme måte. Gjelder avgjørelsen for alle?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Egen: %1
Annen: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;For alle</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Linje for linje</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Linjen er ikke i konflikt</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Den egne avgjørelsen er ikke kjent: linjen var i konflikt allerede da filen ble åpnet</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Ingen linje er i konflikt.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Alle konflikter er avgjort.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln linje til motsier seg som denne.</numerusform>
            <numerusform>%Ln linjer til motsier seg som denne.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Sidene i konflikten</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Egen</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Annen</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Avgjør på nytt</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 av %Ln konflikt ennå åpen.</numerusform>
            <numerusform>%1 av %Ln konflikter ennå åpne.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>åpen</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>egen</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>annen</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>ny</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Prosjekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Egen avgjørelse</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Annen avgjørelse</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Gjelder</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>automatisk tilordnet</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>skal kontrolleres</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>bekreftet</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>uten mål, åpen</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>bekreftet som utgått</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>ikke kjent</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, linje %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Tilstand</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Målprosjekt</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Mållinje</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Verdiområder</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Gammel linje</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Tidligere</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Egen avgjørelse</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Annen avgjørelse</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Opplysning</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>lik</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>erstattet som i %Ln linje til</numerusform>
            <numerusform>erstattet som i %Ln linjer til</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>lignende</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>forskjellig</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>bare i den nye linjen</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>bare i den gamle linjen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Gammel</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Ny</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>Tabellen har ikke linjen.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Uten mål. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Den tilordnede linjen er ingen av kandidatene.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Gammelt og nytt</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Kandidater</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Bekreftet.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Sikkert tilordnet.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linje</numerusform>
            <numerusform>%Ln linjer</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>sammenlignet: de første %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Ingen felles forskjeller.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Felles: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Merkede linjer</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Katalogutgave</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Filen inneholder flere katalogutgaver. Hvilken skal åpnes?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Mappingfilen leses</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Filen kan ikke åpnes.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Filen er åpnet bare for lesing.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Låsen kan oppheves når det er sikkert at ingen arbeider der lenger, for eksempel etter at datamaskinen har sviktet.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>B&amp;are les</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Opphev låsen</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Låsen kunne ikke oppheves.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Katalogene er ikke kjent; de angis med --source og --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Lagre endringene i %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Forkastede endringer går tapt.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Lagre</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Forkast</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln linje</numerusform>
            <numerusform>%1: %Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Ennå %Ln linje i konflikt, i disse prosjektene:</numerusform>
            <numerusform>Ennå %Ln linjer i konflikt, i disse prosjektene:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Vis konfliktene</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Lag&amp;re likevel</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Lagret: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Filen ble ikke lagret.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Slå sammen &amp;endringene</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>&amp;Behold en kopi og skriv på nytt</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Skriv min versjon</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Endringene til de andre er tatt inn. Kontroller dem, og lagre så en gang til.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Endringene til de andre kunne ikke tas inn.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Mappingfilen kan ikke opprettes.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>og %Ln til</numerusform>
            <numerusform>og %Ln til</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>%1 leses</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Mappingfilen %1 kan ikke leses (%2).
Velg en annen fil eller kopier sikkerhetskopien %3 tilbake.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Mappingfilen %1 kan ikke leses (%2).
Velg en annen fil.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 inneholder ingen utgave.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 inneholder ikke utgaven %2. Det finnes: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 er åpnet bare for lesing.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 redigeres akkurat nå av %2 og er derfor åpnet bare for lesing.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Det kan ikke skrives i mappen til %1 (%2). Filen er derfor åpnet bare for lesing; lagret under et annet navn kan den redigeres.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Det finnes arbeid med %1 som ikke ble lagret. Det tilbys så snart filen kan åpnes for redigering (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 har også et annet navn (hard lenke). Ved lagring forblir filen med det andre navnet som den var.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>%1 lagres</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>%1 sikkerhetskopieres</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 redigeres akkurat nå av %2. Ingenting ble skrevet. Velg et annet navn.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Ingenting kan opprettes i mappen til %1 (%2). Ingenting ble skrevet. Velg en annen mappe.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Ingen linje i dette prosjektet er i filteret.
Åpne «%1» og velg «%2» for å se alle linjene igjen.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Ingen prosjekter har en linje i filteret.
Åpne «%1» og velg «%2» for å se alle prosjektene igjen.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Mappingfiler (*.json);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Åpne mappingfil</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Lagre mappingfil</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Lagre tabell</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabeller (*.csv);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Velg den felles kopien</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Overta avgjørelser fra</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filteret er fjernet: prosjektet har ingen linje i det</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Slutten er nådd, fortsetter fra begynnelsen</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Begynnelsen er nådd, fortsetter fra slutten</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Ingen linje er igjen i filteret</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>erstattet tekst</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>omregnet tall</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Tilstand</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Hvorfor åpen</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Type forskjell</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Forskjell i kolonnen</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Sist bestemt av</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(ingen av disse)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>ikke de valgte</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Leser tabellene...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linje</numerusform>
            <numerusform>%Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln prosjekt</numerusform>
            <numerusform>i %Ln prosjekter</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Ikke noe filter: alle linjer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Uleselige tabeller: %Ln</numerusform>
            <numerusform>Uleselige tabeller: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter over alle linjer</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Fjer&amp;n filter</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Opprinnelse</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>overtatt fra en tidligere mapping</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 er ingen vanlig fil og kan derfor ikke brukes som lås. Ingenting ble skrevet. Fjern det som ligger der.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 lagres akkurat nå av et annet program. Ingenting ble skrevet. Lagre igjen om litt.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Ingenting kan opprettes i mappen til %1 (%2). Ingenting ble skrevet. Skaff plass eller lagre under et annet navn.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 kan ikke leses (%2). Ingenting ble skrevet. Lagre under et annet navn.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 er ingen lesbar mappingfil (%2). Ingenting ble skrevet. Ved lagring beholdes den eksisterende filen under et navn med tidsstempel, og det opprettes en ny som bare inneholder denne utgaven.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 er ingen lesbar mappingfil (%2). Ingenting ble skrevet. Ved lagring beholdes den eksisterende filen under et navn med tidsstempel, og det opprettes en ny. De andre utgavene kommer fra sikkerhetskopien %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 er uleselig og kunne ikke beholdes som %2 (%3). Ingenting ble skrevet. Lagre under et annet navn.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 er slettet eller har fått nytt navn siden den ble åpnet. Ved lagring opprettes filen på nytt og inneholder bare denne utgaven (%2). Ingenting er skrevet ennå.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 er endret av noen andre siden den ble åpnet, men ikke denne utgaven (%2). Ved lagring forblir de andre utgavene slik de nå er i filen. Ingenting er skrevet ennå.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 er endret av noen andre siden den ble åpnet, også denne utgaven (%2). Ved lagring går vedkommendes endringer i utgaven tapt. Ingenting er skrevet ennå: lagre likevel, lagre under et annet navn eller åpne filen på nytt.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Det kan ikke skrives til %1 (%2). Ingenting ble skrevet. Kontroller skriverettighetene eller lagre under et annet navn.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 ble ikke lagret: %2. Filen er uendret, endringene er fortsatt åpne. Skaff plass og lagre en gang til, eller lagre under et annet navn.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>filen kunne ikke skrives fullstendig</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>den skrevne filen er ikke lesbar (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>den skrevne filen inneholder ikke det som skulle lagres</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>utgaven %1 mangler i den skrevne filen, eller den er en annen</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Sikkerhetskopien %1 kunne ikke opprettes (%2). Ingenting ble skrevet. Skaff plass eller lagre under et annet navn.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 ble endret av noen andre under lagringen. Ingenting ble skrevet. Lagre en gang til.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 ble ikke lagret: %2. Filen er uendret, endringene er fortsatt åpne. Lagre under et annet navn.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Tilbake</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Håndbok</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Innhold</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Søk på siden</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Avgjørelseshistorikk...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Hvem avgjorde hva, når og hvorfor</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Grunn til avgjørelsen...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Til den siste avgjørelsen eller til de valgte linjene, for eksempel hvorfor det ikke finnes noen etterfølger</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Linje %1 i %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln linje i %1</numerusform>
            <numerusform>%Ln linjer i %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Grunn notert: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Avgjørelseshistorikk</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Valgt linje</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Valgt prosjekt</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Alle prosjekter</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Søk hvem, prosjekt, mål eller grunn</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Les på nytt</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>Lagre &amp;som CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Lu&amp;kk</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Uleselige linjer i journalen: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Avgjørelser: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Filen kan ikke skrives.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ingen etterfølger</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (ikke lagret)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Hvem</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Prosjekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Hittil</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Ny</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Hva</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Grunn</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Overtatt fra %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Mappe med CSV-filer</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Mappen til katalogen</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Importer tabeller</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Mappe med CSV-filer:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>Mappen &amp;til katalogen:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Hver CSV-fil blir til et prosjekt med sin tabell på samme sted i katalogen. Den som importerer tabellene igjen, beholder linjenumrene.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Mappen med CSV-filene mangler.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Mappen til katalogen mangler; den opprettes hvis mappen over finnes.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Den ene mappen ligger i den andre.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Bekreft linjen eller tilordne den valgte linjen</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Opphev tilordningen av linjen</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Opphev tilordningen og bekreft som utgått</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Rediger tilordningen av verdiområder</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Kopier betingelse fra linjen</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Bekreft hele prosjektet</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Søk i tabellen</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Søk neste</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Søk forrige</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Kolonnefilter</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Kopier linjer</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Større tabell</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Mindre tabell</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabell i normal størrelse</translation>
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
        <translation>&amp;Ingen tast</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Taster</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Kommando eller tast</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Kommandoer</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Hvor</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tast</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabell</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Vindu</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Tast for %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Felter og lister trenger selv tasten %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Både %2 og %3 ville hatt tasten %1.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Selvvalgt</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 har da ikke lenger tasten %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Tasten %1 tilhører nå %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Ingenting funnet</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Bekreftet: tilordningen er avgjort</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Forslag: må bekreftes eller rettes</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Uten ikon: entydig lik, tilordnet av programmet</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Ingen tilordning funnet</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Utgått: bekreftet at det ikke finnes noen tilordning</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Konflikt med endringen til noen andre</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Prosjektet eller tabellen kan ikke leses</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Linjens tilordninger av verdiområder</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>I måltabellen: den tilordnede linjen</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Tegnforklaring</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Lukk</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Betingelsen er kopiert til utklippstavlen</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Den kopierte betingelsen kan ikke brukes slik ennå, en verdi mangler, er et område eller inneholder et anførselstegn: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Her i filteret er alt ferdig, utenfor er ennå %Ln linje åpen.</numerusform>
            <numerusform>Her i filteret er alt ferdig, utenfor er ennå %Ln linjer åpne.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Slutten er nådd, fortsetter fra begynnelsen</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Begynnelsen er nådd, fortsetter fra slutten</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Konflikt %1 av %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Ingen linje er i en av de valgte tilstandene</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Ingen linje trenger lenger en avgjørelse</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Ingen av de åpne linjene kan vises; tabellene mangler</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Gå til linje</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Nummer eller normbetegnelse:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Gå til</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Ingen prosjekter er valgt</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Ingen linje med «%1» i dette prosjektet</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Treff %1 av %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Utfør</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Trinnet kan angres.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Det gjelder de merkede linjene.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Det gjelder alle linjene i prosjektet.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filter: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Ingen andre prosjekter har slike linjer</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Det gjelder bare de viste linjene i prosjektet: %1 av %2.</translation>
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
        <translation>Vis bare linjer i konflikt med endringen til noen andre, og prosjektene deres</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Skal kontrolleres</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Vis bare linjer med et forslag som må bekreftes eller rettes, og prosjektene deres</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Uten mål</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Vis bare linjer som det ikke er funnet noe for, og prosjektene deres</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatisk</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Vis bare linjer som er entydig like og ble tilordnet av programmet, og prosjektene deres</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekreftet</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Vis bare linjer med bekreftet tilordning, og prosjektene deres</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Utgått</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Vis bare linjer som er bekreftet som utgått, og prosjektene deres</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Bruk lenkedatabase</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Fil på denne datamaskinen</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL-tjener</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>den vanlige</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Passordet står i passordfilen, i nøkkelringen til skrivebordet eller i PGPASSWORD, eller det skrives inn ved pålogging. Det lagres ikke.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>hvis mulig</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>alltid</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>alltid, tjeneren kontrollert</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>aldri</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Fil:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Vert:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Database:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>B&amp;ruker:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Kryptering:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Lenkedatabase: Navnet på filen mangler.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Lenkedatabase: Navnet på databasen mangler eller er ugyldig.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Kontroller numrene i lenkedatabasen</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>Det finnes ingen gruppe i lenkedatabasen som du tilhører.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Velg gruppe</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Gruppe i lenkedatabasen:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Linje %1 i %2 finnes ikke i denne mappingen.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Numrene i lenkedatabasen kontrolleres</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Numrene kunne ikke kontrolleres.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Endringer i linkdatabasen kan være tapt.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Lisensen for lenkedatabasen mangler.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Pålogging til lenkedatabasen</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Passordet gjelder til programmet avsluttes og lagres ikke. Er det tomt, hentes det fra passordfilen.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Under dette navnet står det i protokollen hvem som har slettet noe.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Lenkebehandling</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Søk nummer, prosjekt eller beskrivelse</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Prosjekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Beskrivelse</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Vis linje</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Lenk til en annen linje...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Velg deretter prosjekt og linje, og send utvalget med «Utvalg til lenkebehandling».</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Sist slettet...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Lu&amp;kk</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Lenker: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Ingenting er slettet som kunne gjenopprettes.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Gjenopprette det som sist ble slettet? Linjer: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 slettet dem den %2 fra %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Gjenopprett</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Den første %Ln lenken; søket viser andre.</numerusform>
            <numerusform>De første %Ln lenkene; søket viser andre.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Kontroll av numrene</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Funn</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Numre på prosjekter i denne mappingen: %1, på andre prosjekter: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Ikke sammenlignet fordi de er uleselige: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Lukk</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Linjen er utgått eller finnes ikke</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>bekreftet som utgått</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>prosjektet har den ikke</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Flere linjer gjør krav på det</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Delen avviker</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Delen avviker (ikke sammenlignet)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Åpne linjer med numre</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Numre: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Linje %1 finnes ikke i %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Prosjektet %1 kan ikke vises.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Finn</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Prosjekt, linje, kommando eller innstilling</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Funnet</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Deler av ordene er nok; et tall etterpå betyr en linje.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Ingenting funnet</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln treff</numerusform>
            <numerusform>%Ln treff</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>De første %1 av %Ln treff</numerusform>
            <numerusform>De første %1 av %Ln treff</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Linje %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Prosjekt</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Innstilling</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Feil: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Advarsel: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Meldinger</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Tøm meldinger</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Kopier alle meldinger</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Bruker:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Passord:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Ingen forbindelse til lenkedatabasen: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>ERP-numrene kan ikke leses. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Linjer tilordnet på nytt: ingen endring</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Her finnes ingen slik linje. %1 går til den neste.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>skrivebeskyttet</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Katalogen</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Til venstre står den gamle katalogutgaven. Ikonene viser hvor det ennå er noe å avgjøre. Velg et prosjekt for å se linjene i det.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Målene</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Her står prosjektene i den nye utgaven som kan overta linjer, med betingelser og variabeltilordninger.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Linjene</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Til venstre den gamle tabellen, til høyre den nye. %1 bekrefter tilordningen eller tilordner linjen som er valgt til høyre, %2 opphever den, %3 bekrefter at linjen er utgått.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Hva som ennå er åpent</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Telleren sier hvor mange linjer som trenger en avgjørelse. %1 går til den neste, også i det neste prosjektet.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Ingenting går tapt</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Hvert trinn kan angres. Det som ikke er lagret, tilbyr programmet å gjenopprette etter et krasj. Omvisningen finnes i menyen Hjelp.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Tilordne linjene i hele katalogen?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Det som er bekreftet, blir stående uansett. Trinnet kan angres.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Bare linjer uten tilordning</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Alt ubekreftet på nytt</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Alle prosjekter tilordnet</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Målprosjektet %1 finnes ikke.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Målprosjekt: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Innstillinger: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Det finnes ikke noe tips til dette stedet</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Tøm listen</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Fil</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Deling</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Sist åpnet</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Rediger</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>Gå &amp;til</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Gjennomgang</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Vis</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Bare linjer</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Hjelp</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Lenkedatabase</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Linjenes tilstander</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Verktøy</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Ingen fil er åpen for redigering.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Egne endringer oppå versjonen i filen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln konflikt: egen avgjørelse</numerusform>
            <numerusform>%Ln konflikter: egen avgjørelse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln konflikt: avgjørelsen til den andre siden</numerusform>
            <numerusform>%Ln konflikter: avgjørelsen til den andre siden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln konflikt: skal avgjøres på nytt</numerusform>
            <numerusform>%Ln konflikter: skal avgjøres på nytt</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Journalen %1 kan ikke skrives (%2). Etter et krasj ville endringene være tapt: lagre snart.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Den gjenopprettede versjonen kan ikke sikres (%1). Skaff plass og åpne en gang til; journalen er uendret.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Gjenoppretting etter et krasj</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Journalen %1 kan ikke opprettes (%2). Etter et krasj ville endringene være tapt: lagre ofte.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Ingen mappingfil er åpen.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Det lagres akkurat nå.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Det ble ikke lagret. %1 Lagre under et annet navn.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Låsen på %1 er tapt og kan ikke fornyes. Andre kunne redigere filen samtidig.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Den automatiske sikringen lyktes ikke (%1). Lagre snart.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Endringen ble ikke tatt inn. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Konflikter merket</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Angret: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Gjort om igjen: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>«%1» passer ikke lenger til det som er endret siden. Listen over trinn sier hva som står i veien.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Målprosjekter søkes</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Avbrutt, ingenting ble opprettet</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Linjer tilordnes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln prosjekt: %1 på samme sted, %2 på et annet, %3 delt opp, %4 uten mål, %5 uleselig</numerusform>
            <numerusform>%Ln prosjekter: %1 på samme sted, %2 på et annet, %3 delt opp, %4 uten mål, %5 uleselige</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 av %Ln prosjekt</numerusform>
            <numerusform>%1 av %Ln prosjekter</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>hvorav %1 tilordnet, %2 skal kontrolleres, %3 uten mål</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Avbrutt: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 med %Ln linje</numerusform>
            <numerusform>%1 med %Ln linjer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln endring tatt inn.</numerusform>
            <numerusform>%Ln endringer tatt inn.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln linje har begge avgjort likt.</numerusform>
            <numerusform>%Ln linjer har begge avgjort likt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln linje er avgjort forskjellig og merket som konflikt.</numerusform>
            <numerusform>%Ln linjer er avgjort forskjellig og merket som konflikt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln annen motsigelse: Versjonen i filen gjelder.</numerusform>
            <numerusform>%Ln andre motsigelser: Versjonen i filen gjelder.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Linje %1 kan ikke vises</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Intet funn er valgt</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Rettet: %1 i %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tabellene sammenlignes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln tilordnet linje sett på</numerusform>
            <numerusform>%Ln tilordnede linjer sett på</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln funn</numerusform>
            <numerusform>%Ln funn</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Naboskap</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Linjene %1 til %2 er forskjøvet med %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Linjene %1 og %2 er byttet om</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Linje %1 ligger %2 feil</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Linje %1 har mållinjen til en annen</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Linje %1 er hoppet over</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>åpen</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Rettet: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Funn</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Rettet</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Prosjekt</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Mappe med den gamle katalogutgaven</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Mappe med den nye katalogutgaven</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Tilordne linjene med en gang</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Ny mapping</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Gammel katalogutgave:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Katalog i den:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>Ny &amp;katalogutgave:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Velg mappingfil</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Mappingfil:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Opprett</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Mappen med den gamle katalogutgaven mangler.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Mappen med den nye katalogutgaven mangler.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Hver utgave trenger en mappe med katalogen.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Mappingfilen trenger et navn.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Mappen %1 finnes ikke.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 finnes allerede.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Ved lagring kommer den nye utgaven til; en utgave med samme dato erstattes, med alt som er bekreftet i den.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Bruk denne filen</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>mediet er fullt</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>filen blir større enn det som er tillatt her</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>skriverettigheten mangler</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>mediet er skrivebeskyttet</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>mappen eller filen er ikke der lenger</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>på plassen dens er det noe annet enn en vanlig fil</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>uten mål</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Gammel linje</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Ny linje</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Andre forskjeller</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Tabellen til prosjektet kan ikke leses.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Sti:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Norm:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Betegnelse:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Prosjektversjon:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Tabellversjon:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Linjer:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Fil:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Lukk</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln åpen linje med forslag</numerusform>
            <numerusform>%Ln åpne linjer med forslag</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>i %Ln mønster</numerusform>
            <numerusform>i %Ln mønstre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln av dem sammenlignes ennå</numerusform>
            <numerusform>%Ln av dem sammenlignes ennå</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Valgt: %Ln linje</numerusform>
            <numerusform>Valgt: %Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln av dem tatt ut</numerusform>
            <numerusform>%Ln av dem tatt ut</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Forskjeller i de åpne linjene</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln prosjekt</numerusform>
            <numerusform>i %Ln prosjekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln åpen linje uten etterfølger</numerusform>
            <numerusform>%Ln åpne linjer uten etterfølger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tabellene sammenlignes: %Ln prosjekt lest</numerusform>
            <numerusform>Tabellene sammenlignes: %Ln prosjekter lest</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linje</numerusform>
            <numerusform>%Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln prosjekt</numerusform>
            <numerusform>%Ln prosjekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln linje til har disse og andre forskjeller</numerusform>
            <numerusform>%Ln linjer til har disse og andre forskjeller</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Forskjell</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Prosjekter</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Sikkerhet</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Unntak</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>tall i nærheten</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>annet tall</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>annen ordlyd</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>verdi kommet til</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>verdi mangler</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>kan ikke sammenlignes</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ingen forskjell</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>annen skrivemåte</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>usikkert: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>hel mappe uten mål: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>helt prosjekt uten mål: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>målprosjektet finnes ikke lenger: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 finnes ikke lenger</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>ingen lignende linje: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>prosjektnavn</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>et annet</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>annen verdi</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>én eller flere av dem i hver linje</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>ikke tilgjengelig: ingen fil er åpen</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>ikke tilgjengelig: lenkedatabasen kobles til</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>ikke tilgjengelig: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>ikke tilgjengelig: ingen lenkedatabase er tilkoblet</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>ikke tilgjengelig: lenkebehandlingen venter ikke på noe utvalg</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>ikke tilgjengelig: ingen prosjekter er valgt</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>ikke tilgjengelig: ingen linje er valgt</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>ERP-nummer for %1, linje %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Vennligst tildel et ERP-nummer.

Prosjekt: %1
Linje: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Det kunne ikke påbegynnes en e-post.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Det er ikke satt opp noe e-postprogram på denne datamaskinen. Forespørselen lyder:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Det vises ingen tabell som kan skrives ut</translation>
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
        <translation>%1 er sendt til skriveren</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 skrevet ut til %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 kunne ikke skrives ut.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Skriveren tar ikke imot sider.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 kan ikke skrives.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Side</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Spørsmål</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Merk</translation>
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
        <translation>&amp;Nei</translation>
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
        <translation>Linje %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln linje er bekreftet selv om verdier i området ikke har noen ny linje.</numerusform>
            <numerusform>%Ln linjer er bekreftet selv om verdier i områdene deres ikke har noen ny linje.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Ta tilbake</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Bekreft likevel</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln linje</numerusform>
            <numerusform>%1: %Ln linjer</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Linjen har ingen tilordning av verdiområder.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>mangler: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>flere ganger: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>ikke i det gamle området: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Linjens verdiområde</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 av %Ln verdi tilordnet</numerusform>
            <numerusform>%1: %2 av %Ln verdier tilordnet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Grunn til avgjørelsen</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;For:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Grunn:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>tatt ut av sortimentet</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>slått sammen med en annen del</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>delt opp i flere deler</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>flyttet til en annen katalog</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>ennå ikke kontrollert</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Gjenoppretting</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Lagret</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Gjenopprettet</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Per</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Prosjekter</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekreftet</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Skal kontrolleres</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Uten mål</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Den lagrede versjonen er nyere enn alt som kan gjenopprettes.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Gjenopprett</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Med senere endringer (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>Åpne &amp;den lagrede versjonen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln trinn</numerusform>
            <numerusform>%Ln trinn</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Det finnes arbeid med %1 som ikke ble lagret: %2, sist «%3». Det kommer fra %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 med %Ln linje</numerusform>
            <numerusform>%1 med %Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln prosjekt</numerusform>
            <numerusform>%1 i %Ln prosjekter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Tabeller importeres</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 har ingen CSV-fil lenger og forblir som det er</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Det finnes ingen CSV-fil i mappen; ingenting ble importert</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Avbrutt: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Ikke alt ble skrevet: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 kan ikke skrives.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Eksporter linjer</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabeller (*.csv);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Linjer eksporteres</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Avbrutt, ingenting ble eksportert</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Skriv rapport</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF-filer (*.pdf);;HTML-sider (*.html);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Rapporten lages</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Avbrutt, ingen rapport ble skrevet</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Sidene settes</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Rapport skrevet til %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Avbrutt, ingen rapport ble laget</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Side %1 av %2</translation>
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
        <translation>%1 nye, %2 endret, %3 uendret, %4 ikke importert</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln linje eksportert til %1</numerusform>
            <numerusform>%Ln linjer eksportert til %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 med %Ln linje</numerusform>
            <numerusform>%1 med %Ln linjer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Avtalte erstatninger</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>i hele katalogutgaven</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Avtal</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Trekk tilbake</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Belegg</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>Ta &amp;over</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>En erstatning sier at en gammel verdi står for en ny. Den gir forslag, men bekrefter ingenting.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>avtalt</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>avtalt i %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Tabellene leses</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln linje for</numerusform>
            <numerusform>%Ln linjer for</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln linje imot</numerusform>
            <numerusform>%Ln linjer imot</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Ingen er avtalt. Når listen over forskjeller er åpen, tilbys erstatningene dens her.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Mappingrapport: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Katalogutgave %1 til %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Laget den %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Hvordan linjene står</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Etter mapper, med alt under</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Etter prosjekter</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Hvorfor linjer er åpne</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Hvordan åpne linjer skiller seg fra forslagene sine</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Stikkprøver</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Hvem avgjorde hva</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Åpne linjer</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Hva som ikke kunne leses</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekreftet</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Bekreftet som utgått</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Sikkert tilordnet</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Skal kontrolleres</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Uten mål</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>I konflikt</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Prosjekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Betegnelse</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Grunn</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Forskjeller</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Prosjekter</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Sannsynlighet</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Unntak</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Eksempler</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Hvem</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Hva</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Bedømt</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Riktige</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Høyst feil (95 % sikkert)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>avvist</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabellen er ikke lesbar</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>kan ikke sammenlignes</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ingen forskjell</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>og %1 til</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>to har avgjort forskjellig</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>noen andre avgjør</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>en tabell er ikke lesbar</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>en betingelse eller formel mislykkes</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>ikke noe mål er ansvarlig</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>en kolonne mangler</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>flere linjer er like</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>for ulike</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>lik, bare ikke bekreftet</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>usikkert: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Åpne linjer uten etterfølger</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Linjer bekreftet som utgåtte</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Hva de har til felles</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>i alt</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Overtatt fra tidligere mappinger</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Tidligere mapping</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Fortsatt som overtatt</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Bedømte linjer</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Ferdige linjer: %1 av %2; åpne: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Les målprosjekter fra depotet</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://tjener:port/sti</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Én katalog per linje. Uten linje er katalogens navn også navnet på tjeneren.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>den nyeste</translation>
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
        <translation>Tje&amp;ner:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>R&amp;evisjon:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Plass på denne &amp;maskinen:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Ventetid på &amp;tjeneren:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Tjener, linje %1: &quot;%2&quot; har ikke formen &quot;Katalog = svn://tjener:port/sti&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Pålogging til depotet</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 krever pålogging.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Navn og passord gjelder til programmet avsluttes og lagres ikke.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Linje %1 kan ikke vises</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Ingen linje er åpen lenger</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tabellene er ikke sammenlignet ennå</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Fra begynnelsen: %Ln linje åpen</numerusform>
            <numerusform>Fra begynnelsen: %Ln linjer åpne</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Åpne linjer kommer etter usikkerhet</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Åpne linjer kommer etter sted</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Linjen hører ikke til det valgte mønsteret</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Linje %1 tatt ut</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Intet mønster er valgt, eller alle linjene er avgjort</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linje</numerusform>
            <numerusform>%Ln linjer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>bekrefte i %Ln prosjekt?</numerusform>
            <numerusform>bekrefte i %Ln prosjekter?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Trinnet kan angres.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Bekreft</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekreftet</numerusform>
            <numerusform>%Ln linjer bekreftet</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Det finnes ingen kandidat %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Linje %1 → %2 bekreftet</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Avtalte erstatninger: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Velg et mønster, eller merk åpne linjer</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Stikkprøve</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Trekk</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Stikkprøve, linje %1 av %2: + riktig, − feil</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Ingen stikkprøve pågår</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Alle linjene i stikkprøven er allerede avgjort</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 av %2 riktige</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Stikkprøve avvist, %1; bedømt av %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>alle linjer bedømt</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>med 95 % sikkerhet færre enn %1 % feil</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Stikkprøve: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>bedømt av %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>der var den gale</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Linje %1 er feil: stikkprøven er slutt</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Fortsett</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>Se på &amp;den gale linjen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln av dem er usikker.</numerusform>
            <numerusform>%Ln av dem er usikre.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Alle mønstre er ferdige</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln prosjekt</numerusform>
            <numerusform>i %Ln prosjekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekreftet som utgått</numerusform>
            <numerusform>%Ln linjer bekreftet som utgått</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Linje %1 i %2 er feil. Mengden er delt; hvilken del skal det fortsettes med?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Så mange av %Ln linje trekkes og bedømmes enkeltvis. %1 riktige sier med 95 % sikkerhet at færre enn 5 % er feil, %2 riktige færre enn 1 %.</numerusform>
            <numerusform>Så mange av %Ln linjer trekkes og bedømmes enkeltvis. %1 riktige sier med 95 % sikkerhet at færre enn 5 % er feil, %2 riktige færre enn 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Skriptkonsoll</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Utdata fra skriptene</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Linje i et skript</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>En linje JavaScript. Enter kjører den, Tab fullfører, Opp og Ned blar.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Stopper skriptet som kjører (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Tøm</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Sletter utdataene</translation>
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
        <translation>(konsoll)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Ferdig, status %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Linje %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Den er for stor.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Den er ikke tekst i UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 kan ikke leses. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Åpne skript</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Skript (*.js);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Lagre skript</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 kan ikke skrives. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Skriptet er ikke lagret.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(uten navn)</translation>
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
        <translation>Åpne …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Kjør</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumenter:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Teksten i skriptet</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumenter</translation>
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
        <translation>(prosess %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Journalen %1 kan ikke leses (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Etter den sist avsluttede økten er journalen %1 ikke lesbar. Hva som sto der, vites ikke; journalen beholdes.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Slutten av journalen %1 er ikke lesbar. Den siste endringen kan mangle.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Journalen %1 er skadet. Etter skaden passer %Ln endring ennå, %2 passer ikke lenger; flere kan mangle. Journalen beholdes.</numerusform>
            <numerusform>Journalen %1 er skadet. Etter skaden passer %Ln endringer ennå, %2 passer ikke lenger; flere kan mangle. Journalen beholdes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Journalen %1 er skadet eller passer ikke til mappingfilen. Minst %Ln senere endring mangler; journalen beholdes.</numerusform>
            <numerusform>Journalen %1 er skadet eller passer ikke til mappingfilen. Minst %Ln senere endringer mangler; journalen beholdes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>&amp;Gå videre til neste åpne linje etter en avgjørelse</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Som skrivebordet</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Lys</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Mørk</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>aldri</translation>
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
        <translation>F&amp;arger:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Skr&amp;iftstørrelse:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Sikkerhetskopi &amp;hvert:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Høy kontrast</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Én mappe per linje, der det kan leses det filer i en katalog nevner utenfor katalogene.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Tillatte mapper:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Tillatte mapper: &quot;%1&quot; er ikke en mappe med fullstendig sti.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Mappingen deles ikke med noen. Velg først den felles kopien.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 finnes allerede og er en annen mapping. Velg en annen kopi, eller hent den eksisterende til en ny fil.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Andre har publisert noe siden siste oppdatering.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Linjer i konflikt publiseres ikke: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Det er endringer i mappene til andre: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Mappen er allerede opptatt: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Noen andre publiserer akkurat nå (%1). Prøv igjen om litt.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Den felles kopien kan ikke nås: %1. Din egen fil er uendret; prøv igjen senere.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>En av filene er ingen lesbar mapping: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Det kunne ikke skrives: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Det gikk ikke.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Den felles kopien leses</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Delt via %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Endringene til de andre hentes</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Det er ikke noe nytt</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Endringene publiseres</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapping redigert</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Publisert, revisjon %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Først tas det inn. Deretter kan det publiseres.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Oppdater</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Publiser likevel</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Ta over mapper</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>&amp;Ta over</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Mappene føres inn</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Ingen egne mapper lenger</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Egne mapper: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(her)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>har den åpen</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>har den ikke åpen</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>sist %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>mapper %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Egen revisjon %1, nyeste revisjon %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Andre har publisert noe.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Det er ikke noe nytt fra andre.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Egne endringer er ikke publisert ennå.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Felles kopi: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Den siste publiseringen ble avbrutt, men kom fram.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Den siste publiseringen ble avbrutt. Publiser en gang til.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Den felles filen var endret i arbeidskopien og ikke sendt inn. Det er tatt vare på i %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Arbeidskopien var forlatt midt i et arbeid og er ryddet opp.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Forvaltningen av arbeidskopien var skadet og er hentet på nytt; den tidligere er %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Noe avbrutt er brakt i orden.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Mapper i katalogen, atskilt med komma; * står for vilkårlige tegn, ? for ett. Tomt gir alle tilbake:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>angre</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Alt avgjort</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Linjer som ennå trenger en avgjørelse</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filter: ingen linje</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Linjer som filteret over alle linjer viser</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln linje&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln linjer&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Åpne: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 i %Ln prosjekt</numerusform>
            <numerusform>%1 i %Ln prosjekter</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Ingen linje tilordnet ennå</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Framdrift</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Avbryter arbeidet som pågår; det som er ferdig, blir</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Feil og advarsler: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Trinn</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Søk hvem, hva eller linjer</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>Tilbake &amp;hit</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Tar tilbake dette og alle senere gjeldende trinn</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Til l&amp;injen</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Lu&amp;kk</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Ta tilbake med avhengige (%Ln)</numerusform>
            <numerusform>&amp;Ta tilbake med avhengige (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Ta bare dette tilbake</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Gjør igjen med tidligere (%Ln)</numerusform>
            <numerusform>&amp;Gjør igjen med tidligere (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Gjør igjen</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Ingen trinn ennå</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Ingen andre trinn avhenger av det.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Trinnet kan gjøres igjen for seg selv.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Bygger på dette: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Det bygger på: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>I veien, fordi de bestemte noe annet: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Nå står det noe annet der som intet trinn i listen bestemte, for eksempel fra et annet program. Trinnet kan ikke flyttes lenger.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>og %Ln til</numerusform>
            <numerusform>og %Ln til</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln prosjekt</numerusform>
            <numerusform>%1 i %Ln prosjekter</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>gjelder</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>tatt tilbake</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>forbigått</translation>
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
        <translation>Hvem</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Hva</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Endringen i %1 virker først når linjene tilordnes på nytt. Da beholdes bare det som er bekreftet.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln linje i %1 var bekreftet som utgått og er det ikke lenger: %2</numerusform>
            <numerusform>%Ln linjer i %1 var bekreftet som utgått og er det ikke lenger: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>I %1 forblir variabler ignorert: %2. For å tilordne en av dem igjen, velg &quot;Formel...&quot; eller slett linjen og skriv den inn på nytt.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>En betingelse for målprosjektet %1 i %2 er falt bort.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>En variabeltilordning for målprosjektet %1 i %2 er falt bort.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Linje %1 → %2 i %3: også %Ln annen linje har mållinjen: %4</numerusform>
            <numerusform>Linje %1 → %2 i %3: også %Ln andre linjer har mållinjen: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln linje i %1 deler mållinjen med nylig tilordnede: %2</numerusform>
            <numerusform>%Ln linjer i %1 deler mållinjen med nylig tilordnede: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln konflikt godtatt</numerusform>
            <numerusform>%Ln konflikter godtatt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekreftet</numerusform>
            <numerusform>%Ln linjer bekreftet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekreftet som utgått</numerusform>
            <numerusform>%Ln linjer bekreftet som utgått</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln linje tilordnet</numerusform>
            <numerusform>%Ln linjer tilordnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>tilordningen av %Ln linje opphevet</numerusform>
            <numerusform>tilordningen av %Ln linjer opphevet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>tilordningen av verdiområder for %Ln linje endret</numerusform>
            <numerusform>tilordningen av verdiområder for %Ln linjer endret</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>konflikten for %Ln linje løst</numerusform>
            <numerusform>konflikten for %Ln linjer løst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln linje endret</numerusform>
            <numerusform>%Ln linjer endret</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>linje %1 → %2 bekreftet</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>linje %1 → %2 tilordnet</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (tidligere %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>linje %1 bekreftet som utgått (tidligere %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>linje %1 bekreftet som utgått</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>tilordningen av linje %1 opphevet (tidligere %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Prosjekt lagt til</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Prosjekt fjernet</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Målprosjekt lagt til</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Målprosjekt fjernet</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Rekkefølgen på målprosjektene endret</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Betingelser endret</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Variabeltilordning endret</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versjoner endret</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Status endret</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln prosjekt</numerusform>
            <numerusform>%1 i %Ln prosjekter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Tilbake</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Hopp over</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Neste</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Ferdig</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, linje %2: Rad %3 i tilordningen av verdiområder har ikke formen {NAME=VERDI} -&gt; linjenummer: &quot;%4&quot;. Rett den eller løs den opp på nytt.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, linje %2: Tilordningen av verdiområder nevner linje %3, men linjen har ikke noe målprosjekt. Tilordne den eller tøm teksten.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, linje %2: Tilordningen av verdiområder nevner linje %3, som ikke finnes i %4. Rett den eller løs den opp på nytt.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: Tabellen til målprosjektet %2 kan ikke leses, tilordningene av verdiområder er ikke kontrollert. Kontroller mappen med målprosjektene (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Tilordninger av verdiområder kontrolleres</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln tilordning av verdiområder kontrollert</numerusform>
            <numerusform>%Ln tilordninger av verdiområder kontrollert</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>ingen merknader</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln merknad</numerusform>
            <numerusform>%Ln merknader</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (avbrutt): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Avstem katalogutgaver</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>En katalog har kommet i ny utgave, og hver linje i den gamle må overføres til en linje i den nye. Programmet foreslår, du kontrollerer og bekrefter.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Sist åpnet:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>Ny &amp;mapping...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Oppretter en ny mappingfil av to katalogutgaver</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>Åp&amp;ne...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Åpner en mappingfil</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Åpne &amp;eksempelkatalogen</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Åpner en egen mappingfil for eksempelkatalogen som følger med</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Lagre</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Skriver alle endringer til mappingfilen</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Lag&amp;re som...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Skriver til en annen mappingfil</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>L&amp;ukk</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Lukker mappingfilen</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Katalogmapper...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Velger mappene med den gamle og den nye katalogutgaven</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Felles kopi...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Velger kopien som flere arbeider med denne mappingen gjennom</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Oppdater</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Tar inn det andre har publisert</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Publiser</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Gir egne endringer videre til de andre</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>Ta over &amp;mapper...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Forteller de andre hvilke mapper du selv redigerer</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Hvem arbeider med hva</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Viser hvem som har mappingen åpen, og hvem som har hvilke mapper</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importer tabeller...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Gjør en mappe med CSV-filer til prosjekter i en katalog</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Ekspor&amp;ter linjer...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Skriver alle linjene i utgaven med tilordningene deres til en CSV-fil</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Ra&amp;pport...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Skriver som PDF eller HTML hvor langt utgaven er kommet, og hvorfor linjer er åpne</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Avslutt</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Avslutter programmet</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Angre</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Angrer det siste trinnet</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>Gjør &amp;om</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Utfører det angrede trinnet igjen</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Bekreft linjer...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Bekrefter i ett trinn tilordningen av de merkede linjene eller alle som vises</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Bekreft &amp;linjer uten mål som utgått...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Bekrefter blant de merkede linjene eller alle som vises, dem uten mål som utgått</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Opp&amp;hev tilordninger...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Opphever i ett trinn tilordningen av de merkede linjene eller alle som vises</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Opphe&amp;v tilordninger og bekreft...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>De merkede linjene, eller alle som vises, er utgått: opphever og bekrefter i ett trinn</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Tilordne alle prosjekter...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Søker tilordninger for alle linjene i katalogen; det som er bekreftet, blir</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Ko&amp;ntroller tilordninger av verdiområder</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Sammenligner alle verdiområdetekster med tabellene til målprosjektene</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>&amp;Skript...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Åpner et vindu der skript skrives og kjøres</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Innstillinger...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Språk, skrift, taster, sikkerhetskopiering</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Neste åpne linje</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Går til neste linje som trenger en avgjørelse, også i neste prosjekt</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>&amp;Forrige åpne linje</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Går til forrige linje som trenger en avgjørelse, også i forrige prosjekt</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>Gå &amp;til linje...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Søker en linje i prosjektet etter nummer eller betegnelse</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Den andre tabellen</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Veksler mellom den gamle og den nye tabellen</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>F&amp;inn...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Finner prosjekter, linjer, kommandoer og innstillinger ut fra deler av ordene</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Forskjellsmønstre</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Viser hvordan de åpne linjene skiller seg fra forslagene sine</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Gammelt og nytt</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Viser gamle og nye verdier av linjen ved siden av hverandre, og kandidatene</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Bekreft mønster...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Bekrefter i ett trinn alle linjene i det valgte mønsteret</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>Ta ut &amp;linje</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Linjen bekreftes ikke sammen med de andre i mønsteret</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>Neste linje &amp;i mønsteret</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Går til neste åpne linje i det valgte mønsteret</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Forrige linje i &amp;mønsteret</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Går til forrige åpne linje i det valgte mønsteret</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>&amp;Neste mønster</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Velger neste mønster i listen</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Mest &amp;usikre først</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Åpne linjer kommer etter faren for feil i stedet for etter sted</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>N&amp;aboskap</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Viser hvor tilordningene av nabolinjer ikke passer sammen</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Rett &amp;opp linjene</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Retter i ett trinn det valgte funnet i naboskapet</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Erstatninger...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Avtaler erstatninger av verdier for katalogutgaven eller trekker dem tilbake</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>&amp;Stikkprøve...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Trekker linjer fra det valgte mønsteret eller de merkede linjene, som bedømmes enkeltvis</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Stikkprøve: &amp;riktig</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Den viste linjen i stikkprøven er riktig tilordnet</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>S&amp;tikkprøve: feil</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Den viste linjen i stikkprøven er feil tilordnet; stikkprøven slutter</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Kandidat &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Tilordner linjen denne kandidaten og bekrefter den</translation>
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
        <translation>Linjens verdiområde</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Viser hvilke verdier i det gamle området som har nye linjer</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>&amp;Konflikter</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Viser linjene som to sider har avgjort forskjellig</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Neste åpne konflikt</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Går til neste linje med en konflikt som ennå er åpen</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Konflikt: egen avgjørelse</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>I denne konflikten gjelder den egne avgjørelsen</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Konflikt: annen avgjørelse</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>I denne konflikten gjelder avgjørelsen til den andre siden</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Konflikt: avgjør på nytt</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Ingen av avgjørelsene gjelder; linjen er igjen uten mål</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Bygger visningen opp på nytt: tre, statistikk, tabeller fra disken</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Håndbok</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Åpner håndboken på stedet det gjelder</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>Ta&amp;ster...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Viser og endrer tastene til alle kommandoer</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Tips til dette stedet</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Viser tipset der tastene virker: i en tabell hvorfor linjen har sin tilstand</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Omvisning</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Viser i noen få trinn hvor ting er</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>Om &amp;dette programmet</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Versjon og mapper</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Trinn...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Viser alle trinn, også fra tidligere økter, og tar enkelte tilbake</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Neste prosjekt med åpne linjer</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Går til neste prosjekt der noe skal bestemmes</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Forrige prosjekt med åpne linjer</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Går til forrige prosjekt der noe skal bestemmes</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter over alle linjer</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Velger linjer i alle prosjekter etter tilstand, grunn, forskjell og person; F8 går gjennom dem</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Skri&amp;v ut...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Viser sidene av tabellen som vises, og skriver dem ut</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Viser rapportens sider og skriver dem ut</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Skriv ut rapport...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Overta avgjørelser...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Overtar i ett trinn fra en tidligere mapping det som allerede er bekreftet for den samme gamle utgaven</translation>
    </message>
</context>
</TS>
