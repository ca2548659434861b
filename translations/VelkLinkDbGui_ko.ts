<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(찾을 수 없음)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;다른 사용자가 변경한 내용:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;행이 단종으로 표시되었습니다.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;행이 다시 할당되었습니다. 새로 할당된 행이 (로컬에) 없습니다.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;이 행은 단종으로 표시되었습니다.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;이 행은 프로젝트 %2의 행&lt;br /&gt;%1에 할당되었습니다.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;새 할당: &lt;br /&gt;프로젝트 %4의 %3 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>레코드를 업데이트하지 못했습니다!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>선택한 행 할당</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>현재 할당된 행</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>모든 할당 확인</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>레코드를 만들지 못했습니다!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>이 행의 해석된 값 범위 할당</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>해석된 값 범위 할당</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>선택에서 (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>선택 취소</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>선택을 링크 관리자로</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>선택을 링크 관리자로 보내기</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>자동 할당된 행</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>필터링된 트리 표시</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>메일로 ERP 번호 신청</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>편집...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>선택한 행의 조건을 생성하여 클립보드에 복사</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>조건 추가</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>조건 삭제</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>조건</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>조건과 변수 할당은 제안입니다. 대상의 줄 하나가 확인되면 유효합니다.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>사용자 인증/전환</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>이미 할당된 대상 프로젝트 덮어쓰기</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>확인된 할당</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>값 범위를 해석하는 데 선택한 변수와 테이블 크기에 따라 매우 오래 걸릴 수 있습니다.
계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>여러 어셈블리에서 참조하므로 부품을 삭제할 수 없습니다!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>대상 프로젝트 %1이(가) 더 이상 없습니다</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>경로가 %1인 대상 프로젝트가 제거되었습니다.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>경로가 %1인 대상 프로젝트가 추가되었습니다.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>설명 대신 파일 이름 표시</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>레코드 편집</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>레코드 추가</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>레코드 삭제</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>링크 데이터베이스에 레코드 추가</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>알고리즘에 오류가 있습니다:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>%1 호출에 실패했습니다!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>레코드를 삭제할 수 없습니다!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>프로젝트 %1의 조건이 변경되었습니다.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>경로가 %1인 대상 프로젝트의 프로젝트 버전이 변경되었습니다.
  이전 프로젝트 날짜: %2, 새 프로젝트 날짜: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>원본 프로젝트의 테이블을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>하나 이상의 원본 프로젝트의 테이블을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>경로가 %1인 대상 프로젝트의 테이블 버전이 변경되었습니다.
  이전 테이블 날짜: %2, 새 테이블 날짜: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>변수 %1이(가) 대상 테이블에 없습니다</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>프로젝트 %1의 변수 매핑이 변경되었습니다.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>행 %1이(가) 변경되었습니다.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>행이 다시 할당되지 않았으며 그대로 유지됩니다. 다음 대상 프로젝트를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>변수 %1이(가) 원본 표에 없습니다</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>이 행은 단종되었습니다. 모델러가 확인했습니다</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>이 행을 할당할 수 없습니다</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>이 행은 자동으로 할당되었습니다. 할당을 확인하거나 수정해야 합니다</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>모델러가 이 할당을 확인했습니다</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>이 프로젝트를 선택한 행에 할당</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>문서 목록</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>ERP 매핑 업데이트로 변경된 내용: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>ERP 번호 신청</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>이 행에는 값 범위 할당이 있습니다.
할당은 '값 범위 할당 편집'으로 변경해야 합니다</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>충돌이 하나 이상 있습니다.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>확인된 할당이 하나 이상 있습니다.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>할당되지 않은 행이 하나 이상 있습니다.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>확인되지 않은 변경이 하나 이상 있습니다.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>일부 하위 요소를 다른 어셈블리에서도 참조하므로 모든 하위 요소를 삭제할 수는 없었습니다!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>프로젝트 %1의 매핑이 제거되었습니다.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>프로젝트 %1의 매핑이 추가되었습니다.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>조건을 복사하는 중 오류가 발생했습니다:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>변수 할당을 복사하는 중 오류가 발생했습니다.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>수식 편집</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>수식...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>이 행에 충돌이 있습니다. 할당을 확인하거나 수정해야 합니다</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>전체 행 수</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>그룹 선택</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>카탈로그</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>트리 아래의 선택에 맞는 프로젝트가 없습니다.
‘%1’을(를) 끄면 모든 프로젝트가 다시 표시됩니다.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>오류가 없습니다</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>할당되지 않은 행이 없습니다.
‘%1’의 선택을 해제하면 모든 행이 표시됩니다.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>분류</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>충돌</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>범례 표시</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>링크 관리자</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>링크 관리자 열기</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>새로 만들기...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>새 레코드 만들기</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>새 레코드 삽입(선택한 레코드의 값을 가져옴)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>찾을 수 없는 행</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>표준 명칭</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>표준 번호</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>여러 번 할당된 행만 표시</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>이 행에 할당된 원래 테이블의 행만 표시</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>경로:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>프로젝트 선택</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>프로젝트 검색 또는 선택</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>프로젝트 열기</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>프로젝트 경로:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>하위 요소가 있는 어셈블리를 삭제하려고 합니다. 모든 하위 요소도 삭제할까요?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>구문 검사</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>테이블 행 선택</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>변수</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>변수 무시</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>변수 매핑</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>변수 할당 추가</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>숨겨진 열 표시</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>가져올 수 없었던 사용자의 변경 내용:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>사용자가 계획한 변경:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>우선 계열 켜기 및 끄기</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>우선 계열 켬/끔</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>값 범위 변수 선택</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>값 범위 할당 편집</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>값 조합: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>선택한 문서의 XVARSET:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>할당되지 않은 행이 있는 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>매핑이 불완전한 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>할당된 행이 있는 프로젝트만 표시</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>할당되지 않은 행만 표시(원본 프로젝트)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>할당되지 않은 행만 표시(대상 프로젝트)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>LineID %1인 행을 할당하는 중...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>행 다시 할당</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>행을 다시 할당하는 중</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>줄: %1 / %2 · 할당될 미결 줄: %3 · 더 이상 맞지 않을 확인된 줄: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>행 번호</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>대상 프로젝트</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>대상 프로젝트 제거</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>대상 프로젝트 추가</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>대상 프로젝트를 위로 이동</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>대상 프로젝트를 아래로 이동</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>대상 변수</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>확인할 할당</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>할당 확인</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>이 행의 할당 해제</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>이 행의 할당을 해제하고 확인</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>매핑 삭제</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>이 프로젝트에 대한 할당 해제</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>이 프로젝트에 대한 할당을 해제하고 확인(CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>오류가 있습니다!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>개요</translation>
    </message>
</context>
</TS>
