<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Baris %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Nilai lain dari rentang nilai termasuk dalam target lain.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Proyek tujuan lain juga memiliki baris dengan nilai-nilai ini.
  Proyek: %1
  Baris: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Nama proyek tujuan berbeda dari proyek sumber, dan tidak ada penetapan ke sana yang dikonfirmasi.
  Proyek sumber: %1
  Proyek tujuan: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Tanda petik penutup teks tidak ada</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Ekspresi bersarang terlalu dalam</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Teks kosong</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Fungsi %1 tidak dikenal</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Sebutan standar berbeda.
  Sebutan lama: %1
  Sebutan baru: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabel proyek tujuan tidak dapat dibaca.
  Proyek: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Variabel %1 tidak ada di tabel tujuan</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Variabel %1 tidak dikenal</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Nilai variabel %1 berbeda.
  Nilai lama: %2
  Nilai baru: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Baris target sudah dikonfirmasi untuk baris lain.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Sebagian besar baris memiliki nilai lain di proyek tujuan.
  Proyek tujuan: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Baris yang ditetapkan tidak ada di tabel tujuan.
  Proyek: %1
  Baris: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Sebuah teks dalam rumus untuk %1 melebihi %2 karakter dan tetap tanpa nilai</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Satu syarat proyek tujuan tidak terpenuhi.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Sebuah kondisi proyek target salah.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Syarat harus berupa perbandingan</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Rumus harus memberi nilai kepada variabel</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Diharapkan %1, ditemukan %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Diharapkan pemberian nilai kepada variabel %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Jumlah argumen salah untuk fungsi %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Di sini diharapkan perbandingan, bukan nilai</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Di sini diharapkan nilai, bukan perbandingan</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Sumber dan tujuan tidak memiliki variabel bersama yang bernilai.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Baris lain di tabel sumber memiliki nilai-nilai ini.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Baris lain di tabel tujuan memiliki nilai-nilai ini.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Karakter %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Terlalu banyak rentang nilai tabel target tumpang tindih untuk membandingkan semuanya.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Terlalu sedikit nilai baris yang memiliki padanan di tabel tujuan.
  Tanpa padanan: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>akhir</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operator atau akhir</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>nama variabel</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>nilai</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>kurung tutup</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>mengandung kesalahan!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>tanpa nilai</translation>
    </message>
</context>
</TS>
