<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>%Ln Zeile bestätigen?</numerusform>
            <numerusform>%Ln Zeilen bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%Ln Zeile als ausgelaufen bestätigen?</numerusform>
            <numerusform>%Ln Zeilen als ausgelaufen bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Zuordnung von %Ln Zeile aufheben?</numerusform>
            <numerusform>Zuordnung von %Ln Zeilen aufheben?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Zuordnung von %Ln Zeile aufheben und als ausgelaufen bestätigen?</numerusform>
            <numerusform>Zuordnung von %Ln Zeilen aufheben und als ausgelaufen bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln davon ist schon bestätigt.</numerusform>
            <numerusform>%Ln davon sind schon bestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln davon verliert ihre Wertebereichszuordnung.</numerusform>
            <numerusform>%Ln davon verlieren ihre Wertebereichszuordnung.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln Zeile ohne Ziel bleibt unbestätigt.</numerusform>
            <numerusform>%Ln Zeilen ohne Ziel bleiben unbestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln Zeile bleibt, wie sie ist.</numerusform>
            <numerusform>%Ln Zeilen bleiben, wie sie sind.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln Zeile mit Konflikt wird nicht geändert.</numerusform>
            <numerusform>%Ln Zeilen mit Konflikt werden nicht geändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln Zeile ist in keinem Zielprojekt eingetragen.</numerusform>
            <numerusform>%Ln Zeilen sind in keinem Zielprojekt eingetragen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln Zeile bestätigt.</numerusform>
            <numerusform>%Ln Zeilen bestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln Zeile als ausgelaufen bestätigt.</numerusform>
            <numerusform>%Ln Zeilen als ausgelaufen bestätigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Zuordnung von %Ln Zeile aufgehoben.</numerusform>
            <numerusform>Zuordnung von %Ln Zeilen aufgehoben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Zuordnung von %Ln Zeile aufgehoben und als ausgelaufen bestätigt.</numerusform>
            <numerusform>Zuordnung von %Ln Zeilen aufgehoben und als ausgelaufen bestätigt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Aus %1 übernommen: %2 von %Ln bestätigten Zeile, %3 sicher zugeordnet, %4 vorgeschlagen.</numerusform>
            <numerusform>Aus %1 übernommen: %2 von %Ln bestätigten Zeilen, %3 sicher zugeordnet, %4 vorgeschlagen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln Zeile von %1 widerspricht sich in der gleichen Weise. Gilt die Entscheidung für alle?</numerusform>
            <numerusform>%Ln Zeilen von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln weitere Zeile widerspricht sich wie diese.</numerusform>
            <numerusform>%Ln weitere Zeilen widersprechen sich wie diese.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 von %Ln Konflikt noch offen.</numerusform>
            <numerusform>%1 von %Ln Konflikten noch offen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>ersetzt wie in %Ln weiteren Zeile</numerusform>
            <numerusform>ersetzt wie in %Ln weiteren Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln Zeile</numerusform>
            <numerusform>%1: %Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Noch %Ln Zeile in Konflikt, in diesen Projekten:</numerusform>
            <numerusform>Noch %Ln Zeilen in Konflikt, in diesen Projekten:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>und %Ln weiteres</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln Projekt</numerusform>
            <numerusform>in %Ln Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>%Ln Tabelle nicht lesbar</numerusform>
            <numerusform>%Ln Tabellen nicht lesbar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln Zeile in %1</numerusform>
            <numerusform>%Ln Zeilen in %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Hier im Filter ist alles durch, außerhalb ist noch %Ln Zeile offen.</numerusform>
            <numerusform>Hier im Filter ist alles durch, außerhalb sind noch %Ln Zeilen offen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Der erste Link; die Suche zeigt andere. (%Ln)</numerusform>
            <numerusform>Die ersten %Ln Links; die Suche zeigt andere.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln Treffer</numerusform>
            <numerusform>%Ln Treffer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Die ersten %1 von %Ln Treffer</numerusform>
            <numerusform>Die ersten %1 von %Ln Treffern</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln Konflikt: eigene Entscheidung</numerusform>
            <numerusform>%Ln Konflikte: eigene Entscheidung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln Konflikt: Entscheidung der anderen Seite</numerusform>
            <numerusform>%Ln Konflikte: Entscheidung der anderen Seite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln Konflikt: neu zu entscheiden</numerusform>
            <numerusform>%Ln Konflikte: neu zu entscheiden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln Projekt: %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</numerusform>
            <numerusform>%Ln Projekte: %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 von %Ln Projekt</numerusform>
            <numerusform>%1 von %Ln Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 mit %Ln Zeile</numerusform>
            <numerusform>%1 mit %Ln Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln Änderung übernommen.</numerusform>
            <numerusform>%Ln Änderungen übernommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln Zeile haben beide gleich entschieden.</numerusform>
            <numerusform>%Ln Zeilen haben beide gleich entschieden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln Zeile ist verschieden entschieden und als Konflikt markiert.</numerusform>
            <numerusform>%Ln Zeilen sind verschieden entschieden und als Konflikt markiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln anderer Widerspruch: Der Stand der Datei gilt.</numerusform>
            <numerusform>%Ln andere Widersprüche: Der Stand der Datei gilt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln zugeordnete Zeile angesehen</numerusform>
            <numerusform>%Ln zugeordnete Zeilen angesehen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln Fundstelle</numerusform>
            <numerusform>%Ln Fundstellen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln offene Zeile mit Vorschlag</numerusform>
            <numerusform>%Ln offene Zeilen mit Vorschlag</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>in %Ln Muster</numerusform>
            <numerusform>in %Ln Mustern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln davon wird noch verglichen</numerusform>
            <numerusform>%Ln davon werden noch verglichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Gewählt: %Ln Zeile</numerusform>
            <numerusform>Gewählt: %Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln davon herausgenommen</numerusform>
            <numerusform>%Ln davon herausgenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln Projekt</numerusform>
            <numerusform>in %Ln Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln offene Zeile ohne Nachfolger</numerusform>
            <numerusform>%Ln offene Zeilen ohne Nachfolger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Die Tabellen werden verglichen: %Ln Projekt gelesen</numerusform>
            <numerusform>Die Tabellen werden verglichen: %Ln Projekte gelesen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln Projekt</numerusform>
            <numerusform>%Ln Projekte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln weitere Zeile hat diese und andere Unterschiede</numerusform>
            <numerusform>%Ln weitere Zeilen haben diese und andere Unterschiede</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln Zeile ist bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</numerusform>
            <numerusform>%Ln Zeilen sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln Zeile</numerusform>
            <numerusform>%1: %Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 von %Ln Wert zugeordnet</numerusform>
            <numerusform>%1: %2 von %Ln Werten zugeordnet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln Schritt</numerusform>
            <numerusform>%Ln Schritte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 mit %Ln Zeile</numerusform>
            <numerusform>%1 mit %Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln Projekt</numerusform>
            <numerusform>%1 in %Ln Projekten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln Tabelle</numerusform>
            <numerusform>%Ln Tabellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln Zeile nach %1 exportiert</numerusform>
            <numerusform>%Ln Zeilen nach %1 exportiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 mit %Ln Zeile</numerusform>
            <numerusform>%1 mit %Ln Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln Zeile dafür</numerusform>
            <numerusform>%Ln Zeilen dafür</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln Zeile dagegen</numerusform>
            <numerusform>%Ln Zeilen dagegen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Von vorn: %Ln Zeile offen</numerusform>
            <numerusform>Von vorn: %Ln Zeilen offen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>in %Ln Projekt bestätigen?</numerusform>
            <numerusform>in %Ln Projekten bestätigen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln Zeile bestätigt</numerusform>
            <numerusform>%Ln Zeilen bestätigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln davon ist unsicher.</numerusform>
            <numerusform>%Ln davon sind unsicher.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln Projekt</numerusform>
            <numerusform>in %Ln Projekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln Zeile als ausgelaufen bestätigt</numerusform>
            <numerusform>%Ln Zeilen als ausgelaufen bestätigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>So viele von %Ln Zeile werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</numerusform>
            <numerusform>So viele von %Ln Zeilen werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt noch %Ln Änderung, %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</numerusform>
            <numerusform>Das Journal %1 ist beschädigt. Hinter der Schadstelle passen noch %Ln Änderungen, %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung fehlt; das Journal wird aufgehoben.</numerusform>
            <numerusform>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderungen fehlen; das Journal wird aufgehoben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln Zeile&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln Zeilen&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 in %Ln Projekt</numerusform>
            <numerusform>%1 in %Ln Projekten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>Mit %Ln abhängigen &amp;zurücknehmen</numerusform>
            <numerusform>Mit %Ln abhängigen &amp;zurücknehmen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>Mit %Ln früheren &amp;wieder ausführen</numerusform>
            <numerusform>Mit %Ln früheren &amp;wieder ausführen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>und %Ln weiterer</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln Projekt</numerusform>
            <numerusform>%1 in %Ln Projekten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln Zeile in %1 war als ausgelaufen bestätigt und ist es nicht mehr: %2</numerusform>
            <numerusform>%Ln Zeilen in %1 waren als ausgelaufen bestätigt und sind es nicht mehr: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Zeile %1 → %2 in %3: die Zielzeile hat auch %Ln andere Zeile: %4</numerusform>
            <numerusform>Zeile %1 → %2 in %3: die Zielzeile haben auch %Ln andere Zeilen: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln Zeile in %1 teilt ihre Zielzeile mit neu zugeordneten: %2</numerusform>
            <numerusform>%Ln Zeilen in %1 teilen ihre Zielzeile mit neu zugeordneten: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln Konflikt angenommen</numerusform>
            <numerusform>%Ln Konflikte angenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln Zeile bestätigt</numerusform>
            <numerusform>%Ln Zeilen bestätigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln Zeile als ausgelaufen bestätigt</numerusform>
            <numerusform>%Ln Zeilen als ausgelaufen bestätigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln Zeile zugeordnet</numerusform>
            <numerusform>%Ln Zeilen zugeordnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>Zuordnung von %Ln Zeile aufgehoben</numerusform>
            <numerusform>Zuordnung von %Ln Zeilen aufgehoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>Wertebereichszuordnung von %Ln Zeile geändert</numerusform>
            <numerusform>Wertebereichszuordnung von %Ln Zeilen geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>Konflikt von %Ln Zeile gelöst</numerusform>
            <numerusform>Konflikt von %Ln Zeilen gelöst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln Zeile geändert</numerusform>
            <numerusform>%Ln Zeilen geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln Projekt</numerusform>
            <numerusform>%1 in %Ln Projekten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln Wertebereichszuordnung geprüft</numerusform>
            <numerusform>%Ln Wertebereichszuordnungen geprüft</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln Beanstandung</numerusform>
            <numerusform>%Ln Beanstandungen</numerusform>
        </translation>
    </message>
</context>
</TS>
