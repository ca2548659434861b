<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;（找不到）&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;其他使用者所做的變更：</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;該列已標記為停用。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;該列已重新指派。新指派的列（在本機）不存在。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;此列已標記為停用。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;此列已指派給專案 %2 的列&lt;br /&gt;%1。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;新指派：&lt;br /&gt;專案 %4 的 %3 &lt;br /&gt;。</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>更新記錄失敗！</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>指派所選列</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>目前指派的列</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>確認所有指派</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>建立記錄失敗！</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>為此列指派已展開的值範圍</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>指派已展開的值範圍</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>來自所選 (%1)：%2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>取消選取</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>將所選內容交給連結管理員</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>將所選內容傳送到連結管理員</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>選擇</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>自動指派的列</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>顯示篩選後的樹狀結構</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>透過郵件申請 ERP 編號</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>編輯...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>為所選列產生條件並複製到剪貼簿</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>新增條件</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>刪除條件</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>條件</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>條件和變數指派為建議。目標的一行確認後即生效。</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>驗證/切換使用者</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>覆寫已指派的目標專案</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>已確認的指派</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>展開值範圍可能需要很長時間，取決於所選變數和表格的大小。
確定要繼續嗎？</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>無法刪除該零件，因為有多個組件參照它！</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>目標專案 %1 已不存在</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>路徑為 %1 的目標專案已移除。</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>路徑為 %1 的目標專案已新增。</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>顯示檔名而非描述</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>編輯記錄</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>新增記錄</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>刪除記錄</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>將記錄新增至連結資料庫</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>演算法包含錯誤：
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>呼叫 %1 失敗！</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>無法刪除該記錄！</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>專案 %1 的條件已變更。</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>路徑為 %1 的目標專案的專案版本已變更。
  舊專案日期：%2，新專案日期：%3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>無法開啟來源專案的表格。</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>至少一個來源專案的表格無法開啟。</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>路徑為 %1 的目標專案的表格版本已變更。
  舊表格日期：%2，新表格日期：%3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>變數 %1 在目標表格中不存在</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>專案 %1 的變數對應已變更。</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>列 %1 已變更。</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>這些行未重新指派，保持原樣。無法讀取以下目標專案：%1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>變數 %1 在來源表中不存在</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>此列已停用。建模人員已確認</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>無法指派此列</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>此列已自動指派。必須確認或更正該指派</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>建模人員已確認此指派</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>將此專案指派給所選列</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>文件清單</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>ERP 對應更新所做的變更： </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>申請 ERP 編號</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>此列有值範圍指派。
必須透過「編輯值範圍指派」變更該指派</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>至少有一個衝突。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>至少有一個已確認的指派。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>至少有一個未指派的列。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>至少有一個未確認的變更。</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>無法刪除所有子元素，因為其中一些也被其他組件參照！</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>專案 %1 的一個對應已移除。</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>專案 %1 的一個對應已新增。</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>複製條件時發生錯誤：
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>複製變數指派時發生錯誤。
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>編輯公式</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>公式...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>此列有衝突。必須確認或更正該指派</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>總列數</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>選擇群組</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>目錄</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>沒有專案符合樹下方的選擇。
關閉「%1」即可重新看到所有專案。</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>未發現錯誤</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>沒有未指派的列。
取消勾選「%1」即可看到所有列。</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>分類</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>衝突</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>顯示圖例</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>連結管理員</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>開啟連結管理員</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>新增...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>建立新記錄</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>插入新記錄（沿用所選記錄的值）</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>找不到的列</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>標準名稱</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>標準編號</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>僅顯示被多次指派的列</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>僅顯示原始表格中指派給此列的列</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>路徑：</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>選擇專案</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>搜尋或選擇專案</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>開啟專案</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>專案路徑：</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>您即將刪除含有子元素的組件。是否同時刪除所有子元素？</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>檢查語法</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>選擇表格列</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>變數</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>忽略變數</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>變數對應</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>新增變數指派</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>顯示隱藏的欄</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>您所做而無法採用的變更：</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>您計劃的變更：</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>開啟與關閉優先系列</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>優先系列 開/關</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>選擇值範圍變數</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>編輯值範圍指派</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>值組合：%1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>所選文件的 XVARSET：</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>僅顯示含未指派列的專案</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>僅顯示對應不完整的專案</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>僅顯示含已指派列的專案</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>僅顯示未指派的列（來源專案）</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>僅顯示未指派的列（目標專案）</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>正在指派 LineID 為 %1 的列...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>重新指派列</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>正在重新指派列</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>行：%1 / %2 · 將被指派的未決行：%3 · 不再適合的已確認行：%4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>列號</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>目標專案</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>移除目標專案</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>新增目標專案</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>上移目標專案</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>下移目標專案</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>目標變數</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>待檢查的指派</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>確認指派</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>取消此列的指派</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>取消此列的指派並確認</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>刪除對應</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>取消對此專案的指派</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>取消對此專案的指派並確認 (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>包含錯誤！</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>總覽</translation>
    </message>
</context>
</TS>
