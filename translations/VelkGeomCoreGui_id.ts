<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 dari %Ln proyek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 dari %Ln baris</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln proyek ditemukan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln baris</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(kosong)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Tampilkan semua kolom</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Hapus semua saringan kolom</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Semua kecuali yang dipilih</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Dilanjutkan dari awal tabel</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Dilanjutkan dari akhir tabel</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Pembuatan indeks pencarian</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Hapus syarat</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Tambah kondisi</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Direktori katalog tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Indeks pencarian tidak dapat dibuat: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Indeks pencarian masih dibuat.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Indeks pencarian masih dibuat; sejauh ini: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Pencarian gagal: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Pencarian tidak tersedia.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>%Ln proyek pertama; masih ada lagi. Cari lebih tepat.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Coba lagi</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Saringan</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Batalkan pembekuan</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Fungsi</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Proyek yang ditemukan</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Yang dicari adalah yang ada di mesin ini.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Cari di tabel</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Tidak ada baris yang cocok dengan filter kolom</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Salin</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Logika</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Saring menurut nilai ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Nama, standar, sebutan, atau nilai</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Tidak ditemukan</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Tidak ditemukan. Cari dengan kata lain atau syarat lebih sedikit.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Cari hanya di %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Temuan berikutnya (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Batalkan pengurutan</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Urutkan kolom menurun</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Urutkan kolom menaik</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Sembunyikan kolom</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Kolom ke kiri</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Kolom ke kanan</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Bekukan kolom sampai sini</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Sesuaikan lebar kolom</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Saringan kolom</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Saringan kolom %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Tutup pencarian (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Cari...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Cari kata atau tambah syarat.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Kata pencarian</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabel %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Kesalahan tidak dikenal</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Perbandingan</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Temuan sebelumnya (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>nilai</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Nilai kolom %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Rentang nilai (nilai: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Mencari ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Menampilkan baris yang nilainya memuat teks. Dengan =, &lt;, &lt;=, &gt; atau &gt;= di depan nilainya dibandingkan; ! di depan membalik, = saja mencari nilai kosong. &amp; meminta keduanya, | salah satunya. Alt+panah bawah menampilkan nilai.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Penetapan ke variabel tabel target</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>diawali dengan</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>kedua perbandingan berlaku</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>sampai</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>perbandingan tidak berlaku</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>salah satu perbandingan berlaku</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>berisi</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>dibagi</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>sama dengan</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>lebih besar dari</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>lebih besar atau sama dengan</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>pangkat</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>lebih kecil dari</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>lebih kecil atau sama dengan</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>kali</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>kurang</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>tambah</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>dan %Ln nilai yang lebih jarang</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>dan %Ln lainnya</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>dan %Ln baris lagi</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>tidak sama dengan</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>dari–sampai</translation>
    </message>
</context>
</TS>
