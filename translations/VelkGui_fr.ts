<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkGui</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Veuillez patienter</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Interrompt le travail</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Le formulaire %1 ne peut pas être chargé : %2</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Annulation en cours...</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>encore %1</translation>
    </message>
</context>
</TS>
