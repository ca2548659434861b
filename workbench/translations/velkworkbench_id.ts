<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Tidak ada yang perlu diubah.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Konfirmasi %Ln baris?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Konfirmasi %Ln baris sebagai tidak berlaku?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Batalkan penetapan %Ln baris?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Batalkan penetapan %Ln baris dan konfirmasi sebagai tidak berlaku?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln di antaranya sudah dikonfirmasi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln di antaranya kehilangan penetapan rentang nilainya.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln baris tanpa target tetap belum dikonfirmasi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln baris tetap seperti adanya.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln baris dengan konflik tidak diubah.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln baris tidak tercatat dalam proyek target mana pun.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln baris dikonfirmasi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln baris dikonfirmasi sebagai tidak berlaku.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Penetapan %Ln baris dibatalkan.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Penetapan %Ln baris dibatalkan dan dikonfirmasi sebagai tidak berlaku.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>tanpa penerus</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tombol</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Kepastian</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Baris baru</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Alasan</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 sudah diputuskan atau pasti di sini</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 tanpa baris di rilis baru</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 saat itu dikonfirmasi tidak berlaku</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 di proyek yang tidak ada di sini</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 berkonflik di sana</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Tidak diambil alih: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Tidak ada yang dapat diambil alih dari %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Berkas tidak memuat pemetaan dari rilis katalog %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Berkas ini juga menuju rilis katalog %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Pilih pemetaan yang menuju dari rilis katalog lama yang sama ke rilis baru yang lebih awal.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Diambil alih dari %1: dikonfirmasi di sana untuk rilis katalog %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Membaca pemetaan terdahulu</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Tidak ada yang dapat diambil alih dari %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Direktori rilis katalog %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Mencari proyek target</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Mengambil alih keputusan</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Dibatalkan, tidak ada yang diambil alih</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Keputusan diambil alih dari %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Diambil alih dari %1: %2 dari %Ln baris terkonfirmasi, %3 ditetapkan dengan pasti, %4 diusulkan.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Direktori rilis katalog lama</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Direktori rilis katalog baru</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Direktori katalog</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Di mana kedua rilis katalog dari berkas pemetaan ini? Direktori diingat bersama berkasnya.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Rilis lama (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>Rilis &amp;baru (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Kedua direktori diperlukan.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 bukan direktori.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>%1 tidak ada dalam rilis lama. Yang dicari adalah direktori tempat katalog %2 berada.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Katalog %1 tidak ada dalam rilis baru.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Baris %1 di %2 tidak dapat ditampilkan</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Tidak ada baris yang berkonflik</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Semua konflik sudah diputuskan; simpan sekarang</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Konflik %1 dari %2, masih %3 terbuka</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln baris dari %1 bertentangan dengan cara yang sama. Apakah keputusan berlaku untuk semua?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Milik sendiri: %1
Milik pihak lain: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Untuk semua</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Baris demi baris</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Baris ini tidak berkonflik</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Keputusan sendiri tidak diketahui: baris sudah berkonflik saat dibuka</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Tidak ada baris yang berkonflik.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Semua konflik sudah diputuskan.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln baris lagi bertentangan seperti ini.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflik</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Pihak dalam konflik</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Sendiri</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Pihak lain</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Putuskan ulang</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 dari %Ln konflik masih terbuka.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>terbuka</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>sendiri</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>pihak lain</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>baru</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Keputusan sendiri</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Keputusan pihak lain</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Berlaku</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>ditetapkan otomatis</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>perlu diperiksa</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>dikonfirmasi</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>tanpa target, terbuka</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>dikonfirmasi sebagai tidak berlaku</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>tidak diketahui</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, baris %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Keadaan</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Proyek target</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Baris target</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Rentang nilai</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Baris lama</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Sebelumnya</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Keputusan sendiri</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Keputusan pihak lain</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Keterangan</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>sama</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>diganti seperti di %Ln baris lain</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>mirip</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>berbeda</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>hanya di baris baru</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>hanya di baris lama</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Lama</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Baru</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>Tabel tidak memiliki baris ini.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Tanpa target. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Baris yang ditetapkan bukan salah satu kandidat.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Lama dan baru</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Kandidat</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Dikonfirmasi.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Ditetapkan dengan pasti.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln baris</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>dibandingkan: %1 yang pertama</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Tidak ada perbedaan yang sama.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Kesamaan: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Baris yang dipilih</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Rilis katalog</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Berkas berisi beberapa rilis katalog. Mana yang dibuka?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Membaca berkas pemetaan</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Berkas tidak dapat dibuka.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Berkas dibuka hanya untuk dibaca.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Kunci dapat dilepas jika pasti tidak ada lagi yang bekerja di sana, misalnya setelah komputer mati mendadak.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Hanya baca</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Lepas kunci</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Kunci tidak dapat dilepas.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Katalog tidak diketahui; berikan dengan --source dan --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Simpan perubahan pada %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Perubahan yang dibuang akan hilang.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Simpan</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Buang</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln baris</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Masih %Ln baris berkonflik, di proyek-proyek ini:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Tampilkan &amp;konflik</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Tetap si&amp;mpan</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Tersimpan: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Berkas tidak disimpan.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>&amp;Gabungkan perubahan</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>&amp;Pertahankan salinan dan tulis baru</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Tulis versi sendiri</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Perubahan pihak lain sudah diambil alih. Harap periksa lalu simpan sekali lagi.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Perubahan pihak lain tidak dapat diambil alih.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Berkas pemetaan tidak dapat dibuat.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>dan %Ln lagi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Membaca %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Berkas pemetaan %1 tidak dapat dibaca (%2).
Harap pilih berkas lain atau salin kembali cadangan %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Berkas pemetaan %1 tidak dapat dibaca (%2).
Harap pilih berkas lain.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 tidak berisi rilis apa pun.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 tidak berisi rilis %2. Yang ada: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 dibuka hanya untuk dibaca.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 sedang disunting oleh %2 dan karena itu dibuka hanya untuk dibaca.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Folder %1 tidak dapat ditulisi (%2). Karena itu berkas dibuka hanya untuk dibaca; bila disimpan dengan nama lain, berkas dapat disunting.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Untuk %1 ada pekerjaan yang belum disimpan. Pekerjaan itu ditawarkan begitu berkas dapat dibuka untuk disunting (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 masih memiliki nama lain (tautan keras). Saat disimpan, berkas dengan nama lain itu tetap seperti semula.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Menyimpan %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Mencadangkan %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 sedang disunting oleh %2. Tidak ada yang ditulis. Harap pilih nama lain.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Tidak ada yang dapat dibuat di folder %1 (%2). Tidak ada yang ditulis. Harap pilih folder lain.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Tidak ada baris proyek ini dalam filter.
Buka “%1” dan pilih “%2” untuk melihat semua baris lagi.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Tidak ada proyek yang memiliki baris dalam filter.
Buka “%1” dan pilih “%2” untuk melihat semua proyek lagi.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Berkas pemetaan (*.json);;Semua berkas (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Buka berkas pemetaan</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Simpan berkas pemetaan</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Simpan tabel</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabel (*.csv);;Semua berkas (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Pilih salinan bersama</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Ambil alih keputusan dari</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filter dihapus: proyek tidak punya baris di dalamnya</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Sudah sampai akhir, lanjut dari awal</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Sudah sampai awal, lanjut dari akhir</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Tidak ada baris tersisa dalam filter</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>teks diganti</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>angka dikonversi</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Keadaan</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Mengapa terbuka</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Jenis perbedaan</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Perbedaan di kolom</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Terakhir diputuskan oleh</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>tidak seorang pun</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(tidak ada)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>bukan yang dipilih</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Membaca tabel...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln baris</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>di %Ln proyek</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Tanpa filter: semua baris</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Tabel tak terbaca: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter semua baris</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Nilai</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>&amp;Hapus filter</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Asal</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>diambil alih dari pemetaan terdahulu</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 bukan berkas biasa sehingga tidak dapat dipakai sebagai kunci. Tidak ada yang ditulis. Harap singkirkan apa yang ada di sana.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 sedang disimpan oleh program lain. Tidak ada yang ditulis. Harap simpan lagi sebentar lagi.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Tidak ada yang dapat dibuat di folder %1 (%2). Tidak ada yang ditulis. Harap kosongkan ruang atau simpan dengan nama lain.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 tidak dapat dibaca (%2). Tidak ada yang ditulis. Harap simpan dengan nama lain.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 bukan berkas pemetaan yang dapat dibaca (%2). Tidak ada yang ditulis. Saat menyimpan, berkas yang ada dipertahankan dengan nama bercap waktu dan dibuat berkas baru yang hanya berisi rilis ini.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 bukan berkas pemetaan yang dapat dibaca (%2). Tidak ada yang ditulis. Saat menyimpan, berkas yang ada dipertahankan dengan nama bercap waktu dan dibuat berkas baru. Rilis lainnya berasal dari cadangan %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 tidak terbaca dan tidak dapat dipertahankan sebagai %2 (%3). Tidak ada yang ditulis. Harap simpan dengan nama lain.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 telah dihapus atau diganti namanya sejak dibuka. Saat menyimpan, berkas dibuat baru dan hanya berisi rilis ini (%2). Belum ada yang ditulis.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 telah diubah orang lain sejak dibuka, tetapi bukan rilis ini (%2). Saat menyimpan, rilis lainnya tetap seperti yang sekarang ada di berkas. Belum ada yang ditulis.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 telah diubah orang lain sejak dibuka, termasuk rilis ini (%2). Saat menyimpan, perubahannya pada rilis ini hilang. Belum ada yang ditulis: tetap simpan, simpan dengan nama lain, atau buka kembali berkasnya.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>%1 tidak dapat ditulisi (%2). Tidak ada yang ditulis. Harap periksa hak tulis atau simpan dengan nama lain.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 tidak disimpan: %2. Berkas tidak berubah, perubahan masih terbuka. Harap kosongkan ruang dan simpan lagi, atau simpan dengan nama lain.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>berkas tidak dapat ditulis seluruhnya</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>berkas yang ditulis tidak dapat dibaca (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>berkas yang ditulis tidak berisi apa yang seharusnya disimpan</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>rilis %1 tidak ada dalam berkas yang ditulis, atau isinya lain</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Cadangan %1 tidak dapat dibuat (%2). Tidak ada yang ditulis. Harap kosongkan ruang atau simpan dengan nama lain.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 diubah orang lain saat sedang disimpan. Tidak ada yang ditulis. Harap simpan sekali lagi.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 tidak disimpan: %2. Berkas tidak berubah, perubahan masih terbuka. Harap simpan dengan nama lain.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Kembali</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Buku panduan</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Daftar isi</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Cari di halaman</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Riwayat keputusan...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Siapa memutuskan apa, kapan, dan mengapa</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Alasan keputusan...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Untuk keputusan terakhir atau baris yang dipilih, misalnya mengapa tidak ada penerus</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Baris %1 di %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln baris di %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Alasan dicatat: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Riwayat keputusan</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Baris yang dipilih</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Proyek yang dipilih</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Semua proyek</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Cari siapa, proyek, target, atau alasan</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Baca ulang</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Simpan sebagai CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Tutup</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Baris jurnal yang tidak terbaca: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Keputusan: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Berkas tidak dapat ditulis.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>tanpa penerus</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (belum disimpan)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Waktu</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Siapa</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Sampai kini</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Baru</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Apa</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Alasan</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Diambil alih dari %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Folder berisi berkas CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Direktori katalog</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Impor tabel</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Folder berisi berkas CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Direktori katalog:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Setiap berkas CSV menjadi proyek beserta tabelnya di tempat yang sama dalam katalog. Bila tabel diimpor lagi, nomor barisnya tetap.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Impor</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Folder berkas CSV belum diisi.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Direktori katalog tidak ada; akan dibuat bila direktori di atasnya ada.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Satu direktori berada di dalam direktori lainnya.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Konfirmasi baris atau tetapkan baris yang dipilih</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Batalkan penetapan baris</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Batalkan penetapan dan konfirmasi sebagai tidak berlaku</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Sunting penetapan rentang nilai</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Salin syarat dari baris</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Konfirmasi seluruh proyek</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Cari di tabel</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Cari berikutnya</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Cari sebelumnya</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Saringan kolom</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Salin baris</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Perbesar tabel</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Perkecil tabel</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabel ukuran normal</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Bawaan</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Tanpa tombol</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Tombol</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Perintah atau tombol</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Perintah</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Perintah</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Di mana</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tombol</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabel</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Jendela</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Tombol untuk %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Tombol %1 diperlukan oleh bidang dan daftar sendiri.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Tombol %1 akan dimiliki %2 dan %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Dipilih sendiri</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 tidak lagi memiliki tombol %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Tombol %1 kini milik %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Tidak ada yang ditemukan</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Dikonfirmasi: penetapan sudah diputuskan</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Usulan: harus dikonfirmasi atau diperbaiki</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Tanpa ikon: jelas sama, ditetapkan oleh program</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Penetapan tidak ditemukan</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Tidak berlaku: dikonfirmasi bahwa tidak ada penetapan</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Konflik dengan perubahan orang lain</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Proyek atau tabel tidak dapat dibaca</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Penetapan rentang nilai baris</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>Di tabel target: baris yang ditetapkan</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Tutup</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Syarat disalin ke papan klip</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Syarat yang disalin belum dapat dipakai begitu saja: ada nilai yang kosong, berupa rentang, atau berisi tanda kutip: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Di dalam saringan ini semuanya selesai, di luarnya masih %Ln baris terbuka.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Sudah sampai akhir, lanjut dari awal</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Sudah sampai awal, lanjut dari akhir</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Konflik %1 dari %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Tidak ada baris dalam salah satu keadaan yang dipilih</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Tidak ada lagi baris yang memerlukan keputusan</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Tidak satu pun baris terbuka dapat ditampilkan; tabelnya tidak ada</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Buka baris</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Nomor atau sebutan standar:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Tidak ada proyek yang dipilih</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Tidak ada baris dengan “%1” di proyek ini</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Temuan %1 dari %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Jalankan</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Langkah ini dapat diurungkan.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Yang dimaksud adalah baris yang ditandai.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Yang dimaksud adalah semua baris proyek.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Saringan: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Tidak ada proyek lain dengan baris seperti itu</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Yang dimaksud hanya baris proyek yang ditampilkan: %1 dari %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Konflik</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Tampilkan hanya baris yang berkonflik dengan perubahan orang lain, beserta proyeknya</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Perlu diperiksa</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Tampilkan hanya baris dengan usulan yang harus dikonfirmasi atau diperbaiki, beserta proyeknya</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Tanpa target</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Tampilkan hanya baris yang tidak ditemukan padanannya, beserta proyeknya</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Otomatis</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Tampilkan hanya baris yang jelas sama dan ditetapkan oleh program, beserta proyeknya</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Dikonfirmasi</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Tampilkan hanya baris dengan penetapan yang dikonfirmasi, beserta proyeknya</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Tidak berlaku</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Tampilkan hanya baris yang dikonfirmasi sebagai tidak berlaku, beserta proyeknya</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Gunakan basis data tautan</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Berkas di komputer ini</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Server PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>yang biasa</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Kata sandi ada di berkas kata sandi, di penyimpanan kunci desktop, atau di PGPASSWORD, atau dimasukkan saat masuk. Kata sandi tidak disimpan.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>bila mungkin</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>selalu</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>selalu, server diperiksa</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>tidak pernah</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Jenis:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Berkas:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Komputer:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>Basis &amp;data:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>Pe&amp;ngguna:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Enkripsi:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Basis data tautan: nama berkas belum diisi.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Basis data tautan: nama basis data belum diisi atau tidak sah.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Periksa nomor basis data tautan</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>Tidak ada grup dalam basis data tautan yang Anda ikuti.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Pilih grup</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Grup basis data tautan:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Baris %1 dari %2 tidak ada dalam pemetaan ini.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Memeriksa nomor basis data tautan</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Nomor tidak dapat diperiksa.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Perubahan dalam basis data tautan mungkin hilang.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Lisensi untuk basis data tautan tidak ada.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Masuk ke basis data tautan</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Kata sandi berlaku sampai program berakhir dan tidak disimpan. Bila dikosongkan, diambil dari berkas kata sandi.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Dengan nama ini, catatan menyebutkan siapa yang menghapus sesuatu.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Pengelola tautan</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Cari nomor, proyek, atau uraian</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Nomor</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Uraian</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Tampilkan baris</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>Tautkan ke &amp;baris lain...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Kemudian pilih proyek dan baris, lalu kirim pilihan dengan “Pilihan ke pengelola tautan”.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>Terakhir &amp;dihapus...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>T&amp;utup</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Tautan: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Tidak ada yang dihapus yang dapat dipulihkan.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Pulihkan yang terakhir dihapus? Baris: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 menghapusnya pada %2 dari %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Pulihkan</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>%Ln tautan pertama; pencarian menampilkan yang lain.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Pemeriksaan nomor</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Nomor</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Hasil</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Nomor pada proyek pemetaan ini: %1, pada proyek lain: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Tidak dibandingkan karena tidak terbaca: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Tutup</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Baris tidak berlaku atau tidak ada</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>dikonfirmasi sebagai tidak berlaku</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>proyek tidak memilikinya</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Diklaim beberapa baris</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Komponen berbeda</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Komponen berbeda (tidak dibandingkan)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Baris terbuka dengan nomor</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Nomor: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Baris %1 tidak ada di %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Proyek %1 tidak dapat ditampilkan.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Temukan</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Proyek, baris, perintah, atau pengaturan</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Ditemukan</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Potongan kata sudah cukup; angka di belakangnya berarti baris.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Tidak ada yang ditemukan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln temuan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>%1 temuan pertama dari %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Baris %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Perintah</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Pengaturan</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Kesalahan: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Peringatan: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Pesan</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Hapus pesan</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Salin semua pesan</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Pengguna:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Kata sandi:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Tidak ada koneksi ke basis data tautan: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Nomor ERP tidak dapat dibaca. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Baris ditetapkan ulang: tidak ada perubahan</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Di sini tidak ada baris seperti itu. %1 menuju yang berikutnya.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>hanya baca</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Di kiri terdapat rilis katalog lama. Ikon menunjukkan di mana masih ada yang harus diputuskan. Pilih proyek untuk melihat barisnya.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Di sini terdapat proyek rilis baru yang dapat mengambil alih baris, dengan syarat dan pemetaan variabel.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Di kiri tabel lama, di kanan tabel baru. %1 mengonfirmasi penetapan atau menetapkan baris yang dipilih di kanan, %2 membatalkannya, %3 mengonfirmasi bahwa baris tidak berlaku lagi.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Yang masih terbuka</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Penghitung menunjukkan berapa baris memerlukan keputusan. %1 menuju baris berikutnya, juga di proyek berikutnya.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Tidak ada yang hilang</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Setiap langkah dapat diurungkan. Setelah program mogok, yang belum disimpan ditawarkan untuk dipulihkan. Tur ada di menu Bantuan.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Tetapkan baris seluruh katalog?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Yang dikonfirmasi tetap dipertahankan. Langkah ini dapat diurungkan.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Hanya baris tanpa penetapan</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Semua yang belum dikonfirmasi dari awal</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Semua proyek ditetapkan</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Proyek target %1 tidak ada.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Proyek target: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Pengaturan: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Tidak ada petunjuk untuk tempat ini</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Kosongkan daftar</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Berkas</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Berbagi</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Terakhir dibuka</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Sunting</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>&amp;Navigasi</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>T&amp;injau</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Tampilan</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Hanya baris</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>B&amp;antuan</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Basis data tautan</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Keadaan baris</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Alat</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Tidak ada berkas yang terbuka untuk disunting.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Perubahan sendiri di atas versi berkas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln konflik: keputusan sendiri</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln konflik: keputusan pihak lain</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln konflik: diputuskan ulang</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Jurnal %1 tidak dapat ditulis (%2). Bila program mogok, perubahan akan hilang: harap segera simpan.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Versi yang dipulihkan tidak dapat diamankan (%1). Harap kosongkan ruang dan buka lagi; jurnal tidak berubah.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Pemulihan setelah program mogok</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Jurnal %1 tidak dapat dibuat (%2). Bila program mogok, perubahan akan hilang: harap sering menyimpan.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Tidak ada berkas pemetaan yang terbuka.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Sedang menyimpan.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Tidak disimpan. %1 Harap simpan dengan nama lain.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Kunci %1 hilang dan tidak dapat diperbarui. Orang lain dapat menyunting berkas pada saat yang sama.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Pencadangan otomatis gagal (%1). Harap segera simpan.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Perubahan tidak diterapkan. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Konflik ditandai</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Diurungkan: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Diulangi: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1” tidak cocok lagi dengan yang diubah sesudahnya. Daftar langkah menunjukkan apa yang menghalangi.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Mencari proyek target</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Dibatalkan, tidak ada yang dibuat</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Menetapkan baris</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln proyek: %1 di tempat yang sama, %2 di tempat lain, %3 dibagi, %4 tanpa target, %5 tidak terbaca</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 dari %Ln proyek</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>di antaranya %1 ditetapkan, %2 perlu diperiksa, %3 tanpa target</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Dibatalkan: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 dengan %Ln baris</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln perubahan diambil alih.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln baris diputuskan sama oleh keduanya.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln baris diputuskan berbeda dan ditandai sebagai konflik.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln pertentangan lain: versi berkas yang berlaku.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Baris %1 tidak dapat ditampilkan</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Tidak ada temuan yang dipilih</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Diperbaiki: %1 di %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tabel sedang dibandingkan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln baris yang ditetapkan telah dilihat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln temuan</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Tetangga</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Baris %1 sampai %2 bergeser sebanyak %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Baris %1 dan %2 tertukar</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Baris %1 meleset sebanyak %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Baris %1 memiliki baris target milik baris lain</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Baris %1 terlewati</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>terbuka</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Diperbaiki: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Temuan</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Diperbaiki</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyek</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Direktori rilis katalog lama</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Direktori rilis katalog baru</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Langsung tetapkan baris</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Pemetaan baru</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Rilis katalog lama:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Katalog di dalamnya:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>Rilis &amp;katalog baru:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Pilih berkas pemetaan</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Berkas pemetaan:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>Bua&amp;t</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Direktori rilis katalog lama belum diisi.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Direktori rilis katalog baru belum diisi.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Setiap rilis memerlukan direktori berisi katalog.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Berkas pemetaan memerlukan nama.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Direktori %1 tidak ada.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 sudah ada.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Saat disimpan, rilis baru ditambahkan; rilis dengan tanggal yang sama diganti, beserta semua yang dikonfirmasi di dalamnya.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Gunakan berkas ini</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>media penuh</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>berkas menjadi lebih besar daripada yang diizinkan di sini</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>tidak ada hak tulis</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>media dilindungi dari penulisan</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>folder atau berkas sudah tidak ada</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>di tempatnya ada sesuatu yang bukan berkas biasa</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>tanpa target</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Baris lama</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Baris baru</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Perbedaan lain</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Tabel proyek tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Jalur:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Standar:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Sebutan:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Versi proyek:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Versi tabel:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Baris:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Berkas:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Saring</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Buka folder</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Tutup</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln baris terbuka dengan usulan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>dalam %Ln pola</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln di antaranya masih dibandingkan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Dipilih: %Ln baris</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln di antaranya dikeluarkan</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Perbedaan baris terbuka</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>di %Ln proyek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln baris terbuka tanpa penerus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tabel sedang dibandingkan: %Ln proyek dibaca</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln baris</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln proyek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln baris lagi memiliki perbedaan ini dan lainnya</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Perbedaan</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Kepastian</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Pengecualian</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>angka yang dekat</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>angka lain</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>susunan kata lain</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>nilai bertambah</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>nilai hilang</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>tidak dapat dibandingkan</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>tidak ada perbedaan</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>ejaan lain</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>tidak pasti: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>seluruh folder tanpa tujuan: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>seluruh proyek tanpa tujuan: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>proyek tujuan tidak ada lagi: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 tidak ada lagi</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>tidak ada baris serupa: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>nama proyek</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>yang lain</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>nilai lain</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>satu atau beberapa di antaranya pada tiap baris</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>tidak tersedia: tidak ada berkas yang terbuka</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>tidak tersedia: sedang menghubungkan basis data tautan</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>tidak tersedia: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>tidak tersedia: tidak ada basis data tautan yang terhubung</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>tidak tersedia: pengelola tautan tidak menunggu pilihan</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>tidak tersedia: tidak ada proyek yang dipilih</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>tidak tersedia: tidak ada baris yang dipilih</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Nomor ERP untuk %1, baris %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Mohon berikan nomor ERP.

Proyek: %1
Baris: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Surel tidak dapat dimulai.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Di komputer ini tidak ada program surel yang disiapkan. Permintaannya berbunyi:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Tidak ada tabel yang tampak untuk dicetak</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Laporan</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Cetak: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 telah dikirim ke pencetak</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 dicetak ke %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 tidak dapat dicetak.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Pencetak tidak menerima halaman.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 tidak dapat ditulis.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Halaman</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Catatan</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Ya</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Tidak</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Batal</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Baris %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln baris dikonfirmasi meskipun nilai dalam rentangnya tidak memiliki baris baru.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Tarik kembali</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>Tetap &amp;konfirmasi</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln baris</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Baris tidak memiliki penetapan rentang nilai.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>tidak ada: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>berulang: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>tidak dalam rentang lama: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rentang nilai baris</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 dari %Ln nilai ditetapkan</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Alasan keputusan</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Untuk:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Alasan:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>tidak diproduksi lagi</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>digabung dengan komponen lain</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>dibagi menjadi beberapa komponen</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>dipindahkan ke katalog lain</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>belum diperiksa</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Pemulihan</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Tersimpan</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Dipulihkan</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Per tanggal</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Dikonfirmasi</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Perlu diperiksa</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Tanpa target</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Versi tersimpan lebih baru daripada semua yang dapat dipulihkan.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Pulihkan</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Dengan perubahan kemudian (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Buka versi tersimpan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln langkah</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Untuk %1 ada pekerjaan yang belum disimpan: %2, terakhir “%3”. Berasal dari %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 dengan %Ln baris</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 di %Ln proyek</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Mengimpor tabel</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 tidak lagi memiliki berkas CSV dan tetap seperti adanya</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Tidak ada berkas CSV di folder; tidak ada yang diimpor</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Dibatalkan: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Tidak semuanya ditulis: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 tidak dapat ditulis.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Ekspor baris</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabel (*.csv);;Semua berkas (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Mengekspor baris</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Dibatalkan, tidak ada yang diekspor</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Tulis laporan</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Berkas PDF (*.pdf);;Halaman HTML (*.html);;Semua berkas (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Membuat laporan</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Dibatalkan, tidak ada laporan yang ditulis</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Menata halaman</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Laporan ditulis ke %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Dibatalkan, tidak ada laporan yang dibuat</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Halaman %1 dari %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabel</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 baru, %2 diubah, %3 tidak berubah, %4 tidak diimpor</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln baris diekspor ke %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 dengan %Ln baris</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Penggantian yang disepakati</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>di seluruh rilis katalog</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Sepakati</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Cabut</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Bukti</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Ambil alih</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Penggantian menyatakan bahwa nilai lama mewakili nilai baru. Penggantian membuat usulan, tetapi tidak mengonfirmasi apa pun.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>disepakati</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>disepakati di %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Tabel sedang dibaca</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln baris mendukung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln baris menentang</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Belum ada yang disepakati. Saat daftar perbedaan terbuka, penggantiannya ditawarkan di sini.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Laporan pemetaan: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Rilis katalog %1 ke %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Dibuat pada %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Keadaan baris saat ini</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Menurut folder, beserta semua di bawahnya</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Menurut proyek</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Mengapa baris terbuka</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Perbedaan baris terbuka dari usulannya</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Sampel</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Siapa memutuskan apa</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Baris terbuka</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Yang tidak dapat dibaca</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Dikonfirmasi</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Dikonfirmasi sebagai tidak berlaku</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Ditetapkan dengan pasti</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Perlu diperiksa</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Tanpa target</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>Berkonflik</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Baris</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Sebutan</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Alasan</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Perbedaan</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Probabilitas</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Pengecualian</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Contoh</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Waktu</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Siapa</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Apa</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Dinilai</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Benar</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Paling banyak salah (95 % pasti)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>ditolak</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabel tidak terbaca</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>tidak dapat dibandingkan</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>tidak ada perbedaan</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>tidak ada</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>dan %1 lainnya</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>dua orang memutuskan berbeda</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>orang lain memutuskan</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>ada tabel yang tidak terbaca</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>syarat atau rumus gagal</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>tidak ada target yang berwenang</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>ada kolom yang hilang</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>beberapa baris sama</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>terlalu berbeda</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>sama, hanya belum dikonfirmasi</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>tidak pasti: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Baris terbuka tanpa pengganti</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Baris yang dikonfirmasi tidak berlaku</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Persamaannya</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>jumlah</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Diambil alih dari pemetaan terdahulu</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Pemetaan terdahulu</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Masih seperti saat diambil alih</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Baris yang dinilai</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Baris selesai: %1 dari %2; terbuka: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>Baca proyek &amp;target dari repositori</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://server:porta/jalur</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Satu katalog per baris. Tanpa baris, nama katalog sekaligus nama servernya.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>yang terbaru</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> dtk</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Re&amp;visi:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>&amp;Ruang di mesin ini:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>&amp;Menunggu server:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Server, baris %1: &quot;%2&quot; tidak berbentuk &quot;Katalog = svn://server:porta/jalur&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Masuk ke repositori</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 meminta Anda masuk.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Nama dan kata sandi berlaku sampai program berakhir dan tidak disimpan.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Baris %1 tidak dapat ditampilkan</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Tidak ada lagi baris terbuka</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tabel belum dibandingkan</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Dari awal: %Ln baris terbuka</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Baris terbuka muncul menurut ketidakpastiannya</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Baris terbuka muncul menurut tempatnya</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Baris tidak termasuk pola yang dipilih</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Baris %1 dikeluarkan</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Tidak ada pola yang dipilih, atau semua barisnya sudah diputuskan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln baris</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>konfirmasi di %Ln proyek?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Langkah ini dapat diurungkan.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Konfirmasi</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln baris dikonfirmasi</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Kandidat %1 tidak ada</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Baris %1 → %2 dikonfirmasi</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Penggantian disepakati: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Pilih pola, atau tandai baris terbuka</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Sampel</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Ambil</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Sampel, baris %1 dari %2: + benar, − salah</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Tidak ada sampel yang berjalan</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Semua baris sampel sudah diputuskan</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 dari %2 benar</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Sampel ditolak, %1; dinilai oleh %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>semua baris dinilai</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>dengan kepastian 95 % kurang dari %1 % salah</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Sampel: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>dinilai oleh %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>yang salah ada di sana</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Baris %1 salah: sampel selesai</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Lanjut</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>Lihat &amp;baris yang salah</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln di antaranya tidak pasti.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Semua pola sudah selesai</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>di %Ln proyek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln baris dikonfirmasi sebagai tidak berlaku</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Baris %1 di %2 salah. Himpunan telah dibagi; lanjut dengan bagian mana?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Sebanyak ini dari %Ln baris diambil acak dan dinilai satu per satu. %1 yang benar menyatakan dengan kepastian 95 % bahwa kurang dari 5 % salah, %2 yang benar kurang dari 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Konsol skrip</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Keluaran skrip</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Baris sebuah skrip</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Satu baris JavaScript. Enter menjalankannya, Tab melengkapi, Atas dan Bawah menelusuri.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Hentikan</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Menghentikan skrip yang berjalan (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Kosongkan</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Menghapus keluaran</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Skrip %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konsol)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Selesai, status %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Baris %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Terlalu besar.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Bukan teks UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 tidak dapat dibaca. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Buka skrip</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Skrip (*.js);;Semua berkas (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Simpan skrip</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 tidak dapat ditulis. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Skrip belum disimpan.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(tanpa nama)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Skrip baru</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Skrip</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Buka …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Jalankan</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Hentikan</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumen:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Teks skrip</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumen</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>di</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(proses %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Jurnal %1 tidak dapat dibaca (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Setelah sesi terakhir yang selesai, jurnal %1 tidak terbaca. Apa isinya tidak diketahui; jurnal dipertahankan.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Akhir jurnal %1 tidak terbaca. Perubahan terakhir mungkin hilang.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Jurnal %1 rusak. Setelah bagian yang rusak, %Ln perubahan masih cocok, %2 tidak lagi; yang lain mungkin hilang. Jurnal dipertahankan.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Jurnal %1 rusak atau tidak cocok dengan berkas pemetaan. Sedikitnya %Ln perubahan berikutnya hilang; jurnal dipertahankan.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Setelah keputusan, &amp;lanjut ke baris terbuka berikutnya</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Pengaturan</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Seperti desktop</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Terang</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Gelap</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>tidak pernah</translation>
    </message>
    <message>
        <source> min</source>
        <translation> mnt</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>Ba&amp;hasa:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>&amp;Warna:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>&amp;Ukuran huruf:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>&amp;Cadangkan setiap:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Kontras tinggi</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Satu folder per baris, dari mana boleh dibaca apa yang disebut file katalog di luar katalog.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Folder yang diizinkan:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Folder yang diizinkan: &quot;%1&quot; bukan folder dengan jalur lengkap.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Pemetaan tidak dibagikan dengan siapa pun. Pilih dahulu salinan bersama.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 sudah ada dan merupakan pemetaan lain. Pilih salinan lain, atau ambil yang ada ke berkas baru.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Pihak lain telah menerbitkan sesuatu sejak pembaruan terakhir.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Baris berkonflik tidak diterbitkan: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Ada perubahan di folder milik orang lain: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Folder sudah dipegang: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Orang lain sedang menerbitkan (%1). Harap coba lagi sebentar lagi.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Salinan bersama tidak dapat dijangkau: %1. Berkas sendiri tidak berubah; coba lagi nanti.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Salah satu berkas bukan pemetaan yang terbaca: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Tidak dapat ditulis: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Tidak berhasil.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Membaca salinan bersama</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Dibagikan melalui %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Mengambil perubahan pihak lain</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Tidak ada yang baru</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Menerbitkan perubahan</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Pemetaan disunting</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Diterbitkan, revisi %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Itu diambil alih dahulu. Setelah itu dapat diterbitkan.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Perbarui</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Tetap terbitkan</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Ambil alih folder</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>&amp;Ambil alih</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Mencatat folder</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Tidak ada lagi folder sendiri</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Folder sendiri: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(di sini)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>sedang membukanya</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>tidak membukanya</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>terakhir %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>folder %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Revisi sendiri %1, revisi terbaru %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Pihak lain telah menerbitkan sesuatu.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Tidak ada yang baru dari pihak lain.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Perubahan sendiri belum diterbitkan.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Salinan bersama: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Penerbitan terakhir terputus, tetapi sudah sampai.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Penerbitan terakhir terputus. Harap terbitkan sekali lagi.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Berkas bersama telah diubah di salinan kerja dan belum dikirim. Perubahan itu disimpan di %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Salinan kerja ditinggalkan di tengah pekerjaan dan telah dirapikan.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Pengelolaan salinan kerja rusak dan telah diambil ulang; yang sebelumnya adalah %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Sesuatu yang terputus telah dibereskan.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Folder katalog, dipisahkan koma; * berarti sembarang karakter, ? satu karakter. Kosong mengembalikan semuanya:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>urungkan</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Semua sudah diputuskan</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Baris yang masih memerlukan keputusan</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Hanya baca</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filter: tidak ada baris</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Baris yang ditampilkan filter semua baris</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln baris&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Terbuka: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 di %Ln proyek</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Belum ada baris yang ditetapkan</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Kemajuan</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Membatalkan pekerjaan yang berjalan; yang sudah selesai tetap ada</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Kesalahan dan peringatan: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Langkah</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Cari siapa, apa atau baris</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Kembali sampai sini</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Membatalkan langkah ini dan semua langkah sesudahnya yang berlaku</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Ke b&amp;aris</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Tutup</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Batalkan bersama yang bergantung (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Batalkan yang ini saja</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Ulangi bersama yang sebelumnya (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Ulangi</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Belum ada langkah</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Tidak ada langkah lain yang bergantung padanya.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Langkah ini dapat diulangi sendiri.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Yang bergantung padanya: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Bergantung pada: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Menghalangi, karena memutuskan lain: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Sekarang ada hal lain di sana yang tidak diputuskan langkah mana pun dalam daftar ini, misalnya oleh program lain. Langkah tidak dapat dipindahkan lagi.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>dan %Ln lagi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 di %Ln proyek</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>berlaku</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>dibatalkan</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>terlampaui</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Per tanggal</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Waktu</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Siapa</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Apa</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Baris</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Perubahan di %1 baru berlaku setelah baris ditetapkan ulang. Saat itu hanya yang dikonfirmasi yang dipertahankan.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln baris di %1 sebelumnya dikonfirmasi sebagai tidak berlaku dan sekarang tidak lagi: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>Di %1 ada variabel yang tetap diabaikan: %2. Untuk memetakan salah satunya lagi, pilih &quot;Rumus...&quot; atau hapus baris dan masukkan lagi.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Sebuah syarat proyek target %1 di %2 gugur.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Sebuah pemetaan variabel proyek target %1 di %2 gugur.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Baris %1 → %2 di %3: baris target juga dimiliki %Ln baris lain: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln baris di %1 berbagi baris target dengan yang baru ditetapkan: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln konflik diterima</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln baris dikonfirmasi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln baris dikonfirmasi sebagai tidak berlaku</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln baris ditetapkan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>penetapan %Ln baris dibatalkan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>penetapan rentang nilai %Ln baris diubah</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>konflik %Ln baris diselesaikan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln baris diubah</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>baris %1 → %2 dikonfirmasi</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>baris %1 → %2 ditetapkan</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (sebelumnya %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>baris %1 dikonfirmasi sebagai tidak berlaku (sebelumnya %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>baris %1 dikonfirmasi sebagai tidak berlaku</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>penetapan baris %1 dibatalkan (sebelumnya %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Proyek ditambahkan</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Proyek dihapus</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Proyek target ditambahkan</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Proyek target dihapus</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Urutan proyek target diubah</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Syarat diubah</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Pemetaan variabel diubah</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versi diubah</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Status diubah</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 di %Ln proyek</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Kembali</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Lewati</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Berikutnya</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Selesai</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, baris %2: entri %3 penetapan rentang nilai tidak berbentuk {NAME=NILAI} -&gt; nomor baris: &quot;%4&quot;. Harap perbaiki atau uraikan ulang.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, baris %2: penetapan rentang nilai menyebut baris %3, tetapi baris itu tidak memiliki proyek target. Harap tetapkan atau kosongkan teksnya.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, baris %2: penetapan rentang nilai menyebut baris %3 yang tidak ada di %4. Harap perbaiki atau uraikan ulang.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: tabel proyek target %2 tidak dapat dibaca, penetapan rentang nilainya belum diperiksa. Harap periksa direktori proyek target (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Memeriksa penetapan rentang nilai</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln penetapan rentang nilai diperiksa</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>tidak ada cacat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln cacat</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (dibatalkan): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Padankan rilis katalog</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Sebuah katalog terbit dalam rilis baru, dan setiap baris rilis lama harus dialihkan ke baris rilis baru. Program mengusulkan, Anda memeriksa dan mengonfirmasi.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Terakhir dibuka:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Pemetaan baru...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Membuat berkas pemetaan baru dari dua rilis katalog</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>Buk&amp;a...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Membuka berkas pemetaan</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Buka katalog &amp;contoh</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Membuka berkas pemetaan sendiri untuk katalog contoh yang disertakan</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Simpan</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Menulis semua perubahan ke berkas pemetaan</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Si&amp;mpan sebagai...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Menulis ke berkas pemetaan lain</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>T&amp;utup</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Menutup berkas pemetaan</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Direktori katalog...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Memilih direktori rilis katalog lama dan baru</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>Salinan &amp;bersama...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Memilih salinan tempat beberapa orang mengerjakan pemetaan ini</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Segarkan</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Mengambil alih yang diterbitkan pihak lain</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Terbitkan</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Meneruskan perubahan sendiri kepada pihak lain</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Ambil alih folder...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Memberi tahu pihak lain folder mana yang Anda sunting sendiri</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>Siapa &amp;mengerjakan apa</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Menunjukkan siapa yang membuka pemetaan dan folder mana milik siapa</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Impor tabel...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Membuat proyek katalog dari folder berisi berkas CSV</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>&amp;Ekspor baris...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Menulis semua baris rilis beserta penetapannya ke berkas CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>&amp;Laporan...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Menulis sebagai PDF atau HTML sejauh mana rilis ini dan mengapa baris terbuka</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Keluar</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Mengakhiri program</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Urungkan</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Mengurungkan langkah terakhir</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>U&amp;langi</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Menjalankan lagi langkah yang diurungkan</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Konfirmasi baris...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Mengonfirmasi penetapan baris yang ditandai atau semua yang ditampilkan dalam satu langkah</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Konfirmasi baris tanpa target &amp;sebagai tidak berlaku...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Dari baris yang ditandai atau semua yang ditampilkan, mengonfirmasi yang tanpa target sebagai tidak berlaku</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>&amp;Batalkan penetapan...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Membatalkan penetapan baris yang ditandai atau semua yang ditampilkan dalam satu langkah</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Batalkan penetapan &amp;dan konfirmasi...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Baris yang ditandai atau semua yang ditampilkan tidak berlaku: membatalkan dan mengonfirmasi dalam satu langkah</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Tetapkan semua proyek...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Mencari penetapan untuk semua baris katalog; yang dikonfirmasi tetap</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>P&amp;eriksa penetapan rentang nilai</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Membandingkan semua teks rentang nilai dengan tabel proyek target</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>Sk&amp;rip...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Membuka jendela untuk menulis dan menjalankan skrip</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>Pe&amp;ngaturan...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Bahasa, huruf, tombol, cadangan</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>Baris &amp;terbuka berikutnya</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Menuju baris berikutnya yang memerlukan keputusan, juga di proyek berikutnya</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Baris terbuka &amp;sebelumnya</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Menuju baris sebelumnya yang memerlukan keputusan, juga di proyek sebelumnya</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Buka baris...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Mencari baris proyek menurut nomor atau sebutan</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>Tabel &amp;lainnya</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Beralih antara tabel lama dan tabel baru</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>Te&amp;mukan...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Menemukan proyek, baris, perintah, dan pengaturan menurut potongan kata</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Pola perbedaan</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Menunjukkan perbedaan baris terbuka dari usulannya</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Lama dan baru</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Menampilkan nilai lama dan baru baris berdampingan, beserta kandidatnya</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Konfirmasi pola...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Mengonfirmasi semua baris pola yang dipilih dalam satu langkah</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>Keluarkan &amp;baris</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Baris tidak dikonfirmasi bersama baris lain dari pola</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>Ba&amp;ris pola berikutnya</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Menuju baris terbuka berikutnya dari pola yang dipilih</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Baris pola &amp;sebelumnya</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Menuju baris terbuka sebelumnya dari pola yang dipilih</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>P&amp;ola berikutnya</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Memilih pola berikutnya dalam daftar</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Paling &amp;tidak pasti dahulu</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Baris terbuka muncul menurut bahaya kekeliruan, bukan menurut tempatnya</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>T&amp;etangga</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Menunjukkan di mana penetapan baris bertetangga tidak cocok satu sama lain</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>L&amp;uruskan baris</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Memperbaiki temuan tetangga yang dipilih dalam satu langkah</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>Pe&amp;nggantian...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Menyepakati penggantian nilai untuk rilis katalog atau mencabutnya</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Sa&amp;mpel...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Mengambil acak baris dari pola yang dipilih atau baris yang ditandai untuk dinilai satu per satu</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>S&amp;ampel: benar</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Baris sampel yang ditampilkan ditetapkan dengan benar</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Sampel: sala&amp;h</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Baris sampel yang ditampilkan salah ditetapkan; sampel berakhir</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Kandidat &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Menetapkan kandidat ini ke baris dan mengonfirmasinya</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Kandidat &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Kandidat &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Kandidat &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Kandidat &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rentang nilai baris</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Menunjukkan nilai mana dari rentang lama yang memiliki baris baru</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Kon&amp;flik</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Menampilkan baris yang diputuskan berbeda oleh dua pihak</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Konflik terbuka berikutnya</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Menuju baris berikutnya yang konfliknya masih terbuka</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Konflik: keputusan sendiri</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>Dalam konflik ini keputusan sendiri berlaku</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Konflik: keputusan pihak lain</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>Dalam konflik ini keputusan pihak lain berlaku</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Konflik: putuskan ulang</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Tidak satu pun keputusan berlaku; baris kembali tanpa target</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Membangun ulang tampilan: pohon, statistik, tabel dari cakram</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Buku panduan</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Membuka buku panduan di tempat yang bersangkutan</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>To&amp;mbol...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Menampilkan dan mengubah tombol semua perintah</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>Petunjuk &amp;untuk tempat ini</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Menampilkan petunjuk di tempat tombol bekerja: di tabel, mengapa baris dalam keadaannya</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Tur</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Menunjukkan dalam beberapa langkah letak segala sesuatu</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>Tentang &amp;program ini</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Versi dan direktori</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Langkah...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Menampilkan semua langkah, juga dari sesi lama, dan membatalkan satu per satu</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Proyek berikutnya dengan baris terbuka</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Ke proyek berikutnya yang perlu keputusan</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Proyek sebelumnya dengan baris terbuka</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Ke proyek sebelumnya yang perlu keputusan</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter semua baris</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Memilih baris semua proyek menurut status, alasan, perbedaan dan orang; F8 menelusurinya</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Cetak halama&amp;n...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Menampilkan halaman tabel yang tampak dan mencetaknya</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Menampilkan halaman laporan dan mencetaknya</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Cetak laporan...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Ambil alih keputusan...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Mengambil alih dari pemetaan terdahulu, dalam satu langkah, yang sudah dikonfirmasi untuk rilis lama yang sama</translation>
    </message>
</context>
</TS>
