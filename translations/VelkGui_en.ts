<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Please wait</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Cancels the work</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>The form %1 cannot be loaded: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Cancelling...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>%1 left</translation>
    </message>
</context>
</TS>
