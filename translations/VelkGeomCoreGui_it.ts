<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Rimuovere tutti i filtri colonna</translation>
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
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funzioni</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Cercare nella tabella</translation>
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
        <source>Nicht gefunden</source>
        <translation>Non trovato</translation>
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
        <source>Tabelle %1</source>
        <translation>Tabella %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Risultato precedente (Maiusc+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Intervallo di valori (%1 valori): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Mostra le righe il cui valore contiene il testo. Con =, &lt;, &lt;=, &gt; o &gt;= davanti viene confrontato.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Assegnazione a una variabile della tabella di destinazione</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>valgono entrambi i confronti</translation>
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
    <message>
        <source>ungleich</source>
        <translation>diverso da</translation>
    </message>
</context>
</TS>
