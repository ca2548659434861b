<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 dari %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Mohon tunggu</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Membatalkan pekerjaan</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Formulir %1 tidak dapat dimuat: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Sedang dibatalkan...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>sisa %1</translation>
    </message>
</context>
</TS>
