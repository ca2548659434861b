<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(tidak dapat ditemukan)&lt;/b&gt;</translation>
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
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Pembaruan rekaman gagal!</translation>
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
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Konfirmasi semua penetapan</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Pembuatan rekaman gagal!</translation>
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
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Dari pilihan (%1): %2</translation>
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
        <source>Auswählen</source>
        <translation>Pilih</translation>
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
        <source>Bedingung hinzufügen</source>
        <translation>Tambah kondisi</translation>
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
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Kondisi dan pemetaan variabel merupakan usulan. Keduanya berlaku begitu satu baris target dikonfirmasi.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Autentikasi/ganti pengguna</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Timpa proyek target yang sudah ditetapkan</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Deskripsi</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Penetapan yang dikonfirmasi</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Penguraian rentang nilai dapat memakan waktu sangat lama, bergantung pada variabel yang dipilih dan ukuran tabel.
Sungguh lanjutkan?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Komponen tidak dapat dihapus karena dirujuk oleh beberapa rakitan!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Proyek tujuan %1 sudah tidak ada</translation>
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
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Tampilkan nama berkas alih-alih deskripsi</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Edit rekaman</translation>
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
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritma berisi kesalahan:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Pemanggilan %1 gagal!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Rekaman tidak dapat dihapus!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Syarat proyek %1 telah diubah.</translation>
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
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Pemetaan variabel proyek %1 telah diubah.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Baris %1 telah diubah.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Baris tidak ditetapkan ulang dan tetap seperti semula. Proyek target ini tidak dapat dibaca: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Variabel %1 tidak ada di tabel sumber</translation>
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
        <source>Einfügen</source>
        <translation>Tempel</translation>
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
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Tidak semua subelemen dapat dihapus karena beberapa di antaranya juga dirujuk oleh rakitan lain!</translation>
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
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Kesalahan saat menyalin kondisi:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Kesalahan saat menyalin pemetaan variabel.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Sunting rumus</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Rumus...</translation>
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
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Tidak ada proyek yang sesuai dengan pilihan di bawah pohon.
Matikan “%1” untuk melihat semua proyek lagi.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Tidak ada kesalahan</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Tidak ada baris tanpa penetapan.
Hilangkan centang “%1” untuk melihat semua baris.</translation>
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
        <source>Name</source>
        <translation>Nama</translation>
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
        <source>Pfad:</source>
        <translation>Jalur:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Pilih proyek</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Cari atau pilih proyek</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Buka proyek</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Jalur proyek:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Anda akan menghapus rakitan yang berisi subelemen. Hapus juga semua subelemen?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Periksa sintaks</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Pilih baris tabel</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
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
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Tambah pemetaan variabel</translation>
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
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Aktifkan dan nonaktifkan deret pilihan</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Deret pilihan ya/tidak</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Nilai</translation>
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
        <source>Wertkombinationen: %1</source>
        <translation>Kombinasi nilai: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET dokumen terpilih:</translation>
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
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Baris: %1 dari %2 · terbuka yang akan ditetapkan: %3 · terkonfirmasi yang tidak lagi cocok: %4</translation>
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
        <source>enthält Fehler!</source>
        <translation>mengandung kesalahan!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Ikhtisar</translation>
    </message>
</context>
</TS>
