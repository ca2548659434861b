<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(impossibile trovarlo)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Modifica eseguita da un altro utente:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;La riga è stata contrassegnata come fuori produzione.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;La riga è stata riassegnata. La nuova riga assegnata non esiste (localmente).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Questa riga è stata contrassegnata come fuori produzione.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Questa riga è stata assegnata alla riga&lt;br /&gt;%1 del progetto %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Nuova assegnazione: &lt;br /&gt;%3 del progetto %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Aggiornamento del record non riuscito!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Assegnare la riga selezionata</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Riga attualmente assegnata</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Confermare tutte le assegnazioni</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Creazione del record non riuscita!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Assegnare gli intervalli di valori risolti per questa riga</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Assegnare gli intervalli di valori risolti</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Dalla selezione (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Annullare la selezione</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Selezione al gestore collegamenti</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Inviare la selezione al gestore collegamenti</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Righe assegnate automaticamente</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Mostrare l'albero filtrato</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Richiedere un numero ERP per e-mail</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Generare una condizione per la riga selezionata e copiarla negli appunti</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Aggiungi condizione</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Eliminare la condizione</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Condizioni</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Condizioni e assegnazioni di variabili sono proposte. Valgono appena una riga della destinazione è confermata.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Autenticare/cambiare utente</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Sovrascrivi i progetti di destinazione già assegnati</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Assegnazioni confermate</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Risolvere gli intervalli di valori può durare molto, secondo le variabili scelte e la dimensione della tabella.
Continuare davvero?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Impossibile eliminare la parte perché più assiemi vi fanno riferimento!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Il progetto di destinazione %1 non esiste più</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Il progetto di destinazione con il percorso %1 è stato rimosso.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Il progetto di destinazione con il percorso %1 è stato aggiunto.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Mostra i nomi dei file invece delle descrizioni</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Modifica record</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Aggiungere record</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Eliminare il record</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Aggiungere un record alla banca dati dei collegamenti</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>L'algoritmo contiene errori:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>La chiamata di %1 non è riuscita!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Impossibile eliminare il record!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Le condizioni del progetto %1 sono state modificate.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>La versione del progetto di destinazione con il percorso %1 è cambiata.
  Data precedente del progetto: %2, data nuova del progetto: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Impossibile aprire la tabella del progetto di origine.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Impossibile aprire la tabella di almeno un progetto di origine.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>La versione della tabella del progetto di destinazione con il percorso %1 è cambiata.
  Data precedente della tabella: %2, data nuova della tabella: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>La variabile %1 non esiste nella tabella di destinazione</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>La corrispondenza delle variabili del progetto %1 è stata modificata.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>La riga %1 è stata modificata.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Le righe non sono state riassegnate e restano come sono. Questi progetti di destinazione non possono essere letti: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>La variabile %1 non esiste nella tabella di origine</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Questa riga è fuori produzione. Il modellatore lo ha confermato</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Non è stato possibile assegnare questa riga</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Questa riga è stata assegnata automaticamente. L'assegnazione va confermata o corretta</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Il modellatore ha confermato questa assegnazione</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Assegnare questo progetto alla riga selezionata</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Elenco documenti</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Modifiche eseguite dall'aggiornamento del mapping ERP: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Richiedere numero ERP</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Esiste un'assegnazione di intervallo di valori per questa riga.
L'assegnazione va modificata con 'Modificare l'assegnazione degli intervalli di valori'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Esiste almeno un conflitto.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Esiste almeno un'assegnazione confermata.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Esiste almeno una riga non assegnata.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Esiste almeno una modifica non confermata.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Impossibile eliminare tutti i sottoelementi, perché anche altri assiemi fanno riferimento ad alcuni di essi!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>È stato rimosso un mapping del progetto %1.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>È stato aggiunto un mapping del progetto %1.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Errore durante la copia della condizione:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Errore durante la copia dell’assegnazione di variabile.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Modifica formula</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formula...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Esiste un conflitto per questa riga. L'assegnazione va confermata o corretta</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Numero totale di righe</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Selezionare il gruppo</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Catalogo</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Nessun progetto corrisponde alla scelta sotto l'albero.
Disattivare «%1» per rivedere tutti i progetti.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Nessun errore trovato</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Nessuna riga è senza assegnazione.
Senza la spunta su «%1» si vedono tutte le righe.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Classificare</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflitti</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Mostrare la legenda</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Gestore collegamenti</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Aprire il gestore collegamenti</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Nuovo...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Creare un nuovo record</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Inserire un nuovo record (riprende i valori del record selezionato)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Righe non trovate</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Denominazione della norma</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Numero della norma</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Mostrare solo righe assegnate più volte</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Mostrare solo righe della tabella originale assegnate a questa riga</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Percorso:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Seleziona progetto</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Cerca o seleziona progetto</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Aprire il progetto</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Percorso del progetto:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Si sta per eliminare un assieme che contiene sottoelementi. Eliminare anche tutti i sottoelementi?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Controlla sintassi</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Selezionare una riga della tabella</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabile</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignorare la variabile</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Corrispondenza delle variabili</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Aggiungi assegnazione di variabile</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Mostrare le colonne nascoste</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Modifiche eseguite da lei che non è stato possibile acquisire:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Modifica da lei pianificata:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Attivare e disattivare le serie preferenziali</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Serie preferenziali sì/no</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Selezionare le variabili con intervallo di valori</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Modificare le assegnazioni degli intervalli di valori</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Combinazioni di valori: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET del documento selezionato:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Mostra solo progetti con righe non assegnate</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Mostra solo progetti con corrispondenze incomplete</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Mostra solo progetti con righe assegnate</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Mostra solo righe non assegnate (progetto di origine)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Mostra solo righe non assegnate (progetto di destinazione)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Assegnazione della riga con LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Assegnare di nuovo le righe</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Riassegnazione delle righe</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Righe: %1 di %2 · aperte che verrebbero assegnate: %3 · confermate che non andrebbero più: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Numero di riga</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Progetto di destinazione</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Rimuovere il progetto di destinazione</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Aggiungere progetto di destinazione</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Spostare in alto il progetto di destinazione</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Spostare in basso il progetto di destinazione</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Variabile di destinazione</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Assegnazioni da verificare</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Confermare l'assegnazione</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Annullare l'assegnazione di questa riga</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Annullare l'assegnazione di questa riga e confermare</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Eliminare la corrispondenza</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Annullare l'assegnazione a questo progetto</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Annullare l'assegnazione a questo progetto e confermare (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contiene errori!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Panoramica</translation>
    </message>
</context>
</TS>
