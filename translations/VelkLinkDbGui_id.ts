<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Baris %1</translation>
    </message>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(tidak dapat ditemukan)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <translation>%1 dari %2</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Perubahan oleh pengguna lain:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Baris ini ditandai sudah tidak berlaku.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Baris ini ditetapkan ulang. Baris yang baru ditetapkan tidak ada (secara lokal).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Baris ini telah ditandai tidak berlaku.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Baris ini ditetapkan ke baris&lt;br /&gt;%1 proyek %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Penetapan baru: &lt;br /&gt;%3 proyek %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Tetapkan baris yang dipilih</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Baris yang sedang ditetapkan</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Hapus semua saringan kolom</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Konfirmasi semua penetapan</translation>
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
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Proyek tujuan lain juga memiliki baris dengan nilai-nilai ini.
  Proyek: %1
  Baris: %2</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Tetapkan rentang nilai yang diuraikan untuk baris ini</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Tetapkan rentang nilai yang diuraikan</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Batalkan pilihan</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Pilihan ke pengelola tautan</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Kirim pilihan ke pengelola tautan</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Baris yang ditetapkan otomatis</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Tampilkan pohon tersaring</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Minta nomor ERP lewat surel</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Sunting...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Buat syarat untuk baris yang dipilih dan salin ke papan klip</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Hapus syarat</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Syarat</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Autentikasi/ganti pengguna</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Penetapan yang dikonfirmasi</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Mohon tunggu</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Membatalkan pekerjaan</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Penguraian rentang nilai dapat memakan waktu sangat lama, bergantung pada variabel yang dipilih dan ukuran tabel.
Sungguh lanjutkan?</translation>
    </message>
    <message>
        <source>Das Projekt liegt nicht unter dem Katalogverzeichnis %1</source>
        <translation>Proyek tidak berada di bawah folder katalog %1</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Proyek tujuan %1 sudah tidak ada</translation>
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
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Proyek tujuan dengan jalur %1 telah dihapus.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Proyek tujuan dengan jalur %1 telah ditambahkan.</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Tambah rekaman</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Hapus rekaman</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Tambah rekaman ke basis data tautan</translation>
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
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Syarat proyek %1 telah diubah.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Fungsi %1 tidak dikenal</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Formulir %1 tidak dapat dimuat: %2</translation>
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
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Versi proyek dari proyek tujuan dengan jalur %1 telah diubah.
  Tanggal proyek lama: %2, tanggal proyek baru: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Tabel proyek sumber tidak dapat dibuka.</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabel proyek tujuan tidak dapat dibaca.
  Proyek: %1</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Tabel dari setidaknya satu proyek sumber tidak dapat dibuka.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Versi tabel dari proyek tujuan dengan jalur %1 telah diubah.
  Tanggal tabel lama: %2, tanggal tabel baru: %3</translation>
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
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Pemetaan variabel proyek %1 telah diubah.</translation>
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
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Baris %1 telah diubah.</translation>
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
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Baris ini sudah tidak berlaku. Pemodel telah mengonfirmasinya</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Baris ini tidak dapat ditetapkan</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Baris ini ditetapkan otomatis. Penetapan harus dikonfirmasi atau diperbaiki</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Pemodel telah mengonfirmasi penetapan ini</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Tetapkan proyek ini ke baris yang dipilih</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Daftar dokumen</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Perubahan oleh pembaruan pemetaan ERP: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Minta nomor ERP</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Satu syarat proyek tujuan tidak terpenuhi.
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
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Ada penetapan rentang nilai untuk baris ini.
Penetapan harus diubah dengan 'Sunting penetapan rentang nilai'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Ada setidaknya satu konflik.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Ada setidaknya satu penetapan yang dikonfirmasi.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Ada setidaknya satu baris tanpa penetapan.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Ada setidaknya satu perubahan yang belum dikonfirmasi.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Satu pemetaan proyek %1 telah dihapus.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Satu pemetaan proyek %1 telah ditambahkan.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Jumlah argumen salah untuk fungsi %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Saringan</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Ada konflik pada baris ini. Penetapan harus dikonfirmasi atau diperbaiki</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Jumlah seluruh baris</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Pilih grup</translation>
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
        <source>In der Tabelle suchen</source>
        <translation>Cari di tabel</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klasifikasikan</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflik</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Salin</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Tampilkan legenda</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Pengelola tautan</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Buka pengelola tautan</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Masuk</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Baru...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Buat rekaman baru</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Sisipkan rekaman baru (mengambil nilai rekaman terpilih)</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Tidak ditemukan</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Baris yang tidak ditemukan</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Sebutan standar</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Nomor standar</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Tampilkan hanya baris yang ditetapkan lebih dari sekali</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Tampilkan hanya baris tabel asli yang ditetapkan ke baris ini</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Temuan berikutnya (F3)</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Jalur:</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Buka proyek</translation>
    </message>
    <message>
        <source>Projekte (*.prj)</source>
        <translation>Proyek (*.prj)</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Jalur proyek:</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Sumber dan tujuan tidak memiliki variabel bersama yang bernilai.</translation>
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
        <source>Tabelle %1</source>
        <translation>Tabel %1</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Pilih baris tabel</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Abaikan variabel</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Pemetaan variabel</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Tampilkan kolom tersembunyi</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Perubahan Anda yang tidak dapat diambil alih:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Perubahan yang Anda rencanakan:</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Temuan sebelumnya (Shift+F3)</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Aktifkan dan nonaktifkan deret pilihan</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Deret pilihan ya/tidak</translation>
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
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Rentang nilai (%1 nilai): %2</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Pilih variabel rentang nilai</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Sunting penetapan rentang nilai</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Sedang dibatalkan...</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET dokumen terpilih:</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Karakter %1: %2</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Tampilkan hanya proyek dengan baris tanpa penetapan</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Tampilkan hanya proyek dengan pemetaan tidak lengkap</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Tampilkan hanya proyek dengan baris yang ditetapkan</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Tampilkan hanya baris tanpa penetapan (proyek sumber)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Tampilkan hanya baris tanpa penetapan (proyek tujuan)</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Menampilkan baris yang nilainya memuat teks. Dengan =, &lt;, &lt;=, &gt; atau &gt;= di depan, nilai dibandingkan.</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Menetapkan baris dengan LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Tetapkan ulang baris</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Baris sedang ditetapkan ulang</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Nomor baris</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Proyek tujuan</translation>
    </message>
    <message>
        <source>Zielprojekt auswählen</source>
        <translation>Pilih proyek tujuan</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Hapus proyek tujuan</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Tambah proyek tujuan</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Pindahkan proyek tujuan ke atas</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Pindahkan proyek tujuan ke bawah</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Variabel tujuan</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Terlalu sedikit nilai baris yang memiliki padanan di tabel tujuan.
  Tanpa padanan: %1</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Penetapan yang perlu diperiksa</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Konfirmasi penetapan</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Batalkan penetapan baris ini</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Batalkan penetapan baris ini dan konfirmasi</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Hapus pemetaan</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Batalkan penetapan ke proyek ini</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Batalkan penetapan ke proyek ini dan konfirmasi (CTRL + x)</translation>
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
    <message>
        <source>noch %1</source>
        <translation>sisa %1</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Ikhtisar</translation>
    </message>
</context>
</TS>
