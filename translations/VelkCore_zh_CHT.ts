<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>節標題沒有結束</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>引號沒有結束；文字按原樣使用</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>文件沒有值。</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>這不是 JSON。</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>這不是一般檔案。</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>缺少文字的結束引號。</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>缺少項目的名稱。</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>複本與原件不同。</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>文字中的控制字元必須寫成跳脫序列。</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>文字中有半個代理對。</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>文字中有未知的跳脫序列。</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>文字不是 UTF-8。</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>缺少值。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>數字的小數點後沒有數字。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>數字的指數中沒有數字。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>數字沒有任何數字位。</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>數字太大。</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>\u 後面必須有四個十六進位數字。</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>文件後面還有內容。</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>項目名稱後缺少冒號。</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>項目後缺少逗號或 }。</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>清單值後缺少逗號或 ]。</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>引號後有文字；全部按原樣使用</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>第 %1 列，第 %2 欄</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>這是目錄</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>這不是擴充：缺少 VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>這不是一般檔案</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>名稱含有 NUL 字元</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>節標題後的文字會被忽略</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>檔案是 UTF-16；請另存為 UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>此擴充是為版本 %1 製作的，而目前版本是 %2；請重新編譯</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>行僅以歸位字元結束；請用換行字元儲存檔案</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>未知的跳脫序列 %1 按原樣使用</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>為唯讀</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>不是 UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>無法讀取：%1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>無法寫入：%1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>既不是節，也不是鍵或註解</translation>
    </message>
</context>
</TS>
