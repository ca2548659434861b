<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(bulunamadı)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Başka bir kullanıcının yaptığı değişiklik:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Satır kaldırılmış olarak işaretlendi.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Satır yeniden atandı. Yeni atanan satır (yerelde) yok.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Bu satır kaldırılmış olarak işaretlendi.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Bu satır şu satıra atandı:&lt;br /&gt;%1, proje %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Yeni atama: &lt;br /&gt;%3, proje %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Kayıt güncellenemedi!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Seçili satırı ata</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Şu anda atanmış satır</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Tüm atamaları onayla</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Kayıt oluşturulamadı!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Bu satır için çözülen değer aralıklarını ata</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Çözülen değer aralıklarını ata</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Seçimden (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Seçimi iptal et</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Seçim bağlantı yöneticisine</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Seçimi bağlantı yöneticisine gönder</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Otomatik atanan satırlar</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Ağacı süzülmüş göster</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>E-posta ile ERP numarası iste</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Düzenle...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Seçili satır için koşul oluştur ve panoya kopyala</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Koşul ekle</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Koşulu sil</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Koşullar</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Koşullar ve değişken atamaları öneridir. Hedefin bir satırı onaylanınca geçerli olurlar.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Kullanıcıyı doğrula/değiştir</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Zaten atanmış hedef projelerin üzerine yaz</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Onaylanan atamalar</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Değer aralıklarının çözülmesi, seçilen değişkenlere ve tablonun boyutuna göre çok uzun sürebilir.
Gerçekten devam edilsin mi?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Parça silinemedi, çünkü birden fazla montaj ona başvuruyor!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>%1 hedef projesi artık yok</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Yolu %1 olan hedef proje kaldırıldı.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Yolu %1 olan hedef proje eklendi.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Açıklamalar yerine dosya adlarını göster</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Kaydı düzenle</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Kayıt ekle</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Kaydı sil</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Bağlantı veritabanına kayıt ekle</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritma hatalar içeriyor:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>%1 çağrısı başarısız oldu!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Kayıt silinemedi!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>%1 projesinin koşulları değiştirildi.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Yolu %1 olan hedef projenin proje sürümü değiştirildi.
  Eski proje tarihi: %2, yeni proje tarihi: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Kaynak projenin tablosu açılamadı.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>En az bir kaynak projenin tablosu açılamadı.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Yolu %1 olan hedef projenin tablo sürümü değiştirildi.
  Eski tablo tarihi: %2, yeni tablo tarihi: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>%1 değişkeni hedef tabloda yok</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>%1 projesinin değişken eşlemesi değiştirildi.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>%1 satırı değiştirildi.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Satırlar yeniden atanmadı ve olduğu gibi kaldı. Bu hedef projeler okunamıyor: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>%1 değişkeni kaynak tabloda yok</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Bu satır kaldırılmış. Modelci bunu onayladı</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Bu satır atanamadı</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Bu satır otomatik atandı. Atama onaylanmalı veya düzeltilmeli</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Modelci bu atamayı onayladı</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Bu projeyi seçili satıra ata</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Belge listesi</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>ERP eşlemesinin güncellenmesiyle yapılan değişiklikler: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>ERP numarası iste</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Yapıştır</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Bu satır için bir değer aralığı ataması var.
Atama 'Değer aralığı atamasını düzenle' ile değiştirilmelidir</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>En az bir çakışma var.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>En az bir onaylanmış atama var.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>En az bir atanmamış satır var.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>En az bir onaylanmamış değişiklik var.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Bazı alt öğelere başka montajlar da başvurduğundan tüm alt öğeler silinemedi!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>%1 projesinin bir eşlemesi kaldırıldı.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>%1 projesinin bir eşlemesi eklendi.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Koşul kopyalanırken hata oluştu:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Değişken ataması kopyalanırken hata oluştu.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Formülü düzenle</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formül...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Bu satırda çakışma var. Atama onaylanmalı veya düzeltilmeli</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Toplam satır sayısı</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Grup seç</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Ağacın altındaki seçime uyan proje yok.
Tüm projeleri yeniden görmek için “%1” seçeneğini kapatın.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Hata bulunamadı</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Atamasız satır yok.
“%1” işaretini kaldırınca tüm satırlar görünür.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Sınıflandır</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Çakışmalar</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Göstergeyi göster</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Bağlantı yöneticisi</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Bağlantı yöneticisini aç</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Oturum aç</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Yeni...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Yeni kayıt oluştur</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Yeni kayıt ekle (seçili kaydın değerlerini alır)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Bulunamayan satırlar</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Standart adı</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Standart numarası</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Yalnızca birden çok kez atanmış satırları göster</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Yalnızca özgün tablonun bu satıra atanmış satırlarını göster</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Yol:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Proje seç</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Proje ara veya seç</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Projeyi aç</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Proje yolu:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Alt öğeler içeren bir montajı silmek üzeresiniz. Tüm alt öğeler de silinsin mi?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Sözdizimini denetle</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Tablo satırı seç</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Değişken</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Değişkeni yok say</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Değişken eşlemesi</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Değişken ataması ekle</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Gizli sütunları göster</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Sizin yaptığınız ve alınamayan değişiklikler:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Sizin planladığınız değişiklik:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Tercihli serileri aç ve kapat</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Tercihli seriler açık/kapalı</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Değer aralığı değişkenlerini seç</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Değer aralığı atamalarını düzenle</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Değer birleşimleri: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>Seçili belgenin XVARSET değeri:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Yalnızca atanmamış satırı olan projeleri göster</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Yalnızca eşlemesi eksik projeleri göster</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Yalnızca atanmış satırı olan projeleri göster</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Yalnızca atanmamış satırları göster (kaynak proje)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Yalnızca atanmamış satırları göster (hedef proje)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>LineID değeri %1 olan satır atanıyor...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Satırları yeniden ata</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Satırlar yeniden atanıyor</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Satırlar: %1 / %2 · atanacak açık olanlar: %3 · artık uymayacak onaylılar: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Satır numarası</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Hedef proje</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Hedef projeyi kaldır</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Hedef proje ekle</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Hedef projeyi yukarı taşı</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Hedef projeyi aşağı taşı</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Hedef değişken</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Denetlenecek atamalar</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Atamayı onayla</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Bu satırın atamasını kaldır</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Bu satırın atamasını kaldır ve onayla</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Eşlemeyi sil</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Bu projeye atamayı kaldır</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Bu projeye atamayı kaldır ve onayla (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>hata içeriyor!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Genel bakış</translation>
    </message>
</context>
</TS>
