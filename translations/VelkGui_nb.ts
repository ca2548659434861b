<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Vent litt</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Avbryter arbeidet</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Skjemaet %1 kan ikke lastes: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Avbrytes...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>%1 igjen</translation>
    </message>
</context>
</TS>
