<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>没有需要更改的内容。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>确认 %Ln 行吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>将 %Ln 行确认为停用吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>取消 %Ln 行的分配吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>取消 %Ln 行的分配并确认为停用吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>其中 %Ln 行已确认。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>其中 %Ln 行将失去其值范围分配。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln 行没有目标，保持未确认。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln 行保持不变。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln 行有冲突，不会更改。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln 行未登记在任何目标项目中。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>已确认 %Ln 行。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>已将 %Ln 行确认为停用。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>已取消 %Ln 行的分配。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>已取消 %Ln 行的分配，并确认为停用。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>无后继</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>可靠度</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>新行</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>原因</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>此处已决定或可靠 %1</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>新版本中没有行 %1</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>当时已确认为停用 %1</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>在此处缺少的项目中 %1</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>在那里冲突中 %1</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>未沿用：%1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>%1 中没有可沿用的内容。</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>该文件没有从目录版本 %1 开始的映射。</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>该文件也指向目录版本 %1。</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>请选择从同一旧目录版本指向较早新版本的映射。</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>从 %1 沿用：在那里已针对目录版本 %2 确认</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>正在读取以前的映射</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>无法从 %1 沿用任何内容。</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>目录版本 %1 的文件夹</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>正在查找目标项目</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>正在沿用决定</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>已取消，未沿用任何内容</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>从 %1 沿用的决定：%2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>从 %1 沿用：%Ln 个已确认行中的 %2 个，可靠分配 %3，建议 %4。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>旧目录版本的文件夹</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>新目录版本的文件夹</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>目录文件夹</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>此映射文件的两个目录版本在哪里？文件夹会随文件一起记住。</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>旧版本 (%1)(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>新版本 (%1)(&amp;N)：</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>两个文件夹都需要。</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 不是文件夹。</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>旧版本中缺少 %1。需要的是目录 %2 所在的文件夹。</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>新版本中缺少目录 %1。</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>无法显示 %2 中的行 %1</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>没有行处于冲突</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>所有冲突都已决定；现在请保存</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>冲突 %1 / %2，还有 %3 个未解决</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%1 中有 %Ln 行以同样的方式相互矛盾。此决定适用于全部吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>自己：%1
对方：%2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>适用于全部(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>逐行处理(&amp;L)</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>此行没有冲突</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>自己的决定未知：此行在打开时已处于冲突</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>没有行处于冲突。</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>所有冲突都已决定。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>还有 %Ln 行与此行一样相互矛盾。</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>冲突</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>冲突双方</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>自己</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>对方</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>重新决定</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%Ln 个冲突中还有 %1 个未解决。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>未解决</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>自己</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>对方</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>新</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>自己的决定</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>对方的决定</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>生效</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>自动分配</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>待检查</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>无目标，未决</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>已确认为停用</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1，行 %2，%3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>目标项目</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>目标行</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>值范围</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>旧行</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>自己的决定</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>对方的决定</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>内容</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>相同</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>替换方式与另外 %Ln 行相同</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>相似</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>仅在新行中</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>仅在旧行中</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>旧</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>新</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>表中没有此行。</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>无目标。%1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>已分配的行不在候选之中。</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>新旧对照</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>候选</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>已确认。</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>可靠分配。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>已比较：前 %1 行</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>没有共同的差异。</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>共同点：%1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>选中的行</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>目录版本</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>文件包含多个目录版本。要打开哪一个？</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>正在读取映射文件</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>无法打开文件。</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>文件以只读方式打开。</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>如果确定已无人在那里工作（例如计算机故障之后），可以解除锁定。</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>只读(&amp;R)</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>解除锁定(&amp;L)</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>无法解除锁定。</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>目录未知；请用 --source 和 --target 指定。</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>保存对 %1 的更改吗？</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>放弃的更改将会丢失。</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1：%Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>还有 %Ln 行处于冲突，所在项目：</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>显示冲突(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>仍然保存(&amp;T)</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>文件未保存。</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>合并更改(&amp;M)</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>保留副本并重新写入(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>写入自己的版本(&amp;W)</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>已采用他人的更改。请检查，然后再保存一次。</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>无法采用他人的更改。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>无法创建映射文件。</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>及另外 %Ln 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>正在读取 %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>无法读取映射文件 %1 (%2)。
请选择其他文件，或将备份 %3 复制回来。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>无法读取映射文件 %1 (%2)。
请选择其他文件。</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 不包含任何版本。</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 不包含版本 %2。现有版本：%3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 以只读方式打开。</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 正由 %2 编辑，因此以只读方式打开。</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>%1 的文件夹不可写 (%2)。因此文件以只读方式打开；用其他名称保存后即可编辑。</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>%1 有未保存的工作。一旦能够打开文件进行编辑，就会提供恢复 (%2)。</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 还有另一个名称（硬链接）。保存时，另一名称的文件保持原样。</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>正在保存 %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>正在备份 %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 正由 %2 编辑。未写入任何内容。请选择其他名称。</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>无法在 %1 的文件夹中创建任何内容 (%2)。未写入任何内容。请选择其他文件夹。</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>此项目没有任何行在筛选中。
打开“%1”并选择“%2”即可重新看到所有行。</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>没有任何项目的行在筛选中。
打开“%1”并选择“%2”即可重新看到所有项目。</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>映射文件 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>打开映射文件</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>保存映射文件</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>保存表</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>表 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>选择共享副本</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>沿用决定的来源</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>筛选已取消：该项目中没有符合的行</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>已到末尾，从开头继续</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>已到开头，从末尾继续</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>筛选中没有剩余的行</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>替换的文本</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>换算的数</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>为何未决</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>差异类型</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>列中的差异</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>最后决定者</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>无人</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>非所选</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>正在读取表...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>涉及 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>无筛选：所有行</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>无法读取的表：%Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>所有行的筛选</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>取消筛选(&amp;C)</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>从以前的映射沿用</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 不是普通文件，因此不能用作锁定。未写入任何内容。请移走那里的内容。</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>另一个程序正在保存 %1。未写入任何内容。请稍后再保存一次。</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>无法在 %1 的文件夹中创建任何内容 (%2)。未写入任何内容。请腾出空间，或用其他名称保存。</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>无法读取 %1 (%2)。未写入任何内容。请用其他名称保存。</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 不是可读的映射文件 (%2)。未写入任何内容。保存时，现有文件会以带时间戳的名称保留，并新建一个只包含此版本的文件。</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 不是可读的映射文件 (%2)。未写入任何内容。保存时，现有文件会以带时间戳的名称保留，并新建一个文件。其他版本取自备份 %3：%4。</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 无法读取，也无法保留为 %2 (%3)。未写入任何内容。请用其他名称保存。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 自打开以来已被删除或重命名。保存时会重新创建文件，且只包含此版本 (%2)。尚未写入任何内容。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 自打开以来已被他人更改，但此版本 (%2) 未变。保存时，其他版本保持文件中现在的样子。尚未写入任何内容。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 自打开以来已被他人更改，此版本 (%2) 也已更改。保存会丢失他人对此版本的更改。尚未写入任何内容：请仍然保存、用其他名称保存，或重新打开文件。</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>无法写入 %1 (%2)。未写入任何内容。请检查写入权限，或用其他名称保存。</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 未保存：%2。文件未变，更改仍处于打开状态。请腾出空间后再保存一次，或用其他名称保存。</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>文件未能完整写入</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>写入的文件无法读取 (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>写入的文件不包含应保存的内容</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>写入的文件中缺少版本 %1，或者它是另一个版本</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>无法创建备份 %1 (%2)。未写入任何内容。请腾出空间，或用其他名称保存。</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 在保存期间被他人更改。未写入任何内容。请再保存一次。</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 未保存：%2。文件未变，更改仍处于打开状态。请用其他名称保存。</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>后退(&amp;B)</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>手册</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>在页面中查找</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>决定历史(&amp;H)...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>谁在何时因何作出了什么决定</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>决定的原因(&amp;D)...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>用于上一个决定或所选的行，例如为什么没有后继</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>%2 中的行 %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%1 中的 %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>已记下原因：%1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>决定历史</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>所选行</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>所选项目</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>所有项目</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>搜索人员、项目、目标或原因</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>另存为 CSV(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>日志中无法读取的行：%1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>决定：%1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>无法写入文件。</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>无后继</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1（未保存）</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>此前</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>新</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>从 %1 沿用</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>CSV 文件所在的文件夹</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>目录的文件夹</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>导入表</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>CSV 文件所在的文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>目录的文件夹(&amp;D)：</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>每个 CSV 文件会在目录的相同位置成为一个带表的项目。再次导入这些表时，行号保持不变。</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>缺少 CSV 文件所在的文件夹。</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>缺少目录的文件夹；如果其上级文件夹存在，则会创建。</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>一个文件夹位于另一个之中。</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>确认行，或分配所选的行</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>取消行的分配</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>取消分配并确认为停用</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>编辑值范围分配</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>从行复制条件</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>确认整个项目</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>在表中查找</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>查找下一个</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>查找上一个</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>列筛选</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>复制行</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>放大表</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>缩小表</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>表恢复正常大小</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>默认(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>无按键(&amp;O)</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>命令或按键</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>表</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>%1 的按键</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>按键 %1 由输入栏和列表自身使用。</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>按键 %1 将同时属于 %2 和 %3。</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>自行选择</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 将不再拥有按键 %2。</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>按键 %1 现在属于 %2。</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>未找到任何内容</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>已确认：分配已决定</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>建议：必须确认或更正</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>无图标：明确相同，由程序分配</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>未找到分配</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>停用：已确认没有分配</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>与他人的更改冲突</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>无法读取项目或表</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>行的值范围分配</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>在目标表中：已分配的行</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>条件已复制到剪贴板</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>复制的条件还不能直接使用：有值缺失、是一个范围或包含引号：%1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>筛选范围内已全部完成，范围之外还有 %Ln 行未决。</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>已到末尾，从开头继续</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>已到开头，从末尾继续</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>冲突 %1 / %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>没有处于所选状态的行</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>已没有需要决定的行</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>未决的行均无法显示；缺少表</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>转到行</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>编号或标准名称：</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>转到</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>未选择项目</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>此项目中没有包含“%1”的行</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>执行(&amp;D)</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>此步骤可以撤销。</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>针对所选的行。</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>针对项目的所有行。</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>筛选：%1。</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>没有其他项目有这样的行</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>只针对项目中显示的行：%2 行中的 %1 行。</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>冲突</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>仅显示与他人的更改冲突的行及其项目</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>待检查</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>仅显示带有必须确认或更正的建议的行及其项目</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>无目标</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>仅显示未找到任何内容的行及其项目</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>仅显示明确相同并由程序分配的行及其项目</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>仅显示分配已确认的行及其项目</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>仅显示已确认为停用的行及其项目</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>使用链接数据库(&amp;K)</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>此计算机上的文件</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL 服务器</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>常用端口</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>密码位于密码文件、桌面的密钥存储或 PGPASSWORD 中，或在登录时输入。密码不会保存。</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>如果可能</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>始终，并验证服务器</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>文件(&amp;I)：</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>主机(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>端口(&amp;R)：</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>数据库(&amp;B)：</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>用户(&amp;U)：</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>加密(&amp;N)：</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>链接数据库：缺少文件名。</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>链接数据库：缺少数据库名称，或名称无效。</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>检查链接数据库的编号(&amp;N)</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>链接数据库中没有您所属的组。</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>选择组</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>链接数据库的组：</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>%2 的行 %1 不在此映射中。</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>正在检查链接数据库的编号</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>无法检查编号。</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>链接数据库中的更改可能已丢失。</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>缺少链接数据库的许可证。</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>登录链接数据库</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>密码在程序结束前有效，且不会保存。如果留空，则取自密码文件。</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>记录中以此名称注明谁删除了内容。</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>链接管理器</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>搜索编号、项目或说明</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>显示行(&amp;S)</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>链接到其他行(&amp;L)...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>然后选择项目和行，并用“将所选内容交给链接管理器”发送所选内容。</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>最近删除的内容(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>链接：%1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>没有可以恢复的已删除内容。</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>恢复最近删除的内容吗？行数：%1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>由 %1 于 %2 从 %3 删除。</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>前 %Ln 个链接；搜索可显示其他链接。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>编号检查</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>此映射的项目中的编号：%1，其他项目中的编号：%2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>因无法读取而未比较：%1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>行已停用或不存在</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>已确认为停用</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>项目中没有</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>被多行占用</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>部件有差异</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>部件有差异（未比较）</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>带编号的未决行</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>编号：%1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>%2 中没有行 %1。</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>无法显示项目 %1。</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>项目、行、命令或设置</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>找到的内容</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>输入词的一部分即可；后面的数字表示行。</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>未找到任何内容</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln 个结果</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>前 %1 个结果，共 %Ln 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>行 %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>错误： </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>警告： </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>清除消息</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>复制所有消息</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>用户(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>没有到链接数据库的连接：%1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>无法读取 ERP 编号。%1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>已重新分配行：没有更改</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>这里没有这样的行。%1 转到下一行。</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>左侧是旧目录版本。图标显示哪里还有需要决定的内容。选择一个项目即可查看其行。</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>这里列出新版本中可以接收行的项目，以及条件和变量映射。</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>左侧是旧表，右侧是新表。%1 确认分配或分配右侧所选的行，%2 取消分配，%3 确认该行已停用。</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>仍未决的内容</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>计数器显示有多少行需要决定。%1 转到下一行，也包括下一个项目中的行。</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>不会丢失任何内容</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>每个步骤都可以撤销。崩溃之后，程序会提供恢复未保存的内容。导览位于帮助菜单中。</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>分配整个目录的行吗？</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>已确认的内容始终保留。此步骤可以撤销。</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>仅没有分配的行(&amp;L)</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>全部未确认的内容重新处理(&amp;U)</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>已分配所有项目</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>没有目标项目 %1。</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>目标项目：%1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>设置：%1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>此处没有提示</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>共享(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>最近打开的文件(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>审核(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>仅行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>链接数据库</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>行的状态</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>工具</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>没有打开可供编辑的文件。</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>在文件版本之上的自己的更改</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln 个冲突：自己的决定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln 个冲突：对方的决定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln 个冲突：需重新决定</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>无法写入日志 %1 (%2)。崩溃后更改将会丢失：请尽快保存。</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>无法妥善保存恢复的版本 (%1)。请腾出空间后重新打开；日志未变。</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>崩溃后的恢复</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>无法创建日志 %1 (%2)。崩溃后更改将会丢失：请经常保存。</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>没有打开的映射文件。</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>正在保存。</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>未保存。%1 请用其他名称保存。</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>%1 的锁定已丢失，无法更新。他人可能同时编辑此文件。</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>自动备份失败 (%1)。请尽快保存。</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>未采用更改。%1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>已标记冲突</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>已撤销：%1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1”与之后的更改不再相符。步骤列表会说明阻碍所在。</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>正在查找目标项目</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>已取消，未创建任何内容</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>正在分配行</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln 个项目：%1 个在相同位置，%2 个在其他位置，%3 个已拆分，%4 个无目标，%5 个无法读取</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln 个项目中的 %1 个</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>其中 %1 行已分配，%2 行待检查，%3 行无目标</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>已取消：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1，共 %Ln 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>已采用 %Ln 项更改。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>双方对 %Ln 行的决定相同。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln 行的决定不同，已标记为冲突。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>其他矛盾 %Ln 处：以文件中的版本为准。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>无法显示行 %1</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>未选择任何发现</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>已修正：%2 中的 %1</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>正在比较表</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>已查看 %Ln 个已分配的行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln 处发现</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>相邻行</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>行 %1 至 %2 偏移了 %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>行 %1 与 %2 互换了</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>行 %1 偏离了 %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>行 %1 占用了另一行的目标行</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>行 %1 被跳过</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>未解决</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>已修正：%1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>发现</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>已修正</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>项目</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>旧目录版本的文件夹</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>新目录版本的文件夹</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>立即分配行(&amp;L)</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>新建映射</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>旧目录版本(&amp;O)：</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>其中的目录：</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>新目录版本(&amp;N)：</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>选择映射文件</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>映射文件(&amp;M)：</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>创建(&amp;T)</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>缺少旧目录版本的文件夹。</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>缺少新目录版本的文件夹。</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>每个版本都需要一个包含目录的文件夹。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>映射文件需要一个名称。</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>没有文件夹 %1。</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 已存在。</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>保存时会加入新版本；相同日期的版本及其中所有已确认的内容都会被替换。</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>使用此文件(&amp;U)</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>存储介质已满</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>文件将超过此处允许的大小</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>缺少写入权限</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>存储介质被写保护</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>文件夹或文件已不存在</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>该位置上不是普通文件</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>无目标</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>旧行</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>新行</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>其他差异</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>无法读取项目的表。</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>路径：</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>标准：</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>项目版本：</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>表版本：</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>行：</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>文件：</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln 个带建议的未决行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>属于 %Ln 个模式</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>其中 %Ln 行仍在比较</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>已选：%Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>其中 %Ln 行已移出</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>未决行的差异</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>涉及 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln 个没有后继的未决行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>正在比较表：已读取 %Ln 个项目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln 个项目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>另有 %Ln 行具有这些和其他差异</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>可靠度</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>例外</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>相近的数值</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>不同的数字</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>措辞不同</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>新增值</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>缺少值</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>无法比较</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>没有差异</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>写法不同</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>不确定：%1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>整个文件夹没有目标：%1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>整个项目没有目标：%1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>目标项目已不存在：%1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1：%2 已不存在</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>没有相似的行：%1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>项目名称</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>另一个</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>其他值</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>每行有其中一项或多项</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>不可用：没有打开的文件</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>不可用：正在连接链接数据库</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>不可用：%1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>不可用：未连接链接数据库</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>不可用：链接管理器没有在等待选择</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>不可用：未选择项目</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>不可用：未选择行</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>%1 的行 %2 的 ERP 编号</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>请分配一个 ERP 编号。

项目：%1
行：%2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>无法开始撰写邮件。</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>此计算机上未设置邮件程序。请求内容如下：

%1：%2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>没有可打印的表格显示</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>打印：%1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 已发送到打印机</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 已打印到 %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>无法打印 %1。</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>打印机不接受页面。</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>页</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>行 %1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln 行已确认，但其范围内有的值没有新行。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>收回(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>仍然确认(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1：%Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>此行没有值范围分配。</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>缺少：%1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>重复：%1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>不在旧范围内：%1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>行的值范围</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1：%Ln 个值中已分配 %2 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>决定的原因</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>用于(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>原因(&amp;R)：</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>已停产</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>已与其他部件合并</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>已拆分为多个部件</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>已移到其他目录</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>尚未检查</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>已恢复</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>截至</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>待检查</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>无目标</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>已保存的版本比所有可恢复的内容都新。</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>包括之后的更改 (%1)(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>打开已保存的版本(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln 个步骤</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>%1 有未保存的工作：%2，最后一步是“%3”。来自 %4。</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1，共 %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1，%Ln 个项目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>正在导入表</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 已没有 CSV 文件，保持不变</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>文件夹中没有 CSV 文件；未导入任何内容</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>已取消：%1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>未能全部写入：%1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>导出行</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>表 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>正在导出行</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>已取消，未导出任何内容</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>写入报告</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF 文件 (*.pdf);;HTML 页面 (*.html);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>正在生成报告</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>已取消，未写入报告</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>正在排版页面</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>报告已写入 %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>已取消，未生成报告</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln 个表</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 个新增，%2 个已更改，%3 个未变，%4 个未导入</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>已将 %Ln 行导出到 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1，共 %Ln 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>约定的替换</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>在整个目录版本中</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>约定(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>撤回(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>依据(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>沿用(&amp;T)</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>替换表示某个旧值代表某个新值。它会产生建议，但不确认任何内容。</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>已约定</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>在 %1 中已约定</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>正在读取表</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln 行支持</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln 行不支持</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>尚无约定的替换。打开差异列表后，其中的替换会在此提供。</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>映射报告：%1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>目录版本 %1 到 %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>生成于 %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>行的情况</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>按文件夹，包括其下的全部内容</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>按项目</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>行未决的原因</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>未决行与其建议的差异</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>抽样</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>谁决定了什么</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>未决行</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>无法读取的内容</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>已确认为停用</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>可靠分配</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>待检查</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>无目标</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>冲突中</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>概率</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>已评判</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>正确</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>最多错误（95 % 把握）</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>已否决</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>表无法读取</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>无法比较</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>没有差异</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>无</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>两人的决定不同</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>由他人决定</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>有表无法读取</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>条件或公式失败</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>没有负责的目标</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>缺少列</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>多行相同</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>差别太大</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>相同，只是未确认</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>不确定：%1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>没有后继的未决行</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>已确认为停用的行</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>共同点</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>从以前的映射沿用</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>以前的映射</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>仍与沿用时相同</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>已评判的行</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>已完成的行：%2 行中的 %1 行；未决：%3。</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>从存储库读取目标项目(&amp;T)</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>目录 = svn://服务器:端口/路径</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>每行一个目录。没有对应行时，目录的名称同时也是其服务器的名称。</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>最新</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>服务器(&amp;E)：</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>修订版(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>此计算机上的空间(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>等待服务器(&amp;W)：</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>服务器，第 %1 行：&quot;%2&quot; 不符合 &quot;目录 = svn://服务器:端口/路径&quot; 的格式。</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>登录存储库</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 要求登录。</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>名称和密码在程序结束前有效，且不会保存。</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>无法显示行 %1</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>已没有未决的行</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>表尚未比较</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>从头开始：%Ln 行未决</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>未决行按不确定程度排列</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>未决行按位置排列</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>此行不属于所选模式</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>已移出行 %1</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>未选择模式，或其所有行都已决定</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>在 %Ln 个项目中确认吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>此步骤可以撤销。</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>确认(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>已确认 %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>没有候选 %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>已确认行 %1 → %2</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>已约定的替换：%1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>请选择一个模式，或选中未决的行</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>抽样</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>抽取(&amp;D)</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>抽样，第 %1 行，共 %2 行：+ 正确，− 错误</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>没有正在进行的抽样</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>抽样的所有行都已决定</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%2 行中 %1 行正确</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>抽样被否决，%1；由 %2 评判</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>所有行都已评判</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>有 95 % 的把握错误少于 %1 %</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>抽样：%1，%2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>由 %1 评判</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>错误的行在其中</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>行 %1 错误：抽样结束</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>继续(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>查看错误的行(&amp;L)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>其中 %Ln 行不确定。</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>所有模式都已处理完</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>涉及 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>已将 %Ln 行确认为停用</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>%2 中的行 %1 错误。集合已拆分；要从哪一部分继续？</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>从 %Ln 行中抽取这么多行逐一评判。%1 行正确说明有 95 % 的把握错误少于 5 %，%2 行正确则少于 1 %。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>脚本控制台</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>脚本的输出</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>脚本的一行</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>一行 JavaScript。回车执行，Tab 补全，上下键翻阅。</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>停止正在运行的脚本 (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>删除输出</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>脚本 %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>（控制台）</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>完成，状态 %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>行 %1：%2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>文件太大。</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>不是 UTF-8 文本。</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>无法读取 %1。%2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>打开脚本</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>脚本 (*.js);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>保存脚本</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>无法写入 %1。%2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>脚本未保存。</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>（未命名）</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>新建脚本</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>打开 …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>参数：</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>脚本文本</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>参数</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>@</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>（进程 %1）</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>无法读取日志 %1 (%2)。</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>在最后一次结束的会话之后，日志 %1 无法读取。其中内容未知；日志将保留。</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>日志 %1 的末尾无法读取。可能缺少最后一次更改。</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>日志 %1 已损坏。损坏处之后仍有 %Ln 项更改相符，%2 项已不相符；可能还缺少其他更改。日志将保留。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>日志 %1 已损坏，或与映射文件不符。至少缺少之后的 %Ln 项更改；日志将保留。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>决定后转到下一个未决行(&amp;D)</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>从不</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>颜色(&amp;C)：</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>字体大小(&amp;F)：</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>备份间隔(&amp;Y)：</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>每行一个文件夹；目录文件在目录之外引用的内容可以从中读取。</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>允许的文件夹：</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>允许的文件夹：“%1”不是具有完整路径的文件夹。</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>此映射未与任何人共享。请先选择共享副本。</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 已存在，且是另一个映射。请选择其他副本，或将现有副本取到新文件中。</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>自上次更新以来，他人已发布了内容。</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>冲突中的行不会发布：%1。</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>他人的文件夹中有更改：%1。</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>文件夹已有人负责：%1。</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>他人正在发布 (%1)。请稍后重试。</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>无法访问共享副本：%1。自己的文件未变；请稍后重试。</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>其中一个文件不是可读的映射：%1。</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>无法写入：%1。</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>未能成功。</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>正在读取共享副本</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>通过 %1 共享</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>正在获取他人的更改</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>没有新内容</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>正在发布更改</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>已编辑映射</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>已发布，修订版 %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>首先会采用这些内容，之后才能发布。</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>仍然发布(&amp;S)</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>负责文件夹</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>负责(&amp;T)</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>正在登记文件夹</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>已没有自己的文件夹</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>自己的文件夹：%1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>（此处）</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>未打开</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>最近 %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>文件夹 %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>自己的修订版 %1，最新修订版 %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>他人已发布了内容。</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>没有来自他人的新内容。</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>自己的更改尚未发布。</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>共享副本：%1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>上次发布曾中断，但已送达。</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>上次发布已中断。请再发布一次。</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>共享文件曾在工作副本中更改而未提交。该内容保留在 %1 中。</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>工作副本曾在操作中途被遗留，现已清理。</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>工作副本的管理数据已损坏，现已重新获取；原来的为 %1。</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>中断的内容已整理妥当。</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>目录的文件夹，以逗号分隔；* 代表任意字符，? 代表一个字符。留空则全部归还：</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>全部已决定</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>仍需决定的行</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>筛选：没有行</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>所有行的筛选所显示的行</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln 行&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>未决：%1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>筛选：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1，%Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>尚未分配任何行</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>取消正在进行的工作；已完成的部分保留</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>错误和警告：%1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>搜索人、内容或行</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>撤回到此处(&amp;B)</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>撤销此步骤及之后所有有效步骤</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>转到行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>连同 %Ln 个依赖步骤撤销(&amp;T)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>只撤销这一步(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>连同 %Ln 个更早步骤重做(&amp;D)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>重做(&amp;D)</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>还没有步骤</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>没有其他步骤依赖它。</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>该步骤可以单独重做。</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>依赖于它的步骤：%1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>它依赖于：%1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>因作出其他决定而阻碍：%1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>那里现在是此列表中任何步骤都未决定的其他内容，例如来自其他程序。该步骤无法再移动。</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>及另外 %Ln 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1，%Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>已撤销</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>已被取代</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>截至</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>%1 中的更改在重新分配行之后才生效。届时只保留已确认的内容。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%1 中有 %Ln 行曾确认为停用，现在不再是：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>%1 中仍被忽略的变量：%2。要重新映射其中某个变量，请选择 &quot;公式...&quot;，或删除该行并重新输入。</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 中目标项目 %1 的一个条件已失效。</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 中目标项目 %1 的一个变量映射已失效。</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>%3 中的行 %1 → %2：另有 %Ln 行也使用该目标行：%4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%1 中有 %Ln 行与新分配的行共用目标行：%2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>已接受 %Ln 个冲突</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>已确认 %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>已将 %Ln 行确认为停用</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>已分配 %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>已取消 %Ln 行的分配</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>已更改 %Ln 行的值范围分配</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>已解决 %Ln 行的冲突</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>已更改 %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>已确认行 %1 → %2</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>已分配行 %1 → %2</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1（之前为 %2）</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>已将行 %1 确认为停用（之前为 %2）</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>已将行 %1 确认为停用</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>已取消行 %1 的分配（之前为 %2）</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>项目已添加</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>项目已移除</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>目标项目已添加</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>目标项目已移除</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>目标项目的顺序已更改</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>条件已更改</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>变量映射已更改</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>版本已更改</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>状态已更改</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2 中的 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1，%Ln 个项目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>后退(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>跳过(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>完成(&amp;D)</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1，行 %2：值范围分配的第 %3 项不符合 {NAME=值} -&gt; 行号 的格式：&quot;%4&quot;。请更正，或重新展开。</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1，行 %2：值范围分配指明了行 %3，但该行没有目标项目。请分配，或清空文本。</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1，行 %2：值范围分配指明了行 %3，但 %4 中没有此行。请更正，或重新展开。</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1：无法读取目标项目 %2 的表，其值范围分配未经检查。请检查目标项目的文件夹 (%3)。</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>正在检查值范围分配</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>已检查 %Ln 个值范围分配</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>没有问题</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln 个问题</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1（已取消）：%2。</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>核对目录版本</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>目录发布了新版本，旧版本的每一行都必须转移到新版本的一行。程序提出建议，由您检查并确认。</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>最近打开：</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>新建映射(&amp;N)...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>由两个目录版本创建新的映射文件</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>打开映射文件</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>打开示例目录(&amp;E)</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>为随附的示例目录打开自己的映射文件</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>将所有更改写入映射文件</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>写入另一个映射文件</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>关闭映射文件</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>目录文件夹(&amp;D)...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>选择旧目录版本和新目录版本的文件夹</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>共享副本(&amp;S)...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>选择多人借以共同处理此映射的副本</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>采用他人已发布的内容</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>发布(&amp;P)</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>将自己的更改传给他人</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>负责文件夹(&amp;F)...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>告知他人自己编辑哪些文件夹</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>谁在处理什么(&amp;W)</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>显示谁打开了映射，以及哪些文件夹归谁负责</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>导入表(&amp;I)...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>由 CSV 文件所在的文件夹生成目录的项目</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>导出行(&amp;X)...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>将该版本的所有行及其分配写入 CSV 文件</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>报告(&amp;P)...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>以 PDF 或 HTML 写出该版本的进展以及行未决的原因</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>结束程序</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>撤销最后一个步骤</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>重新执行已撤销的步骤</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>确认行(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>一步确认所选行或所有显示的行的分配</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>将无目标的行确认为停用(&amp;X)...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>在所选行或所有显示的行中，将无目标的行确认为停用</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>取消分配(&amp;M)...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>一步取消所选行或所有显示的行的分配</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>取消分配并确认(&amp;O)...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>所选行或所有显示的行已停用：一步取消分配并确认</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>分配所有项目(&amp;A)...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>为目录的所有行查找分配；已确认的保留</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>检查值范围分配(&amp;V)</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>将所有值范围文本与目标项目的表进行比较</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>脚本(&amp;I)...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>打开用于编写和运行脚本的窗口</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>设置(&amp;S)...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>语言、字体、按键、备份</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>下一个未决行(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>转到下一个需要决定的行，也包括下一个项目中的行</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>上一个未决行(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>转到上一个需要决定的行，也包括上一个项目中的行</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>转到行(&amp;G)...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>按编号或名称查找项目的行</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>另一个表(&amp;O)</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>在旧表和新表之间切换</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>查找(&amp;F)...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>按词的一部分查找项目、行、命令和设置</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>差异模式(&amp;D)</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>显示未决行与其建议的差异</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>新旧对照(&amp;O)</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>并排显示行的旧值和新值，以及其候选</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>确认模式(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>一步确认所选模式的所有行</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>移出行(&amp;T)</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>此行不会与模式的其他行一起确认</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>模式的下一行(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>转到所选模式的下一个未决行</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>模式的上一行(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>转到所选模式的上一个未决行</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>下一个模式(&amp;E)</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>选择列表中的下一个模式</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>最不确定的优先(&amp;U)</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>未决行按出错风险而不是按位置排列</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>相邻行(&amp;G)</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>显示相邻行的分配彼此不符之处</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>校正行(&amp;M)</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>一步修正所选的相邻行发现</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>替换(&amp;R)...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>为目录版本约定值的替换，或将其撤回</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>抽样(&amp;S)...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>从所选模式或选中的行中抽取行，逐一评判</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>抽样：正确(&amp;I)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>显示的抽样行分配正确</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>抽样：错误(&amp;W)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>显示的抽样行分配错误；抽样结束</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>候选 &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>将此候选分配给该行并确认</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>候选 &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>候选 &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>候选 &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>候选 &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>行的值范围</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>显示旧范围的哪些值有新行</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>冲突(&amp;F)</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>显示双方决定不同的行</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>下一个未解决的冲突</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>转到下一个冲突仍未解决的行</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>冲突：自己的决定</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>在此冲突中采用自己的决定</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>冲突：对方的决定</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>在此冲突中采用对方的决定</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>冲突：重新决定</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>两个决定都不采用；该行重新变为无目标</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>重新构建显示：树、统计、磁盘上的表</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>手册(&amp;M)</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>在相关位置打开手册</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>按键(&amp;K)...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>显示并更改所有命令的按键</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>此处的提示(&amp;H)</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>在按键所作用之处显示提示：在表中说明行处于该状态的原因</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>导览(&amp;T)</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>用几个步骤展示各项内容的位置</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>关于此程序(&amp;A)</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>版本和文件夹</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>步骤...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>列出所有步骤（包括以前会话的），并可单独撤销</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>下一个有未决行的项目</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>转到下一个需要决定的项目</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>上一个有未决行的项目</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>转到上一个需要决定的项目</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>所有行的筛选</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>按状态、原因、差异和人员选择所有项目的行；F8 逐行浏览</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>打印(&amp;T)...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>显示当前表格的页面并打印</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>显示报告的页面并打印</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>打印报告...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>沿用决定...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>一步从以前的映射沿用已为同一旧版本确认的内容</translation>
    </message>
</context>
</TS>
