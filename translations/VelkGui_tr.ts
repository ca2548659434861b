<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Lütfen bekleyin</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>İşi iptal eder</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>%1 formu yüklenemiyor: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>İptal ediliyor...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>%1 kaldı</translation>
    </message>
</context>
</TS>
