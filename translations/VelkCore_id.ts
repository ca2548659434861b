<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>judul bagian tanpa akhir</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>tanda kutip tanpa akhir; teks berlaku apa adanya</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Dokumen tidak memiliki nilai.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Ini bukan JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Itu bukan berkas biasa.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Tanda kutip penutup sebuah teks tidak ada.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Nama sebuah entri tidak ada.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Salinan berbeda dari aslinya.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Karakter kontrol dalam teks harus ditulis sebagai urutan escape.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Sebuah teks berisi setengah pasangan pengganti.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Sebuah teks berisi urutan escape yang tidak dikenal.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Sebuah teks bukan UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Sebuah nilai tidak ada.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Sebuah bilangan tidak memiliki angka di belakang titiknya.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Sebuah bilangan tidak memiliki angka dalam eksponennya.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Sebuah bilangan tidak memiliki angka.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Sebuah bilangan terlalu besar.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Setelah \u harus ada empat angka heksadesimal.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Masih ada sesuatu di belakang dokumen.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Titik dua setelah nama sebuah entri tidak ada.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Koma atau } setelah sebuah entri tidak ada.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Koma atau ] setelah sebuah nilai daftar tidak ada.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>teks di belakang tanda kutip; semuanya berlaku apa adanya</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>baris %1, kolom %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>itu adalah direktori</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>ini bukan ekstensi: VELK_EXTENSION tidak ada</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>itu bukan berkas biasa</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>nama berisi karakter NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>teks di belakang judul bagian diabaikan</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>berkas ini UTF-16; simpan sebagai UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>ekstensi dibuat untuk versi %1, ini versi %2; kompilasi ulang</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>baris hanya berakhir dengan carriage return; simpan berkas dengan line feed</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>urutan escape %1 yang tidak dikenal berlaku apa adanya</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>hanya dapat dibaca</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>bukan UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>tidak dapat dibaca: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>tidak dapat ditulis: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>bukan bagian, kunci, maupun komentar</translation>
    </message>
</context>
</TS>
