<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>섹션 제목이 닫히지 않음</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>따옴표가 닫히지 않음. 텍스트를 그대로 사용합니다</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>문서에 값이 없습니다.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>JSON이 아닙니다.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>일반 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>텍스트의 닫는 따옴표가 없습니다.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>항목의 이름이 없습니다.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>사본이 원본과 다릅니다.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>텍스트의 제어 문자는 이스케이프로 써야 합니다.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>텍스트에 서로게이트 쌍의 반쪽이 있습니다.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>텍스트에 알 수 없는 이스케이프가 있습니다.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>텍스트가 UTF-8이 아닙니다.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>값이 없습니다.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>숫자의 소수점 뒤에 숫자가 없습니다.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>숫자의 지수에 숫자가 없습니다.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>숫자에 숫자 문자가 없습니다.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>숫자가 너무 큽니다.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>\u 뒤에는 16진 숫자가 네 개 있어야 합니다.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>문서 뒤에 무언가가 더 있습니다.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>항목 이름 뒤에 콜론이 없습니다.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>항목 뒤에 쉼표나 }가 없습니다.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>목록 값 뒤에 쉼표나 ]가 없습니다.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>따옴표 뒤에 텍스트가 있음. 모두 그대로 사용합니다</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>%1행 %2열</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>디렉터리입니다</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>확장이 아닙니다. VELK_EXTENSION이 없습니다</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>이름에 NUL 문자가 있습니다</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>섹션 제목 뒤의 텍스트는 무시됩니다</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>파일이 UTF-16입니다. UTF-8로 저장하십시오</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>확장이 버전 %1용이지만 이것은 %2입니다. 다시 컴파일하세요</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>행이 캐리지 리턴만으로 끝납니다. 줄 바꿈으로 파일을 저장하십시오</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>알 수 없는 이스케이프 %1을(를) 그대로 사용합니다</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>읽기 전용입니다</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>UTF-8이 아님</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>섹션, 키, 주석 중 어느 것도 아님</translation>
    </message>
</context>
</TS>
