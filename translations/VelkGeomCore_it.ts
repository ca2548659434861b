<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Riga %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Altri valori degli intervalli appartengono a un'altra destinazione.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Anche un altro progetto di destinazione ha una riga con questi valori.
  Progetto: %1
  Riga: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Il progetto di destinazione ha un nome diverso da quello di origine e nessuna assegnazione verso di esso è confermata.
  Progetto di origine: %1
  Progetto di destinazione: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Manca l'apice di chiusura del testo</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>L'espressione è annidata troppo in profondità</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Il testo è vuoto</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>La funzione %1 è sconosciuta</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Le denominazioni della norma sono diverse.
  Denominazione precedente: %1
  Denominazione nuova: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Impossibile leggere la tabella del progetto di destinazione.
  Progetto: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>La variabile %1 non esiste nella tabella di destinazione</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>La variabile %1 è sconosciuta</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>I valori della variabile %1 sono diversi.
  Valore precedente: %2
  Valore nuovo: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>La riga di destinazione è già confermata per un'altra riga.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>La maggior parte delle righe ha altri valori nel progetto di destinazione.
  Progetto di destinazione: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>La riga assegnata non esiste nella tabella di destinazione.
  Progetto: %1
  Riga: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Un testo nella formula per %1 supera %2 caratteri e resta senza valore</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Una condizione del progetto di destinazione non è soddisfatta.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Una condizione di un progetto di destinazione è errata.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Una condizione deve essere un confronto</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Una formula deve assegnare un valore a una variabile</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Atteso %1, trovato %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>È attesa un'assegnazione alla variabile %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Numero di argomenti errato per la funzione %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Qui è atteso un confronto, non un valore</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Qui è atteso un valore, non un confronto</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Origine e destinazione non hanno variabili comuni con un valore.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Altre righe della tabella di origine hanno questi valori.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Altre righe della tabella di destinazione hanno questi valori.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Carattere %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Troppi intervalli della tabella di destinazione si sovrappongono per confrontarli tutti.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Troppo pochi valori della riga hanno un corrispondente nella tabella di destinazione.
  Senza corrispondente: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>la fine</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>un operatore o la fine</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>un nome di variabile</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>un valore</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>una parentesi chiusa</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contiene errori!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>nessun valore</translation>
    </message>
</context>
</TS>
