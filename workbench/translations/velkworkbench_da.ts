<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Der er intet at ændre.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Bekræft %Ln linje?</numerusform>
            <numerusform>Bekræft %Ln linjer?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Bekræft %Ln linje som udgået?</numerusform>
            <numerusform>Bekræft %Ln linjer som udgået?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Ophæv tildelingen af %Ln linje?</numerusform>
            <numerusform>Ophæv tildelingen af %Ln linjer?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Ophæv tildelingen af %Ln linje og bekræft den som udgået?</numerusform>
            <numerusform>Ophæv tildelingen af %Ln linjer og bekræft dem som udgået?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln af dem er allerede bekræftet.</numerusform>
            <numerusform>%Ln af dem er allerede bekræftet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln af dem mister sin tildeling af værdiområder.</numerusform>
            <numerusform>%Ln af dem mister deres tildeling af værdiområder.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln linje uden mål forbliver ubekræftet.</numerusform>
            <numerusform>%Ln linjer uden mål forbliver ubekræftede.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln linje forbliver, som den er.</numerusform>
            <numerusform>%Ln linjer forbliver, som de er.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln linje i konflikt ændres ikke.</numerusform>
            <numerusform>%Ln linjer i konflikt ændres ikke.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln linje er ikke opført i noget målprojekt.</numerusform>
            <numerusform>%Ln linjer er ikke opført i noget målprojekt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln linje bekræftet.</numerusform>
            <numerusform>%Ln linjer bekræftet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln linje bekræftet som udgået.</numerusform>
            <numerusform>%Ln linjer bekræftet som udgået.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Tildelingen af %Ln linje ophævet.</numerusform>
            <numerusform>Tildelingen af %Ln linjer ophævet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Tildelingen af %Ln linje ophævet og linjen bekræftet som udgået.</numerusform>
            <numerusform>Tildelingen af %Ln linjer ophævet og linjerne bekræftet som udgået.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ingen efterfølger</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tast</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Sikkerhed</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Ny linje</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Grund</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 allerede besluttet eller sikre her</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 uden linje i den nye udgave</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 dengang bekræftet som udgået</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 i projekter, der mangler her</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 i konflikt dér</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Ikke overtaget: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Der er intet at overtage fra %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Filen indeholder ingen mapping fra katalogudgave %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Også denne fil fører til katalogudgave %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Vælg en mapping, der fører fra den samme gamle katalogudgave til en tidligere ny.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Overtaget fra %1: bekræftet dér for katalogudgave %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Tidligere mapping læses</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Intet kan overtages fra %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Mappe for katalogudgave %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Målprojekter søges</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Beslutninger overtages</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Afbrudt, intet blev overtaget</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Beslutninger overtaget fra %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Overtaget fra %1: %2 af %Ln bekræftet linje, %3 sikkert tildelt, %4 foreslået.</numerusform>
            <numerusform>Overtaget fra %1: %2 af %Ln bekræftede linjer, %3 sikkert tildelt, %4 foreslået.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Mappe med den gamle katalogudgave</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Mappe med den nye katalogudgave</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Katalogmapper</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Hvor ligger de to katalogudgaver for denne mappingfil? Mapperne huskes sammen med filen.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Gammel udgave (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>Ny &amp;udgave (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Begge mapper er nødvendige.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 er ikke en mappe.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>%1 mangler i den gamle udgave. Det er mappen med kataloget %2, der søges.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Kataloget %1 mangler i den nye udgave.</translation>
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
        <translation>Alle konflikter er afgjort; gem nu</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Konflikt %1 af %2, endnu %3 åbne</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln linje i %1 modsiger sig på samme måde. Gælder beslutningen for alle?</numerusform>
            <numerusform>%Ln linjer i %1 modsiger sig på samme måde. Gælder beslutningen for alle?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Egen: %1
Anden: %2</translation>
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
        <translation>Din egen beslutning er ikke kendt: linjen var allerede i konflikt ved åbningen</translation>
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
        <translation>Alle konflikter er afgjort.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln linje mere modsiger sig som denne.</numerusform>
            <numerusform>%Ln linjer mere modsiger sig som denne.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Konfliktens sider</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Egen</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Anden</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Beslut på ny</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 af %Ln konflikt endnu åben.</numerusform>
            <numerusform>%1 af %Ln konflikter endnu åbne.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>åben</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>egen</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>anden</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>ny</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Egen beslutning</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Anden beslutning</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Gælder</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>automatisk tildelt</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>skal kontrolleres</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>bekræftet</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>uden mål, åben</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>bekræftet som udgået</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>ikke kendt</translation>
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
        <translation>Målprojekt</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Mållinje</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Værdiområder</translation>
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
        <translation>Egen beslutning</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Anden beslutning</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Oplysning</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>ens</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>erstattet som i %Ln linje mere</numerusform>
            <numerusform>erstattet som i %Ln linjer mere</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>lignende</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>forskellig</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>kun i den nye linje</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>kun i den gamle linje</translation>
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
        <translation>Uden mål. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Den tildelte linje er ingen af kandidaterne.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Gammelt og nyt</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Kandidater</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Bekræftet.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Sikkert tildelt.</translation>
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
        <translation>Ingen fælles forskelle.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Fælles: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Markerede linjer</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Katalogudgave</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Filen indeholder flere katalogudgaver. Hvilken skal åbnes?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Åbn</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Mappingfilen læses</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Filen kan ikke åbnes.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Filen er kun åbnet til læsning.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Låsen kan ophæves, hvis det er sikkert, at ingen arbejder der længere, f.eks. efter et computernedbrud.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Læs kun</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Ophæv låsen</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Låsen kunne ikke ophæves.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Katalogerne er ikke kendt; de angives med --source og --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Gem ændringerne i %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Kasserede ændringer går tabt.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Gem</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Kassér</translation>
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
            <numerusform>Endnu %Ln linje i konflikt, i disse projekter:</numerusform>
            <numerusform>Endnu %Ln linjer i konflikt, i disse projekter:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Vis konflikterne</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Gem &amp;alligevel</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Gemt: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Filen blev ikke gemt.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>&amp;Flet ændringerne</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>&amp;Behold en kopi og skriv på ny</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Skriv min version</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>De andres ændringer er overtaget. Kontrollér dem, og gem så en gang til.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>De andres ændringer kunne ikke overtages.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Mappingfilen kan ikke oprettes.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>og %Ln mere</numerusform>
            <numerusform>og %Ln mere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>%1 læses</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Mappingfilen %1 kan ikke læses (%2).
Vælg en anden fil, eller kopiér sikkerhedskopien %3 tilbage.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Mappingfilen %1 kan ikke læses (%2).
Vælg en anden fil.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 indeholder ingen udgave.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 indeholder ikke udgaven %2. Der findes: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 er kun åbnet til læsning.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 redigeres lige nu af %2 og er derfor kun åbnet til læsning.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Der kan ikke skrives i mappen med %1 (%2). Filen er derfor kun åbnet til læsning; gemt under et andet navn kan den redigeres.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Der findes arbejde på %1, som ikke blev gemt. Det tilbydes, så snart filen kan åbnes til redigering (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 har også et andet navn (hårdt link). Når der gemmes, forbliver filen under det andet navn, som den var.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>%1 gemmes</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>%1 sikkerhedskopieres</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 redigeres lige nu af %2. Intet blev skrevet. Vælg et andet navn.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Der kan ikke oprettes noget i mappen med %1 (%2). Intet blev skrevet. Vælg en anden mappe.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Ingen linje i dette projekt er i filteret.
Åbn „%1“ og vælg „%2“ for at se alle linjer igen.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Intet projekt har en linje i filteret.
Åbn „%1“ og vælg „%2“ for at se alle projekter igen.</translation>
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
        <translation>Åbn mappingfil</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Gem mappingfil</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Gem tabel</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabeller (*.csv);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Vælg den fælles kopi</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Overtag beslutninger fra</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filteret er ophævet: projektet har ingen linje i det</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Slutningen er nået, fortsætter fra begyndelsen</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Begyndelsen er nået, fortsætter fra slutningen</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Der er ingen linje tilbage i filteret</translation>
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
        <translation>omregnet tal</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Tilstand</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Hvorfor åben</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Forskellens art</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Forskel i kolonnen</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Sidst besluttet af</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(intet af dette)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>ikke de valgte</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Tabellerne læses...</translation>
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
            <numerusform>i %Ln projekt</numerusform>
            <numerusform>i %Ln projekter</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Intet filter: alle linjer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Ulæselige tabeller: %Ln</numerusform>
            <numerusform>Ulæselige tabeller: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter over alle linjer</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>&amp;Ophæv filter</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Oprindelse</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>overtaget fra en tidligere mapping</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 er ikke en almindelig fil og kan derfor ikke bruges som lås. Intet blev skrevet. Fjern det, der ligger der.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 gemmes lige nu af et andet program. Intet blev skrevet. Gem igen om et øjeblik.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Der kan ikke oprettes noget i mappen med %1 (%2). Intet blev skrevet. Skaf plads, eller gem under et andet navn.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 kan ikke læses (%2). Intet blev skrevet. Gem under et andet navn.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 er ikke en læsbar mappingfil (%2). Intet blev skrevet. Når der gemmes, beholdes den eksisterende fil under et navn med tidsstempel, og der oprettes en ny, som kun indeholder denne udgave.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 er ikke en læsbar mappingfil (%2). Intet blev skrevet. Når der gemmes, beholdes den eksisterende fil under et navn med tidsstempel, og der oprettes en ny. De andre udgaver kommer fra sikkerhedskopien %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 er ulæselig og kunne ikke beholdes som %2 (%3). Intet blev skrevet. Gem under et andet navn.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 er slettet eller omdøbt siden åbningen. Når der gemmes, oprettes filen på ny og indeholder kun denne udgave (%2). Intet er skrevet endnu.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 er ændret af en anden siden åbningen, men ikke denne udgave (%2). Når der gemmes, forbliver de andre udgaver, som de nu er i filen. Intet er skrevet endnu.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 er ændret af en anden siden åbningen, også denne udgave (%2). Når der gemmes, går vedkommendes ændringer i udgaven tabt. Intet er skrevet endnu: gem alligevel, gem under et andet navn, eller åbn filen på ny.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Der kan ikke skrives til %1 (%2). Intet blev skrevet. Kontrollér skriverettighederne, eller gem under et andet navn.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 blev ikke gemt: %2. Filen er uændret, ændringerne er stadig åbne. Skaf plads og gem en gang til, eller gem under et andet navn.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>filen kunne ikke skrives fuldstændigt</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>den skrevne fil er ikke læsbar (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>den skrevne fil indeholder ikke det, der skulle gemmes</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>udgaven %1 mangler i den skrevne fil, eller den er en anden</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Sikkerhedskopien %1 kunne ikke oprettes (%2). Intet blev skrevet. Skaf plads, eller gem under et andet navn.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 blev ændret af en anden, mens der blev gemt. Intet blev skrevet. Gem en gang til.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 blev ikke gemt: %2. Filen er uændret, ændringerne er stadig åbne. Gem under et andet navn.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Tilbage</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Håndbog</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Indhold</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Søg på siden</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Beslutningshistorik...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Hvem besluttede hvad, hvornår og hvorfor</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Grund til beslutningen...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Til den seneste beslutning eller til de valgte linjer, f.eks. hvorfor der ikke er nogen efterfølger</translation>
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
        <translation>Grund noteret: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Beslutningshistorik</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Valgt linje</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Valgt projekt</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Alle projekter</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Søg hvem, projekt, mål eller grund</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Læs igen</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Gem som CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Lu&amp;k</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Ulæselige linjer i journalen: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Beslutninger: %1</translation>
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
        <translation>ingen efterfølger</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (ikke gemt)</translation>
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
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Hidtil</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Ny</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Hvad</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Overtaget fra %1</translation>
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
        <translation>Katalogets mappe</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Importér tabeller</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Mappe med CSV-filer:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Katalogets mappe:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Hver CSV-fil bliver til et projekt med sin tabel på samme sted i kataloget. Den, der importerer tabellerne igen, beholder linjernes numre.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importér</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Mappen med CSV-filerne mangler.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Katalogets mappe mangler; den oprettes, hvis mappen ovenover findes.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Den ene mappe ligger i den anden.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Bekræft linjen eller tildel den valgte linje</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Ophæv linjens tildeling</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Ophæv tildelingen og bekræft som udgået</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Rediger tildelingen af værdiområder</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Kopiér betingelse fra linjen</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Bekræft hele projektet</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Søg i tabellen</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Søg næste</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Søg forrige</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Kolonnefilter</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Kopiér linjer</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Større tabel</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Mindre tabel</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabel i normal størrelse</translation>
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
        <translation>Tabel</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Vindue</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Tast til %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Felter og lister har selv brug for tasten %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Både %2 og %3 ville have tasten %1.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Selvvalgt</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 har så ikke længere tasten %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Tasten %1 hører nu til %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Intet fundet</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Bekræftet: tildelingen er afgjort</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Forslag: skal bekræftes eller rettes</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Uden ikon: entydigt ens, tildelt af programmet</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Ingen tildeling fundet</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Udgået: bekræftet, at der ikke er nogen tildeling</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Konflikt med en andens ændring</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Projekt eller tabel kan ikke læses</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Linjens tildelinger af værdiområder</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>I måltabellen: den tildelte linje</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Signaturforklaring</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Betingelsen er kopieret til udklipsholderen</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Den kopierede betingelse kan ikke bruges sådan endnu, en værdi mangler, er et område eller indeholder et anførselstegn: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Her i filtret er alt færdigt, udenfor er endnu %Ln linje åben.</numerusform>
            <numerusform>Her i filtret er alt færdigt, udenfor er endnu %Ln linjer åbne.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Slutningen er nået, fortsætter fra begyndelsen</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Begyndelsen er nået, fortsætter fra slutningen</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Konflikt %1 af %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Ingen linje er i en af de valgte tilstande</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Ingen linje kræver længere en beslutning</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Ingen af de åbne linjer kan vises; tabellerne mangler</translation>
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
        <translation>Intet projekt er valgt</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Ingen linje med „%1“ i dette projekt</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Træffer %1 af %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Udfør</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Trinnet kan fortrydes.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Det gælder de markerede linjer.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Det gælder alle projektets linjer.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filter: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Intet andet projekt har sådanne linjer</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Det gælder kun projektets viste linjer: %1 af %2.</translation>
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
        <translation>Vis kun linjer i konflikt med en andens ændring, og deres projekter</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Skal kontrolleres</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Vis kun linjer med et forslag, der skal bekræftes eller rettes, og deres projekter</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Uden mål</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Vis kun linjer, som der intet er fundet til, og deres projekter</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatisk</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Vis kun linjer, der er entydigt ens og blev tildelt af programmet, og deres projekter</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekræftet</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Vis kun linjer med bekræftet tildeling, og deres projekter</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Udgået</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Vis kun linjer, der er bekræftet som udgået, og deres projekter</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Brug linkdatabase</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Fil på denne computer</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL-server</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>den sædvanlige</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Adgangskoden står i adgangskodefilen, i skrivebordets nøglering eller i PGPASSWORD, eller den indtastes ved login. Den gemmes ikke.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>hvis muligt</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>altid</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>altid, server kontrolleret</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>aldrig</translation>
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
        <translation>&amp;Vært:</translation>
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
        <translation>B&amp;ruger:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Kryptering:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Linkdatabase: Filens navn mangler.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Linkdatabase: Databasens navn mangler eller er ugyldigt.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Kontrollér linkdatabasens numre</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>Der er ingen gruppe i linkdatabasen, som du hører til.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Vælg gruppe</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Linkdatabasens gruppe:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Linje %1 i %2 findes ikke i denne mapping.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Linkdatabasens numre kontrolleres</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Numrene kunne ikke kontrolleres.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Ændringer i linkdatabasen er måske gået tabt.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Licensen til linkdatabasen mangler.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Login til linkdatabasen</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Adgangskoden gælder, indtil programmet afsluttes, og gemmes ikke. Er den tom, hentes den fra adgangskodefilen.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Under dette navn står der i protokollen, hvem der har slettet noget.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Linkmanager</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Søg nummer, projekt eller beskrivelse</translation>
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
        <translation>&amp;Link til en anden linje...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Vælg derefter projekt og linje, og send markeringen med „Markering til linkmanager“.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Senest slettede...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Lu&amp;k</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Links: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Der er ikke slettet noget, som kunne gendannes.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Gendan det senest slettede? Linjer: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 slettede dem den %2 fra %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Gendan</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Det første %Ln link; søgningen viser andre.</numerusform>
            <numerusform>De første %Ln links; søgningen viser andre.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Kontrol af numrene</translation>
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
        <translation>Resultat</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Numre på projekter i denne mapping: %1, på andre projekter: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Ikke sammenlignet, da de er ulæselige: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Luk</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Linjen er udgået eller findes ikke</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>bekræftet som udgået</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>projektet har den ikke</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Flere linjer gør krav på det</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Delen afviger</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Delen afviger (ikke sammenlignet)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Åbne linjer med numre</translation>
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
        <translation>Linje %1 findes ikke i %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Projektet %1 kan ikke vises.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projekt, linje, kommando eller indstilling</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Fundet</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Dele af ordene er nok; et tal bagefter betyder en linje.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Intet fundet</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln træffer</numerusform>
            <numerusform>%Ln træffere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>De første %1 af %Ln træffer</numerusform>
            <numerusform>De første %1 af %Ln træffere</numerusform>
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
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Indstilling</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Fejl: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Advarsel: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Meddelelser</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Ryd meddelelser</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Kopiér alle meddelelser</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Bruger:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Adgangskode:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Ingen forbindelse til linkdatabasen: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>ERP-numrene kan ikke læses. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Linjer tildelt igen: ingen ændring</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Her er ingen sådan linje. %1 går til den næste.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>skrivebeskyttet</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Kataloget</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Til venstre står den gamle katalogudgave. Ikonerne viser, hvor der endnu er noget at beslutte. Vælg et projekt for at se dets linjer.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Målene</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Her står den nye udgaves projekter, der kan overtage linjer, med betingelser og variabeltilknytninger.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Linjerne</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Til venstre den gamle tabel, til højre den nye. %1 bekræfter tildelingen eller tildeler den linje, der er valgt til højre, %2 ophæver den, %3 bekræfter, at linjen er udgået.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Hvad der endnu er åbent</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Tælleren siger, hvor mange linjer der kræver en beslutning. %1 går til den næste, også i det næste projekt.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Intet går tabt</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Hvert trin kan fortrydes. Det, der ikke er gemt, tilbyder programmet at gendanne efter et nedbrud. Rundvisningen findes i menuen Hjælp.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Tildel hele katalogets linjer?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Det bekræftede bliver under alle omstændigheder. Trinnet kan fortrydes.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Kun linjer uden tildeling</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Alt ubekræftet på ny</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Alle projekter tildelt</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Målprojektet %1 findes ikke.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Målprojekt: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Indstillinger: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Der er intet tip til dette sted</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Tøm listen</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Filer</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Deling</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Senest åbnede</translation>
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
        <translation>&amp;Gennemgang</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Vis</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Kun linjer</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Hjælp</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Linkdatabase</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Linjernes tilstande</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Værktøjer</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Ingen fil er åben til redigering.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Egne ændringer oven på filens version</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln konflikt: egen beslutning</numerusform>
            <numerusform>%Ln konflikter: egen beslutning</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln konflikt: den anden sides beslutning</numerusform>
            <numerusform>%Ln konflikter: den anden sides beslutning</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln konflikt: skal besluttes på ny</numerusform>
            <numerusform>%Ln konflikter: skal besluttes på ny</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Journalen %1 kan ikke skrives (%2). Efter et nedbrud ville ændringerne være tabt: gem snart.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Den gendannede version kan ikke sikres (%1). Skaf plads, og åbn en gang til; journalen er uændret.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Gendannelse efter et nedbrud</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Journalen %1 kan ikke oprettes (%2). Efter et nedbrud ville ændringerne være tabt: gem ofte.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Ingen mappingfil er åben.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Der gemmes lige nu.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Der blev ikke gemt. %1 Gem under et andet navn.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Låsen på %1 er tabt og kan ikke fornyes. Andre ville kunne redigere filen samtidig.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Den automatiske sikring lykkedes ikke (%1). Gem snart.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Ændringen blev ikke overtaget. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Konflikter markeret</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Fortrudt: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Gentaget: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1” passer ikke længere til det, der siden er ændret. Listen over trin siger, hvad der står i vejen.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Målprojekter søges</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Afbrudt, intet blev oprettet</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Linjer tildeles</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projekt: %1 på samme sted, %2 på et andet, %3 delt op, %4 uden mål, %5 ulæseligt</numerusform>
            <numerusform>%Ln projekter: %1 på samme sted, %2 på et andet, %3 delt op, %4 uden mål, %5 ulæselige</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 af %Ln projekt</numerusform>
            <numerusform>%1 af %Ln projekter</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>heraf %1 tildelt, %2 skal kontrolleres, %3 uden mål</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Afbrudt: %1</translation>
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
            <numerusform>%Ln ændring overtaget.</numerusform>
            <numerusform>%Ln ændringer overtaget.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln linje har begge besluttet ens.</numerusform>
            <numerusform>%Ln linjer har begge besluttet ens.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln linje er besluttet forskelligt og markeret som konflikt.</numerusform>
            <numerusform>%Ln linjer er besluttet forskelligt og markeret som konflikt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln anden modsigelse: Filens version gælder.</numerusform>
            <numerusform>%Ln andre modsigelser: Filens version gælder.</numerusform>
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
        <translation>Intet fund er valgt</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Udbedret: %1 i %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tabellerne sammenlignes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln tildelt linje set efter</numerusform>
            <numerusform>%Ln tildelte linjer set efter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln fund</numerusform>
            <numerusform>%Ln fund</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Naboskab</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Linjerne %1 til %2 er forskudt med %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Linjerne %1 og %2 er ombyttet</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Linje %1 ligger %2 forkert</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Linje %1 har en anden linjes mållinje</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Linje %1 er sprunget over</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>åben</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Udbedret: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Fund</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Udbedret</translation>
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
        <translation>Mappe med den gamle katalogudgave</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Mappe med den nye katalogudgave</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Tildel linjerne med det samme</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Ny mapping</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Gammel katalogudgave:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Katalog i den:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>Ny &amp;katalogudgave:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Vælg mappingfil</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Mappingfil:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Opret</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Mappen med den gamle katalogudgave mangler.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Mappen med den nye katalogudgave mangler.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Hver udgave skal have en mappe med kataloget.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Mappingfilen skal have et navn.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Mappen %1 findes ikke.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 findes allerede.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Når der gemmes, kommer den nye udgave til; en udgave med samme dato erstattes med alt, hvad der er bekræftet i den.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Brug denne fil</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>mediet er fuldt</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>filen bliver større end tilladt her</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>skriverettigheden mangler</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>mediet er skrivebeskyttet</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>mappen eller filen er der ikke længere</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>på dens plads er der noget andet end en almindelig fil</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>uden mål</translation>
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
        <translation>Andre forskelle</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Projektets tabel kan ikke læses.</translation>
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
        <translation>Projektversion:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Tabelversion:</translation>
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
        <translation>Søg</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtrér</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln åben linje med forslag</numerusform>
            <numerusform>%Ln åbne linjer med forslag</numerusform>
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
            <numerusform>%Ln af dem sammenlignes endnu</numerusform>
            <numerusform>%Ln af dem sammenlignes endnu</numerusform>
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
            <numerusform>%Ln af dem taget ud</numerusform>
            <numerusform>%Ln af dem taget ud</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>De åbne linjers forskelle</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln projekt</numerusform>
            <numerusform>i %Ln projekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln åben linje uden efterfølger</numerusform>
            <numerusform>%Ln åbne linjer uden efterfølger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tabellerne sammenlignes: %Ln projekt læst</numerusform>
            <numerusform>Tabellerne sammenlignes: %Ln projekter læst</numerusform>
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
            <numerusform>%Ln projekt</numerusform>
            <numerusform>%Ln projekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln linje mere har disse og andre forskelle</numerusform>
            <numerusform>%Ln linjer mere har disse og andre forskelle</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Forskel</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekter</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Sikkerhed</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Undtagelser</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>tal i nærheden</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>andet tal</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>anden ordlyd</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>værdi kommet til</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>værdi mangler</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>kan ikke sammenlignes</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ingen forskel</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>anden skrivemåde</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>usikkert: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>hel mappe uden mål: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>helt projekt uden mål: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>målprojektet findes ikke mere: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 findes ikke mere</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>ingen lignende linje: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>projektnavn</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>et andet</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>anden værdi</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>en eller flere af dem i hver linje</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>ikke tilgængelig: ingen fil er åben</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>ikke tilgængelig: linkdatabasen forbindes</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>ikke tilgængelig: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>ikke tilgængelig: ingen linkdatabase er forbundet</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>ikke tilgængelig: linkmanageren venter ikke på nogen markering</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>ikke tilgængelig: intet projekt er valgt</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>ikke tilgængelig: ingen linje er valgt</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>ERP-nummer til %1, linje %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Tildel venligst et ERP-nummer.

Projekt: %1
Linje: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Der kunne ikke påbegyndes en mail.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Der er ikke oprettet noget mailprogram på denne computer. Anmodningen lyder:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Der ses ingen tabel, som kan udskrives</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Udskriv: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 er sendt til printeren</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 udskrevet til %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 kunne ikke udskrives.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Printeren tager ikke imod sider.</translation>
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
        <translation>Spørgsmål</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Bemærk</translation>
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
        <translation>Annuller</translation>
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
            <numerusform>%Ln linje er bekræftet, selvom værdier i dens område ikke har nogen ny linje.</numerusform>
            <numerusform>%Ln linjer er bekræftet, selvom værdier i deres områder ikke har nogen ny linje.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Tag tilbage</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Bekræft alligevel</translation>
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
        <translation>Linjen har ingen tildeling af værdiområder.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>mangler: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>flere gange: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>ikke i det gamle område: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Linjens værdiområde</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 af %Ln værdi tildelt</numerusform>
            <numerusform>%1: %2 af %Ln værdier tildelt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Grund til beslutningen</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;For:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Grund:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>udgået af sortimentet</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>lagt sammen med en anden del</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>delt op i flere dele</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>flyttet til et andet katalog</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>endnu ikke kontrolleret</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Gendannelse</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Gemt</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Gendannet</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Pr.</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekter</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekræftet</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Skal kontrolleres</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Uden mål</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Den gemte version er nyere end alt, hvad der kan gendannes.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Gendan</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Med senere ændringer (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>Åbn &amp;den gemte version</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln trin</numerusform>
            <numerusform>%Ln trin</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Der findes arbejde på %1, som ikke blev gemt: %2, senest „%3“. Det stammer fra %4.</translation>
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
            <numerusform>%1 i %Ln projekt</numerusform>
            <numerusform>%1 i %Ln projekter</numerusform>
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
        <translation>%1 har ingen CSV-fil længere og forbliver, som det er</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Der er ingen CSV-fil i mappen; intet blev importeret</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Afbrudt: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Ikke alt blev skrevet: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 kan ikke skrives.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Eksportér linjer</translation>
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
        <translation>Afbrudt, intet blev eksporteret</translation>
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
        <translation>Rapporten oprettes</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Afbrudt, ingen rapport blev skrevet</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Siderne sættes</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Rapport skrevet til %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Afbrudt, der blev ikke lavet nogen rapport</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Side %1 af %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabel</numerusform>
            <numerusform>%Ln tabeller</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 nye, %2 ændrede, %3 uændrede, %4 ikke importeret</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln linje eksporteret til %1</numerusform>
            <numerusform>%Ln linjer eksporteret til %1</numerusform>
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
        <translation>Aftalte erstatninger</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>i hele katalogudgaven</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Aftal</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Træk tilbage</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Belæg</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Overtag</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>En erstatning siger, at en gammel værdi står for en ny. Den giver forslag, men bekræfter intet.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>aftalt</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>aftalt i %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Tabellerne læses</translation>
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
            <numerusform>%Ln linje imod</numerusform>
            <numerusform>%Ln linjer imod</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Ingen er aftalt. Når listen over forskelle er åben, tilbydes dens erstatninger her.</translation>
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
        <translation>Katalogudgave %1 til %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Oprettet den %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Linjernes stand</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Efter mapper, med alt derunder</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Efter projekter</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Hvorfor linjer er åbne</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Hvordan åbne linjer adskiller sig fra deres forslag</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Stikprøver</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Hvem besluttede hvad</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Åbne linjer</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Hvad der ikke kunne læses</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Bekræftet</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Bekræftet som udgået</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Sikkert tildelt</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Skal kontrolleres</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Uden mål</translation>
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
        <translation>Projekt</translation>
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
        <translation>Grund</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Forskelle</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekter</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Sandsynlighed</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Undtagelser</translation>
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
        <translation>Hvad</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Bedømt</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Rigtige</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Højst forkerte (95 % sikkert)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>afvist</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabel ikke læsbar</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>kan ikke sammenlignes</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ingen forskel</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>og %1 mere</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>to har besluttet forskelligt</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>en anden beslutter</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>en tabel er ikke læsbar</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>en betingelse eller formel fejler</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>intet mål er ansvarligt</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>en kolonne mangler</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>flere linjer er ens</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>for forskellige</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>ens, blot ikke bekræftet</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>usikkert: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Åbne linjer uden efterfølger</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Linjer bekræftet som udgåede</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Hvad de har til fælles</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>i alt</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Overtaget fra tidligere mappinger</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Tidligere mapping</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Stadig som overtaget</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Bedømte linjer</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Færdige linjer: %1 af %2; åbne: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Læs målprojekter fra repositoriet</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://server:port/sti</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Ét katalog pr. linje. Uden linje er katalogets navn også dets servers.</translation>
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
        <translation>S&amp;erver:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Revisio&amp;n:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Plads på denne &amp;maskine:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Ventetid på &amp;serveren:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Server, linje %1: &quot;%2&quot; har ikke formen &quot;Katalog = svn://server:port/sti&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Login til repositoriet</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 kræver login.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Navn og adgangskode gælder, indtil programmet afsluttes, og gemmes ikke.</translation>
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
        <translation>Ingen linje er åben længere</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tabellerne er ikke sammenlignet endnu</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Forfra: %Ln linje åben</numerusform>
            <numerusform>Forfra: %Ln linjer åbne</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Åbne linjer kommer efter deres usikkerhed</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Åbne linjer kommer efter deres sted</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Linjen hører ikke til det valgte mønster</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Linje %1 taget ud</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Intet mønster er valgt, eller alle dets linjer er besluttet</translation>
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
            <numerusform>bekræft i %Ln projekt?</numerusform>
            <numerusform>bekræft i %Ln projekter?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Trinnet kan fortrydes.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Bekræft</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekræftet</numerusform>
            <numerusform>%Ln linjer bekræftet</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Der er ingen kandidat %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Linje %1 → %2 bekræftet</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Aftalte erstatninger: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Vælg et mønster, eller markér åbne linjer</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Stikprøve</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Udtræk</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Stikprøve, linje %1 af %2: + rigtig, − forkert</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Ingen stikprøve er i gang</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Alle stikprøvens linjer er allerede besluttet</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 af %2 rigtige</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Stikprøve afvist, %1; bedømt af %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>alle linjer bedømt</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>med 95 % sikkerhed færre end %1 % forkerte</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Stikprøve: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>bedømt af %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>der var den forkerte</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Linje %1 er forkert: stikprøven er slut</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Fortsæt</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>Se &amp;den forkerte linje</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln af dem er usikker.</numerusform>
            <numerusform>%Ln af dem er usikre.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Alle mønstre er færdige</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>i %Ln projekt</numerusform>
            <numerusform>i %Ln projekter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekræftet som udgået</numerusform>
            <numerusform>%Ln linjer bekræftet som udgået</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Linje %1 i %2 er forkert. Mængden er delt; hvilken del skal der fortsættes med?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Så mange af %Ln linje udtrækkes og bedømmes enkeltvis. %1 rigtige siger med 95 % sikkerhed, at færre end 5 % er forkerte, %2 rigtige færre end 1 %.</numerusform>
            <numerusform>Så mange af %Ln linjer udtrækkes og bedømmes enkeltvis. %1 rigtige siger med 95 % sikkerhed, at færre end 5 % er forkerte, %2 rigtige færre end 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Scriptkonsol</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Scriptenes output</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Linje i et script</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>En linje JavaScript. Enter udfører den, Tab fuldfører, Op og Ned bladrer.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Stopper det kørende script (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Ryd</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Sletter outputtet</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Script %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konsol)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Færdig, status %1</translation>
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
        <translation>%1 kan ikke læses. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Åbn script</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Scripts (*.js);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Gem script</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 kan ikke skrives. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Scriptet er ikke gemt.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(uden navn)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nyt script</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Åbn …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Gem</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Kør</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumenter:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Scriptets tekst</translation>
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
        <translation>(proces %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Journalen %1 kan ikke læses (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Efter den senest afsluttede session er journalen %1 ikke læsbar. Hvad der stod der, vides ikke; journalen beholdes.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Slutningen af journalen %1 er ikke læsbar. Den seneste ændring kan mangle.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Journalen %1 er beskadiget. Efter skaden passer %Ln ændring endnu, %2 passer ikke længere; flere kan mangle. Journalen beholdes.</numerusform>
            <numerusform>Journalen %1 er beskadiget. Efter skaden passer %Ln ændringer endnu, %2 passer ikke længere; flere kan mangle. Journalen beholdes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Journalen %1 er beskadiget eller passer ikke til mappingfilen. Mindst %Ln senere ændring mangler; journalen beholdes.</numerusform>
            <numerusform>Journalen %1 er beskadiget eller passer ikke til mappingfilen. Mindst %Ln senere ændringer mangler; journalen beholdes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>&amp;Gå videre til næste åbne linje efter en beslutning</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Indstillinger</translation>
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
        <translation>aldrig</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>Spr&amp;og:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>F&amp;arver:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Skrif&amp;tstørrelse:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Sikkerhedskopi &amp;hver:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Høj kontrast</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>En mappe pr. linje, hvorfra der må læses, hvad filer i et katalog nævner uden for katalogerne.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Tilladte mapper:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Tilladte mapper: &quot;%1&quot; er ikke en mappe med fuld sti.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Mappingen deles ikke med nogen. Vælg først den fælles kopi.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 findes allerede og er en anden mapping. Vælg en anden kopi, eller hent den eksisterende til en ny fil.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Andre har offentliggjort noget siden den seneste opdatering.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Linjer i konflikt offentliggøres ikke: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Der er ændringer i andres mapper: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Mappen er allerede optaget: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>En anden offentliggør lige nu (%1). Prøv igen om et øjeblik.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Den fælles kopi kan ikke nås: %1. Din egen fil er uændret; prøv igen senere.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>En af filerne er ikke en læsbar mapping: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Der kunne ikke skrives: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Det lykkedes ikke.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Den fælles kopi læses</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Delt via %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>De andres ændringer hentes</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Der er intet nyt</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Ændringerne offentliggøres</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapping redigeret</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Offentliggjort, revision %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Først overtages det. Derefter kan der offentliggøres.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Opdater</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>Offentliggør &amp;alligevel</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Overtag mapper</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>O&amp;vertag</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Mapperne indføres</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Ingen egne mapper længere</translation>
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
        <translation>har den åben</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>har den ikke åben</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>senest %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>mapper %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Egen revision %1, nyeste revision %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Andre har offentliggjort noget.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Der er intet nyt fra andre.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Egne ændringer er endnu ikke offentliggjort.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Fælles kopi: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Den seneste offentliggørelse blev afbrudt, men kom frem.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Den seneste offentliggørelse blev afbrudt. Offentliggør en gang til.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Den fælles fil var ændret i arbejdskopien og ikke indsendt. Det er bevaret i %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Arbejdskopien var forladt midt i et arbejde og er ryddet op.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Arbejdskopiens forvaltning var beskadiget og er hentet på ny; den tidligere er %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Noget afbrudt er bragt i orden.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Katalogets mapper, adskilt med kommaer; * står for vilkårlige tegn, ? for ét. Tom giver alle tilbage:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>fortryd</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Alt besluttet</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Linjer, der endnu kræver en beslutning</translation>
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
        <translation>Linjer, som filteret over alle linjer viser</translation>
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
        <translation>Åbne: %1</translation>
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
            <numerusform>%1 i %Ln projekter</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Endnu ingen linje tildelt</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Fremskridt</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Afbryder det igangværende arbejde; det, der er færdigt, bliver</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Fejl og advarsler: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Trin</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Søg hvem, hvad eller linjer</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>Tilbage &amp;hertil</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Tager dette og alle senere gældende trin tilbage</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Til l&amp;injen</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Lu&amp;k</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Tag tilbage med afhængige (%Ln)</numerusform>
            <numerusform>&amp;Tag tilbage med afhængige (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Tag kun dette tilbage</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Udfør igen med tidligere (%Ln)</numerusform>
            <numerusform>&amp;Udfør igen med tidligere (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Udfør igen</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Intet trin endnu</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Intet andet trin afhænger af det.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Trinnet kan udføres igen for sig selv.</translation>
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
        <translation>I vejen, fordi de besluttede andet: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Der står nu noget andet, som intet trin på listen har besluttet, fx fra et andet program. Trinnet kan ikke længere flyttes.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>og %Ln mere</numerusform>
            <numerusform>og %Ln mere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln projekt</numerusform>
            <numerusform>%1 i %Ln projekter</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>gælder</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>taget tilbage</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>overhalet</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Pr.</translation>
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
        <translation>Hvad</translation>
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
        <translation>Ændringen i %1 virker først, når linjerne tildeles igen. Da bevares kun det, der er bekræftet.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln linje i %1 var bekræftet som udgået og er det ikke længere: %2</numerusform>
            <numerusform>%Ln linjer i %1 var bekræftet som udgået og er det ikke længere: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>I %1 forbliver variabler ignoreret: %2. For at tilknytte en af dem igen, vælg &quot;Formel...&quot;, eller slet linjen og indtast den på ny.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>En betingelse for målprojektet %1 i %2 er bortfaldet.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>En variabeltilknytning for målprojektet %1 i %2 er bortfaldet.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Linje %1 → %2 i %3: også %Ln anden linje har mållinjen: %4</numerusform>
            <numerusform>Linje %1 → %2 i %3: også %Ln andre linjer har mållinjen: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln linje i %1 deler sin mållinje med nytildelte: %2</numerusform>
            <numerusform>%Ln linjer i %1 deler deres mållinje med nytildelte: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln konflikt accepteret</numerusform>
            <numerusform>%Ln konflikter accepteret</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekræftet</numerusform>
            <numerusform>%Ln linjer bekræftet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln linje bekræftet som udgået</numerusform>
            <numerusform>%Ln linjer bekræftet som udgået</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln linje tildelt</numerusform>
            <numerusform>%Ln linjer tildelt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>tildelingen af %Ln linje ophævet</numerusform>
            <numerusform>tildelingen af %Ln linjer ophævet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>tildelingen af værdiområder for %Ln linje ændret</numerusform>
            <numerusform>tildelingen af værdiområder for %Ln linjer ændret</numerusform>
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
            <numerusform>%Ln linje ændret</numerusform>
            <numerusform>%Ln linjer ændret</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>linje %1 → %2 bekræftet</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>linje %1 → %2 tildelt</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (tidligere %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>linje %1 bekræftet som udgået (tidligere %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>linje %1 bekræftet som udgået</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>tildelingen af linje %1 ophævet (tidligere %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projekt tilføjet</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projekt fjernet</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Målprojekt tilføjet</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Målprojekt fjernet</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Målprojekternes rækkefølge ændret</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Betingelser ændret</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Variabeltilknytning ændret</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versioner ændret</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Status ændret</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 i %Ln projekt</numerusform>
            <numerusform>%1 i %Ln projekter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Tilbage</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Spring over</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Næste</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Færdig</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, linje %2: Række %3 i tildelingen af værdiområder har ikke formen {NAME=VÆRDI} -&gt; linjenummer: &quot;%4&quot;. Ret den, eller opløs den på ny.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, linje %2: Tildelingen af værdiområder nævner linje %3, men linjen har intet målprojekt. Tildel den, eller tøm teksten.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, linje %2: Tildelingen af værdiområder nævner linje %3, som ikke findes i %4. Ret den, eller opløs den på ny.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: Målprojektet %2s tabel kan ikke læses, dets tildelinger af værdiområder er ikke kontrolleret. Kontrollér målprojekternes mappe (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Tildelinger af værdiområder kontrolleres</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln tildeling af værdiområder kontrolleret</numerusform>
            <numerusform>%Ln tildelinger af værdiområder kontrolleret</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>ingen bemærkninger</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln bemærkning</numerusform>
            <numerusform>%Ln bemærkninger</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (afbrudt): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Afstem katalogudgaver</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Et katalog er udkommet på ny, og hver linje i den gamle udgave skal overføres til en linje i den nye. Programmet foreslår, du kontrollerer og bekræfter.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Senest åbnet:</translation>
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
        <translation>Opretter en ny mappingfil ud fra to katalogudgaver</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>Å&amp;bn...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Åbner en mappingfil</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Åb&amp;n eksempelkataloget</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Åbner en egen mappingfil til det medfølgende eksempelkatalog</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Gem</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Skriver alle ændringer i mappingfilen</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>G&amp;em som...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Skriver i en anden mappingfil</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Luk</translation>
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
        <translation>Vælger mapperne med den gamle og den nye katalogudgave</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Fælles kopi...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Vælger den kopi, som flere arbejder på denne mapping gennem</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Opdater</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Overtager det, som andre har offentliggjort</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>Offe&amp;ntliggør</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Giver egne ændringer videre til de andre</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>Overtag &amp;mapper...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Fortæller de andre, hvilke mapper du selv redigerer</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Hvem arbejder på hvad</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Viser, hvem der har mappingen åben, og hvem hvilke mapper tilhører</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importér tabeller...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Laver en mappe med CSV-filer om til projekter i et katalog</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Ekspo&amp;rtér linjer...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Skriver alle udgavens linjer med deres tildelinger i en CSV-fil</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Rappor&amp;t...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Skriver som PDF eller HTML, hvor langt udgaven er, og hvorfor linjer er åbne</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Afslut</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Afslutter programmet</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Fortryd</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Fortryder det seneste trin</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>Ge&amp;ntag</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Udfører det fortrudte trin igen</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Bekræft linjer...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Bekræfter i ét trin tildelingen af de markerede eller alle viste linjer</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Bekræft &amp;linjer uden mål som udgået...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Bekræfter blandt de markerede eller alle viste linjer dem uden mål som udgået</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>&amp;Ophæv tildelinger...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Ophæver i ét trin tildelingen af de markerede eller alle viste linjer</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Op&amp;hæv tildelinger og bekræft...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>De markerede linjer, eller alle viste, er udgået: ophæver og bekræfter i ét trin</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Tildel alle projekter...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Søger tildelinger til alle katalogets linjer; det bekræftede bliver</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Kontrollér tildelinger af &amp;værdiområder</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Sammenligner alle værdiområdetekster med målprojekternes tabeller</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>&amp;Script...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Åbner et vindue, hvor scripts skrives og udføres</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Indstillinger...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Sprog, skrift, taster, sikkerhedskopiering</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Næste åbne linje</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Går til den næste linje, der kræver en beslutning, også i det næste projekt</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>&amp;Forrige åbne linje</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Går til den forrige linje, der kræver en beslutning, også i det forrige projekt</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>Gå &amp;til linje...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Søger en linje i projektet efter nummer eller betegnelse</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Anden tabel</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Skifter mellem den gamle og den nye tabel</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>Fin&amp;d...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Finder projekter, linjer, kommandoer og indstillinger ud fra dele af ordene</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Forskelsmønstre</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Viser, hvordan de åbne linjer adskiller sig fra deres forslag</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Gammelt og nyt</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Viser linjens gamle og nye værdier ved siden af hinanden og dens kandidater</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Bekræft mønster...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Bekræfter i ét trin alle linjer i det valgte mønster</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Tag linje ud</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Linjen bekræftes ikke sammen med mønstrets andre linjer</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Mønstrets næste linje</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Går til den næste åbne linje i det valgte mønster</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Mønstrets forrige &amp;linje</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Går til den forrige åbne linje i det valgte mønster</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>&amp;Næste mønster</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Vælger listens næste mønster</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Mest &amp;usikre først</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Åbne linjer kommer efter risikoen for fejl i stedet for efter deres sted</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>N&amp;aboskab</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Viser, hvor nabolinjers tildelinger ikke passer sammen</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Ret l&amp;injerne til</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Udbedrer i ét trin det valgte fund i naboskabet</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Erstatninger...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Aftaler erstatninger af værdier for katalogudgaven eller trækker dem tilbage</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>&amp;Stikprøve...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Udtrækker linjer fra det valgte mønster eller de markerede linjer, som bedømmes enkeltvis</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Stikprøve: &amp;rigtig</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Stikprøvens viste linje er tildelt rigtigt</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Sti&amp;kprøve: forkert</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Stikprøvens viste linje er tildelt forkert; stikprøven slutter</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Kandidat &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Tildeler linjen denne kandidat og bekræfter den</translation>
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
        <translation>Linjens værdiområde</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Viser, hvilke værdier i det gamle område der har nye linjer</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>K&amp;onflikter</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Viser de linjer, som to sider har besluttet forskelligt</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Næste åbne konflikt</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Går til den næste linje, hvis konflikt endnu er åben</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Konflikt: egen beslutning</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>I denne konflikt gælder egen beslutning</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Konflikt: anden beslutning</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>I denne konflikt gælder den anden sides beslutning</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Konflikt: beslut på ny</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Ingen af beslutningerne gælder; linjen er igen uden mål</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Bygger visningen op på ny: træ, statistik, tabeller fra disken</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Håndbog</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Åbner håndbogen på det sted, det drejer sig om</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>Ta&amp;ster...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Viser og ændrer tasterne til alle kommandoer</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Tip til dette sted</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Viser tippet der, hvor tasterne går hen: i en tabel, hvorfor linjen har sin tilstand</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Rundvisning</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Viser i få trin, hvor tingene er</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>Om &amp;dette program</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Version og mapper</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Trin...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Viser alle trin, også fra tidligere sessioner, og tager enkelte tilbage</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Næste projekt med åbne linjer</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Går til det næste projekt, hvor noget skal besluttes</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Forrige projekt med åbne linjer</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Går til det forrige projekt, hvor noget skal besluttes</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter over alle linjer</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Vælger linjer i alle projekter efter tilstand, grund, forskel og person; F8 går gennem dem</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>&amp;Udskriv...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Viser siderne af den tabel, der ses, og udskriver dem</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Viser rapportens sider og udskriver dem</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Udskriv rapport...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Overtag beslutninger...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Overtager i ét trin fra en tidligere mapping, hvad der allerede er bekræftet for den samme gamle udgave</translation>
    </message>
</context>
</TS>
