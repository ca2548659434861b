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
        <source>In der Tabelle suchen</source>
        <translation>Tabloda ara</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopyala</translation>
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
</context>
</TS>
