<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>titolo di sezione senza fine</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>virgolette senza fine; il testo vale così com'è</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Il documento non ha alcun valore.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Questo non è JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Non è un file regolare.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Mancano le virgolette di chiusura di un testo.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Manca il nome di una voce.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>La copia differisce dall'originale.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Un carattere di controllo in un testo va scritto come sequenza di escape.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Un testo contiene mezza coppia surrogata.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Un testo contiene una sequenza di escape sconosciuta.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Un testo non è UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Manca un valore.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Un numero non ha cifre dopo il punto.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Un numero non ha cifre nell'esponente.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Un numero non ha cifre.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Un numero è troppo grande.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Dopo \u devono esserci quattro cifre esadecimali.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>C'è ancora qualcosa dopo il documento.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Mancano i due punti dopo il nome di una voce.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Manca una virgola o } dopo una voce.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Manca una virgola o ] dopo un valore di elenco.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>testo dopo le virgolette; tutto vale così com'è</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>riga %1, colonna %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>non è un'estensione: manca VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>non è un file regolare</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>il nome contiene un carattere NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>il testo dopo il titolo di sezione viene ignorato</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>il file è UTF-16; salvarlo come UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>l'estensione è fatta per la versione %1, questa è %2; ricompilarla</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>le righe terminano solo con ritorni a capo CR; salvare il file con LF</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>la sequenza di escape sconosciuta %1 vale così com'è</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>è di sola lettura</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>non UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>non si può leggere: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>non si può scrivere: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>né sezione, né chiave, né commento</translation>
    </message>
</context>
</TS>
