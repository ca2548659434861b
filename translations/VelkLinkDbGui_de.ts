<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Aktualisierung des Datensatzes fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Aktuell markierte Zeile zuordnen</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Aktuell zugeordnete Zeile</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Alle Zuordnungen bestätigen</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Anlegen des Datensatzes fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Aufgelöste Wertebereiche für diese Zeile zuordnen</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Aufgelöste Wertebereiche zuordnen</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Aus der Auswahl (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Auswahl abbrechen</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Auswahl an Linkmanager</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Auswahl an Linkmanager senden</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Automatisch zugeordnete Zeilen</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Baum gefiltert darstellen</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Beantragen einer ERP-Nummer per Mail</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Bedingung hinzufügen</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Bedingung löschen</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Benutzer authentifizieren/wechseln</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Bereits zugewiesene Zielprojekte überschreiben</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Bestätigte Zuordnungen</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Das Zielprojekt %1 existiert nicht mehr</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Dateinamen statt Beschreibungen anzeigen</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Datensatz bearbeiten</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Datensatz hinzufügen</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Datensatz löschen</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Datensatz zur Linkdatenbank hinzufügen</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Der Algorithmus enthält Fehler:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Der Aufruf von %1 ist fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Der Datensatz konnte nicht gelöscht werden!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Die Bedingungen für das Projekt %1 wurden geändert.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Die Variable %1 existiert nicht in der Zieltabelle</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Die Variablenzuordnung für das Projekt %1 wurde geändert.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Die Zeile %1 wurde geändert.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>DieVariable %1 existiert nicht in der Quelltabelle</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Diese Zeile konnte nicht zugeordnet werden</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Diese Zuordnung wurde vom Modellierer bestätigt</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Dieses Projekt der aktuell selektierten Zeile zuweisen</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Dokument-Liste</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Durchgeführte Änderungen durch Update des ERP-Mappings: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>ERP-Nummer beantragen</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Es existiert mindestens ein Konflikt.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Es existiert mindestens eine bestätigte Zuordnung.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Es existiert mindestens eine nicht zugeordnete Zeile.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Es existiert mindestens eine unbestätigte Änderung.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Es wurde ein Mapping für das Projekt %1 entfernt.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Fehler beim Kopieren der Bedingung:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Fehler beim Kopieren der Variablenzuordnung.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Formel bearbeiten</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formel...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Gesamtanzahl Zeilen</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Gruppe auswählen</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Keine Fehler gefunden</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klassifizieren</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikte</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Legende anzeigen</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Linkmanager</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Linkmanager aufrufen</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Neu...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Neuen Datensatz anlegen</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Nicht gefundene Zeilen</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Normbezeichnung</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Normnummer</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Projekt auswählen</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Projekt suchen oder auswählen</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Projektpfad:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Syntax prüfen</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Tabellenzeile auswählen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Variable ignorieren</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Variablenzuordnung</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Variablenzuordnung hinzufügen</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Versteckte Spalten anzeigen</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Von Ihnen geplante Änderung:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Vorzugsreihen  ein und ausschalten</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Vorzugsreihen An/Aus</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Wertebereichsvariablen auswählen</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Wertebereichszuordnungen bearbeiten</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Wertkombinationen: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET des markierten Dokuments:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Zeige nur Projekte mit nicht zugeordneten Zeilen</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Zeige nur Projekte mit unvollständigen Mappings</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Zeige nur Projekte mit zugeordneten Zeilen</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Zeile mit LineID %1 wird zugeordnet...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Zeilen erneut zuweisen</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Zeilen werden neu zugewiesen</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Zeilennummer</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Zielprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Zielprojekt entfernen</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Zielprojekt hinzufügen</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Zielprojekt nach oben verschieben</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Zielprojekt nach unten verschieben</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Zielvariable</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Zu überprüfende Zuordnungen</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Zuordnung bestätigen</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Zuordnung dieser Zeile aufheben</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Zuordnung dieser Zeile aufheben und bestätigen</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Zuordnung löschen</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Zuordnung zu diesem Projekt aufheben</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>enthält Fehler!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Übersicht</translation>
    </message>
</context>
</TS>
