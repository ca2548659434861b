<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 位于目录册之外，不予写入；请改正描述符中的“path”，或移除链接</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1，小数点为逗号</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1：这是与 %3 不同的工作的部分 %2</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>单元格内的引号视为字符，首次出现在第 %1 行第 %2 列</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>日期时间</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>从 %1 接管的决定：%2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>各部分中的项目：%1（不同的：%2），整个工作：%3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>缺少部分 %1</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>部分 %1 存在多次（%2）：%3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>拓扑（%1）</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>值范围（%1）</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>计算（%1）</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>无法读取目录</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>无法创建目录</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>这不是 velkmap assign --shard 写出的部分</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>这不是普通文件</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>键“%1”在 %Ln 行中有 %2 行缺失或重复</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>%2 的条件“%1”无法解析；已分配的内容不确定</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>第 %1 列没有名称，现称为“%2”</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>第 %1 列再次名为“%2”，现称为“%3”</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>列“%1”按描述符为：%2；其单元格看起来是：%3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>列“%1”已不存在</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>先前导入的表无法读取，其行 ID 将无法保留；请改正它，或将其删除以重新开始</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>文档表没有列 %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>项目的表无法读取</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>%1 的表无法读取；项目的行保持原样</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>%1 的表无法读取；没有它而分配的内容不确定</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>该行仅以回车符结尾；请以换行符保存文件</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>单元格以分号分隔</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>单元格以制表符分隔</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>唯一的列名为“%1”；如果有多列，请用 --separator 指定分隔符</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>第一行看起来像数据；它被当作列名，因此请在其前面放一行列名</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>没有这个目录册</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>会得到与 %1 相同的表；请重命名其中一个</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>没有列“%1”</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>没有任何部分</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>其中的项目数与其所述不符</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>按 %1 读取</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>内部（%1）</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>没有项目有日期</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>未找到键列；行的 ID 是其在文件中的位置</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>新列“%1”</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>仅大小写不同：%1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>如果是其他编码，请用 --encoding 指定</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
