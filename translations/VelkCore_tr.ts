<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>bölüm başlığının sonu yok</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>tırnağın sonu yok; metin olduğu gibi geçerli</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Belgenin değeri yok.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Bu JSON değil.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Bu normal bir dosya değil.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Bir metnin kapanış tırnağı eksik.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Bir girdinin adı eksik.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopya aslından farklı.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Metindeki denetim karakteri kaçış dizisi olarak yazılmalı.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Bir metin yarım vekil çift içeriyor.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Bir metin bilinmeyen bir kaçış dizisi içeriyor.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Bir metin UTF-8 değil.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Bir değer eksik.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Bir sayının noktasından sonra rakam yok.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Bir sayının üssünde rakam yok.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Bir sayının rakamı yok.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Bir sayı çok büyük.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>\u ardından dört onaltılık rakam gelmeli.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Belgenin ardında bir şey daha var.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Bir girdinin adından sonra iki nokta eksik.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Bir girdiden sonra virgül veya } eksik.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Bir liste değerinden sonra virgül veya ] eksik.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>tırnakların ardında metin var; hepsi olduğu gibi geçerli</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>satır %1, sütun %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>bu bir dizin</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>bu bir eklenti değil: VELK_EXTENSION yok</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>bu normal bir dosya değil</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>ad bir NUL karakteri içeriyor</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>bölüm başlığının ardındaki metin dikkate alınmaz</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>dosya UTF-16; UTF-8 olarak kaydedin</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>eklenti %1 sürümü için yapılmış, bu ise %2; yeniden derleyin</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>satırlar yalnızca satır başı karakteriyle bitiyor; dosyayı satır sonu karakteriyle kaydedin</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>bilinmeyen kaçış dizisi %1 olduğu gibi geçerli</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>salt okunur</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>UTF-8 değil</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>okunamıyor: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>yazılamıyor: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>ne bölüm, ne anahtar, ne de açıklama</translation>
    </message>
</context>
</TS>
