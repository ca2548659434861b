<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Aguarde, por favor</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Cancela o trabalho</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Não é possível carregar o formulário %1: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>A cancelar...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>faltam %1</translation>
    </message>
</context>
</TS>
