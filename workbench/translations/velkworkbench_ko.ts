<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>변경할 것이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>%Ln개 행을 확인할까요?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%Ln개 행을 단종으로 확인할까요?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>%Ln개 행의 할당을 해제할까요?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>%Ln개 행의 할당을 해제하고 단종으로 확인할까요?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>그중 %Ln개는 이미 확인되었습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>그중 %Ln개는 값 범위 할당을 잃습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>대상이 없는 %Ln개 행은 확인되지 않은 채로 남습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln개 행은 그대로 유지됩니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>충돌이 있는 %Ln개 행은 변경되지 않습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln개 행은 어떤 대상 프로젝트에도 등록되어 있지 않습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln개 행을 확인했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln개 행을 단종으로 확인했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>%Ln개 행의 할당을 해제했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln개 행의 할당을 해제하고 단종으로 확인했습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>후속 없음</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>확실도</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>새 행</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>이유</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>여기서 이미 결정되었거나 확실함 %1</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>새 릴리스에 행 없음 %1</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>당시 단종으로 확인됨 %1</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>여기에 없는 프로젝트 %1</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>그곳에서 충돌 중 %1</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>가져오지 않음: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>%1에서 가져올 것이 없습니다.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>파일에 카탈로그 릴리스 %1에서 시작하는 매핑이 없습니다.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>이 파일도 카탈로그 릴리스 %1(으)로 이어집니다.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>같은 이전 카탈로그 릴리스에서 더 앞선 새 릴리스로 이어지는 매핑을 선택하십시오.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>%1에서 가져옴: 그곳에서 카탈로그 릴리스 %2에 대해 확인됨</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>이전 매핑을 읽는 중</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>%1에서 아무것도 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>카탈로그 릴리스 %1의 디렉터리</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>대상 프로젝트를 찾는 중</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>결정을 가져오는 중</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>중단됨, 아무것도 가져오지 않았습니다</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>%1에서 가져온 결정: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>%1에서 가져옴: 확인된 행 %Ln개 중 %2개, 확실하게 할당됨 %3, 제안됨 %4.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>이전 카탈로그 릴리스의 디렉터리</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>새 카탈로그 릴리스의 디렉터리</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>카탈로그 디렉터리</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>이 매핑 파일의 두 카탈로그 릴리스는 어디에 있습니까? 디렉터리는 파일과 함께 기억됩니다.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>이전 릴리스(%1)(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>새 릴리스(%1)(&amp;N):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>두 디렉터리가 모두 필요합니다.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1은(는) 디렉터리가 아닙니다.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>이전 릴리스에 %1이(가) 없습니다. 카탈로그 %2이(가) 있는 디렉터리를 지정하세요.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>새 릴리스에 카탈로그 %1이(가) 없습니다.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>%2의 행 %1을(를) 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>충돌하는 행이 없습니다</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>모든 충돌이 결정되었습니다. 이제 저장하세요</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>충돌 %1/%2, 미해결 %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%1의 %Ln개 행이 같은 방식으로 모순됩니다. 이 결정을 모두에 적용할까요?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>내 결정: %1
다른 결정: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>모두 적용(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>한 행씩(&amp;L)</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>이 행은 충돌하지 않습니다</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>내 결정을 알 수 없습니다. 이 행은 열 때 이미 충돌하고 있었습니다</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>충돌하는 행이 없습니다.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>모든 충돌이 결정되었습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln개 행이 더 이 행처럼 모순됩니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>충돌</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>충돌의 양쪽</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>내 결정</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>다른 결정</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>다시 결정</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>충돌 %Ln개 중 %1개가 아직 미해결입니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>미해결</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>내 결정</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>다른 결정</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>새로</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>내 결정</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>다른 결정</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>적용</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>자동 할당됨</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>검토 필요</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>대상 없음, 미결</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>단종으로 확인됨</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, 행 %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>대상 프로젝트</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>대상 행</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>값 범위</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>이전 행</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>내 결정</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>다른 결정</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>항목</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>같음</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>다른 %Ln개 행처럼 대체됨</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>비슷함</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>다름</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>새 행에만 있음</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>이전 행에만 있음</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>변수</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>새 값</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>테이블에 이 행이 없습니다.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>대상 없음. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>할당된 행은 후보에 없습니다.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>이전과 새 값</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>후보</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>확인됨.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>확실하게 할당됨.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln개 행</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>비교함: 처음 %1개</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>공통된 차이가 없습니다.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>공통: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>선택한 행</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>카탈로그 릴리스</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>파일에 여러 카탈로그 릴리스가 있습니다. 어느 것을 열까요?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>매핑 파일을 읽는 중</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>파일을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>파일이 읽기 전용으로 열려 있습니다.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>컴퓨터 장애 후처럼 그곳에서 더 이상 아무도 작업하지 않는 것이 확실하면 잠금을 해제할 수 있습니다.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>읽기 전용(&amp;R)</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>잠금 해제(&amp;L)</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>잠금을 해제할 수 없었습니다.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>카탈로그를 알 수 없습니다. --source 및 --target으로 지정하세요.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>%1의 변경 사항을 저장할까요?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>버린 변경 사항은 사라집니다.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>버리기(&amp;D)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln개 행</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>아직 %Ln개 행이 충돌합니다. 해당 프로젝트:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>충돌 표시(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>그래도 저장(&amp;T)</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>저장됨: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>파일이 저장되지 않았습니다.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>변경 사항 병합(&amp;M)</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>사본을 남기고 새로 쓰기(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>내 버전 쓰기(&amp;W)</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>다른 사람의 변경 사항을 가져왔습니다. 검토한 다음 다시 한 번 저장하세요.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>다른 사람의 변경 사항을 가져올 수 없었습니다.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>매핑 파일을 만들 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>외 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>%1 읽는 중</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>매핑 파일 %1을(를) 읽을 수 없습니다(%2).
다른 파일을 선택하거나 백업 %3을(를) 다시 복사하세요.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>매핑 파일 %1을(를) 읽을 수 없습니다(%2).
다른 파일을 선택하세요.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1에 릴리스가 없습니다.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1에 릴리스 %2이(가) 없습니다. 있는 릴리스: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1이(가) 읽기 전용으로 열려 있습니다.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1은(는) 현재 %2이(가) 편집 중이므로 읽기 전용으로 열렸습니다.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>%1의 폴더에 쓸 수 없습니다(%2). 따라서 파일이 읽기 전용으로 열렸습니다. 다른 이름으로 저장하면 편집할 수 있습니다.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>%1에 저장되지 않은 작업이 있습니다. 파일을 편집용으로 열 수 있게 되면 제안됩니다(%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1에는 다른 이름도 있습니다(하드 링크). 저장해도 다른 이름의 파일은 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>%1 저장 중</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>%1 백업 중</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1은(는) 현재 %2이(가) 편집 중입니다. 아무것도 쓰지 않았습니다. 다른 이름을 선택하세요.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>%1의 폴더에 아무것도 만들 수 없습니다(%2). 아무것도 쓰지 않았습니다. 다른 폴더를 선택하세요.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>이 프로젝트의 행이 필터에 하나도 없습니다.
‘%1’을(를) 열고 ‘%2’을(를) 선택하면 모든 행이 다시 표시됩니다.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>필터에 행이 있는 프로젝트가 하나도 없습니다.
‘%1’을(를) 열고 ‘%2’을(를) 선택하면 모든 프로젝트가 다시 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>매핑 파일(*.json);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>매핑 파일 열기</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>매핑 파일 저장</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>테이블 저장</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>테이블(*.csv);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>공유 사본 선택</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>결정을 가져올 파일</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>필터를 해제했습니다: 프로젝트에 해당 행이 없습니다</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>끝에 도달하여 처음부터 계속합니다</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>처음에 도달하여 끝에서 계속합니다</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>필터에 남은 행이 없습니다</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>바뀐 텍스트</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>환산된 숫자</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>미결 이유</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>차이의 종류</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>열의 차이</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>마지막 결정자</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(해당 없음)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>선택하지 않은 것</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>표를 읽는 중...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln개 행</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>프로젝트 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>필터 없음: 모든 행</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>읽을 수 없는 표: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>모든 행의 필터</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>필터 해제(&amp;C)</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>출처</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>이전 매핑에서 가져옴</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1은(는) 일반 파일이 아니므로 잠금으로 쓸 수 없습니다. 아무것도 쓰지 않았습니다. 그곳에 있는 것을 제거하세요.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1을(를) 현재 다른 프로그램이 저장하고 있습니다. 아무것도 쓰지 않았습니다. 잠시 후 다시 저장하세요.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>%1의 폴더에 아무것도 만들 수 없습니다(%2). 아무것도 쓰지 않았습니다. 공간을 확보하거나 다른 이름으로 저장하세요.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1을(를) 읽을 수 없습니다(%2). 아무것도 쓰지 않았습니다. 다른 이름으로 저장하세요.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1은(는) 읽을 수 있는 매핑 파일이 아닙니다(%2). 아무것도 쓰지 않았습니다. 저장하면 기존 파일은 시간이 표시된 이름으로 보관되고 이 릴리스만 있는 새 파일이 만들어집니다.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1은(는) 읽을 수 있는 매핑 파일이 아닙니다(%2). 아무것도 쓰지 않았습니다. 저장하면 기존 파일은 시간이 표시된 이름으로 보관되고 새 파일이 만들어집니다. 다른 릴리스는 백업 %3에서 가져옵니다: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1을(를) 읽을 수 없으며 %2(으)로 보관할 수도 없었습니다(%3). 아무것도 쓰지 않았습니다. 다른 이름으로 저장하세요.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1은(는) 연 이후 삭제되었거나 이름이 바뀌었습니다. 저장하면 파일이 새로 만들어지고 이 릴리스(%2)만 포함합니다. 아직 아무것도 쓰지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1을(를) 연 이후 다른 사람이 변경했지만 이 릴리스(%2)는 변경되지 않았습니다. 저장해도 다른 릴리스는 현재 파일에 있는 그대로 유지됩니다. 아직 아무것도 쓰지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1을(를) 연 이후 다른 사람이 변경했으며 이 릴리스(%2)도 변경되었습니다. 저장하면 이 릴리스에 대한 그 사람의 변경 사항이 사라집니다. 아직 아무것도 쓰지 않았습니다. 그래도 저장하거나, 다른 이름으로 저장하거나, 파일을 다시 여세요.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>%1에 쓸 수 없습니다(%2). 아무것도 쓰지 않았습니다. 쓰기 권한을 확인하거나 다른 이름으로 저장하세요.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1이(가) 저장되지 않았습니다: %2. 파일은 변경되지 않았고 변경 사항은 열려 있습니다. 공간을 확보하고 다시 저장하거나 다른 이름으로 저장하세요.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>파일을 끝까지 쓸 수 없었습니다</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>쓴 파일을 읽을 수 없습니다(%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>쓴 파일에 저장하려던 내용이 없습니다</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>쓴 파일에 릴리스 %1이(가) 없거나 다른 것입니다</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>백업 %1을(를) 만들 수 없었습니다(%2). 아무것도 쓰지 않았습니다. 공간을 확보하거나 다른 이름으로 저장하세요.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>저장하는 동안 다른 사람이 %1을(를) 변경했습니다. 아무것도 쓰지 않았습니다. 다시 저장하세요.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1이(가) 저장되지 않았습니다: %2. 파일은 변경되지 않았고 변경 사항은 열려 있습니다. 다른 이름으로 저장하세요.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>설명서</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>목차</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>페이지에서 찾기</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>결정 기록(&amp;H)...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>누가 무엇을 언제 왜 결정했는지</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>결정의 이유(&amp;D)...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>마지막 결정이나 선택한 행에 대한 이유. 예: 후속이 없는 이유</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>%2의 행 %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%1의 %Ln개 행</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>이유를 기록함: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>결정 기록</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>선택한 행</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>선택한 프로젝트</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>모든 프로젝트</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>사람, 프로젝트, 대상 또는 이유 검색</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>다시 읽기(&amp;R)</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>CSV로 저장(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>읽을 수 없는 저널 행: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>결정: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>파일을 쓸 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>후속 없음</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1(저장 안 됨)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>사람</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>지금까지</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>새 값</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>내용</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>%1에서 가져옴</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>CSV 파일 폴더</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>카탈로그 디렉터리</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>테이블 가져오기</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>CSV 파일 폴더(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>카탈로그 디렉터리(&amp;D):</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>각 CSV 파일이 카탈로그의 같은 위치에서 테이블이 있는 프로젝트가 됩니다. 테이블을 다시 가져와도 행 번호는 유지됩니다.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>가져오기(&amp;I)</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>CSV 파일 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>카탈로그 디렉터리가 없습니다. 상위 디렉터리가 있으면 만들어집니다.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>한 디렉터리가 다른 디렉터리 안에 있습니다.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>행을 확인하거나 선택한 행 할당</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>행의 할당 해제</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>할당을 해제하고 단종으로 확인</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>값 범위 할당 편집</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>행에서 조건 복사</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>프로젝트 전체 확인</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>테이블에서 찾기</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>다음 찾기</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>이전 찾기</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>열 필터</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>행 복사</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>테이블 크게</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>테이블 작게</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>테이블 보통 크기로</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>기본값(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>키 없음(&amp;O)</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>명령 또는 키</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>테이블</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>창</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>%1의 키</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>키 %1은(는) 입력란과 목록 자체에 필요합니다.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>키 %1을(를) %2와(과) %3이(가) 함께 갖게 됩니다.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>직접 선택함</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>그러면 %1에는 더 이상 키 %2이(가) 없습니다.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>이제 키 %1은(는) %2의 것입니다.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>찾은 것이 없습니다</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>확인됨: 할당이 결정됨</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>제안: 확인하거나 수정해야 함</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>아이콘 없음: 명백히 같으며 프로그램이 할당함</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>할당을 찾지 못함</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>단종: 할당이 없음을 확인함</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>다른 사람의 변경과 충돌</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>프로젝트나 테이블을 읽을 수 없음</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>행의 값 범위 할당</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>대상 테이블에서: 할당된 행</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>범례</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>조건을 클립보드에 복사했습니다</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>복사한 조건은 그대로 쓸 수 없습니다. 값이 없거나, 범위이거나, 따옴표가 들어 있습니다: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>이 필터 안은 모두 끝났습니다. 밖에는 아직 %Ln개 행이 미결입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>끝에 도달하여 처음부터 계속합니다</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>처음에 도달하여 끝에서 계속합니다</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>충돌 %1/%2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>선택한 상태의 행이 없습니다</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>결정이 필요한 행이 더 이상 없습니다</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>미결 행을 하나도 표시할 수 없습니다. 테이블이 없습니다</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>행으로 이동</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>번호 또는 표준 명칭:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>선택한 프로젝트가 없습니다</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>이 프로젝트에 ‘%1’이(가) 있는 행이 없습니다</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>결과 %1/%2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>실행(&amp;D)</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>이 단계는 취소할 수 있습니다.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>선택한 행을 대상으로 합니다.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>프로젝트의 모든 행을 대상으로 합니다.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>필터: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>다른 프로젝트에는 그런 행이 없습니다</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>프로젝트의 표시된 행만 대상으로 합니다: %2개 중 %1개.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>충돌</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>다른 사람의 변경과 충돌하는 행과 해당 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>검토 필요</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>확인하거나 수정해야 하는 제안이 있는 행과 해당 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>대상 없음</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>아무것도 찾지 못한 행과 해당 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>명백히 같아 프로그램이 할당한 행과 해당 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>할당이 확인된 행과 해당 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>단종</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>단종으로 확인된 행과 해당 프로젝트만 표시</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>링크 데이터베이스 사용(&amp;K)</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>이 컴퓨터의 파일</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>PostgreSQL 서버</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>일반 포트</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>암호는 암호 파일, 데스크톱의 키 저장소 또는 PGPASSWORD에 있거나 로그인할 때 입력합니다. 저장되지 않습니다.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>가능하면</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>항상</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>항상, 서버 검증</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>안 함</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>종류:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>파일(&amp;I):</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>호스트(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>포트(&amp;R):</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>데이터베이스(&amp;B):</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>사용자(&amp;U):</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>암호화(&amp;N):</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>링크 데이터베이스: 파일 이름이 없습니다.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>링크 데이터베이스: 데이터베이스 이름이 없거나 올바르지 않습니다.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>링크 데이터베이스의 번호 검사(&amp;N)</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>링크 데이터베이스에 사용자가 속한 그룹이 없습니다.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>그룹 선택</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>링크 데이터베이스의 그룹:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>%2의 행 %1은(는) 이 매핑에 없습니다.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>링크 데이터베이스의 번호를 검사하는 중</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>번호를 검사할 수 없었습니다.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>링크 데이터베이스의 변경 사항이 손실되었을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>링크 데이터베이스의 라이선스가 없습니다.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>링크 데이터베이스 로그인</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>암호는 프로그램이 끝날 때까지 유효하며 저장되지 않습니다. 비워 두면 암호 파일에서 가져옵니다.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>누가 무엇을 삭제했는지 이 이름으로 기록에 남습니다.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>링크 관리자</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>번호, 프로젝트 또는 설명 검색</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>행 표시(&amp;S)</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>다른 행에 연결(&amp;L)...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>그런 다음 프로젝트와 행을 선택하고 ‘선택을 링크 관리자로’로 선택을 보내세요.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>최근 삭제 항목(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>링크: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>복원할 수 있는 삭제 항목이 없습니다.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>최근 삭제 항목을 복원할까요? 행: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1이(가) %2에 %3에서 삭제했습니다.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>복원(&amp;R)</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>처음 %Ln개 링크입니다. 검색하면 다른 링크가 표시됩니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>번호 검사</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>이 매핑의 프로젝트에 있는 번호: %1, 다른 프로젝트: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>읽을 수 없어 비교하지 않음: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>행이 단종되었거나 없음</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>단종으로 확인됨</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>프로젝트에 없음</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>여러 행이 요구함</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>부품이 다름</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>부품이 다름(비교 안 함)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>번호가 있는 미결 행</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>번호: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>%2에 행 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>프로젝트 %1을(를) 표시할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>찾기</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>프로젝트, 행, 명령 또는 설정</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>찾은 항목</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>단어의 일부만 입력해도 됩니다. 뒤에 붙은 숫자는 행을 뜻합니다.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>찾은 것이 없습니다</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>결과 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>결과 %Ln개 중 처음 %1개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>행 %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>오류: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>경고: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>메시지 지우기</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>모든 메시지 복사</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>사용자(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>암호(&amp;P):</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>링크 데이터베이스에 연결할 수 없음: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>ERP 번호를 읽을 수 없습니다. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>행을 다시 할당함: 변경 없음</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>여기에는 그런 행이 없습니다. %1은(는) 다음 행으로 이동합니다.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>카탈로그</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>왼쪽은 이전 카탈로그 릴리스입니다. 아이콘은 아직 결정할 것이 있는 곳을 보여 줍니다. 프로젝트를 선택하면 그 행이 표시됩니다.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>여기에는 행을 넘겨받을 수 있는 새 릴리스의 프로젝트가 조건, 변수 매핑과 함께 표시됩니다.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>왼쪽은 이전 테이블, 오른쪽은 새 테이블입니다. %1은(는) 할당을 확인하거나 오른쪽에서 선택한 행을 할당하고, %2은(는) 할당을 해제하며, %3은(는) 행이 단종되었음을 확인합니다.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>아직 미결인 것</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>카운터는 결정이 필요한 행의 수를 알려 줍니다. %1은(는) 다음 행으로, 다음 프로젝트로도 이동합니다.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>아무것도 잃지 않습니다</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>모든 단계는 취소할 수 있습니다. 비정상 종료 후에는 저장되지 않은 내용의 복구를 제안합니다. 둘러보기는 도움말 메뉴에 있습니다.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>카탈로그 전체의 행을 할당할까요?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>확인된 것은 항상 유지됩니다. 이 단계는 취소할 수 있습니다.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>할당이 없는 행만(&amp;L)</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>확인되지 않은 것 모두 다시(&amp;U)</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>모든 프로젝트를 할당했습니다</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>대상 프로젝트 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>대상 프로젝트: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>설정: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>이 위치에 대한 힌트가 없습니다</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>목록 비우기(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>공유(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>최근 파일(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>이동(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>검토(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>행만(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>링크 데이터베이스</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>행의 상태</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>도구</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>편집용으로 열린 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>파일 버전 위의 내 변경 사항</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>충돌 %Ln개: 내 결정</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>충돌 %Ln개: 상대쪽 결정</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>충돌 %Ln개: 다시 결정</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>저널 %1을(를) 쓸 수 없습니다(%2). 비정상 종료되면 변경 사항을 잃게 됩니다. 곧 저장하세요.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>복구한 버전을 보관할 수 없습니다(%1). 공간을 확보하고 다시 여세요. 저널은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>비정상 종료 후 복구</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>저널 %1을(를) 만들 수 없습니다(%2). 비정상 종료되면 변경 사항을 잃게 됩니다. 자주 저장하세요.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>열려 있는 매핑 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>저장하는 중입니다.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>저장되지 않았습니다. %1 다른 이름으로 저장하세요.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>%1의 잠금을 잃었으며 갱신할 수 없습니다. 다른 사람이 동시에 파일을 편집할 수 있습니다.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>자동 백업에 실패했습니다(%1). 곧 저장하세요.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>변경이 적용되지 않았습니다. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>충돌을 표시함</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>다시 실행: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1”은(는) 이후의 변경과 맞지 않습니다. 단계 목록에서 방해 요인을 볼 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>대상 프로젝트를 찾는 중</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>중단됨, 아무것도 만들지 않았습니다</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>행을 할당하는 중</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>프로젝트 %Ln개: 같은 위치 %1, 다른 위치 %2, 분할 %3, 대상 없음 %4, 읽을 수 없음 %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>프로젝트 %Ln개 중 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>그중 할당 %1, 검토 필요 %2, 대상 없음 %3</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>중단됨: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, 행 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>변경 %Ln개를 가져왔습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln개 행은 양쪽이 같게 결정했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln개 행은 다르게 결정되어 충돌로 표시되었습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>다른 모순 %Ln개: 파일의 버전이 적용됩니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>행 %1을(를) 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>선택한 발견 항목이 없습니다</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>수정함: %2의 %1</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>테이블을 비교하는 중</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>할당된 %Ln개 행을 살펴봄</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>발견 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>이웃 행</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>행 %1~%2이(가) %3만큼 밀려 있습니다</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>행 %1와(과) %2이(가) 서로 바뀌었습니다</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>행 %1이(가) %2만큼 어긋나 있습니다</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>행 %1에 다른 행의 대상 행이 있습니다</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>행 %1을(를) 건너뛰었습니다</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>미해결</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>수정함: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>발견 항목</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>수정함</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>프로젝트</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>이전 카탈로그 릴리스의 디렉터리</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>새 카탈로그 릴리스의 디렉터리</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>바로 행 할당(&amp;L)</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>새 매핑</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>이전 카탈로그 릴리스(&amp;O):</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>그 안의 카탈로그:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>새 카탈로그 릴리스(&amp;N):</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>매핑 파일 선택</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>매핑 파일(&amp;M):</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>만들기(&amp;T)</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>이전 카탈로그 릴리스의 디렉터리가 없습니다.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>새 카탈로그 릴리스의 디렉터리가 없습니다.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>릴리스마다 카탈로그가 있는 디렉터리가 필요합니다.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>매핑 파일에 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>디렉터리 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>저장하면 새 릴리스가 추가됩니다. 날짜가 같은 릴리스는 그 안에서 확인된 모든 것과 함께 바뀝니다.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>이 파일 사용(&amp;U)</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>매체가 가득 찼습니다</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>파일이 여기에서 허용된 크기를 넘습니다</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>쓰기 권한이 없습니다</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>매체가 쓰기 금지되어 있습니다</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>폴더나 파일이 더 이상 없습니다</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>그 자리에 일반 파일이 아닌 것이 있습니다</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>대상 없음</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>이전 행</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>새 행</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>그 밖의 차이</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>프로젝트의 테이블을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>경로:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>표준:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>명칭:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>프로젝트 버전:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>테이블 버전:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>행:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>파일:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>찾기</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>제안이 있는 미결 행 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>패턴 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>그중 %Ln개는 아직 비교 중</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>선택: %Ln개 행</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>그중 %Ln개 제외</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>미결 행의 차이</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>프로젝트 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>후속이 없는 미결 행 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>테이블을 비교하는 중: 프로젝트 %Ln개 읽음</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln개 행</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>프로젝트 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln개 행이 더 이 차이와 다른 차이를 가짐</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>차이</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>확실도</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>예외</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>근접한 숫자</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>다른 숫자</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>다른 문구</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>값 추가됨</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>값 없음</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>비교할 수 없음</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>차이 없음</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>다른 표기</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>불확실: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>폴더 전체에 대상 없음: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>프로젝트 전체에 대상 없음: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>대상 프로젝트가 더 이상 없음: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2이(가) 더 이상 없음</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>비슷한 행 없음: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>프로젝트 이름</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>다른 이름</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>다른 값</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>행마다 이 가운데 하나 이상</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>사용할 수 없음: 열려 있는 파일이 없습니다</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>사용할 수 없음: 링크 데이터베이스에 연결하는 중입니다</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>사용할 수 없음: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>사용할 수 없음: 연결된 링크 데이터베이스가 없습니다</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>사용할 수 없음: 링크 관리자가 선택을 기다리고 있지 않습니다</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>사용할 수 없음: 선택한 프로젝트가 없습니다</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>사용할 수 없음: 선택한 행이 없습니다</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>%1, 행 %2의 ERP 번호</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>ERP 번호를 부여해 주십시오.

프로젝트: %1
행: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>메일을 시작할 수 없었습니다.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>이 컴퓨터에 메일 프로그램이 설정되어 있지 않습니다. 요청 내용은 다음과 같습니다.

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>인쇄할 수 있는 표가 표시되어 있지 않습니다</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>보고서</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>인쇄: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1을(를) 프린터로 보냈습니다</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1을(를) %2에 인쇄했습니다</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1을(를) 인쇄할 수 없습니다.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>프린터가 페이지를 받지 않습니다.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1을(를) 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>페이지</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>질문</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>행 %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>범위에 새 행이 없는 값이 있는데도 %Ln개 행이 확인되어 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>되돌리기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>그래도 확인(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln개 행</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>이 행에는 값 범위 할당이 없습니다.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>없음: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>중복: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>이전 범위에 없음: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>행의 값 범위</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: 값 %Ln개 중 %2개 할당됨</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>결정의 이유</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>대상(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>이유(&amp;R):</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>생산 중단</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>다른 부품과 통합됨</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>여러 부품으로 나뉨</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>다른 카탈로그로 옮겨짐</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>아직 검토하지 않음</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>저장됨</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>복구됨</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>기준</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>검토 필요</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>대상 없음</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>저장된 버전이 복구할 수 있는 모든 것보다 최신입니다.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>복구(&amp;R)</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>이후 변경 사항 포함(%1)(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>저장된 버전 열기(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>단계 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>%1에 저장되지 않은 작업이 있습니다: %2, 마지막은 ‘%3’. 작업자: %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, 행 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, 프로젝트 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>테이블을 가져오는 중</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1에는 더 이상 CSV 파일이 없으며 그대로 유지됩니다</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>폴더에 CSV 파일이 없어 아무것도 가져오지 않았습니다</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>중단됨: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>모두 쓰지는 못했습니다: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1을(를) 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>행 내보내기</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>테이블(*.csv);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>행을 내보내는 중</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>중단됨, 아무것도 내보내지 않았습니다</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>보고서 쓰기</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>PDF 파일(*.pdf);;HTML 페이지(*.html);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>보고서를 만드는 중</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>중단됨, 보고서를 쓰지 않았습니다</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>페이지를 조판하는 중</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>보고서를 %1에 썼습니다</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>취소됨, 보고서가 만들어지지 않았습니다</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>%1/%2쪽</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>테이블 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>새로 추가 %1, 변경 %2, 변경 없음 %3, 가져오지 않음 %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln개 행을 %1(으)로 내보냈습니다</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1, 행 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>합의된 대체</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>카탈로그 릴리스 전체</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>합의(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>철회(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>근거(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>넘겨받기(&amp;T)</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>대체는 이전 값이 새 값에 해당함을 나타냅니다. 제안을 만들지만 아무것도 확인하지 않습니다.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>합의됨</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>%1에서 합의됨</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>테이블을 읽는 중</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>지지하는 행 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>반하는 행 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>합의된 것이 없습니다. 차이 목록이 열려 있으면 그 대체가 여기에 제시됩니다.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>매핑 보고서: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>카탈로그 릴리스 %1에서 %2(으)로</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>작성일: %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>행의 현황</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>폴더별(하위 전체 포함)</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>프로젝트별</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>행이 미결인 이유</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>미결 행과 제안의 차이</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>표본</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>누가 무엇을 결정했는지</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>미결 행</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>읽을 수 없었던 것</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>단종으로 확인됨</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>확실하게 할당됨</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>검토 필요</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>대상 없음</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>충돌 중</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>명칭</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>차이</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>확률</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>예외</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>사람</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>내용</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>판정함</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>맞음</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>최대 오류(95 % 확실)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>기각됨</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>테이블을 읽을 수 없음</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>비교할 수 없음</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>차이 없음</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>두 사람이 다르게 결정함</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>다른 사람이 결정함</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>읽을 수 없는 테이블이 있음</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>조건이나 수식이 실패함</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>담당하는 대상이 없음</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>열이 없음</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>여러 행이 같음</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>너무 다름</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>같지만 확인되지 않음</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>불확실: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>후속이 없는 미결 행</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>단종으로 확인된 행</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>공통점</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>합계</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>이전 매핑에서 가져온 것</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>이전 매핑</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>아직 가져온 그대로</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>판정한 행</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>완료된 행: %2개 중 %1개, 미결: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>리포지토리에서 대상 프로젝트 읽기(&amp;T)</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>카탈로그 = svn://서버:포트/경로</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>한 줄에 카탈로그 하나씩. 줄이 없으면 카탈로그 이름이 곧 서버 이름입니다.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>최신</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 초</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>서버(&amp;E):</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>리비전(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>이 컴퓨터의 공간(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>서버 대기(&amp;W):</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>서버, 줄 %1: &quot;%2&quot;은(는) &quot;카탈로그 = svn://서버:포트/경로&quot; 형식이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>리포지토리 로그인</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1에 로그인이 필요합니다.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>이름과 암호는 프로그램이 끝날 때까지 유효하며 저장되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>행 %1을(를) 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>더 이상 미결 행이 없습니다</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>테이블이 아직 비교되지 않았습니다</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>처음부터: 미결 행 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>미결 행이 불확실한 순서로 나옵니다</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>미결 행이 위치 순서로 나옵니다</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>이 행은 선택한 패턴에 속하지 않습니다</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>행 %1 제외됨</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>선택한 패턴이 없거나 모든 행이 결정되었습니다</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln개 행</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>프로젝트 %Ln개에서 확인할까요?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>이 단계는 취소할 수 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>확인(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln개 행 확인됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>후보 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>행 %1 → %2 확인됨</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>합의된 대체: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>패턴을 선택하거나 미결 행을 선택하세요</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>표본</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>추출(&amp;D)</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>표본, 행 %1/%2: + 맞음, − 틀림</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>진행 중인 표본이 없습니다</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>표본의 행이 모두 이미 결정되었습니다</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%2개 중 %1개 맞음</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>표본 기각됨, %1, 판정: %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>모든 행 판정됨</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>95 % 확실도로 오류 %1 % 미만</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>표본: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>판정: %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>틀린 행이 있던 쪽</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>행 %1이(가) 틀렸습니다: 표본이 끝났습니다</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>계속(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>틀린 행 보기(&amp;L)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>그중 %Ln개가 불확실합니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>모든 패턴이 완료되었습니다</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>프로젝트 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln개 행을 단종으로 확인함</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>%2의 행 %1이(가) 틀렸습니다. 집합을 나누었습니다. 어느 부분으로 계속할까요?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>%Ln개 행 중 이만큼을 추출하여 하나씩 판정합니다. %1개가 맞으면 95 % 확실도로 오류가 5 % 미만이고, %2개가 맞으면 1 % 미만입니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>스크립트 콘솔</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>스크립트 출력</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>스크립트의 한 줄</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>JavaScript 한 줄. Enter로 실행, Tab으로 완성, 위/아래로 기록을 이동합니다.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>실행 중인 스크립트를 중지합니다(Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>비우기</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>출력을 지웁니다</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>스크립트 %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(콘솔)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>완료, 상태 %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>행 %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>너무 큽니다.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>UTF-8 텍스트가 아닙니다.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1을(를) 읽을 수 없습니다. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>스크립트 열기</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>스크립트(*.js);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>스크립트 저장</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1을(를) 쓸 수 없습니다. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>스크립트가 저장되지 않았습니다.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(이름 없음)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>새 스크립트</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>스크립트</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>열기 …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>인수:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>스크립트 텍스트</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>인수</translation>
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
        <translation>(프로세스 %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>저널 %1을(를) 읽을 수 없습니다(%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>마지막으로 끝난 세션 뒤에서 저널 %1을(를) 읽을 수 없습니다. 무엇이 있었는지 알 수 없습니다. 저널은 보관됩니다.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>저널 %1의 끝을 읽을 수 없습니다. 마지막 변경이 없을 수 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>저널 %1이(가) 손상되었습니다. 손상된 곳 뒤에서 변경 %Ln개는 아직 맞고 %2개는 맞지 않습니다. 다른 것이 더 없을 수 있습니다. 저널은 보관됩니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>저널 %1이(가) 손상되었거나 매핑 파일과 맞지 않습니다. 이후 변경이 적어도 %Ln개 없습니다. 저널은 보관됩니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>결정한 뒤 다음 미결 행으로 이동(&amp;D)</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>데스크톱과 같게</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>밝게</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>안 함</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 분</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>언어(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>색(&amp;C):</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>글자 크기(&amp;F):</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>백업 간격(&amp;Y):</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>고대비</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>한 줄에 폴더 하나. 카탈로그의 파일이 카탈로그 밖에서 가리키는 것을 이 폴더에서 읽을 수 있습니다.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>허용된 폴더:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>허용된 폴더: &quot;%1&quot;은(는) 전체 경로의 폴더가 아닙니다.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>이 매핑은 누구와도 공유되지 않습니다. 먼저 공유 사본을 선택하세요.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1이(가) 이미 있으며 다른 매핑입니다. 다른 사본을 선택하거나 기존 사본을 새 파일로 가져오세요.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>마지막 업데이트 이후 다른 사람이 게시했습니다.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>충돌하는 행은 게시되지 않습니다: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>다른 사람의 폴더에 변경 사항이 있습니다: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>폴더를 이미 다른 사람이 맡고 있습니다: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>지금 다른 사람이 게시하고 있습니다(%1). 잠시 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>공유 사본에 접근할 수 없습니다: %1. 내 파일은 변경되지 않았습니다. 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>파일 중 하나는 읽을 수 있는 매핑이 아닙니다: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>쓸 수 없었습니다: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>실패했습니다.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>공유 사본을 읽는 중</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>%1을(를) 통해 공유됨</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>다른 사람의 변경 사항을 가져오는 중</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>새로운 것이 없습니다</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>변경 사항을 게시하는 중</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>매핑을 편집함</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>게시됨, 리비전 %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>먼저 이것을 가져옵니다. 그다음에 게시할 수 있습니다.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>업데이트(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>그래도 게시(&amp;S)</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>폴더 맡기</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>맡기(&amp;T)</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>폴더를 등록하는 중</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>더 이상 내 폴더가 없습니다</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>내 폴더: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(여기)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>열고 있음</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>열고 있지 않음</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>마지막 %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>폴더 %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>내 리비전 %1, 최신 리비전 %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>다른 사람이 게시했습니다.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>다른 사람에게서 온 새로운 것이 없습니다.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>내 변경 사항이 아직 게시되지 않았습니다.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>공유 사본: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>마지막 게시가 중단되었지만 도착했습니다.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>마지막 게시가 중단되었습니다. 다시 게시하세요.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>공유 파일이 작업 사본에서 변경되었지만 제출되지 않았습니다. 그 내용은 %1에 보관됩니다.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>작업 사본이 작업 도중에 방치되어 있어 정리했습니다.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>작업 사본의 관리 정보가 손상되어 새로 가져왔습니다. 이전 것은 %1입니다.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>중단된 것을 바로잡았습니다.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>카탈로그 폴더(쉼표로 구분). *는 임의의 문자열, ?는 한 글자를 뜻합니다. 비우면 모두 반환합니다:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>모두 결정됨</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>아직 결정이 필요한 행</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>필터: 행 없음</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>모든 행의 필터가 보여주는 행</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln개 행&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>미결: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>필터: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1, 프로젝트 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>아직 할당된 행이 없습니다</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>진행 중인 작업을 중단합니다. 완료된 것은 유지됩니다</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>오류 및 경고: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>단계</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>사람, 내용 또는 행 검색</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>여기까지 되돌리기(&amp;B)</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>이 단계와 이후의 유효한 모든 단계를 취소합니다</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>행으로 이동(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>의존하는 %Ln개와 함께 취소(&amp;T)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>이것만 취소(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>이전 %Ln개와 함께 다시 실행(&amp;D)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>다시 실행(&amp;D)</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>아직 단계 없음</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>다른 단계가 의존하지 않습니다.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>이 단계만 다시 실행할 수 있습니다.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>이에 의존하는 단계: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>의존 대상: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>다르게 결정하여 방해하는 단계: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>이 목록의 어느 단계도 결정하지 않은 다른 내용이 있습니다(예: 다른 프로그램). 이 단계는 더 이상 움직일 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>외 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, 프로젝트 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>유효</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>대체됨</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>기준</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>사람</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>내용</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>행</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>%1의 변경은 행을 다시 할당할 때 적용됩니다. 그때는 확인된 것만 유지됩니다.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%1의 %Ln개 행이 단종으로 확인되었으나 이제는 그렇지 않습니다: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>%1에서 무시된 채로 남는 변수: %2. 그중 하나를 다시 매핑하려면 &quot;수식...&quot;을 선택하거나 행을 삭제하고 다시 입력하세요.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2의 대상 프로젝트 %1의 조건이 없어졌습니다.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>%2의 대상 프로젝트 %1의 변수 매핑이 없어졌습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>%3의 행 %1 → %2: 다른 %Ln개 행도 같은 대상 행을 가집니다: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%1의 %Ln개 행이 새로 할당된 행과 대상 행을 공유합니다: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>충돌 %Ln개 수락됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln개 행 확인됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln개 행을 단종으로 확인함</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln개 행 할당됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>%Ln개 행의 할당 해제됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln개 행의 값 범위 할당 변경됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>%Ln개 행의 충돌 해결됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln개 행 변경됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>행 %1 → %2 확인됨</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>행 %1 → %2 할당됨</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1(이전 %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>행 %1을(를) 단종으로 확인함(이전 %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>행 %1을(를) 단종으로 확인함</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>행 %1의 할당 해제됨(이전 %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>프로젝트 추가됨</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>프로젝트 제거됨</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>대상 프로젝트 추가됨</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>대상 프로젝트 제거됨</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>대상 프로젝트의 순서 변경됨</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>조건 변경됨</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>변수 매핑 변경됨</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>버전 변경됨</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>상태 변경됨</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2의 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1, 프로젝트 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>건너뛰기(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>다음(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>마침(&amp;D)</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, 행 %2: 값 범위 할당의 항목 %3이(가) {NAME=값} -&gt; 행 번호 형식이 아닙니다: &quot;%4&quot;. 수정하거나 다시 해석하세요.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, 행 %2: 값 범위 할당이 행 %3을(를) 가리키지만 이 행에는 대상 프로젝트가 없습니다. 할당하거나 텍스트를 비우세요.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, 행 %2: 값 범위 할당이 가리키는 행 %3은(는) %4에 없습니다. 수정하거나 다시 해석하세요.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: 대상 프로젝트 %2의 테이블을 읽을 수 없어 값 범위 할당을 검사하지 못했습니다. 대상 프로젝트의 디렉터리를 확인하세요(%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>값 범위 할당을 검사하는 중</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>값 범위 할당 %Ln개 검사됨</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>문제 없음</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>문제 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1(중단됨): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>카탈로그 릴리스 대조</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>카탈로그가 새로 나오면 이전 릴리스의 모든 행을 새 릴리스의 행으로 옮겨야 합니다. 프로그램이 제안하고 사용자가 검토하여 확인합니다.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>최근에 연 파일:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>새 매핑(&amp;N)...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>두 카탈로그 릴리스로 새 매핑 파일을 만듭니다</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>열기(&amp;O)...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>매핑 파일을 엽니다</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>예제 카탈로그 열기(&amp;E)</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>함께 제공되는 예제 카탈로그용으로 내 매핑 파일을 엽니다</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>모든 변경 사항을 매핑 파일에 씁니다</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>다른 이름으로 저장(&amp;A)...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>다른 매핑 파일에 씁니다</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>매핑 파일을 닫습니다</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>카탈로그 디렉터리(&amp;D)...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>이전 및 새 카탈로그 릴리스의 디렉터리를 선택합니다</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>공유 사본(&amp;S)...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>여러 사람이 이 매핑에서 작업하는 데 쓰는 사본을 선택합니다</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>새로 고침(&amp;R)</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>다른 사람이 게시한 것을 가져옵니다</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>게시(&amp;P)</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>내 변경 사항을 다른 사람에게 전달합니다</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>폴더 맡기(&amp;F)...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>내가 편집하는 폴더를 다른 사람에게 알립니다</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>누가 무엇을 작업하는지(&amp;W)</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>누가 매핑을 열고 있고 어떤 폴더가 누구의 것인지 보여 줍니다</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>테이블 가져오기(&amp;I)...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>CSV 파일 폴더를 카탈로그의 프로젝트로 만듭니다</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>행 내보내기(&amp;X)...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>릴리스의 모든 행을 할당과 함께 CSV 파일에 씁니다</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>보고서(&amp;P)...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>릴리스가 얼마나 진행되었고 행이 왜 미결인지 PDF 또는 HTML로 씁니다</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>프로그램을 끝냅니다</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>마지막 단계를 취소합니다</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>취소한 단계를 다시 실행합니다</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>행 확인(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>선택한 행 또는 표시된 모든 행의 할당을 한 단계로 확인합니다</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>대상 없는 행을 단종으로 확인(&amp;X)...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>선택한 행 또는 표시된 모든 행 중 대상이 없는 행을 단종으로 확인합니다</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>할당 해제(&amp;M)...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>선택한 행 또는 표시된 모든 행의 할당을 한 단계로 해제합니다</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>할당 해제 후 확인(&amp;O)...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>선택한 행 또는 표시된 모든 행이 단종됨: 한 단계로 할당을 해제하고 확인합니다</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>모든 프로젝트 할당(&amp;A)...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>카탈로그의 모든 행에 대한 할당을 찾습니다. 확인된 것은 유지됩니다</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>값 범위 할당 검사(&amp;V)</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>모든 값 범위 텍스트를 대상 프로젝트의 테이블과 비교합니다</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>스크립트(&amp;I)...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>스크립트를 작성하고 실행하는 창을 엽니다</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>설정(&amp;S)...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>언어, 글꼴, 키, 백업</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>다음 미결 행(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>결정이 필요한 다음 행으로, 다음 프로젝트로도 이동합니다</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>이전 미결 행(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>결정이 필요한 이전 행으로, 이전 프로젝트로도 이동합니다</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>행으로 이동(&amp;G)...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>번호나 명칭으로 프로젝트의 행을 찾습니다</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>다른 테이블(&amp;O)</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>이전 테이블과 새 테이블 사이를 전환합니다</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>찾기(&amp;F)...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>단어의 일부로 프로젝트, 행, 명령, 설정을 찾습니다</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>차이 패턴(&amp;D)</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>미결 행이 제안과 어떻게 다른지 보여 줍니다</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>이전과 새 값(&amp;O)</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>행의 이전 값과 새 값을 나란히, 후보와 함께 보여 줍니다</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>패턴 확인(&amp;C)...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>선택한 패턴의 모든 행을 한 단계로 확인합니다</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>행 제외(&amp;T)</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>이 행은 패턴의 다른 행과 함께 확인되지 않습니다</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>패턴의 다음 행(&amp;N)</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>선택한 패턴의 다음 미결 행으로 이동합니다</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>패턴의 이전 행(&amp;P)</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>선택한 패턴의 이전 미결 행으로 이동합니다</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>다음 패턴(&amp;E)</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>목록의 다음 패턴을 선택합니다</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>가장 불확실한 것부터(&amp;U)</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>미결 행이 위치 대신 오류 위험 순서로 나옵니다</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>이웃 행(&amp;G)</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>이웃한 행의 할당이 서로 맞지 않는 곳을 보여 줍니다</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>행 바로잡기(&amp;M)</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>선택한 이웃 행의 발견 항목을 한 단계로 수정합니다</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>대체(&amp;R)...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>카탈로그 릴리스의 값 대체를 합의하거나 철회합니다</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>표본(&amp;S)...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>선택한 패턴이나 선택한 행에서 행을 추출하여 하나씩 판정합니다</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>표본: 맞음(&amp;I)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>표시된 표본 행이 올바르게 할당되었습니다</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>표본: 틀림(&amp;W)</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>표시된 표본 행이 잘못 할당되었습니다. 표본이 끝납니다</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>후보 &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>이 후보를 행에 할당하고 확인합니다</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>후보 &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>후보 &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>후보 &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>후보 &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>행의 값 범위</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>이전 범위의 어떤 값에 새 행이 있는지 보여 줍니다</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>충돌(&amp;F)</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>양쪽이 다르게 결정한 행을 보여 줍니다</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>다음 미해결 충돌</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>충돌이 아직 미해결인 다음 행으로 이동합니다</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>충돌: 내 결정</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>이 충돌에서는 내 결정이 적용됩니다</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>충돌: 다른 결정</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>이 충돌에서는 상대쪽 결정이 적용됩니다</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>충돌: 다시 결정</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>어느 결정도 적용되지 않으며 행은 다시 대상이 없게 됩니다</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>표시를 다시 만듭니다: 트리, 통계, 디스크의 테이블</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>설명서(&amp;M)</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>해당 위치의 설명서를 엽니다</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>키(&amp;K)...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>모든 명령의 키를 보여 주고 변경합니다</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>이 위치의 힌트(&amp;H)</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>키가 작용하는 곳에 힌트를 표시합니다. 테이블에서는 행이 그 상태인 이유를 보여 줍니다</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>둘러보기(&amp;T)</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>무엇이 어디에 있는지 몇 단계로 보여 줍니다</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>이 프로그램 정보(&amp;A)</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>버전과 디렉터리</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>단계...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>이전 세션을 포함한 모든 단계를 나열하고 하나씩 취소합니다</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>미결 행이 있는 다음 프로젝트</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>결정할 것이 있는 다음 프로젝트로 이동</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>미결 행이 있는 이전 프로젝트</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>결정할 것이 있는 이전 프로젝트로 이동</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>모든 행의 필터</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>상태, 이유, 차이, 사람별로 모든 프로젝트의 행을 선택합니다. F8로 이동합니다</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>인쇄(&amp;T)...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>표시된 표의 쪽을 보여 주고 인쇄합니다</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>보고서의 쪽을 보여 주고 인쇄합니다</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>보고서 인쇄...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>결정 가져오기...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>같은 이전 릴리스에 대해 이미 확인된 것을 이전 매핑에서 한 단계로 가져옵니다</translation>
    </message>
</context>
</TS>
