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
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</translation>
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
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Benutzer authentifizieren/wechseln</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</translation>
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
        <source>Dokument-Liste</source>
        <translation>Dokument-Liste</translation>
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
        <source>Gruppe auswählen</source>
        <translation>Gruppe auswählen</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klassifizieren</translation>
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
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Variable ignorieren</translation>
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
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET des markierten Dokuments:</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Zeilen werden neu zugewiesen</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</translation>
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
</context>
</TS>
