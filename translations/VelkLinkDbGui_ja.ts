<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;（見つかりませんでした）&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;他のユーザーによる変更:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;この行は廃止として記録されました。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;行が割り当て直されました。新しく割り当てられた行は（ローカルに）存在しません。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;この行は廃止としてマークされました。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;この行はプロジェクト %2 の行&lt;br /&gt;%1 に割り当てられました。</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;新しい割り当て: &lt;br /&gt;プロジェクト %4 の %3 &lt;br /&gt;。</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>レコードの更新に失敗しました。</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>選択中の行を割り当て</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>現在割り当てられている行</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>すべての割り当てを確認</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>レコードの作成に失敗しました。</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>この行の展開した値範囲を割り当て</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>展開した値範囲を割り当て</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>選択から (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>選択を中止</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>選択をリンクマネージャーへ</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>選択をリンクマネージャーに送る</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>自動で割り当てられた行</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>ツリーを絞り込んで表示</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>ERP番号をメールで申請</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>選択した行の条件を生成してクリップボードにコピー</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>条件を追加</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>条件を削除</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>条件と変数の割り当ては提案です。対象の行が一つ確認されると有効になります。</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>ユーザーの認証／切り替え</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>割り当て済みの対象プロジェクトを上書き</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>確認済みの割り当て</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>値範囲の展開は、選択した変数とテーブルの大きさによって非常に長い時間がかかることがあります。
本当に続けますか？</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>複数のアセンブリから参照されているため、部品を削除できませんでした。</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>対象プロジェクト %1 はもう存在しません</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>パス %1 の対象プロジェクトが削除されました。</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>パス %1 の対象プロジェクトが追加されました。</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>説明の代わりにファイル名を表示</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>レコードの編集</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>レコードを追加</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>レコードを削除</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>リンクデータベースにレコードを追加</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>アルゴリズムにエラーがあります:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>%1 の呼び出しに失敗しました。</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>レコードを削除できませんでした。</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>プロジェクト %1 の条件が変更されました。</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>パス %1 の対象プロジェクトのプロジェクトバージョンが変更されました。
  旧プロジェクト日付: %2、新プロジェクト日付: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>元プロジェクトのテーブルを開けませんでした。</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>1つ以上の元プロジェクトのテーブルを開けませんでした。</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>パス %1 の対象プロジェクトのテーブルバージョンが変更されました。
  旧テーブル日付: %2、新テーブル日付: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>変数 %1 は対象テーブルに存在しません</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>プロジェクト %1 の変数の対応付けが変更されました。</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>行 %1 が変更されました。</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>行は再割り当てされず、そのまま残ります。次のターゲットプロジェクトを読み込めません: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>変数 %1 は元の表にありません</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>この行は廃止されました。モデラーが確認済みです</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>この行は割り当てられませんでした</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>この行は自動で割り当てられました。割り当てを確認または修正してください</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>モデラーがこの割り当てを確認しました</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>このプロジェクトを選択中の行に割り当て</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>ドキュメント一覧</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>ERPマッピングの更新による変更: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>ERP番号を申請</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>この行には値範囲の割り当てがあります。
割り当ては「値範囲の割り当てを編集」で変更してください</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>競合が1件以上あります。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>確認済みの割り当てが1件以上あります。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>未割り当ての行が1件以上あります。</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>未確認の変更が1件以上あります。</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>一部の下位要素は他のアセンブリからも参照されているため、すべての下位要素を削除することはできませんでした。</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>プロジェクト %1 のマッピングが削除されました。</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>プロジェクト %1 のマッピングが追加されました。</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>条件のコピー中にエラーが発生しました:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>変数の割り当てのコピー中にエラーが発生しました。
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>数式を編集</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>式...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>この行に競合があります。割り当てを確認または修正してください</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>行の総数</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>グループを選択</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>カタログ</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>ツリーの下の選択に合うプロジェクトはありません。
「%1」をオフにすると、すべてのプロジェクトが再び表示されます。</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>エラーはありません</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>割り当てのない行はありません。
「%1」のチェックを外すと、すべての行が表示されます。</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>分類</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>競合</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>凡例を表示</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>リンクマネージャー</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>リンクマネージャーを開く</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>新規...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>新しいレコードを作成</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>新しいレコードを挿入（選択したレコードの値を引き継ぐ）</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>見つからない行</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>規格名称</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>規格番号</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>複数回割り当てられた行のみ表示</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>この行に割り当てられた元テーブルの行のみ表示</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>パス:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>プロジェクトを選択</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>プロジェクトを検索または選択</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>プロジェクトを開く</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>プロジェクトのパス:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>下位要素を含むアセンブリを削除しようとしています。すべての下位要素も削除しますか。</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>構文を確認</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>テーブルの行を選択</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>変数</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>変数を無視</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>変数の対応付け</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>変数の割り当てを追加</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>非表示の列を表示</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>取り込めなかったあなたの変更:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>あなたが予定した変更:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>優先系列のオン／オフを切り替え</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>優先系列オン／オフ</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>値範囲の変数を選択</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>値範囲の割り当てを編集</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>値の組み合わせ: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>選択したドキュメントのXVARSET:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>未割り当ての行があるプロジェクトのみ表示</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>マッピングが不完全なプロジェクトのみ表示</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>割り当て済みの行があるプロジェクトのみ表示</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>未割り当ての行のみ表示（元プロジェクト）</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>未割り当ての行のみ表示（対象プロジェクト）</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>LineID %1 の行を割り当てています...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>行を再び割り当て</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>行を割り当て直しています</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>行: %1 / %2 · 割り当てられる未決の行: %3 · 合わなくなる確認済みの行: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>行番号</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>対象プロジェクト</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>対象プロジェクトを削除</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>対象プロジェクトを追加</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>対象プロジェクトを上へ移動</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>対象プロジェクトを下へ移動</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>対象変数</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>確認が必要な割り当て</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>割り当てを確認</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>この行の割り当てを解除</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>この行の割り当てを解除して確認</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>対応付けを削除</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>このプロジェクトへの割り当てを解除</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>このプロジェクトへの割り当てを解除して確認 (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>エラーがあります！</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>概要</translation>
    </message>
</context>
</TS>
