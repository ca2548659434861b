<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 / %Ln 个项目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行中的 %1 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>找到 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(空)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>显示所有列</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>清除所有列筛选</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>除所选之外的全部</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>已从表头继续</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>已从表尾继续</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>构建搜索索引</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>删除条件</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>添加条件</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>无法读取目录所在的文件夹。</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>无法构建搜索索引：%1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>搜索索引仍在构建。</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>搜索索引仍在构建；目前：%1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>搜索失败：%1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>搜索不可用。</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>前 %Ln 个项目；还有更多。请更精确地搜索。</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>取消冻结</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>找到的项目</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>正在搜索本机上的内容。
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>在表中查找</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>没有符合列筛选的行</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>逻辑</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>按值筛选 ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>名称、标准、标记或值</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>未找到任何内容。请使用其他词语或更少的条件搜索。</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>仅在 %1 中搜索</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>下一个匹配 (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>取消排序</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>按列降序排序</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>按列升序排序</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>隐藏列</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>列左移</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>列右移</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>冻结到此列</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>调整列宽</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>列筛选</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>列筛选 %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>关闭查找 (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>查找...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>搜索词语或添加条件。</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>搜索词</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>上一个匹配 (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>列 %1 的值</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>值范围（值的个数：%1）：%2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>正在搜索 ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>显示值中包含该文本的行。前面加 =、&lt;、&lt;=、&gt; 或 &gt;= 则进行比较；前面的 ! 表示否定，单独的 = 查找空值。&amp; 要求两者，| 要求其一。Alt+向下键显示值。</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>给目标表的变量赋值</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>开头为</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>两个比较都成立</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>至</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>比较不成立</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>其中一个比较成立</translation>
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
        <translation>等于</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>大于</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>大于或等于</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>的幂</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>小于</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>小于或等于</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>乘以</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>减</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>加</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>以及 %Ln 个较少见的值</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>还有 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>还有 %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>不等于</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>范围</translation>
    </message>
</context>
</TS>
