<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de">
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
        <translation>请稍候</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>取消工作</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>无法加载窗体 %1：%2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>还剩 %1</translation>
    </message>
</context>
</TS>
