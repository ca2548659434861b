<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Čekejte, prosím</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Zruší práci</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Formulář %1 nelze načíst: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Ruší se...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>ještě %1</translation>
    </message>
</context>
</TS>
