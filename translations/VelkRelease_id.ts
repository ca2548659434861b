<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 berada di luar katalog dan tidak ditulis; perbaiki "path" pada deskriptor, atau hapus tautannya</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 dengan koma desimal</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: itu bagian %2 dari pekerjaan lain daripada %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>tanda kutip di dalam sel dianggap sebagai karakter, pertama pada baris %1, kolom %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>tanggal</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>tanggal dengan waktu</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Keputusan diambil alih dari %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>proyek dalam bagian-bagian: %1 (berbeda: %2), dalam seluruh pekerjaan: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>bagian %1 tidak ada</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>bagian %1 ada beberapa kali (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>teks</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologi (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>nilai kebenaran</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>rentang nilai (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>bilangan</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>terhitung (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>direktori tidak dapat dibaca</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>direktori tidak dapat dibuat</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>itu bukan bagian yang ditulis oleh velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>itu bukan berkas biasa</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>kunci "%1" tidak ada atau berulang pada %2 dari %Ln baris</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>kondisi "%1" dari %2 tidak dapat diurai; yang telah ditetapkan tidak pasti</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>kolom %1 tidak bernama dan kini bernama "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>kolom %1 sekali lagi bernama "%2" dan kini bernama "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>kolom "%1" menurut deskriptor: %2; selnya tampak seperti: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>kolom "%1" sudah tidak ada</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>tabel dari impor sebelumnya tidak dapat dibaca, id barisnya tidak akan dapat dipertahankan; perbaiki, atau hapus untuk memulai dari awal</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>tabel dokumen tidak memiliki kolom %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>tabel proyek tidak dapat dibaca</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>tabel %1 tidak dapat dibaca; baris proyek tetap seperti semula</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>tabel %1 tidak dapat dibaca; yang ditetapkan tanpanya tidak pasti</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>baris diakhiri hanya dengan carriage return; simpan berkas dengan line feed</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>sel dipisahkan oleh titik koma</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>sel dipisahkan oleh tab</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>satu-satunya kolom bernama "%1"; jika ada beberapa, sebutkan pemisahnya dengan --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>baris pertama tampak seperti data; baris itu dianggap nama kolom, jadi letakkan baris nama di depannya</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>katalog ini tidak ada</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>akan menjadi tabel yang sama dengan %1; ganti nama salah satunya</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>tidak ada kolom "%1"</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>tidak ada bagian</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>isinya tidak sebanyak proyek yang disebutkannya</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>bilangan bulat</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>dibaca sebagai %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>internal (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>tidak ada proyek yang bertanggal</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>tidak ditemukan kolom kunci; id baris adalah tempatnya dalam berkas</translation>
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
        <source>lässt sich nicht öffnen: %1</source>
        <translation>tidak dapat dibuka: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>kolom baru "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>hanya berbeda dalam huruf besar dan kecil: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>jika dikodekan secara lain, sebutkan pengodeannya dengan --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
