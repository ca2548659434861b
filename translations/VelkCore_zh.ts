<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>节标题没有结束</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>引号没有结束；文本按原样使用</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>文档没有值。</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>这不是 JSON。</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>这不是普通文件。</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>缺少文本的结束引号。</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>缺少条目的名称。</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>副本与原件不同。</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>文本中的控制字符必须写成转义序列。</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>文本中有半个代理对。</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>文本中有未知的转义序列。</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>文本不是 UTF-8。</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>缺少值。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>数字的小数点后没有数字。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>数字的指数中没有数字。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>数字没有任何数字位。</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>数字太大。</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>\u 后面必须有四个十六进制数字。</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>文档后面还有内容。</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>条目名称后缺少冒号。</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>条目后缺少逗号或 }。</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>列表值后缺少逗号或 ]。</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>引号后有文本；全部按原样使用</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>第 %1 行，第 %2 列</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>这是目录</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>这不是扩展：缺少 VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>名称含有 NUL 字符</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>节标题后的文本被忽略</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>文件是 UTF-16；请保存为 UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>该扩展是为版本 %1 制作的，而当前版本是 %2；请重新编译</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>行仅以回车符结束；请用换行符保存文件</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>未知的转义序列 %1 按原样使用</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>为只读</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>不是 UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>既不是节，也不是键或注释</translation>
    </message>
</context>
</TS>
