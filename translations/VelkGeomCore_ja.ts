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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" はリンクデータベースのアドレスではありません。sqlite:ファイル または postgresql://ユーザー@ホスト:ポート/データベース を使えます。</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 の「supports」は「cases」より大きくできません</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 に含められるのはオブジェクトだけです</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 の値は入れ子が深すぎます</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 はリビジョン %2 にありません</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 の項目「sourcePath」が空です</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 に項目「%2」がありません</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 は別のプログラムのデータベースです</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 は検索索引ではなく、置き換えられません</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 は [元の行, 先の行, 状態]、続いて拡張テキスト（ある場合）、競合なら true でなければなりません。行は 0 から数え、-1 は先の行なしです</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 はオブジェクトでなければなりません</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 はテキストでなければなりません</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 はリストでなければなりません</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 には変数と、テキスト「before」と「after」または小数「factor」と「offset」が必要です</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 は 0 から 2147483647 までの整数でなければなりません</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 は true か false でなければなりません</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 は「source」と「target」をもつ種類「var」か、「formula」をもつ種類「value」でなければなりません</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 は元の行 %2 をもう一度指しています</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1。このマシンにある範囲でリビジョン %2 を読み込みます。</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1。変更が確定されたかどうか不明です。繰り返す前に確認してください。</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: 「path」が空の先を最後に移しました</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>セルが %Ln 個です。見出し行は %1 個です</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>ほか %Ln 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>ほかに %Ln 件の誤り</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>中止しました: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>値範囲の他の値は別のターゲットに属しています。</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>「%1」の始点、終点、刻みは 15 桁以下の数でなければなりません</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>カタログリポジトリ用のプログラム %1 を起動できません: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>リポジトリ %1 が応答しません: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>リポジトリ %1 はログインを必要とします: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>スクリプトを読み取れません: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>スクリプトは停止されました</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>スクリプトは停止されました: %1 MB を超えるメモリを使いました</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>スクリプトは停止されました: %1 秒を超えました</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>スクリプトは停止されました: %1 秒間オブジェクトを呼び出しませんでした</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>カタログ %1 は %2 MB のキャッシュに収まりません。検索の対象になりません</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>カタログリリース</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>カタログリリースの sourceDate は「%1」です。</translation>
    </message>
    <message>
        <source>Der Kosinus eines Winkels in Grad.</source>
        <translation>The cosine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Logarithmus zur Basis 10.</source>
        <translation>The logarithm to base 10.</translation>
    </message>
    <message>
        <source>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</source>
        <translation>The remainder of the division, with the sign of the first number.</translation>
    </message>
    <message>
        <source>Der Sinus eines Winkels in Grad.</source>
        <translation>The sine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Tangens eines Winkels in Grad.</source>
        <translation>The tangent of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</source>
        <translation>The part of the text from the start, counted from 1, with so many characters; without a count all up to the end.</translation>
    </message>
    <message>
        <source>Der Text in großen Buchstaben.</source>
        <translation>The text in capital letters.</translation>
    </message>
    <message>
        <source>Der Text in kleinen Buchstaben.</source>
        <translation>The text in small letters.</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>テキストが空です</translation>
    </message>
    <message>
        <source>Der Text ohne Leerzeichen am Anfang und am Ende.</source>
        <translation>The text without blanks at its start and end.</translation>
    </message>
    <message>
        <source>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</source>
        <translation>The text with the replacement wherever the text looked for was.</translation>
    </message>
    <message>
        <source>Der Treiber %1 für die Linkdatenbank fehlt</source>
        <translation>リンクデータベースのドライバー %1 がありません</translation>
    </message>
    <message>
        <source>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</source>
        <translation>The value as a text, a number with so many decimals; without decimals as it is.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</source>
        <translation>The angle in degrees between the x axis and the line from the origin to the point (x, y).</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Kosinus hat.</source>
        <translation>The angle in degrees that has this cosine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Sinus hat.</source>
        <translation>The angle in degrees that has this sine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Tangens hat.</source>
        <translation>The angle in degrees that has this tangent.</translation>
    </message>
    <message>
        <source>Der natürliche Logarithmus.</source>
        <translation>The natural logarithm.</translation>
    </message>
    <message>
        <source>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</source>
        <translation>The second value if the comparison holds, else the third.</translation>
    </message>
    <message>
        <source>Die Anweisung enthält ein Nullzeichen</source>
        <translation>文にヌル文字が含まれています</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>出力を書き込めません: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>読み取り中にファイルが変更されました。</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>関数 %1 は不明です</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>グループ "%1" はリンクデータベースにないか、%2 が属していません</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>リンクデータベース %1 が応答しないため、接続を打ち切りました</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>リンクデータベース %1 はありません</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>リンクデータベース %1 の形式は %2 ですが、このプログラムは形式 %3 までです。新しい版が必要です</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>リンクデータベース %1 を開けません: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>リンクデータベースが処理中です</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>テーブル %1 はリンクデータベースにありません</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>対象プロジェクトのテーブルを読み込めませんでした。
  プロジェクト: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>リンクデータベース %1 のテーブルを作成または更新できません: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>リンクデータベース %1 への接続が回復しました</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>リンクデータベース %1 への接続が切れました: %2</translation>
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
        <source>Die Zahl e, hoch der Zahl.</source>
        <translation>The number e to the power of the number.</translation>
    </message>
    <message>
        <source>Die Zahl ohne ihre Nachkommastellen.</source>
        <translation>The number without its decimals.</translation>
    </message>
    <message>
        <source>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</source>
        <translation>The number that the text reads as; no value if it is none.</translation>
    </message>
    <message>
        <source>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</source>
        <translation>The number, rounded to that many decimals; without decimals to a whole number, with negative ones before the decimal point.</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>ターゲット行は既に別の行に対して確定されています。</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>削除された行 %1 はリンクデータベースの記録にもうありません。すでに復元されたようです</translation>
    </message>
    <message>
        <source>Die größte der Zahlen.</source>
        <translation>The largest of the numbers.</translation>
    </message>
    <message>
        <source>Die kleinste der Zahlen.</source>
        <translation>The smallest of the numbers.</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>変更はリンクデータベースの接続とともに失われました。やり直してください</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP番号</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>%1 の式のテキストが %Ln 文字を超えるため、値はありません</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>別のスクリプトがまだ実行中です</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>マッピングファイルにはオブジェクトが必要です。</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>同じ日付の二つのカタログリリースの間にあります。</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>リンクデータベースに接続していません。設定で選択します。</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>リンクデータベースが接続されていません。</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>関数 %1 の引数の数が正しくありません</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>リンクデータベースのエラー: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>カタログ「%1」のリポジトリが設定されていません。名前からアドレスを作れません</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>文書の後に値 0 のバイトがあります。</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>%1 にリンクデータベースがないか、古い形式です。最初の書き込みで作成または更新されます。</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>リンクデータベースのアドレスにパスワードがあります。パスワードファイルか PGPASSWORD に入れてください。</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>%1 から %2 秒以内に応答がありません</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>この行に合うターゲットの行はありません。</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>確定されていない変更は失われました（文: %1）。</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>提案された条件または変数の割り当てによってのみ一致します。対象の行が一つ確認されると有効になります。</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>元と対象に、値を持つ共通の変数がありません。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>セルの閉じ引用符の後に文字があります</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>テキスト, 開始, 文字数</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>テキスト, 検索</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>テキスト, 検索, 置換</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>比較, 真, 偽</translation>
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
        <source>Wert</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>値, 桁数</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>値, 値, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>値の入れ子が深すぎます。</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>数値, 桁数</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>数値, 除数</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>数値, 数値, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>文字 %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>%1 行目</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>%1 行目 %2 列目</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>%1 行目 %2 文字目: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>小数点の文字は「.」または「,」です</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>フィールドに名前がありません</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>フィールド「%1」が2回あります</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>プロジェクトに表がありません。語彙素 SACHM で指定してください</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>プロジェクトは読み取られませんでした</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>計算フィールド「%1」に式がありません</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>アドレスです。ファイルだけが読み込まれます</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>記述子に lineIdField のない lineSubIdField があります</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>項目「%1」が2回あります</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>ファイル名に NUL 文字が含まれています</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>%2 の値範囲「%1」は値が多すぎます（%3 個）。%Ln 個だけを調べます</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>セルの引用符が対になっていません</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>条件に名前がありません</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>バイト列が UTF-8 ではありません。ファイルを UTF-8 で保存してください</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>ファイルが空です。最初の行に列名が必要です</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>フィルター条件「%1」を解釈できません: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>計算列「%1」の式を解釈できません: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>「%1」の刻みが 0 より大きくありません</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>列に名前がありません</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>記述子にある列「%1」がありません</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>記述子の %2 が指す列「%1」がありません</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>列「%1」が二つあります</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>隣のロックファイルに書き込めません</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>「%1」の数の桁が多すぎます</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>行番号 %1 はすでに %2 行目にあります</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>これらの計算列は互いを必要としています: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>引用符で始まらないセルの中に引用符があります。セル全体を引用符で囲み、中の引用符を二重にしてください</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>引用符が閉じられていません</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>フィールド（オブジェクト）が必要です</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>テキストのオブジェクトが必要です</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>言語ごとの項目を持つオブジェクトが必要です</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>オブジェクトが必要です</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>演算子または末尾</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>テキストが必要です</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>セミコロンの間の値が空です</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>条件（オブジェクト）が必要です</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>条件のリストが必要です</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>フィールドのリストが必要です</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>テキストのリストが必要です</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>数値が必要です</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>0 から 2147483647 までの整数が必要です</translation>
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
        <source>ersetzt: %1</source>
        <translation>置換: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>%2 の %1 がロックしています（プロセス %3）</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>同じ: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>UTF-8 のテキストではありません</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>値なし</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>有効な JSON ではありません: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>読み取れません: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>開けません: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>表に収まる数より行が多すぎます</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>64 階層より深くなっています</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>対応なし: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>ほか %Ln 行でも同様</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" はありません。使えるもの: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true または false が必要です</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>不明な種類「%1」です。使えるのは %2 です</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>不明な型「%1」です。使えるのは %2 です</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>相違: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>変更をリンクデータベースに書き込んでいます</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>類似: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>「%1」の終点が始点より小さくなっています</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>「%1」に刻みがありません。10..50/5 のように書いてください</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>「%1」はアドレスです。ファイルだけが読み込まれます</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>「%1」は日付ではありません。2026-01-31T12:00:00Z のように書いてください</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>「%1」は %2 の値範囲ではありません: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>「%1」は読み取れるディレクトリではありません</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>「%1」は行番号 (0 から 2147483647 の整数) ではありません</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>「%1」に書き込めません</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>「%1」はカタログの外にあります。カタログに移すか、そのディレクトリを許可してください</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>「%1」は「%2」の外にあります。そこに移すか、そのディレクトリを許可してください</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>「%1」が複数あります。最後の項目が有効です。</translation>
    </message>
</context>
</TS>
