<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>There is nothing to change.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Confirm %Ln line?</numerusform>
            <numerusform>Confirm %Ln lines?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Confirm that %Ln line is discontinued?</numerusform>
            <numerusform>Confirm that %Ln lines are discontinued?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Remove the assignment of %Ln line?</numerusform>
            <numerusform>Remove the assignment of %Ln lines?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Remove the assignment of %Ln line and confirm that it is discontinued?</numerusform>
            <numerusform>Remove the assignment of %Ln lines and confirm that they are discontinued?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln of them is confirmed already.</numerusform>
            <numerusform>%Ln of them are confirmed already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln of them loses its value range assignment.</numerusform>
            <numerusform>%Ln of them lose their value range assignments.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln line without a target stays unconfirmed.</numerusform>
            <numerusform>%Ln lines without a target stay unconfirmed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln line stays as it is.</numerusform>
            <numerusform>%Ln lines stay as they are.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln line in conflict is not changed.</numerusform>
            <numerusform>%Ln lines in conflict are not changed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln line is in no target project.</numerusform>
            <numerusform>%Ln lines are in no target project.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln line confirmed.</numerusform>
            <numerusform>%Ln lines confirmed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln line confirmed to be discontinued.</numerusform>
            <numerusform>%Ln lines confirmed to be discontinued.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Assignment of %Ln line removed.</numerusform>
            <numerusform>Assignment of %Ln lines removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Assignment of %Ln line removed, confirmed to be discontinued.</numerusform>
            <numerusform>Assignment of %Ln lines removed, confirmed to be discontinued.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>no successor</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certainty</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>New line</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Reason</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 already decided or certain here</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 without a line in the new release</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 confirmed to have no successor then</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 in projects that are missing here</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 in conflict there</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Not taken over: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>There is nothing to take over from %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>The file has no mapping from release %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>This file leads to release %1, too.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Choose a mapping that leads from the same old release to an earlier new one.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Taken over from %1: confirmed there for release %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Reading the former mapping</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Nothing can be taken over from %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Directory of release %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Looking for target projects</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Taking decisions over</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Cancelled, nothing was taken over</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Decisions taken over from %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Taken over from %1: %2 of %Ln confirmed line, %3 assigned with certainty, %4 proposed.</numerusform>
            <numerusform>Taken over from %1: %2 of %Ln confirmed lines, %3 assigned with certainty, %4 proposed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 is not a directory.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Old release (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;New release (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Both directories are needed.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>%1 is missing in the old release. What is wanted is the directory that holds the catalog %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>The new release has no catalog %1.</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Catalog directories</translation>
    </message>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Directory of the old release</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Directory of the new release</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Where are the two catalog releases of this mapping file? The directories are remembered together with the file.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Line %1 in %2 cannot be shown</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>No line is in conflict</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>All conflicts are settled; save now</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Conflict %1 of %2, %3 still open</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln line of %1 clashes in the same way. Does the decision hold for all?</numerusform>
            <numerusform>%Ln lines of %1 clash in the same way. Does the decision hold for all?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Mine: %1
Theirs: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;For all</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Line by line</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>The line is in no conflict</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Your own decision is not known: the line was in conflict when the file was opened</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>No line is in conflict.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>All conflicts are settled.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln more line clashes like this one.</numerusform>
            <numerusform>%Ln more lines clash like this one.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflicts</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Sides of the conflict</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Mine</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Theirs</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Decide again</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 of %Ln conflict still open.</numerusform>
            <numerusform>%1 of %Ln conflicts still open.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>open</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>mine</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>theirs</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>new</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>My decision</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Their decision</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Holds</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>assigned by the program</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>to be checked</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>confirmed</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>without target, open</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmed as discontinued</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, line %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Target project</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Target line</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Value ranges</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Old line</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>My decision</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Their decision</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>What</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>equal</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>replaced as in %Ln other line</numerusform>
            <numerusform>replaced as in %Ln other lines</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>similar</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>different</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>in the new line only</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>in the old line only</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Old</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>New</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>The table does not have the line.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Without target. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>The assigned line is none of the candidates.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Old and New</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Candidates</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Confirmed.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Assigned with certainty.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln line</numerusform>
            <numerusform>%Ln lines</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>compared: the first %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>No differences in common.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>In common: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Selected lines</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Write my version</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>&amp;Save all the same</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>The file holds several catalog releases. Which one is to be opened?</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>The file is open for reading only.</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>The file cannot be opened.</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>The file was not saved.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>The catalogs are not known; give them with --source and --target.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>The mapping file cannot be made.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>The lock can be removed if certainly nobody works there any more, as after a breakdown of the computer.</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>The lock could not be removed.</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>Katalogstand</source>
        <translation>Catalog release</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Keep a copy and write &amp;again</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Read only</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>Remove &amp;lock</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Changes that are discarded are lost.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Save the changes to %1?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Reading the mapping file</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>&amp;Merge the changes</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>The changes of the others were taken over. Please check, then save once more.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>The changes of the others could not be taken over.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln line</numerusform>
            <numerusform>%1: %Ln lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Still %Ln line in conflict, in these projects:</numerusform>
            <numerusform>Still %Ln lines in conflict, in these projects:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Show &amp;conflicts</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Reading %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>The mapping file %1 cannot be read (%2).
Please choose another file or copy the backup %3 back.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>The mapping file %1 cannot be read (%2).
Please choose another file.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 holds no release.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 holds no release %2. There are: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 is open for reading only.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 is being edited by %2 and therefore open for reading only.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>The folder of %1 cannot be written (%2). The file is therefore open for reading only; saved under another name it can be edited.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>For %1 there is work that was not saved. It is offered as soon as the file can be opened for editing (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 has another name, too (a hard link). When it is saved, the file of the other name stays as it was.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Saving %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Making a safety copy of %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 is being edited by %2. Nothing was written. Please choose another name.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Nothing can be created in the folder of %1 (%2). Nothing was written. Please choose another folder.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>No line of this project is in the filter.
Open “%1” and choose “%2” to see all lines again.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>No project has a line in the filter.
Open “%1” and choose “%2” to see all projects again.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Save mapping file</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Open mapping file</translation>
    </message>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Mapping files (*.json);;All files (*)</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Save table</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tables (*.csv);;All files (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Choose the shared copy</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Take decisions over from</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>The filter is taken away: the project has no line in it</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Reached the end, going on from the beginning</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Reached the beginning, going on from the end</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>No line is left in the filter</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>replaced text</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>number converted</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Why open</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Kind of difference</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Difference in column</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Decided last by</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>nobody</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(none of these)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>not the chosen ones</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Reading the tables...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln line</numerusform>
            <numerusform>%Ln lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln project</numerusform>
            <numerusform>in %Ln projects</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>No filter: all lines</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>%Ln table cannot be read</numerusform>
            <numerusform>%Ln tables cannot be read</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter over All Lines</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>&amp;Clear Filter</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Origin</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>taken over from a former mapping</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 is no regular file and cannot serve as a lock. Nothing was written. Please remove what stands there.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 is no readable mapping file (%2). Nothing was written. When saving, the present file is kept under a name with a time stamp, and a new one is made that holds this release only.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 is no readable mapping file (%2). Nothing was written. When saving, the present file is kept under a name with a time stamp, and a new one is made. The other releases come from the backup %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 is unreadable and could not be kept as %2 (%3). Nothing was written. Please save under another name.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>%1 cannot be written to (%2). Nothing was written. Please check its permissions or save under another name.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 cannot be read (%2). Nothing was written. Please save under another name.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 is being saved by another program at this moment. Nothing was written. Please save again in a moment.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 was not saved: %2. The file is unchanged, the changes are still open. Please make room and save once more, or save under another name.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 was not saved: %2. The file is unchanged, the changes are still open. Please save under another name.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 was deleted or renamed since it was opened. Saving creates the file again with this release only (%2). Nothing was written yet.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 was changed by somebody else since it was opened, this release (%2) too. Saving loses their changes to this release. Nothing was written yet: save all the same, save under another name, or open the file again.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 was changed by somebody else since it was opened, yet not this release (%2). Saving leaves the other releases as they are in the file now. Nothing was written yet.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 was changed by somebody else while it was being saved. Nothing was written. Please save once more.</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>The backup %1 could not be created (%2). Nothing was written. Please make room or save under another name.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Nothing can be created in the folder of %1 (%2). Nothing was written. Please make room or save under another name.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>the file could not be written completely</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>the written file does not hold what was to be saved</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>the written file is not readable (%1)</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>release %1 is missing from the written file, or it is another one</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Find on the page</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;History of the decisions...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Who decided what, when and why</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>Reason for the &amp;decision...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln line in %1</numerusform>
            <numerusform>%Ln lines in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Reason noted: %1</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>For the last decision or for the selected lines, such as why there is no successor</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Line %1 in %2</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>History of the decisions</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Selected line</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Selected project</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>All projects</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Search who, project, target or reason</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Read again</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Save as CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Rows of the journal that cannot be read: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Decisions: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>The file cannot be written.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>no successor</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (not saved)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Who</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Formerly</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Taken over from %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Folder of CSV files</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Directory of the catalog</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Import tables</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Folder of CSV files:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Directory of the catalog:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Each CSV file becomes a project with its table at the same place in the catalog. Whoever imports the tables again keeps the numbers of the lines.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Import</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>The folder of the CSV files is missing.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>The directory of the catalog is missing; it is made if the directory above it is there.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>One directory lies in the other.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Confirm line or assign the selected line</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Remove assignment of the line</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Remove assignment and confirm as discontinued</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Edit value range assignment</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Copy condition made of the line</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Confirm whole project</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Find in the table</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Find next</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Find previous</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Column filter</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Copy lines</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Larger table</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Smaller table</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Table in normal size</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Default</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>N&amp;o key</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Command or key</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Where</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Key for %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Fields and lists need the key %1 themselves.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Both %2 and %3 would have the key %1.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Chosen by you</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 does not have the key %2 any more then.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>%2 has the key %1 now.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nothing found</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Discontinued: confirmed to have no assignment</translation>
    </message>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Confirmed: the assignment is decided</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>In the target table: the assigned line</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>No assignment found</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Conflict with somebody else&apos;s change</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>No icon: clearly equal, assigned by the program</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Project or table cannot be read</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Proposal: has to be confirmed or corrected</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Value range assignments of the line</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Do it</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Reached the beginning, going on from the end</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Reached the end, going on from the beginning</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>No project is selected</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Go to line</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>No line needs a decision any more</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>No line with “%1” in this project</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>None of the open lines can be shown; their tables are missing</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Number or standard designation:</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Hit %1 of %2</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Done within this filter, %Ln more line is open outside.</numerusform>
            <numerusform>Done within this filter, %Ln more lines are open outside.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Conflict %1 of %2</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>The step can be taken back.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>The selected lines are meant.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>All lines of the project are meant.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filter: %1.</translation>
    </message>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Condition copied to the clipboard</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>The copied condition cannot be used as it is, a value is missing, is a range or has a quote in it: %1</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>No line is in one of the chosen states</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>No other project has such lines</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Only the project&apos;s shown lines are meant: %1 of %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Conflict</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Show only lines in conflict with somebody else&apos;s change, and their projects</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>To check</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Show only lines with a proposal that must be confirmed or corrected, and their projects</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>No target</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Show only lines for which nothing was found, and their projects</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Show only lines that are equal beyond doubt and were assigned by the program, and their projects</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmed</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Show only lines whose assignment is confirmed, and their projects</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Discontinued</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Show only lines that are confirmed as discontinued, and their projects</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>Use a lin&amp;k database</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>File on this computer</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL server</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>the usual one</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>if possible</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>always</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>always, server verified</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>never</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>F&amp;ile:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>Po&amp;rt:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>Data&amp;base:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>&amp;User:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Link database: The name of the file is missing.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Link database: The name of the database is missing or is none.</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Kind:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Host:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>E&amp;ncryption:</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>The password is in the password file, in the desktop&apos;s secret store or in PGPASSWORD, or it is entered at log-in. It is not stored.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>Prove &amp;numbers of the link database</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>The link database has no group that you belong to.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Choose a group</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Group of the link database:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Line %1 of %2 is not in this mapping.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Proving numbers of the link database</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>The numbers could not be proved.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Changes in the link database may be lost.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>The license for the link database is missing.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Log-in to the link database</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>The password holds until the program ends and is not stored. If it stays empty, it comes from the password file.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Under this name the journal says who deleted something.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Link manager</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Search number, project or description</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Show line</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Link to another line...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Then choose project and line and send the selection with &quot;Selection to link manager&quot;.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>Last &amp;deleted...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Links: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Nothing is deleted that could be restored.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Restore what was deleted last? Rows: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 deleted them on %2 from %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Restore</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>The first %Ln link; search for others.</numerusform>
            <numerusform>The first %Ln links; search for others.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Proof of the numbers</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Numbers of projects of this mapping: %1, of other projects: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Not compared, for unreadable: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Line discontinued or not there</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmed as discontinued</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>the project does not have it</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Claimed by several lines</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Part differs</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Part differs (not compared)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Open lines with numbers</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Numbers: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>There is no line %1 in %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>The project %1 cannot be shown.</translation>
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
        <translation>Project, line, command or setting</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Found</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Parts of words are enough; a number behind them means a line.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nothing found</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln hit</numerusform>
            <numerusform>%Ln hits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>The first %1 of %Ln hit</numerusform>
            <numerusform>The first %1 of %Ln hits</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Line %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Setting</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Copy all messages</translation>
    </message>
    <message>
        <source>Fehler: </source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Clear messages</translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Warning: </translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;User:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Password:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>&amp;Go</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>Open &amp;recent</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Assigned all projects</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>All that is &amp;unconfirmed</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>What is confirmed stays in any case. The step can be undone.</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>There is no target project %1.</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>The catalog</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>The counter tells how many lines need a decision. %1 goes to the next one, in the next project too.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>The lines</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>The targets</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Settings: %1</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Here are the projects of the new release that can take over lines, with conditions and variable mappings.</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Every step can be undone. After a crash the program offers to recover what was not saved. You find this tour in the Help menu.</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Link database</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>On the left is the old catalog release. The icons show where something is still to be decided. Select a project to see its lines.</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Clear list</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Nothing gets lost</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>Only &amp;lines without assignment</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>What is still open</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Assign the lines of the whole catalog?</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Lines assigned again: no change</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Target project: %1</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>read-only</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>There is no such line here. %1 goes to the next one.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>Only &amp;lines</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>States of the lines</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Review</translation>
    </message>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>No connection to the link database: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>The ERP numbers cannot be read. %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>There is no hint about this place</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>S&amp;hare</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>On the left the old table, on the right the new one. %1 confirms the assignment or assigns the line selected on the right, %2 removes it, %3 confirms that the line is discontinued.</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>The journal %1 cannot be made (%2). After a crash the changes would be lost: please save often.</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>The journal %1 cannot be written (%2). After a crash the changes would be lost: please save soon.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>The recovered version cannot be stored (%1). Please make room and open the file again; the journal is unchanged.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Saving automatically failed (%1). Please save soon.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>The change was not taken over. %1</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>No mapping file is open.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Nothing was saved. %1 Please save under another name.</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Marked conflicts</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Undone: %1</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Recovery after a crash</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Redone: %1</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Saving is going on.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>The lock of %1 is lost and cannot be renewed. Others might edit the file at the same time.</translation>
    </message>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>No file is open for editing.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Own changes on top of the file</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln conflict: own decision</numerusform>
            <numerusform>%Ln conflicts: own decision</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln conflict: the other side&apos;s decision</numerusform>
            <numerusform>%Ln conflicts: the other side&apos;s decision</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln conflict: to be decided again</numerusform>
            <numerusform>%Ln conflicts: to be decided again</numerusform>
        </translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1” does not fit what was changed since. The list of steps tells what stands in the way.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Cancelled, nothing was made</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Assigning lines</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Looking for target projects</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln project: %1 in the same place, %2 elsewhere, %3 split, %4 without target, %5 unreadable</numerusform>
            <numerusform>%Ln projects: %1 in the same place, %2 elsewhere, %3 split, %4 without target, %5 unreadable</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 of %Ln project</numerusform>
            <numerusform>%1 of %Ln projects</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>of these %1 mapped, %2 to check, %3 without target</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelled: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 with %Ln line</numerusform>
            <numerusform>%1 with %Ln lines</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln change was taken over.</numerusform>
            <numerusform>%Ln changes were taken over.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln line was decided alike by both.</numerusform>
            <numerusform>%Ln lines were decided alike by both.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln line was decided differently and is marked as a conflict.</numerusform>
            <numerusform>%Ln lines were decided differently and are marked as conflicts.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln other contradiction: the file counts.</numerusform>
            <numerusform>%Ln other contradictions: the file counts.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Line %1 cannot be shown</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>No finding is chosen</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Mended: %1 in %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>The tables are being compared</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln assigned line looked at</numerusform>
            <numerusform>%Ln assigned lines looked at</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln finding</numerusform>
            <numerusform>%Ln findings</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Neighbours</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Lines %1 to %2 are shifted by %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Lines %1 and %2 are swapped</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Line %1 is misplaced by %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Line %1 has the target line of another one</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Line %1 is skipped</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>open</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Mended: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Mended</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 exists already.</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Old release:</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Use this file</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Mapping file:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;New release:</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>Assign the &amp;lines at once</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>Crea&amp;te</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Saving adds the new release; a release of the same date is replaced, with all that is confirmed in it.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>There is no directory %1.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>The directory of the old release is missing.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>The directory of the new release is missing.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>The mapping file needs a name.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Each release needs a directory with the catalog.</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Catalog in it:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Choose mapping file</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>New mapping</translation>
    </message>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Directory of the old release</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Directory of the new release</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>something that is no regular file stands in its place</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>permission denied</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>the disk is write protected</translation>
    </message>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>the disk is full</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>the folder or the file is not there any more</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>the file gets larger than is allowed here</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>no target</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Old line</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>New line</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Other differences</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>The project&apos;s table cannot be read.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Path:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Standard:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Designation:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Project version:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Table version:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Lines:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln open line with a proposal</numerusform>
            <numerusform>%Ln open lines with a proposal</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>in %Ln pattern</numerusform>
            <numerusform>in %Ln patterns</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln of them is still being compared</numerusform>
            <numerusform>%Ln of them are still being compared</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Chosen: %Ln line</numerusform>
            <numerusform>Chosen: %Ln lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln of them taken out</numerusform>
            <numerusform>%Ln of them taken out</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Differences of the Open Lines</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln project</numerusform>
            <numerusform>in %Ln projects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln open line without successor</numerusform>
            <numerusform>%Ln open lines without successor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>The tables are being compared: %Ln project read</numerusform>
            <numerusform>The tables are being compared: %Ln projects read</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln line</numerusform>
            <numerusform>%Ln lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln project</numerusform>
            <numerusform>%Ln projects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln more line has these and other differences</numerusform>
            <numerusform>%Ln more lines have these and other differences</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projects</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certainty</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Exceptions</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>near number</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>other number</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>other wording</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>value added</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>value missing</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>cannot be compared</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>no difference</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>other spelling</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>in doubt: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>whole folder without target: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>whole project without target: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>target project is gone: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 is gone</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>no similar line: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>project name</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>another one</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>another value</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>one or more of these in each line</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>No mail program is set up on this computer. The request is:

%1: %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Please assign an ERP number.

Project: %1
Line: %2
</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>ERP number for %1, line %2</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>No mail could be begun.</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>not available: no project is selected</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>not available: no file is open</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>not available: no link database is connected</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>not available: no line is selected</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>not available: the link database is being connected</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>not available: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>not available: the link manager waits for no selection</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>There is no table in sight that could be printed</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Print: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 was given to the printer</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 printed into %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 could not be printed.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>The printer takes no pages.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 cannot be written.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Page</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Frage</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln line is confirmed although values of its range have no new line.</numerusform>
            <numerusform>%Ln lines are confirmed although values of their ranges have no new line.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Take back</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Confirm all the same</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln line</numerusform>
            <numerusform>%1: %Ln lines</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>The line has no mapping of value ranges.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>missing: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>several times: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>not in the old range: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Value range of the line</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 of %Ln value assigned</numerusform>
            <numerusform>%1: %2 of %Ln values assigned</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Reason for the decision</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Reason:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>discontinued</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>merged into another part</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>split into several parts</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>moved to another catalog</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>not yet checked</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;For:</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>Open the &amp;saved version</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Recover</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmed</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>The saved version is younger than all that can be recovered.</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Saved</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>With &amp;later changes (%1)</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Without target</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projects</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>As of</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Recovered</translation>
    </message>
    <message>
        <source>Wiederherstellung</source>
        <translation>Recovery</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>To check</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln step</numerusform>
            <numerusform>%Ln steps</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>There is work on %1 that was not saved: %2, the last one “%3”. It is by %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 with %Ln line</numerusform>
            <numerusform>%1 with %Ln lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln project</numerusform>
            <numerusform>%1 in %Ln projects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Importing tables</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 has no CSV file any more and stays as it is</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>There is no CSV file in the folder; nothing was imported</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelled: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Not everything was written: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 cannot be written.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Export lines</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tables (*.csv);;All files (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Exporting lines</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Cancelled, nothing was exported</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Write report</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF files (*.pdf);;HTML pages (*.html);;All files (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Making the report</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Cancelled, no report was written</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Laying out pages</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Report written to %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Cancelled, no report was made</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln table</numerusform>
            <numerusform>%Ln tables</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 new, %2 changed, %3 unchanged, %4 not imported</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln line exported to %1</numerusform>
            <numerusform>%Ln lines exported to %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 with %Ln line</numerusform>
            <numerusform>%1 with %Ln lines</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Agreed Replacements</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>in the whole release</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Agree</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Withdraw</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Evidence</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Take Over</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>A replacement says that an old value stands for a new one. It makes proposals, but confirms nothing.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>agreed</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>agreed in %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>The tables are being read</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln line supports it</numerusform>
            <numerusform>%Ln lines support it</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln does not</numerusform>
            <numerusform>%Ln do not</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>None is agreed. While the list of differences is open, its replacements are offered here.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Mapping report: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Release %1 to %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Made on %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>How the lines stand</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>By folder, with all that lies below</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>By project</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Why lines are open</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>How open lines differ from their proposals</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Samples</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Who decided what</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Open lines</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>What could not be read</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmed</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Confirmed to have no successor</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Assigned with certainty</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>To check</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Without target</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>In conflict</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Designation</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Differences</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projects</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Probability</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Exceptions</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Examples</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Who</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Judged</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Wrong at most (95 % certain)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>table could not be read</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>cannot be compared</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>no difference</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>none</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>two people decided differently</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>somebody else decides</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>a table cannot be read</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>a condition or formula fails</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>no target is for it</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>a column is missing</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>several lines are equal</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>too unlike</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>equal, only not confirmed</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>in doubt: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Open lines without a successor</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Lines confirmed to have no successor</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>What they have in common</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>in all</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Taken over from former mappings</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Former mapping</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Still as taken over</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Lines that were judged</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Settled lines: %1 of %2; open: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Catalog = svn://server:port/path</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>One catalog a line. Without a line a catalog&apos;s name is also that of its server.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>the latest</translation>
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
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Space on this &amp;machine:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>&amp;Wait for the server:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Server, line %1: &quot;%2&quot; is not of the form &quot;Catalog = svn://server:port/path&quot;.</translation>
    </message>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>Read target projects from the reposi&amp;tory</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>S&amp;erver:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Revisi&amp;on:</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Login to the repository</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 asks for a login.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Name and password hold until the program ends and are not stored.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Line %1 cannot be shown</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>No line is open any more</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>The tables are not compared yet</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>From the beginning: %Ln line open</numerusform>
            <numerusform>From the beginning: %Ln lines open</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Open lines come by their uncertainty</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Open lines come by their place</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>The line does not belong to the chosen pattern</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Line %1 taken out</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>No pattern is chosen, or all its lines are decided</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln line</numerusform>
            <numerusform>%Ln lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>in %Ln project to be confirmed?</numerusform>
            <numerusform>in %Ln projects to be confirmed?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>The step can be taken back.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Confirm</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln line confirmed</numerusform>
            <numerusform>%Ln lines confirmed</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>There is no candidate %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Line %1 → %2 confirmed</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Replacements agreed to: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Choose a pattern, or select open lines</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Sample</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Draw</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Sample, line %1 of %2: + right, − wrong</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>There is no sample under way</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>All lines of the sample are decided already</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 right of %2</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Sample refused, %1; judged by %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>all lines judged</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>with 95 % certainty fewer than %1 % wrong</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Sample: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>judged by %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>the wrong one was there</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Line %1 is wrong: the sample is over</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Go On</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Look at the Wrong Line</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln of them is in doubt.</numerusform>
            <numerusform>%Ln of them are in doubt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>All patterns are done</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln project</numerusform>
            <numerusform>in %Ln projects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln line confirmed to be discontinued</numerusform>
            <numerusform>%Ln lines confirmed to be discontinued</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Line %1 in %2 is wrong. The set is split; with which part do you want to go on?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>So many of %Ln line are drawn and judged one by one. %1 right ones say with 95 % certainty that fewer than 5 % are wrong, %2 right ones fewer than 1 %.</numerusform>
            <numerusform>So many of %Ln lines are drawn and judged one by one. %1 right ones say with 95 % certainty that fewer than 5 % are wrong, %2 right ones fewer than 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Script Console</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Output of scripts</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Line of a script</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>A line of JavaScript. Return runs it, Tab completes, Up and Down browse.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Stops the running script (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Deletes the output</translation>
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
        <translation>(console)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Done, status %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>It is too large.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>It is no text in UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 cannot be read. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Open Script</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Scripts (*.js);;All files (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Save Script</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 cannot be written. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>The script is not saved.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(without a name)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>New script</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Open …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Arguments:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Text of the script</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Arguments</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>(Prozess %1)</source>
        <translation>(process %1)</translation>
    </message>
    <message>
        <source>an</source>
        <translation>at</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>The end of the journal %1 cannot be read. The last change may be missing.</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>The journal %1 cannot be read (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Behind the last session that was closed the journal %1 is not readable. What stood there is not known; the journal is kept.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>The journal %1 is damaged. Behind the damage %Ln change still fits, %2 do not; others may be missing. The journal is kept.</numerusform>
            <numerusform>The journal %1 is damaged. Behind the damage %Ln changes still fit, %2 do not; others may be missing. The journal is kept.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>The journal %1 is damaged or does not fit the mapping file. At least %Ln later change is missing; the journal is kept.</numerusform>
            <numerusform>The journal %1 is damaged or does not fit the mapping file. At least %Ln later changes are missing; the journal is kept.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>&amp;Colours:</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>&amp;Font size:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Safety cop&amp;y every:</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>As the desktop</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>never</translation>
    </message>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>After a &amp;decision go on to the next open line</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>High contrast</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>A folder a line, from which may be read what files of a catalog name outside of the catalogs.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Allowed folders:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Allowed folders: &quot;%1&quot; is no folder with a complete path.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>The mapping is shared with nobody. Choose the shared copy first.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 is there already and is another mapping. Choose another copy, or get this one into a new file.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Others have published something since the last update.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Lines in conflict are not published: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>There are changes in folders of others: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>The folder is taken already: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Somebody else publishes at this moment (%1). Please try again in a moment.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>The shared copy cannot be reached: %1. Your own file is as it was; try again later.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>One of the files is no readable mapping: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>It could not be written: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>That did not work.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Reading the shared copy</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Shared by %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Getting the changes of others</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>There is nothing new</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Publishing the changes</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapping edited</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Published, revision %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>That is merged first. After it you can publish.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Update</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>Publish all the &amp;same</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Take folders over</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>&amp;Take over</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Entering the folders</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>No folders of your own any more</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Your folders: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(here)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>has it open</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>does not have it open</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>last %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>folders %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Your revision %1, newest revision %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Others have published something.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>There is nothing new of others.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Changes of your own are not published yet.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Shared copy: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>The last publishing was broken off, but had come through.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>The last publishing was broken off. Please publish again.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>The shared file had been changed in the working copy and not committed. That is kept in %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>The working copy had been left in the middle of something and was cleaned up.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>The store of the working copy was damaged and was fetched again; the former one is %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Something that was broken off has been put right.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Folders of the catalog with commas between them; * stands for any characters, ? for one. Empty gives all back:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>Alles entschieden</source>
        <translation>Everything decided</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Lines that still need a decision</translation>
    </message>
    <message>
        <source>rückgängig</source>
        <translation>undo</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filter: no line</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Lines that the filter over all lines shows</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln line&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln lines&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Open: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 in %Ln project</numerusform>
            <numerusform>%1 in %Ln projects</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>No line assigned yet</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Cancels the running work; what is done stays</translation>
    </message>
    <message>
        <source>Fortschritt</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Errors and warnings: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Search who, what or lines</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Back to here</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Takes back this step and all later ones that count</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>&amp;Go to Line</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Take Back with %Ln Dependent</numerusform>
            <numerusform>&amp;Take Back with %Ln Dependents</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Take Back Only This One</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Do Again with %Ln Earlier One</numerusform>
            <numerusform>&amp;Do Again with %Ln Earlier Ones</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Do Again</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>No step yet</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>No other step depends on it.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>The step can be done again by itself.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>What builds on it: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>It builds on: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>In the way, because they decided otherwise: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Something else stands there now that no step of this list decided, such as another program&apos;s work. The step cannot be moved any more.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln project</numerusform>
            <numerusform>%1 in %Ln projects</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>counts</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>taken back</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>overtaken</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Who</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lines</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>The change in %1 takes effect only when the lines are assigned again. Only what is confirmed survives that.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>A condition of the target project %1 in %2 was dropped.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>A variable mapping of the target project %1 in %2 was dropped.</translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>Variables stay ignored in %1: %2. To map one of them again, choose &quot;Formula...&quot; or delete the row and enter it again.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln line in %1 was confirmed to be discontinued and is not any more: %2</numerusform>
            <numerusform>%Ln lines in %1 were confirmed to be discontinued and are not any more: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Line %1 → %2 in %3: %Ln other line has this target line, too: %4</numerusform>
            <numerusform>Line %1 → %2 in %3: %Ln other lines have this target line, too: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln line in %1 shares its target line with newly assigned ones: %2</numerusform>
            <numerusform>%Ln lines in %1 share their target line with newly assigned ones: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Conditions changed</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Project removed</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Project added</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Order of the target projects changed</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>State changed</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Variable mapping changed</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versions changed</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Target project removed</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Target project added</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln conflict accepted</numerusform>
            <numerusform>%Ln conflicts accepted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln line confirmed</numerusform>
            <numerusform>%Ln lines confirmed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln line confirmed to be discontinued</numerusform>
            <numerusform>%Ln lines confirmed to be discontinued</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln line assigned</numerusform>
            <numerusform>%Ln lines assigned</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>assignment of %Ln line removed</numerusform>
            <numerusform>assignment of %Ln lines removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>value range assignment of %Ln line changed</numerusform>
            <numerusform>value range assignment of %Ln lines changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>conflict of %Ln line settled</numerusform>
            <numerusform>conflict of %Ln lines settled</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln line changed</numerusform>
            <numerusform>%Ln lines changed</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>line %1 → %2 confirmed</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>line %1 → %2 assigned</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (was %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>line %1 confirmed to be discontinued (was %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>line %1 confirmed to be discontinued</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>assignment of line %1 removed (was %2)</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln project</numerusform>
            <numerusform>%1 in %Ln projects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Done</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Skip</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (cancelled): %2.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, line %2: the value range assignment names line %3, but the line has no target project. Please assign it or clear the text.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, line %2: the value range assignment names line %3, which %4 does not have. Please correct it or resolve it again.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, line %2: row %3 of the value range assignment is not of the form {NAME=VALUE} -&gt; line number: &quot;%4&quot;. Please correct it or resolve it again.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: the table of the target project %2 cannot be read, its value range assignments are unchecked. Please check the directory of the target projects (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Checking value range assignments</translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>no finding</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln value range assignment checked</numerusform>
            <numerusform>%Ln value range assignments checked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln finding</numerusform>
            <numerusform>%Ln findings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>A catalog was released again, and every line of the old release has to be carried over to a line of the new one. The program proposes, you check and confirm.</translation>
    </message>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Match catalog releases</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Opened last:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Refresh</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Settings...</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Go to line...</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>Catalog &amp;directories...</translation>
    </message>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;New mapping...</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Next open line</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Tour</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>&amp;Previous open line</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Assign all projects...</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Reloads tree, statistics and tables from the disk</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Ends the program</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>The selected lines, or all that are shown, are discontinued: removes and confirms in one step</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Does the step again that was taken back</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Goes to the next line that needs a decision, in the next project too</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Goes to the previous line that needs a decision, in the previous project too</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Removes the assignments of the selected lines, or all that are shown, in one step</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Makes a new mapping file from two catalog releases</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Takes the last step back</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Closes the mapping file</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Writes all changes to the mapping file</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Writes to another mapping file</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Save &amp;as...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Language, font, keys, safety copies</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Looks for a line of the project by number or designation</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Looks for assignments of all lines of the catalog; what is confirmed stays</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Compares all value range texts with the tables of the target projects</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Version and directories</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Chooses the directories of the old and the new catalog release</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Shows in a few steps where things are</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Confirm lines...</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Re&amp;move assignments...</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Opens a mapping file</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Opens a mapping file of your own for the example catalog that comes with the program</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>&amp;About this program</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Confirms the assignment of the selected lines, or all shown, in one step</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Confirm Lines without Target as Discontinu&amp;ed...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Confirms that those of the selected lines, or all shown, that have no target are discontinued</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Difference Patterns</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Shows how the open lines differ from their proposals</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Old and New</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Shows old and new values of the line side by side, and its candidates</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Confirm Pattern...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Confirms all lines of the chosen pattern in one step</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Take Line Out</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>The line is not confirmed with the others of the pattern</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Next Line of the Pattern</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Goes to the next open line of the chosen pattern</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>&amp;Previous Line of the Pattern</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Goes to the previous open line of the chosen pattern</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Chooses the next pattern of the list</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Least S&amp;ure First</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Open lines come by the chance of error instead of their place</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Replacements...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Agrees to replacements of values for the release, or withdraws them</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>&amp;Sample...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Draws lines of the chosen pattern or of the selected lines, to be judged one by one</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Sample: R&amp;ight</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>The line of the sample that is shown is assigned rightly</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Sample: &amp;Wrong</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>The line of the sample that is shown is assigned wrongly; the sample ends</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Candidate &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Assigns this candidate to the line and confirms it</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Candidate &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Candidate &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Candidate &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Candidate &amp;5</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>Scr&amp;ipt...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Opens a window in which scripts are written and run</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Con&amp;flicts</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Shows the lines that two sides decided differently</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Goes to the next line whose conflict is still open</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>In this conflict my own decision holds</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>In this conflict the decision of the other side holds</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Neither decision holds; the line is without target again</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Open the &amp;example catalog</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Remove Assignments and C&amp;onfirm...</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Check &amp;value range assignments</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Other table</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Changes between the old and the new table</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Next Patt&amp;ern</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Hint about this place</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Shows the hint where the keys go: in a table, why the line has its state</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Next open conflict</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Conflict: my decision</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Conflict: their decision</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Conflict: decide again</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Nei&amp;ghbours</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Shows where assignments of neighbouring lines do not fit each other</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>&amp;Mend lines</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Mends the chosen finding in one step</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Shared copy...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Chooses the copy by which several work on this mapping</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Merges what others have published</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Publish</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Hands your own changes on to the others</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>Take &amp;folders over...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Tells the others which folders you work on</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Who works on what</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Shows who has the mapping open and whose which folders are</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Find...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Finds projects, lines, commands and settings by parts of words</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Keys...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Shows and changes the keys of all commands</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Import tables...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Makes projects of a catalog from a folder of CSV files</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>E&amp;xport lines...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Writes all lines of the release with their assignments into a CSV file</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Re&amp;port...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Writes as PDF or HTML how far the release is and why lines are open</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Value range of the line</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Shows which values of the old range have new lines</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Opens the manual at the place for where you are</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Steps...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Lists all steps, those of former sessions too, and takes any of them back</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter over All Lines</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Chooses lines of all projects by state, reason, difference and person; F8 walks them</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Next Project with Open Lines</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Goes to the next project in which something is to be decided</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Previous Project with Open Lines</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Goes to the previous project in which something is to be decided</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Prin&amp;t...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Shows the pages of the table in sight, and prints them</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Shows the pages of the report, and prints them</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Print report...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Take decisions over...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Takes over from a former mapping what was already confirmed for the same old release, in one step</translation>
    </message>
</context>
</TS>
