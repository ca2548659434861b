<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>  Zeile %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
