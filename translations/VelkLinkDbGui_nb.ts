<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(ble ikke funnet)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Endring gjort av en annen bruker:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Linjen ble merket som utgått.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Linjen ble tilordnet på nytt. Den nylig tilordnede linjen finnes ikke (lokalt).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Denne linjen ble merket som utgått.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Denne linjen ble tilordnet linjen&lt;br /&gt;%1 i prosjektet %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Ny tilordning: &lt;br /&gt;%3 i prosjektet %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Oppdatering av posten mislyktes!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Tilordne den valgte linjen</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Linjen som er tilordnet nå</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Bekreft alle tilordninger</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Oppretting av posten mislyktes!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Tilordne oppløste verdiområder for denne linjen</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Tilordne oppløste verdiområder</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Fra utvalget (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Avbryt utvalg</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Utvalg til lenkebehandling</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Send utvalget til lenkebehandlingen</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Automatisk tilordnede linjer</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Vis filtrert tre</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Be om et ERP-nummer på e-post</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Rediger...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Lag en betingelse for den valgte linjen og kopier den til utklippstavlen</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Legg til betingelse</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Slett betingelse</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Betingelser</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Betingelser og variabeltilordninger er foreslått. De gjelder så snart en linje i målet er bekreftet.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Autentiser/bytt bruker</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Overskriv målprosjekter som allerede er tilordnet</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Beskrivelse</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Bekreftede tilordninger</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Oppløsningen av verdiområdene kan ta svært lang tid, avhengig av de valgte variablene og tabellens størrelse.
Vil du virkelig fortsette?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Delen kunne ikke slettes fordi flere sammenstillinger viser til den!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Målprosjektet %1 finnes ikke lenger</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Målprosjektet med stien %1 ble fjernet.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Målprosjektet med stien %1 ble lagt til.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Vis filnavn i stedet for beskrivelser</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Rediger post</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Legg til post</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Slett post</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Legg til en post i lenkedatabasen</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritmen inneholder feil:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Kallet på %1 mislyktes!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Posten kunne ikke slettes!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Betingelsene for prosjektet %1 ble endret.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Prosjektversjonen av målprosjektet med stien %1 ble endret.
  Gammel prosjektdato: %2, ny prosjektdato: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Kildeprosjektets tabell kunne ikke åpnes.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Tabellen for minst ett kildeprosjekt kunne ikke åpnes.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Tabellversjonen av målprosjektet med stien %1 ble endret.
  Gammel tabelldato: %2, ny tabelldato: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variabelen %1 finnes ikke i måltabellen</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Variabeltilordningen for prosjektet %1 ble endret.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Linjen %1 ble endret.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Linjene ble ikke tilordnet på nytt og forblir som de er. Disse målprosjektene kan ikke leses: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Variabelen %1 finnes ikke i kildetabellen</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Denne linjen er utgått. Modelløren har bekreftet det</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Denne linjen kunne ikke tilordnes</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Denne linjen ble tilordnet automatisk. Tilordningen må bekreftes eller rettes</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Modelløren har bekreftet denne tilordningen</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Tilordne dette prosjektet til den valgte linjen</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Dokumentliste</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Endringer gjort av oppdateringen av ERP-mappingen: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Be om ERP-nummer</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Lim inn</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Det finnes en verdiområdetilordning for denne linjen.
Tilordningen må endres med 'Rediger tilordning av verdiområder'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Det finnes minst én konflikt.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Det finnes minst én bekreftet tilordning.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Det finnes minst én linje uten tilordning.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Det finnes minst én ubekreftet endring.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Ikke alle underelementer kunne slettes fordi andre sammenstillinger også viser til noen av dem!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>En mapping for prosjektet %1 ble fjernet.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>En mapping for prosjektet %1 ble lagt til.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Feil ved kopiering av betingelsen:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Feil ved kopiering av variabeltilordningen.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Rediger formel</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formel...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Det er en konflikt for denne linjen. Tilordningen må bekreftes eller rettes</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Antall linjer totalt</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Velg gruppe</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Ingen prosjekter passer til valget under treet.
Slå av «%1» for å se alle prosjektene igjen.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Ingen feil funnet</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Ingen linje er uten tilordning.
Uten hake ved «%1» vises alle linjene.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klassifiser</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopier</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Vis tegnforklaring</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Lenkebehandling</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Åpne lenkebehandlingen</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Logg inn</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Ny...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Opprett en ny post</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Sett inn en ny post (overtar verdiene fra den valgte posten)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Linjer som ikke ble funnet</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Standardbetegnelse</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Standardnummer</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Vis bare linjer som er tilordnet flere ganger</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Vis bare linjer i den opprinnelige tabellen som er tilordnet denne linjen</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Sti:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Velg prosjekt</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Søk etter eller velg prosjekt</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Åpne prosjekt</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Prosjektsti:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Du er i ferd med å slette en sammenstilling som inneholder underelementer. Skal alle underelementer også slettes?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Kontroller syntaks</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Velg tabellinje</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignorer variabel</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Variabeltilordning</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Legg til variabeltilordning</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Vis skjulte kolonner</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Dine endringer som ikke kunne overtas:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Din planlagte endring:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Slå foretrukne serier på og av</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Foretrukne serier på/av</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Velg verdiområdevariabler</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Rediger tilordninger av verdiområder</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Verdikombinasjoner: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET for det valgte dokumentet:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Vis bare prosjekter med linjer uten tilordning</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Vis bare prosjekter med ufullstendige tilordninger</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Vis bare prosjekter med tilordnede linjer</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Vis bare linjer uten tilordning (kildeprosjekt)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Vis bare linjer uten tilordning (målprosjekt)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Linjen med LineID %1 tilordnes...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Tilordne linjer på nytt</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Linjer tilordnes på nytt</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Linjer: %1 av %2 · åpne som ville bli tildelt: %3 · bekreftede som ikke lenger ville passe: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Linjenummer</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Målprosjekt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Fjern målprosjekt</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Legg til målprosjekt</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Flytt målprosjekt opp</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Flytt målprosjekt ned</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Målvariabel</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Tilordninger til kontroll</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Bekreft tilordning</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Opphev tilordningen av denne linjen</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Opphev tilordningen av denne linjen og bekreft</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Slett tilordning</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Opphev tilordningen til dette prosjektet</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Opphev tilordningen til dette prosjektet og bekreft (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>inneholder feil!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Oversikt</translation>
    </message>
</context>
</TS>
