<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  列 %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>值範圍的其他值屬於另一個目標。</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>另一個目標專案也有具有這些值的列。
  專案：%1
  列：%2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>目標專案與來源專案名稱不同，且沒有已確認的對它的指派。
  來源專案：%1
  目標專案：%2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>文字缺少右單引號</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>運算式巢狀過深</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>文字是空的</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>函式 %1 未知</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>標準名稱不同。
  舊標準名稱：%1
  新標準名稱：%2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>無法讀取目標專案的表格。
  專案：%1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>變數 %1 在目標表格中不存在</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>變數 %1 未知</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>變數 %1 的值不同。
  舊值：%2
  新值：%3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>目標列已為另一列確認。</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>大多數列在目標專案中有其他值。
  目標專案：%1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>所指派的列在目標表格中不存在。
  專案：%1
  列：%2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>%1 的公式中有文字超過 %2 個字元，因此沒有值</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>目標專案的一個條件不成立。
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>某個目標專案的條件有錯誤。
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>條件必須是比較</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>公式必須指定值給變數</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>應為 %1，實際為 %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>應為對變數 %1 的指定</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>函式 %1 的引數個數錯誤</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>此處應為比較，而不是值</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>此處應為值，而不是比較</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>來源和目標沒有帶值的共同變數。</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>來源表格的其他列也有這些值。</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>目標表格的其他列也有這些值。</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>字元 %1：%2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>目標表格中重疊的值範圍過多，無法全部比較。</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>該列在目標表格中有對應值的太少。
  無對應：%1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>結尾</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>運算子或結尾</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>變數名稱</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>右括號</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>包含錯誤！</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>無值</translation>
    </message>
</context>
</TS>
