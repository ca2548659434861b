<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(could not be found)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Change made by another user:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;The line was marked as discontinued.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;The line was assigned again. The line newly assigned does not exist (locally).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;This line was marked as discontinued.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;This line was assigned to the line&lt;br /&gt;%1 of the project %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;New assignment: &lt;br /&gt;%3 of the project %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Updating the record failed!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Assign the line currently selected</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Line currently assigned</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Confirm all assignments</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Creating the record failed!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Assign resolved value ranges for this line</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Assign resolved value ranges</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>From the selection (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Cancel selection</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Selection to link manager</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Send the selection to the link manager</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Lines assigned automatically</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Show filtered tree</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Request an ERP number by mail</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Edit...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Generate a condition for the selected line and copy it to the clipboard</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Add condition</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Delete condition</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Conditions and variable mappings are proposed. They count as soon as a line of the target is confirmed.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Authenticate/change user</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Overwrite target projects that are assigned already</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Confirmed assignments</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Resolving the value ranges can take very long, depending on the variables chosen and the size of the table.
Really go on?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>The part could not be deleted because several assemblies refer to it!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>The target project %1 no longer exists</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>The target project with the path %1 was removed.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>The target project with the path %1 was added.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Show file names instead of descriptions</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Edit record</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Add record</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Delete record</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Add a record to the link database</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>The algorithm contains errors:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Calling %1 failed!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>The record could not be deleted!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>The conditions of the project %1 were changed.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>The project version of the target project with the path %1 was changed.
  Old project date: %2, new project date: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>The source project's table could not be opened.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>The table of at least one source project could not be opened.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>The table version of the target project with the path %1 was changed.
  Old table date: %2, new table date: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>The variable %1 does not exist in the target table</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>The variable mapping of the project %1 was changed.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>The line %1 was changed.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>The lines were not assigned again and stay as they are. These target projects cannot be read: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>The variable %1 does not exist in the source table</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>This line is discontinued. The modeller has confirmed this</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>This line could not be assigned</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>This line was assigned automatically. The assignment must be confirmed or corrected</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>The modeller has confirmed this assignment</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Assign this project to the line currently selected</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>List of documents</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Changes made by the update of the ERP mapping: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Request ERP number</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>There is a value range assignment for this line.
The assignment must be changed by 'Edit value range assignment'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>There is at least one conflict.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>There is at least one confirmed assignment.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>There is at least one line without assignment.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>There is at least one unconfirmed change.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Not all subelements could be deleted because other assemblies refer to some of them, too!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>A mapping of the project %1 was removed.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>A mapping of the project %1 was added.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Error while copying the condition:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Error while copying the variable mapping.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Edit formula</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formula...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>There is a conflict for this line. The assignment must be confirmed or corrected</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Total number of lines</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Select group</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Catalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>No project fits the choice below the tree.
Switch “%1” off to see all projects again.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>No errors found</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>No line is without an assignment.
Untick “%1” to see all lines.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Classify</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflicts</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Show legend</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Link manager</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Open the link manager</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>New...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Create a new record</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Insert a new record (takes over the values of the selected record)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Lines not found</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Standard designation</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Standard number</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Show only lines that are assigned more than once</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Show only lines of the original table that are assigned to this line</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Path:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Select project</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Search or select project</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Project path:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>You are about to delete an assembly that contains subelements. Are all subelements to be deleted, too?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Check syntax</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Select table line</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignore variable</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Variable mapping</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Add variable mapping</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Show hidden columns</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Changes made by you that could not be taken over:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Change planned by you:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Switch preferred series on and off</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Preferred series on/off</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Select value range variables</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Edit value range assignments</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Value combinations: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET of the selected document:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Show only projects with lines that are not assigned</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Show only projects with incomplete mappings</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Show only projects with assigned lines</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Show only lines that are not assigned (source project)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Show only lines that are not assigned (target project)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Assigning the line with LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Assign lines again</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Lines are being assigned again</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Lines: %1 of %2 · open ones that would be assigned: %3 · confirmed ones that would no longer fit: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Line number</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Target project</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Remove target project</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Add target project</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Move target project up</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Move target project down</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Target variable</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Assignments to be checked</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Confirm assignment</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Remove the assignment of this line</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Remove the assignment of this line and confirm</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Delete mapping</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Remove the assignment to this project</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Remove the assignment to this project and confirm (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contains errors!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Overview</translation>
    </message>
</context>
</TS>
