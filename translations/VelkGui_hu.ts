<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Kérem, várjon</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Megszakítja a munkát</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>A(z) %1 űrlap nem tölthető be: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Megszakítás...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>még %1</translation>
    </message>
</context>
</TS>
