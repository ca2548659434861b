<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 / %Ln proje</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln satırdan %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln proje bulundu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln satır</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(boş)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Tüm sütunları göster</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Tüm sütun süzgeçlerini kaldır</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Seçilenler dışında tümü</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Tablonun başından devam edildi</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Tablonun sonundan devam edildi</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Arama dizini oluşturma</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Koşulu kaldır</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Koşul ekle</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Katalogların dizini okunamıyor.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Arama dizini oluşturulamadı: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Arama dizini hâlâ oluşturuluyor.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Arama dizini hâlâ oluşturuluyor; şimdiye dek: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Arama başarısız: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Arama kullanılamıyor.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>İlk %Ln proje; daha fazlası var. Daha ayrıntılı arayın.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Süzgeç</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Dondurmayı kaldır</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>İşlevler</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Bulunan projeler</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Bu makinede bulunanlarda aranıyor.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Tabloda ara</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Sütun filtrelerine uyan satır yok</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Mantık</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Değerlere göre filtrele ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Ad, standart, gösterim veya değer</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Bulunamadı</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Bir şey bulunamadı. Başka sözcüklerle veya daha az koşulla arayın.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Yalnızca %1 içinde ara</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Sonraki eşleşme (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>İşleçler</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Sıralamayı kaldır</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Sütunu azalan sırala</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Sütunu artan sırala</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Sütunu gizle</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Sütunu sola taşı</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Sütunu sağa taşı</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Sütunları buraya kadar dondur</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Sütun genişliklerini uydur</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Sütun süzgeci</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Sütun süzgeci %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Aramayı kapat (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Ara...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Sözcük arayın veya koşul ekleyin.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Arama sözcükleri</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tablo %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Bilinmeyen hata</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Değişken</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Karşılaştırma</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Önceki eşleşme (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>değer</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>%1 sütununun değerleri</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Değer aralığı (değer sayısı: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Aranıyor ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Değeri metni içeren satırları gösterir. Başında =, &lt;, &lt;=, &gt; veya &gt;= varsa karşılaştırılır; baştaki ! tersini alır, tek başına = boş değerleri bulur. &amp; ikisini, | ikisinden birini ister. Alt+aşağı ok değerleri gösterir.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Hedef tablonun bir değişkenine atama</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>ile başlar</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>iki karşılaştırma da geçerli</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>–</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>karşılaştırma geçerli değil</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>karşılaştırmalardan biri geçerli</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>içerir</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>bölü</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>eşit</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>büyük</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>büyük veya eşit</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>üssü</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>küçük</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>küçük veya eşit</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>çarpı</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>eksi</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>artı</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>ve %Ln daha seyrek değer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ve %Ln tane daha</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>ve %Ln satır daha</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>eşit değil</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>arasında</translation>
    </message>
</context>
</TS>
