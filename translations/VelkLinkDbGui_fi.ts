<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(ei löytynyt)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Toisen käyttäjän tekemä muutos:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Rivi merkittiin poistuneeksi.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Rivi kohdistettiin uudelleen. Uudelleen kohdistettua riviä ei ole (paikallisesti).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Tämä rivi merkittiin poistuneeksi.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Tämä rivi kohdistettiin riviin&lt;br /&gt;%1 projektissa %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Uusi kohdistus: &lt;br /&gt;%3 projektissa %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Tietueen päivitys epäonnistui!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Kohdista valittu rivi</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Nykyinen kohdistettu rivi</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Vahvista kaikki kohdistukset</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Tietueen luonti epäonnistui!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Kohdista tämän rivin puretut arvoalueet</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Kohdista puretut arvoalueet</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Valinnasta (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Peruuta valinta</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Valinta linkkienhallintaan</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Lähetä valinta linkkienhallintaan</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Valitse</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Automaattisesti kohdistetut rivit</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Näytä suodatettu puu</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Pyydä ERP-numero sähköpostitse</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Muokkaa...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Luo ehto valitulle riville ja kopioi se leikepöydälle</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Lisää ehto</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Poista ehto</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Ehdot</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Ehdot ja muuttujamääritykset ovat ehdotuksia. Ne ovat voimassa heti, kun yksi kohteen rivi on vahvistettu.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Tunnista/vaihda käyttäjä</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Korvaa jo liitetyt kohdeprojektit</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Kuvaus</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Vahvistetut kohdistukset</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Arvoalueiden purkaminen voi kestää hyvin kauan valittujen muuttujien ja taulukon koon mukaan.
Jatketaanko varmasti?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Osaa ei voitu poistaa, koska useat kokoonpanot viittaavat siihen!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Kohdeprojektia %1 ei enää ole</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Kohdeprojekti, jonka polku on %1, poistettiin.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Kohdeprojekti, jonka polku on %1, lisättiin.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Näytä tiedostonimet kuvausten sijaan</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Muokkaa tietuetta</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Lisää tietue</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Poista tietue</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Lisää tietue linkkitietokantaan</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritmissa on virheitä:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Kutsu %1 epäonnistui!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Tietuetta ei voitu poistaa!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Projektin %1 ehtoja muutettiin.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Kohdeprojektin, jonka polku on %1, projektiversio muuttui.
  Vanha projektin päiväys: %2, uusi projektin päiväys: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Lähdeprojektin taulukkoa ei voitu avata.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Vähintään yhden lähdeprojektin taulukkoa ei voitu avata.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Kohdeprojektin, jonka polku on %1, taulukkoversio muuttui.
  Vanha taulukon päiväys: %2, uusi taulukon päiväys: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Muuttujaa %1 ei ole kohdetaulukossa</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Projektin %1 muuttujien kohdistusta muutettiin.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Riviä %1 muutettiin.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Rivejä ei kohdistettu uudelleen, ja ne pysyvät ennallaan. Näitä kohdeprojekteja ei voi lukea: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Muuttujaa %1 ei ole lähdetaulukossa</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Tämä rivi on poistunut. Mallintaja on vahvistanut sen</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Tätä riviä ei voitu kohdistaa</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Tämä rivi kohdistettiin automaattisesti. Kohdistus on vahvistettava tai korjattava</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Mallintaja on vahvistanut tämän kohdistuksen</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Kohdista tämä projekti valittuun riviin</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Asiakirjaluettelo</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>ERP-kohdistuksen päivityksen tekemät muutokset: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Pyydä ERP-numero</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Liitä</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Tällä rivillä on arvoalueen kohdistus.
Kohdistusta on muutettava toiminnolla 'Muokkaa arvoalueiden kohdistusta'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Vähintään yksi ristiriita on olemassa.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Vähintään yksi vahvistettu kohdistus on olemassa.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Vähintään yksi kohdistamaton rivi on olemassa.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Vähintään yksi vahvistamaton muutos on olemassa.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Kaikkia alielementtejä ei voitu poistaa, koska myös muut kokoonpanot viittaavat joihinkin niistä!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Projektin %1 kohdistus poistettiin.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Projektin %1 kohdistus lisättiin.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Virhe ehdon kopioinnissa:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Virhe muuttujamäärityksen kopioinnissa.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Muokkaa kaavaa</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Kaava...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Rivillä on ristiriita. Kohdistus on vahvistettava tai korjattava</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Rivejä yhteensä</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Valitse ryhmä</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Luettelo</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Mikään projekti ei vastaa puun alla olevaa valintaa.
Poista käytöstä ”%1”, niin kaikki projektit näkyvät taas.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Virheitä ei löytynyt</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Mikään rivi ei ole ilman kohdistusta.
Ilman valintaa ”%1” kaikki rivit näkyvät.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Luokittele</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Ristiriidat</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopioi</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Näytä selite</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Linkkienhallinta</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Avaa linkkienhallinta</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Kirjautuminen</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Uusi...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Luo uusi tietue</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Lisää uusi tietue (ottaa valitun tietueen arvot)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Rivit, joita ei löytynyt</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Standardin nimitys</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Standardin numero</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Näytä vain rivit, jotka on kohdistettu useasti</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Näytä vain alkuperäisen taulukon rivit, jotka on kohdistettu tähän riviin</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Polku:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Valitse projekti</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Etsi tai valitse projekti</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Avaa projekti</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Projektin polku:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Olet poistamassa kokoonpanoa, joka sisältää alielementtejä. Poistetaanko myös kaikki alielementit?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Etsi</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Tarkista syntaksi</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Valitse taulukon rivi</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Muuttuja</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ohita muuttuja</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Muuttujien kohdistus</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Lisää muuttujamääritys</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Näytä piilotetut sarakkeet</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Tekemäsi muutokset, joita ei voitu ottaa käyttöön:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Suunnittelemasi muutos:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Ota ensisijaiset sarjat käyttöön ja pois käytöstä</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Ensisijaiset sarjat päälle/pois</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Arvo</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Valitse arvoaluemuuttujat</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Muokkaa arvoalueiden kohdistuksia</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Arvoyhdistelmiä: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>Valitun asiakirjan XVARSET:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Näytä vain projektit, joissa on kohdistamattomia rivejä</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Näytä vain projektit, joiden kohdistukset ovat puutteelliset</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Näytä vain projektit, joissa on kohdistettuja rivejä</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Näytä vain kohdistamattomat rivit (lähdeprojekti)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Näytä vain kohdistamattomat rivit (kohdeprojekti)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Kohdistetaan riviä, jonka LineID on %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Kohdista rivit uudelleen</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Rivejä kohdistetaan uudelleen</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Rivejä: %1 / %2 · avoimia, jotka kohdistettaisiin: %3 · vahvistettuja, jotka eivät enää sopisi: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Rivinumero</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Kohdeprojekti</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Poista kohdeprojekti</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Lisää kohdeprojekti</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Siirrä kohdeprojekti ylös</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Siirrä kohdeprojekti alas</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Kohdemuuttuja</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Tarkistettavat kohdistukset</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Vahvista kohdistus</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Poista tämän rivin kohdistus</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Poista tämän rivin kohdistus ja vahvista</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Poista muuttujan kohdistus</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Poista kohdistus tähän projektiin</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Poista kohdistus tähän projektiin ja vahvista (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>sisältää virheitä!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Yleiskatsaus</translation>
    </message>
</context>
</TS>
