<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(не удалось найти)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Изменение, сделанное другим пользователем:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Строка помечена как снятая с производства.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Строка назначена заново. Вновь назначенной строки (локально) нет.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Эта строка помечена как снятая с производства.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Эта строка назначена на строку&lt;br /&gt;%1 проекта %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Новое назначение: &lt;br /&gt;%3 проекта %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Не удалось обновить запись!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Назначить выделенную строку</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Назначенная сейчас строка</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Подтвердить все назначения</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Не удалось создать запись!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Назначить раскрытые диапазоны значений для этой строки</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Назначить раскрытые диапазоны значений</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Из выбора (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Отменить выбор</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Выбор в менеджер связей</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Отправить выбор в менеджер связей</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Строки, назначенные автоматически</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Показать отфильтрованное дерево</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Запросить номер ERP по почте</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Изменить...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Создать условие для выделенной строки и скопировать его в буфер обмена</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Добавить условие</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Удалить условие</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Условия</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Условия и назначения переменных предложены. Они действуют, как только подтверждена одна строка цели.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Авторизация/смена пользователя</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Перезаписать уже назначенные целевые проекты</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Подтверждённые назначения</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Раскрытие диапазонов значений может занять очень много времени в зависимости от выбранных переменных и размера таблицы.
Действительно продолжить?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Деталь нельзя удалить, так как на неё ссылаются несколько сборок!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Целевого проекта %1 больше нет</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Целевой проект с путём %1 убран.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Целевой проект с путём %1 добавлен.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Показывать имена файлов вместо описаний</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Изменить запись</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Добавить запись</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Удалить запись</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Добавить запись в базу связей</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Алгоритм содержит ошибки:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Вызов %1 завершился ошибкой!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Не удалось удалить запись!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Условия проекта %1 изменены.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Версия целевого проекта с путём %1 изменена.
  Старая дата проекта: %2, новая дата проекта: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Не удалось открыть таблицу исходного проекта.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Не удалось открыть таблицу хотя бы одного исходного проекта.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Версия таблицы целевого проекта с путём %1 изменена.
  Старая дата таблицы: %2, новая дата таблицы: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Переменной %1 нет в целевой таблице</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Сопоставление переменных проекта %1 изменено.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Строка %1 изменена.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Строки не были назначены заново и остаются без изменений. Не удаётся прочитать эти целевые проекты: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Переменной %1 нет в исходной таблице</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Эта строка снята с производства. Моделировщик это подтвердил</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Эту строку не удалось назначить</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Эта строка назначена автоматически. Назначение нужно подтвердить или исправить</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Моделировщик подтвердил это назначение</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Назначить этот проект выделенной строке</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Список документов</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Изменения, внесённые обновлением ERP-сопоставления: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Запросить номер ERP</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Для этой строки есть назначение диапазона значений.
Назначение нужно изменить командой «Изменить назначение диапазонов значений»</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Есть хотя бы один конфликт.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Есть хотя бы одно подтверждённое назначение.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Есть хотя бы одна неназначенная строка.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Есть хотя бы одно неподтверждённое изменение.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Удалены не все подчинённые элементы, так как на некоторые ссылаются и другие сборки!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Сопоставление проекта %1 удалено.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Сопоставление проекта %1 добавлено.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Ошибка при копировании условия:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Ошибка при копировании назначения переменной.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Изменить формулу</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Формула...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Для этой строки есть конфликт. Назначение нужно подтвердить или исправить</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Всего строк</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Выбрать группу</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Каталог</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Ни один проект не соответствует выбору под деревом.
Выключите «%1», чтобы снова увидеть все проекты.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Ошибок не найдено</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Нет ни одной строки без назначения.
Без флажка «%1» видны все строки.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Классифицировать</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Конфликты</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Показать легенду</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Менеджер связей</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Открыть менеджер связей</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Создать...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Создать новую запись</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Вставить новую запись (со значениями выделенной записи)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Ненайденные строки</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Обозначение стандарта</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Номер стандарта</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Показывать только строки, назначенные несколько раз</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Показывать только строки исходной таблицы, назначенные на эту строку</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Путь:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Выбрать проект</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Найти или выбрать проект</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Путь проекта:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Вы собираетесь удалить сборку с подчинёнными элементами. Удалить и все подчинённые элементы?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Проверить синтаксис</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Выбрать строку таблицы</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Переменная</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Игнорировать переменную</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Сопоставление переменных</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Добавить назначение переменной</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Показать скрытые столбцы</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Ваши изменения, которые не удалось принять:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Запланированное вами изменение:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Включить и выключить предпочтительные ряды</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Предпочтительные ряды вкл./выкл.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Выбрать переменные с диапазоном значений</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Изменить назначения диапазонов значений</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Сочетания значений: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET выделенного документа:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Показывать только проекты с неназначенными строками</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Показывать только проекты с неполным сопоставлением</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Показывать только проекты с назначенными строками</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Показывать только неназначенные строки (исходный проект)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Показывать только неназначенные строки (целевой проект)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Назначается строка с LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Назначить строки заново</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Строки назначаются заново</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Строки: %1 из %2 · открытые, которые были бы назначены: %3 · подтверждённые, которые больше не подошли бы: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Номер строки</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Целевой проект</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Убрать целевой проект</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Добавить целевой проект</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Переместить целевой проект вверх</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Переместить целевой проект вниз</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Целевая переменная</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Назначения для проверки</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Подтвердить назначение</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Снять назначение этой строки</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Снять назначение этой строки и подтвердить</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Удалить сопоставление</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Снять назначение на этот проект</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Снять назначение на этот проект и подтвердить (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>содержит ошибки!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Обзор</translation>
    </message>
</context>
</TS>
