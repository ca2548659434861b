<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>기다려 주십시오</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>작업을 취소합니다</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>양식 %1을(를) 불러올 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>취소하는 중...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>%1 남음</translation>
    </message>
</context>
</TS>
