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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" 不是連結資料庫的位址。可以使用 sqlite:檔案 和 postgresql://使用者@主機:連接埠/資料庫。</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 的「supports」不能多於「cases」</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 只能包含物件</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 包含巢狀過深的值</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>修訂版 %2 中沒有 %1</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 的項目「sourcePath」是空的</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 缺少項目「%2」</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 是其他程式的資料庫</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 不是搜尋索引，且無法取代</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 必須是 [來源列, 目標列, 狀態]，然後是延伸文字（如果有），衝突時再加 true；列從 0 開始計數，-1 表示沒有目標列</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 必須是物件</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 必須是文字</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 必須是清單</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 必須指定一個變數，以及文字「before」和「after」或小數「factor」和「offset」</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 必須是 0 到 2147483647 之間的整數</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 必須是 true 或 false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 必須是帶有「source」和「target」的「var」類型，或帶有「formula」的「value」類型</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 再次指定了來源列 %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1。將讀取本機上已有的修訂版 %2。</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1。不確定變更是否已提交：重複之前請先查看。</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1：「path」為空的目標現在位於結尾</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>有 %Ln 個儲存格，而標題列有 %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>另外 %Ln 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>另有 %Ln 處錯誤</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>已取消：%1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>值範圍的其他值屬於另一個目標。</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>「%1」的起點、終點和步長須為至多 15 位的數</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>無法啟動用於目錄版本庫的程式 %1：%2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>版本庫 %1 沒有回應：%2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>版本庫 %1 要求登入：%2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>無法讀取指令碼：%1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>指令碼已停止</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>指令碼已停止：使用的記憶體超過 %1 MB</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>指令碼已停止：用時超過 %1 秒</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>指令碼已停止：%1 秒內沒有呼叫任何物件</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>目錄 %1 無法放入 %2 MB 的快取；搜尋不包含它</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>目錄版本</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>目錄版本的 sourceDate 寫為「%1」。</translation>
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
        <translation>文字是空的</translation>
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
        <translation>缺少連結資料庫的驅動程式 %1</translation>
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
        <translation>敘述包含空字元</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>無法寫入輸出：%1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>檔案在讀取時已變更。</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>函式 %1 未知</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>連結資料庫中沒有群組"%1"，或者 %2 不屬於該群組</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>連結資料庫 %1 沒有回應，已放棄與它的連線</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>沒有連結資料庫 %1</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>連結資料庫 %1 的格式為 %2，本程式只支援格式 %3；需要更新的版本</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>無法開啟連結資料庫 %1：%2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>連結資料庫正在工作</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>連結資料庫中沒有資料表 %1</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>無法讀取目標專案的表格。
  專案：%1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>無法建立或更新連結資料庫 %1 的資料表：%2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>與連結資料庫 %1 的連線已恢復</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>與連結資料庫 %1 的連線已中斷：%2</translation>
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
        <translation>目標列已為另一列確認。</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>已刪除的列 %1 不再位於連結資料庫的記錄中；可能已還原</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>變更隨連結資料庫的連線一起遺失；需要重複</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP 編號</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>%1 的公式中有文字超過 %Ln 個字元，因此沒有值</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>另一個指令碼仍在執行</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>對應檔必須包含一個物件。</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>它位於同一日期的兩個版本之間。</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>沒有與連結資料庫的連線。可在設定中選擇。</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>未連接連結資料庫。</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>函式 %1 的引數個數錯誤</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>連結資料庫錯誤：%1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>目錄「%1」未設定版本庫；其名稱不能構成位址</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>文件後面有一個值為 0 的位元組。</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>%1 中沒有連結資料庫，或其格式較舊。首次寫入時會建立或更新。</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>連結資料庫的位址中有密碼。密碼應放在密碼檔案或 PGPASSWORD 中。</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>%1 在 %2 秒內沒有回應</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>目標中沒有與此列相符的列。</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>未提交的變更已遺失（敘述：%1）。</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>僅因建議的條件或變數指派而相同。目標的一行確認後即生效。</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>來源和目標沒有帶值的共同變數。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>儲存格的右引號後還有文字</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>文字, 起點, 個數</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>文字, 尋找</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>文字, 尋找, 取代</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>比較, 則, 否則</translation>
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
        <source>Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>值, 小數位</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>值, 值, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>值的巢狀過深。</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>數字, 小數位</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>數字, 除數</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>數字, 數字, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>字元 %1：%2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>第 %1 列</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>第 %1 列，第 %2 欄</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>第 %1 行，第 %2 個字元：%3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>小數點字元是「.」或「,」</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>結尾</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>欄位沒有名稱</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>欄位「%1」出現了兩次</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>專案沒有表；應由其詞位 SACHM 指定</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>專案未讀取</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>計算欄位「%1」沒有公式</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>這是位址；只讀取檔案</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>描述檔有 lineSubIdField 而沒有 lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>項目「%1」出現了兩次</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>檔名含有 NUL 字元</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>%2 的值範圍「%1」的值太多（%3 個）；只走訪 %Ln 個</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>儲存格的引號不成對</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>條件沒有名稱</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>位元組不是 UTF-8；請將檔案存為 UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>檔案為空；首列必須給出欄名</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>篩選條件「%1」無法解析：%2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>計算欄「%1」的公式無法解析：%2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>「%1」的步長不大於 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>該欄沒有名稱</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>缺少描述檔中的欄「%1」</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>缺少描述檔的 %2 所指的欄「%1」</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>欄「%1」出現兩次</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>無法寫入旁邊的鎖定檔</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>「%1」中的數位數過多</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>列號 %1 已用於第 %2 列</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>這些計算欄相互依賴：%1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>儲存格不以引號開頭，其中卻有引號；請為整個儲存格加引號，並將其中的引號重複一次</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>引號沒有閉合</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>應為欄位，即物件</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>應為文字的物件</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>應為每種語言有一個項目的物件</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>應為物件</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>運算子或結尾</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>應為文字</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>分號之間有空值</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>應為條件，即物件</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>應為條件清單</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>應為欄位清單</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>應為文字清單</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>應為數字</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>應為 0 到 2147483647 的整數</translation>
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
        <source>ersetzt: %1</source>
        <translation>已取代：%1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>已被 %2 上的 %1 鎖定（處理程序 %3）</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>相同：%1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>不是 UTF-8 文字</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>無值</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>不是有效的 JSON：%1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>無法讀取：%1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>無法開啟：%1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>列數超出表的容量</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>深度超過 64 層</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>無對應值：%1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>另有 %Ln 列同樣如此</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>沒有 sslmode "%1"；可用的有：%2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>應為 true 或 false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>未知的種類「%1」；已知的有 %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>未知的類型「%1」；已知的有 %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>不同：%1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>正在將變更寫入連結資料庫</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>相近：%1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>「%1」的終點小於起點</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>「%1」沒有步長；請寫成 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>「%1」是位址；只讀取檔案</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>「%1」不是日期；請寫成 2026-01-31T12:00:00Z 這樣</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>「%1」不是 %2 的值範圍：%3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>「%1」不是可讀的目錄</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>「%1」不是列號，列號是 0 到 2147483647 的整數</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>「%1」不可寫入</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>「%1」位於型錄之外；請移到那裡，或允許其目錄</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>「%1」位於「%2」之外；請移到那裡，或允許其目錄</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>「%1」出現多次；以最後一個項目為準。</translation>
    </message>
</context>
</TS>
