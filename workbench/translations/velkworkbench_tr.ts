<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Değiştirilecek bir şey yok.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>%Ln satır onaylansın mı?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%Ln satır kaldırılmış olarak onaylansın mı?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>%Ln satırın ataması kaldırılsın mı?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%Ln satırın ataması kaldırılsın ve kaldırılmış olarak onaylansın mı?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>Bunların %Ln tanesi zaten onaylandı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>Bunların %Ln tanesi değer aralığı atamasını kaybeder.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>Hedefi olmayan %Ln satır onaylanmadan kalır.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln satır olduğu gibi kalır.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>Çakışması olan %Ln satır değiştirilmez.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln satır hiçbir hedef projede kayıtlı değil.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln satır onaylandı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln satır kaldırılmış olarak onaylandı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>%Ln satırın ataması kaldırıldı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln satırın ataması kaldırıldı ve kaldırılmış olarak onaylandı.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ardılı yok</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tuş</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Kesinlik</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Yeni satır</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Neden</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 burada zaten karara bağlandı veya kesin</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 yeni sürümde satırı yok</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 o zaman kaldırılmış olarak onaylandı</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 burada bulunmayan projelerde</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 orada çakışmada</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Devralınmadı: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>%1 dosyasından devralınacak bir şey yok.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Dosyada %1 katalog sürümünden bir eşleme yok.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Bu dosya da %1 katalog sürümüne götürüyor.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Aynı eski katalog sürümünden daha önceki bir yeni sürüme götüren bir eşleme seçin.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>%1 dosyasından devralındı: orada %2 katalog sürümü için onaylandı</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Önceki eşleme okunuyor</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>%1 dosyasından hiçbir şey devralınamaz.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>%1 katalog sürümünün dizini</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Hedef projeler aranıyor</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Kararlar devralınıyor</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>İptal edildi, hiçbir şey devralınmadı</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>%1 dosyasından devralınan kararlar: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>%1 dosyasından devralındı: onaylanan %Ln satırdan %2 satır, %3 kesin atandı, %4 önerildi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Eski katalog sürümünün dizini</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Yeni katalog sürümünün dizini</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Katalog dizinleri</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Bu eşleme dosyasının iki katalog sürümü nerede? Dizinler dosyayla birlikte hatırlanır.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Eski sürüm (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Yeni sürüm (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Her iki dizin de gerekli.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 bir dizin değil.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>Eski sürümde %1 eksik. Aranan, %2 kataloğunun bulunduğu dizindir.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Yeni sürümde %1 kataloğu eksik.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>%2 içindeki %1 satırı gösterilemiyor</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Hiçbir satır çakışmıyor</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Tüm çakışmalar karara bağlandı; şimdi kaydedin</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Çakışma %1 / %2, hâlâ açık: %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%1 projesinden %Ln satır aynı biçimde çelişiyor. Karar hepsi için geçerli mi?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Kendi: %1
Diğer: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Hepsi için</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Satır satır</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Satır çakışmıyor</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Kendi kararınız bilinmiyor: satır açılışta zaten çakışıyordu</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Hiçbir satır çakışmıyor.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Tüm çakışmalar karara bağlandı.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln satır daha bunun gibi çelişiyor.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Çakışmalar</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Çakışmanın tarafları</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Kendi</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Diğer</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Yeniden karar ver</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%Ln çakışmadan %1 tanesi hâlâ açık.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>açık</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>kendi</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>diğer</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>yeni</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proje</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Kendi karar</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Diğer karar</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Geçerli</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>otomatik atandı</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>denetlenecek</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>onaylandı</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>hedefsiz, açık</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>kaldırılmış olarak onaylandı</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>bilinmiyor</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, satır %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Hedef proje</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Hedef satır</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Değer aralıkları</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Eski satır</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Önce</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Kendi karar</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Diğer karar</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Bilgi</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>aynı</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>%Ln satırda daha olduğu gibi değiştirildi</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>benzer</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>farklı</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>yalnızca yeni satırda</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>yalnızca eski satırda</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Değişken</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Eski</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Yeni</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>Tabloda bu satır yok.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Hedefsiz. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Atanan satır adaylardan biri değil.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Eski ve yeni</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Adaylar</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Onaylandı.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Kesin atandı.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln satır</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>karşılaştırılan: ilk %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Ortak fark yok.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Ortak: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Seçili satırlar</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Katalog sürümü</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Dosya birden çok katalog sürümü içeriyor. Hangisi açılsın?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Eşleme dosyası okunuyor</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Dosya açılamıyor.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Dosya yalnızca okumak için açıldı.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Orada artık kesinlikle kimse çalışmıyorsa, örneğin bilgisayar çöktükten sonra, kilit kaldırılabilir.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>Yalnızca &amp;oku</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>Kilidi kaldı&amp;r</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Kilit kaldırılamadı.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Kataloglar bilinmiyor; --source ve --target ile belirtilir.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>%1 dosyasındaki değişiklikler kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Vazgeçilen değişiklikler kaybolur.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Kay&amp;det</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Vazgeç</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Şu projelerde hâlâ çakışan %Ln satır var:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Çakışmaları &amp;göster</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>&amp;Yine de kaydet</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Kaydedildi: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Dosya kaydedilmedi.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Değişiklikleri &amp;birleştir</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Kopyayı &amp;sakla ve yeniden yaz</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Kendi sürümümü yaz</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Diğerlerinin değişiklikleri alındı. Lütfen denetleyin ve sonra bir kez daha kaydedin.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Diğerlerinin değişiklikleri alınamadı.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Eşleme dosyası oluşturulamıyor.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ve %Ln tane daha</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>%1 okunuyor</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>%1 eşleme dosyası okunamıyor (%2).
Lütfen başka bir dosya seçin veya %3 yedeğini geri kopyalayın.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>%1 eşleme dosyası okunamıyor (%2).
Lütfen başka bir dosya seçin.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 hiçbir sürüm içermiyor.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1, %2 sürümünü içermiyor. Bulunanlar: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 yalnızca okumak için açıldı.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 şu anda %2 tarafından düzenleniyor ve bu yüzden yalnızca okumak için açıldı.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>%1 dosyasının klasörüne yazılamıyor (%2). Bu yüzden dosya yalnızca okumak için açıldı; başka bir adla kaydedilirse düzenlenebilir.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>%1 için kaydedilmemiş çalışma var. Dosya düzenlemek için açılabildiğinde sunulacak (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 dosyasının başka bir adı daha var (sabit bağlantı). Kaydederken diğer addaki dosya olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>%1 kaydediliyor</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>%1 yedekleniyor</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 şu anda %2 tarafından düzenleniyor. Hiçbir şey yazılmadı. Lütfen başka bir ad seçin.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>%1 dosyasının klasöründe bir şey oluşturulamıyor (%2). Hiçbir şey yazılmadı. Lütfen başka bir klasör seçin.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Bu projenin hiçbir satırı filtrede değil.
Tüm satırları yeniden görmek için “%1” komutunu açın ve “%2” seçeneğini seçin.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Hiçbir projenin filtrede satırı yok.
Tüm projeleri yeniden görmek için “%1” komutunu açın ve “%2” seçeneğini seçin.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Eşleme dosyaları (*.json);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Eşleme dosyasını aç</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Eşleme dosyasını kaydet</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Tabloyu kaydet</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tablolar (*.csv);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Ortak kopyayı seç</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Kararların devralınacağı dosya</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filtre kaldırıldı: projede uygun satır yok</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Sona ulaşıldı, baştan devam ediliyor</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Başa ulaşıldı, sondan devam ediliyor</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Filtrede satır kalmadı</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>değiştirilen metin</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>dönüştürülmüş sayı</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Neden açık</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Fark türü</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Sütundaki fark</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Son karar veren</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>hiç kimse</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(hiçbiri)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>seçilenler hariç</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Tablolar okunuyor...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projede</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Filtre yok: tüm satırlar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Okunamayan tablolar: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Tüm satırlarda filtre</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Satırlar</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Filtreyi &amp;kaldır</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Köken</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>önceki bir eşlemeden devralındı</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 sıradan bir dosya değil ve bu yüzden kilit olarak kullanılamaz. Hiçbir şey yazılmadı. Lütfen orada duranı kaldırın.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 şu anda başka bir program tarafından kaydediliyor. Hiçbir şey yazılmadı. Lütfen birazdan yeniden kaydedin.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>%1 dosyasının klasöründe bir şey oluşturulamıyor (%2). Hiçbir şey yazılmadı. Lütfen yer açın veya başka bir adla kaydedin.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 okunamıyor (%2). Hiçbir şey yazılmadı. Lütfen başka bir adla kaydedin.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 okunabilir bir eşleme dosyası değil (%2). Hiçbir şey yazılmadı. Kaydederken var olan dosya zaman damgalı bir adla saklanır ve yalnızca bu sürümü içeren yeni bir dosya oluşturulur.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 okunabilir bir eşleme dosyası değil (%2). Hiçbir şey yazılmadı. Kaydederken var olan dosya zaman damgalı bir adla saklanır ve yeni bir dosya oluşturulur. Diğer sürümler %3 yedeğinden gelir: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 okunamıyor ve %2 olarak saklanamadı (%3). Hiçbir şey yazılmadı. Lütfen başka bir adla kaydedin.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 açıldıktan sonra silindi veya yeniden adlandırıldı. Kaydederken dosya yeniden oluşturulur ve yalnızca bu sürümü (%2) içerir. Henüz hiçbir şey yazılmadı.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 açıldıktan sonra başkası tarafından değiştirildi, ama bu sürüm (%2) değil. Kaydederken diğer sürümler şu anda dosyada oldukları gibi kalır. Henüz hiçbir şey yazılmadı.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 açıldıktan sonra başkası tarafından değiştirildi, bu sürüm (%2) de. Kaydederken onun bu sürümdeki değişiklikleri kaybolur. Henüz hiçbir şey yazılmadı: yine de kaydedin, başka bir adla kaydedin veya dosyayı yeniden açın.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>%1 dosyasına yazılamıyor (%2). Hiçbir şey yazılmadı. Lütfen yazma izinlerini denetleyin veya başka bir adla kaydedin.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 kaydedilmedi: %2. Dosya değişmedi, değişiklikler hâlâ açık. Lütfen yer açıp yeniden kaydedin veya başka bir adla kaydedin.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>dosya tümüyle yazılamadı</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>yazılan dosya okunamıyor (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>yazılan dosya kaydedilmesi gerekeni içermiyor</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>yazılan dosyada %1 sürümü eksik ya da başka bir sürüm</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>%1 yedeği oluşturulamadı (%2). Hiçbir şey yazılmadı. Lütfen yer açın veya başka bir adla kaydedin.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 kaydedilirken başkası tarafından değiştirildi. Hiçbir şey yazılmadı. Lütfen bir kez daha kaydedin.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 kaydedilmedi: %2. Dosya değişmedi, değişiklikler hâlâ açık. Lütfen başka bir adla kaydedin.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Geri</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>El kitabı</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>İçindekiler</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Sayfada ara</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Kararların geçmişi...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Kim neye karar verdi, ne zaman ve neden</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Kararın nedeni...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Son karar veya seçili satırlar için, örneğin neden ardıl olmadığı</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>%2 içinde %1 satırı</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%1 içinde %Ln satır</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Neden not edildi: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Kararların geçmişi</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Seçili satır</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Seçili proje</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Tüm projeler</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Kişi, proje, hedef veya neden ara</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Yeniden oku</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;CSV olarak kaydet...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Günlüğün okunamayan satırları: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Kararlar: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Dosya yazılamıyor.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>ardılı yok</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (kaydedilmedi)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kim</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proje</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Şimdiye kadar</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Neden</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>%1 dosyasından devralındı</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>CSV dosyalarının klasörü</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Kataloğun dizini</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Tabloları içe aktar</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;CSV dosyalarının klasörü:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Kataloğun dizini:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Her CSV dosyasından, katalogda aynı yerde tablosuyla birlikte bir proje oluşur. Tablolar yeniden içe aktarılırsa satırların numaraları korunur.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>İçe &amp;aktar</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>CSV dosyalarının klasörü eksik.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Kataloğun dizini eksik; üstündeki dizin varsa oluşturulur.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Bir dizin diğerinin içinde.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Satırı onayla veya seçili satırı ata</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Satırın atamasını kaldır</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Atamayı kaldır ve kaldırılmış olarak onayla</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Değer aralığı atamasını düzenle</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Satırdan koşulu kopyala</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Tüm projeyi onayla</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Tabloda ara</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Sonrakini bul</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Öncekini bul</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Sütun süzgeci</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Satırları kopyala</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Tabloyu büyüt</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Tabloyu küçült</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tablo normal boyutta</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Varsayılan</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Tuş yok</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Tuşlar</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Komut veya tuş</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Komutlar</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Komut</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Nerede</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tuş</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tablo</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Pencere</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>%1 için tuş</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>%1 tuşuna alanların ve listelerin kendisi gereksinim duyar.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>%1 tuşu hem %2 hem %3 için olurdu.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Kendiniz seçtiniz</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 artık %2 tuşuna sahip olmaz.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>%1 tuşu şimdi şuna ait: %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Hiçbir şey bulunamadı</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Onaylandı: atama karara bağlandı</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Öneri: onaylanmalı veya düzeltilmeli</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Simgesiz: kesin olarak aynı, program tarafından atandı</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Atama bulunamadı</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Kaldırılmış: atama olmadığı onaylandı</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Başkasının değişikliğiyle çakışma</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Proje veya tablo okunamıyor</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Satırın değer aralığı atamaları</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>Hedef tabloda: atanan satır</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Açıklamalar</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Koşul panoya kopyalandı</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Kopyalanan koşul bu haliyle henüz kullanılamaz; bir değer eksik, bir aralık ya da tırnak işareti içeriyor: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Süzgeçte her şey bitti, dışında hâlâ %Ln açık satır var.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Sona ulaşıldı, baştan devam ediliyor</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Başa ulaşıldı, sondan devam ediliyor</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Çakışma %1 / %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Hiçbir satır seçilen durumlardan birinde değil</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Artık hiçbir satır karar gerektirmiyor</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Açık satırların hiçbiri gösterilemiyor; tabloları eksik</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Satıra git</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Numara veya standart gösterimi:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Hiçbir proje seçili değil</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Bu projede “%1” içeren satır yok</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Eşleşme %1 / %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Uygula</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Bu adım geri alınabilir.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>İşaretli satırlar kastediliyor.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Projenin tüm satırları kastediliyor.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Süzgeç: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Başka hiçbir projede böyle satır yok</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Projenin yalnızca gösterilen satırları kastediliyor: %2 satırdan %1.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Çakışma</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Yalnızca başkasının değişikliğiyle çakışan satırları ve projelerini göster</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Denetlenecek</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Yalnızca onaylanması veya düzeltilmesi gereken önerisi olan satırları ve projelerini göster</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Hedefsiz</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Yalnızca hiçbir şey bulunamayan satırları ve projelerini göster</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Yalnızca kesin olarak aynı olan ve program tarafından atanan satırları ve projelerini göster</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Onaylandı</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Yalnızca ataması onaylanan satırları ve projelerini göster</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Kaldırılmış</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Yalnızca kaldırılmış olarak onaylanan satırları ve projelerini göster</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Bağlantı veritabanını kullan</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Bu bilgisayardaki dosya</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL sunucusu</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>olağan</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Parola, parola dosyasında, masaüstünün anahtar deposunda veya PGPASSWORD içindedir ya da oturum açarken girilir. Kaydedilmez.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>mümkünse</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>her zaman</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>her zaman, sunucu doğrulanır</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>hiçbir zaman</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Tür:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Dosya:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Sunucu:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>Bağlantı &amp;noktası:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Veritabanı:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>&amp;Kullanıcı:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>Şi&amp;freleme:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Bağlantı veritabanı: Dosyanın adı eksik.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Bağlantı veritabanı: Veritabanının adı eksik veya geçersiz.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Bağlantı veritabanının numaralarını denetle</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>Bağlantı veritabanında ait olduğunuz bir grup yok.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Grup seç</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Bağlantı veritabanının grubu:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>%2 projesinin %1 satırı bu eşlemede yok.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Bağlantı veritabanının numaraları denetleniyor</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Numaralar denetlenemedi.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Bağlantı veritabanındaki değişiklikler kaybolmuş olabilir.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Bağlantı veritabanı için lisans eksik.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Bağlantı veritabanında oturum açma</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Parola programın sonuna kadar geçerlidir ve kaydedilmez. Boş kalırsa parola dosyasından alınır.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Bir şeyi kimin sildiği kayıtta bu adla yazar.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Bağlantı yöneticisi</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Numara, proje veya tanım ara</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numara</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proje</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Tanım</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Satırı göster</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Başka satıra bağla...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Sonra projeyi ve satırı seçin ve seçimi “Seçim bağlantı yöneticisine” ile gönderin.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>So&amp;n silinenler...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Bağlantılar: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Geri yüklenebilecek hiçbir şey silinmemiş.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Son silinenler geri yüklensin mi? Satırlar: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 bunları %2 tarihinde %3 konumundan sildi.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Geri yükle</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>İlk %Ln bağlantı; arama diğerlerini gösterir.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Numaraların denetimi</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numara</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Bulgu</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Bu eşlemenin projelerindeki numaralar: %1, diğer projelerdeki: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Okunamadığı için karşılaştırılmayan: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Satır kaldırılmış veya yok</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>kaldırılmış olarak onaylandı</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>projede yok</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Birden çok satır sahipleniyor</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Parça farklı</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Parça farklı (karşılaştırılmadı)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Numarası olan açık satırlar</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Numaralar: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>%2 içinde %1 satırı yok.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>%1 projesi gösterilemiyor.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Proje, satır, komut veya ayar</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Bulunanlar</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Sözcüklerin bölümleri yeterlidir; sondaki sayı bir satırı belirtir.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Hiçbir şey bulunamadı</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln eşleşme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>%Ln eşleşmenin ilk %1 tanesi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Satır %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proje</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Komut</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Ayar</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Hata: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Uyarı: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>İletiler</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>İletileri temizle</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Tüm iletileri kopyala</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Kullanıcı:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Parola:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Bağlantı veritabanıyla bağlantı yok: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>ERP numaraları okunamıyor. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Satırlar yeniden atandı: değişiklik yok</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Burada böyle bir satır yok. %1 sonrakine gider.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>salt okunur</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Solda eski katalog sürümü yer alır. Simgeler nerede hâlâ karar verilecek bir şey olduğunu gösterir. Satırlarını görmek için bir proje seçin.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Hedefler</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Burada yeni sürümün satır alabilecek projeleri, koşullar ve değişken eşlemeleriyle birlikte yer alır.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Satırlar</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Solda eski tablo, sağda yeni tablo. %1 atamayı onaylar veya sağda seçili satırı atar, %2 atamayı kaldırır, %3 satırın kaldırılmış olduğunu onaylar.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Hâlâ açık olanlar</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Sayaç kaç satırın karar gerektirdiğini söyler. %1 sonrakine gider, sonraki projede de.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Hiçbir şey kaybolmaz</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Her adım geri alınabilir. Program çökmeden sonra kaydedilmemiş olanı kurtarmayı önerir. Tur, Yardım menüsündedir.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Tüm kataloğun satırları atansın mı?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Onaylananlar her durumda kalır. Bu adım geri alınabilir.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Yalnızca atanmamış satırlar</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Onaylanmamış her şey yeniden</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Tüm projeler atandı</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>%1 hedef projesi yok.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Hedef proje: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Ayarlar: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Bu yer için ipucu yok</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Listeyi boşalt</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>Do&amp;sya</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Paylaş</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Son açılanlar</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Düzenle</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>Gi&amp;t</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>İ&amp;ncele</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Yalnızca satırlar</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Bağlantı veritabanı</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Satırların durumları</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Araçlar</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Düzenlemek için açık dosya yok.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Dosyadaki sürüm üzerinde kendi değişiklikleriniz</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln çakışma: kendi karar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln çakışma: diğer tarafın kararı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln çakışma: yeniden karar verilecek</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>%1 günlüğüne yazılamıyor (%2). Bir çökmeden sonra değişiklikler kaybolurdu: lütfen yakında kaydedin.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Kurtarılan sürüm güvene alınamıyor (%1). Lütfen yer açın ve yeniden açın; günlük değişmedi.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Çökmeden sonra kurtarma</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>%1 günlüğü oluşturulamıyor (%2). Bir çökmeden sonra değişiklikler kaybolurdu: lütfen sık sık kaydedin.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Açık eşleme dosyası yok.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Şu anda kaydediliyor.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Kaydedilmedi. %1 Lütfen başka bir adla kaydedin.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>%1 kilidi kayboldu ve yenilenemiyor. Başkaları dosyayı aynı anda düzenleyebilir.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Otomatik yedekleme başarısız oldu (%1). Lütfen yakında kaydedin.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Değişiklik uygulanmadı. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Çakışmalar işaretlendi</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Geri alındı: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Yinelendi: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1” sonradan değişenlere artık uymuyor. Adım listesi neyin engel olduğunu gösterir.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Hedef projeler aranıyor</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>İptal edildi, hiçbir şey oluşturulmadı</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Satırlar atanıyor</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln proje: %1 aynı yerde, %2 başka yerde, %3 bölünmüş, %4 hedefsiz, %5 okunamaz</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projeden %1 tanesi</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>bunlardan %1 atandı, %2 denetlenecek, %3 hedefsiz</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>İptal edildi: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln satır</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln değişiklik alındı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln satıra ikisi de aynı kararı verdi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln satıra farklı kararlar verildi ve çakışma olarak işaretlendi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln başka çelişki: dosyadaki sürüm geçerli.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>%1 satırı gösterilemiyor</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Hiçbir bulgu seçili değil</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Giderildi: %2 içinde %1</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tablolar karşılaştırılıyor</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>Atanan %Ln satıra bakıldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln bulgu</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Komşuluk</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>%1 ile %2 arasındaki satırlar %3 kaymış</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>%1 ve %2 satırları yer değiştirmiş</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>%1 satırı %2 sapmış</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>%1 satırında bir başkasının hedef satırı var</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>%1 satırı atlanmış</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>açık</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Giderildi: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Bulgu</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Giderildi</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proje</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Eski katalog sürümünün dizini</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Yeni katalog sürümünün dizini</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Satırları hemen ata</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Yeni eşleme</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Eski katalog sürümü:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>İçindeki katalog:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Yeni katalog sürümü:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Eşleme dosyası seç</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>Eşle&amp;me dosyası:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Oluştur</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Eski katalog sürümünün dizini eksik.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Yeni katalog sürümünün dizini eksik.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Her sürümün, kataloğun bulunduğu bir dizine gereksinimi var.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Eşleme dosyasının bir ada gereksinimi var.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>%1 dizini yok.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 zaten var.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Kaydederken yeni sürüm eklenir; aynı tarihli bir sürüm, içinde onaylanan her şeyle birlikte değiştirilir.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>Bu &amp;dosyayı kullan</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>ortam dolu</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>dosya burada izin verilenden büyük oluyor</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>yazma izni yok</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>ortam yazmaya karşı korumalı</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>klasör veya dosya artık yok</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>onun yerinde sıradan bir dosyadan başka bir şey var</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>hedefsiz</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Eski satır</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Yeni satır</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Diğer farklar</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Projenin tablosu okunamıyor.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Yol:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Standart:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Gösterim:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Proje sürümü:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Tablo sürümü:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Satırlar:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Dosya:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Süz</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>Önerisi olan %Ln açık satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>%Ln örüntüde</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>bunların %Ln tanesi hâlâ karşılaştırılıyor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Seçili: %Ln satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>bunların %Ln tanesi çıkarıldı</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Açık satırların farkları</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projede</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>Ardılı olmayan %Ln açık satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tablolar karşılaştırılıyor: %Ln proje okundu</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln proje</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln satırda daha bu ve başka farklar var</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Fark</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Satırlar</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projeler</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Kesinlik</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Ayrık durumlar</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>yakındaki sayı</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>başka sayı</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>başka ifade</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>değer eklenmiş</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>değer eksik</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>karşılaştırılamaz</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>fark yok</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>başka yazım</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>belirsiz: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>tüm klasör hedefsiz: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>tüm proje hedefsiz: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>hedef proje artık yok: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 artık yok</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>benzer satır yok: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>proje adı</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>başka bir ad</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>başka değer</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>her satırda bunlardan biri veya birkaçı</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>kullanılamıyor: açık dosya yok</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>kullanılamıyor: bağlantı veritabanına bağlanılıyor</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>kullanılamıyor: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>kullanılamıyor: bağlı bir bağlantı veritabanı yok</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>kullanılamıyor: bağlantı yöneticisi seçim beklemiyor</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>kullanılamıyor: hiçbir proje seçili değil</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>kullanılamıyor: hiçbir satır seçili değil</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>%1 için ERP numarası, satır %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Lütfen bir ERP numarası verin.

Proje: %1
Satır: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Posta başlatılamadı.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Bu bilgisayarda posta programı ayarlanmamış. İstek şöyle:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Yazdırılabilecek bir tablo görünmüyor</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Rapor</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Yazdır: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 yazıcıya gönderildi</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1, %2 dosyasına yazdırıldı</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 yazdırılamadı.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Yazıcı sayfa kabul etmiyor.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 yazılamıyor.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Sayfa</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Soru</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Satır %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln satır, aralığındaki değerlerin yeni satırı olmadığı halde onaylandı.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Geri çek</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Yine de onayla</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln satır</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Satırın değer aralığı ataması yok.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>eksik: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>birden çok: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>eski aralıkta yok: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Satırın değer aralığı</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %Ln değerden %2 tanesi atandı</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Kararın nedeni</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>Ş&amp;unun için:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Neden:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>üretimi durduruldu</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>başka bir parçayla birleştirildi</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>birden çok parçaya bölündü</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>başka bir kataloğa taşındı</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>henüz denetlenmedi</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Kurtarma</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Kaydedilen</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Kurtarılan</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projeler</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Satırlar</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Onaylandı</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Denetlenecek</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Hedefsiz</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Kaydedilen sürüm, kurtarılabilecek her şeyden daha yeni.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>Ku&amp;rtar</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Sonraki değişikliklerle (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Kaydedilen sürümü aç</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln adım</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>%1 için kaydedilmemiş çalışma var: %2, sonuncusu “%3”. Kaynağı: %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projede</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Tablolar içe aktarılıyor</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 için artık CSV dosyası yok, olduğu gibi kalır</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Klasörde CSV dosyası yok; hiçbir şey içe aktarılmadı</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>İptal edildi: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Her şey yazılmadı: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 yazılamıyor.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Satırları dışa aktar</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tablolar (*.csv);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Satırlar dışa aktarılıyor</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>İptal edildi, hiçbir şey dışa aktarılmadı</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Rapor yaz</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF dosyaları (*.pdf);;HTML sayfaları (*.html);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Rapor oluşturuluyor</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>İptal edildi, rapor yazılmadı</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Sayfalar düzenleniyor</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Rapor %1 dosyasına yazıldı</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>İptal edildi, rapor oluşturulmadı</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Sayfa %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tablo</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 yeni, %2 değişmiş, %3 değişmemiş, %4 içe aktarılmamış</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln satır %1 dosyasına aktarıldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, %Ln satır</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Anlaşılan değiştirmeler</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>tüm katalog sürümünde</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Anlaş</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Geri çek</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Kanıtlar</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Devral</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Bir değiştirme, eski bir değerin yeni bir değerin yerini tuttuğunu söyler. Öneriler oluşturur, ama hiçbir şeyi onaylamaz.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>anlaşıldı</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>%1 içinde anlaşıldı</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Tablolar okunuyor</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>lehte %Ln satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>aleyhte %Ln satır</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Anlaşılan yok. Farklar listesi açıkken onun değiştirmeleri burada önerilir.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Eşleme raporu: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>%1 katalog sürümünden %2 sürümüne</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Oluşturulma: %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Satırların durumu</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Klasörlere göre, altındaki her şeyle</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Projelere göre</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Satırlar neden açık</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Açık satırlar önerilerinden nasıl farklı</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Örneklemler</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Kim neye karar verdi</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Açık satırlar</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Okunamayanlar</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Satırlar</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Onaylandı</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Kaldırılmış olarak onaylandı</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Kesin atandı</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Denetlenecek</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Hedefsiz</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>Çakışmada</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proje</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Gösterim</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Neden</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Farklar</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projeler</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Olasılık</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Ayrık durumlar</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Örnekler</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kim</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Değerlendirilen</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Doğru</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>En çok yanlış (yüzde 95 kesinlikle)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>reddedildi</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tablo okunamıyor</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>karşılaştırılamaz</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>fark yok</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>ve %1 tane daha</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>iki kişi farklı karar verdi</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>başkası karar veriyor</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>bir tablo okunamıyor</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>koşul veya formül başarısız</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>hiçbir hedef sorumlu değil</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>bir sütun eksik</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>birden çok satır aynı</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>fazla farklı</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>aynı, yalnızca onaylanmamış</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>belirsiz: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Ardılı olmayan açık satırlar</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Kaldırıldığı onaylanan satırlar</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Ortak yönleri</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>toplam</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Önceki eşlemelerden devralınanlar</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Önceki eşleme</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Hâlâ devralındığı gibi</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Değerlendirilen satırlar</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Tamamlanan satırlar: %2 satırdan %1; açık: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Hedef projeleri depodan oku</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://sunucu:port/yol</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Her satırda bir katalog. Satır yoksa kataloğun adı aynı zamanda sunucusunun adıdır.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>en yenisi</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> sn</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>S&amp;unucu:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>&amp;Revizyon:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Bu &amp;makinedeki yer:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Sunu&amp;cuyu bekleme:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Sunucu, satır %1: &quot;%2&quot; şu biçimde değil: &quot;Katalog = svn://sunucu:port/yol&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Depoda oturum açma</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 oturum açılmasını istiyor.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Ad ve parola programın sonuna kadar geçerlidir ve kaydedilmez.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>%1 satırı gösterilemiyor</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Artık açık satır yok</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tablolar henüz karşılaştırılmadı</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Baştan: %Ln açık satır</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Açık satırlar belirsizliklerine göre gelir</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Açık satırlar yerlerine göre gelir</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Satır seçili örüntüye ait değil</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>%1 satırı çıkarıldı</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Hiçbir örüntü seçili değil ya da tüm satırlarına karar verildi</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln satır</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>%Ln projede onaylansın mı?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Bu adım geri alınabilir.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Onayla</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln satır onaylandı</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>%1 adayı yok</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Satır %1 → %2 onaylandı</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Anlaşılan değiştirmeler: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Bir örüntü seçin veya açık satırları işaretleyin</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Örneklem</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>Çe&amp;k</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Örneklem, satır %1 / %2: + doğru, − yanlış</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Süren örneklem yok</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Örneklemin tüm satırlarına zaten karar verildi</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%2 satırdan %1 doğru</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Örneklem reddedildi, %1; değerlendiren: %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>tüm satırlar değerlendirildi</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>yüzde 95 kesinlikle yanlışlar yüzde %1 altında</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Örneklem: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>değerlendiren: %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>yanlış olan oradaydı</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>%1 satırı yanlış: örneklem bitti</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Devam</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Yanlış satıra bak</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>Bunların %Ln tanesi belirsiz.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Tüm örüntüler tamamlandı</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln projede</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln satır kaldırılmış olarak onaylandı</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>%2 içindeki %1 satırı yanlış. Küme bölündü; hangi bölümle devam edilsin?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>%Ln satırdan bu kadarı çekilir ve tek tek değerlendirilir. %1 doğru, yüzde 95 kesinlikle yanlışların yüzde 5&apos;ten az olduğunu, %2 doğru ise yüzde 1&apos;den az olduğunu söyler.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Betik konsolu</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Betiklerin çıktısı</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Betiğin bir satırı</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Bir JavaScript satırı. Enter çalıştırır, Tab tamamlar, Yukarı ve Aşağı gezinir.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Çalışan betiği durdurur (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Boşalt</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Çıktıyı siler</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Betik %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konsol)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Bitti, durum %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Satır %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Fazla büyük.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>UTF-8 metni değil.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 okunamıyor. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Betik aç</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Betikler (*.js);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Betiği kaydet</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 yazılamıyor. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Betik kaydedilmedi.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(adsız)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Yeni betik</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Betik</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Aç …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Çalıştır</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Bağımsız değişkenler:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Betiğin metni</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Bağımsız değişkenler</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>–</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(süreç %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>%1 günlüğü okunamıyor (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Son kapanan oturumdan sonra %1 günlüğü okunamıyor. Orada ne olduğu bilinmiyor; günlük saklanır.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>%1 günlüğünün sonu okunamıyor. Son değişiklik eksik olabilir.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>%1 günlüğü hasarlı. Hasarlı yerden sonra %Ln değişiklik hâlâ uyuyor, %2 artık uymuyor; başkaları eksik olabilir. Günlük saklanır.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>%1 günlüğü hasarlı veya eşleme dosyasına uymuyor. Sonraki en az %Ln değişiklik eksik; günlük saklanır.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Karardan sonra sonraki açık satıra &amp;geç</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Masaüstü gibi</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>hiçbir zaman</translation>
    </message>
    <message>
        <source> min</source>
        <translation> dk</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>Di&amp;l:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>R&amp;enkler:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>&amp;Yazı boyutu:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Yedekleme &amp;aralığı:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Yüksek karşıtlık</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Her satırda bir klasör; katalog dosyalarının kataloglar dışında andığı şeyler buradan okunabilir.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>İzin verilen klasörler:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>İzin verilen klasörler: &quot;%1&quot; tam yolu olan bir klasör değil.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Eşleme kimseyle paylaşılmıyor. Önce ortak kopyayı seçin.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 zaten var ve başka bir eşleme. Başka bir kopya seçin veya var olanı yeni bir dosyaya alın.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Son güncellemeden beri başkaları bir şey yayımladı.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Çakışan satırlar yayımlanmaz: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Başkalarının klasörlerinde değişiklikler var: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Klasör zaten alınmış: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Şu anda başkası yayımlıyor (%1). Lütfen birazdan yeniden deneyin.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Ortak kopyaya ulaşılamıyor: %1. Kendi dosyanız değişmedi; daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Dosyalardan biri okunabilir bir eşleme değil: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Yazılamadı: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Olmadı.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Ortak kopya okunuyor</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>%1 üzerinden paylaşılıyor</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Diğerlerinin değişiklikleri alınıyor</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Yeni bir şey yok</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Değişiklikler yayımlanıyor</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Eşleme düzenlendi</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Yayımlandı, revizyon %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Önce bu alınır. Sonra yayımlanabilir.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Güncelle</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Yine de yayımla</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Klasörleri üstlen</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>Ü&amp;stlen</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Klasörler kaydediliyor</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Artık kendi klasörünüz yok</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Kendi klasörleriniz: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(burada)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>açık tutuyor</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>açık tutmuyor</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>son: %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>klasörler: %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Kendi revizyonunuz %1, en yeni revizyon %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Başkaları bir şey yayımladı.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Başkalarından yeni bir şey yok.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Kendi değişiklikleriniz henüz yayımlanmadı.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Ortak kopya: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Son yayımlama yarıda kesilmiş, ama ulaşmış.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Son yayımlama yarıda kesildi. Lütfen bir kez daha yayımlayın.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Ortak dosya çalışma kopyasında değiştirilmiş ve gönderilmemişti. Bu, %1 içinde saklandı.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Çalışma kopyası bir işin ortasında bırakılmıştı ve toparlandı.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Çalışma kopyasının yönetim verileri bozulmuştu ve yeniden alındı; önceki: %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Yarıda kesilmiş bir şey düzeltildi.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Kataloğun klasörleri, virgülle ayrılmış; * herhangi karakterlerin, ? tek karakterin yerini tutar. Boş bırakılırsa hepsi geri verilir:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>geri al</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Her şeye karar verildi</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Hâlâ karar gerektiren satırlar</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filtre: satır yok</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Tüm satırlardaki filtrenin gösterdiği satırlar</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln satır&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Açık: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1, %Ln projede</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Henüz hiçbir satır atanmadı</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Süren işi iptal eder; bitmiş olan kalır</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Hatalar ve uyarılar: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Adımlar</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Kim, ne veya satır ara</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Buraya kadar geri al</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Bu adımı ve sonraki tüm geçerli adımları geri alır</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Satıra g&amp;it</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>Bağımlılarla &amp;geri al (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>Yalnız bunu &amp;geri al</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>Öncekilerle &amp;yeniden yap (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Yeniden yap</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Henüz adım yok</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Başka hiçbir adım buna bağlı değil.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Adım tek başına yeniden yapılabilir.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Buna dayananlar: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Dayandığı: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Başka karar verdikleri için engel olanlar: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Orada şimdi bu listedeki hiçbir adımın karar vermediği başka bir şey var, örneğin başka bir programdan. Adım artık taşınamaz.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ve %Ln tane daha</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projede</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>geçerli</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>geri alındı</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>aşıldı</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kim</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Satırlar</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>%1 içindeki değişiklik ancak satırlar yeniden atandığında etkili olur. O zaman yalnızca onaylananlar korunur.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%1 içinde %Ln satır kaldırılmış olarak onaylanmıştı ve artık değil: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>%1 içinde değişkenler yok sayılmaya devam ediyor: %2. Bunlardan birini yeniden eşlemek için &quot;Formül...&quot; seçin veya satırı silip yeniden girin.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 içindeki %1 hedef projesinin bir koşulu düştü.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 içindeki %1 hedef projesinin bir değişken eşlemesi düştü.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>%3 içinde satır %1 → %2: hedef satır %Ln satırda daha var: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%1 içinde %Ln satır, hedef satırını yeni atananlarla paylaşıyor: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln çakışma kabul edildi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln satır onaylandı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln satır kaldırılmış olarak onaylandı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln satır atandı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>%Ln satırın ataması kaldırıldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln satırın değer aralığı ataması değiştirildi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>%Ln satırın çakışması çözüldü</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln satır değiştirildi</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>satır %1 → %2 onaylandı</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>satır %1 → %2 atandı</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (önceden %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>satır %1 kaldırılmış olarak onaylandı (önceden %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>satır %1 kaldırılmış olarak onaylandı</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>satır %1 ataması kaldırıldı (önceden %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Proje eklendi</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Proje kaldırıldı</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Hedef proje eklendi</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Hedef proje kaldırıldı</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Hedef projelerin sırası değiştirildi</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Koşullar değiştirildi</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Değişken eşlemesi değiştirildi</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Sürümler değiştirildi</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Durum değiştirildi</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2 içinde %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, %Ln projede</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Geri</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Atla</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>İle&amp;ri</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Bitir</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, satır %2: Değer aralığı atamasının %3 girdisi {NAME=DEĞER} -&gt; satır numarası biçiminde değil: &quot;%4&quot;. Lütfen düzeltin veya yeniden çözün.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, satır %2: Değer aralığı ataması %3 satırını belirtiyor, ama satırın hedef projesi yok. Lütfen atayın veya metni boşaltın.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, satır %2: Değer aralığı ataması %3 satırını belirtiyor, ama bu satır %4 içinde yok. Lütfen düzeltin veya yeniden çözün.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: %2 hedef projesinin tablosu okunamıyor, değer aralığı atamaları denetlenmedi. Lütfen hedef projelerin dizinini denetleyin (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Değer aralığı atamaları denetleniyor</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln değer aralığı ataması denetlendi</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>kusur yok</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln kusur</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (iptal edildi): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Katalog sürümlerini karşılaştırma</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Bir katalog yeniden yayımlandı ve eski sürümün her satırı yeninin bir satırına aktarılmalı. Program önerir, siz denetler ve onaylarsınız.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Son açılanlar:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Yeni eşleme...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>İki katalog sürümünden yeni bir eşleme dosyası oluşturur</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>&amp;Aç...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Bir eşleme dosyası açar</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Ö&amp;rnek kataloğu aç</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Birlikte gelen örnek katalog için kendi eşleme dosyanızı açar</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Kayd&amp;et</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Tüm değişiklikleri eşleme dosyasına yazar</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>&amp;Farklı kaydet...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Başka bir eşleme dosyasına yazar</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>Kapa&amp;t</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Eşleme dosyasını kapatır</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>Katalog &amp;dizinleri...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Eski ve yeni katalog sürümünün dizinlerini seçer</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Ortak kopya...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Birden çok kişinin bu eşlemede üzerinden çalıştığı kopyayı seçer</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>Ye&amp;nile</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Başkalarının yayımladıklarını alır</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Yayımla</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Kendi değişikliklerinizi diğerlerine iletir</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Klasörleri üstlen...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Hangi klasörleri kendinizin düzenlediğini diğerlerine bildirir</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>Ki&amp;m ne üzerinde çalışıyor</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Eşlemeyi kimin açık tuttuğunu ve hangi klasörlerin kime ait olduğunu gösterir</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>Ta&amp;bloları içe aktar...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>CSV dosyalarının bulunduğu bir klasörden katalog projeleri oluşturur</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Satır&amp;ları dışa aktar...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Sürümün tüm satırlarını atamalarıyla bir CSV dosyasına yazar</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Rap&amp;or...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Sürümün ne kadar ilerlediğini ve satırların neden açık olduğunu PDF veya HTML olarak yazar</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>Çı&amp;k</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Programı bitirir</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Son adımı geri alır</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Geri alınan adımı yeniden uygular</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Satırları onayla...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>İşaretli veya gösterilen tüm satırların atamasını tek adımda onaylar</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>&amp;Hedefsiz satırları kaldırılmış olarak onayla...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>İşaretli veya gösterilen tüm satırlardan hedefsiz olanları kaldırılmış olarak onaylar</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Ata&amp;maları kaldır...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>İşaretli veya gösterilen tüm satırların atamasını tek adımda kaldırır</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Atamaları kaldır ve &amp;onayla...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>İşaretli veya gösterilen tüm satırlar kaldırılmış: tek adımda atamayı kaldırır ve onaylar</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Tüm projeleri ata...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Kataloğun tüm satırları için atama arar; onaylananlar kalır</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>&amp;Değer aralığı atamalarını denetle</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Tüm değer aralığı metinlerini hedef projelerin tablolarıyla karşılaştırır</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>B&amp;etik...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Betiklerin yazılıp çalıştırıldığı bir pencere açar</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Ayarlar...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Dil, yazı, tuşlar, yedekleme</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>Sonraki &amp;açık satır</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Karar gerektiren sonraki satıra gider, sonraki projede de</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Ö&amp;nceki açık satır</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Karar gerektiren önceki satıra gider, önceki projede de</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Satıra git...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Projenin bir satırını numara veya gösterimle arar</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Diğer tablo</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Eski ve yeni tablo arasında geçiş yapar</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Bul...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Projeleri, satırları, komutları ve ayarları sözcük bölümleriyle bulur</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Fark örüntüleri</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Açık satırların önerilerinden nasıl farklı olduğunu gösterir</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Eski ve yeni</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Satırın eski ve yeni değerlerini yan yana ve adaylarını gösterir</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>Örüntüyü &amp;onayla...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Seçili örüntünün tüm satırlarını tek adımda onaylar</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Satırı çıkar</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Satır, örüntünün diğerleriyle birlikte onaylanmaz</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>Ö&amp;rüntünün sonraki satırı</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Seçili örüntünün sonraki açık satırına gider</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Örü&amp;ntünün önceki satırı</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Seçili örüntünün önceki açık satırına gider</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Sonraki örün&amp;tü</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Listenin sonraki örüntüsünü seçer</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Önce en &amp;belirsizler</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Açık satırlar yerleri yerine hata tehlikesine göre gelir</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Komş&amp;uluk</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Komşu satırların atamalarının nerede birbirine uymadığını gösterir</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Satırları dü&amp;zelt</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Komşuluğun seçili bulgusunu tek adımda giderir</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Değiştirmeler...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Katalog sürümü için değer değiştirmelerinde anlaşır veya onları geri çeker</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Örne&amp;klem...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Seçili örüntünün veya işaretli satırların arasından tek tek değerlendirilecek satırlar çeker</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Örnekle&amp;m: doğru</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Örneklemin gösterilen satırı doğru atanmış</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Örneklem: &amp;yanlış</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Örneklemin gösterilen satırı yanlış atanmış; örneklem biter</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Aday &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Satıra bu adayı atar ve onaylar</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Aday &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Aday &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Aday &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Aday &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Satırın değer aralığı</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Eski aralığın hangi değerlerinin yeni satırları olduğunu gösterir</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Ç&amp;akışmalar</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>İki tarafın farklı karar verdiği satırları gösterir</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Sonraki açık çakışma</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Çakışması hâlâ açık olan sonraki satıra gider</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Çakışma: kendi karar</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>Bu çakışmada kendi kararınız geçerlidir</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Çakışma: diğer karar</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>Bu çakışmada diğer tarafın kararı geçerlidir</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Çakışma: yeniden karar ver</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Kararların hiçbiri geçerli değil; satır yeniden hedefsiz</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Görünümü yeniden oluşturur: ağaç, istatistik, diskteki tablolar</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>El &amp;kitabı</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>El kitabını ilgili yerde açar</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>Tuşla&amp;r...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Tüm komutların tuşlarını gösterir ve değiştirir</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>Bu &amp;yere ilişkin ipucu</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>İpucunu tuşların gittiği yerde gösterir: bir tabloda satırın neden o durumda olduğunu</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Tur</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Birkaç adımda neyin nerede olduğunu gösterir</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>Bu &amp;program hakkında</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Sürüm ve dizinler</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Adımlar...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Önceki oturumlar dahil tüm adımları listeler ve tek tek geri alır</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Açık satırlı sonraki proje</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Karar gereken sonraki projeye gider</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Açık satırlı önceki proje</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Karar gereken önceki projeye gider</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Tüm satırlarda filtre</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Tüm projelerin satırlarını durum, neden, fark ve kişiye göre seçer; F8 aralarında gezer</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Ya&amp;zdır...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Görünen tablonun sayfalarını gösterir ve yazdırır</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Raporun sayfalarını gösterir ve yazdırır</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Raporu yazdır...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Kararları devral...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Aynı eski sürüm için zaten onaylananları önceki bir eşlemeden tek adımda devralır</translation>
    </message>
</context>
</TS>
