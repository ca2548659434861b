<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>セクション見出しが閉じていません</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>引用符が閉じていません。テキストはそのまま使われます</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>ドキュメントに値がありません。</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>これは JSON ではありません。</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>テキストの閉じ引用符がありません。</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>項目の名前がありません。</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>コピーが元と異なります。</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>テキスト内の制御文字はエスケープで書く必要があります。</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>テキストにサロゲートペアの片方だけがあります。</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>テキストに不明なエスケープがあります。</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>テキストが UTF-8 ではありません。</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>値がありません。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>数値の小数点の後に数字がありません。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>数値の指数に数字がありません。</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>数値に数字がありません。</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>数値が大きすぎます。</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>\u の後には16進数字が4つ必要です。</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>ドキュメントの後にまだ何かあります。</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>項目の名前の後にコロンがありません。</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>項目の後にコンマまたは } がありません。</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>リストの値の後にコンマまたは ] がありません。</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>引用符の後にテキストがあります。すべてそのまま使われます</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>%1 行目 %2 列目</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>ディレクトリです</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>拡張ではありません。VELK_EXTENSION がありません</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>名前に NUL 文字が含まれています</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>セクション見出しの後のテキストは無視されます</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>ファイルは UTF-16 です。UTF-8 で保存してください</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>拡張はバージョン %1 用ですが、これは %2 です。コンパイルし直してください</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>行末が復帰文字だけです。改行文字でファイルを保存してください</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>不明なエスケープ %1 はそのまま使われます</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>読み取り専用です</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>UTF-8 ではありません</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>読み取れません: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>書き込めません: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>セクション、キー、コメントのいずれでもありません</translation>
    </message>
</context>
</TS>
