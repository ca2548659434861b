<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Muutettavaa ei ole.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Vahvistetaanko %Ln rivi?</numerusform>
            <numerusform>Vahvistetaanko %Ln riviä?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Vahvistetaanko %Ln rivi poistuneeksi?</numerusform>
            <numerusform>Vahvistetaanko %Ln riviä poistuneeksi?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Perutaanko %Ln rivin kohdistus?</numerusform>
            <numerusform>Perutaanko %Ln rivin kohdistus?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Perutaanko %Ln rivin kohdistus ja vahvistetaanko se poistuneeksi?</numerusform>
            <numerusform>Perutaanko %Ln rivin kohdistus ja vahvistetaanko ne poistuneiksi?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln niistä on jo vahvistettu.</numerusform>
            <numerusform>%Ln niistä on jo vahvistettu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln niistä menettää arvoaluekohdistuksensa.</numerusform>
            <numerusform>%Ln niistä menettää arvoaluekohdistuksensa.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln rivi ilman kohdetta jää vahvistamatta.</numerusform>
            <numerusform>%Ln riviä ilman kohdetta jää vahvistamatta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln rivi jää ennalleen.</numerusform>
            <numerusform>%Ln riviä jää ennalleen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln ristiriitaista riviä ei muuteta.</numerusform>
            <numerusform>%Ln ristiriitaista riviä ei muuteta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln rivi ei ole missään kohdeprojektissa.</numerusform>
            <numerusform>%Ln riviä ei ole missään kohdeprojektissa.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln rivi vahvistettu.</numerusform>
            <numerusform>%Ln riviä vahvistettu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln rivi vahvistettu poistuneeksi.</numerusform>
            <numerusform>%Ln riviä vahvistettu poistuneiksi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>%Ln rivin kohdistus peruttu.</numerusform>
            <numerusform>%Ln rivin kohdistus peruttu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln rivin kohdistus peruttu ja rivi vahvistettu poistuneeksi.</numerusform>
            <numerusform>%Ln rivin kohdistus peruttu ja rivit vahvistettu poistuneiksi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ei seuraajaa</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Näppäin</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Varmuus</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Uusi rivi</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Syy</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 täällä jo päätetty tai varma</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 ilman riviä uudessa versiossa</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 silloin vahvistettu poistuneeksi</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 projekteissa, jotka puuttuvat täältä</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 siellä ristiriidassa</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Ei otettu: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Tiedostosta %1 ei ole mitään otettavaa.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Tiedostossa ei ole kohdistusta luetteloversiosta %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Myös tämä tiedosto johtaa luetteloversioon %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Valitse kohdistus, joka johtaa samasta vanhasta luetteloversiosta aiempaan uuteen.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Otettu tiedostosta %1: vahvistettu siellä luetteloversiolle %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Luetaan aiempaa kohdistusta</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Tiedostosta %1 ei voi ottaa mitään.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Luetteloversion %1 hakemisto</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Etsitään kohdeprojekteja</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Päätöksiä otetaan käyttöön</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Keskeytetty, mitään ei otettu</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Päätöksiä otettu tiedostosta %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Otettu tiedostosta %1: %2/%Ln vahvistettu rivi, %3 varmasti kohdistettu, %4 ehdotettu.</numerusform>
            <numerusform>Otettu tiedostosta %1: %2/%Ln vahvistettua riviä, %3 varmasti kohdistettu, %4 ehdotettu.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Vanhan luetteloversion hakemisto</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Uuden luetteloversion hakemisto</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Luettelohakemistot</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Missä tämän kohdistustiedoston kaksi luetteloversiota ovat? Hakemistot muistetaan yhdessä tiedoston kanssa.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Vanha versio (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Uusi versio (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Molemmat hakemistot tarvitaan.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 ei ole hakemisto.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>Vanhasta versiosta puuttuu %1. Tarvitaan hakemisto, jossa luettelo %2 on.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Uudesta versiosta puuttuu luettelo %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Riviä %1 projektissa %2 ei voi näyttää</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Yksikään rivi ei ole ristiriidassa</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Kaikki ristiriidat on ratkaistu; tallenna nyt</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Ristiriita %1/%2, vielä %3 avoinna</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln rivi projektissa %1 on ristiriidassa samalla tavalla. Päteekö päätös kaikkiin?</numerusform>
            <numerusform>%Ln riviä projektissa %1 on ristiriidassa samalla tavalla. Päteekö päätös kaikkiin?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Oma: %1
Toisen: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Kaikille</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Rivi kerrallaan</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Rivi ei ole ristiriidassa</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Omaa päätöstä ei tiedetä: rivi oli ristiriidassa jo avattaessa</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Yksikään rivi ei ole ristiriidassa.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Kaikki ristiriidat on ratkaistu.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>Vielä %Ln rivi on ristiriidassa samoin kuin tämä.</numerusform>
            <numerusform>Vielä %Ln riviä on ristiriidassa samoin kuin tämä.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Ristiriidat</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Ristiriidan osapuolet</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Oma</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Toisen</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Päätä uudelleen</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1/%Ln ristiriita vielä avoinna.</numerusform>
            <numerusform>%1/%Ln ristiriitaa vielä avoinna.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>avoin</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>oma</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>toisen</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>uusi</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Oma päätös</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Toisen päätös</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Voimassa</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>automaattisesti kohdistettu</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>tarkistettava</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>vahvistettu</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>ilman kohdetta, avoin</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>vahvistettu poistuneeksi</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>ei tiedossa</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, rivi %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Tila</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Kohdeprojekti</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Kohderivi</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Arvoalueet</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Vanha rivi</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Aiemmin</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Oma päätös</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Toisen päätös</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Tieto</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>sama</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>korvattu kuten %Ln muulla rivillä</numerusform>
            <numerusform>korvattu kuten %Ln muulla rivillä</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>samankaltainen</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>eri</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>vain uudella rivillä</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>vain vanhalla rivillä</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Muuttuja</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Vanha</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Uusi</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>Taulukossa ei ole riviä.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Ilman kohdetta. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Kohdistettu rivi ei ole mikään ehdokkaista.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Vanha ja uusi</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Ehdokkaat</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Vahvistettu.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Varmasti kohdistettu.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rivi</numerusform>
            <numerusform>%Ln riviä</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>verrattu: ensimmäiset %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Ei yhteisiä eroja.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Yhteistä: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Valitut rivit</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Luetteloversio</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Tiedosto sisältää useita luetteloversioita. Mikä niistä avataan?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Avaa</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Luetaan kohdistustiedostoa</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Tiedostoa ei voi avata.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Tiedosto on avattu vain lukemista varten.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Lukituksen voi poistaa, jos siellä ei varmasti enää kukaan työskentele, esimerkiksi tietokoneen kaatumisen jälkeen.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Vain luku</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Poista lukitus</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Lukitusta ei voitu poistaa.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Luetteloita ei tunneta; ne annetaan valitsimilla --source ja --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Tallennetaanko muutokset tiedostoon %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Hylätyt muutokset menetetään.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Tallenna</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Hylkää</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln rivi</numerusform>
            <numerusform>%1: %Ln riviä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Vielä %Ln rivi ristiriidassa, näissä projekteissa:</numerusform>
            <numerusform>Vielä %Ln riviä ristiriidassa, näissä projekteissa:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Näytä ristiriidat</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Tallenna &amp;silti</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Tallennettu: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Tiedostoa ei tallennettu.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>&amp;Yhdistä muutokset</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Säilytä kopio ja kirjoita &amp;uudelleen</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Kirjoita oma versio</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Muiden muutokset on otettu mukaan. Tarkista ne ja tallenna sitten vielä kerran.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Muiden muutoksia ei voitu ottaa mukaan.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Kohdistustiedostoa ei voi luoda.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ja %Ln muuta</numerusform>
            <numerusform>ja %Ln muuta</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Luetaan: %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Kohdistustiedostoa %1 ei voi lukea (%2).
Valitse toinen tiedosto tai palauta varmuuskopio %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Kohdistustiedostoa %1 ei voi lukea (%2).
Valitse toinen tiedosto.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 ei sisällä yhtään versiota.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 ei sisällä versiota %2. Olemassa ovat: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 on avattu vain lukemista varten.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 on parhaillaan käyttäjän %2 muokattavana ja siksi avattu vain lukemista varten.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Tiedoston %1 kansioon ei voi kirjoittaa (%2). Siksi tiedosto on avattu vain lukemista varten; toisella nimellä tallennettuna sitä voi muokata.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Tiedostoon %1 liittyy työtä, jota ei tallennettu. Sitä tarjotaan heti, kun tiedoston voi avata muokattavaksi (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>Tiedostolla %1 on toinenkin nimi (kova linkki). Tallennettaessa toisenniminen tiedosto jää ennalleen.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Tallennetaan: %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Varmuuskopioidaan: %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 on parhaillaan käyttäjän %2 muokattavana. Mitään ei kirjoitettu. Valitse toinen nimi.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Tiedoston %1 kansioon ei voi luoda mitään (%2). Mitään ei kirjoitettu. Valitse toinen kansio.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Mikään tämän projektin rivi ei ole suodattimessa.
Avaa ”%1” ja valitse ”%2”, niin kaikki rivit näkyvät taas.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Millään projektilla ei ole riviä suodattimessa.
Avaa ”%1” ja valitse ”%2”, niin kaikki projektit näkyvät taas.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Kohdistustiedostot (*.json);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Avaa kohdistustiedosto</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Tallenna kohdistustiedosto</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Tallenna taulukko</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Taulukot (*.csv);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Valitse yhteinen kopio</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Ota päätökset tiedostosta</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Suodatin on poistettu: projektilla ei ole siinä rivejä</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Loppu saavutettu, jatketaan alusta</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Alku saavutettu, jatketaan lopusta</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Suodattimessa ei ole enää rivejä</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>korvattu teksti</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>muunnettu luku</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Tila</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Miksi avoin</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Eron laji</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Ero sarakkeessa</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Viimeksi päättänyt</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>ei kukaan</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(ei mitään näistä)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>ei valitut</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Tauluja luetaan...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rivi</numerusform>
            <numerusform>%Ln riviä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projektissa</numerusform>
            <numerusform>%Ln projektissa</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Ei suodatinta: kaikki rivit</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Lukukelvottomia tauluja: %Ln</numerusform>
            <numerusform>Lukukelvottomia tauluja: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Suodatin kaikille riveille</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Arvo</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rivit</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>&amp;Poista suodatin</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Alkuperä</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>otettu aiemmasta kohdistuksesta</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 ei ole tavallinen tiedosto eikä siksi kelpaa lukitukseksi. Mitään ei kirjoitettu. Poista se, mitä siinä on.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>Toinen ohjelma tallentaa parhaillaan tiedostoa %1. Mitään ei kirjoitettu. Tallenna hetken kuluttua uudelleen.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Tiedoston %1 kansioon ei voi luoda mitään (%2). Mitään ei kirjoitettu. Vapauta tilaa tai tallenna toisella nimellä.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>Tiedostoa %1 ei voi lukea (%2). Mitään ei kirjoitettu. Tallenna toisella nimellä.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 ei ole luettava kohdistustiedosto (%2). Mitään ei kirjoitettu. Tallennettaessa nykyinen tiedosto säilytetään aikaleimatulla nimellä ja luodaan uusi, joka sisältää vain tämän version.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 ei ole luettava kohdistustiedosto (%2). Mitään ei kirjoitettu. Tallennettaessa nykyinen tiedosto säilytetään aikaleimatulla nimellä ja luodaan uusi. Muut versiot otetaan varmuuskopiosta %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 on lukukelvoton, eikä sitä voitu säilyttää nimellä %2 (%3). Mitään ei kirjoitettu. Tallenna toisella nimellä.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 on avaamisen jälkeen poistettu tai nimetty uudelleen. Tallennettaessa tiedosto luodaan uudelleen, ja se sisältää vain tämän version (%2). Mitään ei ole vielä kirjoitettu.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>Joku muu on avaamisen jälkeen muuttanut tiedostoa %1, mutta ei tätä versiota (%2). Tallennettaessa muut versiot jäävät sellaisiksi kuin ne nyt tiedostossa ovat. Mitään ei ole vielä kirjoitettu.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>Joku muu on avaamisen jälkeen muuttanut tiedostoa %1, myös tätä versiota (%2). Tallennettaessa hänen muutoksensa tähän versioon menetetään. Mitään ei ole vielä kirjoitettu: tallenna silti, tallenna toisella nimellä tai avaa tiedosto uudelleen.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Tiedostoon %1 ei voi kirjoittaa (%2). Mitään ei kirjoitettu. Tarkista kirjoitusoikeudet tai tallenna toisella nimellä.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>Tiedostoa %1 ei tallennettu: %2. Tiedosto on muuttumaton, muutokset ovat edelleen auki. Vapauta tilaa ja tallenna uudelleen tai tallenna toisella nimellä.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>tiedostoa ei voitu kirjoittaa kokonaan</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>kirjoitettua tiedostoa ei voi lukea (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>kirjoitettu tiedosto ei sisällä sitä, mitä piti tallentaa</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>kirjoitetusta tiedostosta puuttuu versio %1, tai se on toinen</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Varmuuskopiota %1 ei voitu luoda (%2). Mitään ei kirjoitettu. Vapauta tilaa tai tallenna toisella nimellä.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>Joku muu muutti tiedostoa %1 tallentamisen aikana. Mitään ei kirjoitettu. Tallenna vielä kerran.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>Tiedostoa %1 ei tallennettu: %2. Tiedosto on muuttumaton, muutokset ovat edelleen auki. Tallenna toisella nimellä.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Takaisin</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Käsikirja</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Sisältö</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Etsi sivulta</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Päätöshistoria...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Kuka päätti mitä, milloin ja miksi</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Päätöksen syy...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Viimeiseen päätökseen tai valittuihin riveihin, esimerkiksi miksi seuraajaa ei ole</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Rivi %1 projektissa %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln rivi projektissa %1</numerusform>
            <numerusform>%Ln riviä projektissa %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Syy merkitty: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Päätöshistoria</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Valittu rivi</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Valittu projekti</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Kaikki projektit</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Etsi tekijää, projektia, kohdetta tai syytä</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Lue uudelleen</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Tallenna CSV-muodossa...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Sulje</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Lukukelvottomia päiväkirjan rivejä: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Päätöksiä: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Tiedostoa ei voi kirjoittaa.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ei seuraajaa</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (tallentamatta)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kuka</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Tähän asti</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Uusi</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Mitä</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Syy</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Otettu tiedostosta %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>CSV-tiedostojen kansio</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Luettelon hakemisto</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Tuo taulukoita</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;CSV-tiedostojen kansio:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Luettelon hakemisto:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Jokaisesta CSV-tiedostosta tulee projekti taulukkoineen samaan paikkaan luettelossa. Kun taulukot tuodaan uudelleen, rivien numerot säilyvät.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Tuo</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>CSV-tiedostojen kansio puuttuu.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Luettelon hakemisto puuttuu; se luodaan, jos ylempi hakemisto on olemassa.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Toinen hakemisto on toisen sisällä.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Vahvista rivi tai kohdista valittu rivi</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Peru rivin kohdistus</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Peru kohdistus ja vahvista poistuneeksi</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Muokkaa arvoaluekohdistusta</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Kopioi ehto riviltä</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Vahvista koko projekti</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Etsi taulukosta</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Etsi seuraava</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Etsi edellinen</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Sarakesuodatin</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Kopioi rivit</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Suurempi taulukko</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Pienempi taulukko</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Taulukko normaalikokoisena</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Oletus</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>Ei &amp;näppäintä</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Näppäimet</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Komento tai näppäin</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Komennot</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Komento</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Missä</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Näppäin</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Taulukko</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Ikkuna</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Näppäin komennolle %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Kentät ja luettelot tarvitsevat itse näppäintä %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Näppäin %1 olisi sekä komennolla %2 että komennolla %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Itse valittu</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>Komennolla %1 ei sitten enää ole näppäintä %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Näppäin %1 on nyt komennolla %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Mitään ei löytynyt</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Vahvistettu: kohdistus on päätetty</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Ehdotus: vahvistettava tai korjattava</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Ilman kuvaketta: yksiselitteisesti sama, ohjelman kohdistama</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Kohdistusta ei löytynyt</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Poistunut: vahvistettu, ettei kohdistusta ole</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Ristiriita toisen tekemän muutoksen kanssa</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Projektia tai taulukkoa ei voi lukea</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Rivin arvoaluekohdistukset</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>Kohdetaulukossa: kohdistettu rivi</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Selite</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Sulje</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Ehto kopioitu leikepöydälle</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Kopioitua ehtoa ei vielä voi käyttää näin: arvo puuttuu, on alue tai sisältää lainausmerkin: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Täällä suodattimessa kaikki on tehty, ulkopuolella on vielä %Ln rivi avoinna.</numerusform>
            <numerusform>Täällä suodattimessa kaikki on tehty, ulkopuolella on vielä %Ln riviä avoinna.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Loppu saavutettu, jatketaan alusta</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Alku saavutettu, jatketaan lopusta</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Ristiriita %1/%2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Mikään rivi ei ole valituissa tiloissa</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Mikään rivi ei enää vaadi päätöstä</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Yhtäkään avointa riviä ei voi näyttää; taulukot puuttuvat</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Siirry riville</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Numero tai standardimerkintä:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Siirry</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Projektia ei ole valittu</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Tässä projektissa ei ole riviä, jossa on ”%1”</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Osuma %1/%2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Suorita</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Vaiheen voi kumota.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Kyse on merkityistä riveistä.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Kyse on kaikista projektin riveistä.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Suodatin: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Missään muussa projektissa ei ole tällaisia rivejä</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Kyse on vain projektin näytetyistä riveistä: %1/%2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Ristiriita</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Näytä vain rivit, jotka ovat ristiriidassa toisen tekemän muutoksen kanssa, ja niiden projektit</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Tarkistettava</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Näytä vain rivit, joilla on vahvistettava tai korjattava ehdotus, ja niiden projektit</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Ilman kohdetta</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Näytä vain rivit, joille ei löytynyt mitään, ja niiden projektit</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automaattinen</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Näytä vain yksiselitteisesti samat, ohjelman kohdistamat rivit ja niiden projektit</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Vahvistettu</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Näytä vain rivit, joiden kohdistus on vahvistettu, ja niiden projektit</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Poistunut</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Näytä vain poistuneiksi vahvistetut rivit ja niiden projektit</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>Käytä &amp;linkkitietokantaa</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Tiedosto tällä tietokoneella</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL-palvelin</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>tavallinen</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Salasana on salasanatiedostossa, työpöydän avainrenkaassa tai muuttujassa PGPASSWORD, tai se annetaan kirjauduttaessa. Sitä ei tallenneta.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>jos mahdollista</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>aina</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>aina, palvelin tarkistetaan</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>ei koskaan</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Laji:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Tiedosto:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>Palv&amp;elin:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Portti:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>Tietoka&amp;nta:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>Kä&amp;yttäjä:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Salaus:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Linkkitietokanta: tiedoston nimi puuttuu.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Linkkitietokanta: tietokannan nimi puuttuu tai ei kelpaa.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Tarkista linkkitietokannan numerot</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>Linkkitietokannassa ei ole ryhmää, johon kuulut.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Valitse ryhmä</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Linkkitietokannan ryhmä:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Projektin %2 riviä %1 ei ole tässä kohdistuksessa.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Tarkistetaan linkkitietokannan numeroita</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Numeroita ei voitu tarkistaa.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Linkkitietokannan muutoksia on ehkä kadonnut.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Linkkitietokannan lisenssi puuttuu.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Kirjautuminen linkkitietokantaan</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Salasana on voimassa ohjelman loppuun asti, eikä sitä tallenneta. Jos se jää tyhjäksi, se otetaan salasanatiedostosta.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Tällä nimellä lokissa lukee, kuka on poistanut jotain.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Linkkienhallinta</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Etsi numeroa, projektia tai kuvausta</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Kuvaus</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Näytä rivi</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Linkitä toiseen riviin...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Valitse sitten projekti ja rivi ja lähetä valinta komennolla ”Valinta linkkienhallintaan”.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Viimeksi poistetut...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Sulje</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Linkkejä: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Mitään palautettavissa olevaa ei ole poistettu.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Palautetaanko viimeksi poistetut? Rivejä: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 poisti ne %2 kohteesta %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Palauta</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Ensimmäinen linkki (%Ln); haku näyttää muita.</numerusform>
            <numerusform>Ensimmäiset %Ln linkkiä; haku näyttää muita.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Numeroiden tarkistus</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Tulos</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Numeroita tämän kohdistuksen projekteilla: %1, muilla projekteilla: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Vertaamatta, koska lukukelvottomia: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Sulje</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Rivi poistunut tai sitä ei ole</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>vahvistettu poistuneeksi</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>sitä ei ole projektissa</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Useat rivit vaativat sitä</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Osa poikkeaa</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Osa poikkeaa (ei verrattu)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Avoimet rivit, joilla on numero</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Numeroita: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Riviä %1 ei ole projektissa %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Projektia %1 ei voi näyttää.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Etsi</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projekti, rivi, komento tai asetus</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Löydetyt</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Sanojen osat riittävät; luku niiden perässä tarkoittaa riviä.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Mitään ei löytynyt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln osuma</numerusform>
            <numerusform>%Ln osumaa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Ensimmäiset %1/%Ln osuma</numerusform>
            <numerusform>Ensimmäiset %1/%Ln osumaa</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Rivi %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Komento</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Asetus</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Virhe: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Varoitus: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Ilmoitukset</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Tyhjennä ilmoitukset</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Kopioi kaikki ilmoitukset</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Käyttäjä:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Salasana:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Ei yhteyttä linkkitietokantaan: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>ERP-numeroita ei voi lukea. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Rivit kohdistettu uudelleen: ei muutoksia</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Täällä ei ole sellaista riviä. %1 siirtyy seuraavaan.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>kirjoitussuojattu</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Luettelo</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Vasemmalla on vanha luetteloversio. Kuvakkeet näyttävät, missä on vielä päätettävää. Valitse projekti, niin näet sen rivit.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Kohteet</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Tässä ovat uuden version projektit, jotka voivat ottaa rivejä vastaan, ehtoineen ja muuttujakohdistuksineen.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Rivit</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Vasemmalla vanha taulukko, oikealla uusi. %1 vahvistaa kohdistuksen tai kohdistaa oikealta valitun rivin, %2 peruu sen, %3 vahvistaa, että rivi on poistunut.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Mitä on vielä avoinna</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Laskuri kertoo, kuinka moni rivi vaatii päätöksen. %1 siirtyy seuraavaan, myös seuraavassa projektissa.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Mitään ei menetetä</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Jokaisen vaiheen voi kumota. Kaatumisen jälkeen ohjelma tarjoaa tallentamattoman työn palauttamista. Kierros on Ohje-valikossa.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Kohdistetaanko koko luettelon rivit?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Vahvistettu säilyy joka tapauksessa. Vaiheen voi kumota.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Vain rivit ilman kohdistusta</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Kaikki vahvistamaton uudelleen</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Kaikki projektit kohdistettu</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Kohdeprojektia %1 ei ole.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Kohdeprojekti: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Asetukset: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Tähän kohtaan ei ole vihjettä</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Tyhjennä luettelo</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Tiedosto</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Jaa</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Viimeksi avatut</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Muokkaa</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>&amp;Siirry</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>Ta&amp;rkista</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Näytä</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Vain rivit</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Ohje</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Linkkitietokanta</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Rivien tilat</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Työkalut</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Muokattavaksi avattua tiedostoa ei ole.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Omat muutokset tiedoston version päällä</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln ristiriita: oma päätös</numerusform>
            <numerusform>%Ln ristiriitaa: oma päätös</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln ristiriita: toisen osapuolen päätös</numerusform>
            <numerusform>%Ln ristiriitaa: toisen osapuolen päätös</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln ristiriita: päätettävä uudelleen</numerusform>
            <numerusform>%Ln ristiriitaa: päätettävä uudelleen</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Päiväkirjaan %1 ei voi kirjoittaa (%2). Kaatumisen jälkeen muutokset menetettäisiin: tallenna pian.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Palautettua versiota ei voi varmistaa (%1). Vapauta tilaa ja avaa uudelleen; päiväkirja on muuttumaton.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Palautus kaatumisen jälkeen</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Päiväkirjaa %1 ei voi luoda (%2). Kaatumisen jälkeen muutokset menetettäisiin: tallenna usein.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Kohdistustiedostoa ei ole avattu.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Tallennus on käynnissä.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Tallennusta ei tehty. %1 Tallenna toisella nimellä.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Tiedoston %1 lukitus on menetetty, eikä sitä voi uusia. Muut voisivat muokata tiedostoa samaan aikaan.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Automaattinen varmistus ei onnistunut (%1). Tallenna pian.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Muutosta ei otettu mukaan. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Ristiriidat merkitty</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Kumottu: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Tehty uudelleen: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>”%1” ei enää sovi siihen, mitä sen jälkeen muutettiin. Vaiheiden luettelo kertoo, mikä on esteenä.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Etsitään kohdeprojekteja</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Keskeytetty, mitään ei luotu</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Kohdistetaan rivejä</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projekti: samassa paikassa %1, muualla %2, jaettu %3, ilman kohdetta %4, lukukelvottomia %5</numerusform>
            <numerusform>%Ln projektia: samassa paikassa %1, muualla %2, jaettu %3, ilman kohdetta %4, lukukelvottomia %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1/%Ln projekti</numerusform>
            <numerusform>%1/%Ln projektia</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>joista kohdistettu %1, tarkistettava %2, ilman kohdetta %3</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Keskeytetty: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln rivi</numerusform>
            <numerusform>%1, %Ln riviä</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln muutos otettu mukaan.</numerusform>
            <numerusform>%Ln muutosta otettu mukaan.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln rivistä molemmat ovat päättäneet samoin.</numerusform>
            <numerusform>%Ln rivistä molemmat ovat päättäneet samoin.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln rivistä on päätetty eri tavoin, ja se on merkitty ristiriidaksi.</numerusform>
            <numerusform>%Ln rivistä on päätetty eri tavoin, ja ne on merkitty ristiriidaksi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln muu ristiriitaisuus: tiedoston versio pätee.</numerusform>
            <numerusform>%Ln muuta ristiriitaisuutta: tiedoston versio pätee.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Riviä %1 ei voi näyttää</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Löydöstä ei ole valittu</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Korjattu: %1 projektissa %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Taulukoita verrataan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln kohdistettu rivi katsottu</numerusform>
            <numerusform>%Ln kohdistettua riviä katsottu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln löydös</numerusform>
            <numerusform>%Ln löydöstä</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Naapurusto</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Rivit %1–%2 ovat siirtyneet: %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Rivit %1 ja %2 ovat vaihtaneet paikkaa</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Rivi %1 on väärällä paikalla: %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Rivillä %1 on toisen rivin kohderivi</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Rivi %1 on ohitettu</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>avoin</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Korjattu: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Löydös</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Korjattu</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekti</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Vanhan luetteloversion hakemisto</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Uuden luetteloversion hakemisto</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>Kohdista &amp;rivit saman tien</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Uusi kohdistus</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Vanha luetteloversio:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Siinä oleva luettelo:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Uusi luetteloversio:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Valitse kohdistustiedosto</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>Ko&amp;hdistustiedosto:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Luo</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Vanhan luetteloversion hakemisto puuttuu.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Uuden luetteloversion hakemisto puuttuu.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Jokainen versio tarvitsee hakemiston, jossa luettelo on.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Kohdistustiedosto tarvitsee nimen.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Hakemistoa %1 ei ole.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 on jo olemassa.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Tallennettaessa uusi versio lisätään; saman päivän versio korvataan kaikkine vahvistuksineen.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Käytä tätä tiedostoa</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>tallennusväline on täynnä</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>tiedostosta tulee suurempi kuin täällä on sallittu</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>kirjoitusoikeus puuttuu</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>tallennusväline on kirjoitussuojattu</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>kansiota tai tiedostoa ei enää ole</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>sen paikalla on jotain muuta kuin tavallinen tiedosto</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>ilman kohdetta</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Vanha rivi</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Uusi rivi</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Muut erot</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Projektin taulukkoa ei voi lukea.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Polku:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Standardi:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Merkintä:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Projektiversio:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Taulukkoversio:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Rivejä:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Tiedosto:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Etsi</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Suodata</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Avaa kansio</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Sulje</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln avoin rivi, jolla on ehdotus</numerusform>
            <numerusform>%Ln avointa riviä, joilla on ehdotus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>%Ln mallissa</numerusform>
            <numerusform>%Ln mallissa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln niistä on vielä vertailussa</numerusform>
            <numerusform>%Ln niistä on vielä vertailussa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Valittu: %Ln rivi</numerusform>
            <numerusform>Valittu: %Ln riviä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln niistä jätetty pois</numerusform>
            <numerusform>%Ln niistä jätetty pois</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Avointen rivien erot</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projektissa</numerusform>
            <numerusform>%Ln projektissa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln avoin rivi ilman seuraajaa</numerusform>
            <numerusform>%Ln avointa riviä ilman seuraajaa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Taulukoita verrataan: %Ln projekti luettu</numerusform>
            <numerusform>Taulukoita verrataan: %Ln projektia luettu</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rivi</numerusform>
            <numerusform>%Ln riviä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projekti</numerusform>
            <numerusform>%Ln projektia</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>Vielä %Ln rivillä on näitä ja muita eroja</numerusform>
            <numerusform>Vielä %Ln rivillä on näitä ja muita eroja</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Ero</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rivit</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projektit</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Varmuus</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Poikkeukset</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>lähes sama luku</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>toinen luku</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>toinen sanamuoto</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>arvo lisätty</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>arvo puuttuu</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>ei verrattavissa</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ei eroa</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>toinen kirjoitusasu</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>epävarma: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>koko kansio ilman kohdetta: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>koko projekti ilman kohdetta: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>kohdeprojektia ei ole enää: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 ei ole enää olemassa</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>ei samankaltaista riviä: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>projektin nimi</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>toinen</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>toinen arvo</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>yksi tai useampi näistä joka rivillä</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>ei käytettävissä: tiedostoa ei ole avattu</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>ei käytettävissä: linkkitietokantaan yhdistetään</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>ei käytettävissä: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>ei käytettävissä: linkkitietokantaa ei ole yhdistetty</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>ei käytettävissä: linkkienhallinta ei odota valintaa</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>ei käytettävissä: projektia ei ole valittu</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>ei käytettävissä: riviä ei ole valittu</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>ERP-numero projektille %1, rivi %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Pyydämme antamaan ERP-numeron.

Projekti: %1
Rivi: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Sähköpostiviestiä ei voitu aloittaa.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Tällä tietokoneella ei ole määritetty sähköpostiohjelmaa. Pyyntö kuuluu:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Näkyvissä ei ole taulukkoa, jonka voisi tulostaa</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Raportti</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Tulosta: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 on lähetetty tulostimelle</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 tulostettu tiedostoon %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>Kohdetta %1 ei voitu tulostaa.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Tulostin ei ota vastaan sivuja.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Tiedostoa %1 ei voi kirjoittaa.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Sivu</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Kysymys</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Huomautus</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Kyllä</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Ei</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Peruuta</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Rivi %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln rivi on vahvistettu, vaikka sen alueen arvoilla ei ole uutta riviä.</numerusform>
            <numerusform>%Ln riviä on vahvistettu, vaikka niiden alueiden arvoilla ei ole uutta riviä.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Peru</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Vahvista silti</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln rivi</numerusform>
            <numerusform>%1: %Ln riviä</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Rivillä ei ole arvoaluekohdistusta.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>puuttuu: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>useaan kertaan: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>ei vanhassa alueessa: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rivin arvoalue</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2/%Ln arvo kohdistettu</numerusform>
            <numerusform>%1: %2/%Ln arvoa kohdistettu</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Päätöksen syy</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Koskee:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Syy:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>poistettu valikoimasta</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>yhdistetty toiseen osaan</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>jaettu useaksi osaksi</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>siirretty toiseen luetteloon</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>ei vielä tarkistettu</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Palautus</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Tallennettu</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Palautettu</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Ajankohta</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projektit</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rivit</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Vahvistettu</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Tarkistettava</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Ilman kohdetta</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Tallennettu versio on uudempi kuin mikään, mitä voi palauttaa.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Palauta</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Myöhempine muutoksineen (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Avaa tallennettu versio</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln vaihe</numerusform>
            <numerusform>%Ln vaihetta</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Tiedostoon %1 liittyy työtä, jota ei tallennettu: %2, viimeksi ”%3”. Sen on tehnyt %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln rivi</numerusform>
            <numerusform>%1, %Ln riviä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projektissa</numerusform>
            <numerusform>%1, %Ln projektissa</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Tuodaan taulukoita</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>Kohteella %1 ei enää ole CSV-tiedostoa, ja se jää ennalleen</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Kansiossa ei ole CSV-tiedostoa; mitään ei tuotu</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Keskeytetty: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Kaikkea ei kirjoitettu: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Tiedostoa %1 ei voi kirjoittaa.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Vie rivejä</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Taulukot (*.csv);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Viedään rivejä</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Keskeytetty, mitään ei viety</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Kirjoita raportti</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF-tiedostot (*.pdf);;HTML-sivut (*.html);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Luodaan raporttia</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Keskeytetty, raporttia ei kirjoitettu</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Taitetaan sivuja</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Raportti kirjoitettu tiedostoon %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Keskeytetty, raporttia ei tehty</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Sivu %1/%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln taulukko</numerusform>
            <numerusform>%Ln taulukkoa</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>uusia %1, muutettuja %2, muuttumattomia %3, tuomatta %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln rivi viety tiedostoon %1</numerusform>
            <numerusform>%Ln riviä viety tiedostoon %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln rivi</numerusform>
            <numerusform>%1, %Ln riviä</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Sovitut korvaukset</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>koko luetteloversiossa</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Sovi</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Peru</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Todisteet</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Ota käyttöön</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Korvaus sanoo, että vanha arvo vastaa uutta. Se tekee ehdotuksia, mutta ei vahvista mitään.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>sovittu</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>sovittu projektissa %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Taulukoita luetaan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln rivi puolesta</numerusform>
            <numerusform>%Ln riviä puolesta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln rivi vastaan</numerusform>
            <numerusform>%Ln riviä vastaan</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Yhtään ei ole sovittu. Kun erojen luettelo on auki, sen korvaukset tarjotaan tässä.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Kohdistusraportti: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Luetteloversiosta %1 versioon %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Luotu %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Rivien tilanne</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Kansioittain, kaikki niiden alla mukaan lukien</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Projekteittain</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Miksi rivejä on avoinna</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Miten avoimet rivit eroavat ehdotuksistaan</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Otokset</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Kuka päätti mitä</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Avoimet rivit</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Mitä ei voitu lukea</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rivit</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Vahvistettu</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Vahvistettu poistuneiksi</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Varmasti kohdistettu</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Tarkistettava</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Ilman kohdetta</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>Ristiriidassa</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Kansio</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Merkintä</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Syy</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Erot</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projektit</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Todennäköisyys</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Poikkeukset</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Esimerkkejä</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kuka</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Mitä</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Arvioitu</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Oikein</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Enintään väärin (95 % varmasti)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>hylätty</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>taulukkoa ei voi lukea</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>ei verrattavissa</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ei eroa</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>ei mitään</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>ja %1 muuta</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>kaksi on päättänyt eri tavoin</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>joku muu päättää</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>taulukkoa ei voi lukea</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>ehto tai kaava epäonnistuu</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>mikään kohde ei ota riviä</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>sarake puuttuu</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>useat rivit ovat samoja</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>liian erilainen</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>sama, mutta vahvistamatta</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>epävarma: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Avoimet rivit ilman seuraajaa</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Poistuneiksi vahvistetut rivit</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Mikä niille on yhteistä</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>yhteensä</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Otettu aiemmista kohdistuksista</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Aiempi kohdistus</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Yhä kuten otettu</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Arvioidut rivit</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Valmiita rivejä: %1/%2; avoinna: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>Lue ko&amp;hdeprojektit versiovarastosta</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Luettelo = svn://palvelin:portti/polku</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Yksi luettelo riviä kohti. Ilman riviä luettelon nimi on samalla sen palvelimen nimi.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>uusin</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mt</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>P&amp;alvelin:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>&amp;Revisio:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>T&amp;ilaa tällä koneella:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Palvelimen &amp;odotus:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Palvelin, rivi %1: &quot;%2&quot; ei ole muotoa &quot;Luettelo = svn://palvelin:portti/polku&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Kirjautuminen versiovarastoon</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 vaatii kirjautumisen.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Nimi ja salasana ovat voimassa ohjelman loppuun asti, eikä niitä tallenneta.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Riviä %1 ei voi näyttää</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Yksikään rivi ei ole enää avoinna</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Taulukoita ei ole vielä verrattu</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Alusta: %Ln rivi avoinna</numerusform>
            <numerusform>Alusta: %Ln riviä avoinna</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Avoimet rivit tulevat epävarmuuden mukaan</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Avoimet rivit tulevat paikan mukaan</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Rivi ei kuulu valittuun malliin</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Rivi %1 jätetty pois</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Mallia ei ole valittu, tai kaikista sen riveistä on päätetty</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln rivi</numerusform>
            <numerusform>%Ln riviä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>vahvistetaanko %Ln projektissa?</numerusform>
            <numerusform>vahvistetaanko %Ln projektissa?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Vaiheen voi kumota.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Vahvista</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln rivi vahvistettu</numerusform>
            <numerusform>%Ln riviä vahvistettu</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Ehdokasta %1 ei ole</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Rivi %1 → %2 vahvistettu</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Sovittuja korvauksia: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Valitse malli tai merkitse avoimia rivejä</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Otos</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Arvo</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Otos, rivi %1/%2: + oikein, − väärin</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Otosta ei ole käynnissä</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Kaikista otoksen riveistä on jo päätetty</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1/%2 oikein</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Otos hylätty, %1; arvioinut %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>kaikki rivit arvioitu</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>95 %:n varmuudella alle %1 % väärin</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Otos: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>arvioinut %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>väärä oli siellä</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Rivi %1 on väärin: otos on päättynyt</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Jatka</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Katso väärää riviä</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln niistä on epävarma.</numerusform>
            <numerusform>%Ln niistä on epävarmoja.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Kaikki mallit on käsitelty</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projektissa</numerusform>
            <numerusform>%Ln projektissa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln rivi vahvistettu poistuneeksi</numerusform>
            <numerusform>%Ln riviä vahvistettu poistuneiksi</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Rivi %1 projektissa %2 on väärin. Joukko on jaettu; millä osalla jatketaan?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Näin monta riviä %Ln rivistä arvotaan ja arvioidaan yksitellen. %1 oikeaa kertoo 95 %:n varmuudella, että alle 5 % on väärin, %2 oikeaa, että alle 1 %.</numerusform>
            <numerusform>Näin monta riviä %Ln rivistä arvotaan ja arvioidaan yksitellen. %1 oikeaa kertoo 95 %:n varmuudella, että alle 5 % on väärin, %2 oikeaa, että alle 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Skriptikonsoli</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Skriptien tuloste</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Skriptin rivi</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Rivi JavaScriptiä. Enter suorittaa sen, sarkain täydentää, ylä- ja alanuoli selaavat.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Pysäytä</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Pysäyttää käynnissä olevan skriptin (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Tyhjennä</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Poistaa tulosteen</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Skripti %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konsoli)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Valmis</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Valmis, tila %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Rivi %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Se on liian suuri.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Se ei ole UTF-8-tekstiä.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>Tiedostoa %1 ei voi lukea. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Avaa skripti</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Skriptit (*.js);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Tallenna skripti</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>Tiedostoa %1 ei voi kirjoittaa. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Skriptiä ei ole tallennettu.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(nimetön)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Uusi skripti</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Skripti</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Avaa …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Tallenna</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Suorita</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Pysäytä</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumentit:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Skriptin teksti</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumentit</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>koneella</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(prosessi %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Päiväkirjaa %1 ei voi lukea (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Viimeisen päättyneen istunnon jälkeen päiväkirjaa %1 ei voi lukea. Mitä siinä oli, ei tiedetä; päiväkirja säilytetään.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Päiväkirjan %1 loppua ei voi lukea. Viimeinen muutos saattaa puuttua.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Päiväkirja %1 on vaurioitunut. Vauriokohdan jälkeen %Ln muutos sopii vielä, %2 ei enää sovi; muitakin voi puuttua. Päiväkirja säilytetään.</numerusform>
            <numerusform>Päiväkirja %1 on vaurioitunut. Vauriokohdan jälkeen %Ln muutosta sopii vielä, %2 ei enää sovi; muitakin voi puuttua. Päiväkirja säilytetään.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Päiväkirja %1 on vaurioitunut tai ei sovi kohdistustiedostoon. Vähintään %Ln myöhempi muutos puuttuu; päiväkirja säilytetään.</numerusform>
            <numerusform>Päiväkirja %1 on vaurioitunut tai ei sovi kohdistustiedostoon. Vähintään %Ln myöhempää muutosta puuttuu; päiväkirja säilytetään.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Siirry päätöksen jälkeen se&amp;uraavalle avoimelle riville</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Kuten työpöytä</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Vaalea</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Tumma</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>ei koskaan</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Kieli:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>&amp;Värit:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Kir&amp;jasinkoko:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Var&amp;muuskopion väli:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Suuri kontrasti</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Yksi kansio riviä kohti; siitä saa lukea sen, mihin luettelon tiedostot viittaavat luetteloiden ulkopuolella.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Sallitut kansiot:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Sallitut kansiot: &quot;%1&quot; ei ole kansio, jolla on täydellinen polku.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Kohdistusta ei jaeta kenenkään kanssa. Valitse ensin yhteinen kopio.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 on jo olemassa ja on toinen kohdistus. Valitse toinen kopio tai hae olemassa oleva uuteen tiedostoon.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Muut ovat julkaisseet jotain viime päivityksen jälkeen.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Ristiriitaisia rivejä ei julkaista: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Muiden kansioissa on muutoksia: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Kansio on jo varattu: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Joku muu julkaisee parhaillaan (%1). Yritä hetken kuluttua uudelleen.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Yhteistä kopiota ei tavoiteta: %1. Oma tiedosto on muuttumaton; yritä myöhemmin uudelleen.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Yksi tiedostoista ei ole luettava kohdistus: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Kirjoittaminen ei onnistunut: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Se ei onnistunut.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Luetaan yhteistä kopiota</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Jaettu kopion %1 kautta</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Haetaan muiden muutoksia</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Uutta ei ole</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Julkaistaan muutoksia</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Kohdistusta muokattu</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Julkaistu, revisio %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Ensin tämä otetaan mukaan. Sen jälkeen voi julkaista.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Päivitä</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Julkaise silti</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Ota kansioita hoitoon</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>&amp;Ota hoitoon</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Kansioita merkitään</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Omia kansioita ei enää ole</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Omat kansiot: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(täällä)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>pitää sitä auki</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>ei pidä sitä auki</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>viimeksi %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>kansiot %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Oma revisio %1, uusin revisio %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Muut ovat julkaisseet jotain.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Muilta ei ole mitään uutta.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Omia muutoksia ei ole vielä julkaistu.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Yhteinen kopio: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Viimeisin julkaiseminen keskeytyi, mutta meni perille.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Viimeisin julkaiseminen keskeytyi. Julkaise vielä kerran.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Yhteistä tiedostoa oli muutettu työkopiossa lähettämättä sitä. Muutos on tallessa: %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Työkopio oli jätetty kesken työn, ja se on siivottu.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Työkopion hallintatiedot olivat vaurioituneet ja ne on haettu uudelleen; aiemmat ovat: %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Keskeytynyt työ on saatettu kuntoon.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Luettelon kansiot pilkuin erotettuina; * tarkoittaa mitä tahansa merkkejä, ? yhtä. Tyhjä palauttaa kaikki:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>kumoa</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Kaikesta on päätetty</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Rivit, jotka vielä vaativat päätöksen</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Kirjoitussuojattu</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Suodatin: ei rivejä</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Rivit, jotka suodatin kaikille riveille näyttää</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln rivi&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln riviä&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Avoinna: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Suodatin: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1, %Ln projektissa</numerusform>
            <numerusform>%1, %Ln projektissa</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Yhtään riviä ei ole vielä kohdistettu</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Edistyminen</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Keskeyttää käynnissä olevan työn; valmis säilyy</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Virheet ja varoitukset: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Vaiheet</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Hae kuka, mitä tai rivejä</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Takaisin tähän asti</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Peruu tämän ja kaikki myöhemmät voimassa olevat vaiheet</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Siirry r&amp;iville</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Sulje</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Peru riippuvien kanssa (%Ln)</numerusform>
            <numerusform>&amp;Peru riippuvien kanssa (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Peru vain tämä</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>T&amp;ee uudelleen aiempien kanssa (%Ln)</numerusform>
            <numerusform>T&amp;ee uudelleen aiempien kanssa (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>T&amp;ee uudelleen</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Ei vielä vaiheita</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Mikään muu vaihe ei riipu siitä.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Vaiheen voi tehdä uudelleen yksinään.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Sen varaan rakentuvat: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Se rakentuu: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Esteenä, koska ne päättivät toisin: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Siinä on nyt jotain muuta, mitä mikään luettelon vaihe ei päättänyt, esimerkiksi toisen ohjelman jälki. Vaihetta ei voi enää siirtää.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ja %Ln muuta</numerusform>
            <numerusform>ja %Ln muuta</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projektissa</numerusform>
            <numerusform>%1, %Ln projektissa</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>voimassa</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>peruttu</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>ohitettu</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Ajankohta</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kuka</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Mitä</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Rivit</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Projektin %1 muutos vaikuttaa vasta, kun rivit kohdistetaan uudelleen. Silloin säilyy vain se, mikä on vahvistettu.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln rivi projektissa %1 oli vahvistettu poistuneeksi eikä enää ole: %2</numerusform>
            <numerusform>%Ln riviä projektissa %1 oli vahvistettu poistuneiksi eikä enää ole: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>Projektissa %1 muuttujat jäävät ohitetuiksi: %2. Kohdista jokin niistä uudelleen valitsemalla &quot;Kaava...&quot; tai poista rivi ja syötä se uudelleen.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Kohdeprojektin %1 ehto projektissa %2 on poistunut.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Kohdeprojektin %1 muuttujien kohdistus projektissa %2 on poistunut.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Rivi %1 → %2 projektissa %3: kohderivi on myös %Ln muulla rivillä: %4</numerusform>
            <numerusform>Rivi %1 → %2 projektissa %3: kohderivi on myös %Ln muulla rivillä: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln rivi projektissa %1 jakaa kohderivinsä äsken kohdistettujen kanssa: %2</numerusform>
            <numerusform>%Ln riviä projektissa %1 jakaa kohderivinsä äsken kohdistettujen kanssa: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln ristiriita hyväksytty</numerusform>
            <numerusform>%Ln ristiriitaa hyväksytty</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln rivi vahvistettu</numerusform>
            <numerusform>%Ln riviä vahvistettu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln rivi vahvistettu poistuneeksi</numerusform>
            <numerusform>%Ln riviä vahvistettu poistuneiksi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln rivi kohdistettu</numerusform>
            <numerusform>%Ln riviä kohdistettu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>%Ln rivin kohdistus peruttu</numerusform>
            <numerusform>%Ln rivin kohdistus peruttu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln rivin arvoaluekohdistus muutettu</numerusform>
            <numerusform>%Ln rivin arvoaluekohdistus muutettu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>%Ln rivin ristiriita ratkaistu</numerusform>
            <numerusform>%Ln rivin ristiriita ratkaistu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln rivi muutettu</numerusform>
            <numerusform>%Ln riviä muutettu</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>rivi %1 → %2 vahvistettu</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>rivi %1 → %2 kohdistettu</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (aiemmin %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>rivi %1 vahvistettu poistuneeksi (aiemmin %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>rivi %1 vahvistettu poistuneeksi</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>rivin %1 kohdistus peruttu (aiemmin %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projekti lisätty</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projekti poistettu</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Kohdeprojekti lisätty</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Kohdeprojekti poistettu</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Kohdeprojektien järjestys muutettu</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Ehdot muutettu</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Muuttujien kohdistus muutettu</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versiot muutettu</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Tila muutettu</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 projektissa %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projektissa</numerusform>
            <numerusform>%1, %Ln projektissa</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Takaisin</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Ohita</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Seuraava</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Valmis</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, rivi %2: Arvoaluekohdistuksen kohta %3 ei ole muotoa {NAME=ARVO} -&gt; rivinumero: &quot;%4&quot;. Korjaa se tai pura se uudelleen.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, rivi %2: Arvoaluekohdistus nimeää rivin %3, mutta rivillä ei ole kohdeprojektia. Kohdista se tai tyhjennä teksti.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, rivi %2: Arvoaluekohdistus nimeää rivin %3, jota ei ole projektissa %4. Korjaa se tai pura se uudelleen.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: Kohdeprojektin %2 taulukkoa ei voi lukea, sen arvoaluekohdistukset ovat tarkistamatta. Tarkista kohdeprojektien hakemisto (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Tarkistetaan arvoaluekohdistuksia</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln arvoaluekohdistus tarkistettu</numerusform>
            <numerusform>%Ln arvoaluekohdistusta tarkistettu</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>ei huomautettavaa</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln huomautus</numerusform>
            <numerusform>%Ln huomautusta</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (keskeytetty): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Sovita luetteloversiot yhteen</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Luettelosta on ilmestynyt uusi versio, ja jokainen vanhan version rivi on siirrettävä uuden version riville. Ohjelma ehdottaa, sinä tarkistat ja vahvistat.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Viimeksi avatut:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Uusi kohdistus...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Luo uuden kohdistustiedoston kahdesta luetteloversiosta</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>&amp;Avaa...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Avaa kohdistustiedoston</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Avaa &amp;esimerkkiluettelo</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Avaa oman kohdistustiedoston mukana tulevalle esimerkkiluettelolle</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Talle&amp;nna</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Kirjoittaa kaikki muutokset kohdistustiedostoon</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Tallenna ni&amp;mellä...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Kirjoittaa toiseen kohdistustiedostoon</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Sulje</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Sulkee kohdistustiedoston</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>Lue&amp;ttelohakemistot...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Valitsee vanhan ja uuden luetteloversion hakemistot</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Yhteinen kopio...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Valitsee kopion, jonka kautta useat työstävät tätä kohdistusta</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>Päivi&amp;tä</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Ottaa mukaan sen, mitä muut ovat julkaisseet</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Julkaise</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Välittää omat muutokset muille</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Ota kansioita hoitoon...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Kertoo muille, mitä kansioita itse muokkaa</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Kuka tekee mitä</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Näyttää, kuka pitää kohdistusta auki ja mitkä kansiot ovat kenenkin</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>Tuo taulu&amp;koita...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Tekee CSV-tiedostojen kansiosta luettelon projekteja</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Vie &amp;rivejä...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Kirjoittaa version kaikki rivit kohdistuksineen CSV-tiedostoon</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Ra&amp;portti...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Kirjoittaa PDF- tai HTML-muodossa, kuinka pitkällä versio on ja miksi rivejä on avoinna</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Lopeta</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Lopettaa ohjelman</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Kumoa</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Kumoaa viimeisen vaiheen</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>Tee &amp;uudelleen</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Tekee kumotun vaiheen uudelleen</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Vahvista rivit...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Vahvistaa merkittyjen tai kaikkien näytettyjen rivien kohdistuksen yhdessä vaiheessa</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Vahvista rivit &amp;ilman kohdetta poistuneiksi...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Vahvistaa merkityistä tai kaikista näytetyistä riveistä ilman kohdetta olevat poistuneiksi</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Pe&amp;ru kohdistukset...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Peruu merkittyjen tai kaikkien näytettyjen rivien kohdistuksen yhdessä vaiheessa</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Peru kohdistukset &amp;ja vahvista...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Merkityt tai kaikki näytetyt rivit ovat poistuneet: peruu ja vahvistaa yhdessä vaiheessa</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>Ko&amp;hdista kaikki projektit...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Etsii kohdistukset luettelon kaikille riveille; vahvistettu säilyy</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Tarkista arvoaluekoh&amp;distukset</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Vertaa kaikkia arvoaluetekstejä kohdeprojektien taulukoihin</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>&amp;Skripti...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Avaa ikkunan, jossa kirjoitetaan ja suoritetaan skriptejä</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Asetukset...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Kieli, kirjasin, näppäimet, varmistus</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>Seuraava &amp;avoin rivi</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Siirtyy seuraavalle päätöstä vaativalle riville, myös seuraavassa projektissa</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>&amp;Edellinen avoin rivi</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Siirtyy edelliselle päätöstä vaativalle riville, myös edellisessä projektissa</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Siirry riville...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Etsii projektin rivin numeron tai merkinnän perusteella</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Toinen taulukko</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Vaihtaa vanhan ja uuden taulukon välillä</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>Ets&amp;i...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Löytää projekteja, rivejä, komentoja ja asetuksia sanojen osien perusteella</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Erojen mallit</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Näyttää, miten avoimet rivit eroavat ehdotuksistaan</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Vanha ja uusi</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Näyttää rivin vanhat ja uudet arvot rinnakkain sekä sen ehdokkaat</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>Vahvista &amp;malli...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Vahvistaa kaikki valitun mallin rivit yhdessä vaiheessa</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Jätä rivi pois</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Riviä ei vahvisteta mallin muiden rivien kanssa</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>Mallin &amp;seuraava rivi</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Siirtyy valitun mallin seuraavalle avoimelle riville</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Mallin edellinen &amp;rivi</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Siirtyy valitun mallin edelliselle avoimelle riville</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Se&amp;uraava malli</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Valitsee luettelon seuraavan mallin</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Epävarmimma&amp;t ensin</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Avoimet rivit tulevat virheen vaaran mukaan eivätkä paikan mukaan</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>N&amp;aapurusto</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Näyttää, missä vierekkäisten rivien kohdistukset eivät sovi yhteen</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Korjaa rivien &amp;paikat</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Korjaa valitun naapuruston löydöksen yhdessä vaiheessa</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Korvaukset...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Sopii arvojen korvauksista luetteloversiolle tai peruu ne</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>&amp;Otos...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Arpoo valitun mallin tai merkittyjen rivien joukosta rivejä, jotka arvioidaan yksitellen</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Otos: oikei&amp;n</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Otoksen näytetty rivi on kohdistettu oikein</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Otos: väär&amp;in</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Otoksen näytetty rivi on kohdistettu väärin; otos päättyy</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Ehdokas &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Kohdistaa rivin tähän ehdokkaaseen ja vahvistaa sen</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Ehdokas &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Ehdokas &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Ehdokas &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Ehdokas &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rivin arvoalue</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Näyttää, millä vanhan alueen arvoilla on uudet rivit</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Ristirii&amp;dat</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Näyttää rivit, joista kaksi osapuolta on päättänyt eri tavoin</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Seuraava avoin ristiriita</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Siirtyy seuraavalle riville, jonka ristiriita on vielä avoinna</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Ristiriita: oma päätös</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>Tässä ristiriidassa pätee oma päätös</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Ristiriita: toisen päätös</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>Tässä ristiriidassa pätee toisen osapuolen päätös</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Ristiriita: päätä uudelleen</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Kumpikaan päätöksistä ei päde; rivi on taas ilman kohdetta</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Rakentaa näkymän uudelleen: puun, tilastot, taulukot levyltä</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>Kä&amp;sikirja</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Avaa käsikirjan siitä kohdasta, josta on kyse</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Näppäimet...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Näyttää ja muuttaa kaikkien komentojen näppäimet</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Vihje tähän kohtaan</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Näyttää vihjeen siinä, minne näppäimet vaikuttavat: taulukossa sen, miksi rivi on tilassaan</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Kierros</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Näyttää muutamassa vaiheessa, missä mikin on</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>&amp;Tietoja tästä ohjelmasta</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Versio ja hakemistot</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Vaiheet...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Luettelee kaikki vaiheet, myös aiempien istuntojen, ja peruu yksittäisiä</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Seuraava projekti, jossa avoimia rivejä</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Siirtyy seuraavaan projektiin, jossa on päätettävää</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Edellinen projekti, jossa avoimia rivejä</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Siirtyy edelliseen projektiin, jossa on päätettävää</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Suodatin kaikille riveille</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Valitsee kaikkien projektien rivejä tilan, syyn, eron ja henkilön mukaan; F8 käy ne läpi</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Tul&amp;osta...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Näyttää näkyvissä olevan taulukon sivut ja tulostaa ne</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Näyttää raportin sivut ja tulostaa ne</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Tulosta raportti...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Ota päätökset käyttöön...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Ottaa aiemmasta kohdistuksesta yhdessä vaiheessa sen, mikä samalle vanhalle versiolle on jo vahvistettu</translation>
    </message>
</context>
</TS>
