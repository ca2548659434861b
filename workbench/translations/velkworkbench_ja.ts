<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>変更するものはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>%Ln 行を確認済みにしますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%Ln 行を廃止として確認しますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>%Ln 行の割り当てを解除しますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%Ln 行の割り当てを解除し、廃止として確認しますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>そのうち %Ln 行はすでに確認済みです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>そのうち %Ln 行の値範囲の割り当てが失われます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>対象のない %Ln 行は未確認のままです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln 行はそのままです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>競合のある %Ln 行は変更されません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln 行はどの対象プロジェクトにも登録されていません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln 行を確認しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln 行を廃止として確認しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>%Ln 行の割り当てを解除しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln 行の割り当てを解除し、廃止として確認しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>後継なし</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>確度</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>新しい行</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>理由</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>ここで決定済みまたは確実 %1</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>新リリースに行なし %1</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>当時廃止として確認済み %1</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>ここにないプロジェクト内 %1</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>そこで競合中 %1</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>引き継がれなかったもの: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>%1 から引き継ぐものはありません。</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>ファイルにカタログリリース %1 からのマッピングがありません。</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>このファイルもカタログリリース %1 に至ります。</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>同じ旧カタログリリースから、より前の新リリースに至るマッピングを選択してください。</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>%1 から引き継ぎ: そこでカタログリリース %2 に対して確認済み</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>以前のマッピングを読み込み中</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>%1 からは何も引き継げません。</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>カタログリリース %1 のディレクトリ</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>対象プロジェクトを検索中</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>決定を引き継ぎ中</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>中止しました。何も引き継がれていません</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>%1 から決定を引き継ぎ: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>%1 から引き継ぎ: 確認済み %Ln 行のうち %2 行、確実に割り当て %3、提案 %4。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>旧カタログリリースのディレクトリ</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>新カタログリリースのディレクトリ</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>カタログのディレクトリ</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>このマッピングファイルの2つのカタログリリースはどこにありますか？ディレクトリはファイルと一緒に記憶されます。</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>旧リリース (%1)(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>新リリース (%1)(&amp;N):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>両方のディレクトリが必要です。</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 はディレクトリではありません。</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>旧リリースに %1 がありません。カタログ %2 があるディレクトリを指定してください。</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>新リリースにカタログ %1 がありません。</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>%2 の行 %1 を表示できません</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>競合している行はありません</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>すべての競合が解決しました。保存してください</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>競合 %1 / %2、未解決 %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%1 の %Ln 行が同じように矛盾しています。この決定をすべてに適用しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>自分: %1
相手: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>すべてに適用(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>1行ずつ(&amp;L)</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>この行は競合していません</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>自分の決定は不明です。この行は開いた時点ですでに競合していました</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>競合している行はありません。</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>すべての競合が解決しました。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>ほかに %Ln 行がこの行と同じように矛盾しています。</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>競合</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>競合の両側</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>自分</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>相手</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>決め直す</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%Ln 件の競合のうち %1 件が未解決です。</numerusform>
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
        <translation>自分</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>相手</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>自分の決定</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>相手の決定</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>採用</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>自動で割り当て済み</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>対象なし、未決定</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>廃止として確認済み</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1、行 %2、%3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>対象プロジェクト</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>対象行</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>値範囲</translation>
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
        <translation>変更前</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>自分の決定</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>相手の決定</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>項目</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>同じ</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>ほかの %Ln 行と同じように置換</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>類似</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>相違</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>新しい行のみ</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>旧行のみ</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>変数</translation>
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
        <translation>テーブルにこの行がありません。</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>対象なし。%1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>割り当てられた行は候補にありません。</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>新旧の比較</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>候補</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>確認済み。</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>確実に割り当て済み。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>比較済み: 最初の %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>共通の相違はありません。</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>共通: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>選択した行</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>カタログリリース</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>ファイルに複数のカタログリリースがあります。どれを開きますか？</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>マッピングファイルを読み込み中</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>ファイルを開けません。</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>ファイルは読み取り専用で開いています。</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>コンピューターの障害の後などで、そこで作業している人が確実にいない場合は、ロックを解除できます。</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>読み取り専用(&amp;R)</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>ロックを解除(&amp;L)</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>ロックを解除できませんでした。</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>カタログがわかりません。--source と --target で指定してください。</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>%1 への変更を保存しますか？</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>破棄した変更は失われます。</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>まだ %Ln 行が競合しています。プロジェクト:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>競合を表示(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>それでも保存(&amp;T)</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>保存しました: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>ファイルは保存されませんでした。</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>変更を統合(&amp;M)</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>コピーを残して新しく書き込む(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>自分の版を書き込む(&amp;W)</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>ほかの人の変更を取り込みました。確認してからもう一度保存してください。</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>ほかの人の変更を取り込めませんでした。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>マッピングファイルを作成できません。</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ほか %Ln 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>%1 を読み込み中</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>マッピングファイル %1 を読み取れません (%2)。
別のファイルを選ぶか、バックアップ %3 を元に戻してください。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>マッピングファイル %1 を読み取れません (%2)。
別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 にリリースがありません。</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 にリリース %2 がありません。あるのは次のものです: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 は読み取り専用で開いています。</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 は現在 %2 が編集中のため、読み取り専用で開いています。</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>%1 のフォルダーに書き込めません (%2)。そのためファイルは読み取り専用で開いています。別の名前で保存すれば編集できます。</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>%1 に保存されていない作業があります。ファイルを編集用に開けるようになったときに提示されます (%2)。</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 には別の名前もあります (ハードリンク)。保存しても、別の名前のファイルは元のままです。</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>%1 を保存中</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>%1 をバックアップ中</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 は現在 %2 が編集中です。何も書き込まれていません。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>%1 のフォルダーには何も作成できません (%2)。何も書き込まれていません。別のフォルダーを選んでください。</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>このプロジェクトの行はフィルターに一つもありません。
「%1」を開いて「%2」を選ぶと、すべての行が再び表示されます。</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>フィルターに行があるプロジェクトは一つもありません。
「%1」を開いて「%2」を選ぶと、すべてのプロジェクトが再び表示されます。</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>マッピングファイル (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>マッピングファイルを開く</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>マッピングファイルを保存</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>テーブルを保存</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>テーブル (*.csv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>共有コピーを選択</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>決定の引き継ぎ元</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>フィルターを解除しました：このプロジェクトに該当行はありません</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>末尾に達したため、先頭から続けます</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>先頭に達したため、末尾から続けます</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>フィルターに残る行はありません</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>置換された文字列</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>換算された数値</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>未決の理由</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>違いの種類</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>列の違い</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>最後に決めた人</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>（該当なし）</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>選択以外</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>表を読み込んでいます...</translation>
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
            <numerusform>%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>フィルターなし：全行</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>読めない表：%Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>全行のフィルター</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>フィルターを解除(&amp;C)</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>由来</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>以前のマッピングから引き継ぎ</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 は通常のファイルではないため、ロックとして使えません。何も書き込まれていません。そこにあるものを取り除いてください。</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 は現在ほかのプログラムが保存中です。何も書き込まれていません。しばらくしてからもう一度保存してください。</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>%1 のフォルダーには何も作成できません (%2)。何も書き込まれていません。空き容量を確保するか、別の名前で保存してください。</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 を読み取れません (%2)。何も書き込まれていません。別の名前で保存してください。</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 は読み取れるマッピングファイルではありません (%2)。何も書き込まれていません。保存すると、既存のファイルは日時付きの名前で残され、このリリースだけを含む新しいファイルが作成されます。</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 は読み取れるマッピングファイルではありません (%2)。何も書き込まれていません。保存すると、既存のファイルは日時付きの名前で残され、新しいファイルが作成されます。ほかのリリースはバックアップ %3 から取られます: %4。</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 は読み取れず、%2 として残すこともできませんでした (%3)。何も書き込まれていません。別の名前で保存してください。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 は開いた後に削除または名前変更されました。保存するとファイルが新しく作成され、このリリース (%2) だけを含みます。まだ何も書き込まれていません。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 は開いた後にほかの人が変更しましたが、このリリース (%2) は変更されていません。保存しても、ほかのリリースは現在のファイルのままです。まだ何も書き込まれていません。</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 は開いた後にほかの人が変更しました。このリリース (%2) も変更されています。保存すると、その人のこのリリースへの変更は失われます。まだ何も書き込まれていません。それでも保存するか、別の名前で保存するか、ファイルを開き直してください。</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>%1 に書き込めません (%2)。何も書き込まれていません。書き込み権限を確認するか、別の名前で保存してください。</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 は保存されませんでした: %2。ファイルは変わっておらず、変更は開いたままです。空き容量を確保してもう一度保存するか、別の名前で保存してください。</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>ファイルを最後まで書き込めませんでした</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>書き込まれたファイルを読み取れません (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>書き込まれたファイルの内容が、保存すべき内容と異なります</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>書き込まれたファイルにリリース %1 がないか、別のものになっています</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>バックアップ %1 を作成できませんでした (%2)。何も書き込まれていません。空き容量を確保するか、別の名前で保存してください。</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 は保存中にほかの人が変更しました。何も書き込まれていません。もう一度保存してください。</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 は保存されませんでした: %2。ファイルは変わっておらず、変更は開いたままです。別の名前で保存してください。</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>ページ内を検索</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>決定の履歴(&amp;H)...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>誰が何を、いつ、なぜ決めたか</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>決定の理由(&amp;D)...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>最後の決定または選択した行に付ける理由。後継がない理由など</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>%2 の行 %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%1 の %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>理由を記録しました: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>決定の履歴</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>選択した行</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>選択したプロジェクト</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>すべてのプロジェクト</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>人、プロジェクト、対象、理由を検索</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>CSVとして保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>ジャーナルの読み取れない行: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>決定: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>ファイルに書き込めません。</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>後継なし</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (未保存)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>これまで</translation>
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
        <translation>理由</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>%1 から引き継ぎ</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>CSVファイルのフォルダー</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>カタログのディレクトリ</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>テーブルをインポート</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>CSVファイルのフォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>カタログのディレクトリ(&amp;D):</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>各CSVファイルから、カタログの同じ場所にテーブル付きのプロジェクトが作られます。テーブルを再びインポートしても、行の番号は保たれます。</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>CSVファイルのフォルダーがありません。</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>カタログのディレクトリがありません。上のディレクトリがあれば作成されます。</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>一方のディレクトリがもう一方の中にあります。</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>行を確認、または選択した行を割り当て</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>行の割り当てを解除</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>割り当てを解除し、廃止として確認</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>値範囲の割り当てを編集</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>行から条件をコピー</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>プロジェクト全体を確認</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>テーブル内を検索</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>次を検索</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>前を検索</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>列フィルター</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>行をコピー</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>テーブルを拡大</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>テーブルを縮小</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>テーブルを標準サイズに</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>既定(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>キーなし(&amp;O)</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>コマンドまたはキー</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>テーブル</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>%1 のキー</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>キー %1 は入力欄とリスト自体が使用します。</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>キー %1 が %2 と %3 で重複します。</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>自分で選択</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 からキー %2 がなくなります。</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>キー %1 は %2 のものになりました。</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>何も見つかりません</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>確認済み: 割り当ては決定済み</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>提案: 確認または修正が必要</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>アイコンなし: 明らかに同じで、プログラムが割り当て済み</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>割り当てが見つかりません</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>廃止: 割り当てがないことを確認済み</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>ほかの人の変更との競合</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>プロジェクトまたはテーブルを読み取れません</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>行の値範囲の割り当て</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>対象テーブルで: 割り当てられた行</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>凡例</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>条件をクリップボードにコピーしました</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>コピーした条件はそのままでは使えません。値がないか、範囲であるか、引用符を含んでいます: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>このフィルター内はすべて完了です。フィルターの外にまだ %Ln 行が未決定です。</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>末尾に達したため、先頭から続けます</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>先頭に達したため、末尾から続けます</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>競合 %1 / %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>選択した状態の行はありません</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>決定が必要な行はもうありません</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>未決定の行はどれも表示できません。テーブルがありません</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>行へ移動</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>番号または規格呼称:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>プロジェクトが選択されていません</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>このプロジェクトに「%1」を含む行はありません</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>%2 件中 %1 件目</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>実行(&amp;D)</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>この操作は元に戻せます。</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>選択した行が対象です。</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>プロジェクトのすべての行が対象です。</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>フィルター: %1。</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>ほかのプロジェクトにそのような行はありません</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>プロジェクトの表示中の行だけが対象です: %2 行のうち %1 行。</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>競合</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>ほかの人の変更と競合している行とそのプロジェクトだけを表示</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>確認または修正が必要な提案のある行とそのプロジェクトだけを表示</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>対象なし</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>何も見つからなかった行とそのプロジェクトだけを表示</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>明らかに同じでプログラムが割り当てた行とそのプロジェクトだけを表示</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>割り当てが確認済みの行とそのプロジェクトだけを表示</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>廃止</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>廃止として確認済みの行とそのプロジェクトだけを表示</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>リンクデータベースを使用(&amp;K)</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>このコンピューター上のファイル</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQLサーバー</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>パスワードはパスワードファイル、デスクトップのキーリング、または PGPASSWORD にあるか、ログイン時に入力します。保存はされません。</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>可能な場合</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>常に</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>常に、サーバーを検証</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>種類:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>ファイル(&amp;I):</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>ホスト(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>ポート(&amp;R):</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>データベース(&amp;B):</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>ユーザー(&amp;U):</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>暗号化(&amp;N):</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>リンクデータベース: ファイル名がありません。</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>リンクデータベース: データベース名がないか、正しくありません。</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>リンクデータベースの番号を検査(&amp;N)</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>リンクデータベースに、あなたが属するグループがありません。</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>グループを選択</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>リンクデータベースのグループ:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>%2 の行 %1 はこのマッピングにありません。</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>リンクデータベースの番号を検査中</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>番号を検査できませんでした。</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>リンクデータベースの変更が失われた可能性があります。</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>リンクデータベースのライセンスがありません。</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>リンクデータベースへのログイン</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>パスワードはプログラムの終了まで有効で、保存されません。空の場合はパスワードファイルから取られます。</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>この名前で、誰が削除したかが記録に残ります。</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>リンクマネージャー</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>番号、プロジェクト、説明を検索</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>行を表示(&amp;S)</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>別の行にリンク(&amp;L)...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>次にプロジェクトと行を選び、「選択をリンクマネージャーへ」で選択を送ってください。</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>最後に削除したもの(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>リンク: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>復元できる削除済みのものはありません。</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>最後に削除したものを復元しますか？行: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 が %2 に %3 から削除しました。</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>最初の %Ln 件のリンクです。ほかは検索で表示されます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>番号の検査</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>このマッピングのプロジェクトの番号: %1、ほかのプロジェクト: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>読み取れないため未比較: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>行が廃止または存在しない</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>廃止として確認済み</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>プロジェクトにありません</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>複数の行が使用</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>部品が異なる</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>部品が異なる (未比較)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>番号のある未決定の行</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>番号: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>%2 に行 %1 はありません。</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>プロジェクト %1 を表示できません。</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>プロジェクト、行、コマンド、設定</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>見つかったもの</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>語の一部で検索できます。後ろに付けた数字は行を意味します。</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>何も見つかりません</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>%Ln 件中最初の %1 件</numerusform>
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
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>コマンド</translation>
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
        <translation>エラー: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>警告: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>メッセージを消去</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>すべてのメッセージをコピー</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>ユーザー(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>リンクデータベースに接続できません: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>ERP番号を読み取れません。%1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>行を割り当て直しました: 変更なし</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>ここに該当する行はありません。%1 で次へ移動します。</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>カタログ</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>左は旧カタログリリースです。アイコンは、まだ決定が必要な場所を示します。プロジェクトを選ぶとその行が表示されます。</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>ここには、行を引き継げる新リリースのプロジェクトが、条件と変数の対応付けとともに表示されます。</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>左が旧テーブル、右が新テーブルです。%1 は割り当てを確認するか、右で選択した行を割り当てます。%2 は解除し、%3 は行が廃止されたことを確認します。</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>未決定のもの</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>カウンターは決定が必要な行の数を示します。%1 で次の行へ、次のプロジェクトにも移動します。</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>何も失われません</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>どの操作も元に戻せます。異常終了した後は、保存されていないものの復元が提案されます。ツアーはヘルプメニューにあります。</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>カタログ全体の行を割り当てますか？</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>確認済みのものは必ず残ります。この操作は元に戻せます。</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>割り当てのない行のみ(&amp;L)</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>未確認のものをすべてやり直す(&amp;U)</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>すべてのプロジェクトを割り当てました</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>対象プロジェクト %1 はありません。</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>対象プロジェクト: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>設定: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>この場所のヒントはありません</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>リストを消去(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>共有(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>最近開いたファイル(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>レビュー(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>行のみ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>リンクデータベース</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>行の状態</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>ツール</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>編集用に開いているファイルがありません。</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>ファイルの版に対する自分の変更</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>競合 %Ln 件: 自分の決定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>競合 %Ln 件: 相手側の決定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>競合 %Ln 件: 決め直し</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>ジャーナル %1 に書き込めません (%2)。異常終了すると変更が失われます。早めに保存してください。</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>復元した版を保護できません (%1)。空き容量を確保してもう一度開いてください。ジャーナルは変わっていません。</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>異常終了後の復元</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>ジャーナル %1 を作成できません (%2)。異常終了すると変更が失われます。こまめに保存してください。</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>マッピングファイルが開いていません。</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>保存中です。</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>保存されませんでした。%1 別の名前で保存してください。</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>%1 のロックが失われ、更新できません。ほかの人が同時にファイルを編集する可能性があります。</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>自動バックアップに失敗しました (%1)。早めに保存してください。</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>変更は適用されませんでした。%1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>競合をマークしました</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>やり直しました: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>「%1」はその後の変更に合いません。ステップの一覧に妨げの内容が示されます。</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>対象プロジェクトを検索中</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>中止しました。何も作成されていません</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>行を割り当て中</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>プロジェクト %Ln 件: 同じ場所 %1、別の場所 %2、分割 %3、対象なし %4、読み取り不可 %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln 件中 %1 件のプロジェクト</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>うち割り当て済み %1、要確認 %2、対象なし %3</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>中止: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1、%Ln 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln 件の変更を取り込みました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln 行は両者が同じように決定しています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln 行は決定が異なるため、競合としてマークされました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>ほかの矛盾 %Ln 件: ファイルの版が有効です。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>行 %1 を表示できません</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>検出箇所が選択されていません</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>修正しました: %2 の %1</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>テーブルを比較中</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>割り当て済みの %Ln 行を調べました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>検出 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>隣接行</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>行 %1 から %2 が %3 だけずれています</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>行 %1 と %2 が入れ替わっています</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>行 %1 が %2 だけ外れています</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>行 %1 に別の行の対象行が割り当てられています</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>行 %1 が飛ばされています</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>未解決</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>修正済み: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>検出箇所</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>修正済み</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>プロジェクト</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>旧カタログリリースのディレクトリ</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>新カタログリリースのディレクトリ</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>すぐに行を割り当てる(&amp;L)</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>新規マッピング</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>旧カタログリリース(&amp;O):</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>その中のカタログ:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>新カタログリリース(&amp;N):</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>マッピングファイルを選択</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>マッピングファイル(&amp;M):</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>作成(&amp;T)</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>旧カタログリリースのディレクトリがありません。</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>新カタログリリースのディレクトリがありません。</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>各リリースには、カタログのあるディレクトリが必要です。</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>マッピングファイルには名前が必要です。</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>ディレクトリ %1 はありません。</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 はすでにあります。</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>保存すると新しいリリースが加わります。同じ日付のリリースは、確認済みの内容も含めて置き換えられます。</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>このファイルを使用(&amp;U)</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>媒体の空き容量がありません</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>ファイルがここで許可されたサイズを超えます</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>書き込み権限がありません</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>媒体が書き込み禁止です</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>フォルダーまたはファイルがもうありません</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>その場所に通常のファイルではないものがあります</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>対象なし</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>旧行</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>新しい行</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>その他の相違</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>プロジェクトのテーブルを読み取れません。</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>パス:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>規格:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>呼称:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>プロジェクトの版:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>テーブルの版:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>行:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>ファイル:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>提案のある未決定の %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>%Ln 個のパターン</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>うち %Ln 行は比較中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>選択: %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>うち %Ln 行を除外</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>未決定の行の差異</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>後継のない未決定の %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>テーブルを比較中: %Ln 件のプロジェクトを読み込みました</numerusform>
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
            <numerusform>%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>ほかに %Ln 行がこれと別の差異を持っています</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>差異</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>確度</translation>
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
        <translation>近い値</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>別の数値</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>別の表現</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>値の追加</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>値の欠落</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>比較できません</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>差異なし</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>別の表記</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>不確か: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>フォルダー全体に対象なし: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>プロジェクト全体に対象なし: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>対象プロジェクトはもうありません: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 はもうありません</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>類似する行なし: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>プロジェクト名</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>別の名前</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>別の値</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>各行にこれらのうち一つ以上</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>利用できません: ファイルが開いていません</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>利用できません: リンクデータベースに接続中です</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>利用できません: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>利用できません: リンクデータベースが接続されていません</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>利用できません: リンクマネージャーは選択を待っていません</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>利用できません: プロジェクトが選択されていません</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>利用できません: 行が選択されていません</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>%1、行 %2 のERP番号</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>ERP番号の付与をお願いします。

プロジェクト: %1
行: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>メールの作成を開始できませんでした。</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>このコンピューターにはメールプログラムが設定されていません。依頼の内容は次のとおりです。

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>印刷できる表が表示されていません</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>印刷: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 をプリンターに送りました</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 を %2 に印刷しました</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 を印刷できませんでした。</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>プリンターがページを受け付けません。</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>質問</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>行 %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>範囲内に新しい行のない値があるのに、%Ln 行が確認済みです。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>取り消す(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>それでも確認(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>この行に値範囲の割り当てはありません。</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>不足: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>重複: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>旧範囲にない値: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>行の値範囲</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %Ln 個の値のうち %2 個を割り当て済み</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>決定の理由</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>対象(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>理由(&amp;R):</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>生産終了</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>別の部品に統合</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>複数の部品に分割</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>別のカタログへ移動</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>未確認</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>復元済み</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>時点</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>対象なし</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>保存済みの版は、復元できるどの内容よりも新しいものです。</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>以後の変更を含む (%1)(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>保存済みの版を開く(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>操作 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>%1 に保存されていない作業があります: %2、最後は「%3」。作業者は %4 です。</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1、%Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1、%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>テーブルをインポート中</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 にはもうCSVファイルがなく、そのまま残ります</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>フォルダーにCSVファイルがないため、何もインポートされませんでした</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>中止: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>すべては書き込まれませんでした: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>行をエクスポート</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>テーブル (*.csv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>行をエクスポート中</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>中止しました。何もエクスポートされていません</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>レポートを書き込む</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDFファイル (*.pdf);;HTMLページ (*.html);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>レポートを作成中</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>中止しました。レポートは書き込まれていません</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>ページを組版中</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>レポートを %1 に書き込みました</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>中止しました。レポートは作成されていません</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>テーブル %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>新規 %1、変更 %2、変更なし %3、未インポート %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln 行を %1 にエクスポートしました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1、%Ln 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>合意済みの置換</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>カタログリリース全体</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>合意(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>撤回(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>根拠(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>引き継ぐ(&amp;T)</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>置換は、古い値が新しい値に相当することを表します。提案を作りますが、何も確認しません。</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>合意済み</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>%1 で合意済み</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>テーブルを読み込み中</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>支持する %Ln 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>反する %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>合意済みのものはありません。差異の一覧を開いている間は、その置換がここに表示されます。</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>マッピングレポート: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>カタログリリース %1 から %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>作成日: %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>行の状況</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>フォルダー別 (下位を含む)</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>プロジェクト別</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>行が未決定の理由</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>未決定の行と提案の違い</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>抜き取り検査</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>誰が何を決めたか</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>未決定の行</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>読み取れなかったもの</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>廃止として確認済み</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>確実に割り当て済み</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>対象なし</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>競合中</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>呼称</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>差異</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>確率</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>例</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>判定済み</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>正</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>誤りの上限 (95 % の確度)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>不採用</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>テーブルを読み取れません</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>比較できません</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>差異なし</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>2人の決定が異なる</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>ほかの人が決定</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>読み取れないテーブルがある</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>条件または数式が失敗</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>該当する対象がない</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>列がない</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>複数の行が同じ</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>違いが大きすぎる</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>同じだが未確認</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>不確か: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>後継のない未処理の行</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>廃止として確認済みの行</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>共通点</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>以前のマッピングからの引き継ぎ</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>以前のマッピング</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>引き継いだまま</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>判定済みの行</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>完了した行: %2 行中 %1 行。未決定: %3。</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>対象プロジェクトをリポジトリから読み込む(&amp;T)</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>カタログ = svn://サーバー:ポート/パス</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>1行に1つのカタログ。行がない場合、カタログの名前がサーバーの名前にもなります。</translation>
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
        <translation>サーバー(&amp;E):</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>リビジョン(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>このコンピューターの容量(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>サーバーの待ち時間(&amp;W):</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>サーバー、行 %1: &quot;%2&quot; は &quot;カタログ = svn://サーバー:ポート/パス&quot; の形式ではありません。</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>リポジトリへのログイン</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 にはログインが必要です。</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>名前とパスワードはプログラムの終了まで有効で、保存されません。</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>行 %1 を表示できません</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>未決定の行はもうありません</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>テーブルはまだ比較されていません</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>最初から: 未決定 %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>未決定の行は不確かな順に並びます</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>未決定の行は場所の順に並びます</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>この行は選択したパターンに属していません</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>行 %1 を除外しました</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>パターンが選択されていないか、すべての行が決定済みです</translation>
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
            <numerusform>%Ln 件のプロジェクトで確認しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>この操作は元に戻せます。</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>確認(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln 行を確認しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>候補 %1 はありません</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>行 %1 → %2 を確認しました</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>合意した置換: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>パターンを選ぶか、未決定の行を選択してください</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>抜き取り検査</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>抜き取る(&amp;D)</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>抜き取り検査、行 %1 / %2: + 正、− 誤</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>抜き取り検査は行われていません</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>抜き取った行はすべて決定済みです</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%2 行中 %1 行が正しい</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>抜き取り検査は不採用、%1。判定者: %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>すべての行を判定済み</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>95 % の確度で誤りは %1 % 未満</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>抜き取り検査: %1、%2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>判定者: %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>誤りがあったほう</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>行 %1 は誤りです: 抜き取り検査を終了します</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>続ける(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>誤りの行を見る(&amp;L)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>そのうち %Ln 行は不確かです。</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>すべてのパターンが完了しました</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln 行を廃止として確認</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>%2 の行 %1 は誤りです。集合は分けられました。どの部分で続けますか？</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>%Ln 行からこの数だけ抜き取り、1行ずつ判定します。%1 行が正しければ 95 % の確度で誤りは 5 % 未満、%2 行なら 1 % 未満といえます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>スクリプトコンソール</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>スクリプトの出力</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>スクリプトの行</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>JavaScriptの1行。Enterで実行、Tabで補完、上下キーで履歴を移動します。</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>実行中のスクリプトを停止します (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>出力を削除します</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>スクリプト %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(コンソール)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>完了、状態 %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>行 %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>大きすぎます。</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>UTF-8のテキストではありません。</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 を読み取れません。%2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>スクリプトを開く</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>スクリプト (*.js);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>スクリプトを保存</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 に書き込めません。%2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>スクリプトは保存されていません。</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>新規スクリプト</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>開く …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>引数:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>スクリプトのテキスト</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>引数</translation>
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
        <translation>(プロセス %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>ジャーナル %1 を読み取れません (%2)。</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>最後に終了したセッションの後、ジャーナル %1 を読み取れません。内容は不明です。ジャーナルは保管されます。</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>ジャーナル %1 の末尾を読み取れません。最後の変更が欠けている可能性があります。</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>ジャーナル %1 は破損しています。破損箇所の後で %Ln 件の変更はまだ適合し、%2 件は適合しません。ほかにも欠けている可能性があります。ジャーナルは保管されます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>ジャーナル %1 は破損しているか、マッピングファイルに合いません。以後の変更が少なくとも %Ln 件欠けています。ジャーナルは保管されます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>決定後、次の未決定の行へ進む(&amp;D)</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>デスクトップに合わせる</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>なし</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>配色(&amp;C):</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>文字サイズ(&amp;F):</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>バックアップの間隔(&amp;Y):</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>ハイコントラスト</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>1 行に 1 フォルダー。カタログのファイルがカタログの外で指すものを、ここから読み取れます。</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>許可するフォルダー:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>許可するフォルダー: &quot;%1&quot; は完全なパスのフォルダーではありません。</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>このマッピングは誰とも共有されていません。まず共有コピーを選んでください。</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 はすでにあり、別のマッピングです。別のコピーを選ぶか、既存のものを新しいファイルに取り込んでください。</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>最後の更新以降、ほかの人が公開しています。</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>競合している行は公開されません: %1。</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>ほかの人のフォルダーに変更があります: %1。</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>フォルダーはすでに担当者がいます: %1。</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>現在ほかの人が公開中です (%1)。しばらくしてからもう一度試してください。</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>共有コピーにアクセスできません: %1。自分のファイルは変わっていません。後でもう一度試してください。</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>ファイルの1つは読み取れるマッピングではありません: %1。</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>書き込めませんでした: %1。</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>うまくいきませんでした。</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>共有コピーを読み込み中</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>%1 で共有</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>ほかの人の変更を取得中</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>新しいものはありません</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>変更を公開中</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>マッピングを編集しました</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>公開しました、リビジョン %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>まずこれが取り込まれます。その後に公開できます。</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>それでも公開(&amp;S)</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>フォルダーを担当</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>担当する(&amp;T)</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>フォルダーを登録中</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>自分のフォルダーはもうありません</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>自分のフォルダー: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(ここ)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>開いています</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>開いていません</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>最終 %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>フォルダー %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>自分のリビジョン %1、最新のリビジョン %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>ほかの人が公開しています。</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>ほかの人からの新しいものはありません。</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>自分の変更はまだ公開されていません。</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>共有コピー: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>前回の公開は中断されましたが、届いていました。</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>前回の公開は中断されました。もう一度公開してください。</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>共有ファイルが作業コピーで変更され、送信されていませんでした。その内容は %1 に保管されています。</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>作業コピーが作業の途中で放置されていたため、整理しました。</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>作業コピーの管理情報が破損していたため、取得し直しました。以前のものは %1 です。</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>中断されていたものを修復しました。</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>カタログのフォルダー (カンマ区切り)。* は任意の文字列、? は1文字を表します。空にするとすべて返却します:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>すべて決定済み</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>まだ決定が必要な行</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>フィルター：行なし</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>全行のフィルターが示す行</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln 行&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>未決定: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>フィルター：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1、%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>まだ割り当てられた行がありません</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>実行中の作業を中止します。完了した分は残ります</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>エラーと警告: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>人、内容、行を検索</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>ここまで戻す(&amp;B)</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>このステップと、その後の有効な全ステップを取り消します</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>行へ移動(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>依存する %Ln 件とともに取り消す(&amp;T)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>これだけ取り消す(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>以前の %Ln 件とともにやり直す(&amp;D)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>やり直す(&amp;D)</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>ステップはまだありません</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>ほかのステップは依存していません。</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>このステップだけをやり直せます。</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>これに依存するもの：%1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>依存先：%1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>別の決定をしたため妨げているもの：%1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>この一覧のどのステップでも決めていない別の内容がそこにあります（別のプログラムなど）。このステップはもう動かせません。</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>ほか %Ln 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1、%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>取り消し済み</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>上書き済み</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>時点</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>人</translation>
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
        <translation>%1 での変更は、行を割り当て直したときに有効になります。そのとき残るのは確認済みのものだけです。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%1 の %Ln 行は廃止として確認されていましたが、そうではなくなりました: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>%1 で無視されたままの変数: %2。いずれかを再び対応付けるには、&quot;式...&quot; を選ぶか、行を削除して入力し直してください。</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 の対象プロジェクト %1 の条件がなくなりました。</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2 の対象プロジェクト %1 の変数の対応付けがなくなりました。</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>%3 の行 %1 → %2: ほかの %Ln 行も同じ対象行を持っています: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%1 の %Ln 行が、新しく割り当てた行と対象行を共有しています: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln 件の競合を承認</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln 行を確認しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln 行を廃止として確認</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln 行を割り当て</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>%Ln 行の割り当てを解除</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln 行の値範囲の割り当てを変更</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>%Ln 行の競合を解決</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln 行を変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>行 %1 → %2 を確認</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>行 %1 → %2 を割り当て</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (以前は %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>行 %1 を廃止として確認 (以前は %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>行 %1 を廃止として確認</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>行 %1 の割り当てを解除 (以前は %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>プロジェクトを追加</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>プロジェクトを削除</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>対象プロジェクトを追加</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>対象プロジェクトを削除</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>対象プロジェクトの順序を変更</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>条件を変更</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>変数の対応付けを変更</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>版を変更</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>状態を変更</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2 の %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1、%Ln 件のプロジェクト</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>スキップ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>完了(&amp;D)</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1、行 %2: 値範囲の割り当ての項目 %3 が {NAME=値} -&gt; 行番号 の形式ではありません: &quot;%4&quot;。修正するか、展開し直してください。</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1、行 %2: 値範囲の割り当てが行 %3 を指していますが、この行には対象プロジェクトがありません。割り当てるか、テキストを空にしてください。</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1、行 %2: 値範囲の割り当てが行 %3 を指していますが、%4 にはありません。修正するか、展開し直してください。</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: 対象プロジェクト %2 のテーブルを読み取れないため、値範囲の割り当ては検査されていません。対象プロジェクトのディレクトリを確認してください (%3)。</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>値範囲の割り当てを検査中</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln 件の値範囲の割り当てを検査しました</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>問題なし</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln 件の問題</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (中止): %2。</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>カタログリリースの照合</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>カタログの新しいリリースが出ると、旧リリースのすべての行を新リリースの行に移す必要があります。プログラムが提案し、あなたが調べて確認します。</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>最近開いたファイル:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>新規マッピング(&amp;N)...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>2つのカタログリリースから新しいマッピングファイルを作成します</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>マッピングファイルを開きます</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>サンプルカタログを開く(&amp;E)</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>付属のサンプルカタログ用に自分のマッピングファイルを開きます</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>すべての変更をマッピングファイルに書き込みます</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>別のマッピングファイルに書き込みます</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>マッピングファイルを閉じます</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>カタログのディレクトリ(&amp;D)...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>新旧のカタログリリースのディレクトリを選びます</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>共有コピー(&amp;S)...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>複数の人がこのマッピングで作業するためのコピーを選びます</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>更新(&amp;R)</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>ほかの人が公開したものを取り込みます</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>公開(&amp;P)</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>自分の変更をほかの人に渡します</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>フォルダーを担当(&amp;F)...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>自分が編集するフォルダーをほかの人に知らせます</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>誰が何をしているか(&amp;W)</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>マッピングを開いている人と、フォルダーの担当者を表示します</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>テーブルをインポート(&amp;I)...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>CSVファイルのフォルダーからカタログのプロジェクトを作ります</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>行をエクスポート(&amp;X)...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>リリースのすべての行を割り当てとともにCSVファイルに書き込みます</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>レポート(&amp;P)...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>リリースの進み具合と行が未決定の理由をPDFまたはHTMLで書き込みます</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>プログラムを終了します</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>最後の操作を元に戻します</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>元に戻した操作を再び実行します</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>行を確認(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>選択した行または表示中のすべての行の割り当てを一度に確認します</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>対象のない行を廃止として確認(&amp;X)...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>選択した行または表示中のすべての行のうち、対象のない行を廃止として確認します</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>割り当てを解除(&amp;M)...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>選択した行または表示中のすべての行の割り当てを一度に解除します</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>割り当てを解除して確認(&amp;O)...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>選択した行または表示中のすべての行を廃止とします: 割り当ての解除と確認を一度に行います</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>すべてのプロジェクトを割り当て(&amp;A)...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>カタログのすべての行の割り当てを探します。確認済みのものは残ります</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>値範囲の割り当てを検査(&amp;V)</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>すべての値範囲のテキストを対象プロジェクトのテーブルと比較します</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>スクリプト(&amp;I)...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>スクリプトを書いて実行するウィンドウを開きます</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>設定(&amp;S)...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>言語、文字、キー、バックアップ</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>次の未決定の行(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>決定が必要な次の行へ、次のプロジェクトにも移動します</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>前の未決定の行(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>決定が必要な前の行へ、前のプロジェクトにも移動します</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>行へ移動(&amp;G)...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>番号または呼称でプロジェクトの行を探します</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>もう一方のテーブル(&amp;O)</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>旧テーブルと新テーブルを切り替えます</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>語の一部からプロジェクト、行、コマンド、設定を見つけます</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>差異のパターン(&amp;D)</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>未決定の行が提案とどう違うかを表示します</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>新旧の比較(&amp;O)</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>行の新旧の値と候補を並べて表示します</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>パターンを確認(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>選択したパターンのすべての行を一度に確認します</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>行を除外(&amp;T)</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>この行はパターンのほかの行と一緒に確認されません</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>パターンの次の行(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>選択したパターンの次の未決定の行へ移動します</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>パターンの前の行(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>選択したパターンの前の未決定の行へ移動します</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>次のパターン(&amp;E)</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>リストの次のパターンを選びます</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>不確かな順(&amp;U)</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>未決定の行を、場所ではなく誤りの危険の順に並べます</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>隣接行(&amp;G)</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>隣り合う行の割り当てが合わない箇所を表示します</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>行を正しい位置に直す(&amp;M)</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>選択した隣接行の検出箇所を一度に修正します</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>置換(&amp;R)...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>カタログリリースで値の置換に合意、または撤回します</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>抜き取り検査(&amp;S)...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>選択したパターンまたは選択した行から抜き取り、1行ずつ判定します</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>抜き取り検査: 正(&amp;I)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>表示中の抜き取った行は正しく割り当てられています</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>抜き取り検査: 誤(&amp;W)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>表示中の抜き取った行の割り当ては誤りです。抜き取り検査を終了します</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>候補 &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>この候補を行に割り当てて確認します</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>候補 &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>候補 &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>候補 &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>候補 &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>行の値範囲</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>旧範囲のどの値に新しい行があるかを表示します</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>競合(&amp;F)</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>両側の決定が異なる行を表示します</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>次の未解決の競合</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>競合が未解決の次の行へ移動します</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>競合: 自分の決定</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>この競合では自分の決定を採用します</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>競合: 相手の決定</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>この競合では相手側の決定を採用します</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>競合: 決め直す</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>どちらの決定も採用せず、行は再び対象なしになります</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>表示を作り直します: ツリー、統計、ディスク上のテーブル</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>マニュアル(&amp;M)</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>該当する箇所のマニュアルを開きます</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>キー(&amp;K)...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>すべてのコマンドのキーを表示、変更します</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>この場所のヒント(&amp;H)</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>キー入力の先にヒントを表示します。テーブルでは、行がその状態である理由を示します</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>ツアー(&amp;T)</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>どこに何があるかを数ステップで示します</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>このプログラムについて(&amp;A)</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>バージョンとディレクトリ</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>ステップ...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>以前のセッションも含む全ステップを一覧し、個別に取り消します</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>未決の行がある次のプロジェクト</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>決定が必要な次のプロジェクトへ移動します</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>未決の行がある前のプロジェクト</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>決定が必要な前のプロジェクトへ移動します</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>全行のフィルター</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>状態、理由、違い、人で全プロジェクトの行を選びます。F8 で順に移動します</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>印刷(&amp;T)...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>表示中の表のページを表示し、印刷します</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>レポートのページを表示し、印刷します</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>レポートを印刷...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>決定を引き継ぐ...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>同じ旧リリースに対して確認済みのものを、以前のマッピングから一度に引き継ぎます</translation>
    </message>
</context>
</TS>
