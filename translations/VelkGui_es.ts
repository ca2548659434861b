<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
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
        <translation>Espere, por favor</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Cancela el trabajo</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>No se puede cargar el formulario %1: %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>faltan %1</translation>
    </message>
</context>
</TS>
