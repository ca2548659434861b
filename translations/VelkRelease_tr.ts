<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 kataloğun dışında ve yazılmıyor; tanımlayıcıdaki "path" değerini düzeltin veya bağlantıyı kaldırın</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1, ondalık virgüllü</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: bu, %3 işinden başka bir işin %2 parçası</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>hücre içindeki tırnaklar karakter sayılıyor, ilki %1. satır, %2. sütunda</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>tarih</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>tarih ve saat</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>%1 dosyasından devralınan kararlar: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>parçalardaki projeler: %1 (farklı: %2), işin tamamında: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>%1 parçası eksik</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>%1 parçası birden çok kez var (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>metin</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topoloji (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>mantıksal değer</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>değer aralığı (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>sayı</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>hesaplanan (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>dizin okunamıyor</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>dizin oluşturulamıyor</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>bu, velkmap assign --shard komutunun yazdığı bir parça değil</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>bu normal bir dosya değil</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>"%1" anahtarı %Ln satırın %2 tanesinde eksik veya yineleniyor</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>%2 için "%1" koşulu çözümlenemiyor; atananlar kesin değil</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>%1. sütunun adı yok, adı artık "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>%1. sütunun adı yine "%2", adı artık "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>"%1" sütunu tanımlayıcıya göre: %2; hücreleri şuna benziyor: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>"%1" sütunu artık yok</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>önceki içe aktarmanın tablosu okunamıyor, satır kimlikleri korunamazdı; düzeltin veya yeniden başlamak için silin</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>belge tablosunda %1 sütunu yok</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>projenin tablosu okunamıyor</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>%1 tablosu okunamıyor; projenin satırları olduğu gibi kalıyor</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>%1 tablosu okunamıyor; onsuz atananlar kesin değil</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>satır yalnızca satır başı karakteriyle bitiyor; dosyayı satır sonu karakterleriyle kaydedin</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>hücreler noktalı virgülle ayrılmış</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>hücreler sekmeyle ayrılmış</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>tek sütunun adı "%1"; birden çoksa ayırıcılarını --separator ile belirtin</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>ilk satır veriye benziyor; sütun adları sayılıyor, bu yüzden önüne adların bulunduğu bir satır koyun</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>bu katalog yok</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>%1 ile aynı tabloyu verirdi; birinin adını değiştirin</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>"%1" sütunu yok</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>hiç parça yok</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>belirttiği kadar proje içermiyor</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>tam sayı</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>%1 olarak okundu</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>dahili (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>hiçbir projenin tarihi yok</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>anahtar sütunu bulunamadı; bir satırın kimliği dosyadaki yeridir</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>okunamıyor: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>yazılamıyor: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>açılamıyor: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>yeni sütun "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>yalnızca büyük/küçük harfte farklı: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>başka bir kodlamadaysa, kodlamayı --encoding ile belirtin</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
