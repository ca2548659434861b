<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Attendere prego</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Annulla il lavoro</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Impossibile caricare la maschera %1: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Annullamento in corso...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>ancora %1</translation>
    </message>
</context>
</TS>
