<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  行 %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>値範囲の他の値は別のターゲットに属しています。</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>別の対象プロジェクトにも同じ値の行があります。
  プロジェクト: %1
  行: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>対象プロジェクトの名前が元プロジェクトと異なり、そこへの確認済みの割り当てがありません。
  元プロジェクト: %1
  対象プロジェクト: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>テキストに閉じ引用符がありません</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>式の入れ子が深すぎます</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>テキストが空です</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>関数 %1 は不明です</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>規格名称が異なります。
  旧規格名称: %1
  新規格名称: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>対象プロジェクトのテーブルを読み込めませんでした。
  プロジェクト: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>変数 %1 は対象テーブルに存在しません</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>変数 %1 は不明です</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>変数 %1 の値が異なります。
  旧値: %2
  新値: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>ターゲット行は既に別の行に対して確定されています。</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>ほとんどの行は対象プロジェクトで値が異なります。
  対象プロジェクト: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>割り当てられた行が対象テーブルにありません。
  プロジェクト: %1
  行: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>%1 の式のテキストが %2 文字を超えるため、値はありません</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>対象プロジェクトの条件が満たされていません。
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>ターゲットプロジェクトの条件に誤りがあります。
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>条件は比較でなければなりません</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>数式は変数に値を代入しなければなりません</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>%1 が必要ですが、%2 が見つかりました</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>変数 %1 への代入が必要です</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>関数 %1 の引数の数が正しくありません</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>ここには値ではなく比較が必要です</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>ここには比較ではなく値が必要です</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>元と対象に、値を持つ共通の変数がありません。</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>元テーブルの他の行にもこれらの値があります。</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>対象テーブルの他の行にもこれらの値があります。</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>文字 %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>ターゲットテーブルの重なり合う値範囲が多すぎて、すべてを比較できません。</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>対象テーブルに対応がある値が少なすぎます。
  対応なし: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>演算子または末尾</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>変数名</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>値</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>閉じ括弧</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>エラーがあります！</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>値なし</translation>
    </message>
</context>
</TS>
