<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1은(는) 카탈로그 밖에 있어 쓰지 않습니다. 설명자의 "path"를 고치거나 링크를 제거하십시오</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1, 소수점은 쉼표</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: %3과(와) 다른 작업의 부분 %2입니다</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>셀 안의 따옴표는 문자로 간주합니다. 처음은 %1행 %2열입니다</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>날짜와 시간</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>%1에서 이어받은 결정: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>부분에 있는 프로젝트: %1(서로 다른 것: %2), 전체 작업: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>부분 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>부분 %1이(가) 여러 번 있습니다(%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>토폴로지(%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>논릿값</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>값 범위(%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>수</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>계산됨(%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>디렉터리를 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>디렉터리를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>velkmap assign --shard가 쓴 부분이 아닙니다</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>키 "%1"이(가) %Ln개 행 중 %2개에서 없거나 중복됩니다</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>%2의 조건 "%1"을(를) 해석할 수 없습니다. 할당한 것은 확실하지 않습니다</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>%1번째 열에 이름이 없어 이제 "%2"입니다</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>%1번째 열의 이름이 다시 "%2"이므로 이제 "%3"입니다</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>열 "%1"은(는) 설명자에 따르면 %2이지만 셀은 %3처럼 보입니다</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>열 "%1"이(가) 없어졌습니다</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>이전에 가져온 테이블을 읽을 수 없어 행 ID를 유지할 수 없습니다. 고치거나, 삭제하고 새로 시작하십시오</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>문서 테이블에 열 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>프로젝트의 테이블을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>%1의 테이블을 읽을 수 없습니다. 프로젝트의 행은 그대로 유지됩니다</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>%1의 테이블을 읽을 수 없습니다. 그것 없이 할당한 것은 확실하지 않습니다</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>행이 캐리지 리턴만으로 끝납니다. 파일을 줄 바꿈 문자로 저장하십시오</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>셀이 세미콜론으로 구분되어 있습니다</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>셀이 탭으로 구분되어 있습니다</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>유일한 열의 이름은 "%1"입니다. 여러 열이면 구분 문자를 --separator로 지정하십시오</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>첫 행이 데이터처럼 보입니다. 열 이름으로 간주하므로 그 앞에 이름이 있는 행을 넣으십시오</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>이 카탈로그는 없습니다</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>%1과(와) 같은 테이블이 됩니다. 둘 중 하나의 이름을 바꾸십시오</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>열 "%1"이(가) 없습니다</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>부분이 없습니다</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>적힌 수만큼 프로젝트가 들어 있지 않습니다</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>정수</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>%1(으)로 읽었습니다</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>내부(%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>날짜가 있는 프로젝트가 없습니다</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>키 열을 찾지 못했습니다. 행의 ID는 파일 안의 위치입니다</translation>
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
        <source>lässt sich nicht öffnen: %1</source>
        <translation>열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>새 열 "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>대소문자만 다릅니다: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>다른 인코딩이면 --encoding으로 지정하십시오</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
