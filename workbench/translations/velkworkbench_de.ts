<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message numerus="yes">
        <source>%n Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>%n Zeile bestätigen?</numerusform>
            <numerusform>%n Zeilen bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%n Zeile als ausgelaufen bestätigen?</numerusform>
            <numerusform>%n Zeilen als ausgelaufen bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %n Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Zuordnung von %n Zeile aufheben?</numerusform>
            <numerusform>Zuordnung von %n Zeilen aufheben?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %n Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Zuordnung von %n Zeile aufheben und als ausgelaufen bestätigen?</numerusform>
            <numerusform>Zuordnung von %n Zeilen aufheben und als ausgelaufen bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%n davon ist schon bestätigt.</numerusform>
            <numerusform>%n davon sind schon bestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%n davon verliert ihre Wertebereichszuordnung.</numerusform>
            <numerusform>%n davon verlieren ihre Wertebereichszuordnung.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%n Zeile ohne Ziel bleibt unbestätigt.</numerusform>
            <numerusform>%n Zeilen ohne Ziel bleiben unbestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%n Zeile bleibt, wie sie ist.</numerusform>
            <numerusform>%n Zeilen bleiben, wie sie sind.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%n Zeile mit Konflikt wird nicht geändert.</numerusform>
            <numerusform>%n Zeilen mit Konflikt werden nicht geändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%n Zeile ist in keinem Zielprojekt eingetragen.</numerusform>
            <numerusform>%n Zeilen sind in keinem Zielprojekt eingetragen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%n Zeile bestätigt.</numerusform>
            <numerusform>%n Zeilen bestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%n Zeile als ausgelaufen bestätigt.</numerusform>
            <numerusform>%n Zeilen als ausgelaufen bestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %n Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Zuordnung von %n Zeile aufgehoben.</numerusform>
            <numerusform>Zuordnung von %n Zeilen aufgehoben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %n Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Zuordnung von %n Zeile aufgehoben und als ausgelaufen bestätigt.</numerusform>
            <numerusform>Zuordnung von %n Zeilen aufgehoben und als ausgelaufen bestätigt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message numerus="yes">
        <source>%n Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%n Zeile von %1 widerspricht sich in der gleichen Weise. Gilt die Entscheidung für alle?</numerusform>
            <numerusform>%n Zeilen von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message numerus="yes">
        <source>%n weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%n weitere Zeile widerspricht sich wie diese.</numerusform>
            <numerusform>%n weitere Zeilen widersprechen sich wie diese.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message numerus="yes">
        <source>ersetzt wie in %n weiteren Zeile(n)</source>
        <translation>
            <numerusform>ersetzt wie in %n weiteren Zeile</numerusform>
            <numerusform>ersetzt wie in %n weiteren Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message numerus="yes">
        <source>%n Zeile(n)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message numerus="yes">
        <source>%1: %n Zeile(n)</source>
        <translation>
            <numerusform>%1: %n Zeile</numerusform>
            <numerusform>%1: %n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %n Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Noch %n Zeile in Konflikt, in diesen Projekten:</numerusform>
            <numerusform>Noch %n Zeilen in Konflikt, in diesen Projekten:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message numerus="yes">
        <source>%n Zeile(n)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n Projekt(en)</source>
        <translation>
            <numerusform>in %n Projekt</numerusform>
            <numerusform>in %n Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>%n Tabelle nicht lesbar</numerusform>
            <numerusform>%n Tabellen nicht lesbar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message numerus="yes">
        <source>%n Zeile(n) in %1</source>
        <translation>
            <numerusform>%n Zeile in %1</numerusform>
            <numerusform>%n Zeilen in %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %n Zeile(n) offen.</source>
        <translation>
            <numerusform>Hier im Filter ist alles durch, außerhalb ist noch %n Zeile offen.</numerusform>
            <numerusform>Hier im Filter ist alles durch, außerhalb sind noch %n Zeilen offen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message numerus="yes">
        <source>%n Treffer</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message numerus="yes">
        <source>%n Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%n Konflikt: eigene Entscheidung</numerusform>
            <numerusform>%n Konflikte: eigene Entscheidung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%n Konflikt: Entscheidung der anderen Seite</numerusform>
            <numerusform>%n Konflikte: Entscheidung der anderen Seite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%n Konflikt: neu zu entscheiden</numerusform>
            <numerusform>%n Konflikte: neu zu entscheiden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%n Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%n Änderung übernommen.</numerusform>
            <numerusform>%n Änderungen übernommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%n Zeile haben beide gleich entschieden.</numerusform>
            <numerusform>%n Zeilen haben beide gleich entschieden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%n Zeile ist verschieden entschieden und als Konflikt markiert.</numerusform>
            <numerusform>%n Zeilen sind verschieden entschieden und als Konflikt markiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%n anderer Widerspruch: Der Stand der Datei gilt.</numerusform>
            <numerusform>%n andere Widersprüche: Der Stand der Datei gilt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message numerus="yes">
        <source>%n zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%n zugeordnete Zeile angesehen</numerusform>
            <numerusform>%n zugeordnete Zeilen angesehen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fundstelle(n)</source>
        <translation>
            <numerusform>%n Fundstelle</numerusform>
            <numerusform>%n Fundstellen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%n offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%n offene Zeile mit Vorschlag</numerusform>
            <numerusform>%n offene Zeilen mit Vorschlag</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n Muster(n)</source>
        <translation>
            <numerusform>in %n Muster</numerusform>
            <numerusform>in %n Mustern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%n davon wird noch verglichen</numerusform>
            <numerusform>%n davon werden noch verglichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %n Zeile(n)</source>
        <translation>
            <numerusform>Gewählt: %n Zeile</numerusform>
            <numerusform>Gewählt: %n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n davon herausgenommen</source>
        <translation>
            <numerusform>%n davon herausgenommen</numerusform>
            <numerusform>%n davon herausgenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n Projekt(en)</source>
        <translation>
            <numerusform>in %n Projekt</numerusform>
            <numerusform>in %n Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%n offene Zeile ohne Nachfolger</numerusform>
            <numerusform>%n offene Zeilen ohne Nachfolger</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%n Zeile(n)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Projekt(e)</source>
        <translation>
            <numerusform>%n Projekt</numerusform>
            <numerusform>%n Projekte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%n weitere Zeile hat diese und andere Unterschiede</numerusform>
            <numerusform>%n weitere Zeilen haben diese und andere Unterschiede</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message numerus="yes">
        <source>%n Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%n Zeile ist bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</numerusform>
            <numerusform>%n Zeilen sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %n Zeile(n)</source>
        <translation>
            <numerusform>%1: %n Zeile</numerusform>
            <numerusform>%1: %n Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message numerus="yes">
        <source>%n Zeile(n) dafür</source>
        <translation>
            <numerusform>%n Zeile dafür</numerusform>
            <numerusform>%n Zeilen dafür</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) dagegen</source>
        <translation>
            <numerusform>%n Zeile dagegen</numerusform>
            <numerusform>%n Zeilen dagegen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message numerus="yes">
        <source>Von vorn: %n Zeile(n) offen</source>
        <translation>
            <numerusform>Von vorn: %n Zeile offen</numerusform>
            <numerusform>Von vorn: %n Zeilen offen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>in %n Projekt bestätigen?</numerusform>
            <numerusform>in %n Projekten bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%n Zeile bestätigt</numerusform>
            <numerusform>%n Zeilen bestätigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%n davon ist unsicher.</numerusform>
            <numerusform>%n davon sind unsicher.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n Projekt(en)</source>
        <translation>
            <numerusform>in %n Projekt</numerusform>
            <numerusform>in %n Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%n Zeile als ausgelaufen bestätigt</numerusform>
            <numerusform>%n Zeilen als ausgelaufen bestätigt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message numerus="yes">
        <source>Mit %n abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>Mit %n abhängigen &amp;zurücknehmen</numerusform>
            <numerusform>Mit %n abhängigen &amp;zurücknehmen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Mit %n früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>Mit %n früheren &amp;wieder ausführen</numerusform>
            <numerusform>Mit %n früheren &amp;wieder ausführen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %n weitere</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %n Projekt(en)</source>
        <translation>
            <numerusform>%1 in %n Projekt</numerusform>
            <numerusform>%1 in %n Projekten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message numerus="yes">
        <source>%n Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%n Zeile in %1 war als ausgelaufen bestätigt und ist es nicht mehr: %2</numerusform>
            <numerusform>%n Zeilen in %1 waren als ausgelaufen bestätigt und sind es nicht mehr: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %n andere Zeile(n): %4</source>
        <translation>
            <numerusform>Zeile %1 → %2 in %3: die Zielzeile hat auch %n andere Zeile: %4</numerusform>
            <numerusform>Zeile %1 → %2 in %3: die Zielzeile haben auch %n andere Zeilen: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%n Zeile in %1 teilt ihre Zielzeile mit neu zugeordneten: %2</numerusform>
            <numerusform>%n Zeilen in %1 teilen ihre Zielzeile mit neu zugeordneten: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%n Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%n Konflikt angenommen</numerusform>
            <numerusform>%n Konflikte angenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%n Zeile bestätigt</numerusform>
            <numerusform>%n Zeilen bestätigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%n Zeile als ausgelaufen bestätigt</numerusform>
            <numerusform>%n Zeilen als ausgelaufen bestätigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%n Zeile zugeordnet</numerusform>
            <numerusform>%n Zeilen zugeordnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %n Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>Zuordnung von %n Zeile aufgehoben</numerusform>
            <numerusform>Zuordnung von %n Zeilen aufgehoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %n Zeile(n) geändert</source>
        <translation>
            <numerusform>Wertebereichszuordnung von %n Zeile geändert</numerusform>
            <numerusform>Wertebereichszuordnung von %n Zeilen geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %n Zeile(n) gelöst</source>
        <translation>
            <numerusform>Konflikt von %n Zeile gelöst</numerusform>
            <numerusform>Konflikt von %n Zeilen gelöst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) geändert</source>
        <translation>
            <numerusform>%n Zeile geändert</numerusform>
            <numerusform>%n Zeilen geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n Projekt(en)</source>
        <translation>
            <numerusform>%1 in %n Projekt</numerusform>
            <numerusform>%1 in %n Projekten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message numerus="yes">
        <source>%n Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%n Wertebereichszuordnung geprüft</numerusform>
            <numerusform>%n Wertebereichszuordnungen geprüft</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Beanstandung(en)</source>
        <translation>
            <numerusform>%n Beanstandung</numerusform>
            <numerusform>%n Beanstandungen</numerusform>
        </translation>
    </message>
</context>
</TS>
