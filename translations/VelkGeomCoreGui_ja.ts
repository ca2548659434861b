<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 / %Ln プロジェクト</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行中 %1 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln 件のプロジェクトが見つかりました</numerusform>
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
        <translation>すべての列を表示</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>すべての列フィルターを解除</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>選択したもの以外すべて</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>テーブルの先頭から続行しました</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>テーブルの末尾から続行しました</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>検索インデックスの作成</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>条件を削除</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>条件を追加</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>カタログのディレクトリを読み取れません。</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>検索インデックスを作成できませんでした: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>検索インデックスを作成しています。</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>検索インデックスを作成しています。現在: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>検索に失敗しました: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>検索は利用できません。</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>最初の %Ln 件です。ほかにもあります。検索を絞り込んでください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>列の固定を解除</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>関数</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>見つかったプロジェクト</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>このコンピューターにあるものを検索しています。
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>テーブル内を検索</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>列フィルターに合う行がありません</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>論理</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>値で絞り込む ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>名前、規格、呼称、値</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>見つかりませんでした。別の語や少ない条件で検索してください。</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>%1 のみを検索</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>次の一致 (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>並べ替えを解除</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>列を降順に並べ替え</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>列を昇順に並べ替え</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>列を隠す</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>列を左へ</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>列を右へ</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>ここまでの列を固定</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>列幅を調整</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>列フィルター</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>列フィルター %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>検索を閉じる (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>検索...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>語を検索するか、条件を追加してください。</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>検索語</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>テーブル %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>変数</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>前の一致 (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>列 %1 の値</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>値範囲（値の数: %1）: %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>検索中 ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>値に文字列を含む行を表示します。前に =、&lt;、&lt;=、&gt;、&gt;= を付けると比較します。前の ! は否定、= だけなら空の値を探します。&amp; は両方、| はどちらか一方です。Alt+↓ で値を表示します。</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>対象テーブルの変数への代入</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>で始まる</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>両方の比較が成り立つ</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>～</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>比較が成り立たない</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>比較のどちらかが成り立つ</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>含む</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>割る</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>等しい</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>より大きい</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>以上</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>べき乗</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>より小さい</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>以下</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>掛ける</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>引く</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>足す</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>ほか %Ln 件の少ない値</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>他 %Ln 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>ほか %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>等しくない</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>範囲</translation>
    </message>
</context>
</TS>
