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
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Değer aralıklarının diğer değerleri başka bir hedefe ait.</translation>
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
        <source>Der Text ist leer</source>
        <translation>Metin boş</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>%1 işlevi bilinmiyor</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Hedef projenin tablosu okunamadı.
  Proje: %1</translation>
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
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>%1 değişkeninin değerleri farklı.
  Eski değer: %2
  Yeni değer: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Hedef satır zaten başka bir satır için onaylandı.</translation>
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
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>%1 formülündeki bir metin %2 karakteri aşıyor ve değersiz kalıyor</translation>
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
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Beklenen: %1, bulunan: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>%1 değişkenine atama bekleniyor</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>%1 işlevi için bağımsız değişken sayısı yanlış</translation>
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
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Kaynak ve hedefin değeri olan ortak bir değişkeni yok.</translation>
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
        <source>Zeichen %1: %2</source>
        <translation>Karakter %1: %2</translation>
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
        <source>das Ende</source>
        <translation>son</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>bir işleç veya son</translation>
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
        <source>eine schließende Klammer</source>
        <translation>kapanış parantezi</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>hata içeriyor!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>değer yok</translation>
    </message>
</context>
</TS>
