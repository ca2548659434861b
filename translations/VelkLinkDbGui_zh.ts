<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  行 %1</translation>
    </message>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;（无法找到）&lt;/b&gt;</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;其他用户所做的更改：</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;该行已标记为停用。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;该行已重新分配。新分配的行（在本地）不存在。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;此行已标记为停用。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;此行已分配给项目 %2 的行&lt;br /&gt;%1。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;新分配：&lt;br /&gt;项目 %4 的 %3 &lt;br /&gt;。</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>分配所选行</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>当前分配的行</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>清除所有列筛选</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>确认所有分配</translation>
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
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>另一个目标项目也有具有这些值的行。
  项目：%1
  行：%2</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>为此行分配已展开的值范围</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>分配已展开的值范围</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>将所选内容交给链接管理器</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>将所选内容发送到链接管理器</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>自动分配的行</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>显示筛选后的树</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>通过邮件申请 ERP 编号</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>编辑...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>为所选行生成条件并复制到剪贴板</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>删除条件</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>验证/切换用户</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>已确认的分配</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>请稍候</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>取消工作</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>展开值范围可能需要很长时间，取决于所选变量和表的大小。
确实要继续吗？</translation>
    </message>
    <message>
        <source>Das Projekt liegt nicht unter dem Katalogverzeichnis %1</source>
        <translation>项目不在目录文件夹 %1 下</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>目标项目 %1 已不存在</translation>
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
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>路径为 %1 的目标项目已移除。</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>路径为 %1 的目标项目已添加。</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>添加记录</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>删除记录</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>向链接数据库添加记录</translation>
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
        <source>Der Text ist leer</source>
        <translation>文本为空</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>项目 %1 的条件已更改。</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>函数 %1 未知</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>无法加载窗体 %1：%2</translation>
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
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>路径为 %1 的目标项目的项目版本已更改。
  旧项目日期：%2，新项目日期：%3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>无法打开源项目的表。</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>无法读取目标项目的表。
  项目：%1</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>至少一个源项目的表无法打开。</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>路径为 %1 的目标项目的表版本已更改。
  旧表日期：%2，新表日期：%3</translation>
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
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>项目 %1 的变量映射已更改。</translation>
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
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>行 %1 已更改。</translation>
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
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>此行已停用。建模人员已确认</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>无法分配此行</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>此行已自动分配。必须确认或更正该分配</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>建模人员已确认此分配</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>将此项目分配给所选行</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>文档列表</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>ERP 映射更新所做的更改： </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>申请 ERP 编号</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>目标项目的一个条件不满足。
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
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>应为 %1，实际为 %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>应为对变量 %1 的赋值</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>此行存在值范围分配。
必须通过“编辑值范围分配”更改该分配</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>至少存在一个冲突。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>至少存在一个已确认的分配。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>至少存在一个未分配的行。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>至少存在一个未确认的更改。</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>项目 %1 的一个映射已移除。</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>项目 %1 的一个映射已添加。</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>函数 %1 的参数个数错误</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>此行存在冲突。必须确认或更正该分配</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>总行数</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>选择组</translation>
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
        <source>In der Tabelle suchen</source>
        <translation>在表中查找</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>分类</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>冲突</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>显示图例</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>链接管理器</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>打开链接管理器</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>新建...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>新建记录</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>插入新记录（沿用所选记录的值）</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>未找到的行</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>标准名称</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>标准编号</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>仅显示被多次分配的行</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>仅显示原始表中分配给此行的行</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>下一个匹配 (F3)</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>路径：</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Projekte (*.prj)</source>
        <translation>项目 (*.prj)</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>项目路径：</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>源和目标没有带值的共同变量。</translation>
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
        <source>Tabelle %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>选择表行</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>忽略变量</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>变量映射</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>显示隐藏的列</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>您所做的无法采用的更改：</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>您计划的更改：</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>上一个匹配 (Shift+F3)</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>打开和关闭优先系列</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>优先系列 开/关</translation>
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
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>值范围（%1 个值）：%2</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>选择值范围变量</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>编辑值范围分配</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>所选文档的 XVARSET：</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>字符 %1：%2</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>仅显示含未分配行的项目</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>仅显示映射不完整的项目</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>仅显示含已分配行的项目</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>仅显示未分配的行（源项目）</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>仅显示未分配的行（目标项目）</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>显示值包含该文本的行。以 =、&lt;、&lt;=、&gt; 或 &gt;= 开头则进行比较。</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>正在分配 LineID 为 %1 的行...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>重新分配行</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>正在重新分配行</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>目标项目</translation>
    </message>
    <message>
        <source>Zielprojekt auswählen</source>
        <translation>选择目标项目</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>移除目标项目</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>添加目标项目</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>上移目标项目</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>下移目标项目</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>目标变量</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>该行在目标表中有对应值的太少。
  无对应：%1</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>待检查的分配</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>确认分配</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>取消此行的分配</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>取消此行的分配并确认</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>删除映射</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>取消对此项目的分配</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>取消对此项目的分配并确认 (CTRL + x)</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>结尾</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>运算符或结尾</translation>
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
        <source>eine schließende Klammer</source>
        <translation>右括号</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>包含错误！</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>无值</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>还剩 %1</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>概览</translation>
    </message>
</context>
</TS>
