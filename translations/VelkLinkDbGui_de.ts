<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Zeile %1</translation>
    </message>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <translation>%1 von %2</translation>
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
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
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
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Alle Spaltenfilter aufheben</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Alle Zuordnungen bestätigen</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Am Anfang der Tabelle fortgesetzt</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Am Ende der Tabelle fortgesetzt</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</translation>
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
        <source>Bedingung löschen</source>
        <translation>Bedingung löschen</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Benutzer authentifizieren/wechseln</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Bestätigte Zuordnungen</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Bitte warten</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Bricht die Arbeit ab</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Das Projekt liegt nicht unter dem Katalogverzeichnis %1</source>
        <translation>Das Projekt liegt nicht unter dem Katalogverzeichnis %1</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Das Zielprojekt %1 existiert nicht mehr</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</translation>
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
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Dem Text fehlt das schließende Hochkomma</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Der Ausdruck ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Der Text ist leer</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Die Bedingungen für das Projekt %1 wurden geändert.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Die Funktion %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Die Maske %1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</translation>
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
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Die Variable %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Die Variablenzuordnung für das Projekt %1 wurde geändert.</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Die Zeile %1 wurde geändert.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</translation>
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
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Eine Bedingung muss ein Vergleich sein</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Eine Formel muss einer Variablen einen Wert zuweisen</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Erwartet wird %1, gefunden wurde %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Erwartet wird eine Zuweisung an die Variable %1</translation>
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
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Es wurde ein Mapping für das Projekt %1 entfernt.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Falsche Anzahl von Argumenten für die Funktion %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
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
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Hier wird ein Vergleich erwartet, kein Wert</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Hier wird ein Wert erwartet, kein Vergleich</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>In der Tabelle suchen</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
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
        <source>Nicht gefunden</source>
        <translation>Nicht gefunden</translation>
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
        <source>Nächste Fundstelle (F3)</source>
        <translation>Nächste Fundstelle (F3)</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Projekte (*.prj)</source>
        <translation>Projekte (*.prj)</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Projektpfad:</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Sortierung aufheben</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Spalte absteigend sortieren</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Spalte aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Spaltenbreiten anpassen</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Spaltenfilter</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Spaltenfilter %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Suche schließen (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Suchen ...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Tabellenzeile auswählen</translation>
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
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Vorherige Fundstelle (Umschalt+F3)</translation>
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
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Weitere Zeilen der Quelltabelle haben diese Werte.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Weitere Zeilen der Zieltabelle haben diese Werte.</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Wertebereich (%1 Werte): %2</translation>
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
        <source>Wird abgebrochen...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET des markierten Dokuments:</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Zeichen %1: %2</translation>
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
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</translation>
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
        <source>Zeilennummer</source>
        <translation>Zeilennummer</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Zielprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt auswählen</source>
        <translation>Zielprojekt auswählen</translation>
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
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</translation>
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
        <source>das Ende</source>
        <translation>das Ende</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>ein Operator oder das Ende</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>ein Variablenname</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>ein Wert</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>eine schließende Klammer</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>enthält Fehler!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Übersicht</translation>
    </message>
</context>
</TS>
