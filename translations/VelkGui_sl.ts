<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 od %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Prekliči</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Počakajte</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Prekliče delo</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Obrazca %1 ni mogoče naložiti: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Preklicevanje...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>še %1</translation>
    </message>
</context>
</TS>
