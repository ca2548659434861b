<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(kunde inte hittas)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Ändring gjord av en annan användare:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Raden markerades som utgången.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Raden tilldelades på nytt. Den nyligen tilldelade raden finns inte (lokalt).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Den här raden markerades som utgången.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Den här raden tilldelades raden&lt;br /&gt;%1 i projektet %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Ny tilldelning: &lt;br /&gt;%3 i projektet %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Posten kunde inte uppdateras!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Tilldela den markerade raden</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>För närvarande tilldelad rad</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Bekräfta alla tilldelningar</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Posten kunde inte skapas!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Tilldela upplösta värdeområden för den här raden</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Tilldela upplösta värdeområden</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Från urvalet (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Avbryt markering</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Markering till länkhanteraren</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Skicka markeringen till länkhanteraren</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Automatiskt tilldelade rader</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Visa filtrerat träd</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Begär ett ERP-nummer via e-post</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Redigera...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Skapa ett villkor för den markerade raden och kopiera det till urklipp</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Lägg till villkor</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Ta bort villkor</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Villkor</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Villkor och variabeltilldelningar är föreslagna. De gäller så snart en rad i målet är bekräftad.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Autentisera/byt användare</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Skriv över målprojekt som redan är tilldelade</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Beskrivning</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Bekräftade tilldelningar</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Upplösningen av värdeområdena kan ta mycket lång tid beroende på valda variabler och tabellens storlek.
Vill du verkligen fortsätta?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Delen kunde inte tas bort eftersom flera sammanställningar hänvisar till den!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Målprojektet %1 finns inte längre</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Målprojektet med sökvägen %1 togs bort.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Målprojektet med sökvägen %1 lades till.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Visa filnamn i stället för beskrivningar</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Redigera post</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Lägg till post</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Ta bort post</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Lägg till en post i länkdatabasen</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritmen innehåller fel:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Anropet av %1 misslyckades!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Posten kunde inte tas bort!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Villkoren för projektet %1 ändrades.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Projektversionen för målprojektet med sökvägen %1 ändrades.
  Gammalt projektdatum: %2, nytt projektdatum: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Källprojektets tabell kunde inte öppnas.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Tabellen för minst ett källprojekt kunde inte öppnas.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Tabellversionen för målprojektet med sökvägen %1 ändrades.
  Gammalt tabelldatum: %2, nytt tabelldatum: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variabeln %1 finns inte i måltabellen</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Variabelmappningen för projektet %1 ändrades.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Raden %1 ändrades.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Raderna tilldelades inte på nytt och förblir som de är. Dessa målprojekt kan inte läsas: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Variabeln %1 finns inte i källtabellen</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Den här raden har utgått. Modelleraren har bekräftat det</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Den här raden kunde inte tilldelas</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Den här raden tilldelades automatiskt. Tilldelningen måste bekräftas eller rättas</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Modelleraren har bekräftat den här tilldelningen</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Tilldela det här projektet till den markerade raden</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Dokumentlista</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Ändringar gjorda av uppdateringen av ERP-mappningen: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Begär ERP-nummer</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Det finns en värdeområdestilldelning för den här raden.
Tilldelningen måste ändras med 'Redigera tilldelning av värdeområden'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Det finns minst en konflikt.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Det finns minst en bekräftad tilldelning.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Det finns minst en rad utan tilldelning.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Det finns minst en obekräftad ändring.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Alla underelement kunde inte tas bort eftersom andra sammanställningar också hänvisar till några av dem!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>En mappning för projektet %1 togs bort.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>En mappning för projektet %1 lades till.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Fel när villkoret kopierades:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Fel när variabeltilldelningen kopierades.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Redigera formel</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formel...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Det finns en konflikt för den här raden. Tilldelningen måste bekräftas eller rättas</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Totalt antal rader</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Välj grupp</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Inget projekt passar valet under trädet.
Stäng av ”%1” för att se alla projekt igen.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Inga fel hittades</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Ingen rad saknar tilldelning.
Utan bocken vid ”%1” syns alla rader.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klassificera</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Visa teckenförklaring</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Länkhanterare</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Öppna länkhanteraren</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Logga in</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Ny...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Skapa en ny post</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Infoga en ny post (tar över värdena från den markerade posten)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Rader som inte hittades</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Standardens benämning</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Standardens nummer</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Visa bara rader som är tilldelade flera gånger</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Visa bara rader i originaltabellen som är tilldelade den här raden</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Sökväg:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Välj projekt</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Sök eller välj projekt</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Öppna projekt</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Projektets sökväg:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Du håller på att ta bort en sammanställning som innehåller underelement. Ska även alla underelement tas bort?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Kontrollera syntax</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Välj tabellrad</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignorera variabel</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Variabelmappning</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Lägg till variabeltilldelning</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Visa dolda kolumner</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Dina ändringar som inte kunde tas över:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Din planerade ändring:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Slå på och av prioriterade serier</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Prioriterade serier på/av</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Välj värdeområdesvariabler</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Redigera tilldelningar av värdeområden</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Värdekombinationer: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET för det markerade dokumentet:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Visa bara projekt med rader utan tilldelning</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Visa bara projekt med ofullständiga mappningar</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Visa bara projekt med tilldelade rader</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Visa bara rader utan tilldelning (källprojekt)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Visa bara rader utan tilldelning (målprojekt)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Raden med LineID %1 tilldelas...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Tilldela rader på nytt</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Rader tilldelas på nytt</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Rader: %1 av %2 · öppna som skulle tilldelas: %3 · bekräftade som inte längre skulle passa: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Radnummer</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Målprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Ta bort målprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Lägg till målprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Flytta upp målprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Flytta ned målprojekt</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Målvariabel</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Tilldelningar att kontrollera</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Bekräfta tilldelning</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Häv tilldelningen av den här raden</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Häv tilldelningen av den här raden och bekräfta</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Ta bort mappning</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Häv tilldelningen till det här projektet</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Häv tilldelningen till det här projektet och bekräfta (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>innehåller fel!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Översikt</translation>
    </message>
</context>
</TS>
