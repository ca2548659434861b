<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>沒有需要變更的內容。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>確認 %Ln 列嗎？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>將 %Ln 列確認為停用嗎？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>取消 %Ln 列的指派嗎？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>取消 %Ln 列的指派並確認為停用嗎？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>其中 %Ln 列已確認。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>其中 %Ln 列將失去其值範圍指派。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln 列沒有目標，保持未確認。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln 列保持不變。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln 列有衝突，不會變更。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln 列未登記在任何目標專案中。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>已確認 %Ln 列。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>已將 %Ln 列確認為停用。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>已取消 %Ln 列的指派。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>已取消 %Ln 列的指派，並確認為停用。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>無後繼</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>可靠度</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>新列</translation>
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
        <translation>此處已決定或可靠 %1</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>新版本中沒有列 %1</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>當時已確認為停用 %1</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>在此處缺少的專案中 %1</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>在那裡衝突中 %1</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>未沿用：%1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>%1 中沒有可沿用的內容。</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>該檔案沒有從目錄版本 %1 開始的對應。</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>該檔案也指向目錄版本 %1。</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>請選擇從同一舊目錄版本指向較早新版本的對應。</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>從 %1 沿用：在那裡已針對目錄版本 %2 確認</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>正在讀取以前的對應</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>無法從 %1 沿用任何內容。</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>目錄版本 %1 的資料夾</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>正在尋找目標專案</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>正在沿用決定</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>已取消，未沿用任何內容</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>從 %1 沿用的決定：%2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>從 %1 沿用：%Ln 個已確認列中的 %2 個，可靠指派 %3，建議 %4。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>舊目錄版本的資料夾</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>新目錄版本的資料夾</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>目錄資料夾</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>此對應檔的兩個目錄版本在哪裡？資料夾會隨檔案一起記住。</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>舊版本 (%1)(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>新版本 (%1)(&amp;N)：</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>兩個資料夾都需要。</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 不是資料夾。</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>舊版本中缺少 %1。需要的是目錄 %2 所在的資料夾。</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>新版本中缺少目錄 %1。</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>無法顯示 %2 中的列 %1</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>沒有列處於衝突</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>所有衝突都已決定；現在請儲存</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>衝突 %1 / %2，還有 %3 個未解決</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%1 中有 %Ln 列以同樣的方式互相矛盾。此決定適用於全部嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>自己：%1
對方：%2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>適用於全部(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>逐列處理(&amp;L)</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>此列沒有衝突</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>自己的決定未知：此列在開啟時已處於衝突</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>沒有列處於衝突。</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>所有衝突都已決定。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>還有 %Ln 列與此列一樣互相矛盾。</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>衝突</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>衝突雙方</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>自己</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>對方</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>重新決定</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%Ln 個衝突中還有 %1 個未解決。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>未解決</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>自己</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>對方</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>新</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>專案</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>自己的決定</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>對方的決定</translation>
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
        <translation>自動指派</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>待檢查</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>已確認</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>無目標，未決</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>已確認為停用</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1，列 %2，%3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>目標專案</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>目標列</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>值範圍</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>舊列</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>自己的決定</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>對方的決定</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>內容</translation>
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
            <numerusform>取代方式與另外 %Ln 列相同</numerusform>
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
        <translation>僅在新列中</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>僅在舊列中</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>變數</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>舊</translation>
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
        <translation>表格中沒有此列。</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>無目標。%1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>已指派的列不在候選之中。</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>新舊對照</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>候選</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>已確認。</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>可靠指派。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 列</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>已比較：前 %1 行</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>沒有共同的差異。</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>共同點：%1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>選取的行</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>目錄版本</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>檔案包含多個目錄版本。要開啟哪一個？</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>正在讀取對應檔</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>無法開啟檔案。</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>檔案以唯讀方式開啟。</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>如果確定已無人在那裡工作（例如電腦故障之後），可以解除鎖定。</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>唯讀(&amp;R)</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>解除鎖定(&amp;L)</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>無法解除鎖定。</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>目錄未知；請用 --source 和 --target 指定。</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>儲存對 %1 的變更嗎？</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>捨棄的變更將會遺失。</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>捨棄(&amp;D)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1：%Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>還有 %Ln 列處於衝突，所在專案：</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>顯示衝突(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>仍然儲存(&amp;T)</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>已儲存：%1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>檔案未儲存。</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>合併變更(&amp;M)</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>保留副本並重新寫入(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>寫入自己的版本(&amp;W)</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>已採用他人的變更。請檢查，然後再儲存一次。</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>無法採用他人的變更。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>無法建立對應檔。</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>及另外 %Ln 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>正在讀取 %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>無法讀取對應檔 %1 (%2)。
請選擇其他檔案，或將備份 %3 複製回來。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>無法讀取對應檔 %1 (%2)。
請選擇其他檔案。</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 不包含任何版本。</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 不包含版本 %2。現有版本：%3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 以唯讀方式開啟。</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 正由 %2 編輯，因此以唯讀方式開啟。</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>%1 的資料夾無法寫入 (%2)。因此檔案以唯讀方式開啟；以其他名稱儲存後即可編輯。</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>%1 有未儲存的工作。一旦能夠開啟檔案進行編輯，就會提供復原 (%2)。</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 還有另一個名稱（硬連結）。儲存時，另一名稱的檔案保持原狀。</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>正在儲存 %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>正在備份 %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 正由 %2 編輯。未寫入任何內容。請選擇其他名稱。</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>無法在 %1 的資料夾中建立任何內容 (%2)。未寫入任何內容。請選擇其他資料夾。</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>此專案沒有任何列在篩選中。
開啟「%1」並選擇「%2」即可重新看到所有列。</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>沒有任何專案的列在篩選中。
開啟「%1」並選擇「%2」即可重新看到所有專案。</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>對應檔 (*.json);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>開啟對應檔</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>儲存對應檔</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>儲存表格</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>表格 (*.csv);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>選擇共用副本</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>沿用決定的來源</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>篩選已取消：該專案中沒有符合的列</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>已到結尾，從開頭繼續</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>已到開頭，從結尾繼續</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>篩選中沒有剩餘的列</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>取代的文字</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>換算的數</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>為何未決</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>差異類型</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>欄中的差異</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>最後決定者</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>無人</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>（無）</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>非所選</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>正在讀取表...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>涉及 %Ln 個專案</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>無篩選：所有列</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>無法讀取的表：%Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>所有列的篩選</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>取消篩選(&amp;C)</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>來源</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>從以前的對應沿用</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 不是一般檔案，因此不能用作鎖定。未寫入任何內容。請移走該處的內容。</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>另一個程式正在儲存 %1。未寫入任何內容。請稍後再儲存一次。</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>無法在 %1 的資料夾中建立任何內容 (%2)。未寫入任何內容。請騰出空間，或以其他名稱儲存。</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>無法讀取 %1 (%2)。未寫入任何內容。請以其他名稱儲存。</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 不是可讀的對應檔 (%2)。未寫入任何內容。儲存時，現有檔案會以附時間戳記的名稱保留，並新建一個只包含此版本的檔案。</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 不是可讀的對應檔 (%2)。未寫入任何內容。儲存時，現有檔案會以附時間戳記的名稱保留，並新建一個檔案。其他版本取自備份 %3：%4。</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 無法讀取，也無法保留為 %2 (%3)。未寫入任何內容。請以其他名稱儲存。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 自開啟以來已被刪除或重新命名。儲存時會重新建立檔案，且只包含此版本 (%2)。尚未寫入任何內容。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 自開啟以來已被他人變更，但此版本 (%2) 未變。儲存時，其他版本保持檔案中現在的樣子。尚未寫入任何內容。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 自開啟以來已被他人變更，此版本 (%2) 也已變更。儲存會遺失他人對此版本的變更。尚未寫入任何內容：請仍然儲存、以其他名稱儲存，或重新開啟檔案。</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>無法寫入 %1 (%2)。未寫入任何內容。請檢查寫入權限，或以其他名稱儲存。</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 未儲存：%2。檔案未變，變更仍處於開啟狀態。請騰出空間後再儲存一次，或以其他名稱儲存。</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>檔案未能完整寫入</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>寫入的檔案無法讀取 (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>寫入的檔案不包含應儲存的內容</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>寫入的檔案中缺少版本 %1，或者它是另一個版本</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>無法建立備份 %1 (%2)。未寫入任何內容。請騰出空間，或以其他名稱儲存。</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 在儲存期間被他人變更。未寫入任何內容。請再儲存一次。</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 未儲存：%2。檔案未變，變更仍處於開啟狀態。請以其他名稱儲存。</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>上一頁(&amp;B)</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>手冊</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>在頁面中尋找</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>決定記錄(&amp;H)...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>誰在何時因何作了什麼決定</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>決定的原因(&amp;D)...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>用於上一個決定或所選的列，例如為什麼沒有後繼</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>%2 中的列 %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%1 中的 %Ln 列</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>已記下原因：%1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>決定記錄</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>所選的列</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>所選的專案</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>所有專案</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>搜尋人員、專案、目標或原因</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>重新讀取(&amp;R)</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>另存為 CSV(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>日誌中無法讀取的列：%1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>決定：%1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>無法寫入檔案。</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>無後繼</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1（未儲存）</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人員</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>專案</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>先前</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>新</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>從 %1 沿用</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>CSV 檔案所在的資料夾</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>目錄的資料夾</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>匯入表格</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>CSV 檔案所在的資料夾(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>目錄的資料夾(&amp;D)：</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>每個 CSV 檔案會在目錄的相同位置成為一個附表格的專案。再次匯入這些表格時，列號保持不變。</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>匯入(&amp;I)</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>缺少 CSV 檔案所在的資料夾。</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>缺少目錄的資料夾；如果其上層資料夾存在，則會建立。</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>一個資料夾位於另一個之中。</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>確認列，或指派所選的列</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>取消列的指派</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>取消指派並確認為停用</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>編輯值範圍指派</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>從列複製條件</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>確認整個專案</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>在表格中尋找</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>找下一個</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>找上一個</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>欄篩選</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>複製列</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>放大表格</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>縮小表格</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>表格恢復正常大小</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>預設(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>無按鍵(&amp;O)</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>命令或按鍵</translation>
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
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>視窗</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>%1 的按鍵</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>按鍵 %1 由輸入欄位和清單本身使用。</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>按鍵 %1 將同時屬於 %2 和 %3。</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>自行選擇</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 將不再擁有按鍵 %2。</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>按鍵 %1 現在屬於 %2。</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>找不到任何內容</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>已確認：指派已決定</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>建議：必須確認或更正</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>無圖示：明確相同，由程式指派</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>找不到指派</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>停用：已確認沒有指派</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>與他人的變更衝突</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>無法讀取專案或表格</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>列的值範圍指派</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>在目標表格中：已指派的列</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>圖例</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>條件已複製到剪貼簿</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>複製的條件還不能直接使用：有值缺少、是一個範圍或包含引號：%1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>篩選範圍內已全部完成，範圍之外還有 %Ln 列未決。</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>已到結尾，從開頭繼續</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>已到開頭，從結尾繼續</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>衝突 %1 / %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>沒有處於所選狀態的列</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>已沒有需要決定的列</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>未決的列均無法顯示；缺少表格</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>前往列</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>編號或標準名稱：</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>前往</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>未選擇專案</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>此專案中沒有包含「%1」的列</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>第 %1 個，共 %2 個</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>執行(&amp;D)</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>此步驟可以復原。</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>針對所選的列。</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>針對專案的所有列。</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>篩選：%1。</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>沒有其他專案有這樣的列</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>只針對專案中顯示的列：%2 列中的 %1 列。</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>衝突</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>僅顯示與他人的變更衝突的列及其專案</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>待檢查</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>僅顯示帶有必須確認或更正的建議的列及其專案</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>無目標</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>僅顯示找不到任何內容的列及其專案</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>僅顯示明確相同並由程式指派的列及其專案</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>已確認</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>僅顯示指派已確認的列及其專案</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>僅顯示已確認為停用的列及其專案</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>使用連結資料庫(&amp;K)</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>此電腦上的檔案</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL 伺服器</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>慣用連接埠</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>密碼位於密碼檔、桌面的金鑰儲存區或 PGPASSWORD 中，或在登入時輸入。密碼不會儲存。</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>如果可能</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>一律</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>一律，並驗證伺服器</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>永不</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>類型：</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>檔案(&amp;I)：</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>主機(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>連接埠(&amp;R)：</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>資料庫(&amp;B)：</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>使用者(&amp;U)：</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>加密(&amp;N)：</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>連結資料庫：缺少檔案名稱。</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>連結資料庫：缺少資料庫名稱，或名稱無效。</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>檢查連結資料庫的編號(&amp;N)</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>連結資料庫中沒有您所屬的群組。</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>選擇群組</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>連結資料庫的群組：</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>%2 的列 %1 不在此對應中。</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>正在檢查連結資料庫的編號</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>無法檢查編號。</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>連結資料庫中的變更可能已遺失。</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>缺少連結資料庫的授權。</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>登入連結資料庫</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>密碼在程式結束前有效，且不會儲存。如果留空，則取自密碼檔。</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>紀錄中以此名稱註明誰刪除了內容。</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>連結管理員</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>搜尋編號、專案或說明</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>專案</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>顯示列(&amp;S)</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>連結到其他列(&amp;L)...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>然後選擇專案和列，並用「將所選內容交給連結管理員」傳送所選內容。</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>最近刪除的內容(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>連結：%1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>沒有可以還原的已刪除內容。</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>還原最近刪除的內容嗎？列數：%1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>由 %1 於 %2 從 %3 刪除。</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>還原(&amp;R)</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>前 %Ln 個連結；搜尋可顯示其他連結。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>編號檢查</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>此對應的專案中的編號：%1，其他專案中的編號：%2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>因無法讀取而未比較：%1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>列已停用或不存在</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>已確認為停用</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>專案中沒有</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>被多列佔用</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>零件有差異</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>零件有差異（未比較）</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>帶編號的未決列</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>編號：%1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>%2 中沒有列 %1。</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>無法顯示專案 %1。</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>尋找</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>專案、列、命令或設定</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>找到的內容</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>輸入字詞的一部分即可；後面的數字表示列。</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>找不到任何內容</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln 個結果</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>前 %1 個結果，共 %Ln 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>列 %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>專案</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>錯誤： </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>警告： </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>訊息</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>清除訊息</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>複製所有訊息</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>使用者(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>密碼(&amp;P)：</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>沒有到連結資料庫的連線：%1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>無法讀取 ERP 編號。%1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>已重新指派列：沒有變更</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>這裡沒有這樣的列。%1 前往下一列。</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>目錄</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>左側是舊目錄版本。圖示顯示哪裡還有需要決定的內容。選擇一個專案即可檢視其列。</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>這裡列出新版本中可以接收列的專案，以及條件和變數對應。</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>左側是舊表格，右側是新表格。%1 確認指派或指派右側所選的列，%2 取消指派，%3 確認該列已停用。</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>仍未決的內容</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>計數器顯示有多少列需要決定。%1 前往下一列，也包括下一個專案中的列。</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>不會遺失任何內容</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>每個步驟都可以復原。當機之後，程式會提供救回未儲存的內容。導覽位於說明選單中。</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>指派整個目錄的列嗎？</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>已確認的內容一律保留。此步驟可以復原。</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>僅沒有指派的列(&amp;L)</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>全部未確認的內容重新處理(&amp;U)</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>已指派所有專案</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>沒有目標專案 %1。</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>目標專案：%1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>設定：%1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>此處沒有提示</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>清空清單(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>共用(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>最近開啟的檔案(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>前往(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>審查(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>僅列(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>連結資料庫</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>列的狀態</translation>
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
        <translation>沒有開啟可供編輯的檔案。</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>在檔案版本之上的自己的變更</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln 個衝突：自己的決定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln 個衝突：對方的決定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln 個衝突：需重新決定</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>無法寫入日誌 %1 (%2)。當機後變更將會遺失：請儘快儲存。</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>無法妥善保存救回的版本 (%1)。請騰出空間後重新開啟；日誌未變。</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>當機後的救回</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>無法建立日誌 %1 (%2)。當機後變更將會遺失：請經常儲存。</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>沒有開啟的對應檔。</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>正在儲存。</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>未儲存。%1 請以其他名稱儲存。</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>%1 的鎖定已遺失，無法更新。他人可能同時編輯此檔案。</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>自動備份失敗 (%1)。請儘快儲存。</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>未採用變更。%1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>已標記衝突</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>已復原：%1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>「%1」與之後的變更不再相符。步驟清單會說明阻礙所在。</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>正在尋找目標專案</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>已取消，未建立任何內容</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>正在指派列</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln 個專案：%1 個在相同位置，%2 個在其他位置，%3 個已拆分，%4 個無目標，%5 個無法讀取</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln 個專案中的 %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>其中 %1 列已指派，%2 列待檢查，%3 列無目標</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>已取消：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1，共 %Ln 列</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>已採用 %Ln 項變更。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>雙方對 %Ln 列的決定相同。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln 列的決定不同，已標記為衝突。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>其他矛盾 %Ln 處：以檔案中的版本為準。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>無法顯示列 %1</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>未選擇任何發現</translation>
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
        <translation>正在比較表格</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>已檢視 %Ln 個已指派的列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln 處發現</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>相鄰列</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>列 %1 至 %2 偏移了 %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>列 %1 與 %2 互換了</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>列 %1 偏離了 %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>列 %1 佔用了另一列的目標列</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>列 %1 被略過</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>未解決</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>已修正：%1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>發現</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>已修正</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>專案</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>舊目錄版本的資料夾</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>新目錄版本的資料夾</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>立即指派列(&amp;L)</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>新增對應</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>舊目錄版本(&amp;O)：</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>其中的目錄：</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>新目錄版本(&amp;N)：</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>選擇對應檔</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>對應檔(&amp;M)：</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>建立(&amp;T)</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>缺少舊目錄版本的資料夾。</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>缺少新目錄版本的資料夾。</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>每個版本都需要一個包含目錄的資料夾。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>對應檔需要一個名稱。</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>沒有資料夾 %1。</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 已存在。</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>儲存時會加入新版本；相同日期的版本及其中所有已確認的內容都會被取代。</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>使用此檔案(&amp;U)</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>儲存媒體已滿</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>檔案將超過此處允許的大小</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>缺少寫入權限</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>儲存媒體已防寫</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>資料夾或檔案已不存在</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>該位置上不是一般檔案</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>無目標</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>舊列</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>新列</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>其他差異</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>無法讀取專案的表格。</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>路徑：</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>標準：</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>名稱：</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>專案版本：</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>表格版本：</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>列：</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>檔案：</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>尋找</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln 個帶建議的未決列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>屬於 %Ln 個模式</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>其中 %Ln 列仍在比較</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>已選：%Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>其中 %Ln 列已移出</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>未決列的差異</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>涉及 %Ln 個專案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln 個沒有後繼的未決列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>正在比較表格：已讀取 %Ln 個專案</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln 個專案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>另有 %Ln 列具有這些和其他差異</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>差異</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>專案</translation>
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
        <translation>相近的數值</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>不同的數字</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>措辭不同</translation>
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
        <translation>無法比較</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>沒有差異</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>寫法不同</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>不確定：%1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>整個資料夾沒有目標：%1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>整個專案沒有目標：%1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>目標專案已不存在：%1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1：%2 已不存在</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>沒有相似的列：%1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>專案名稱</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>另一個</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>其他值</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>每列有其中一項或多項</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>無法使用：沒有開啟的檔案</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>無法使用：正在連接連結資料庫</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>無法使用：%1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>無法使用：未連接連結資料庫</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>無法使用：連結管理員沒有在等待選取</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>無法使用：未選擇專案</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>無法使用：未選擇列</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>%1 的列 %2 的 ERP 編號</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>請指派一個 ERP 編號。

專案：%1
列：%2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>無法開始撰寫郵件。</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>此電腦上未設定郵件程式。請求內容如下：

%1：%2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>沒有可列印的表格顯示</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>報告</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>列印：%1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 已傳送到印表機</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 已列印到 %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>無法列印 %1。</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>印表機不接受頁面。</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>無法寫入 %1。</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>頁</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
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
        <translation>列 %1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln 列已確認，但其範圍內有的值沒有新列。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>收回(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>仍然確認(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1：%Ln 列</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>此列沒有值範圍指派。</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>缺少：%1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>重複：%1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>不在舊範圍內：%1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>列的值範圍</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1：%Ln 個值中已指派 %2 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>決定的原因</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>用於(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>原因(&amp;R)：</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>已停產</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>已與其他零件合併</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>已拆分為多個零件</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>已移到其他目錄</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>尚未檢查</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>救回</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>已儲存</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>已救回</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>截至</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>專案</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>已確認</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>待檢查</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>無目標</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>已儲存的版本比所有可救回的內容都新。</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>救回(&amp;R)</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>包括之後的變更 (%1)(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>開啟已儲存的版本(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln 個步驟</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>%1 有未儲存的工作：%2，最後一步是「%3」。來自 %4。</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1，共 %Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1，%Ln 個專案</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>正在匯入表格</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 已沒有 CSV 檔案，保持不變</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>資料夾中沒有 CSV 檔案；未匯入任何內容</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>已取消：%1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>未能全部寫入：%1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>無法寫入 %1。</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>匯出列</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>表格 (*.csv);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>正在匯出列</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>已取消，未匯出任何內容</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>寫入報告</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF 檔案 (*.pdf);;HTML 頁面 (*.html);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>正在產生報告</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>已取消，未寫入報告</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>正在編排頁面</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>報告已寫入 %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>已取消，未產生報告</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>第 %1 頁，共 %2 頁</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln 個表格</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 個新增，%2 個已變更，%3 個未變，%4 個未匯入</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>已將 %Ln 列匯出到 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1，共 %Ln 列</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>約定的取代</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>在整個目錄版本中</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>約定(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>撤回(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>依據(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>沿用(&amp;T)</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>取代表示某個舊值代表某個新值。它會產生建議，但不確認任何內容。</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>已約定</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>在 %1 中已約定</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>正在讀取表格</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln 列支持</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln 列不支持</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>尚無約定的取代。開啟差異清單後，其中的取代會在此提供。</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>對應報告：%1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>目錄版本 %1 到 %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>產生於 %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>列的情況</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>依資料夾，包括其下的全部內容</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>依專案</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>列未決的原因</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>未決列與其建議的差異</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>抽樣</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>誰決定了什麼</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>未決列</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>無法讀取的內容</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>已確認</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>已確認為停用</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>可靠指派</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>待檢查</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>無目標</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>衝突中</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>專案</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>差異</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>專案</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>機率</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>範例</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人員</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>已評判</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>正確</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>最多錯誤（95 % 把握）</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>已否決</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>表格無法讀取</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>無法比較</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>沒有差異</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>無</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>以及另外 %1 個</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>兩人的決定不同</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>由他人決定</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>有表格無法讀取</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>條件或公式失敗</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>沒有負責的目標</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>缺少欄</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>多列相同</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>差別太大</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>相同，只是未確認</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>不確定：%1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>沒有後繼的未決列</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>已確認停用的列</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>共同點</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>從以前的對應沿用</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>以前的對應</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>仍與沿用時相同</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>已評判的列</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>已完成的列：%2 列中的 %1 列；未決：%3。</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>從儲存庫讀取目標專案(&amp;T)</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>目錄 = svn://伺服器:連接埠/路徑</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>每行一個目錄。沒有對應的行時，目錄的名稱同時也是其伺服器的名稱。</translation>
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
        <translation>伺服器(&amp;E)：</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>修訂版(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>此電腦上的空間(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>等待伺服器(&amp;W)：</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>伺服器，第 %1 行：&quot;%2&quot; 不符合 &quot;目錄 = svn://伺服器:連接埠/路徑&quot; 的格式。</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>登入儲存庫</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 要求登入。</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>名稱和密碼在程式結束前有效，且不會儲存。</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>無法顯示列 %1</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>已沒有未決的列</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>表格尚未比較</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>從頭開始：%Ln 列未決</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>未決列依不確定程度排列</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>未決列依位置排列</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>此列不屬於所選模式</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>已移出列 %1</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>未選擇模式，或其所有列都已決定</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>在 %Ln 個專案中確認嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>此步驟可以復原。</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>確認(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>已確認 %Ln 列</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>沒有候選 %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>已確認列 %1 → %2</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>已約定的取代：%1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>請選擇一個模式，或選取未決的列</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>抽樣</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>抽取(&amp;D)</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>抽樣，第 %1 列，共 %2 列：+ 正確，− 錯誤</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>沒有正在進行的抽樣</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>抽樣的所有列都已決定</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%2 列中 %1 列正確</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>抽樣被否決，%1；由 %2 評判</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>所有列都已評判</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>有 95 % 的把握錯誤少於 %1 %</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>抽樣：%1，%2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>由 %1 評判</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>錯誤的列在其中</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>列 %1 錯誤：抽樣結束</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>繼續(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>檢視錯誤的列(&amp;L)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>其中 %Ln 列不確定。</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>所有模式都已處理完</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>涉及 %Ln 個專案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>已將 %Ln 列確認為停用</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>%2 中的列 %1 錯誤。集合已拆分；要從哪一部分繼續？</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>從 %Ln 列中抽取這麼多列逐一評判。%1 列正確說明有 95 % 的把握錯誤少於 5 %，%2 列正確則少於 1 %。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>指令碼主控台</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>指令碼的輸出</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>指令碼的一行</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>一行 JavaScript。Enter 執行，Tab 補完，上下鍵翻閱。</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>停止正在執行的指令碼 (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>刪除輸出</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>指令碼 %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>（主控台）</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>完成，狀態 %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>列 %1：%2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>檔案太大。</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>不是 UTF-8 文字。</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>無法讀取 %1。%2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>開啟指令碼</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>指令碼 (*.js);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>儲存指令碼</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>無法寫入 %1。%2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>指令碼未儲存。</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>（未命名）</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>新增指令碼</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>指令碼</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>開啟 …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>執行</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>引數：</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>指令碼文字</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>引數</translation>
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
        <translation>（處理程序 %1）</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>無法讀取日誌 %1 (%2)。</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>在最後一次結束的工作階段之後，日誌 %1 無法讀取。其中內容未知；日誌將保留。</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>日誌 %1 的結尾無法讀取。可能缺少最後一次變更。</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>日誌 %1 已損壞。損壞處之後仍有 %Ln 項變更相符，%2 項已不相符；可能還缺少其他變更。日誌將保留。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>日誌 %1 已損壞，或與對應檔不符。至少缺少之後的 %Ln 項變更；日誌將保留。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>決定後前往下一個未決列(&amp;D)</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>與桌面相同</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>永不</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分鐘</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>語言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>色彩(&amp;C)：</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>字型大小(&amp;F)：</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>備份間隔(&amp;Y)：</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>高對比</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>每行一個資料夾；型錄檔案在型錄之外引用的內容可以從中讀取。</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>允許的資料夾：</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>允許的資料夾：「%1」不是具有完整路徑的資料夾。</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>此對應未與任何人共用。請先選擇共用副本。</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 已存在，且是另一個對應。請選擇其他副本，或將現有副本取到新檔案中。</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>自上次更新以來，他人已發布了內容。</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>衝突中的列不會發布：%1。</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>他人的資料夾中有變更：%1。</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>資料夾已有人負責：%1。</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>他人正在發布 (%1)。請稍後再試。</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>無法存取共用副本：%1。自己的檔案未變；請稍後再試。</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>其中一個檔案不是可讀的對應：%1。</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>無法寫入：%1。</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>未能成功。</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>正在讀取共用副本</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>透過 %1 共用</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>正在取得他人的變更</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>沒有新內容</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>正在發布變更</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>已編輯對應</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>已發布，修訂版 %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>首先會採用這些內容，之後才能發布。</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>仍然發布(&amp;S)</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>負責資料夾</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>負責(&amp;T)</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>正在登記資料夾</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>已沒有自己的資料夾</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>自己的資料夾：%1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>（此處）</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>未開啟</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>最近 %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>資料夾 %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>自己的修訂版 %1，最新修訂版 %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>他人已發布了內容。</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>沒有來自他人的新內容。</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>自己的變更尚未發布。</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>共用副本：%1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>上次發布曾中斷，但已送達。</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>上次發布已中斷。請再發布一次。</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>共用檔案曾在工作副本中變更而未提交。該內容保留在 %1 中。</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>工作副本曾在作業中途被遺留，現已清理。</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>工作副本的管理資料已損壞，現已重新取得；原來的為 %1。</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>中斷的內容已整理妥當。</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>目錄的資料夾，以逗號分隔；* 代表任意字元，? 代表一個字元。留空則全部歸還：</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>全部已決定</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>仍需決定的列</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>篩選：沒有列</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>所有列的篩選所顯示的列</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln 列&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>未決：%1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>篩選：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1，%Ln 個專案</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>尚未指派任何列</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>取消正在進行的工作；已完成的部分保留</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>錯誤和警告：%1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>步驟</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>搜尋人、內容或列</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>撤回到此處(&amp;B)</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>復原此步驟及之後所有有效步驟</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>移至列(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>連同 %Ln 個依賴步驟復原(&amp;T)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>只復原這一步(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>連同 %Ln 個更早步驟重做(&amp;D)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>重做(&amp;D)</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>還沒有步驟</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>沒有其他步驟依賴它。</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>該步驟可以單獨重做。</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>依賴於它的步驟：%1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>它依賴於：%1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>因作出其他決定而阻礙：%1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>那裡現在是此清單中任何步驟都未決定的其他內容，例如來自其他程式。該步驟無法再移動。</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>及另外 %Ln 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1，%Ln 個專案</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>已復原</translation>
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
        <translation>時間</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人員</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>%1 中的變更在重新指派列之後才生效。屆時只保留已確認的內容。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%1 中有 %Ln 列曾確認為停用，現在不再是：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>%1 中仍被忽略的變數：%2。要重新對應其中某個變數，請選擇 &quot;公式...&quot;，或刪除該列並重新輸入。</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 中目標專案 %1 的一個條件已失效。</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 中目標專案 %1 的一個變數對應已失效。</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>%3 中的列 %1 → %2：另有 %Ln 列也使用該目標列：%4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%1 中有 %Ln 列與新指派的列共用目標列：%2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>已接受 %Ln 個衝突</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>已確認 %Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>已將 %Ln 列確認為停用</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>已指派 %Ln 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>已取消 %Ln 列的指派</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>已變更 %Ln 列的值範圍指派</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>已解決 %Ln 列的衝突</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>已變更 %Ln 列</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>已確認列 %1 → %2</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>已指派列 %1 → %2</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1（之前為 %2）</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>已將列 %1 確認為停用（之前為 %2）</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>已將列 %1 確認為停用</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>已取消列 %1 的指派（之前為 %2）</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>專案已新增</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>專案已移除</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>目標專案已新增</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>目標專案已移除</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>目標專案的順序已變更</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>條件已變更</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>變數對應已變更</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>版本已變更</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>狀態已變更</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2 中的 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1，%Ln 個專案</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>上一頁(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>略過(&amp;S)</translation>
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
        <translation>%1，列 %2：值範圍指派的第 %3 項不符合 {NAME=值} -&gt; 列號 的格式：&quot;%4&quot;。請更正，或重新展開。</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1，列 %2：值範圍指派指明了列 %3，但該列沒有目標專案。請指派，或清空文字。</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1，列 %2：值範圍指派指明了列 %3，但 %4 中沒有此列。請更正，或重新展開。</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1：無法讀取目標專案 %2 的表格，其值範圍指派未經檢查。請檢查目標專案的資料夾 (%3)。</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>正在檢查值範圍指派</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>已檢查 %Ln 個值範圍指派</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>沒有問題</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln 個問題</numerusform>
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
        <translation>核對目錄版本</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>目錄發行了新版本，舊版本的每一列都必須轉移到新版本的一列。程式提出建議，由您檢查並確認。</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>最近開啟：</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>新增對應(&amp;N)...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>由兩個目錄版本建立新的對應檔</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>開啟(&amp;O)...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>開啟對應檔</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>開啟範例目錄(&amp;E)</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>為隨附的範例目錄開啟自己的對應檔</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>將所有變更寫入對應檔</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>另存新檔(&amp;A)...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>寫入另一個對應檔</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>關閉對應檔</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>目錄資料夾(&amp;D)...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>選擇舊目錄版本和新目錄版本的資料夾</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>共用副本(&amp;S)...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>選擇多人藉以共同處理此對應的副本</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>重新整理(&amp;R)</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>採用他人已發布的內容</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>發布(&amp;P)</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>將自己的變更傳給他人</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>負責資料夾(&amp;F)...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>告知他人自己編輯哪些資料夾</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>誰在處理什麼(&amp;W)</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>顯示誰開啟了對應，以及哪些資料夾歸誰負責</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>匯入表格(&amp;I)...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>由 CSV 檔案所在的資料夾產生目錄的專案</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>匯出列(&amp;X)...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>將該版本的所有列及其指派寫入 CSV 檔案</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>報告(&amp;P)...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>以 PDF 或 HTML 寫出該版本的進展以及列未決的原因</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>結束程式</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>復原最後一個步驟</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>重新執行已復原的步驟</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>確認列(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>一步確認所選列或所有顯示的列的指派</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>將無目標的列確認為停用(&amp;X)...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>在所選列或所有顯示的列中，將無目標的列確認為停用</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>取消指派(&amp;M)...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>一步取消所選列或所有顯示的列的指派</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>取消指派並確認(&amp;O)...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>所選列或所有顯示的列已停用：一步取消指派並確認</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>指派所有專案(&amp;A)...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>為目錄的所有列尋找指派；已確認的保留</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>檢查值範圍指派(&amp;V)</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>將所有值範圍文字與目標專案的表格進行比較</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>指令碼(&amp;I)...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>開啟用於撰寫和執行指令碼的視窗</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>設定(&amp;S)...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>語言、字型、按鍵、備份</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>下一個未決列(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>前往下一個需要決定的列，也包括下一個專案中的列</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>上一個未決列(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>前往上一個需要決定的列，也包括上一個專案中的列</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>前往列(&amp;G)...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>依編號或名稱尋找專案的列</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>另一個表格(&amp;O)</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>在舊表格和新表格之間切換</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>尋找(&amp;F)...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>依字詞的一部分尋找專案、列、命令和設定</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>差異模式(&amp;D)</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>顯示未決列與其建議的差異</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>新舊對照(&amp;O)</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>並排顯示列的舊值和新值，以及其候選</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>確認模式(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>一步確認所選模式的所有列</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>移出列(&amp;T)</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>此列不會與模式的其他列一起確認</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>模式的下一列(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>前往所選模式的下一個未決列</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>模式的上一列(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>前往所選模式的上一個未決列</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>下一個模式(&amp;E)</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>選擇清單中的下一個模式</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>最不確定的優先(&amp;U)</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>未決列依出錯風險而非依位置排列</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>相鄰列(&amp;G)</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>顯示相鄰列的指派彼此不符之處</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>校正列(&amp;M)</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>一步修正所選的相鄰列發現</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>取代(&amp;R)...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>為目錄版本約定值的取代，或將其撤回</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>抽樣(&amp;S)...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>從所選模式或選取的列中抽取列，逐一評判</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>抽樣：正確(&amp;I)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>顯示的抽樣列指派正確</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>抽樣：錯誤(&amp;W)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>顯示的抽樣列指派錯誤；抽樣結束</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>候選 &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>將此候選指派給該列並確認</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>候選 &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>候選 &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>候選 &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>候選 &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>列的值範圍</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>顯示舊範圍的哪些值有新列</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>衝突(&amp;F)</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>顯示雙方決定不同的列</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>下一個未解決的衝突</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>前往下一個衝突仍未解決的列</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>衝突：自己的決定</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>在此衝突中採用自己的決定</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>衝突：對方的決定</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>在此衝突中採用對方的決定</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>衝突：重新決定</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>兩個決定都不採用；該列重新變為無目標</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>重新建構顯示：樹狀結構、統計、磁碟上的表格</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>手冊(&amp;M)</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>在相關位置開啟手冊</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>按鍵(&amp;K)...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>顯示並變更所有命令的按鍵</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>此處的提示(&amp;H)</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>在按鍵所作用之處顯示提示：在表格中說明列處於該狀態的原因</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>導覽(&amp;T)</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>用幾個步驟展示各項內容的位置</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>關於此程式(&amp;A)</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>版本和資料夾</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>步驟...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>列出所有步驟（包括以前工作階段的），並可單獨復原</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>下一個有未決列的專案</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>移至下一個需要決定的專案</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>上一個有未決列的專案</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>移至上一個需要決定的專案</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>所有列的篩選</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>按狀態、原因、差異和人員選擇所有專案的列；F8 逐列瀏覽</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>列印(&amp;T)...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>顯示目前表格的頁面並列印</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>顯示報告的頁面並列印</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>列印報告...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>沿用決定...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>一步從以前的對應沿用已為同一舊版本確認的內容</translation>
    </message>
</context>
</TS>
