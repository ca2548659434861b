<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 af %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Vent venligst</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Afbryder arbejdet</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Formularen %1 kan ikke indlæses: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Afbrydes...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>%1 tilbage</translation>
    </message>
</context>
</TS>
