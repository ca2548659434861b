<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 位於型錄之外，不予寫入；請更正描述檔中的「path」，或移除連結</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1，小數點為逗號</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1：這是與 %3 不同的工作的部分 %2</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>儲存格內的引號視為字元，首次出現在第 %1 列第 %2 欄</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>日期時間</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>從 %1 接管的決定：%2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>各部分中的專案：%1（不同的：%2），整個工作：%3</translation>
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
        <translation>文字</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>拓撲（%1）</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>布林值</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>值範圍（%1）</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>計算（%1）</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>無法讀取目錄</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>無法建立目錄</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>這不是 velkmap assign --shard 寫出的部分</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>這不是一般檔案</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>鍵「%1」在 %Ln 列中有 %2 列缺少或重複</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>%2 的條件「%1」無法解析；已指派的內容不確定</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>第 %1 欄沒有名稱，現稱為「%2」</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>第 %1 欄再次名為「%2」，現稱為「%3」</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>欄「%1」按描述檔為：%2；其儲存格看起來是：%3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>欄「%1」已不存在</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>先前匯入的表格無法讀取，其列 ID 將無法保留；請更正它，或將其刪除以重新開始</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>文件表格沒有欄 %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>專案的表格無法讀取</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>%1 的表格無法讀取；專案的列保持原樣</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>%1 的表格無法讀取；沒有它而指派的內容不確定</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>該列僅以歸位字元結尾；請以換行字元儲存檔案</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>儲存格以分號分隔</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>儲存格以定位字元分隔</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>唯一的欄名為「%1」；如果有多欄，請用 --separator 指定分隔字元</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>第一列看起來像資料；它被當作欄名，因此請在其前面放一列欄名</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>沒有這個型錄</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>會得到與 %1 相同的表格；請重新命名其中一個</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>沒有欄「%1」</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>沒有任何部分</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>其中的專案數與其所述不符</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>整數</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>按 %1 讀取</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>內部（%1）</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>沒有專案有日期</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>找不到鍵欄；列的 ID 是其在檔案中的位置</translation>
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
        <source>lässt sich nicht öffnen: %1</source>
        <translation>無法開啟：%1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>新欄「%1」</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>僅大小寫不同：%1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>如果是其他編碼，請用 --encoding 指定</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>「%1」</translation>
    </message>
</context>
</TS>
