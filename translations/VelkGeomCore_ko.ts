<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  행 %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1"은(는) 링크 데이터베이스의 주소가 아닙니다. sqlite:파일 또는 postgresql://사용자@호스트:포트/데이터베이스를 쓸 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1: "supports"는 "cases"보다 클 수 없습니다</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1: 객체만 포함할 수 있습니다</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1: 값이 너무 깊게 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1은(는) 리비전 %2에 없습니다</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1: "sourcePath" 항목이 비어 있습니다</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1: "%2" 항목이 없습니다</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1은(는) 다른 프로그램의 데이터베이스입니다</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1은(는) 검색 색인이 아니며 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1: [원본 행, 대상 행, 상태], 이어서 확장 텍스트(있는 경우), 충돌이면 true여야 합니다. 행은 0부터 세며 -1은 대상 행 없음입니다</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1: 객체여야 합니다</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1: 텍스트여야 합니다</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1: 목록이어야 합니다</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1: 변수와 함께 텍스트 "before" 및 "after" 또는 소수 "factor" 및 "offset"이 있어야 합니다</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1: 0에서 2147483647 사이의 정수여야 합니다</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1: true 또는 false여야 합니다</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1: "source"와 "target"이 있는 "var" 종류이거나 "formula"가 있는 "value" 종류여야 합니다</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1: 원본 행 %2이(가) 다시 나옵니다</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. 이 컴퓨터에 있는 범위에서 리비전 %2을(를) 읽습니다.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. 변경이 확정되었는지 확실하지 않습니다. 반복하기 전에 확인하십시오.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: "path"가 빈 대상을 끝으로 옮겼습니다</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>셀이 %Ln개입니다. 머리글 행은 %1개입니다</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>외 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>그 밖의 오류 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>취소됨: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>값 범위의 다른 값은 다른 대상에 속합니다.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>"%1"의 시작, 끝, 간격은 15자리 이하의 숫자여야 합니다</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>다른 대상 프로젝트에도 같은 값의 행이 있습니다.
  프로젝트: %1
  행: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>카탈로그 저장소용 프로그램 %1을(를) 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>저장소 %1이(가) 응답하지 않습니다: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>저장소 %1에 로그인이 필요합니다: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>스크립트를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>스크립트가 중지되었습니다</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>스크립트가 중지되었습니다: 메모리를 %1MB 넘게 사용했습니다</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>스크립트가 중지되었습니다: %1초를 넘겼습니다</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>스크립트가 중지되었습니다: %1초 동안 개체를 호출하지 않았습니다</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>대상 프로젝트의 이름이 원본 프로젝트와 다르며, 확인된 할당이 없습니다.
  원본 프로젝트: %1
  대상 프로젝트: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>텍스트에 닫는 작은따옴표가 없습니다</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>식이 너무 깊게 중첩되었습니다</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>카탈로그 %1이(가) %2MB 캐시에 들어가지 않아 검색에 포함되지 않습니다</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>카탈로그 릴리스</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>카탈로그 릴리스의 sourceDate가 "%1"입니다.</translation>
    </message>
    <message>
        <source>Der Kosinus eines Winkels in Grad.</source>
        <translation>The cosine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Logarithmus zur Basis 10.</source>
        <translation>The logarithm to base 10.</translation>
    </message>
    <message>
        <source>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</source>
        <translation>The remainder of the division, with the sign of the first number.</translation>
    </message>
    <message>
        <source>Der Sinus eines Winkels in Grad.</source>
        <translation>The sine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Tangens eines Winkels in Grad.</source>
        <translation>The tangent of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</source>
        <translation>The part of the text from the start, counted from 1, with so many characters; without a count all up to the end.</translation>
    </message>
    <message>
        <source>Der Text in großen Buchstaben.</source>
        <translation>The text in capital letters.</translation>
    </message>
    <message>
        <source>Der Text in kleinen Buchstaben.</source>
        <translation>The text in small letters.</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>텍스트가 비어 있습니다</translation>
    </message>
    <message>
        <source>Der Text ohne Leerzeichen am Anfang und am Ende.</source>
        <translation>The text without blanks at its start and end.</translation>
    </message>
    <message>
        <source>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</source>
        <translation>The text with the replacement wherever the text looked for was.</translation>
    </message>
    <message>
        <source>Der Treiber %1 für die Linkdatenbank fehlt</source>
        <translation>링크 데이터베이스 드라이버 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</source>
        <translation>The value as a text, a number with so many decimals; without decimals as it is.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</source>
        <translation>The angle in degrees between the x axis and the line from the origin to the point (x, y).</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Kosinus hat.</source>
        <translation>The angle in degrees that has this cosine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Sinus hat.</source>
        <translation>The angle in degrees that has this sine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Tangens hat.</source>
        <translation>The angle in degrees that has this tangent.</translation>
    </message>
    <message>
        <source>Der natürliche Logarithmus.</source>
        <translation>The natural logarithm.</translation>
    </message>
    <message>
        <source>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</source>
        <translation>The second value if the comparison holds, else the third.</translation>
    </message>
    <message>
        <source>Die Anweisung enthält ein Nullzeichen</source>
        <translation>명령문에 널 문자가 있습니다</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>출력을 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>읽는 동안 파일이 변경되었습니다.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>함수 %1을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>그룹 "%1"이(가) 링크 데이터베이스에 없거나 %2이(가) 속하지 않습니다</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>링크 데이터베이스 %1이(가) 응답하지 않아 연결을 포기했습니다</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>링크 데이터베이스 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>링크 데이터베이스 %1의 형식은 %2이며 이 프로그램은 형식 %3만 압니다. 더 새 버전이 필요합니다</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>링크 데이터베이스 %1을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>링크 데이터베이스가 작업 중입니다</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>표준 명칭이 다릅니다.
  이전 명칭: %1
  새 명칭: %2</translation>
    </message>
    <message>
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>테이블 %1이(가) 링크 데이터베이스에 없습니다</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>대상 프로젝트의 테이블을 읽을 수 없습니다.
  프로젝트: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>링크 데이터베이스 %1의 테이블을 만들거나 갱신할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>변수 %1이(가) 대상 테이블에 없습니다</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>변수 %1을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>링크 데이터베이스 %1에 다시 연결되었습니다</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>링크 데이터베이스 %1과(와)의 연결이 끊어졌습니다: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>변수 %1의 값이 다릅니다.
  이전 값: %2
  새 값: %3</translation>
    </message>
    <message>
        <source>Die Zahl e, hoch der Zahl.</source>
        <translation>The number e to the power of the number.</translation>
    </message>
    <message>
        <source>Die Zahl ohne ihre Nachkommastellen.</source>
        <translation>The number without its decimals.</translation>
    </message>
    <message>
        <source>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</source>
        <translation>The number that the text reads as; no value if it is none.</translation>
    </message>
    <message>
        <source>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</source>
        <translation>The number, rounded to that many decimals; without decimals to a whole number, with negative ones before the decimal point.</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>대상 행이 이미 다른 행에 대해 확인되었습니다.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>삭제된 행 %1이(가) 링크 데이터베이스 기록에 더 이상 없습니다. 이미 복원된 것 같습니다</translation>
    </message>
    <message>
        <source>Die größte der Zahlen.</source>
        <translation>The largest of the numbers.</translation>
    </message>
    <message>
        <source>Die kleinste der Zahlen.</source>
        <translation>The smallest of the numbers.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>대부분의 행이 대상 프로젝트에서 다른 값을 가집니다.
  대상 프로젝트: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>할당된 행이 대상 테이블에 없습니다.
  프로젝트: %1
  행: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>변경이 링크 데이터베이스 연결과 함께 사라졌습니다. 다시 해야 합니다</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>ERP 번호</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>%1 수식의 텍스트가 %Ln자를 넘어 값이 없습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>다른 스크립트가 아직 실행 중입니다</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>대상 프로젝트의 조건이 충족되지 않습니다.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>대상 프로젝트의 조건에 오류가 있습니다.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>조건은 비교여야 합니다</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>수식은 변수에 값을 지정해야 합니다</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>매핑 파일에는 객체가 있어야 합니다.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>같은 날짜의 두 릴리스 사이에 있습니다.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>%1이(가) 필요하지만 %2을(를) 찾았습니다</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>변수 %1에 대한 지정이 필요합니다</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>링크 데이터베이스에 연결되어 있지 않습니다. 설정에서 선택합니다.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>연결된 링크 데이터베이스가 없습니다.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>함수 %1의 인수 개수가 잘못되었습니다</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>링크 데이터베이스 오류: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>카탈로그 "%1"의 저장소가 설정되지 않았습니다. 이름으로 주소를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>여기에는 값이 아니라 비교가 필요합니다</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>여기에는 비교가 아니라 값이 필요합니다</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>문서 뒤에 값이 0인 바이트가 있습니다.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>%1에 링크 데이터베이스가 없거나 이전 형식입니다. 처음 쓸 때 만들어지거나 갱신됩니다.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>링크 데이터베이스 주소에 암호가 있습니다. 암호 파일이나 PGPASSWORD에 두어야 합니다.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>%2초 동안 %1의 응답이 없습니다</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>이 행에 맞는 대상 행이 없습니다.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>확정되지 않은 변경은 사라졌습니다(명령문: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>제안된 조건이나 변수 할당 때문에만 같습니다. 대상의 줄 하나가 확인되면 유효합니다.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>원본과 대상에 값이 있는 공통 변수가 없습니다.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>셀의 닫는 따옴표 뒤에 텍스트가 있습니다</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>텍스트, 시작, 개수</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>텍스트, 찾을 내용</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>텍스트, 찾을 내용, 바꿀 내용</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>비교, 참, 거짓</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>원본 테이블의 다른 행에도 이 값이 있습니다.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>대상 테이블의 다른 행에도 이 값이 있습니다.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>값, 자릿수</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>값, 값, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>값이 너무 깊게 중첩되어 있습니다.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>각도</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>숫자, 자릿수</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>숫자, 제수</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>숫자, 숫자, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>문자 %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>%1행</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>%1행 %2열</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>%1행 %2번째 문자: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>대상 테이블의 값 범위가 너무 많이 겹쳐 모두 비교할 수 없습니다.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>대상 테이블에 대응하는 값이 너무 적습니다.
  대응 없음: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>소수점 문자는 ‘.’ 또는 ‘,’입니다</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>필드에 이름이 없습니다</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>필드 ‘%1’이(가) 두 번 있습니다</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>프로젝트에 표가 없습니다. 어휘소 SACHM에 지정해야 합니다</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>프로젝트를 읽지 않았습니다</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>계산 필드 ‘%1’에 수식이 없습니다</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>주소입니다. 파일만 읽습니다</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>설명자에 lineIdField 없이 lineSubIdField가 있습니다</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>항목 ‘%1’이(가) 두 번 있습니다</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>파일 이름에 NUL 문자가 있습니다</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>%2의 값 범위 "%1"에는 값이 너무 많습니다(%3개). %Ln개만 살펴봅니다</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>셀의 따옴표가 짝이 맞지 않습니다</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>조건에 이름이 없습니다</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>바이트가 UTF-8이 아닙니다. 파일을 UTF-8로 저장하십시오</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>파일이 비어 있습니다. 첫 행에 열 이름이 있어야 합니다</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>필터 조건 "%1"을(를) 해석할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>계산 열 "%1"의 수식을 해석할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>"%1"의 간격이 0보다 크지 않습니다</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>열에 이름이 없습니다</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>설명자의 열 "%1"이(가) 없습니다</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>설명자의 %2이(가) 지정한 열 "%1"이(가) 없습니다</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>열 "%1"이(가) 두 번 있습니다</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>옆의 잠금 파일에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>"%1"의 숫자 자릿수가 너무 많습니다</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>행 번호 %1은(는) 이미 %2행의 것입니다</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>이 계산 열들은 서로를 필요로 합니다: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>따옴표로 시작하지 않는 셀 안에 따옴표가 있습니다. 셀 전체를 따옴표로 묶고 안의 따옴표를 두 번 쓰십시오</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>따옴표가 닫히지 않았습니다</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>필드, 즉 객체가 필요합니다</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>텍스트의 객체가 필요합니다</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>언어마다 항목이 있는 객체가 필요합니다</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>객체가 필요합니다</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>연산자 또는 끝</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>텍스트가 필요합니다</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>변수 이름</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>값</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>세미콜론 사이의 값이 비어 있습니다</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>조건, 즉 객체가 필요합니다</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>조건 목록이 필요합니다</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>필드 목록이 필요합니다</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>텍스트 목록이 필요합니다</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>숫자가 필요합니다</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>0에서 2147483647까지의 정수가 필요합니다</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>닫는 괄호</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>오류가 있습니다!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>대체됨: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>%2의 %1이(가) 잠갔습니다(프로세스 %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>같음: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>UTF-8 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>값 없음</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>유효한 JSON이 아님: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>표가 담을 수 있는 것보다 행이 많습니다</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>64단계보다 깊음</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>대응 없음: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>다른 %Ln개 행에서도 동일</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1"은(는) 없습니다. 가능한 값: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true 또는 false가 필요합니다</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>알 수 없는 종류 ‘%1’. 알려진 것: %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>알 수 없는 유형 ‘%1’. 알려진 것: %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>다름: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>변경 사항을 링크 데이터베이스에 쓰는 중입니다</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>비슷함: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1"의 끝이 시작보다 작습니다</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1"에 간격이 없습니다. 10..50/5처럼 쓰십시오</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>‘%1’은(는) 주소입니다. 파일만 읽습니다</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>‘%1’은(는) 날짜가 아닙니다. 2026-01-31T12:00:00Z처럼 쓰십시오</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1"은(는) %2의 값 범위가 아닙니다: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1"은(는) 읽을 수 있는 디렉터리가 아닙니다</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1"은(는) 행 번호(0에서 2147483647까지의 정수)가 아닙니다</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>"%1"에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>‘%1’은(는) 카탈로그 밖에 있습니다. 그리로 옮기거나 그 디렉터리를 허용하십시오</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>‘%1’은(는) ‘%2’ 밖에 있습니다. 그리로 옮기거나 그 디렉터리를 허용하십시오</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1"이(가) 두 번 이상 있습니다. 마지막 항목이 적용됩니다.</translation>
    </message>
</context>
</TS>
