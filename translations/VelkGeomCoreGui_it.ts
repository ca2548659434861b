<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 di %Ln progetto</numerusform>
            <numerusform>%1 di %Ln progetti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 di %Ln riga</numerusform>
            <numerusform>%1 di %Ln righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln progetto trovato</numerusform>
            <numerusform>%Ln progetti trovati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln riga</numerusform>
            <numerusform>%Ln righe</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(vuoto)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Mostra tutte le colonne</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Rimuovere tutti i filtri colonna</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Tutti tranne quelli scelti</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Continuato dall'inizio della tabella</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Continuato dalla fine della tabella</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Creazione dell'indice di ricerca</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Rimuovi condizione</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Aggiungi condizione</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Impossibile leggere la directory dei cataloghi.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Impossibile creare l'indice di ricerca: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>L'indice di ricerca è ancora in creazione.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>L'indice di ricerca è ancora in creazione; finora: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>La ricerca è fallita: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>La ricerca non è disponibile.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Il primo %Ln progetto; ce ne sono altri. Cerca con più precisione.</numerusform>
            <numerusform>I primi %Ln progetti; ce ne sono altri. Cerca con più precisione.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Sblocca le colonne</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funzioni</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Progetti trovati</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>La ricerca avviene in ciò che si trova su questo computer.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Cercare nella tabella</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Nessuna riga corrisponde ai filtri di colonna</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logica</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filtra per valori ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Nome, norma, denominazione o valore</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Non trovato</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Nessun risultato. Cerca con altre parole o meno condizioni.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Cerca solo in %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Risultato successivo (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operatori</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Annullare l'ordinamento</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Ordinare la colonna in modo decrescente</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Ordinare la colonna in modo crescente</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Nascondi colonna</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Sposta colonna a sinistra</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Sposta colonna a destra</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Blocca le colonne fino a qui</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Adattare la larghezza delle colonne</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtro colonna</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtro colonna %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Chiudere la ricerca (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Cerca...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Cerca parole o aggiungi condizioni.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Parole da cercare</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabella %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Errore sconosciuto</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabile</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Confronto</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Risultato precedente (Maiusc+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valore</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Valori della colonna %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Intervallo di valori (valori: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Ricerca in corso ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Mostra le righe il cui valore contiene il testo. Con =, &lt;, &lt;=, &gt; o &gt;= davanti si confronta; ! davanti nega, = da solo trova i valori vuoti. &amp; richiede entrambi, | uno dei due. Alt+freccia giù mostra i valori.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Assegnazione a una variabile della tabella di destinazione</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>inizia con</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>valgono entrambi i confronti</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>a</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>il confronto non vale</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>vale uno dei confronti</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>diviso</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>uguale a</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>maggiore di</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>maggiore o uguale a</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>elevato a</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>minore di</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>minore o uguale a</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>per</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>meno</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>più</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>e %Ln valore più raro</numerusform>
            <numerusform>e %Ln valori più rari</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>e un'altra: %Ln</numerusform>
            <numerusform>e altre %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>e ancora %Ln riga</numerusform>
            <numerusform>e altre %Ln righe</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>diverso da</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>da–a</translation>
    </message>
</context>
</TS>
