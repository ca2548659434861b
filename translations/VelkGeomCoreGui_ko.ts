<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 / %Ln 프로젝트</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln행 중 %1행</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>프로젝트 %Ln개 찾음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln행</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(비어 있음)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>모든 열 표시</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>모든 열 필터 해제</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>선택한 것을 제외한 전체</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>테이블의 처음부터 계속했습니다</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>테이블의 끝에서 계속했습니다</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>검색 색인 작성</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>조건 제거</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>조건 추가</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>카탈로그 디렉터리를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>검색 색인을 만들 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>검색 색인을 아직 만들고 있습니다.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>검색 색인을 아직 만들고 있습니다. 현재: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>검색하지 못했습니다: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>검색을 사용할 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>처음 %Ln개 프로젝트입니다. 더 있습니다. 더 정확히 검색하세요.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>열 고정 해제</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>함수</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>찾은 프로젝트</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>이 컴퓨터에 있는 내용에서 검색합니다.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>테이블에서 찾기</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>열 필터에 맞는 행이 없습니다</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>논리</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>값으로 필터링 ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>이름, 표준, 명칭 또는 값</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>찾을 수 없음</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>찾은 것이 없습니다. 다른 단어나 더 적은 조건으로 검색하세요.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>%1에서만 검색</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>다음 찾기 (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>연산자</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>정렬 해제</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>열을 내림차순으로 정렬</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>열을 오름차순으로 정렬</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>열 숨기기</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>열을 왼쪽으로</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>열을 오른쪽으로</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>여기까지 열 고정</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>열 너비 맞춤</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>열 필터</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>열 필터 %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>찾기 닫기 (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>찾기...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>단어를 검색하거나 조건을 추가하세요.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>검색어</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>테이블 %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>알 수 없는 오류</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>변수</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>이전 찾기 (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>%1 열의 값</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>값 범위(값: %1개): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>검색 중 ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>값에 텍스트가 있는 행을 표시합니다. 앞에 =, &lt;, &lt;=, &gt; 또는 &gt;=를 붙이면 비교합니다. 앞의 !는 부정이고, =만 쓰면 빈 값을 찾습니다. &amp;는 둘 다, |는 둘 중 하나입니다. Alt+아래 화살표는 값을 표시합니다.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>대상 테이블 변수에 할당</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>시작 문자</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>두 비교가 모두 성립</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>~</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>비교가 성립하지 않음</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>비교 중 하나가 성립</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>포함</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>나누기</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>같음</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>보다 큼</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>크거나 같음</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>거듭제곱</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>보다 작음</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>작거나 같음</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>곱하기</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>빼기</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>더하기</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>및 더 드문 값 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>외 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>외 %Ln행</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>같지 않음</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>범위</translation>
    </message>
</context>
</TS>
