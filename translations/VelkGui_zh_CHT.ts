<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>請稍候</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>取消工作</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>無法載入表單 %1：%2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>還剩 %1</translation>
    </message>
</context>
</TS>
