<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Подождите</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Прерывает работу</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Не удаётся загрузить форму %1: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Прерывается...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>ещё %1</translation>
    </message>
</context>
</TS>
