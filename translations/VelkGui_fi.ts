<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Odota</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Keskeyttää työn</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Lomaketta %1 ei voi ladata: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Keskeytetään...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>%1 jäljellä</translation>
    </message>
</context>
</TS>
