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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" bukan alamat basis data tautan. Yang mungkin: sqlite:BERKAS dan postgresql://PENGGUNA@HOST:PORT/BASISDATA.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 tidak boleh memiliki lebih banyak "supports" daripada "cases"</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 hanya boleh berisi objek</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 berisi nilai yang bersarang terlalu dalam</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 tidak ada di revisi %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 memiliki entri "sourcePath" yang kosong</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 tidak memiliki entri "%2"</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 adalah basis data program lain</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 bukan indeks pencarian dan tidak dapat diganti</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 harus berupa [baris sumber, baris tujuan, status], lalu teks tambahan bila ada, lalu true untuk konflik; baris dihitung dari 0, -1 berarti tanpa baris tujuan</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 harus berupa objek</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 harus berupa teks</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 harus berupa daftar</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 harus menyebut sebuah variabel, beserta teks "before" dan "after" atau bilangan desimal "factor" dan "offset"</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 harus berupa bilangan bulat dari 0 sampai 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 harus true atau false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 harus berjenis "var" dengan "source" dan "target", atau berjenis "value" dengan "formula"</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 menyebut baris sumber %2 sekali lagi</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Revisi %2 dibaca sejauh ada di mesin ini.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Tidak pasti apakah perubahan sudah tersimpan: periksa sebelum mengulang.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: tujuan dengan "path" kosong sekarang berada di akhir</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln sel, bukan %1 seperti di baris kepala</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln lainnya</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln kesalahan lagi</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Dibatalkan: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Nilai lain dari rentang nilai termasuk dalam target lain.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>awal, akhir, dan langkah "%1" harus berupa bilangan paling banyak 15 digit</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Program %1 untuk repositori katalog tidak dapat dijalankan: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Repositori %1 tidak menjawab: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Repositori %1 meminta masuk: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Skrip tidak dapat dibaca: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Skrip dihentikan</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Skrip dihentikan: memakai lebih dari %1 MB memori</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Skrip dihentikan: memakan waktu lebih dari %1 dtk</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Skrip dihentikan: selama %1 dtk tidak memanggil objek apa pun</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Katalog %1 tidak muat dalam tembolok %2 MB; pencarian tidak mengenalnya</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Rilis katalog</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Rilis katalog menyebut "%1" sebagai sourceDate.</translation>
    </message>
    <message>
        <source>Der Kosinus eines Winkels in Grad.</source>
        <translation>The cosine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Logarithmus zur Basis 10.</source>
        <translation>The logarithm to base 10.</translation>
    </message>
    <message>
        <source>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</source>
        <translation>The remainder of the division, with the sign of the first number.</translation>
    </message>
    <message>
        <source>Der Sinus eines Winkels in Grad.</source>
        <translation>The sine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Tangens eines Winkels in Grad.</source>
        <translation>The tangent of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</source>
        <translation>The part of the text from the start, counted from 1, with so many characters; without a count all up to the end.</translation>
    </message>
    <message>
        <source>Der Text in großen Buchstaben.</source>
        <translation>The text in capital letters.</translation>
    </message>
    <message>
        <source>Der Text in kleinen Buchstaben.</source>
        <translation>The text in small letters.</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Teks kosong</translation>
    </message>
    <message>
        <source>Der Text ohne Leerzeichen am Anfang und am Ende.</source>
        <translation>The text without blanks at its start and end.</translation>
    </message>
    <message>
        <source>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</source>
        <translation>The text with the replacement wherever the text looked for was.</translation>
    </message>
    <message>
        <source>Der Treiber %1 für die Linkdatenbank fehlt</source>
        <translation>Driver %1 untuk basis data tautan tidak ada</translation>
    </message>
    <message>
        <source>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</source>
        <translation>The value as a text, a number with so many decimals; without decimals as it is.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</source>
        <translation>The angle in degrees between the x axis and the line from the origin to the point (x, y).</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Kosinus hat.</source>
        <translation>The angle in degrees that has this cosine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Sinus hat.</source>
        <translation>The angle in degrees that has this sine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Tangens hat.</source>
        <translation>The angle in degrees that has this tangent.</translation>
    </message>
    <message>
        <source>Der natürliche Logarithmus.</source>
        <translation>The natural logarithm.</translation>
    </message>
    <message>
        <source>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</source>
        <translation>The second value if the comparison holds, else the third.</translation>
    </message>
    <message>
        <source>Die Anweisung enthält ein Nullzeichen</source>
        <translation>Pernyataan berisi karakter nol</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Keluaran tidak dapat ditulis: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Berkas berubah saat dibaca.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Fungsi %1 tidak dikenal</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Grup "%1" tidak ada di basis data tautan, atau %2 bukan anggotanya</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>Basis data tautan %1 tidak menjawab, koneksi ke sana dihentikan</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Basis data tautan %1 tidak ada</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>Basis data tautan %1 berbentuk %2, program ini hanya mengenal bentuk %3; diperlukan versi yang lebih baru</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Basis data tautan %1 tidak dapat dibuka: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Basis data tautan sedang bekerja</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>Tabel %1 tidak ada di basis data tautan</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabel proyek tujuan tidak dapat dibaca.
  Proyek: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Tabel basis data tautan %1 tidak dapat dibuat atau diperbarui: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Koneksi ke basis data tautan %1 tersambung kembali</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Koneksi ke basis data tautan %1 terputus: %2</translation>
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
        <source>Die Zahl e, hoch der Zahl.</source>
        <translation>The number e to the power of the number.</translation>
    </message>
    <message>
        <source>Die Zahl ohne ihre Nachkommastellen.</source>
        <translation>The number without its decimals.</translation>
    </message>
    <message>
        <source>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</source>
        <translation>The number that the text reads as; no value if it is none.</translation>
    </message>
    <message>
        <source>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</source>
        <translation>The number, rounded to that many decimals; without decimals to a whole number, with negative ones before the decimal point.</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Baris target sudah dikonfirmasi untuk baris lain.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Baris terhapus %1 tidak ada lagi di catatan basis data tautan; mungkin sudah dipulihkan</translation>
    </message>
    <message>
        <source>Die größte der Zahlen.</source>
        <translation>The largest of the numbers.</translation>
    </message>
    <message>
        <source>Die kleinste der Zahlen.</source>
        <translation>The smallest of the numbers.</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Perubahan hilang bersama koneksi ke basis data tautan; harus diulang</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Nomor ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Sebuah teks dalam rumus untuk %1 melebihi %Ln karakter dan tetap tanpa nilai</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Skrip lain masih berjalan</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Berkas pemetaan harus berisi sebuah objek.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Rilis ini berada di antara dua rilis bertanggal sama.</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Tidak ada koneksi ke basis data tautan. Itu dipilih di pengaturan.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Tidak ada basis data tautan yang terhubung.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Jumlah argumen salah untuk fungsi %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Kesalahan basis data tautan: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Tidak ada repositori yang diatur untuk katalog "%1"; namanya tidak menghasilkan alamat</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Di belakang dokumen ada bita bernilai 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>Di %1 tidak ada basis data tautan, atau bentuknya lebih lama. Itu dibuat atau diperbarui saat penulisan pertama.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>Alamat basis data tautan berisi kata sandi. Tempatnya di berkas kata sandi atau di PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Tidak ada jawaban dari %1 dalam %2 dtk</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Tidak ada baris target yang cocok dengan ini.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Perubahan yang belum tersimpan hilang (pernyataan: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Sama hanya karena kondisi atau pemetaan variabel yang diusulkan. Keduanya berlaku begitu satu baris target dikonfirmasi.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Sumber dan tujuan tidak memiliki variabel bersama yang bernilai.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>teks</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>teks di belakang tanda kutip penutup sebuah sel</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>teks, awal, jumlah</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>teks, dicari</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>teks, dicari, pengganti</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>perbandingan, maka, jika tidak</translation>
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
        <source>Wert</source>
        <translation>nilai</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>nilai, desimal</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>nilai, nilai, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Nilai bersarang terlalu dalam.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>sudut</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>bilangan</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>bilangan, desimal</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>bilangan, pembagi</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>bilangan, bilangan, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Karakter %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>baris %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>baris %1, kolom %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Baris %1, karakter %2: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>karakter desimal adalah “.” atau “,”</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>akhir</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>kolom tidak memiliki nama</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>kolom “%1” ada dua kali</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>proyek tidak memiliki tabel; leksem SACHM harus menyebutkannya</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>proyek tidak dibaca</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>kolom hitungan “%1” tidak memiliki rumus</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>itu adalah alamat; hanya berkas yang dibaca</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>deskriptor memiliki lineSubIdField tanpa lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>entri “%1” ada dua kali</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>nama berkas berisi karakter NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>rentang "%1" dari %2 memiliki terlalu banyak nilai (%3); hanya %Ln yang ditelusuri</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>tanda kutip sel tidak berpasangan</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>kondisi tidak memiliki nama</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>byte-nya bukan UTF-8; simpan berkas sebagai UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>berkas kosong; baris pertamanya harus menamai kolom</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>syarat filter "%1" tidak dapat diurai: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>rumus kolom terhitung "%1" tidak dapat diurai: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>langkah "%1" tidak lebih dari 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>kolom tidak bernama</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>kolom "%1" dari deskriptor tidak ada</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>kolom "%1" yang disebut %2 pada deskriptor tidak ada</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>kolom "%1" ada dua kali</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>berkas kunci di sebelahnya tidak dapat ditulis</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>bilangan "%1" terlalu banyak digit</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>nomor baris %1 sudah dipakai baris %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>kolom terhitung ini saling membutuhkan: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>tanda kutip di dalam sel yang tidak diawali dengannya; beri kutip seluruh sel dan gandakan kutip di dalamnya</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>sebuah tanda kutip tidak ditutup</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>diharapkan sebuah kolom, yaitu objek</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>diharapkan objek berisi teks</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>diharapkan objek dengan entri untuk setiap bahasa</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>diharapkan sebuah objek</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operator atau akhir</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>diharapkan sebuah teks</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>sebuah nilai di antara titik koma kosong</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>diharapkan sebuah kondisi, yaitu objek</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>diharapkan daftar kondisi</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>diharapkan daftar kolom</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>diharapkan daftar teks</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>diharapkan sebuah bilangan</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>diharapkan bilangan bulat dari 0 sampai 2147483647</translation>
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
        <source>ersetzt: %1</source>
        <translation>diganti: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>dikunci oleh %1 di %2 (proses %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>sama: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>bukan teks UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>tanpa nilai</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>JSON tidak sah: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>tidak dapat dibaca: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>tidak dapat dibuka: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>baris lebih banyak daripada yang dapat dimuat tabel</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>lebih dari 64 tingkat</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>tanpa padanan: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>demikian pula di %Ln baris lain</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" tidak ada; yang mungkin: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>diharapkan true atau false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>jenis “%1” tidak dikenal; yang dikenal: %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>tipe “%1” tidak dikenal; yang dikenal: %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>berbeda: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Perubahan sedang ditulis ke basis data tautan</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>mirip: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" berakhir di bawah awalnya</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1" tidak memiliki langkah; tulis seperti 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>“%1” adalah alamat; hanya berkas yang dibaca</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>“%1” bukan tanggal; tulis seperti 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1" bukan rentang nilai %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" bukan direktori yang dapat dibaca</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" bukan nomor baris, yaitu bilangan bulat dari 0 sampai 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>"%1" tidak dapat ditulisi</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>“%1” berada di luar katalog; pindahkan ke sana, atau izinkan direktorinya</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>“%1” berada di luar “%2”; pindahkan ke sana, atau izinkan direktorinya</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" ada lebih dari sekali; entri terakhir yang berlaku.</translation>
    </message>
</context>
</TS>
