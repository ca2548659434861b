<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 / %Ln 個專案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 列中的 %1 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>找到 %Ln 個專案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 列</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(空)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>顯示所有欄</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>清除所有欄篩選</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>所選以外的全部</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>已從表格開頭繼續</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>已從表格結尾繼續</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>建立搜尋索引</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>移除條件</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>新增條件</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>無法讀取目錄所在的資料夾。</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>無法建立搜尋索引：%1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>搜尋索引仍在建立。</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>搜尋索引仍在建立；目前：%1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>搜尋失敗：%1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>搜尋無法使用。</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>前 %Ln 個專案；還有更多。請更精確地搜尋。</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>取消凍結</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>函數</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>找到的專案</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>正在搜尋本機上的內容。
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>在表格中尋找</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>沒有符合欄篩選的列</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>邏輯</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>依值篩選 ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>名稱、標準、標記或值</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>找不到任何內容。請用其他字詞或較少條件搜尋。</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>僅在 %1 中搜尋</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>下一個符合項目 (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>運算子</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>取消排序</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>將欄遞減排序</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>將欄遞增排序</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>隱藏欄</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>欄左移</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>欄右移</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>凍結到此欄</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>調整欄寬</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>欄篩選</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>欄篩選 %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>關閉尋找 (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>尋找...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>搜尋字詞或新增條件。</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>搜尋字詞</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>表格 %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>未知錯誤</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>變數</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>上一個符合項目 (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>欄 %1 的值</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>值範圍（值的個數：%1）：%2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>正在搜尋 ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>顯示值中包含該文字的列。前面加 =、&lt;、&lt;=、&gt; 或 &gt;= 則進行比較；前面的 ! 表示否定，單獨的 = 尋找空值。&amp; 要求兩者，| 要求其一。Alt+向下鍵顯示值。</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>指派給目標表的變數</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>開頭為</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>兩個比較都成立</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>至</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>比較不成立</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>其中一個比較成立</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>包含</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>除以</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>等於</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>大於</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>大於或等於</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>的冪</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>小於</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>小於或等於</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>乘以</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>減</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>加</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>以及 %Ln 個較少見的值</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>還有 %Ln 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>還有 %Ln 列</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>不等於</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>範圍</translation>
    </message>
</context>
</TS>
