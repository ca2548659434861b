<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>お待ちください</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>作業を中止します</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>フォーム %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>中止しています...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>残り %1</translation>
    </message>
</context>
</TS>
