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
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>값 범위의 다른 값은 다른 대상에 속합니다.</translation>
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
        <source>Der Text ist leer</source>
        <translation>텍스트가 비어 있습니다</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>함수 %1을(를) 알 수 없습니다</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>대상 프로젝트의 테이블을 읽을 수 없습니다.
  프로젝트: %1</translation>
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
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>변수 %1의 값이 다릅니다.
  이전 값: %2
  새 값: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>대상 행이 이미 다른 행에 대해 확인되었습니다.</translation>
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
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>%1 수식의 텍스트가 %2자를 넘어 값이 없습니다</translation>
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
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>%1이(가) 필요하지만 %2을(를) 찾았습니다</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>변수 %1에 대한 지정이 필요합니다</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>함수 %1의 인수 개수가 잘못되었습니다</translation>
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
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>원본과 대상에 값이 있는 공통 변수가 없습니다.</translation>
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
        <source>Zeichen %1: %2</source>
        <translation>문자 %1: %2</translation>
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
        <source>das Ende</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>연산자 또는 끝</translation>
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
        <source>eine schließende Klammer</source>
        <translation>닫는 괄호</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>오류가 있습니다!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>값 없음</translation>
    </message>
</context>
</TS>
