<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 はカタログの外にあるため書き込みません。記述子の「path」を直すか、リンクを取り除いてください</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1（小数点はコンマ）</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: %3 とは別の作業の部分 %2 です</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>セル内の引用符は文字として扱います。最初は %1 行目、%2 列目です</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>%1 から引き継いだ決定: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>部分にあるプロジェクト: %1（異なるもの: %2）、作業全体: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>部分 %1 がありません</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>部分 %1 が複数あります（%2）: %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>トポロジー（%1）</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>値範囲（%1）</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>計算（%1）</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>ディレクトリを読み取れません</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>ディレクトリを作成できません</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>velkmap assign --shard が書いた部分ではありません</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>キー「%1」が %Ln 行中 %2 行でないか、重複しています</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>%2 の条件「%1」を解釈できません。割り当てたものは確実ではありません</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>%1 列目には名前がないため、「%2」とします</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>%1 列目の名前は再び「%2」なので、「%3」とします</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>列「%1」は記述子では %2 ですが、セルは %3 のように見えます</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>列「%1」はなくなりました</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>以前のインポートのテーブルを読み取れず、行の ID を保てません。修正するか、削除してやり直してください</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>文書のテーブルに列 %1 がありません</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>プロジェクトのテーブルを読み取れません</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>%1 のテーブルを読み取れません。プロジェクトの行はそのまま残ります</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>%1 のテーブルを読み取れません。それなしで割り当てたものは確実ではありません</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>行が復帰文字だけで終わっています。ファイルを改行（ラインフィード）付きで保存してください</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>セルはセミコロンで区切られています</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>セルはタブで区切られています</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>唯一の列の名前は「%1」です。複数の列であれば、区切り文字を --separator で指定してください</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>最初の行はデータのように見えます。列の名前として扱うので、その前に名前の行を置いてください</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>このカタログはありません</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>%1 と同じテーブルになります。どちらかの名前を変えてください</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>列「%1」はありません</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>部分がありません</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>示された数のプロジェクトが入っていません</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>%1 として読み取りました</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>内部（%1）</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>日付のあるプロジェクトがありません</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>キー列が見つかりません。行の ID はファイル内での位置です</translation>
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
        <source>lässt sich nicht öffnen: %1</source>
        <translation>開けません: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>新しい列「%1」</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>大文字と小文字だけが違います: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>別の文字コードの場合は、--encoding で指定してください</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>「%1」</translation>
    </message>
</context>
</TS>
