<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Non c&apos;è nulla da modificare.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Confermare %Ln riga?</numerusform>
            <numerusform>Confermare %Ln righe?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Confermare %Ln riga come fuori produzione?</numerusform>
            <numerusform>Confermare %Ln righe come fuori produzione?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Annullare l&apos;assegnazione di %Ln riga?</numerusform>
            <numerusform>Annullare l&apos;assegnazione di %Ln righe?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Annullare l&apos;assegnazione di %Ln riga e confermarla come fuori produzione?</numerusform>
            <numerusform>Annullare l&apos;assegnazione di %Ln righe e confermarle come fuori produzione?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln di esse è già confermata.</numerusform>
            <numerusform>%Ln di esse sono già confermate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln di esse perde la sua assegnazione degli intervalli di valori.</numerusform>
            <numerusform>%Ln di esse perdono la loro assegnazione degli intervalli di valori.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln riga senza destinazione resta non confermata.</numerusform>
            <numerusform>%Ln righe senza destinazione restano non confermate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln riga resta com&apos;è.</numerusform>
            <numerusform>%Ln righe restano come sono.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln riga in conflitto non viene modificata.</numerusform>
            <numerusform>%Ln righe in conflitto non vengono modificate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln riga non è registrata in alcun progetto di destinazione.</numerusform>
            <numerusform>%Ln righe non sono registrate in alcun progetto di destinazione.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln riga confermata.</numerusform>
            <numerusform>%Ln righe confermate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln riga confermata come fuori produzione.</numerusform>
            <numerusform>%Ln righe confermate come fuori produzione.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Assegnazione di %Ln riga annullata.</numerusform>
            <numerusform>Assegnazione di %Ln righe annullata.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Assegnazione di %Ln riga annullata, confermata come fuori produzione.</numerusform>
            <numerusform>Assegnazione di %Ln righe annullata, confermate come fuori produzione.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>nessun successore</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tasto</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certezza</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nuova riga</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 qui già decise o certe</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 senza riga nella nuova versione</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 allora confermate come fuori produzione</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 in progetti che qui mancano</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 lì in conflitto</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Non riprese: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Da %1 non c&apos;è nulla da riprendere.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Il file non contiene alcuna mappatura dalla versione del catalogo %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Anche questo file porta alla versione del catalogo %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Scegliere una mappatura che porti dalla stessa vecchia versione del catalogo a una nuova precedente.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Ripresa da %1: lì confermata per la versione del catalogo %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Lettura della mappatura precedente</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Da %1 non si può riprendere nulla.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Directory della versione del catalogo %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Ricerca dei progetti di destinazione</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Ripresa delle decisioni</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Interrotto, non è stato ripreso nulla</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Decisioni riprese da %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Riprese da %1: %2 di %Ln riga confermata, %3 assegnate con certezza, %4 proposte.</numerusform>
            <numerusform>Riprese da %1: %2 di %Ln righe confermate, %3 assegnate con certezza, %4 proposte.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Directory della vecchia versione del catalogo</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Directory della nuova versione del catalogo</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Directory dei cataloghi</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Dove si trovano le due versioni del catalogo di questo file di mappatura? Le directory vengono memorizzate insieme al file.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Vecchia versione (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Nuova versione (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Sono necessarie entrambe le directory.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 non è una directory.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>Nella vecchia versione manca %1. Si cerca la directory in cui si trova il catalogo %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Nella nuova versione manca il catalogo %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Impossibile mostrare la riga %1 in %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Nessuna riga è in conflitto</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Tutti i conflitti sono risolti; ora salvare</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Conflitto %1 di %2, ancora %3 aperti</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln riga di %1 si contraddice allo stesso modo. La decisione vale per tutte?</numerusform>
            <numerusform>%Ln righe di %1 si contraddicono allo stesso modo. La decisione vale per tutte?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Propria: %1
Altra: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Per tutte</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Riga per riga</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>La riga non è in alcun conflitto</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>La propria decisione non è nota: la riga era già in conflitto all&apos;apertura</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Nessuna riga è in conflitto.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Tutti i conflitti sono risolti.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln altra riga si contraddice come questa.</numerusform>
            <numerusform>%Ln altre righe si contraddicono come questa.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflitti</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Lati del conflitto</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Propria</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Altra</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Decidere di nuovo</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 di %Ln conflitto ancora aperto.</numerusform>
            <numerusform>%1 di %Ln conflitti ancora aperti.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>aperto</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>propria</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>altra</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nuova</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Propria decisione</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Altra decisione</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Vale</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>assegnata automaticamente</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>da verificare</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>confermata</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>senza destinazione, aperta</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confermata come fuori produzione</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>non nota</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, riga %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Progetto di destinazione</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Riga di destinazione</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Intervalli di valori</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Vecchia riga</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Propria decisione</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Altra decisione</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Dato</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>uguale</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>sostituito come in %Ln altra riga</numerusform>
            <numerusform>sostituito come in %Ln altre righe</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>simile</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>diverso</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>solo nella nuova riga</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>solo nella vecchia riga</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabile</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Vecchio</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nuovo</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>La tabella non contiene la riga.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Senza destinazione. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>La riga assegnata non è tra i candidati.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Vecchio e nuovo</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Candidati</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Confermata.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Assegnata con certezza.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln riga</numerusform>
            <numerusform>%Ln righe</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>confrontate: le prime %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Nessuna differenza in comune.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>In comune: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Righe selezionate</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Versione del catalogo</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Il file contiene più versioni del catalogo. Quale aprire?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Lettura del file di mappatura</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Impossibile aprire il file.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Il file è aperto in sola lettura.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Il blocco può essere rimosso se di sicuro nessuno vi lavora più, ad esempio dopo un guasto del computer.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>Sola &amp;lettura</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>Rimuovi il &amp;blocco</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Impossibile rimuovere il blocco.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>I cataloghi non sono noti; si indicano con --source e --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Salvare le modifiche a %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Le modifiche scartate vanno perse.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Sal&amp;va</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>Sca&amp;rta</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln riga</numerusform>
            <numerusform>%1: %Ln righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Ancora %Ln riga in conflitto, in questi progetti:</numerusform>
            <numerusform>Ancora %Ln righe in conflitto, in questi progetti:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Mostra &amp;i conflitti</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Salva &amp;comunque</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Salvato: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Il file non è stato salvato.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Unisci le &amp;modifiche</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Conserva &amp;una copia e riscrivi</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Scrivi la mia versione</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Le modifiche degli altri sono state acquisite. Verificare e poi salvare ancora una volta.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Impossibile acquisire le modifiche degli altri.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Impossibile creare il file di mappatura.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>e altri %Ln</numerusform>
            <numerusform>e altri %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Lettura di %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Impossibile leggere il file di mappatura %1 (%2).
Scegliere un altro file o ripristinare la copia di sicurezza %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Impossibile leggere il file di mappatura %1 (%2).
Scegliere un altro file.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 non contiene alcuna versione.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 non contiene la versione %2. Sono presenti: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 è aperto in sola lettura.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 è in corso di modifica da parte di %2 ed è quindi aperto in sola lettura.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>La cartella di %1 non è scrivibile (%2). Il file è quindi aperto in sola lettura; salvato con un altro nome può essere modificato.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Per %1 c&apos;è del lavoro non salvato. Verrà proposto non appena il file si potrà aprire per la modifica (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 ha anche un altro nome (collegamento fisico). Al salvataggio il file con l&apos;altro nome resta com&apos;era.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Salvataggio di %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Copia di sicurezza di %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 è in corso di modifica da parte di %2. Non è stato scritto nulla. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Nella cartella di %1 non si può creare nulla (%2). Non è stato scritto nulla. Scegliere un&apos;altra cartella.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Nessuna riga di questo progetto è nel filtro.
Aprire «%1» e scegliere «%2» per rivedere tutte le righe.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Nessun progetto ha una riga nel filtro.
Aprire «%1» e scegliere «%2» per rivedere tutti i progetti.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>File di mappatura (*.json);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Apri file di mappatura</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Salva file di mappatura</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Salva tabella</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabelle (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Scegli la copia comune</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Riprendi le decisioni da</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Il filtro è tolto: il progetto non vi ha righe</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Raggiunta la fine, si continua dall&apos;inizio</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Raggiunto l&apos;inizio, si continua dalla fine</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Nessuna riga rimane nel filtro</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>testo sostituito</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>numero convertito</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Perché aperta</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Tipo di differenza</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Differenza nella colonna</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Deciso per ultimo da</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(niente di questo)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>non quelli scelti</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Lettura delle tabelle...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln riga</numerusform>
            <numerusform>%Ln righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln progetto</numerusform>
            <numerusform>in %Ln progetti</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Nessun filtro: tutte le righe</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Tabelle illeggibili: %Ln</numerusform>
            <numerusform>Tabelle illeggibili: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtro su tutte le righe</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>To&amp;gli filtro</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Provenienza</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>riprese da una mappatura precedente</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 non è un file normale e quindi non può servire da blocco. Non è stato scritto nulla. Rimuovere ciò che si trova lì.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>Un altro programma sta salvando %1. Non è stato scritto nulla. Salvare di nuovo tra poco.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Nella cartella di %1 non si può creare nulla (%2). Non è stato scritto nulla. Liberare spazio o salvare con un altro nome.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>Impossibile leggere %1 (%2). Non è stato scritto nulla. Salvare con un altro nome.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 non è un file di mappatura leggibile (%2). Non è stato scritto nulla. Al salvataggio il file esistente viene conservato con un nome con data e ora e ne viene creato uno nuovo che contiene solo questa versione.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 non è un file di mappatura leggibile (%2). Non è stato scritto nulla. Al salvataggio il file esistente viene conservato con un nome con data e ora e ne viene creato uno nuovo. Le altre versioni provengono dalla copia di sicurezza %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 è illeggibile e non è stato possibile conservarlo come %2 (%3). Non è stato scritto nulla. Salvare con un altro nome.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 è stato eliminato o rinominato dopo l&apos;apertura. Al salvataggio il file viene ricreato e contiene solo questa versione (%2). Non è ancora stato scritto nulla.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 è stato modificato da qualcun altro dopo l&apos;apertura, ma non questa versione (%2). Al salvataggio le altre versioni restano come sono ora nel file. Non è ancora stato scritto nulla.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 è stato modificato da qualcun altro dopo l&apos;apertura, anche questa versione (%2). Al salvataggio le sue modifiche a questa versione vanno perse. Non è ancora stato scritto nulla: salvare comunque, salvare con un altro nome o riaprire il file.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Impossibile scrivere in %1 (%2). Non è stato scritto nulla. Verificare i permessi di scrittura o salvare con un altro nome.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 non è stato salvato: %2. Il file è invariato, le modifiche sono ancora aperte. Liberare spazio e salvare di nuovo, oppure salvare con un altro nome.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>non è stato possibile scrivere il file per intero</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>il file scritto non è leggibile (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>il file scritto non contiene ciò che doveva essere salvato</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>nel file scritto manca la versione %1, o è un&apos;altra</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Impossibile creare la copia di sicurezza %1 (%2). Non è stato scritto nulla. Liberare spazio o salvare con un altro nome.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 è stato modificato da qualcun altro durante il salvataggio. Non è stato scritto nulla. Salvare ancora una volta.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 non è stato salvato: %2. Il file è invariato, le modifiche sono ancora aperte. Salvare con un altro nome.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Contenuto</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Cerca nella pagina</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Cronologia delle decisioni...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Chi ha deciso cosa, quando e perché</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Motivo della decisione...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Per l&apos;ultima decisione o per le righe selezionate, ad esempio perché non c&apos;è un successore</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Riga %1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln riga in %1</numerusform>
            <numerusform>%Ln righe in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Motivo annotato: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Cronologia delle decisioni</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Riga selezionata</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Progetto selezionato</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Tutti i progetti</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Cerca chi, progetto, destinazione o motivo</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Rileggi</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Salva come CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Righe illeggibili del giornale: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Decisioni: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Impossibile scrivere il file.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>nessun successore</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (non salvato)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Chi</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Ripresa da %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Cartella con file CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Directory del catalogo</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Importa tabelle</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Cartella con file CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Directory del catalogo:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Ogni file CSV diventa un progetto con la sua tabella nello stesso punto del catalogo. Importando di nuovo le tabelle, i numeri delle righe restano.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importa</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Manca la cartella con i file CSV.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Manca la directory del catalogo; viene creata se esiste la directory superiore.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Una directory si trova dentro l&apos;altra.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Conferma la riga o assegna la riga selezionata</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Annulla l&apos;assegnazione della riga</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Annulla l&apos;assegnazione e conferma come fuori produzione</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Modifica l&apos;assegnazione degli intervalli di valori</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Copia la condizione dalla riga</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Conferma l&apos;intero progetto</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Cercare nella tabella</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Cerca successivo</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Cerca precedente</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtro colonna</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Copia righe</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Tabella più grande</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Tabella più piccola</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabella a dimensione normale</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Predefinito</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Nessun tasto</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Comando o tasto</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Comandi</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Dove</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tasto</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabella</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Tasto per %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Campi ed elenchi hanno bisogno essi stessi del tasto %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Il tasto %1 lo avrebbero %2 e %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Scelto dall&apos;utente</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 non avrà più il tasto %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Il tasto %1 ora appartiene a %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nessun risultato</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Confermata: l&apos;assegnazione è decisa</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Proposta: va confermata o corretta</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Senza icona: chiaramente uguale, assegnata dal programma</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Nessuna assegnazione trovata</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Fuori produzione: confermato che non c&apos;è assegnazione</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Conflitto con la modifica di qualcun altro</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Impossibile leggere il progetto o la tabella</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Assegnazioni degli intervalli di valori della riga</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>Nella tabella di destinazione: la riga assegnata</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Condizione copiata negli appunti</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>La condizione copiata non è ancora utilizzabile così: un valore manca, è un intervallo o contiene virgolette: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Qui nel filtro è tutto fatto, fuori c&apos;è ancora %Ln riga aperta.</numerusform>
            <numerusform>Qui nel filtro è tutto fatto, fuori ci sono ancora %Ln righe aperte.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Raggiunta la fine, si continua dall&apos;inizio</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Raggiunto l&apos;inizio, si continua dalla fine</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Conflitto %1 di %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Nessuna riga è in uno degli stati scelti</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Nessuna riga richiede più una decisione</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Impossibile mostrare le righe aperte; mancano le tabelle</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Vai alla riga</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Numero o denominazione normalizzata:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Vai a</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Nessun progetto selezionato</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Nessuna riga con «%1» in questo progetto</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Risultato %1 di %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Esegui</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Il passo può essere annullato.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Si intendono le righe selezionate.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Si intendono tutte le righe del progetto.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filtro: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Nessun altro progetto ha righe simili</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Si intendono solo le righe mostrate del progetto: %1 di %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Conflitto</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Mostra solo le righe in conflitto con la modifica di qualcun altro, e i loro progetti</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Da verificare</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Mostra solo le righe con una proposta da confermare o correggere, e i loro progetti</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Senza destinazione</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Mostra solo le righe per cui non è stato trovato nulla, e i loro progetti</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatica</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Mostra solo le righe chiaramente uguali, assegnate dal programma, e i loro progetti</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confermata</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Mostra solo le righe con assegnazione confermata, e i loro progetti</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Fuori produzione</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Mostra solo le righe confermate come fuori produzione, e i loro progetti</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Usa il database dei collegamenti</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>File su questo computer</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Server PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>quella consueta</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>La password si trova nel file delle password, nel portachiavi del desktop o in PGPASSWORD, oppure viene immessa all&apos;accesso. Non viene salvata.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>se possibile</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>sempre</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>sempre, server verificato</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;File:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Host:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Database:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>U&amp;tente:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Crittografia:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Database dei collegamenti: manca il nome del file.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Database dei collegamenti: il nome del database manca o non è valido.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Verifica i numeri del database dei collegamenti</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>Nel database dei collegamenti non c&apos;è alcun gruppo di cui Lei faccia parte.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Selezionare il gruppo</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Gruppo del database dei collegamenti:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>La riga %1 di %2 non è in questa mappatura.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Verifica dei numeri del database dei collegamenti</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Impossibile verificare i numeri.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Le modifiche nel database dei collegamenti sono forse perse.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Manca la licenza per il database dei collegamenti.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Accesso al database dei collegamenti</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>La password vale fino alla chiusura del programma e non viene salvata. Se resta vuota, viene presa dal file delle password.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Con questo nome il registro indica chi ha eliminato qualcosa.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Gestore collegamenti</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Cerca numero, progetto o descrizione</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Mostra riga</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Collega a un&apos;altra riga...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Scegliere poi progetto e riga e inviare la selezione con «Selezione al gestore collegamenti».</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Ultime eliminazioni...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Collegamenti: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Non c&apos;è nulla di eliminato che si possa ripristinare.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Ripristinare le ultime eliminazioni? Righe: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 le ha eliminate il %2 da %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Il primo collegamento (%Ln); la ricerca ne mostra altri.</numerusform>
            <numerusform>I primi %Ln collegamenti; la ricerca ne mostra altri.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Verifica dei numeri</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Numeri di progetti di questa mappatura: %1, di altri progetti: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Non confrontati perché illeggibili: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Riga fuori produzione o inesistente</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confermata come fuori produzione</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>il progetto non la contiene</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Rivendicato da più righe</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Il pezzo differisce</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Il pezzo differisce (non confrontato)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Righe aperte con numeri</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Numeri: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>La riga %1 non esiste in %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Impossibile mostrare il progetto %1.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Progetto, riga, comando o impostazione</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Trovati</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Bastano parti di parole; un numero alla fine indica una riga.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nessun risultato</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln risultato</numerusform>
            <numerusform>%Ln risultati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>I primi %1 di %Ln risultato</numerusform>
            <numerusform>I primi %1 di %Ln risultati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Riga %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Impostazione</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Errore: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Avviso: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Cancella i messaggi</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Copia tutti i messaggi</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Utente:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Password:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Nessuna connessione al database dei collegamenti: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Impossibile leggere i numeri ERP. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Righe assegnate di nuovo: nessuna modifica</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Qui non c&apos;è una riga simile. %1 va alla successiva.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>sola lettura</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Il catalogo</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>A sinistra c&apos;è la vecchia versione del catalogo. Le icone mostrano dove resta qualcosa da decidere. Selezionare un progetto per vederne le righe.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Le destinazioni</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Qui si trovano i progetti della nuova versione che possono accogliere righe, con condizioni e corrispondenze delle variabili.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Le righe</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>A sinistra la vecchia tabella, a destra la nuova. %1 conferma l&apos;assegnazione o assegna la riga selezionata a destra, %2 la annulla, %3 conferma che la riga è fuori produzione.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Cosa è ancora aperto</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Il contatore dice quante righe richiedono una decisione. %1 va alla successiva, anche nel progetto successivo.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Nulla va perso</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Ogni passo può essere annullato. Dopo un arresto anomalo il programma propone di ripristinare ciò che non è stato salvato. Il giro guidato si trova nel menu Aiuto.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Assegnare le righe dell&apos;intero catalogo?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Ciò che è confermato resta in ogni caso. Il passo può essere annullato.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Solo righe senza assegnazione</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Rifai tutto ciò che non è confermato</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Tutti i progetti assegnati</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Il progetto di destinazione %1 non esiste.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Progetto di destinazione: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Impostazioni: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Per questo punto non ci sono indicazioni</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Svuota elenco</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Condividi</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Aperti di recente</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>Vai &amp;a</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Revisione</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Solo righe</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>Aiu&amp;to</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Database dei collegamenti</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Stati delle righe</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Strumenti</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Nessun file è aperto per la modifica.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Modifiche proprie sulla versione del file</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln conflitto: propria decisione</numerusform>
            <numerusform>%Ln conflitti: propria decisione</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln conflitto: decisione dell&apos;altra parte</numerusform>
            <numerusform>%Ln conflitti: decisione dell&apos;altra parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln conflitto: da decidere di nuovo</numerusform>
            <numerusform>%Ln conflitti: da decidere di nuovo</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Impossibile scrivere il giornale %1 (%2). Dopo un arresto anomalo le modifiche andrebbero perse: salvare presto.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Impossibile mettere al sicuro la versione ripristinata (%1). Liberare spazio e aprire di nuovo; il giornale è invariato.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Ripristino dopo un arresto anomalo</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Impossibile creare il giornale %1 (%2). Dopo un arresto anomalo le modifiche andrebbero perse: salvare spesso.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Nessun file di mappatura è aperto.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Salvataggio in corso.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Non è stato salvato nulla. %1 Salvare con un altro nome.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Il blocco di %1 è perso e non può essere rinnovato. Altri potrebbero modificare il file contemporaneamente.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Il salvataggio automatico non è riuscito (%1). Salvare presto.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>La modifica non è stata acquisita. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Conflitti contrassegnati</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Annullato: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Ripetuto: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1” non si adatta più a ciò che è cambiato dopo. L’elenco dei passi dice che cosa lo impedisce.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Ricerca dei progetti di destinazione</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Interrotto, non è stato creato nulla</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Assegnazione delle righe</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln progetto: %1 nello stesso punto, %2 altrove, %3 suddiviso, %4 senza destinazione, %5 illeggibile</numerusform>
            <numerusform>%Ln progetti: %1 nello stesso punto, %2 altrove, %3 suddivisi, %4 senza destinazione, %5 illeggibili</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 di %Ln progetto</numerusform>
            <numerusform>%1 di %Ln progetti</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>di cui %1 assegnate, %2 da verificare, %3 senza destinazione</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Interrotto: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 con %Ln riga</numerusform>
            <numerusform>%1 con %Ln righe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln modifica acquisita.</numerusform>
            <numerusform>%Ln modifiche acquisite.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln riga è stata decisa allo stesso modo da entrambi.</numerusform>
            <numerusform>%Ln righe sono state decise allo stesso modo da entrambi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln riga è stata decisa diversamente e contrassegnata come conflitto.</numerusform>
            <numerusform>%Ln righe sono state decise diversamente e contrassegnate come conflitto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln altra contraddizione: vale la versione del file.</numerusform>
            <numerusform>%Ln altre contraddizioni: vale la versione del file.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Impossibile mostrare la riga %1</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Nessuna anomalia selezionata</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Corretto: %1 in %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Confronto delle tabelle in corso</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln riga assegnata esaminata</numerusform>
            <numerusform>%Ln righe assegnate esaminate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln anomalia</numerusform>
            <numerusform>%Ln anomalie</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Vicinato</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Le righe da %1 a %2 sono spostate di %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Le righe %1 e %2 sono scambiate</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>La riga %1 è fuori posto di %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>La riga %1 ha la riga di destinazione di un&apos;altra</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>La riga %1 è stata saltata</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>aperto</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Corretto: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Anomalia</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Corretto</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Progetto</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Directory della vecchia versione del catalogo</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Directory della nuova versione del catalogo</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Assegna subito le righe</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Nuova mappatura</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Vecchia versione del catalogo:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Catalogo contenuto:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Nuova versione del catalogo:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Scegli file di mappatura</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;File di mappatura:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Crea</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Manca la directory della vecchia versione del catalogo.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Manca la directory della nuova versione del catalogo.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Ogni versione ha bisogno di una directory con il catalogo.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Il file di mappatura ha bisogno di un nome.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>La directory %1 non esiste.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 esiste già.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Al salvataggio si aggiunge la nuova versione; una versione con la stessa data viene sostituita, con tutto ciò che vi è confermato.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Usa questo file</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>il supporto è pieno</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>il file diventa più grande di quanto qui consentito</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>manca il permesso di scrittura</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>il supporto è protetto da scrittura</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>la cartella o il file non c&apos;è più</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>al suo posto c&apos;è qualcosa che non è un file normale</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>senza destinazione</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Vecchia riga</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nuova riga</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Altre differenze</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Impossibile leggere la tabella del progetto.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Percorso:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Norma:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Denominazione:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Versione del progetto:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Versione della tabella:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Righe:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtra</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln riga aperta con proposta</numerusform>
            <numerusform>%Ln righe aperte con proposta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>in %Ln schema</numerusform>
            <numerusform>in %Ln schemi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln di esse è ancora in fase di confronto</numerusform>
            <numerusform>%Ln di esse sono ancora in fase di confronto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Scelta: %Ln riga</numerusform>
            <numerusform>Scelte: %Ln righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln di esse esclusa</numerusform>
            <numerusform>%Ln di esse escluse</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Differenze delle righe aperte</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln progetto</numerusform>
            <numerusform>in %Ln progetti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln riga aperta senza successore</numerusform>
            <numerusform>%Ln righe aperte senza successore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Confronto delle tabelle in corso: %Ln progetto letto</numerusform>
            <numerusform>Confronto delle tabelle in corso: %Ln progetti letti</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln riga</numerusform>
            <numerusform>%Ln righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln progetto</numerusform>
            <numerusform>%Ln progetti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln altra riga ha queste e altre differenze</numerusform>
            <numerusform>%Ln altre righe hanno queste e altre differenze</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Progetti</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certezza</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Eccezioni</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>numero prossimo</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>altro numero</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>altra formulazione</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>valore aggiunto</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>valore mancante</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>non confrontabile</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>nessuna differenza</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>altra grafia</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>incerto: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>intera cartella senza destinazione: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>intero progetto senza destinazione: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>il progetto di destinazione non esiste più: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 non esiste più</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>nessuna riga simile: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>nome del progetto</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>un altro</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>altro valore</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>una o più di queste in ogni riga</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>non disponibile: nessun file aperto</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>non disponibile: connessione al database dei collegamenti in corso</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>non disponibile: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>non disponibile: nessun database dei collegamenti connesso</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>non disponibile: il gestore collegamenti non attende alcuna selezione</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>non disponibile: nessun progetto selezionato</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>non disponibile: nessuna riga selezionata</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Numero ERP per %1, riga %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Si prega di assegnare un numero ERP.

Progetto: %1
Riga: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Impossibile iniziare un messaggio di posta.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Su questo computer non è configurato alcun programma di posta. La richiesta è:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Non è visibile alcuna tabella da stampare</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Stampa: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 è stato inviato alla stampante</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 stampato in %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>Impossibile stampare %1.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>La stampante non accetta pagine.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Impossibile scrivere %1.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Pagina</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Domanda</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln riga è confermata anche se valori del suo intervallo non hanno una nuova riga.</numerusform>
            <numerusform>%Ln righe sono confermate anche se valori dei loro intervalli non hanno una nuova riga.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Torna indietro</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Conferma comunque</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln riga</numerusform>
            <numerusform>%1: %Ln righe</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>La riga non ha assegnazioni di intervalli di valori.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>mancanti: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>ripetuti: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>non nel vecchio intervallo: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Intervallo di valori della riga</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 di %Ln valore assegnato</numerusform>
            <numerusform>%1: %2 di %Ln valori assegnati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Motivo della decisione</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Per:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Motivo:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>dismessa</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>accorpata a un altro pezzo</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>suddivisa in più pezzi</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>spostata in un altro catalogo</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>non ancora verificata</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Ripristino</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Ripristinato</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Progetti</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confermata</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Da verificare</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Senza destinazione</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>La versione salvata è più recente di tutto ciò che si può ripristinare.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Con le modifiche successive (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Apri la versione salvata</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln passo</numerusform>
            <numerusform>%Ln passi</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Per %1 c&apos;è del lavoro non salvato: %2, l&apos;ultimo «%3». È di %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 con %Ln riga</numerusform>
            <numerusform>%1 con %Ln righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln progetto</numerusform>
            <numerusform>%1 in %Ln progetti</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Importazione delle tabelle</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 non ha più un file CSV e resta com&apos;è</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Nella cartella non ci sono file CSV; non è stato importato nulla</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Interrotto: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Non tutto è stato scritto: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Impossibile scrivere %1.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Esporta righe</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabelle (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Esportazione delle righe</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Interrotto, non è stato esportato nulla</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Scrivi rapporto</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>File PDF (*.pdf);;Pagine HTML (*.html);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Creazione del rapporto</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Interrotto, nessun rapporto è stato scritto</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Impaginazione</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Rapporto scritto in %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Annullato, nessun rapporto creato</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabella</numerusform>
            <numerusform>%Ln tabelle</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 nuove, %2 modificate, %3 invariate, %4 non importate</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln riga esportata in %1</numerusform>
            <numerusform>%Ln righe esportate in %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 con %Ln riga</numerusform>
            <numerusform>%1 con %Ln righe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Sostituzioni concordate</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>nell&apos;intera versione del catalogo</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Concorda</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Revoca</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>Ri&amp;scontri</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Adotta</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Una sostituzione dice che un vecchio valore sta per uno nuovo. Crea proposte, ma non conferma nulla.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>concordata</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>concordata in %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Lettura delle tabelle in corso</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln riga a favore</numerusform>
            <numerusform>%Ln righe a favore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln riga contro</numerusform>
            <numerusform>%Ln righe contro</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Nessuna è concordata. Con l’elenco delle differenze aperto, le sue sostituzioni sono proposte qui.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Rapporto di mappatura: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Versione del catalogo da %1 a %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Creato il %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Stato delle righe</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Per cartella, con tutto ciò che contiene</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Per progetto</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Perché ci sono righe aperte</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>In cosa le righe aperte differiscono dalle loro proposte</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Chi ha deciso cosa</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Righe aperte</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Ciò che non è stato possibile leggere</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confermata</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Confermate come fuori produzione</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Assegnate con certezza</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Da verificare</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Senza destinazione</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>In conflitto</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Denominazione</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Differenze</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Progetti</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Probabilità</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Eccezioni</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Esempi</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Chi</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Giudicate</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Giuste</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Errate al massimo (certezza 95 %)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>rifiutato</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabella non leggibile</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>non confrontabile</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>nessuna differenza</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>due persone hanno deciso diversamente</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>decide qualcun altro</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>una tabella non è leggibile</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>una condizione o una formula fallisce</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>nessuna destinazione è competente</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>manca una colonna</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>più righe sono uguali</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>troppo dissimili</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>uguale, solo non confermata</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>incerto: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Righe aperte senza successore</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Righe confermate come fuori produzione</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Che cosa hanno in comune</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>in totale</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Riprese da mappature precedenti</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Mappatura precedente</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Ancora come riprese</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Righe giudicate</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Righe completate: %1 di %2; aperte: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Leggi i progetti di destinazione dal repository</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Catalogo = svn://server:porta/percorso</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Un catalogo per riga. Senza riga, il nome del catalogo è anche quello del suo server.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>la più recente</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>Se&amp;rver:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Re&amp;visione:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>&amp;Spazio su questa macchina:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>&amp;Attesa del server:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Server, riga %1: &quot;%2&quot; non ha la forma &quot;Catalogo = svn://server:porta/percorso&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Accesso al repository</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 richiede l&apos;accesso.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Nome e password valgono fino alla chiusura del programma e non vengono salvati.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Impossibile mostrare la riga %1</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Nessuna riga più aperta</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Le tabelle non sono ancora state confrontate</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Dall&apos;inizio: %Ln riga aperta</numerusform>
            <numerusform>Dall&apos;inizio: %Ln righe aperte</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Le righe aperte si susseguono per incertezza</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Le righe aperte si susseguono per posizione</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>La riga non appartiene allo schema scelto</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Riga %1 esclusa</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Nessuno schema selezionato, o tutte le sue righe sono decise</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln riga</numerusform>
            <numerusform>%Ln righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>confermare in %Ln progetto?</numerusform>
            <numerusform>confermare in %Ln progetti?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Il passo può essere annullato.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Conferma</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln riga confermata</numerusform>
            <numerusform>%Ln righe confermate</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Non c&apos;è un candidato %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Riga %1 → %2 confermata</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Sostituzioni concordate: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Scegliere uno schema o selezionare righe aperte</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Campione</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Estrai</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Campione, riga %1 di %2: + giusta, − errata</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Nessun campione in corso</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Le righe del campione sono già tutte decise</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 di %2 giuste</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Campione rifiutato, %1; giudicato da %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>tutte le righe giudicate</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>con il 95 % di certezza meno del %1 % errate</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Campione: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>giudicato da %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>lì c&apos;era quella errata</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>La riga %1 è errata: il campione è terminato</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>Co&amp;ntinua</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Guarda la riga errata</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln di esse è incerta.</numerusform>
            <numerusform>%Ln di esse sono incerte.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Tutti gli schemi sono completati</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>in %Ln progetto</numerusform>
            <numerusform>in %Ln progetti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln riga confermata come fuori produzione</numerusform>
            <numerusform>%Ln righe confermate come fuori produzione</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>La riga %1 in %2 è errata. L&apos;insieme è stato diviso; con quale parte continuare?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Tante righe su %Ln vengono estratte e giudicate una per una. %1 giuste dicono con il 95 % di certezza che meno del 5 % sono errate, %2 giuste meno dell&apos;1 %.</numerusform>
            <numerusform>Tante righe su %Ln vengono estratte e giudicate una per una. %1 giuste dicono con il 95 % di certezza che meno del 5 % sono errate, %2 giuste meno dell&apos;1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Console degli script</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Output degli script</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Riga di uno script</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Una riga di JavaScript. Invio la esegue, Tab completa, Su e Giù scorrono la cronologia.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Ferma lo script in corso (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Cancella l&apos;output</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Script %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(console)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Finito</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Finito, stato %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>È troppo grande.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Non è un testo in UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>Impossibile leggere %1. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Apri script</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Script (*.js);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Salva script</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>Impossibile scrivere %1. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Lo script non è salvato.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(senza nome)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nuovo script</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Apri …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Esegui</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argomenti:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Testo dello script</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argomenti</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>su</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(processo %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Impossibile leggere il giornale %1 (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Dopo l&apos;ultima sessione conclusa il giornale %1 non è leggibile. Cosa contenesse non è noto; il giornale viene conservato.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>La fine del giornale %1 non è leggibile. L&apos;ultima modifica può mancare.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Il giornale %1 è danneggiato. Dopo il punto danneggiato %Ln modifica corrisponde ancora, %2 non più; altre possono mancare. Il giornale viene conservato.</numerusform>
            <numerusform>Il giornale %1 è danneggiato. Dopo il punto danneggiato %Ln modifiche corrispondono ancora, %2 non più; altre possono mancare. Il giornale viene conservato.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Il giornale %1 è danneggiato o non corrisponde al file di mappatura. Manca almeno %Ln modifica successiva; il giornale viene conservato.</numerusform>
            <numerusform>Il giornale %1 è danneggiato o non corrisponde al file di mappatura. Mancano almeno %Ln modifiche successive; il giornale viene conservato.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Dopo una d&amp;ecisione passa alla riga aperta successiva</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>mai</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>Li&amp;ngua:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>C&amp;olori:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Di&amp;mensione carattere:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Copia di sicure&amp;zza ogni:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Contrasto elevato</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Una cartella per riga, da cui può essere letto ciò che i file di un catalogo nominano fuori dai cataloghi.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Cartelle consentite:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Cartelle consentite: &quot;%1&quot; non è una cartella con percorso completo.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>La mappatura non è condivisa con nessuno. Scegliere prima la copia comune.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 esiste già ed è un&apos;altra mappatura. Scegliere un&apos;altra copia o prelevare quella esistente in un nuovo file.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Altri hanno pubblicato qualcosa dall&apos;ultimo aggiornamento.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Le righe in conflitto non vengono pubblicate: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Ci sono modifiche in cartelle di altri: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>La cartella è già assegnata: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Qualcun altro sta pubblicando (%1). Riprovare tra poco.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>La copia comune non è raggiungibile: %1. Il proprio file è invariato; riprovare più tardi.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Uno dei file non è una mappatura leggibile: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Impossibile scrivere: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Non è stato possibile.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Lettura della copia comune</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Condivisa tramite %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Recupero delle modifiche degli altri</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Non c&apos;è nulla di nuovo</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Pubblicazione delle modifiche</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mappatura modificata</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Pubblicata, revisione %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Prima questo viene acquisito. Poi si può pubblicare.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Aggiorna</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Pubblica comunque</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Prendi in carico cartelle</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>Prendi in &amp;carico</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Registrazione delle cartelle</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Nessuna cartella propria</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Cartelle proprie: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(qui)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>lo ha aperto</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>non lo ha aperto</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>ultima volta %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>cartelle %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Propria revisione %1, ultima revisione %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Altri hanno pubblicato qualcosa.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Non c&apos;è nulla di nuovo dagli altri.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Le proprie modifiche non sono ancora pubblicate.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Copia comune: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>L&apos;ultima pubblicazione era stata interrotta, ma è arrivata.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>L&apos;ultima pubblicazione è stata interrotta. Pubblicare ancora una volta.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Il file comune era stato modificato nella copia di lavoro e non inviato. La modifica è conservata in %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>La copia di lavoro era stata lasciata a metà di un&apos;operazione ed è stata rimessa in ordine.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>La gestione della copia di lavoro era danneggiata ed è stata prelevata di nuovo; quella precedente è %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Qualcosa di interrotto è stato rimesso in ordine.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Cartelle del catalogo, separate da virgole; * sta per caratteri qualsiasi, ? per uno. Vuoto le restituisce tutte:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>annulla</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Tutto deciso</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Righe che richiedono ancora una decisione</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filtro: nessuna riga</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Righe che il filtro su tutte le righe mostra</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln riga&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln righe&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Aperte: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 in %Ln progetto</numerusform>
            <numerusform>%1 in %Ln progetti</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Ancora nessuna riga assegnata</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Interrompe il lavoro in corso; ciò che è pronto resta</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Errori e avvisi: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Passi</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Cerca chi, cosa o righe</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Indietro fin qui</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Annulla questo passo e tutti i successivi validi</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Vai alla ri&amp;ga</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Annulla con i dipendenti (%Ln)</numerusform>
            <numerusform>&amp;Annulla con i dipendenti (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Annulla solo questo</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Ripeti con i precedenti (%Ln)</numerusform>
            <numerusform>&amp;Ripeti con i precedenti (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Ancora nessun passo</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Nessun altro passo ne dipende.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Il passo può essere ripetuto da solo.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Si basano su di esso: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Si basa su: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Lo impediscono, perché hanno deciso altro: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Ora c’è altro, che nessun passo di questo elenco ha deciso, per esempio un altro programma. Il passo non si può più spostare.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>e altri %Ln</numerusform>
            <numerusform>e altri %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln progetto</numerusform>
            <numerusform>%1 in %Ln progetti</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>valido</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>superato</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Chi</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Righe</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>La modifica in %1 ha effetto solo quando le righe vengono assegnate di nuovo. In quel caso resta solo ciò che è confermato.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln riga in %1 era confermata come fuori produzione e non lo è più: %2</numerusform>
            <numerusform>%Ln righe in %1 erano confermate come fuori produzione e non lo sono più: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>In %1 restano ignorate delle variabili: %2. Per assegnarne di nuovo una, scegliere &quot;Formula...&quot; o eliminare la riga e reinserirla.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Una condizione del progetto di destinazione %1 in %2 è venuta meno.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Una corrispondenza delle variabili del progetto di destinazione %1 in %2 è venuta meno.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Riga %1 → %2 in %3: la riga di destinazione è anche di %Ln altra riga: %4</numerusform>
            <numerusform>Riga %1 → %2 in %3: la riga di destinazione è anche di %Ln altre righe: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln riga in %1 condivide la sua riga di destinazione con righe appena assegnate: %2</numerusform>
            <numerusform>%Ln righe in %1 condividono la loro riga di destinazione con righe appena assegnate: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln conflitto accettato</numerusform>
            <numerusform>%Ln conflitti accettati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln riga confermata</numerusform>
            <numerusform>%Ln righe confermate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln riga confermata come fuori produzione</numerusform>
            <numerusform>%Ln righe confermate come fuori produzione</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln riga assegnata</numerusform>
            <numerusform>%Ln righe assegnate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>assegnazione di %Ln riga annullata</numerusform>
            <numerusform>assegnazione di %Ln righe annullata</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>assegnazione degli intervalli di valori di %Ln riga modificata</numerusform>
            <numerusform>assegnazione degli intervalli di valori di %Ln righe modificata</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>conflitto di %Ln riga risolto</numerusform>
            <numerusform>conflitto di %Ln righe risolto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln riga modificata</numerusform>
            <numerusform>%Ln righe modificate</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>riga %1 → %2 confermata</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>riga %1 → %2 assegnata</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (prima %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>riga %1 confermata come fuori produzione (prima %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>riga %1 confermata come fuori produzione</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>assegnazione della riga %1 annullata (prima %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Progetto aggiunto</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Progetto rimosso</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Progetto di destinazione aggiunto</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Progetto di destinazione rimosso</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Ordine dei progetti di destinazione modificato</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Condizioni modificate</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Corrispondenza delle variabili modificata</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versioni modificate</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Stato modificato</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 in %Ln progetto</numerusform>
            <numerusform>%1 in %Ln progetti</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Salta</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Avanti</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Fine</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, riga %2: la voce %3 dell&apos;assegnazione degli intervalli di valori non ha la forma {NAME=VALORE} -&gt; numero di riga: &quot;%4&quot;. Correggere o risolvere di nuovo.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, riga %2: l&apos;assegnazione degli intervalli di valori indica la riga %3, ma la riga non ha un progetto di destinazione. Assegnarla o svuotare il testo.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, riga %2: l&apos;assegnazione degli intervalli di valori indica la riga %3, che in %4 non esiste. Correggere o risolvere di nuovo.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: impossibile leggere la tabella del progetto di destinazione %2, le sue assegnazioni degli intervalli di valori non sono verificate. Controllare la directory dei progetti di destinazione (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Verifica delle assegnazioni degli intervalli di valori</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln assegnazione di intervalli di valori verificata</numerusform>
            <numerusform>%Ln assegnazioni di intervalli di valori verificate</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>nessun rilievo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln rilievo</numerusform>
            <numerusform>%Ln rilievi</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (interrotto): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Confronta versioni di cataloghi</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>È uscita una nuova versione di un catalogo e ogni riga della vecchia va riportata su una riga della nuova. Il programma propone, l&apos;utente verifica e conferma.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Aperti di recente:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Nuova mappatura...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Crea un nuovo file di mappatura da due versioni del catalogo</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>Ap&amp;ri...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Apre un file di mappatura</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Apri &amp;il catalogo di esempio</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Apre un proprio file di mappatura per il catalogo di esempio fornito</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Scrive tutte le modifiche nel file di mappatura</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Sal&amp;va con nome...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Scrive in un altro file di mappatura</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Chiude il file di mappatura</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Directory dei cataloghi...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Sceglie le directory della vecchia e della nuova versione del catalogo</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Copia comune...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Sceglie la copia tramite cui più persone lavorano a questa mappatura</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Aggiorna</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Acquisisce ciò che altri hanno pubblicato</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Pubblica</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Passa agli altri le proprie modifiche</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>Prendi &amp;in carico cartelle...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Dice agli altri di quali cartelle ci si occupa</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>Chi &amp;lavora a cosa</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Mostra chi ha aperto la mappatura e di chi sono quali cartelle</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>Importa &amp;tabelle...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Da una cartella con file CSV crea progetti di un catalogo</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Es&amp;porta righe...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Scrive tutte le righe della versione con le loro assegnazioni in un file CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Rapp&amp;orto...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Scrive in PDF o HTML a che punto è la versione e perché ci sono righe aperte</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Chiude il programma</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Annulla l&apos;ultimo passo</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Esegue di nuovo il passo annullato</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Conferma righe...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Conferma in un passo l&apos;assegnazione delle righe selezionate o di tutte quelle mostrate</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Conferma le righe &amp;senza destinazione come fuori produzione...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Conferma come fuori produzione, tra le righe selezionate o tutte quelle mostrate, quelle senza destinazione</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>A&amp;nnulla assegnazioni...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Annulla in un passo l&apos;assegnazione delle righe selezionate o di tutte quelle mostrate</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Annulla assegnazioni &amp;e conferma...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Le righe selezionate, o tutte quelle mostrate, sono fuori produzione: annulla e conferma in un passo</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>Assegna &amp;tutti i progetti...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Cerca assegnazioni per tutte le righe del catalogo; ciò che è confermato resta</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Verifica le assegnazioni &amp;degli intervalli di valori</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Confronta tutti i testi degli intervalli di valori con le tabelle dei progetti di destinazione</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>Scri&amp;pt...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Apre una finestra in cui scrivere ed eseguire script</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Impostazioni...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Lingua, carattere, tasti, copie di sicurezza</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Riga aperta successiva</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Va alla riga successiva che richiede una decisione, anche nel progetto successivo</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Riga &amp;aperta precedente</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Va alla riga precedente che richiede una decisione, anche nel progetto precedente</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Vai alla riga...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Cerca una riga del progetto per numero o denominazione</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>Altra &amp;tabella</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Passa dalla vecchia alla nuova tabella e viceversa</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>Tr&amp;ova...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Trova progetti, righe, comandi e impostazioni da parti di parole</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Schemi delle differenze</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Mostra in cosa le righe aperte differiscono dalle loro proposte</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Vecchio e nuovo</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Mostra affiancati i vecchi e i nuovi valori della riga, e i suoi candidati</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Conferma schema...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Conferma in un passo tutte le righe dello schema scelto</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Escludi riga</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>La riga non viene confermata con le altre dello schema</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Riga successiva dello schema</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Va alla riga aperta successiva dello schema scelto</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Riga &amp;precedente dello schema</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Va alla riga aperta precedente dello schema scelto</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Sc&amp;hema successivo</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Sceglie lo schema successivo dell&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Prima le più &amp;incerte</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Le righe aperte si susseguono per rischio di errore anziché per posizione</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Vicin&amp;ato</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Mostra dove le assegnazioni di righe vicine non si accordano</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Rimetti a posto &amp;le righe</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Corregge in un passo l&apos;anomalia scelta del vicinato</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>Sos&amp;tituzioni...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Concorda sostituzioni di valori per la versione del catalogo o le revoca</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Ca&amp;mpione...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Estrae righe dello schema scelto o delle righe selezionate, da giudicare una per una</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Campione: &amp;giusta</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>La riga mostrata del campione è assegnata correttamente</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Campio&amp;ne: errata</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>La riga mostrata del campione è assegnata in modo errato; il campione termina</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Candidato &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Assegna questo candidato alla riga e lo conferma</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Candidato &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Candidato &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Candidato &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Candidato &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Intervallo di valori della riga</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Mostra quali valori del vecchio intervallo hanno nuove righe</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Con&amp;flitti</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Mostra le righe che due parti hanno deciso diversamente</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Conflitto aperto successivo</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Va alla riga successiva il cui conflitto è ancora aperto</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Conflitto: propria decisione</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>In questo conflitto vale la propria decisione</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Conflitto: altra decisione</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>In questo conflitto vale la decisione dell&apos;altra parte</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Conflitto: decidere di nuovo</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Nessuna delle decisioni vale; la riga è di nuovo senza destinazione</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Ricostruisce la visualizzazione: albero, statistiche, tabelle dal disco</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Manuale</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Apre il manuale nel punto in questione</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Tasti...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Mostra e modifica i tasti di tutti i comandi</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>Indicazione su &amp;questo punto</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Mostra l&apos;indicazione là dove vanno i tasti: in una tabella, perché la riga ha il suo stato</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Giro guidato</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Mostra in pochi passi dove si trova cosa</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>&amp;Informazioni su questo programma</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Versione e directory</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Passi...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Elenca tutti i passi, anche delle sessioni precedenti, e ne annulla singoli</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Progetto successivo con righe aperte</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Va al prossimo progetto in cui c’è da decidere</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Progetto precedente con righe aperte</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Va al progetto precedente in cui c’è da decidere</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtro su tutte le righe</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Sceglie righe di tutti i progetti per stato, motivo, differenza e persona; F8 le percorre</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Sta&amp;mpa...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Mostra le pagine della tabella visibile e le stampa</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Mostra le pagine del rapporto e le stampa</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Stampa rapporto...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Riprendi decisioni...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Riprende da una mappatura precedente, in un solo passo, quanto già confermato per la stessa vecchia versione</translation>
    </message>
</context>
</TS>
