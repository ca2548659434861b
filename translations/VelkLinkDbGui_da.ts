<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(kunne ikke findes)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Ændring foretaget af en anden bruger:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Linjen blev markeret som udgået.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Linjen blev tildelt på ny. Den nyligt tildelte linje findes ikke (lokalt).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Denne linje blev markeret som udgået.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Denne linje blev tildelt linjen&lt;br /&gt;%1 i projektet %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Ny tildeling: &lt;br /&gt;%3 i projektet %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Opdatering af posten mislykkedes!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Tildel den markerede linje</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Aktuelt tildelt linje</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Bekræft alle tildelinger</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Oprettelse af posten mislykkedes!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Tildel opløste værdiområder for denne linje</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Tildel opløste værdiområder</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Fra valget (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Annuller markering</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Markering til linkmanager</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Send markeringen til linkmanageren</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Automatisk tildelte linjer</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Vis filtreret træ</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Anmod om et ERP-nummer via mail</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Rediger...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Opret en betingelse for den markerede linje, og kopiér den til udklipsholderen</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Tilføj betingelse</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Slet betingelse</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Betingelser</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Betingelser og variabeltilordninger er foreslåede. De gælder, så snart en linje i målet er bekræftet.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Godkend/skift bruger</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Overskriv målprojekter, der allerede er tildelt</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Beskrivelse</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Bekræftede tildelinger</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Opløsningen af værdiområderne kan tage meget lang tid, afhængigt af de valgte variabler og tabellens størrelse.
Vil du virkelig fortsætte?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Delen kunne ikke slettes, da flere samlinger henviser til den!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Målprojektet %1 findes ikke længere</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Målprojektet med stien %1 blev fjernet.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Målprojektet med stien %1 blev tilføjet.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Vis filnavne i stedet for beskrivelser</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Rediger post</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Tilføj post</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Slet post</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Tilføj en post til linkdatabasen</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritmen indeholder fejl:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Kaldet af %1 mislykkedes!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Posten kunne ikke slettes!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Betingelserne for projektet %1 blev ændret.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Projektversionen af målprojektet med stien %1 blev ændret.
  Gammel projektdato: %2, ny projektdato: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Kildeprojektets tabel kunne ikke åbnes.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Tabellen for mindst ét kildeprojekt kunne ikke åbnes.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Tabelversionen af målprojektet med stien %1 blev ændret.
  Gammel tabeldato: %2, ny tabeldato: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variablen %1 findes ikke i måltabellen</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Variabeltilknytningen for projektet %1 blev ændret.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Linjen %1 blev ændret.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Linjerne blev ikke tildelt igen og forbliver, som de er. Disse målprojekter kan ikke læses: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Variablen %1 findes ikke i kildetabellen</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Denne linje er udgået. Modelløren har bekræftet det</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Denne linje kunne ikke tildeles</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Denne linje blev tildelt automatisk. Tildelingen skal bekræftes eller rettes</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Modelløren har bekræftet denne tildeling</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Tildel dette projekt til den markerede linje</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Dokumentliste</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Ændringer foretaget af opdateringen af ERP-mappingen: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Anmod om ERP-nummer</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Indsæt</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Der findes en værdiområdetildeling for denne linje.
Tildelingen skal ændres med 'Rediger tildeling af værdiområder'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Der findes mindst én konflikt.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Der findes mindst én bekræftet tildeling.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Der findes mindst én linje uden tildeling.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Der findes mindst én ubekræftet ændring.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Ikke alle underelementer kunne slettes, da andre samlinger også henviser til nogle af dem!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Et mapping for projektet %1 blev fjernet.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Et mapping for projektet %1 blev tilføjet.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Fejl ved kopiering af betingelsen:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Fejl ved kopiering af variabeltilordningen.
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
        <translation>Der er en konflikt for denne linje. Tildelingen skal bekræftes eller rettes</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Antal linjer i alt</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Vælg gruppe</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Intet projekt passer til valget under træet.
Slå „%1“ fra for at se alle projekter igen.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Ingen fejl fundet</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Ingen linje er uden tildeling.
Uden hak ved „%1“ ses alle linjer.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klassificer</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiér</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Vis forklaring</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Linkmanager</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Åbn linkmanageren</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Log ind</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Slet</translation>
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
        <translation>Opret en ny post</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Indsæt en ny post (overtager værdierne fra den markerede post)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Linjer, der ikke blev fundet</translation>
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
        <translation>Vis kun linjer, der er tildelt flere gange</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Vis kun linjer i den oprindelige tabel, der er tildelt denne linje</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Sti:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Vælg projekt</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Søg eller vælg projekt</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Åbn projekt</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Projektsti:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Du er ved at slette en samling, som indeholder underelementer. Skal alle underelementer også slettes?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Kontrollér syntaks</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Vælg tabellinje</translation>
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
        <translation>Variabeltilknytning</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Tilføj variabeltilordning</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Vis skjulte kolonner</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Dine ændringer, der ikke kunne overtages:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Din planlagte ændring:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Slå foretrukne rækker til og fra</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Foretrukne rækker til/fra</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Vælg værdiområdevariabler</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Rediger tildelinger af værdiområder</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Værdikombinationer: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET for det markerede dokument:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Vis kun projekter med linjer uden tildeling</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Vis kun projekter med ufuldstændige tilknytninger</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Vis kun projekter med tildelte linjer</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Vis kun linjer uden tildeling (kildeprojekt)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Vis kun linjer uden tildeling (målprojekt)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Linjen med LineID %1 tildeles...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Tildel linjer igen</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Linjer tildeles på ny</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Linjer: %1 af %2 · åbne, der ville blive tildelt: %3 · bekræftede, der ikke længere ville passe: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Linjenummer</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Målprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Fjern målprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Tilføj målprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Flyt målprojekt op</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Flyt målprojekt ned</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Målvariabel</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Tildelinger til kontrol</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Bekræft tildeling</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Ophæv tildelingen af denne linje</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Ophæv tildelingen af denne linje og bekræft</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Slet tilknytning</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Ophæv tildelingen til dette projekt</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Ophæv tildelingen til dette projekt og bekræft (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>indeholder fejl!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Oversigt</translation>
    </message>
</context>
</TS>
