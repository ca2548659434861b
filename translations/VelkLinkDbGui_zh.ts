<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;（无法找到）&lt;/b&gt;</translation>
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
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>更新记录失败！</translation>
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
        <source>Alle Zuordnungen bestätigen</source>
        <translation>确认所有分配</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>创建记录失败！</translation>
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
        <source>Aus der Auswahl (%1): %2</source>
        <translation>来自所选 (%1)：%2</translation>
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
        <source>Auswählen</source>
        <translation>选择</translation>
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
        <source>Bedingung hinzufügen</source>
        <translation>添加条件</translation>
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
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>条件和变量分配为建议。一旦目标的一行被确认，它们即生效。</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>验证/切换用户</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>覆盖已分配的目标项目</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>已确认的分配</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>展开值范围可能需要很长时间，取决于所选变量和表的大小。
确实要继续吗？</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>无法删除该零件，因为有多个装配引用它！</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>目标项目 %1 已不存在</translation>
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
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>显示文件名而非描述</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>编辑记录</translation>
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
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>算法包含错误：
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>调用 %1 失败！</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>无法删除该记录！</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>项目 %1 的条件已更改。</translation>
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
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>项目 %1 的变量映射已更改。</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>行 %1 已更改。</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>这些行未重新分配，保持原样。无法读取以下目标项目：%1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>变量 %1 在源表中不存在</translation>
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
        <source>Einfügen</source>
        <translation>粘贴</translation>
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
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>无法删除所有子元素，因为其中一些还被其他装配引用！</translation>
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
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>复制条件时出错：
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>复制变量分配时出错。
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>编辑公式</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>公式...</translation>
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
        <source>Katalog</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>没有项目符合树下方的选择。
关闭“%1”即可重新看到所有项目。</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>未发现错误</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>没有未分配的行。
取消勾选“%1”即可看到所有行。</translation>
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
        <source>Name</source>
        <translation>名称</translation>
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
        <source>Pfad:</source>
        <translation>路径：</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>选择项目</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>搜索或选择项目</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>项目路径：</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>您即将删除包含子元素的装配。是否同时删除所有子元素？</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>检查语法</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>选择表行</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
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
        <source>Variablenzuordnung hinzufügen</source>
        <translation>添加变量分配</translation>
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
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>打开和关闭优先系列</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>优先系列 开/关</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>值</translation>
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
        <source>Wertkombinationen: %1</source>
        <translation>值组合：%1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>所选文档的 XVARSET：</translation>
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
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>行：%1 / %2 · 将被分配的未决行：%3 · 不再适合的已确认行：%4</translation>
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
        <source>enthält Fehler!</source>
        <translation>包含错误！</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>概览</translation>
    </message>
</context>
</TS>
