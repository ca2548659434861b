<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Nincs mit módosítani.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Megerősíti a(z) %Ln sort?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Megerősíti a(z) %Ln sort megszűntként?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Megszünteti %Ln sor hozzárendelését?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Megszünteti %Ln sor hozzárendelését, és megerősíti megszűntként?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>Közülük %Ln már meg van erősítve.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>Közülük %Ln elveszíti az értéktartomány-hozzárendelését.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln cél nélküli sor megerősítetlen marad.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln sor marad, ahogy van.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln ütköző sor nem módosul.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln sor egyetlen célprojektben sem szerepel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln sor megerősítve.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln sor megszűntként megerősítve.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>%Ln sor hozzárendelése megszüntetve.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln sor hozzárendelése megszüntetve, megszűntként megerősítve.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>nincs utód</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Billentyű</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Bizonyosság</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Új sor</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Ok</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 itt már eldöntött vagy biztos</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 sor nélkül az új verzióban</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 akkor megszűntként megerősítve</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 itt hiányzó projektekben</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 ott ütközésben</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Nem került át: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>A(z) %1 fájlból nincs mit átvenni.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>A fájlban nincs leképezés a(z) %1 katalógusverzióról.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Ez a fájl is a(z) %1 katalógusverzióra vezet.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Válasszon olyan leképezést, amely ugyanarról a régi katalógusverzióról egy korábbi újra vezet.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Átvéve innen: %1: ott a(z) %2 katalógusverzióhoz megerősítve</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>A korábbi leképezés olvasása</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>A(z) %1 fájlból semmi sem vehető át.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>A(z) %1 katalógusverzió könyvtára</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Célprojektek keresése</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Döntések átvétele</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Megszakítva, semmi sem került átvételre</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Átvett döntések innen: %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Átvéve innen: %1: %Ln megerősített sorból %2, %3 biztosan hozzárendelve, %4 javasolva.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>A régi katalógusverzió könyvtára</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Az új katalógusverzió könyvtára</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Katalóguskönyvtárak</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Hol van a leképezésfájl két katalógusverziója? A program a könyvtárakat a fájllal együtt megjegyzi.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Régi verzió (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>Új &amp;verzió (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Mindkét könyvtárra szükség van.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>A(z) %1 nem könyvtár.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>A régi verzióból hiányzik: %1. Az a könyvtár kell, amelyben a(z) %2 katalógus van.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Az új verzióból hiányzik a(z) %1 katalógus.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>A(z) %1. sor (%2) nem jeleníthető meg</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Egyetlen sor sem ütközik</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Minden ütközés eldöntve; most mentsen</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>%1. ütközés, összesen %2, még nyitott: %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%1: %Ln sor ugyanúgy ellentmondásos. Mindegyikre érvényes a döntés?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Saját: %1
Másik: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Mindegyikre</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Soronként</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>A sor nem ütközik</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>A saját döntés nem ismert: a sor már megnyitáskor is ütközött</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Egyetlen sor sem ütközik.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Minden ütközés eldöntve.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>További %Ln sor ugyanígy ellentmondásos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Ütközések</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Az ütközés oldalai</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Saját</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Másik</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Újra dönteni</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>Még nyitott ütközések: %1, összesen %Ln.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>nyitott</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>saját</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>másik</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>új</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Saját döntés</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Másik döntés</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Érvényes</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>automatikusan hozzárendelve</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>ellenőrizendő</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>megerősítve</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>cél nélkül, nyitott</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>megszűntként megerősítve</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>nem ismert</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, %2. sor, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Célprojekt</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Célsor</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Értéktartományok</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Régi sor</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Korábban</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Saját döntés</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Másik döntés</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Adat</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>egyező</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>helyettesítve, mint további %Ln sorban</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>hasonló</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>eltérő</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>csak az új sorban</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>csak a régi sorban</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Változó</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Régi</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Új</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>A táblázatban nincs meg a sor.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Cél nélkül. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>A hozzárendelt sor egyik jelölttel sem azonos.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Régi és új</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Jelöltek</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Megerősítve.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Biztosan hozzárendelve.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln sor</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>összehasonlítva: az első %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Nincs közös eltérés.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Közös: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Kijelölt sorok</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Katalógusverzió</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>A fájl több katalógusverziót tartalmaz. Melyiket nyissa meg?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Leképezésfájl olvasása</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>A fájl nem nyitható meg.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>A fájl csak olvasásra van megnyitva.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>A zár feloldható, ha biztosan senki sem dolgozik már ott, például a számítógép leállása után.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Csak olvasás</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Zár feloldása</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>A zárat nem sikerült feloldani.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>A katalógusok nem ismertek; a --source és a --target kapcsolóval adhatók meg.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Menti a(z) %1 módosításait?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Az elvetett módosítások elvesznek.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Mentés</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Elvetés</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln sor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Még %Ln sor ütközik, ezekben a projektekben:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Üt&amp;közések megjelenítése</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Me&amp;ntés mindenképp</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Mentve: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>A fájl nem lett elmentve.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Mó&amp;dosítások egyesítése</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Másola&amp;t megtartása és újraírás</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Saját verzió írása</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>A többiek módosításai átvéve. Ellenőrizze őket, majd mentsen még egyszer.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>A többiek módosításait nem sikerült átvenni.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>A leképezésfájl nem hozható létre.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>és még %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>%1 olvasása</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>A(z) %1 leképezésfájl nem olvasható (%2).
Válasszon másik fájlt, vagy másolja vissza a(z) %3 biztonsági másolatot.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>A(z) %1 leképezésfájl nem olvasható (%2).
Válasszon másik fájlt.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>A(z) %1 nem tartalmaz verziót.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>A(z) %1 nem tartalmaz %2 verziót. Meglévők: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>A(z) %1 csak olvasásra van megnyitva.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>A(z) %1 fájlt éppen %2 szerkeszti, ezért csak olvasásra van megnyitva.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>A(z) %1 mappája nem írható (%2). A fájl ezért csak olvasásra van megnyitva; más néven mentve szerkeszthető.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>A(z) %1 fájlhoz el nem mentett munka tartozik. A program felajánlja, amint a fájl szerkesztésre megnyitható (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>A(z) %1 fájlnak más neve is van (rögzített hivatkozás). Mentéskor a másik nevű fájl marad, ahogy volt.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>%1 mentése</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>%1 biztonsági mentése</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>A(z) %1 fájlt éppen %2 szerkeszti. Semmi sem lett kiírva. Válasszon másik nevet.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>A(z) %1 mappájában semmi sem hozható létre (%2). Semmi sem lett kiírva. Válasszon másik mappát.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>A projekt egyetlen sora sincs a szűrőben.
Nyissa meg ezt: „%1”, és válassza ezt: „%2”, hogy újra minden sor látsszon.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Egyetlen projektnek sincs sora a szűrőben.
Nyissa meg ezt: „%1”, és válassza ezt: „%2”, hogy újra minden projekt látsszon.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Leképezésfájlok (*.json);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Leképezésfájl megnyitása</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Leképezésfájl mentése</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Táblázat mentése</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Táblázatok (*.csv);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Közös másolat kiválasztása</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Döntések átvétele innen</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>A szűrő megszűnt: a projektnek nincs benne sora</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Elérte a végét, folytatás az elejétől</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Elérte az elejét, folytatás a végétől</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Nincs több sor a szűrőben</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>lecserélt szöveg</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>átszámított szám</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Miért nyitott</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Az eltérés fajtája</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Eltérés az oszlopban</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Utoljára döntött</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>senki</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(egyik sem)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>nem a kiválasztottak</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>A táblák olvasása...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln sor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projektben</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Nincs szűrő: minden sor</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Olvashatatlan táblák: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Szűrő az összes sorra</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Sorok</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Szűrő &amp;törlése</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Eredet</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>korábbi leképezésből átvéve</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>A(z) %1 nem közönséges fájl, ezért nem használható zárként. Semmi sem lett kiírva. Távolítsa el, ami ott van.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>A(z) %1 fájlt éppen egy másik program menti. Semmi sem lett kiírva. Mentsen újra egy kis idő múlva.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>A(z) %1 mappájában semmi sem hozható létre (%2). Semmi sem lett kiírva. Szabadítson fel helyet, vagy mentsen más néven.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>A(z) %1 nem olvasható (%2). Semmi sem lett kiírva. Mentsen más néven.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>A(z) %1 nem olvasható leképezésfájl (%2). Semmi sem lett kiírva. Mentéskor a meglévő fájl időbélyeges néven megmarad, és új fájl jön létre, amely csak ezt a verziót tartalmazza.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>A(z) %1 nem olvasható leképezésfájl (%2). Semmi sem lett kiírva. Mentéskor a meglévő fájl időbélyeges néven megmarad, és új fájl jön létre. A többi verzió a(z) %3 biztonsági mentésből származik: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>A(z) %1 olvashatatlan, és nem sikerült %2 néven megőrizni (%3). Semmi sem lett kiírva. Mentsen más néven.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>A(z) %1 fájlt a megnyitás óta törölték vagy átnevezték. Mentéskor a fájl újra létrejön, és csak ezt a verziót (%2) tartalmazza. Még semmi sem lett kiírva.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>A(z) %1 fájlt a megnyitás óta valaki más módosította, de ezt a verziót (%2) nem. Mentéskor a többi verzió úgy marad, ahogy most a fájlban van. Még semmi sem lett kiírva.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>A(z) %1 fájlt a megnyitás óta valaki más módosította, ezt a verziót (%2) is. Mentéskor az ő módosításai ebben a verzióban elvesznek. Még semmi sem lett kiírva: mentsen mindenképp, mentsen más néven, vagy nyissa meg újra a fájlt.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>A(z) %1 nem írható (%2). Semmi sem lett kiírva. Ellenőrizze az írási jogokat, vagy mentsen más néven.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>A(z) %1 nem lett elmentve: %2. A fájl változatlan, a módosítások továbbra is nyitva vannak. Szabadítson fel helyet, és mentsen még egyszer, vagy mentsen más néven.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>a fájlt nem sikerült teljesen kiírni</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>a kiírt fájl nem olvasható (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>a kiírt fájl nem azt tartalmazza, amit menteni kellett</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>a kiírt fájlból hiányzik a(z) %1 verzió, vagy az egy másik</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>A(z) %1 biztonsági másolatot nem sikerült létrehozni (%2). Semmi sem lett kiírva. Szabadítson fel helyet, vagy mentsen más néven.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>A(z) %1 fájlt mentés közben valaki más módosította. Semmi sem lett kiírva. Mentsen még egyszer.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>A(z) %1 nem lett elmentve: %2. A fájl változatlan, a módosítások továbbra is nyitva vannak. Mentsen más néven.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Vissza</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Kézikönyv</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Tartalom</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Keresés az oldalon</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>A &amp;döntések előzményei...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Ki mit döntött, mikor és miért</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>A &amp;döntés oka...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Az utolsó döntéshez vagy a kijelölt sorokhoz, például miért nincs utód</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>%1. sor itt: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln sor itt: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Ok feljegyezve: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>A döntések előzményei</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Kijelölt sor</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Kijelölt projekt</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Minden projekt</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Keresés: ki, projekt, cél vagy ok</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>Új&amp;raolvasás</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Mentés CSV-ként...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Bezárás</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>A napló olvashatatlan sorai: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Döntések: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>A fájl nem írható.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>nincs utód</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (nincs mentve)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Eddig</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Új</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Mit</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Átvéve innen: %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>CSV-fájlok mappája</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>A katalógus könyvtára</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Táblázatok importálása</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;CSV-fájlok mappája:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>A &amp;katalógus könyvtára:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Minden CSV-fájlból egy projekt lesz a táblázatával, a katalógus ugyanazon helyén. A táblázatok újbóli importálásakor a sorok száma megmarad.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importálás</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Hiányzik a CSV-fájlok mappája.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Hiányzik a katalógus könyvtára; létrejön, ha a fölötte lévő könyvtár létezik.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Az egyik könyvtár a másikban van.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Sor megerősítése vagy a kijelölt sor hozzárendelése</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>A sor hozzárendelésének megszüntetése</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Hozzárendelés megszüntetése és megerősítés megszűntként</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Értéktartomány-hozzárendelés szerkesztése</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Feltétel másolása a sorból</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Teljes projekt megerősítése</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Keresés a táblázatban</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Következő keresése</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Előző keresése</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Oszlopszűrő</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Sorok másolása</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Nagyobb táblázat</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Kisebb táblázat</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Táblázat normál méretben</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Alapértelmezés</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Nincs billentyű</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Billentyűk</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Parancs vagy billentyű</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Parancsok</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Parancs</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Hol</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Billentyű</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Táblázat</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Ablak</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Billentyű ehhez: %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>A(z) %1 billentyűre a mezőknek és listáknak van szükségük.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>A(z) %1 billentyű ezeké lenne: %2 és %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Saját választás</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>Ekkor a(z) %1 parancshoz már nem tartozik a(z) %2 billentyű.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>A(z) %1 billentyű most ehhez tartozik: %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nincs találat</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Megerősített: a hozzárendelés eldöntve</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Javaslat: meg kell erősíteni vagy ki kell javítani</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Kép nélkül: egyértelműen egyező, a program rendelte hozzá</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Nem található hozzárendelés</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Megszűnt: megerősítve, hogy nincs hozzárendelés</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Ütközés valaki más módosításával</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>A projekt vagy a táblázat nem olvasható</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>A sor értéktartomány-hozzárendelései</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>A céltáblában: a hozzárendelt sor</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Jelmagyarázat</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Feltétel a vágólapra másolva</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>A másolt feltétel így még nem használható: egy érték hiányzik, tartomány vagy idézőjelet tartalmaz: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Itt a szűrőben minden kész, azon kívül még %Ln sor nyitott.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Elérte a végét, folytatás az elejétől</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Elérte az elejét, folytatás a végétől</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>%1. ütközés, összesen %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Egyetlen sor sincs a kiválasztott állapotok egyikében sem</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Egyetlen sorhoz sem kell már döntés</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Egyik nyitott sor sem jeleníthető meg; hiányoznak a táblázatok</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Ugrás sorra</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Szám vagy szabványos megnevezés:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Ugrás</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Nincs kijelölt projekt</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Nincs „%1” tartalmú sor ebben a projektben</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>%1. találat, összesen %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Végrehajtás</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>A lépés visszavonható.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>A kijelölt sorokról van szó.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>A projekt minden soráról szó van.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Szűrő: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Más projektnek nincs ilyen sora</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Csak a projekt megjelenített sorairól van szó: %1 / %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Ütközés</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Csak a valaki más módosításával ütköző sorok és projektjeik megjelenítése</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Ellenőrizendő</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Csak a megerősítendő vagy javítandó javaslattal rendelkező sorok és projektjeik megjelenítése</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Cél nélkül</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Csak azoknak a soroknak és projektjeiknek a megjelenítése, amelyekhez nincs találat</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatikus</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Csak az egyértelműen egyező, a program által hozzárendelt sorok és projektjeik megjelenítése</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Megerősített</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Csak a megerősített hozzárendelésű sorok és projektjeik megjelenítése</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Megszűnt</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Csak a megszűntként megerősített sorok és projektjeik megjelenítése</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Hivatkozási adatbázis használata</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Fájl ezen a számítógépen</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL-kiszolgáló</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>a szokásos</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>A jelszó a jelszófájlban, az asztal kulcstárában vagy a PGPASSWORD változóban van, vagy bejelentkezéskor kell megadni. A program nem tárolja.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>ha lehetséges</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>mindig</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>mindig, a kiszolgáló ellenőrizve</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>soha</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Fajta:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Fájl:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Gazdagép:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Adatbázis:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>Felha&amp;sználó:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Titkosítás:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Hivatkozási adatbázis: hiányzik a fájl neve.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Hivatkozási adatbázis: az adatbázis neve hiányzik vagy érvénytelen.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>A &amp;hivatkozási adatbázis számainak ellenőrzése</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>A hivatkozási adatbázisban nincs olyan csoport, amelyhez Ön tartozik.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Csoport kiválasztása</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>A hivatkozási adatbázis csoportja:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>A(z) %1. sor (%2) nincs ebben a leképezésben.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>A hivatkozási adatbázis számainak ellenőrzése</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>A számokat nem sikerült ellenőrizni.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>A hivatkozási adatbázis módosításai talán elvesztek.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Hiányzik a hivatkozási adatbázis licence.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Bejelentkezés a hivatkozási adatbázisba</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>A jelszó a program végéig érvényes, és nem kerül mentésre. Ha üresen marad, a jelszófájlból származik.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>A napló ezen a néven tartalmazza, hogy ki törölt valamit.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Hivatkozáskezelő</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Szám, projekt vagy leírás keresése</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Szám</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Leírás</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Sor megjelenítése</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>Összekapcsolás &amp;másik sorral...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Ezután válassza ki a projektet és a sort, és küldje el a kijelölést a „Kijelölés a hivatkozáskezelőnek” paranccsal.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Utoljára töröltek...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Bezárás</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Hivatkozások: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Nincs törölt elem, amely visszaállítható lenne.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Visszaállítja az utoljára törölteket? Sorok: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 törölte őket ekkor: %2, innen: %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Visszaállítás</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Az első %Ln hivatkozás; a keresés mutat másokat.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>A számok ellenőrzése</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Szám</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Eredmény</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Számok e leképezés projektjeinél: %1, más projekteknél: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Nincs összehasonlítva, mert olvashatatlan: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Bezárás</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>A sor megszűnt vagy nincs meg</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>megszűntként megerősítve</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>a projektben nincs meg</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Több sor is igényli</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Az alkatrész eltér</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Az alkatrész eltér (nincs összehasonlítva)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Nyitott sorok számmal</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Számok: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>A(z) %1. sor nem létezik itt: %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>A(z) %1 projekt nem jeleníthető meg.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projekt, sor, parancs vagy beállítás</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Találatok</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Elég a szavak egy része; a mögötte álló szám sort jelent.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nincs találat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln találat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Az első %1 találat, összesen %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>%1. sor</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Parancs</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Beállítás</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Hiba: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Figyelmeztetés: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Üzenetek</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Üzenetek törlése</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Minden üzenet másolása</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Felhasználó:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Jelszó:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Nincs kapcsolat a hivatkozási adatbázissal: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Az ERP-számok nem olvashatók. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Sorok újra hozzárendelve: nincs változás</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Itt nincs ilyen sor. A(z) %1 a következőre ugrik.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>írásvédett</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>A katalógus</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Bal oldalon van a régi katalógusverzió. A képek mutatják, hol kell még dönteni. Jelöljön ki egy projektet a sorai megtekintéséhez.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>A célok</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Itt vannak az új verzió projektjei, amelyek sorokat vehetnek át, feltételekkel és változóleképezésekkel.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>A sorok</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Bal oldalon a régi táblázat, jobb oldalon az új. A(z) %1 megerősíti a hozzárendelést vagy hozzárendeli a jobb oldalon kijelölt sort, a(z) %2 megszünteti, a(z) %3 megerősíti, hogy a sor megszűnt.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Ami még nyitott</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>A számláló megmutatja, hány sorhoz kell döntés. A(z) %1 a következőre ugrik, a következő projektben is.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Semmi sem vész el</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Minden lépés visszavonható. Összeomlás után a program felajánlja az el nem mentett munka helyreállítását. A bemutató a Súgó menüben van.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Hozzárendeli a teljes katalógus sorait?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>A megerősített mindenképpen megmarad. A lépés visszavonható.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Csak a hozzárendelés nélküli sorok</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Minden megerősítetlen újra</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Minden projekt hozzárendelve</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>A(z) %1 célprojekt nem létezik.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Célprojekt: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Beállítások: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Ehhez a helyhez nincs tipp</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Lista ürítése</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Fájl</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Megosztás</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Legutóbb megnyitottak</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Szerkesztés</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>&amp;Ugrás</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Ellenőrzés</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Nézet</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Csak a sorok</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>Sú&amp;gó</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Hivatkozási adatbázis</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>A sorok állapotai</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Eszközök</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Nincs szerkesztésre megnyitott fájl.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Saját módosítások a fájl verzióján</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln ütközés: saját döntés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln ütközés: a másik oldal döntése</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln ütközés: újra eldöntendő</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>A(z) %1 napló nem írható (%2). Összeomlás után a módosítások elvesznének: mentsen hamarosan.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>A helyreállított verzió nem biztosítható (%1). Szabadítson fel helyet, és nyissa meg újra; a napló változatlan.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Helyreállítás összeomlás után</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>A(z) %1 napló nem hozható létre (%2). Összeomlás után a módosítások elvesznének: mentsen gyakran.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Nincs megnyitva leképezésfájl.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>A mentés éppen folyamatban van.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Nem történt mentés. %1 Mentsen más néven.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>A(z) %1 zárja elveszett, és nem újítható meg. Mások egyidejűleg szerkeszthetik a fájlt.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Az automatikus mentés nem sikerült (%1). Mentsen hamarosan.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>A módosítás nem lett átvéve. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Ütközések megjelölve</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Visszavonva: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Ismét végrehajtva: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>„%1” már nem illik ahhoz, ami azóta változott. A lépések listája megmondja, mi áll útban.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Célprojektek keresése</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Megszakítva, semmi sem jött létre</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Sorok hozzárendelése</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projekt: %1 ugyanott, %2 máshol, %3 felosztva, %4 cél nélkül, %5 olvashatatlan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 / %Ln projekt</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>ebből %1 hozzárendelve, %2 ellenőrizendő, %3 cél nélkül</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Megszakítva: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln sorral</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln módosítás átvéve.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln sorról mindketten egyformán döntöttek.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln sorról eltérően döntöttek, ütközésként megjelölve.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln egyéb ellentmondás: a fájl verziója érvényes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>A(z) %1. sor nem jeleníthető meg</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Nincs kijelölt lelet</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Javítva: %1 itt: %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Táblázatok összehasonlítása folyamatban</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln hozzárendelt sor megvizsgálva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln lelet</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Szomszédság</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>A(z) %1–%2. sorok eltolódtak ennyivel: %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>A(z) %1. és a(z) %2. sor fel van cserélve</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>A(z) %1. sor ennyivel van arrébb: %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>A(z) %1. sor egy másik sor célsorát kapta</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>A(z) %1. sor kimaradt</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>nyitott</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Javítva: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Lelet</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Javítva</translation>
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
        <translation>A régi katalógusverzió könyvtára</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Az új katalógusverzió könyvtára</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Sorok azonnali hozzárendelése</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Új leképezés</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Régi katalógusverzió:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Benne lévő katalógus:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>Új &amp;katalógusverzió:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Leképezésfájl kiválasztása</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Leképezésfájl:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>Lé&amp;trehozás</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Hiányzik a régi katalógusverzió könyvtára.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Hiányzik az új katalógusverzió könyvtára.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Minden verzióhoz kell egy könyvtár a katalógussal.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>A leképezésfájlnak névre van szüksége.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>A(z) %1 könyvtár nem létezik.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>A(z) %1 már létezik.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Mentéskor hozzáadódik az új verzió; az azonos dátumú verzió lecserélődik mindazzal, ami benne megerősítve van.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Ennek a fájlnak a használata</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>az adathordozó megtelt</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>a fájl nagyobb lenne, mint itt megengedett</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>hiányzik az írási jog</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>az adathordozó írásvédett</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>a mappa vagy a fájl már nincs meg</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>a helyén nem közönséges fájl van</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>cél nélkül</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Régi sor</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Új sor</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>További eltérések</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>A projekt táblázata nem olvasható.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Útvonal:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Szabvány:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Megnevezés:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Projektverzió:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Táblázatverzió:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Sorok:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Fájl:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Szűrés</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln nyitott sor javaslattal</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>%Ln mintában</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>közülük %Ln összehasonlítása még folyamatban</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Kijelölve: %Ln sor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>közülük %Ln kivéve</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>A nyitott sorok különbségei</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projektben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln nyitott sor utód nélkül</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Táblázatok összehasonlítása folyamatban: %Ln projekt beolvasva</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln sor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projekt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>További %Ln sorban vannak ezek és más különbségek</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Különbség</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Sorok</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projektek</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Bizonyosság</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Kivételek</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>közeli számérték</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>másik szám</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>más szöveg</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>érték hozzáadva</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>érték hiányzik</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>nem összehasonlítható</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>nincs különbség</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>más írásmód</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>bizonytalan: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>az egész mappa cél nélkül: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>az egész projekt cél nélkül: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>a célprojekt már nincs meg: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 már nincs</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>nincs hasonló sor: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>projekt neve</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>másik</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>más érték</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>soronként ezek közül egy vagy több</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>nem érhető el: nincs megnyitott fájl</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>nem érhető el: csatlakozás a hivatkozási adatbázishoz</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>nem érhető el: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>nem érhető el: nincs csatlakoztatott hivatkozási adatbázis</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>nem érhető el: a hivatkozáskezelő nem vár kijelölésre</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>nem érhető el: nincs kijelölt projekt</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>nem érhető el: nincs kijelölt sor</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>ERP-szám ehhez: %1, %2. sor</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Kérjük, adjanak ki egy ERP-számot.

Projekt: %1
Sor: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Nem sikerült levelet kezdeni.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Ezen a számítógépen nincs beállítva levelezőprogram. A kérelem:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Nem látható nyomtatható táblázat</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Jelentés</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Nyomtatás: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 a nyomtatóra került</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 kinyomtatva ide: %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 nem nyomtatható ki.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>A nyomtató nem fogad oldalakat.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>A(z) %1 nem írható.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Oldal</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Kérdés</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Megjegyzés</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Nem</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>%1. sor: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln sor meg van erősítve, bár tartományának egyes értékeihez nincs új sor.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Visszavonás</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Megerősítés mindenképp</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln sor</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>A sornak nincs értéktartomány-hozzárendelése.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>hiányzik: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>többször: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>nincs a régi tartományban: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>A sor értéktartománya</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 / %Ln érték hozzárendelve</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>A döntés oka</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Mihez:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Ok:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>forgalmazása megszűnt</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>összevonva egy másik alkatrésszel</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>több alkatrészre felosztva</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>másik katalógusba áthelyezve</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>még nincs ellenőrizve</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Helyreállítás</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Mentett</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Helyreállított</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Időpont</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projektek</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Sorok</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Megerősített</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Ellenőrizendő</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Cél nélkül</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>A mentett verzió újabb mindennél, ami helyreállítható.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Helyreállítás</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>A &amp;későbbi módosításokkal (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Mentett verzió megnyitása</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln lépés</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>A(z) %1 fájlhoz el nem mentett munka tartozik: %2, a legutóbbi: „%3”. Ettől származik: %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln sorral</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projektben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Táblázatok importálása</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>A(z) %1 projekthez már nincs CSV-fájl, és marad, ahogy van</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>A mappában nincs CSV-fájl; semmi sem lett importálva</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Megszakítva: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Nem lett minden kiírva: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>A(z) %1 nem írható.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Sorok exportálása</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Táblázatok (*.csv);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Sorok exportálása folyamatban</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Megszakítva, semmi sem lett exportálva</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Jelentés írása</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF-fájlok (*.pdf);;HTML-oldalak (*.html);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Jelentés készítése</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Megszakítva, nem készült jelentés</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Oldalak tördelése</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Jelentés kiírva ide: %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Megszakítva, nem készült jelentés</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>%1. oldal, összesen %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln táblázat</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 új, %2 módosított, %3 változatlan, %4 nem importált</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln sor exportálva ide: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln sorral</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Megállapodott helyettesítések</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>a teljes katalógusverzióban</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Megállapodás</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Visszavonás</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Bizonyítékok</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>Á&amp;tvétel</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>A helyettesítés azt mondja ki, hogy egy régi érték egy újnak felel meg. Javaslatokat ad, de semmit sem erősít meg.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>megállapodott</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>megállapodott itt: %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Táblázatok olvasása folyamatban</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln sor mellette</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln sor ellene</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Nincs megállapodott helyettesítés. Ha a különbségek listája nyitva van, annak helyettesítései itt választhatók.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Leképezési jelentés: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>%1 katalógusverzióról erre: %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Készült: %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>A sorok állása</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Mappánként, minden alattuk lévővel</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Projektenként</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Miért nyitottak a sorok</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Miben térnek el a nyitott sorok a javaslataiktól</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Minták</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Ki mit döntött</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Nyitott sorok</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Amit nem sikerült beolvasni</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Sorok</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Megerősített</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Megszűntként megerősítve</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Biztosan hozzárendelve</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Ellenőrizendő</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Cél nélkül</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>Ütközésben</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Megnevezés</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Különbségek</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projektek</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Valószínűség</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Kivételek</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Példák</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Mit</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Megítélve</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Helyes</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Legfeljebb hibás (95 %-os bizonyossággal)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>elutasítva</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>a táblázat nem olvasható</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>nem összehasonlítható</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>nincs különbség</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>nincs</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>és további %1</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>ketten eltérően döntöttek</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>valaki más dönt</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>egy táblázat nem olvasható</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>egy feltétel vagy képlet hibás</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>egyik cél sem illetékes</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>hiányzik egy oszlop</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>több sor egyezik</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>túlságosan eltérő</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>egyező, csak nincs megerősítve</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>bizonytalan: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Nyitott sorok utód nélkül</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Megszűntként megerősített sorok</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Mi közös bennük</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>összesen</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Korábbi leképezésekből átvéve</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Korábbi leképezés</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Még az átvett állapotban</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Elbírált sorok</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Kész sorok: %1 / %2; nyitott: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Célprojektek olvasása a tárolóból</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalógus = svn://kiszolgáló:port/útvonal</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Soronként egy katalógus. Sor nélkül a katalógus neve egyben a kiszolgálójáé is.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>a legújabb</translation>
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
        <translation>&amp;Kiszolgáló:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>&amp;Revízió:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Hely &amp;ezen a gépen:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>&amp;Várakozás a kiszolgálóra:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Kiszolgáló, %1. sor: a(z) &quot;%2&quot; nem &quot;Katalógus = svn://kiszolgáló:port/útvonal&quot; alakú.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Bejelentkezés a tárolóba</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>A(z) %1 bejelentkezést kér.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>A név és a jelszó a program végéig érvényes, és nem kerül mentésre.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>A(z) %1. sor nem jeleníthető meg</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Nincs több nyitott sor</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>A táblázatok még nincsenek összehasonlítva</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Elölről: %Ln nyitott sor</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>A nyitott sorok bizonytalanságuk szerint jönnek</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>A nyitott sorok helyük szerint jönnek</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>A sor nem tartozik a kijelölt mintához</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>A(z) %1. sor kivéve</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Nincs kijelölt minta, vagy minden sora eldöntve</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln sor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>%Ln projektben megerősíti?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>A lépés visszavonható.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Megerősítés</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln sor megerősítve</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Nincs %1. jelölt</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Sor megerősítve: %1 → %2</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Megállapodott helyettesítések: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Válasszon mintát, vagy jelöljön ki nyitott sorokat</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Minta</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Sorsolás</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Minta, %1. sor, összesen %2: + helyes, − hibás</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Nincs folyamatban mintavétel</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>A minta minden sora már eldöntve</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 / %2 helyes</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Minta elutasítva, %1; megítélte: %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>minden sor megítélve</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>95 % bizonyossággal kevesebb mint %1 % hibás</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Minta: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>megítélte: %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>ott volt a hibás</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>A(z) %1. sor hibás: a mintavétel véget ért</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Tovább</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Hibás sor megtekintése</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>közülük %Ln bizonytalan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Minden minta kész</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projektben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln sor megszűntként megerősítve</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>A(z) %1. sor (%2) hibás. A halmaz fel van osztva; melyik résszel folytatódjon?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Ennyi sor kerül kisorsolásra %Ln közül, és egyenként kell megítélni. %1 helyes sor 95 % bizonyossággal azt jelenti, hogy 5 %-nál kevesebb a hibás, %2 helyes pedig 1 %-nál kevesebbet.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Szkriptkonzol</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>A szkriptek kimenete</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Egy szkript sora</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Egy JavaScript-sor. Az Enter végrehajtja, a Tab kiegészíti, a Fel és a Le lapoz.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Leállítja a futó szkriptet (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Ürítés</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Törli a kimenetet</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Szkript: %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konzol)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Kész, állapot: %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>%1. sor: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Túl nagy.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Nem UTF-8 szöveg.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>A(z) %1 nem olvasható. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Szkript megnyitása</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Szkriptek (*.js);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Szkript mentése</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>A(z) %1 nem írható. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>A szkript nincs elmentve.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(névtelen)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Új szkript</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Szkript</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Megnyitás …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Mentés</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Futtatás</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumentumok:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>A szkript szövege</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumentumok</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>–</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(folyamat: %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>A(z) %1 napló nem olvasható (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Az utolsó lezárt munkamenet mögött a(z) %1 napló nem olvasható. Nem ismert, mi állt ott; a napló megmarad.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>A(z) %1 napló vége nem olvasható. Az utolsó módosítás hiányozhat.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>A(z) %1 napló sérült. A sérülés mögött %Ln módosítás még illik, %2 már nem; továbbiak is hiányozhatnak. A napló megmarad.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>A(z) %1 napló sérült vagy nem illik a leképezésfájlhoz. Legalább %Ln későbbi módosítás hiányzik; a napló megmarad.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>&amp;Döntés után tovább a következő nyitott sorra</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Mint az asztal</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Világos</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Sötét</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>soha</translation>
    </message>
    <message>
        <source> min</source>
        <translation> perc</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Nyelv:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>S&amp;zínek:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>&amp;Betűméret:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Biztonsági &amp;másolat gyakorisága:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Nagy kontraszt</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Soronként egy mappa, amelyből olvasható, amit egy katalógus fájljai a katalógusokon kívül megneveznek.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Engedélyezett mappák:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Engedélyezett mappák: „%1” nem teljes elérési utú mappa.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>A leképezés senkivel sincs megosztva. Először válassza ki a közös másolatot.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>A(z) %1 már létezik, és egy másik leképezés. Válasszon másik másolatot, vagy hozza át a meglévőt egy új fájlba.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>A legutóbbi frissítés óta mások közzétettek valamit.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Az ütköző sorok nem kerülnek közzétételre: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Módosítások vannak mások mappáiban: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>A mappa már foglalt: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Éppen valaki más tesz közzé (%1). Próbálja újra egy kis idő múlva.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>A közös másolat nem érhető el: %1. A saját fájl változatlan; próbálja újra később.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Az egyik fájl nem olvasható leképezés: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Az írás nem sikerült: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Ez nem sikerült.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>A közös másolat olvasása</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Megosztva ezen keresztül: %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>A többiek módosításainak lekérése</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Nincs újdonság</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>A módosítások közzététele</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Leképezés szerkesztve</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Közzétéve, revízió: %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Először ez kerül átvételre. Utána lehet közzétenni.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Frissítés</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Közzététel mindenképp</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Mappák átvétele</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>Á&amp;tvétel</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Mappák bejegyzése</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Nincs több saját mappa</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Saját mappák: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(itt)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>megnyitva tartja</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>nem tartja megnyitva</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>legutóbb %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>mappák: %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Saját revízió: %1, legújabb revízió: %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Mások közzétettek valamit.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Másoktól nincs újdonság.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>A saját módosítások még nincsenek közzétéve.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Közös másolat: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Az utolsó közzététel megszakadt, de megérkezett.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Az utolsó közzététel megszakadt. Tegye közzé még egyszer.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>A közös fájlt a munkapéldányban módosították, de nem küldték be. Ez itt maradt meg: %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>A munkapéldányt munka közben hagyták el; rendbe lett téve.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>A munkapéldány kezelőadatai sérültek voltak, ezért újra le lettek töltve; a korábbi: %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Valami félbeszakadt rendbe lett hozva.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>A katalógus mappái, vesszővel elválasztva; a * tetszőleges karaktereket, a ? egyet jelent. Üresen mindet visszaadja:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>visszavonás</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Minden eldöntve</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Sorok, amelyekhez még döntés kell</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Írásvédett</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Szűrő: egy sor sem</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Sorok, amelyeket az összes sorra vonatkozó szűrő mutat</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln sor&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Nyitott: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Szűrő: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1, %Ln projektben</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Még nincs sor hozzárendelve</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Előrehaladás</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Megszakítja a futó munkát; ami kész, megmarad</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Hibák és figyelmeztetések: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Lépések</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Ki, mi vagy sorok keresése</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Vissza idáig</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Visszavonja ezt és minden későbbi érvényes lépést</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Ugrás a s&amp;orra</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Bezárás</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Visszavonás a ráépülőkkel (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Csak ennek visszavonása</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>Ú&amp;jra a korábbiakkal (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>Ú&amp;jra végrehajtás</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Még nincs lépés</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Más lépés nem függ tőle.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>A lépés önmagában újra végrehajtható.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Erre épülnek: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Erre épül: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Útban vannak, mert másképp döntöttek: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Most valami más áll ott, amiről e lista egyik lépése sem döntött, például egy másik programé. A lépés már nem mozgatható.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>és még %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projektben</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>érvényes</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>visszavonva</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>túlhaladott</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Időpont</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Mit</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Sorok</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>A módosítás (%1) csak akkor lép életbe, ha a sorokat újra hozzárendelik. Ekkor csak az marad meg, ami meg van erősítve.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln sor (%1) megszűntként volt megerősítve, és már nem az: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>Itt: %1 változók figyelmen kívül maradnak: %2. Ha egyiküket újra hozzá szeretné rendelni, válassza a &quot;Képlet...&quot; parancsot, vagy törölje a sort, és adja meg újra.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>A(z) %1 célprojekt egy feltétele megszűnt itt: %2.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>A(z) %1 célprojekt egy változóleképezése megszűnt itt: %2.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>%1 → %2. sor itt: %3: a célsort további %Ln sor is használja: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln sor (%1) újonnan hozzárendeltekkel osztozik a célsorán: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln ütközés elfogadva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln sor megerősítve</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln sor megszűntként megerősítve</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln sor hozzárendelve</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>%Ln sor hozzárendelése megszüntetve</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln sor értéktartomány-hozzárendelése módosítva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>%Ln sor ütközése feloldva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln sor módosítva</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>sor megerősítve: %1 → %2</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>sor hozzárendelve: %1 → %2</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (korábban %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>%1. sor megszűntként megerősítve (korábban %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>%1. sor megszűntként megerősítve</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>%1. sor hozzárendelése megszüntetve (korábban %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projekt hozzáadva</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projekt eltávolítva</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Célprojekt hozzáadva</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Célprojekt eltávolítva</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Célprojektek sorrendje módosítva</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Feltételek módosítva</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Változóleképezés módosítva</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Verziók módosítva</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Állapot módosítva</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 itt: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projektben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Vissza</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>Ki&amp;hagyás</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Tovább</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Kész</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, %2. sor: az értéktartomány-hozzárendelés %3. tétele nem {NAME=ÉRTÉK} -&gt; sorszám alakú: &quot;%4&quot;. Javítsa ki, vagy oldja fel újra.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, %2. sor: az értéktartomány-hozzárendelés a(z) %3. sort nevezi meg, de a sornak nincs célprojektje. Rendelje hozzá, vagy ürítse ki a szöveget.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, %2. sor: az értéktartomány-hozzárendelés a(z) %3. sort nevezi meg, amely nem létezik itt: %4. Javítsa ki, vagy oldja fel újra.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: a(z) %2 célprojekt táblázata nem olvasható, értéktartomány-hozzárendelései ellenőrizetlenek. Ellenőrizze a célprojektek könyvtárát (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Értéktartomány-hozzárendelések ellenőrzése</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln értéktartomány-hozzárendelés ellenőrizve</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>nincs kifogás</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln kifogás</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (megszakítva): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Katalógusverziók egyeztetése</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Új katalógus jelent meg, és a régi verzió minden sorát át kell vinni az új verzió egy sorára. A program javasol, Ön ellenőriz és megerősít.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Legutóbb megnyitva:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>Új leképe&amp;zés...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Új leképezésfájlt hoz létre két katalógusverzióból</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>M&amp;egnyitás...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Megnyit egy leképezésfájlt</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>&amp;Példakatalógus megnyitása</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Saját leképezésfájlt nyit meg a mellékelt példakatalógushoz</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Me&amp;ntés</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Minden módosítást kiír a leképezésfájlba</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Menté&amp;s másként...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Másik leképezésfájlba ír</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Bezárás</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Bezárja a leképezésfájlt</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>Ka&amp;talóguskönyvtárak...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Kiválasztja a régi és az új katalógusverzió könyvtárait</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Közös másolat...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Kiválasztja azt a másolatot, amelyen keresztül többen dolgoznak ezen a leképezésen</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Frissítés</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Átveszi, amit mások közzétettek</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>Kö&amp;zzététel</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Továbbadja a saját módosításokat a többieknek</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Mappák átvétele...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Közli a többiekkel, mely mappákat szerkeszti Ön</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>Ki min &amp;dolgozik</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Megmutatja, ki tartja megnyitva a leképezést, és kihez mely mappák tartoznak</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>Táblázatok &amp;importálása...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>CSV-fájlokat tartalmazó mappából katalógusprojekteket készít</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>So&amp;rok exportálása...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>CSV-fájlba írja a verzió minden sorát a hozzárendeléseivel</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>&amp;Jelentés...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>PDF-be vagy HTML-be írja, hol tart a verzió, és miért nyitottak a sorok</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Kilépés</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Befejezi a programot</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Visszavonás</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Visszavonja az utolsó lépést</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Ismét</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Újra végrehajtja a visszavont lépést</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Sorok megerősítése...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Egy lépésben megerősíti a kijelölt vagy minden megjelenített sor hozzárendelését</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>&amp;Cél nélküli sorok megerősítése megszűntként...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>A kijelölt vagy minden megjelenített sor közül a cél nélkülieket megszűntként erősíti meg</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Ho&amp;zzárendelések megszüntetése...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Egy lépésben megszünteti a kijelölt vagy minden megjelenített sor hozzárendelését</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Hozzá&amp;rendelések megszüntetése és megerősítés...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>A kijelölt vagy minden megjelenített sor megszűnt: egy lépésben megszünteti a hozzárendelést és megerősít</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Minden projekt hozzárendelése...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Hozzárendeléseket keres a katalógus minden sorához; a megerősített megmarad</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Értéktartomány-hozzárendelések &amp;ellenőrzése</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Minden értéktartomány-szöveget összehasonlít a célprojektek táblázataival</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>Sz&amp;kript...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Ablakot nyit, amelyben szkriptek írhatók és futtathatók</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Beállítások...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Nyelv, betű, billentyűk, biztonsági mentés</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Következő nyitott sor</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>A következő, döntést igénylő sorra ugrik, a következő projektben is</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>&amp;Előző nyitott sor</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Az előző, döntést igénylő sorra ugrik, az előző projektben is</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Ugrás sorra...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>A projekt egy sorát keresi szám vagy megnevezés szerint</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Másik táblázat</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Vált a régi és az új táblázat között</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>Ke&amp;resés...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Projekteket, sorokat, parancsokat és beállításokat talál meg a szavak részei alapján</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Különbségminták</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Megmutatja, miben térnek el a nyitott sorok a javaslataiktól</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Régi és új</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Egymás mellett mutatja a sor régi és új értékeit, valamint a jelöltjeit</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Minta megerősítése...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Egy lépésben megerősíti a kijelölt minta minden sorát</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Sor kivétele</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>A sor nem kerül megerősítésre a minta többi sorával</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;A minta következő sora</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>A kijelölt minta következő nyitott sorára ugrik</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>A minta &amp;előző sora</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>A kijelölt minta előző nyitott sorára ugrik</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Kö&amp;vetkező minta</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Kijelöli a lista következő mintáját</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>A &amp;legbizonytalanabb először</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>A nyitott sorok a tévedés veszélye szerint jönnek a helyük helyett</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Szomszé&amp;dság</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Megmutatja, hol nem illenek össze a szomszédos sorok hozzárendelései</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>S&amp;orok helyreigazítása</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Egy lépésben javítja a szomszédság kijelölt leletét</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Helyettesítések...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Értékek helyettesítéseiben állapodik meg a katalógusverzióra, vagy visszavonja őket</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Mi&amp;nta...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Sorokat sorsol a kijelölt mintából vagy a kijelölt sorokból, amelyeket egyenként kell megítélni</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Min&amp;ta: helyes</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>A minta megjelenített sora helyesen van hozzárendelve</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Minta: hi&amp;bás</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>A minta megjelenített sora hibásan van hozzárendelve; a mintavétel véget ér</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>&amp;1. jelölt</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>A sorhoz ezt a jelöltet rendeli, és megerősíti</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>&amp;2. jelölt</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>&amp;3. jelölt</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>&amp;4. jelölt</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>&amp;5. jelölt</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>A sor értéktartománya</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Megmutatja, a régi tartomány mely értékeihez vannak új sorok</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Ütkö&amp;zések</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Megmutatja azokat a sorokat, amelyekről két oldal eltérően döntött</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Következő nyitott ütközés</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>A következő olyan sorra ugrik, amelynek ütközése még nyitott</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Ütközés: saját döntés</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>Ebben az ütközésben a saját döntés érvényes</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Ütközés: másik döntés</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>Ebben az ütközésben a másik oldal döntése érvényes</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Ütközés: újra dönteni</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Egyik döntés sem érvényes; a sor ismét cél nélkül van</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Újraépíti a megjelenítést: fa, statisztika, táblázatok a lemezről</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Kézikönyv</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Megnyitja a kézikönyvet a szóban forgó helyen</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>Bille&amp;ntyűk...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Megmutatja és módosítja minden parancs billentyűit</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Tipp ehhez a helyhez</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Ott mutatja a tippet, ahová a billentyűk hatnak: táblázatban azt, miért van a sor az adott állapotban</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Bemutató</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Néhány lépésben megmutatja, mi hol van</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>A &amp;program névjegye</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Verzió és könyvtárak</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Lépések...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Felsorolja az összes lépést, a korábbi munkamenetekét is, és egyenként visszavonja</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Következő projekt nyitott sorokkal</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>A következő projektre lép, ahol dönteni kell</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Előző projekt nyitott sorokkal</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Az előző projektre lép, ahol dönteni kell</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Szűrő az összes sorra</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Az összes projekt sorait választja állapot, ok, eltérés és személy szerint; az F8 végigmegy rajtuk</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>N&amp;yomtatás...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Megmutatja a látható táblázat oldalait, és kinyomtatja őket</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Megmutatja a jelentés oldalait, és kinyomtatja őket</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Jelentés nyomtatása...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Döntések átvétele...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Egy korábbi leképezésből egy lépésben átveszi, amit ugyanahhoz a régi verzióhoz már megerősítettek</translation>
    </message>
</context>
</TS>
