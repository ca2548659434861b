<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>nagłówek sekcji bez końca</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>cudzysłów bez końca; tekst obowiązuje tak, jak stoi</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Dokument nie ma wartości.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>To nie jest JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>To nie jest zwykły plik.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Brakuje cudzysłowu zamykającego tekst.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Brakuje nazwy wpisu.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopia różni się od oryginału.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Znak sterujący w tekście musi być zapisany jako sekwencja ucieczki.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Tekst zawiera połowę pary zastępczej.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Tekst zawiera nieznaną sekwencję ucieczki.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Tekst nie jest w UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Brakuje wartości.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Liczba nie ma cyfr po kropce.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Liczba nie ma cyfr w wykładniku.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Liczba nie ma cyfr.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Liczba jest za duża.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Po \u muszą stać cztery cyfry szesnastkowe.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Za dokumentem coś jeszcze stoi.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Po nazwie wpisu brakuje dwukropka.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Po wpisie brakuje przecinka lub }.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Po wartości listy brakuje przecinka lub ].</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>tekst za cudzysłowem; wszystko obowiązuje tak, jak stoi</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>wiersz %1, kolumna %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>to jest katalog</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>to nie jest rozszerzenie: brak VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>nazwa zawiera znak NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>tekst za nagłówkiem sekcji jest pomijany</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>plik jest w UTF-16; zapisz go jako UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>rozszerzenie wykonano dla wersji %1, to jest %2; skompiluj je ponownie</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>linie kończą się samymi znakami CR; zapisz plik ze znakami LF</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>nieznana sekwencja ucieczki %1 obowiązuje tak, jak stoi</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>jest tylko do odczytu</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>nie UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nie można odczytać: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>nie można zapisać: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>ani sekcja, ani klucz, ani komentarz</translation>
    </message>
</context>
</TS>
