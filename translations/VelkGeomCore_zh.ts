<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  行 %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" 不是链接数据库的地址。可以使用 sqlite:文件 和 postgresql://用户@主机:端口/数据库。</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 的“supports”不能多于“cases”</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 只能包含对象</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 包含嵌套过深的值</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>修订版 %2 中没有 %1</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 的条目“sourcePath”为空</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 缺少条目“%2”</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 是其他程序的数据库</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 不是搜索索引，且无法替换</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 必须是 [源行, 目标行, 状态]，然后是扩展文本（如果有），冲突时再加 true；行从 0 开始计数，-1 表示没有目标行</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 必须是对象</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 必须是文本</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 必须是列表</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 必须指定一个变量，以及文本“before”和“after”或小数“factor”和“offset”</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 必须是 0 到 2147483647 之间的整数</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 必须是 true 或 false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 必须是带有“source”和“target”的“var”类型，或带有“formula”的“value”类型</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 再次指定了源行 %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1。将读取本机上已有的修订版 %2。</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1。不确定更改是否已提交：重复之前请先查看。</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1：“path”为空的目标现在位于末尾</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>有 %Ln 个单元格，而标题行有 %1 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>另外 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>另有 %Ln 处错误</numerusform>
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
        <translation>值范围的其他值属于另一个目标。</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>“%1”的起点、终点和步长须为至多 15 位的数</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>另一个目标项目也有具有这些值的行。
  项目：%1
  行：%2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>无法启动用于目录版本库的程序 %1：%2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>版本库 %1 没有响应：%2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>版本库 %1 要求登录：%2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>无法读取脚本：%1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>脚本已停止</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>脚本已停止：占用内存超过 %1 MB</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>脚本已停止：用时超过 %1 秒</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>脚本已停止：%1 秒内没有调用任何对象</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>目标项目与源项目名称不同，且没有已确认的对它的分配。
  源项目：%1
  目标项目：%2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>文本缺少右单引号</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>表达式嵌套过深</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>目录 %1 无法放入 %2 MB 的缓存；搜索不包含它</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>目录版本</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>目录版本的 sourceDate 写为“%1”。</translation>
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
        <translation>文本为空</translation>
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
        <translation>缺少链接数据库的驱动程序 %1</translation>
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
        <translation>语句包含空字符</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>无法写入输出：%1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>文件在读取时发生了更改。</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>函数 %1 未知</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>链接数据库中没有组"%1"，或者 %2 不属于该组</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>链接数据库 %1 没有响应，已放弃与它的连接</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>没有链接数据库 %1</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>链接数据库 %1 的格式为 %2，本程序只支持格式 %3；需要更新的版本</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>无法打开链接数据库 %1：%2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>链接数据库正在工作</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>标准名称不同。
  旧标准名称：%1
  新标准名称：%2</translation>
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
        <translation>链接数据库中没有表 %1</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>无法读取目标项目的表。
  项目：%1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>无法创建或更新链接数据库 %1 的表：%2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>变量 %1 在目标表中不存在</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>变量 %1 未知</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>与链接数据库 %1 的连接已恢复</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>与链接数据库 %1 的连接已中断：%2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>变量 %1 的值不同。
  旧值：%2
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
        <translation>目标行已为另一行确认。</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>已删除的行 %1 不再位于链接数据库的日志中；可能已恢复</translation>
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
        <translation>大多数行在目标项目中有其他值。
  目标项目：%1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>所分配的行在目标表中不存在。
  项目：%1
  行：%2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>更改随链接数据库的连接一起丢失；需要重复</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP 编号</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>%1 的公式中有文本超过 %Ln 个字符，因此没有值</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>另一个脚本仍在运行</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>目标项目的一个条件不满足。
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>某个目标项目的条件有错误。
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>条件必须是比较</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>公式必须给变量赋值</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>映射文件必须包含一个对象。</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>它位于同一日期的两个版本之间。</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>应为 %1，实际为 %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>应为对变量 %1 的赋值</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>没有与链接数据库的连接。可在设置中选择。</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>未连接链接数据库。</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>函数 %1 的参数个数错误</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>链接数据库错误：%1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>目录“%1”未设置版本库；其名称不能构成地址</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>此处应为比较，而不是值</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>此处应为值，而不是比较</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>文档后面有一个值为 0 的字节。</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>%1 中没有链接数据库，或其格式较旧。首次写入时会创建或更新。</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>链接数据库的地址中有密码。密码应放在密码文件或 PGPASSWORD 中。</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>%1 在 %2 秒内没有响应</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>目标中没有与此行相符的行。</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>未提交的更改已丢失（语句：%1）。</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>仅因建议的条件或变量分配而相同。一旦目标的一行被确认，它们即生效。</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>源和目标没有带值的共同变量。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>单元格的右引号后还有文本</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>文本, 起点, 个数</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>文本, 查找</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>文本, 查找, 替换</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>比较, 则, 否则</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>源表的其他行也有这些值。</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>目标表的其他行也有这些值。</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>值, 小数位</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>值, 值, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>值嵌套过深。</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>数字, 小数位</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>数字, 除数</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>数字, 数字, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>字符 %1：%2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>第 %1 行，第 %2 列</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>第 %1 行，第 %2 个字符：%3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>目标表中重叠的值范围过多，无法全部比较。</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>该行在目标表中有对应值的太少。
  无对应：%1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>小数点字符是“.”或“,”</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>结尾</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>字段没有名称</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>字段“%1”出现了两次</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>项目没有表；应由其词位 SACHM 指定</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>项目未读取</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>计算字段“%1”没有公式</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>这是地址；只读取文件</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>描述符有 lineSubIdField 而没有 lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>条目“%1”出现了两次</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>文件名含有 NUL 字符</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>%2 的值范围“%1”的值太多（%3 个）；只遍历 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>单元格的引号不成对</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>条件没有名称</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>字节不是 UTF-8；请将文件存为 UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>文件为空；首行必须给出列名</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>筛选条件“%1”无法解析：%2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>计算列“%1”的公式无法解析：%2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>“%1”的步长不大于 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>该列没有名称</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>缺少描述符中的列“%1”</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>缺少描述符的 %2 所指的列“%1”</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>列“%1”出现两次</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>无法写入旁边的锁文件</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>“%1”中的数位数过多</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>行号 %1 已用于第 %2 行</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>这些计算列相互依赖：%1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>单元格不以引号开头，其中却有引号；请给整个单元格加引号，并将其中的引号双写</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>引号没有闭合</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>应为字段，即对象</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>应为文本的对象</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>应为每种语言有一个条目的对象</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>应为对象</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>运算符或结尾</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>应为文本</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>变量名</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>分号之间有空值</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>应为条件，即对象</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>应为条件列表</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>应为字段列表</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>应为文本列表</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>应为数字</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>应为 0 到 2147483647 的整数</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>右括号</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>包含错误！</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>已替换：%1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>已被 %2 上的 %1 锁定（进程 %3）</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>相同：%1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>无值</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>不是有效的 JSON：%1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>行数超出表的容量</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>深度超过 64 层</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>无对应值：%1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>另有 %Ln 行同样如此</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>没有 sslmode "%1"；可用的有：%2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>应为 true 或 false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>未知的种类“%1”；已知的有 %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>未知的类型“%1”；已知的有 %2</translation>
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
        <translation>正在将更改写入链接数据库</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>相近：%1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>“%1”的终点小于起点</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>“%1”没有步长；请写成 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>“%1”是地址；只读取文件</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>“%1”不是日期；请写成 2026-01-31T12:00:00Z 这样</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>“%1”不是 %2 的值范围：%3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>“%1”不是可读的目录</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>“%1”不是行号，行号是 0 到 2147483647 的整数</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>“%1”不可写</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>“%1”位于目录册之外；请移到那里，或允许其目录</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>“%1”位于“%2”之外；请移到那里，或允许其目录</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>“%1”出现多次；以最后一个条目为准。</translation>
    </message>
</context>
</TS>
