<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Proszę czekać</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Przerywa pracę</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Nie można wczytać formularza %1: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Przerywanie...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>jeszcze %1</translation>
    </message>
</context>
</TS>
