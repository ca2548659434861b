<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Satır %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" bir bağlantı veritabanının adresi değil. Olası olanlar: sqlite:DOSYA ve postgresql://KULLANICI@SUNUCU:PORT/VERİTABANI.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 içinde "supports", "cases" değerinden büyük olamaz</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 yalnızca nesneler içerebilir</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 çok derin iç içe geçmiş değerler içeriyor</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1, %2 sürümünde yok</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 içinde "sourcePath" girdisi boş</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 içinde "%2" girdisi yok</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 başka bir programın veritabanı</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 bir arama dizini değil ve değiştirilemiyor</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1, [kaynak satır, hedef satır, durum], varsa ardından genişletilmiş metin, çakışma için true olmalıdır; satırlar 0'dan sayılır, -1 hedef satır yok demektir</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 bir nesne olmalıdır</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 bir metin olmalıdır</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 bir liste olmalıdır</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 bir değişken, ayrıca "before" ve "after" metinlerini ya da "factor" ve "offset" ondalık sayılarını belirtmelidir</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1, 0 ile 2147483647 arasında bir tam sayı olmalıdır</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1, true ya da false olmalıdır</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1, "source" ve "target" içeren "var" türünde ya da "formula" içeren "value" türünde olmalıdır</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1, %2 numaralı kaynak satırı bir kez daha belirtiyor</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Bu makinede bulunduğu ölçüde %2 sürümü okunuyor.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Değişikliklerin kaydedilip kaydedilmediği belirsiz: yinelemeden önce bakın.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: "path" değeri boş olan hedef artık sonda</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>başlık satırındaki gibi %1 yerine %Ln hücre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln tane daha</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln hata daha</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>İptal edildi: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Değer aralıklarının diğer değerleri başka bir hedefe ait.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>"%1" başı, sonu ve adımı en çok 15 basamaklı sayı olmalı</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Başka bir hedef projede de bu değerlere sahip bir satır var.
  Proje: %1
  Satır: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Katalog deposu için %1 programı başlatılamıyor: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>%1 deposu yanıt vermiyor: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>%1 deposu oturum açılmasını istiyor: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Betik okunamıyor: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Betik durduruldu</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Betik durduruldu: %1 MB bellekten fazlasını kullandı</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Betik durduruldu: %1 saniyeden uzun sürdü</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Betik durduruldu: %1 saniye boyunca hiçbir nesneyi çağırmadı</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Hedef projenin adı kaynak projeninkinden farklı ve oraya yapılan hiçbir atama onaylanmamış.
  Kaynak proje: %1
  Hedef proje: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Metnin kapanış kesme işareti eksik</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>İfade çok derin iç içe geçmiş</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>%1 kataloğu %2 MB'lık önbelleğe sığmıyor; arama onu bilmiyor</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Katalog sürümü</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>Katalog sürümü sourceDate olarak "%1" değerini belirtiyor.</translation>
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
        <translation>Metin boş</translation>
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
        <translation>Bağlantı veritabanı için %1 sürücüsü eksik</translation>
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
        <translation>Deyim bir boş karakter içeriyor</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Çıktı yazılamıyor: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Dosya okunurken değişti.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>%1 işlevi bilinmiyor</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>"%1" grubu bağlantı veritabanında yok ya da %2 ona ait değil</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>%1 bağlantı veritabanı yanıt vermiyor, bağlantıdan vazgeçildi</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>%1 bağlantı veritabanı yok</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>%1 bağlantı veritabanının biçimi %2, bu program yalnızca %3 biçimini biliyor; daha yeni bir sürüm gerekli</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>%1 bağlantı veritabanı açılamıyor: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>Bağlantı veritabanı çalışıyor</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Standart adları farklı.
  Eski ad: %1
  Yeni ad: %2</translation>
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
        <translation>%1 tablosu bağlantı veritabanında yok</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Hedef projenin tablosu okunamadı.
  Proje: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>%1 bağlantı veritabanının tabloları oluşturulamıyor ya da güncellenemiyor: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>%1 değişkeni hedef tabloda yok</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>%1 değişkeni bilinmiyor</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>%1 bağlantı veritabanına bağlantı yeniden kuruldu</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>%1 bağlantı veritabanına bağlantı koptu: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>%1 değişkeninin değerleri farklı.
  Eski değer: %2
  Yeni değer: %3</translation>
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
        <translation>Hedef satır zaten başka bir satır için onaylandı.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Silinen %1 satırı artık bağlantı veritabanının günlüğünde değil; büyük olasılıkla geri yüklendi</translation>
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
        <translation>Çoğu satırın hedef projede başka değerleri var.
  Hedef proje: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Atanan satır hedef tabloda yok.
  Proje: %1
  Satır: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Değişiklikler bağlantı veritabanı bağlantısıyla kayboldu; yinelenmeleri gerekir</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP numarası</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>%1 formülündeki bir metin %Ln karakteri aşıyor ve değersiz kalıyor</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Başka bir betik hâlâ çalışıyor</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Hedef projenin bir koşulu sağlanmıyor.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Bir hedef projenin koşulu hatalı.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Koşul bir karşılaştırma olmalıdır</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Formül bir değişkene değer atamalıdır</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Bir eşleme dosyası bir nesne içermelidir.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Aynı tarihli iki sürüm arasında duruyor.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Beklenen: %1, bulunan: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>%1 değişkenine atama bekleniyor</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Bir bağlantı veritabanına bağlantı yok. Ayarlarda seçilir.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Bağlı bir bağlantı veritabanı yok.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>%1 işlevi için bağımsız değişken sayısı yanlış</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Bağlantı veritabanı hatası: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>"%1" kataloğu için depo ayarlanmamış; adından bir adres oluşmuyor</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Burada değer değil, karşılaştırma bekleniyor</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Burada karşılaştırma değil, değer bekleniyor</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Belgenin ardında değeri 0 olan bir bayt var.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>%1 içinde bağlantı veritabanı yok ya da eski biçimde. İlk yazmada oluşturulur ya da yenilenir.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>Bağlantı veritabanının adresinde parola var. Yeri parola dosyası ya da PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>%1 adresinden %2 sn içinde yanıt yok</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Hedeflerin hiçbir satırı buna uymuyor.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Kaydedilmemiş değişiklikler kayboldu (deyim: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Yalnızca önerilen koşullar veya değişken atamaları nedeniyle eşit. Hedefin bir satırı onaylanınca geçerli olurlar.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Kaynak ve hedefin değeri olan ortak bir değişkeni yok.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>metin</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>hücrenin kapanış tırnağından sonra metin var</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>metin, başlangıç, adet</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>metin, aranan</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>metin, aranan, yenisi</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>karşılaştırma, ise, değilse</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Kaynak tablonun başka satırları da bu değerlere sahip.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Hedef tablonun başka satırları da bu değerlere sahip.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>değer</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>değer, basamak</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>değer, değer, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Değerler çok derin iç içe geçmiş.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>açı</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>sayı</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>sayı, basamak</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>sayı, bölen</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>sayı, sayı, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Karakter %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>satır %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>satır %1, sütun %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Satır %1, karakter %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Hedef tablonun çok fazla değer aralığı çakıştığı için hepsi karşılaştırılamıyor.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Satırın çok az değerinin hedef tabloda karşılığı var.
  Karşılığı olmayan: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>ondalık karakter “.” veya “,” olur</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>son</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>alanın adı yok</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>“%1” alanı iki kez var</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>projenin tablosu yok; SACHM sözcük birimi birini belirtmeli</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>proje okunmadı</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>hesaplanan “%1” alanının formülü yok</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>bu bir adres; yalnızca dosyalar okunur</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>tanımlayıcıda lineIdField olmadan lineSubIdField var</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>“%1” girdisi iki kez var</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>dosyanın adı bir NUL karakteri içeriyor</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>%2 için "%1" aralığında çok fazla değer var (%3); yalnızca %Ln tanesi gezilir</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>hücrenin tırnakları eşleşmiyor</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>koşulun adı yok</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>baytlar UTF-8 değil; dosyayı UTF-8 olarak kaydedin</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>dosya boş; ilk satırı sütunları adlandırmalı</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>"%1" süzgeç koşulu çözümlenemiyor: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>hesaplanan "%1" sütununun formülü çözümlenemiyor: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>"%1" adımı 0'dan büyük değil</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>sütunun adı yok</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>tanımlayıcıdaki "%1" sütunu eksik</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>tanımlayıcının %2 alanında geçen "%1" sütunu eksik</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>"%1" sütunu iki kez var</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>yanındaki kilit dosyasına yazılamıyor</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>"%1" sayıları çok fazla basamaklı</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>satır numarası %1 zaten %2. satırın</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>bu hesaplanan sütunlar birbirine muhtaç: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>tırnakla başlamayan bir hücrenin içinde tırnak var; hücrenin tamamını tırnak içine alın ve içindekileri ikileyin</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>bir tırnak kapatılmamış</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>bir alan, yani bir nesne bekleniyor</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>metinlerden oluşan bir nesne bekleniyor</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>her dil için bir girdisi olan bir nesne bekleniyor</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>bir nesne bekleniyor</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>bir işleç veya son</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>bir metin bekleniyor</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>bir değişken adı</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>bir değer</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>noktalı virgüller arasındaki bir değer boş</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>bir koşul, yani bir nesne bekleniyor</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>bir koşul listesi bekleniyor</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>bir alan listesi bekleniyor</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>bir metin listesi bekleniyor</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>bir sayı bekleniyor</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>0 ile 2147483647 arasında bir tam sayı bekleniyor</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>kapanış parantezi</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>hata içeriyor!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>değiştirilmiş: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>%2 üzerinde %1 tarafından kilitli (işlem %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>eşit: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>UTF-8 metni değil</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>değer yok</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>geçerli JSON değil: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>okunamıyor: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>açılamıyor: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>tablonun alabileceğinden fazla satır</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>64 düzeyden derin</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>karşılıksız: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>diğer %Ln satırda da böyle</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" yok; olası olanlar: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true veya false bekleniyor</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>bilinmeyen tür “%1”; bilinenler: %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>bilinmeyen tip “%1”; bilinenler: %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>farklı: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Değişiklikler bağlantı veritabanına yazılıyor</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>benzer: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" başlangıcının altında bitiyor</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1" adımsız; 10..50/5 gibi yazın</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>“%1” bir adres; yalnızca dosyalar okunur</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>“%1” tarih değil; 2026-01-31T12:00:00Z gibi yazın</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1", %2 için bir değer aralığı değil: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" okunabilir bir dizin değil</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" bir satır numarası, yani 0 ile 2147483647 arasında bir tam sayı değil</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>"%1" yazılabilir değil</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>“%1” katalogların dışında; oraya taşıyın veya dizinine izin verin</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>“%1”, “%2” dışında; oraya taşıyın veya dizinine izin verin</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" birden çok kez var; son girdi geçerlidir.</translation>
    </message>
</context>
</TS>
