<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Tüm sütun süzgeçlerini kaldır</translation>
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
        <source>Filter</source>
        <translation>Süzgeç</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>İşlevler</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Tabloda ara</translation>
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
        <source>Nicht gefunden</source>
        <translation>Bulunamadı</translation>
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
        <source>Tabelle %1</source>
        <translation>Tablo %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Önceki eşleşme (Shift+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Değer aralığı (%1 değer): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Değeri metni içeren satırları gösterir. Başında =, &lt;, &lt;=, &gt; veya &gt;= varsa karşılaştırılır.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Hedef tablonun bir değişkenine atama</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>iki karşılaştırma da geçerli</translation>
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
    <message>
        <source>ungleich</source>
        <translation>eşit değil</translation>
    </message>
</context>
</TS>
