<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
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
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Die Maske %1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>noch %1</translation>
    </message>
</context>
</TS>
